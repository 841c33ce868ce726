#include "rhythm.h"

#include "intervalstatistics.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace corvane {

namespace {

constexpr double usPerMs = 1000.0;
constexpr double usPerSecond = 1e6;
constexpr double phaseInertia = 0.75; ///< The share of an error that is taken for jitter.
constexpr size_t mostIntervals = 32; ///< That are looked at to find a period.
constexpr double shortestPause = 64; ///< Between bursts, in periods of a burst.

bool isNear(double value, double expected, double fraction)
{
    return std::abs(value - expected) <= fraction * expected;
}

template <typename Intervals>
double medianOf(const Intervals &intervals)
{
    std::array<double, mostIntervals> values{};
    const auto end = std::transform(intervals.begin(), intervals.end(), values.begin(),
                                    [](const auto &interval) { return interval.us; });
    const auto middle = values.begin() + (end - values.begin()) / 2;
    std::nth_element(values.begin(), middle, end);
    return *middle;
}

/** The period of intervals that differ by hardly anything, or 0. */
template <typename Intervals>
double findSteadyPeriod(const Intervals &intervals)
{
    constexpr double shortest = 100 * usPerMs; // faster ones can afford to wait for more intervals
    const double latest = intervals.back().us;
    if (latest < shortest / 2 || !isNear(intervals.front().us, latest, 0.05))
        return 0; // the common case, at little cost
    const double median = medianOf(intervals);
    const bool steady = median >= shortest
                        && std::all_of(intervals.begin(), intervals.end(), [&](const auto &each) {
                               return isNear(each.us, median, 0.02);
                           });
    return steady ? median : 0.0;
}

/** The period of intervals that are one or several periods long, the most one, or 0. */
template <typename Intervals>
double findPeriodWithHoles(const Intervals &intervals)
{
    constexpr double tolerance = 0.05;
    constexpr double longestHole = 20;
    constexpr double shortestWithHoles = 10 * usPerMs; // below, whole milliseconds fit anything
    std::array<double, mostIntervals> values{};
    const auto end = std::transform(intervals.begin(), intervals.end(), values.begin(),
                                    [](const auto &interval) { return interval.us; });
    std::partial_sort(values.begin(), values.begin() + 2, end);
    const double shortest = values[1];
    if (shortest <= 0)
        return 0;
    int single = 0;
    double sum = 0;
    double epochs = 0;
    bool hole = false;
    for (const auto &interval : intervals) {
        const double multiple = std::round(interval.us / shortest);
        if (multiple < 1 || multiple > longestHole
            || std::abs(interval.us - multiple * shortest) > tolerance * shortest)
            return 0;
        if (multiple > 1 && (hole || shortest < shortestWithHoles))
            return 0;
        hole = multiple > 1;
        single += hole ? 0 : 1;
        sum += interval.us;
        epochs += multiple;
    }
    const auto count = static_cast<double>(intervals.size());
    const bool mostIsThere = 2 * single >= count && 2 * count >= epochs;
    return mostIsThere ? sum / epochs : 0;
}

/**
 * The mean of the intervals near the median, or 0: all but \a others have to be near, and they have
 * to fill most of the time, which they do not where messages come in bursts.
 */
template <typename Intervals>
double findUnsteadyPeriod(const Intervals &intervals, int others)
{
    if (others == 0) {
        const auto [shortest, longest] = std::minmax_element(
            intervals.begin(), intervals.end(),
            [](const auto &left, const auto &right) { return left.us < right.us; });
        if (longest->us >= 3 * shortest->us)
            return 0;
    }
    const double median = medianOf(intervals);
    double all = 0;
    double sum = 0;
    int count = 0;
    for (const auto &interval : intervals) {
        all += interval.us;
        if (interval.us > 0.5 * median && interval.us < 1.5 * median) {
            sum += interval.us;
            ++count;
        }
    }
    const bool most = count + others >= static_cast<int>(intervals.size()) && 2 * sum > all;
    return most && count > 0 ? sum / count : 0;
}

/** \a value is what people mean by \a seconds if it is nearer than that. */
void considerNearer(double seconds, double value, double &nearest)
{
    if (std::abs(seconds - value) < std::abs(seconds - nearest))
        nearest = value;
}

/** The interval that people mean: a whole rate, a round interval, or else three digits. */
qint64 roundPeriod(double periodUs)
{
    constexpr double tolerance = 0.02;
    const double seconds = periodUs / usPerSecond;
    double nearest = seconds * (1 + tolerance);
    considerNearer(seconds, 1.0 / std::max(1.0, std::round(1.0 / seconds)), nearest);
    const double round = seconds >= 1 ? 1.0 : 0.01;
    if (seconds >= 0.05)
        considerNearer(seconds, std::round(seconds / round) * round, nearest);
    if (nearest == seconds * (1 + tolerance)) {
        const double scale = std::pow(10.0, std::floor(std::log10(seconds)) - 2);
        nearest = std::round(seconds / scale) * scale;
    }
    return std::max(1LL, std::llround(nearest * 1000));
}

} // namespace

