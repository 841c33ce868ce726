#include "report.h"

#include "formatinfo.h"
#include "messageinfo.h"
#include "messagestatistics.h"
#include "messagestatisticsdata.h"
#include "reception.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QTextStream>

namespace corvane {

namespace {

constexpr qsizetype maximumEvents = 1000;

QString tr(const char *text)
{
    return QCoreApplication::translate("corvane::Report", text);
}

QJsonValue number(quint64 count)
{
    return {static_cast<qint64>(count)};
}

QJsonValue optionalNumber(const std::optional<quint64> &count)
{
    return count ? number(*count) : QJsonValue();
}

quint64 countEvents(Reception &reception)
{
    quint64 count = 0;
    for (const quint64 ofType : reception.getStatistics()->getData()->eventCounts)
        count += ofType;
    return count;
}

QJsonArray intervalsOf(const MessageStatistics &type)
{
    QJsonArray intervals;
    for (const auto &interval : type.getData()->intervals.getClasses())
        intervals.append(QJsonObject{{QStringLiteral("ms"), interval.ms},
                                     {QStringLiteral("count"), number(interval.count)}});
    return intervals;
}

QJsonArray messagesOf(Reception &reception)
{
    const bool hasChecksum = reception.getTotals().crcErrors.has_value();
    QJsonArray messages;
    for (const auto &type : reception.getStatistics()->getData()->all) {
        const MessageStatisticsData &data = *type->getData();
        const QJsonValue crcErrors = hasChecksum ? number(data.crcErrors) : QJsonValue();
        messages.append(QJsonObject{
            {QStringLiteral("format"), type->getFormatInfo()->getName()},
            {QStringLiteral("name"), type->getMessageName()},
            {QStringLiteral("count"), number(data.received)},
            {QStringLiteral("crcErrors"), crcErrors},
            {QStringLiteral("unknownTime"), number(data.withUnknownTime)},
            {QStringLiteral("unknownInterval"), number(data.intervals.unknownIntervals)},
            {QStringLiteral("gaps"), number(data.intervals.gapCount)},
            {QStringLiteral("missingEpochs"), number(data.intervals.missingEpochs)},
            {QStringLiteral("regular"), type->isCurrentlyRegular()},
            {QStringLiteral("lastIntervalMs"), number(type->getLastInterval())},
            {QStringLiteral("intervals"), intervalsOf(*type)}});
    }
    return messages;
}

QJsonArray crcErrorsByTypeOf(const SenderStatistics &sender)
{
    QMap<QString, quint64> byName;
    for (auto entry = sender.crcErrorsByType.begin(); entry != sender.crcErrorsByType.end();
         ++entry)
        byName[entry.key()->getName()] += entry.value();
    QJsonArray types;
    for (auto entry = byName.begin(); entry != byName.end(); ++entry)
        types.append(QJsonObject{{QStringLiteral("name"), entry.key()},
                                 {QStringLiteral("count"), number(entry.value())}});
    return types;
}

QJsonArray sendersOf(const Reception &reception)
{
    const bool hasChecksum = reception.getTotals().crcErrors.has_value();
    QJsonArray senders;
    for (const auto &sender : reception.getSenders().getAll()) {
        const QJsonValue crcErrors = hasChecksum ? number(sender->crcErrors) : QJsonValue();
        const QJsonValue byType
            = hasChecksum ? QJsonValue(crcErrorsByTypeOf(*sender)) : QJsonValue();
        senders.append(QJsonObject{{QStringLiteral("id"), sender->id},
                                   {QStringLiteral("frames"), number(sender->frames)},
                                   {QStringLiteral("sequenceGaps"), number(sender->sequenceGaps)},
                                   {QStringLiteral("lost"), number(sender->lost)},
                                   {QStringLiteral("crcErrors"), crcErrors},
                                   {QStringLiteral("crcErrorsByMessage"), byType}});
    }
    return senders;
}

QString timeText(const QDateTime &time)
{
    return time.isValid() ? time.toString(Qt::ISODateWithMs) : QString();
}

QJsonArray eventsOf(Reception &reception)
{
    QJsonArray events;
    const auto entries = reception.getEventLog()->getEntries().first(
        qMin(maximumEvents, reception.getEventLog()->getEntries().size()));
    for (const EventLog::Entry &entry : entries) {
        const QJsonValue time
            = entry.time.isValid() ? QJsonValue(timeText(entry.time)) : QJsonValue();
        events.append(QJsonObject{{QStringLiteral("time"), time},
                                  {QStringLiteral("text"), entry.event.getMessage()}});
    }
    return events;
}

quint64 ratePerSecond(const ReportedEffort &effort, const Reception::Totals &totals)
{
    return effort.seconds > 0
               ? static_cast<quint64>(static_cast<double>(totals.frames) / effort.seconds)
               : 0;
}

double roundMs(const ReportedEffort &effort)
{
    return static_cast<double>(effort.longestRoundUs) / 1000.0;
}

QJsonObject performanceOf(const ReportedEffort &effort, const Reception::Totals &totals)
{
    const QJsonValue backlog
        = effort.backlogBytes ? QJsonValue(*effort.backlogBytes) : QJsonValue();
    return {{QStringLiteral("seconds"), effort.seconds},
            {QStringLiteral("messagesPerSecond"), number(ratePerSecond(effort, totals))},
            {QStringLiteral("longestRoundMs"), roundMs(effort)},
            {QStringLiteral("backlogBytes"), backlog}};
}

void writeEffort(QTextStream &out, const ReportedEffort &effort, const Reception::Totals &totals)
{
    out << tr("Read in:         %1 s (%2 messages per second; longest event round %3 ms)")
               .arg(effort.seconds, 0, 'f', 3)
               .arg(ratePerSecond(effort, totals))
               .arg(roundMs(effort), 0, 'f', 1)
        << '\n';
    if (effort.backlogBytes)
        out << tr("Backlog:         %1 bytes left unread").arg(*effort.backlogBytes) << '\n';
}

void writeTotals(QTextStream &out, const Reception::Totals &totals)
{
    const QString crcErrors = totals.crcErrors ? QString::number(*totals.crcErrors)
                                               : tr("not available: the format has no checksum");
    out << tr("Bytes:           %1 (%2 belong to no frame)")
               .arg(totals.bytes)
               .arg(totals.skippedBytes)
        << '\n'
        << tr("Good frames:     %1").arg(totals.frames) << '\n'
        << tr("Unknown frames:  %1").arg(totals.unknownFrames) << '\n'
        << tr("CRC errors:      %1").arg(crcErrors) << '\n';
}

void writeMessages(QTextStream &out, Reception &reception)
{
    const bool hasChecksum = reception.getTotals().crcErrors.has_value();
    out << '\n'
        << tr("     Count   CRC errors  Gaps (missing epochs)  Interval         Message") << '\n';
    for (const auto &type : reception.getStatistics()->getData()->all) {
        const IntervalStatistics &intervals = type->getData()->intervals;
        const QString gaps
            = QStringLiteral("%1 (%2)").arg(intervals.gapCount).arg(intervals.missingEpochs);
        const QString interval = type->isCurrentlyRegular()
                                     ? MessageStatistics::getIntervalString(type->getLastInterval())
                                     : tr("not regular");
        const QString crcErrors
            = hasChecksum ? QString::number(type->getData()->crcErrors) : QStringLiteral("-");
        out << QStringLiteral("%1   %2  %3  %4  %5")
                   .arg(type->getData()->received, 10)
                   .arg(crcErrors, 10)
                   .arg(gaps, 21)
                   .arg(interval, -15)
                   .arg(type->getMessageName())
            << '\n';
    }
}

void writeSenders(QTextStream &out, const Reception &reception)
{
    out << '\n' << tr("    Frames         Gaps        Lost  Sender") << '\n';
    for (const auto &sender : reception.getSenders().getAll())
        out << QStringLiteral("%1   %2  %3  %4")
                   .arg(sender->frames, 10)
                   .arg(sender->sequenceGaps, 10)
                   .arg(sender->lost, 10)
                   .arg(sender->id)
            << '\n';
}

void writeEvents(QTextStream &out, Reception &reception)
{
    constexpr qsizetype shown = 20;
    const auto entries = reception.getEventLog()->getEntries();
    out << '\n' << tr("Events: %1").arg(countEvents(reception)) << '\n';
    for (qsizetype i = 0; i < qMin(shown, entries.size()); ++i)
        out << "  " << timeText(entries.at(i).time) << "  " << entries.at(i).event.getMessage()
            << '\n';
    if (entries.size() > shown)
        out << tr("  ... and more; --report json lists them.") << '\n';
}

} // namespace

QByteArray makeJsonReport(const QString &source, Reception &reception, const ReportedEffort &effort)
{
    reception.flushEvents();
    const Reception::Totals &totals = reception.getTotals();
    const QJsonArray events = eventsOf(reception);
    const auto omitted
        = static_cast<quint64>(reception.getEventLog()->getEntries().size() - events.size());
    const QJsonObject report{{QStringLiteral("source"), source},
                             {QStringLiteral("bytes"), number(totals.bytes)},
                             {QStringLiteral("performance"), performanceOf(effort, totals)},
                             {QStringLiteral("skippedBytes"), number(totals.skippedBytes)},
                             {QStringLiteral("frames"), number(totals.frames)},
                             {QStringLiteral("unknownFrames"), number(totals.unknownFrames)},
                             {QStringLiteral("crcErrors"), optionalNumber(totals.crcErrors)},
                             {QStringLiteral("messages"), messagesOf(reception)},
                             {QStringLiteral("senders"), sendersOf(reception)},
                             {QStringLiteral("events"), events},
                             {QStringLiteral("eventsOmitted"), number(omitted)},
                             {QStringLiteral("eventCount"), number(countEvents(reception))}};
    return QJsonDocument(report).toJson();
}

QByteArray makeTextReport(const QString &source, Reception &reception, const ReportedEffort &effort)
{
    reception.flushEvents();
    QByteArray text;
    QTextStream out(&text);
    out << tr("Source:          %1").arg(source) << '\n';
    writeTotals(out, reception.getTotals());
    writeEffort(out, effort, reception.getTotals());
    writeMessages(out, reception);
    writeSenders(out, reception);
    writeEvents(out, reception);
    out.flush();
    return withoutControls(QString::fromUtf8(text)).toUtf8();
}

QString withoutControls(QString text)
{
    for (QChar &character : text)
        if (character.category() == QChar::Other_Control && character != QLatin1Char('\n'))
            character = QChar::ReplacementCharacter;
    return text;
}

} // namespace corvane
