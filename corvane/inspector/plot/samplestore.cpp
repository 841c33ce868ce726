#include "samplestore.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane {

namespace {

// Beyond it the sums and differences of an axis would overflow.
constexpr double largestShown = 1e200;
// Thinned at once, in some ten microseconds. Its samples fill 21 pages of 4 KiB, and what is known
// of its blocks fills one.
constexpr size_t largestRun = 5376;
static_assert(largestRun % SampleRun::groupSize == 0);
constexpr size_t leastRuns = 8;

void addColumn(const SampleStore::Iterator &first,
               const SampleStore::Iterator &end,
               const Extremes &extremes,
               std::vector<Sample> &line)
{
    SampleStore::Iterator behind = first;
    for (int i = 0; i < 4 && behind != end; ++i)
        ++behind;
    if (behind == end) {
        line.insert(line.end(), first, end);
        return;
    }
    const Sample &left = *first;
    const Sample &right = *std::prev(end);
    const qint64 middleUs = left.timeUs + (right.timeUs - left.timeUs) / 2;
    line.push_back(left);
    // There is none where all are gaps, as late and thinned ones may be.
    if (extremes.smallest <= extremes.largest) {
        line.push_back({middleUs, extremes.smallest});
        line.push_back({middleUs, extremes.largest});
    }
    line.push_back(right);
}

} // namespace

SampleStore::Iterator::Iterator(const std::vector<SampleRun> *runs, size_t run, size_t place)
    : runs(runs)
    , run(run)
    , place(place)
{
}

SampleStore::Iterator &SampleStore::Iterator::operator++()
{
    if (++place == (*runs)[run].size()) {
        ++run;
        place = 0;
    }
    return *this;
}

SampleStore::Iterator &SampleStore::Iterator::operator--()
{
    if (place == 0)
        place = (*runs)[--run].size();
    --place;
    return *this;
}

SampleStore::SampleStore(size_t capacity)
    : capacity(std::max(capacity, minimumCapacity))
    , runSize(std::clamp(this->capacity / leastRuns / SampleRun::groupSize * SampleRun::groupSize,
                         SampleRun::groupSize,
                         largestRun))
{
}

void SampleStore::append(qint64 timeUs, double value)
{
    const Sample sample{timeUs, std::abs(value) <= largestShown ? value : Sample::gap};
    while (count >= capacity)
        thinNext();
    if (count > 0 && timeUs < back().timeUs)
        insertLate(sample);
    else
        push(sample);
}

void SampleStore::push(const Sample &sample)
{
    if (sample.isGap() && count > 0 && back().isGap())
        return;
    if (runs.empty() || runs.back().size() >= runSize)
        addRun();
    runs.back().append(sample);
    ++count;
}

void SampleStore::addRun()
{
    if (spare)
        runs.push_back(*std::exchange(spare, std::nullopt));
    else
        runs.emplace_back(runSize);
}

void SampleStore::insertLate(const Sample &sample)
{
    if (back().timeUs - sample.timeUs > reorderUs) {
        truncate(find(sample.timeUs));
        push(sample);
        return;
    }
    Iterator place = find(sample.timeUs + 1);
    if (runs[place.run].size() >= runSize) {
        const auto behind = runs.begin() + static_cast<std::ptrdiff_t>(place.run) + 1;
        runs.insert(behind, runs[place.run].split());
        place = find(sample.timeUs + 1);
    }
    runs[place.run].insert(place.place, sample);
    ++count;
}

/** Leaves what is before \a place. */
void SampleStore::truncate(const Iterator &place)
{
    const auto first = runs.begin() + static_cast<std::ptrdiff_t>(place.run);
    first->truncate(place.place);
    runs.erase(place.place > 0 ? first + 1 : first, runs.end());
    count = 0;
    for (const SampleRun &run : runs)
        count += run.size();
}

void SampleStore::clear()
{
    runs.clear();
    spare.reset();
    count = 0;
}

/**
 * Thins one run of the older half, each in turn, which takes the same short time however much is
 * stored. Its neighbour takes it in where there is room, so all of them soon have half the samples.
 */
void SampleStore::thinNext()
{
    if (nextToThin >= runs.size() / 2)
        nextToThin = 0;
    const auto run = runs.begin() + static_cast<std::ptrdiff_t>(nextToThin);
    count -= run->size();
    run->thin();
    count += run->size();
    if (nextToThin > 0 && (run - 1)->size() + run->size() <= runSize) {
        (run - 1)->append(*run);
        if (!spare) {
            run->truncate(0);
            spare = std::move(*run);
        }
        runs.erase(run);
    } else {
        ++nextToThin;
    }
}

size_t SampleStore::getBytes() const
{
    size_t bytes = spare ? spare->getBytes() : 0;
    for (const SampleRun &run : runs)
        bytes += run.getBytes();
    return bytes;
}

SampleStore::Iterator SampleStore::find(qint64 timeUs) const
{
    const auto run = std::partition_point(runs.begin(), runs.end(), [timeUs](const SampleRun &one) {
        return one.getSamples().back().timeUs < timeUs;
    });
    return {&runs, static_cast<size_t>(run - runs.begin()),
            run != runs.end() ? run->indexOf(timeUs) : 0};
}

std::optional<Sample> SampleStore::getAt(qint64 timeUs) const
{
    const Iterator behind = find(timeUs + 1);
    return behind != begin() ? std::optional(*std::prev(behind)) : std::nullopt;
}

void SampleStore::decimate(qint64 fromUs,
                           qint64 columnUs,
                           int columns,
                           std::vector<Sample> &line) const
{
    Iterator next = find(fromUs);
    if (next != begin())
        line.push_back(*std::prev(next));
    for (int column = 1; column <= columns && next != end(); ++column) {
        Extremes extremes;
        const Iterator behind = scan(next, fromUs + column * columnUs, extremes);
        addColumn(next, behind, extremes, line);
        next = behind;
    }
    if (next != end())
        line.push_back(*next);
}

/** Returns the first sample from \a from on that is not before \a endUs. */
SampleStore::Iterator SampleStore::scan(Iterator from, qint64 endUs, Extremes &extremes) const
{
    for (; from.run < runs.size(); from = {&runs, from.run + 1, 0}) {
        from.place = runs[from.run].scan(from.place, endUs, extremes);
        if (from.place < runs[from.run].size())
            break;
    }
    return from;
}

} // namespace corvane