void Rhythm::addMessage(qint64 timeUs, IntervalStatistics &statistics)
{
    const qint64 startUs = lastTimeUs;
    // Without sign, since the difference of far times has no room in a signed number.
    const quint64 stepUs = static_cast<quint64>(timeUs) - static_cast<quint64>(startUs);
    if (startUs == noTime || timeUs < startUs || stepUs >= quint64(clockStepUs)) {
        if (startUs != noTime)
            countMiss();
        interrupt();
        lastTimeUs = timeUs;
        startIsOpen = true;
        ++statistics.unknownIntervals;
        return;
    }
    lastTimeUs = timeUs;
    lastIntervalUs = static_cast<double>(stepUs);
    ++sinceStart;
    Interval interval{lastIntervalUs, 0};
    if (isRegular()) {
        interval.classIndex = follow(startUs, lastIntervalUs, statistics);
        remember(interval);
        endIfLost();
        if (interval.us > shortestPause * periodUs && isRegular() && comesInBursts(periodUs)) {
            statistics.removeGap(pause);
            end();
        }
    } else {
        interval.classIndex = statistics.getRoundClass(static_cast<qint64>(stepUs));
        statistics.add(interval.classIndex);
        remember(interval);
        learn(statistics);
    }
}

void Rhythm::addMessageWithoutTime()
{
    countMiss();
    interrupt();
}

void Rhythm::interrupt()
{
    lastTimeUs = noTime;
    usable = 0;
    sinceStart = 0;
    startIsOpen = false;
    phaseUs = 0;
    run = 0;
    suspectedGapCount = 0;
    confirmedGap = {};
}

quint64 Rhythm::getIntervalMs() const
{
    return isRegular() ? static_cast<quint64>(nominalMs)
                       : static_cast<quint64>(lastIntervalUs / usPerMs);
}

void Rhythm::remember(const Interval &interval)
{
    if (filled == 2 * history) {
        std::copy_n(intervals.begin() + history, history, intervals.begin());
        filled = history;
    }
    intervals[static_cast<size_t>(filled++)] = interval;
    usable = std::min(usable + 1, history);
}

std::span<const Rhythm::Interval> Rhythm::latest(int count) const
{
    return {intervals.data() + filled - count, static_cast<size_t>(count)};
}

