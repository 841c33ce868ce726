#include "statusfigures.h"

#include "elidinglabel.h"
#include "session.h"

#include <QHBoxLayout>
#include <QLocale>

#include <cmath>
#include <utility>

namespace corvane {

namespace {

QLabel *createFigure(const QString &toolTip, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setToolTip(toolTip);
    return label;
}

} // namespace

StatusFigures::StatusFigures(const Session &session, QWidget *parent)
    : QWidget(parent)
    , session(session)
    , pause(createFigure(tr("The views stand still. Everything is counted all the same."), this))
    , totals(new ElidingLabel(this))
    , backlog(createFigure(tr("Bytes that have come and wait to be read. A figure that grows says "
                              "that more comes than can be shown."),
                           this))
    , longestRound(createFigure(tr("The longest time in the last 5 seconds in which the window did "
                                   "not react, because it was busy with messages or drawing"),
                                this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(fontMetrics().averageCharWidth() * 2);
    pause->setBackgroundRole(QPalette::Highlight);
    pause->setForegroundRole(QPalette::HighlightedText);
    pause->setAutoFillBackground(true);
    pause->setMargin(2);
    pause->hide();
    layout->addWidget(pause);
    layout->addWidget(totals);
    layout->addWidget(backlog);
    layout->addWidget(longestRound);
    // Digits that change do not move what stands beside them.
    longestRound->setMinimumWidth(
        fontMetrics().horizontalAdvance(tr("Longest round: %1 ms").arg(8888)));
    sinceRefresh.start();
    refresh();
}

void StatusFigures::setPaused(bool paused)
{
    framesAtPause = session.getReception().getTotals().frames;
    if (paused)
        sincePause.start();
    else
        sincePause.invalidate();
    refresh();
}

void StatusFigures::refresh()
{
    const quint64 frames = session.getReception().getTotals().frames;
    const auto newFrames = static_cast<double>(frames - std::exchange(framesAtRefresh, frames));
    const double seconds = static_cast<double>(sinceRefresh.restart()) / 1000.0;
    totals->say(
        getTotalsText(seconds > 0 ? static_cast<quint64>(std::llround(newFrames / seconds)) : 0));
    showPause();
    showBacklog();
    showLongestRound();
}

QString StatusFigures::getTotalsText(quint64 perSecond) const
{
    const Reception::Totals &counts = session.getReception().getTotals();
    const QLocale locale;
    QString text = tr("Messages: %1 (%2 per second)")
                       .arg(locale.toString(counts.frames), locale.toString(perSecond));
    if (counts.crcErrors.value_or(0) > 0)
        text += tr(", CRC errors: %1").arg(locale.toString(*counts.crcErrors));
    if (counts.unknownFrames > 0)
        text += tr(", unknown: %1").arg(locale.toString(counts.unknownFrames));
    if (const auto dropped = session.getDroppedCount(); dropped.value_or(0) > 0)
        text += tr(", datagrams dropped: %1").arg(locale.toString(*dropped));
    return text;
}

void StatusFigures::showPause()
{
    pause->setVisible(sincePause.isValid());
    if (!sincePause.isValid())
        return;
    const QLocale locale;
    const quint64 newFrames = session.getReception().getTotals().frames - framesAtPause;
    pause->setText(
        tr("Paused for %1 s, new messages: %2")
            .arg(locale.toString(sincePause.elapsed() / 1000), locale.toString(newFrames)));
}

void StatusFigures::showBacklog()
{
    const auto bytes = session.getBacklogBytes();
    backlog->setVisible(bytes.has_value());
    backlog->setText(tr("Backlog: %1").arg(QLocale().formattedDataSize(bytes.value_or(0))));
}

void StatusFigures::showLongestRound()
{
    constexpr double usPerMs = 1000.0;
    const double ms = static_cast<double>(probe.getLongestUs()) / usPerMs;
    longestRound->setText(tr("Longest round: %1 ms").arg(QLocale().toString(ms, 'f', 0)));
}

} // namespace corvane
