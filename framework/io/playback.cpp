#include "playback.h"

#include "bytesource.h"
#include "fileindex.h"
#include "reception.h"
#include "replayclock.h"
#include "streamdecoder.h"
#include "streampump.h"

#include <algorithm>

namespace corvane {

Playback::Playback(const Parts &parts, QObject *parent)
    : QObject(parent)
    , parts(parts)
{
    connect(&parts.pump, &StreamPump::goalReached, this, &Playback::handleGoal);
    connect(&parts.pump, &StreamPump::finished, this, &Playback::handleEnd);
    connect(&parts.pump, &StreamPump::failed, this, &Playback::handleEnd);
}

Playback::~Playback() = default;

void Playback::play()
{
    parts.pump.setPaused(false);
    if (atEnd)
        seek(0);
    Q_EMIT stateChanged();
}

void Playback::pause()
{
    parts.pump.setPaused(true);
    Q_EMIT stateChanged();
}

void Playback::step()
{
    if (!parts.pump.isPaused())
        pause();
    if (parts.pump.hasGoal())
        ++waitingSteps;
    else
        runStep();
}

void Playback::runStep()
{
    const auto &totals = parts.reception.getTotals();
    parts.pump.runUntil([&totals, frames = totals.frames] { return totals.frames > frames; });
}

void Playback::setSpeed(std::optional<double> speed)
{
    if (speed)
        parts.clock.setSpeed(std::clamp(*speed, slowest, fastest));
    else
        parts.clock.setAsFastAsPossible();
    Q_EMIT stateChanged();
}

void Playback::seek(qint64 offset)
{
    const qint64 target = std::clamp<qint64>(offset, 0, parts.index.getIndexedBytes());
    jump(target);
    parts.pump.runUntil(
        [this, target] { return static_cast<qint64>(parts.decoder.getPosition()) >= target; });
}

void Playback::seekToTime(qint64 timeUs)
{
    const std::optional<FileIndex::Place> place = parts.index.findTime(timeUs);
    if (!place)
        return seek(0);
    jump(place->offset);
    parts.pump.runUntil([this, timeUs, offset = place->offset] {
        return static_cast<qint64>(parts.decoder.getPosition()) >= offset
               && parts.decoder.getNextTimeUs().value_or(timeUs - 1) >= timeUs;
    });
}

/** Goes to a place some way before \a offset. */
void Playback::jump(qint64 offset)
{
    const qint64 begin = parts.index.findOffset(std::max<qint64>(0, offset - runUpBytes)).offset;
    waitingSteps = 0;
    if (!parts.pump.seek(begin))
        return;
    parts.reception.noteDiscontinuity();
    parts.clock.reset();
    if (atEnd) {
        atEnd = false;
        Q_EMIT stateChanged();
    }
}

bool Playback::isPlaying() const
{
    return !atEnd && !parts.pump.isPaused();
}

std::optional<double> Playback::getSpeed() const
{
    return parts.clock.getSpeed();
}

void Playback::cancelIndexing()
{
    parts.index.cancel();
}

qint64 Playback::getPosition() const
{
    return static_cast<qint64>(parts.decoder.getPosition());
}

qint64 Playback::getSize() const
{
    return std::max(parts.index.getFileSize(), parts.source.getSize().value_or(0));
}

std::optional<qint64> Playback::getTimeUs() const
{
    if (atEnd)
        return parts.index.getLastTimeUs();
    const std::optional<qint64> timeUs = parts.decoder.getNextTimeUs();
    return timeUs ? timeUs : parts.index.findOffset(getPosition()).timeUs;
}

void Playback::handleGoal()
{
    // What was passed without waiting must not be waited for afterwards.
    parts.clock.reset();
    if (waitingSteps > 0) {
        --waitingSteps;
        runStep();
        return;
    }
    Q_EMIT arrived();
}

void Playback::handleEnd()
{
    waitingSteps = 0;
    atEnd = true;
    Q_EMIT stateChanged();
}

} // namespace corvane
