#include "reconnector.h"

#include "bytesource.h"
#include "streampump.h"

#include <QLocale>

#include <algorithm>
#include <utility>

namespace corvane {

Reconnector::Reconnector(StreamPump &pump, const ByteSource &source, QObject *parent)
    : Reconnector(pump, source, Delays(), parent)
{
}

Reconnector::Reconnector(StreamPump &pump, const ByteSource &source, Delays delays, QObject *parent)
    : QObject(parent)
    , pump(pump)
    , source(source)
    , delays(delays)
    , nextDelay(delays.first)
{
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &Reconnector::reopen);
    connect(&source, &ByteSource::opened, this, &Reconnector::handleOpened);
    connect(&pump, &StreamPump::finished, this, [this] { handleEnd({}); });
    connect(&pump, &StreamPump::failed, this, &Reconnector::handleEnd);
}

Reconnector::~Reconnector() = default;

void Reconnector::handleOpened()
{
    isOpen = true;
    wasOpen = true;
    lastReason.clear();
    Q_EMIT opened();
    Q_EMIT stateChanged(source.getName());
}

void Reconnector::handleEnd(const QString &reason)
{
    if (pump.getBytesRead() > 0)
        nextDelay = delays.first;
    timer.setInterval(nextDelay);
    nextDelay = std::min(nextDelay * 2, delays.longest);
    const bool isNews = std::exchange(isOpen, false) || reason != lastReason;
    lastReason = reason;
    timer.start();
    if (isNews)
        Q_EMIT lost(reason);
    // Whoever was told may have stopped it.
    if (isWaiting())
        Q_EMIT stateChanged(describeWait(reason));
}

void Reconnector::reopen()
{
    Q_EMIT aboutToReopen();
    pump.start();
}

QString Reconnector::describeWait(const QString &reason) const
{
    const QString seconds
        = QLocale().toString(static_cast<double>(timer.interval()) / 1000.0, 'g', 3);
    return wasOpen ? tr("Connection lost, trying again in %1 s").arg(seconds)
                   : tr("%1 Trying again in %2 s.").arg(reason, seconds);
}

} // namespace corvane
