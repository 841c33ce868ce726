#include "samplestore.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace corvane {

namespace {

constexpr size_t groupSize = 6;
constexpr size_t keptPerGroup = 3;
// Beyond it the sums and differences of an axis would overflow.
constexpr double largestShown = 1e200;

} // namespace

void SampleStore::Extremes::add(double value)
{
    // Neither comparison holds for a gap.
    if (value < smallest)
        smallest = value;
    if (value > largest)
        largest = value;
}

void SampleStore::Extremes::add(const Extremes &other)
{
    add(other.smallest);
    add(other.largest);
}

SampleStore::SampleStore(size_t capacity)
    : capacity(std::max(capacity, minimumCapacity))
{
}

void SampleStore::append(qint64 timeUs, double value)
{
    if (samples.capacity() < capacity)
        reserve();
    const Sample sample{timeUs, std::abs(value) <= largestShown ? value : Sample::gap};
    if (samples.size() >= capacity)
        thinOlderHalf();
    if (!samples.empty() && timeUs < samples.back().timeUs)
        insertLate(sample);
    else
        push(sample);
}

/** Takes all memory at once, or growing would copy megabytes; what is not used costs nothing. */
void SampleStore::reserve()
{
    samples.reserve(capacity);
    blocks.reserve(capacity / blockSize + 1);
}

void SampleStore::push(const Sample &sample)
{
    if (sample.isGap() && !samples.empty() && samples.back().isGap())
        return;
    samples.push_back(sample);
    addToBlocks(samples.size() - 1);
}

/** To be called for each sample in turn. */
void SampleStore::addToBlocks(size_t index)
{
    if (index % blockSize == 0)
        blocks.emplace_back();
    blocks.back().extremes.add(samples[index].value);
    blocks.back().lastUs = samples[index].timeUs;
}

void SampleStore::insertLate(const Sample &sample)
{
    size_t place = indexOf(sample.timeUs);
    if (samples.back().timeUs - sample.timeUs > reorderUs) {
        samples.resize(place);
        rebuildBlocks(place);
        push(sample);
        return;
    }
    while (samples[place].timeUs == sample.timeUs)
        ++place;
    samples.insert(samples.begin() + static_cast<std::ptrdiff_t>(place), sample);
    rebuildBlocks(place);
}

void SampleStore::clear()
{
    samples.clear();
    blocks.clear();
}

void SampleStore::thinOlderHalf()
{
    const size_t end = samples.size() / 2 / groupSize * groupSize;
    size_t kept = 0;
    for (size_t first = 0; first < end; first += groupSize)
        kept = keepExtremes(first, kept);
    samples.erase(samples.begin() + static_cast<std::ptrdiff_t>(kept),
                  samples.begin() + static_cast<std::ptrdiff_t>(end));
    rebuildBlocks(0);
}

/** Moves what is kept of the group at \a first to \a kept; returns the place behind it. */
size_t SampleStore::keepExtremes(size_t first, size_t kept)
{
    constexpr size_t none = std::numeric_limits<size_t>::max();
    std::array<size_t, keptPerGroup> places{none, none, none};
    auto &[smallest, largest, gap] = places;
    for (size_t i = first; i < first + groupSize; ++i) {
        if (samples[i].isGap()) {
            gap = i;
            continue;
        }
        if (smallest == none || samples[i].value < samples[smallest].value)
            smallest = i;
        if (largest == none || samples[i].value > samples[largest].value)
            largest = i;
    }
    std::sort(places.begin(), places.end());
    const auto *end = std::unique(places.begin(), places.end());
    for (const size_t *place = places.begin(); place != end && *place != none; ++place)
        samples[kept++] = samples[*place];
    return kept;
}

void SampleStore::rebuildBlocks(size_t firstSample)
{
    size_t i = std::min(firstSample, samples.size()) / blockSize * blockSize;
    blocks.resize(i / blockSize);
    for (; i < samples.size(); ++i)
        addToBlocks(i);
}

size_t SampleStore::indexOf(qint64 timeUs) const
{
    const auto found
        = std::partition_point(samples.begin(), samples.end(),
                               [timeUs](const Sample &sample) { return sample.timeUs < timeUs; });
    return static_cast<size_t>(found - samples.begin());
}

std::optional<Sample> SampleStore::getAt(qint64 timeUs) const
{
    const size_t behind = indexOf(timeUs + 1);
    return behind > 0 ? std::optional(samples[behind - 1]) : std::nullopt;
}

void SampleStore::decimate(qint64 fromUs,
                           qint64 columnUs,
                           int columns,
                           std::vector<Sample> &line) const
{
    size_t i = indexOf(fromUs);
    if (i > 0)
        line.push_back(samples[i - 1]);
    for (int column = 1; column <= columns && i < samples.size(); ++column) {
        Extremes extremes;
        const size_t end = scan(i, fromUs + column * columnUs, extremes);
        addColumn(i, end, extremes, line);
        i = end;
    }
    if (i < samples.size())
        line.push_back(samples[i]);
}

/** Returns the first sample from \a first on that is not before \a endUs. */
size_t SampleStore::scan(size_t first, qint64 endUs, Extremes &extremes) const
{
    const auto scanSamples = [&](size_t i, size_t end) {
        for (; i < end && samples[i].timeUs < endUs; ++i)
            extremes.add(samples[i].value);
        return i;
    };
    const size_t firstBlockEnd = std::min((first / blockSize + 1) * blockSize, samples.size());
    size_t i = scanSamples(first, firstBlockEnd);
    if (i < firstBlockEnd)
        return i;
    size_t block = first / blockSize + 1;
    for (; block < blocks.size() && blocks[block].lastUs < endUs; ++block)
        extremes.add(blocks[block].extremes);
    return scanSamples(std::min(block * blockSize, samples.size()), samples.size());
}

void SampleStore::addColumn(size_t first,
                            size_t end,
                            Extremes extremes,
                            std::vector<Sample> &line) const
{
    if (end - first <= 4) {
        for (size_t i = first; i < end; ++i)
            line.push_back(samples[i]);
        return;
    }
    const Sample &left = samples[first];
    const Sample &right = samples[end - 1];
    const qint64 middleUs = left.timeUs + (right.timeUs - left.timeUs) / 2;
    line.push_back(left);
    line.push_back({middleUs, extremes.smallest});
    line.push_back({middleUs, extremes.largest});
    line.push_back(right);
}

} // namespace corvane
