#include "plotcsv.h"

#include <QDateTime>
#include <QIODevice>
#include <QLocale>
#include <QTimeZone>

#include <algorithm>
#include <optional>

namespace corvane {

namespace {

constexpr qsizetype bufferSize = 1 << 16;

/** What is left to write of one series. */
struct Cursor
{
    bool isAtEnd() const { return next == end; }

    SampleStore::Iterator next;
    SampleStore::Iterator end;
};

QByteArray quoted(QString text)
{
    text.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return '"' + text.toUtf8() + '"';
}

QByteArray headerOf(const PlotSeries &series)
{
    const QString unit = series.getUnit();
    return ',' + quoted(unit.isEmpty() ? series.getPath() : series.getPath() + " [" + unit + ']');
}

std::optional<qint64> earliestOf(const std::vector<Cursor> &cursors)
{
    std::optional<qint64> earliest;
    for (const Cursor &cursor : cursors)
        if (!cursor.isAtEnd() && (!earliest || cursor.next->timeUs < *earliest))
            earliest = cursor.next->timeUs;
    return earliest;
}

void addRow(QByteArray &text, std::vector<Cursor> &cursors, qint64 timeUs)
{
    text += timeText(timeUs).toLatin1();
    for (Cursor &cursor : cursors) {
        text += ',';
        if (cursor.isAtEnd() || cursor.next->timeUs != timeUs)
            continue;
        if (!cursor.next->isGap())
            text += QByteArray::number(cursor.next->value, 'g', QLocale::FloatingPointShortest);
        ++cursor.next;
    }
    text += "\r\n";
}

} // namespace

QString timeText(qint64 timeUs)
{
    const qint64 fraction = ((timeUs % 1'000'000) + 1'000'000) % 1'000'000;
    const auto seconds
        = QDateTime::fromSecsSinceEpoch((timeUs - fraction) / 1'000'000, QTimeZone::utc());
    return QStringLiteral("%1.%2Z")
        .arg(seconds.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")))
        .arg(fraction, 6, 10, QLatin1Char('0'));
}

bool writePlotCsv(QIODevice &device, const PlotSeriesList &series, qint64 fromUs, qint64 toUs)
{
    QByteArray text = "time";
    std::vector<Cursor> cursors;
    for (const auto &one : series) {
        if (one->isHidden())
            continue;
        text += headerOf(*one);
        const SampleStore &store = one->getStore();
        cursors.push_back({store.find(fromUs), store.find(toUs + 1)});
    }
    text += "\r\n";
    while (const auto timeUs = earliestOf(cursors)) {
        addRow(text, cursors, *timeUs);
        if (text.size() < bufferSize)
            continue;
        if (device.write(text) != text.size())
            return false;
        text.clear();
    }
    return device.write(text) == text.size();
}

} // namespace corvane
