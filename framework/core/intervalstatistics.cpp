#include "intervalstatistics.h"

#include <algorithm>
#include <cmath>

namespace corvane {

namespace {

constexpr std::array<qint64, IntervalStatistics::roundValues> roundValuesMs{
    0,         1,         2,         5,          10,         20,        50,
    100,       200,       500,       1'000,      2'000,      5'000,     10'000,
    20'000,    30'000,    60'000,    120'000,    300'000,    600'000,   1'200'000,
    1'800'000, 3'600'000, 7'200'000, 18'000'000, 36'000'000, 43'200'000};

/** Up to where an interval belongs to each round value but the last: the geometric means. */
std::array<double, roundValuesMs.size() - 1> computeLimits()
{
    std::array<double, roundValuesMs.size() - 1> limits{}; // only equal times are 0 ms
    for (size_t i = 1; i < limits.size(); ++i)
        limits[i] = 1000.0
                    * std::sqrt(static_cast<double>(roundValuesMs[i])
                                * static_cast<double>(roundValuesMs[i + 1]));
    return limits;
}

const std::array<double, roundValuesMs.size() - 1> limitsUs = computeLimits();

/** How far two intervals are from each other, as people see it: by their ratio. */
double distance(double leftMs, double rightMs)
{
    constexpr double aboutNothing = 0.1; // so that 0 ms has a place on the scale
    return std::abs(std::log((leftMs + aboutNothing) / (rightMs + aboutNothing)));
}

} // namespace

IntervalStatistics::IntervalStatistics()
{
    roundClasses.fill(maximumClasses);
}

quint8 IntervalStatistics::getClass(qint64 ms)
{
    const auto found = std::find_if(classes.begin(), classes.end(),
                                    [&](const Class &known) { return known.ms == ms; });
    if (found != classes.end())
        return static_cast<quint8>(found - classes.begin());
    if (classes.size() < maximumClasses) {
        classes.push_back({ms, 0});
        return static_cast<quint8>(classes.size() - 1);
    }
    const auto nearest = std::min_element(
        classes.begin(), classes.end(), [&](const Class &left, const Class &right) {
            return distance(static_cast<double>(left.ms), static_cast<double>(ms))
                   < distance(static_cast<double>(right.ms), static_cast<double>(ms));
        });
    return static_cast<quint8>(nearest - classes.begin());
}

quint8 IntervalStatistics::getRoundClass(qint64 us)
{
    // All limits are looked at, since that takes no branches.
    const auto interval = static_cast<double>(us);
    size_t place = 0;
    for (const double limit : limitsUs)
        place += interval > limit ? 1 : 0;
    quint8 &known = roundClasses[place];
    if (known == maximumClasses)
        known = getClass(roundValuesMs[place]);
    return known;
}

void IntervalStatistics::addGap(const MessageStatistics::Gap &gap)
{
    ++gapCount;
    missingEpochs += gap.missingEpochs;
    if (gaps.size() < maximumGaps)
        gaps.append(gap);
}

void IntervalStatistics::fillGap(const MessageStatistics::Gap &gap)
{
    if (gap.missingEpochs <= 1) {
        removeGap(gap);
        return;
    }
    --missingEpochs;
    const qsizetype place = gaps.lastIndexOf(gap);
    if (place >= 0)
        --gaps[place].missingEpochs;
}

void IntervalStatistics::removeGap(const MessageStatistics::Gap &gap)
{
    if (gap.missingEpochs == 0)
        return;
    missingEpochs -= gap.missingEpochs;
    --gapCount;
    const qsizetype place = gaps.lastIndexOf(gap);
    if (place >= 0)
        gaps.remove(place);
}

QList<IntervalStatistics::Class> IntervalStatistics::getClasses() const
{
    QList<Class> result;
    std::copy_if(classes.begin(), classes.end(), std::back_inserter(result),
                 [](const Class &known) { return known.count != 0; });
    std::sort(result.begin(), result.end(), [](const Class &left, const Class &right) {
        return left.count != right.count ? left.count > right.count : left.ms < right.ms;
    });
    return result;
}

} // namespace corvane
