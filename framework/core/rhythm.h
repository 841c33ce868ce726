#pragma once

#include "corvaneframework_export.h"
#include "messagestatistics.h"

#include <QtGlobal>

#include <array>
#include <cstddef>
#include <limits>
#include <span>

namespace corvane {

class IntervalStatistics;

/**
 * The rhythm in which one sender sends one message type: finds the period of a regular stretch,
 * follows it through jitter and drift, and finds the epochs that are missing in it.
 * docs/statistics.md has the rules.
 *
 * Times are microseconds of any clock. What is found is counted in the statistics of the type.
 */
class CORVANEFRAMEWORK_EXPORT Rhythm
{
public:
    static constexpr qint64 noTime = std::numeric_limits<qint64>::min();
    /** A step of the clock by so much or more is no interval: the clock was set. */
    static constexpr qint64 clockStepUs = 12LL * 3600 * 1'000'000;

    /** A message came at \a timeUs. */
    void addMessage(qint64 timeUs, IntervalStatistics &statistics);
    /** A message came that says no time. */
    void addMessageWithoutTime();
    /** The next message follows on nothing that is known. */
    void interrupt();

    bool isRegular() const { return periodUs > 0; }

    double getPeriodUs() const { return periodUs; }

    /** The period of the regular stretch, else the latest interval; whole milliseconds. */
    quint64 getIntervalMs() const;

    qint64 getLastTimeUs() const { return lastTimeUs; }

private:
    struct Interval
    {
        double us = 0;
        quint8 classIndex = 0;
    };

    /** Missing epochs that count once the rhythm goes on. */
    struct SuspectedGap
    {
        qint64 startUs = 0;
        quint64 missing = 0;
    };

    static constexpr int history = 64;
    static constexpr int longestRun = 4; ///< So many intervals in a row out of rhythm end it.

    void learn(IntervalStatistics &statistics);
    bool comesInBursts(double period) const;
    std::span<const Interval> latest(int count) const;
    void begin(double period, int count, IntervalStatistics &statistics);
    void end();
    void endIfLost();
    void countMiss();
    /** Takes an interval of a regular stretch; returns its class. */
    quint8 follow(qint64 startUs, double us, IntervalStatistics &statistics);
    void keepTime(double error);
    void confirmGaps(IntervalStatistics &statistics);
    bool fillGap(IntervalStatistics &statistics);
    MessageStatistics::Gap gapOf(const SuspectedGap &gap) const;
    void settle(IntervalStatistics &statistics);
    void count(quint8 classIndex, IntervalStatistics &statistics);
    void remember(const Interval &interval);

    // The latest intervals are the last ones before the middle or the end of this, so that they
    // always stand side by side.
    std::array<Interval, size_t{2} * history> intervals;
    int filled = 0; ///< Of intervals, from its begin.
    int usable = 0; ///< The latest so many intervals may tell of a rhythm.
    quint64 sinceStart = 0; ///< Intervals since the first message after an interruption.
    bool startIsOpen = false; ///< Whether that message may still get a place in the rhythm.

    qint64 lastTimeUs = noTime;
    double lastIntervalUs = 0;
    double periodUs = 0; ///< 0 while there is no regular stretch.
    double foundPeriodUs = 0; ///< What it was in the beginning of the stretch.
    double deviationUs = 0; ///< Mean distance of an interval from the period.
    double phaseUs = 0; ///< Where the last epoch should have been, relative to the last message.
    qint64 nominalMs = 0; ///< The period as people say it.
    quint8 nominalClass = 0;
    quint64 nominalCount = 0; ///< Intervals of this stretch in that class.
    quint64 inRhythm = 0; ///< Intervals of this stretch that were one period long.
    quint32 misses = 0; ///< A bit for each of the latest intervals that was out of rhythm.
    int run = 0; ///< Intervals since the last one in rhythm.
    std::array<SuspectedGap, longestRun> suspectedGaps;
    int suspectedGapCount = 0;
    MessageStatistics::Gap confirmedGap; ///< The latest one, while late messages may still fill it.
    int sinceConfirmed = 0; ///< Messages.
    MessageStatistics::Gap pause; ///< The latest gap of the stretch that may lie between bursts.
};

} // namespace corvane