void Rhythm::learn(IntervalStatistics &statistics)
{
    // Four ways to be regular; the more the intervals differ, the more of them it takes, so that
    // messages at random moments do not look regular by chance.
    constexpr int fewIntervals = 5;
    constexpr int someIntervals = 8;
    constexpr int manyIntervals = 16;
    if (usable > someIntervals && sinceStart % 8 != 0)
        return; // often enough
    double period = 0;
    int count = fewIntervals;
    if (usable >= count)
        period = findSteadyPeriod(latest(count));
    if (period == 0 && usable >= someIntervals)
        period = findPeriodWithHoles(latest(count = someIntervals));
    if (period == 0 && usable >= manyIntervals)
        period = findUnsteadyPeriod(latest(count = manyIntervals), 0);
    if (period == 0 && usable >= static_cast<int>(mostIntervals) && sinceStart % 16 == 0)
        period = findUnsteadyPeriod(latest(count = mostIntervals), 6);
    if (period > 0 && !comesInBursts(period))
        begin(period, count, statistics);
}

/** Whether several of the latest intervals were long pauses behind an interval of \a period. */
bool Rhythm::comesInBursts(double period) const
{
    const auto seen = latest(std::min(filled, history));
    int pauses = 0;
    for (size_t i = 1; i < seen.size(); ++i)
        if (seen[i].us > shortestPause * period && seen[i - 1].us < 1.5 * period)
            ++pauses;
    return pauses > 1;
}

void Rhythm::begin(double period, int count, IntervalStatistics &statistics)
{
    periodUs = period;
    foundPeriodUs = period;
    nominalMs = roundPeriod(period);
    nominalClass = statistics.getClass(nominalMs);
    nominalCount = 0;
    inRhythm = 0;
    phaseUs = 0;
    misses = 0;
    run = 0;
    suspectedGapCount = 0;
    confirmedGap = {};
    pause = {};
    deviationUs = 0;
    for (const Interval &interval : latest(count)) {
        const double epochs = std::max(1.0, std::round(interval.us / period));
        deviationUs += std::abs(interval.us - epochs * period) / count;
    }
    // What led here is part of the stretch, and so is all since the first message if that is known.
    const bool fromStart = startIsOpen && sinceStart == static_cast<quint64>(usable);
    Interval *const last = intervals.data() + filled;
    Interval *const first = last - (fromStart ? usable : count);
    qint64 startUs = lastTimeUs;
    for (Interval *each = first; each != last; ++each)
        startUs -= std::llround(each->us);
    startIsOpen = fromStart;
    for (Interval *each = first; each != last; ++each) {
        statistics.remove(each->classIndex);
        each->classIndex = follow(startUs, each->us, statistics);
        startUs += std::llround(each->us);
    }
    misses = 0;
}

void Rhythm::end()
{
    periodUs = 0;
    suspectedGapCount = 0;
    usable = std::min(usable, run); // what is in rhythm has had its effect
}

void Rhythm::endIfLost()
{
    constexpr int mostMisses = 4;
    constexpr double mostDrift = 0.1;
    if (run >= longestRun || std::popcount(misses & 0xffffU) > mostMisses
        || !isNear(periodUs, foundPeriodUs, mostDrift))
        end();
}

/** A message came at a moment that tells nothing about the rhythm. */
void Rhythm::countMiss()
{
    misses = misses << 1U | 1U;
    if (isRegular())
        endIfLost();
}

