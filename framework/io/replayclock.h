#pragma once

#include "corvaneframework_export.h"

#include <QtGlobal>

#include <functional>
#include <optional>

namespace corvane {

/**
 * Tells when what was recorded is due when it is played again, at its own pace or N times faster.
 *
 * The first recorded time is due at once; it is the anchor of those after it. A frame that comes
 * late does not shift the ones that follow. Two jumps are not waited for but give a new anchor: one
 * forward by more than maximumGapUs (nobody waits for the night between two flights) and one back
 * by more than maximumDisorderUs (another recording begins). Frames that are out of order by less
 * are due at once.
 *
 * All times are in microseconds; recorded ones may count from anywhere.
 */
class CORVANEFRAMEWORK_EXPORT ReplayClock
{
public:
    /** A time in microseconds that never goes back. */
    using TimeSource = std::function<qint64()>;

    static constexpr qint64 maximumGapUs = 60'000'000; ///< Of recorded time.
    static constexpr qint64 maximumDisorderUs = 1'000'000; ///< Of recorded time.

    /** Speed 1, with the steady clock of the system unless \a timeSource is given. */
    explicit ReplayClock(TimeSource timeSource = {});

    /** Recorded seconds per second, positive and finite; others are ignored. Keeps the position. */
    void setSpeed(double newSpeed);
    /** Everything is due at once from now on. */
    void setAsFastAsPossible();

    /** Nothing if as fast as possible. */
    std::optional<double> getSpeed() const { return speed; }

    /** Stops the time. A StreamPump does this by itself when it pauses. */
    void pause();
    void resume();

    bool isPaused() const { return pausedAtUs.has_value(); }

    /** Forgets the anchor: the next recorded time is due at once. */
    void reset();

    /**
     * How long to wait, in microseconds of real time, until what was recorded at \a recordedUs is
     * due; 0 if it is. Does not count down while paused. To be called in the order of the
     * recording, as often as wanted.
     */
    qint64 getWaitUs(qint64 recordedUs);

private:
    qint64 getNowUs() const;
    void anchor(qint64 recordedUs);
    bool isJump(qint64 recordedUs) const;
    void keepPosition();

    TimeSource timeSource;
    std::optional<double> speed = 1.0;
    std::optional<qint64> pausedAtUs;
    bool anchored = false;
    qint64 anchorRecordedUs = 0;
    qint64 anchorNowUs = 0;
    qint64 latestRecordedUs = 0; ///< Since the anchor.
};

} // namespace corvane
