#include "samplerun.h"

#include <algorithm>
#include <array>

namespace corvane {

void Extremes::add(double value)
{
    // Neither comparison holds for a gap.
    if (value < smallest)
        smallest = value;
    if (value > largest)
        largest = value;
}

void Extremes::add(const Extremes &other)
{
    smallest = std::min(smallest, other.smallest);
    largest = std::max(largest, other.largest);
}

SampleRun::SampleRun(size_t expected)
{
    samples.reserve(expected);
    blocks.reserve(expected / blockSize + 1);
}

void SampleRun::append(const Sample &sample)
{
    samples.push_back(sample);
    addToBlocks(samples.size() - 1);
}

void SampleRun::append(const SampleRun &later)
{
    const size_t before = samples.size();
    samples.insert(samples.end(), later.samples.begin(), later.samples.end());
    rebuildBlocks(before);
}

void SampleRun::insert(size_t place, const Sample &sample)
{
    samples.insert(samples.begin() + static_cast<std::ptrdiff_t>(place), sample);
    rebuildBlocks(place);
}

void SampleRun::truncate(size_t count)
{
    samplesBefore = std::max(samplesBefore, samples.size());
    samples.resize(count);
    rebuildBlocks(count);
}

SampleRun SampleRun::split()
{
    SampleRun rest(samples.size());
    const size_t half = samples.size() / 2;
    for (size_t i = half; i < samples.size(); ++i)
        rest.append(samples[i]);
    truncate(half);
    return rest;
}

void SampleRun::thin()
{
    size_t kept = 0;
    for (size_t first = 0; first < samples.size(); first += groupSize)
        kept = keepExtremes(first, std::min(first + groupSize, samples.size()), kept);
    samplesBefore = std::max(samplesBefore, samples.size());
    samples.resize(kept);
    rebuildBlocks(0);
}

/** Moves what is kept of the group from \a first on to \a kept; returns the place behind it. */
size_t SampleRun::keepExtremes(size_t first, size_t end, size_t kept)
{
    constexpr size_t none = std::numeric_limits<size_t>::max();
    std::array<size_t, 3> places{none, none, none};
    auto &[smallest, largest, gap] = places;
    for (size_t i = first; i < end; ++i) {
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
    const auto *behind = std::unique(places.begin(), places.end());
    for (const size_t *place = places.begin(); place != behind && *place != none; ++place)
        samples[kept++] = samples[*place];
    return kept;
}

/** To be called for each sample in turn. */
void SampleRun::addToBlocks(size_t index)
{
    if (index % blockSize == 0)
        blocks.emplace_back();
    blocks.back().extremes.add(samples[index].value);
    blocks.back().lastUs = samples[index].timeUs;
}

void SampleRun::rebuildBlocks(size_t firstSample)
{
    size_t i = std::min(firstSample, samples.size()) / blockSize * blockSize;
    blocks.resize(i / blockSize);
    for (; i < samples.size(); ++i)
        addToBlocks(i);
}

size_t SampleRun::indexOf(qint64 timeUs) const
{
    const auto found
        = std::partition_point(samples.begin(), samples.end(),
                               [timeUs](const Sample &sample) { return sample.timeUs < timeUs; });
    return static_cast<size_t>(found - samples.begin());
}

size_t SampleRun::scan(size_t first, qint64 endUs, Extremes &extremes) const
{
    const auto scanSamples = [&](size_t i, size_t end) {
        for (; i < end && samples[i].timeUs < endUs; ++i)
            extremes.add(samples[i].value);
        return i;
    };
    const size_t firstBlockEnd = std::min((first / blockSize + 1) * blockSize, samples.size());
    const size_t i = scanSamples(first, firstBlockEnd);
    if (i < firstBlockEnd)
        return i;
    size_t block = first / blockSize + 1;
    for (; block < blocks.size() && blocks[block].lastUs < endUs; ++block)
        extremes.add(blocks[block].extremes);
    return scanSamples(std::min(block * blockSize, samples.size()), samples.size());
}

} // namespace corvane