quint8 Rhythm::follow(qint64 startUs, double us, IntervalStatistics &statistics)
{
    constexpr double leastTolerance = 0.1;
    constexpr double mostTolerance = 0.8;
    constexpr double tellingTolerance = 0.3; // beyond, any long interval looks like a hole
    const double tolerance
        = std::clamp(4 * deviationUs, leastTolerance * periodUs, mostTolerance * periodUs);
    const double sinceEpoch = us - phaseUs;
    const double epochs = std::round(sinceEpoch / periodUs);
    const double error = sinceEpoch - epochs * periodUs;
    const double difference = std::abs(us - periodUs);
    misses <<= 1U;
    if ((epochs == 1 && difference <= tolerance) || difference <= leastTolerance * periodUs) {
        deviationUs += (difference - deviationUs) / 16;
        keepTime(epochs == 1 ? error : 0);
        confirmGaps(statistics);
        if (startIsOpen) {
            startIsOpen = false;
            --statistics.unknownIntervals;
            count(nominalClass, statistics);
        }
        run = 0;
        ++inRhythm;
        settle(statistics);
        count(nominalClass, statistics);
        return nominalClass;
    }

    ++run;
    const bool isHole = epochs >= 2 && us > periodUs + tolerance && std::abs(error) <= tolerance;
    const bool isSuspected = isHole && inRhythm > 0 && suspectedGapCount < longestRun;
    if (isSuspected)
        suspectedGaps[static_cast<size_t>(suspectedGapCount++)]
            = {startUs, static_cast<quint64>(epochs) - 1};
    if (epochs < 1 && fillGap(statistics))
        --run;
    else if (!isSuspected || tolerance > tellingTolerance * periodUs)
        misses |= 1U;
    if (run >= longestRun)
        suspectedGapCount = 0;
    phaseUs = epochs >= 1 ? -phaseInertia * error : phaseUs - us;
    const quint8 classIndex
        = epochs == 1 ? nominalClass : statistics.getRoundClass(std::llround(us));
    count(classIndex, statistics);
    return classIndex;
}

void Rhythm::count(quint8 classIndex, IntervalStatistics &statistics)
{
    statistics.add(classIndex);
    if (classIndex == nominalClass)
        ++nominalCount;
}

/** Names the stretch by its period once that is well known. */
void Rhythm::settle(IntervalStatistics &statistics)
{
    constexpr quint64 enough = 64;
    if (inRhythm != enough || roundPeriod(periodUs) == nominalMs)
        return;
    nominalMs = roundPeriod(periodUs);
    const quint8 newClass = statistics.getClass(nominalMs);
    statistics.move(nominalClass, newClass, nominalCount);
    for (int i = 0; i < filled; ++i)
        if (intervals[static_cast<size_t>(i)].classIndex == nominalClass)
            intervals[static_cast<size_t>(i)].classIndex = newClass;
    nominalClass = newClass;
}

/** A message beside its epoch is one that came late: it belongs into the hole before it. */
bool Rhythm::fillGap(IntervalStatistics &statistics)
{
    if (suspectedGapCount > 0) {
        if (--suspectedGaps[static_cast<size_t>(suspectedGapCount - 1)].missing == 0)
            --suspectedGapCount;
        return true;
    }
    if (confirmedGap.missingEpochs == 0)
        return false;
    statistics.fillGap(confirmedGap);
    if (pause == confirmedGap)
        --pause.missingEpochs;
    --confirmedGap.missingEpochs;
    return true;
}

/** Follows phase and period of a message that was \a error late. */
void Rhythm::keepTime(double error)
{
    constexpr double periodShare = 1.0 / 64;
    phaseUs = -phaseInertia * error;
    periodUs += periodShare * error;
}

MessageStatistics::Gap Rhythm::gapOf(const SuspectedGap &gap) const
{
    constexpr quint64 mostEpochs = std::numeric_limits<quint32>::max();
    return {static_cast<quint64>(std::max<qint64>(gap.startUs, 0)) / 1000,
            static_cast<quint32>(std::min(gap.missing, mostEpochs)), nominalMs};
}

void Rhythm::confirmGaps(IntervalStatistics &statistics)
{
    constexpr int stillLate = 3; // so many messages later, a message may still be a late one
    if (++sinceConfirmed > stillLate)
        confirmedGap.missingEpochs = 0;
    for (int i = 0; i < suspectedGapCount; ++i) {
        confirmedGap = gapOf(suspectedGaps[static_cast<size_t>(i)]);
        sinceConfirmed = 0;
        statistics.addGap(confirmedGap);
        if (confirmedGap.missingEpochs >= shortestPause)
            pause = confirmedGap;
    }
    suspectedGapCount = 0;
}

} // namespace corvane
