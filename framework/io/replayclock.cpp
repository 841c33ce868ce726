#include "replayclock.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>
#include <utility>

namespace corvane {

namespace {

qint64 getSteadyUs()
{
    using namespace std::chrono;
    return duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count();
}

/** Recorded times come from outside: their difference may not fit. */
qint64 subtractLimited(qint64 minuend, qint64 subtrahend)
{
    qint64 result = 0;
    if (!__builtin_sub_overflow(minuend, subtrahend, &result))
        return result;
    return minuend < subtrahend ? std::numeric_limits<qint64>::min()
                                : std::numeric_limits<qint64>::max();
}

} // namespace

ReplayClock::ReplayClock(TimeSource timeSource)
    : timeSource(timeSource ? std::move(timeSource) : TimeSource(getSteadyUs))
{
}

void ReplayClock::setSpeed(double newSpeed)
{
    if (!std::isfinite(newSpeed) || newSpeed <= 0.0)
        return;
    keepPosition();
    speed = newSpeed;
}

void ReplayClock::setAsFastAsPossible()
{
    speed.reset();
}

void ReplayClock::pause()
{
    if (!isPaused())
        pausedAtUs = timeSource();
}

void ReplayClock::resume()
{
    if (!isPaused())
        return;
    anchorNowUs += timeSource() - *pausedAtUs;
    pausedAtUs.reset();
}

void ReplayClock::reset()
{
    anchored = false;
}

qint64 ReplayClock::getWaitUs(qint64 recordedUs)
{
    if (!anchored || isJump(recordedUs))
        anchor(recordedUs);
    latestRecordedUs = std::max(latestRecordedUs, recordedUs);
    if (!speed)
        return 0;
    const double dueUs = static_cast<double>(recordedUs - anchorRecordedUs) / *speed;
    const double waitUs = dueUs - static_cast<double>(getNowUs() - anchorNowUs);
    // A tiny speed asks for more than the type can hold.
    constexpr double longestWaitUs = 1e15;
    return static_cast<qint64>(std::ceil(std::clamp(waitUs, 0.0, longestWaitUs)));
}

qint64 ReplayClock::getNowUs() const
{
    return pausedAtUs ? *pausedAtUs : timeSource();
}

void ReplayClock::anchor(qint64 recordedUs)
{
    anchored = true;
    anchorRecordedUs = recordedUs;
    anchorNowUs = getNowUs();
    latestRecordedUs = recordedUs;
}

bool ReplayClock::isJump(qint64 recordedUs) const
{
    const qint64 stepUs = subtractLimited(recordedUs, latestRecordedUs);
    return stepUs > maximumGapUs || stepUs < -maximumDisorderUs;
}

void ReplayClock::keepPosition()
{
    if (!anchored)
        return;
    const qint64 nowUs = getNowUs();
    if (speed) {
        const double playedUs = static_cast<double>(nowUs - anchorNowUs) * *speed;
        const auto latestUs = static_cast<double>(latestRecordedUs - anchorRecordedUs);
        anchorRecordedUs += static_cast<qint64>(std::min(playedUs, latestUs));
    } else {
        anchorRecordedUs = latestRecordedUs;
    }
    anchorNowUs = nowUs;
}

} // namespace corvane
