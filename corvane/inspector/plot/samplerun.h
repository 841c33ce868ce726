#pragma once

#include "pageallocator.h"

#include <QtGlobal>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

namespace corvane {

/** A value at a time; a value that is not a number stands for a gap in the line. */
struct Sample
{
    static constexpr double gap = std::numeric_limits<double>::quiet_NaN();

    qint64 timeUs = 0; ///< Microseconds since 1970 (UTC).
    double value = gap;

    bool isGap() const { return value != value; }
};

/** The smallest and the largest of some values; gaps do not count. */
struct Extremes
{
    void add(double value);
    void add(const Extremes &other);

    double smallest = std::numeric_limits<double>::infinity();
    double largest = -std::numeric_limits<double>::infinity();
};

/** Samples in the order of time, with the extremes of each few of them. */
class SampleRun
{
public:
    /** Thinning keeps of each six samples at most three. */
    static constexpr size_t groupSize = 6;

    using Samples = std::vector<Sample, PageAllocator<Sample>>;

    /** \a expected: samples for which memory is taken at once. */
    explicit SampleRun(size_t expected);

    const Samples &getSamples() const { return samples; }

    size_t size() const { return samples.size(); }

    /** What its samples take of memory, or took before it was thinned or cut. */
    size_t getBytes() const
    {
        const size_t most = std::max(samplesBefore, samples.size());
        return most * sizeof(Sample) + most / blockSize * sizeof(Block);
    }

    /** \a sample is not before the last. */
    void append(const Sample &sample);
    /** The samples of \a later are not before the last. */
    void append(const SampleRun &later);
    void insert(size_t place, const Sample &sample);
    /** Leaves the first \a count. */
    void truncate(size_t count);
    /** Leaves the first half; returns the rest, for which as much memory is taken. */
    SampleRun split();
    /** Keeps of each group the smallest and the largest, and a gap where there is one. */
    void thin();

    /** The number of samples before \a timeUs. */
    size_t indexOf(qint64 timeUs) const;
    /**
     * Adds to \a extremes the samples from \a first on that are before \a endUs; returns the index
     * of the first that is not.
     */
    size_t scan(size_t first, qint64 endUs, Extremes &extremes) const;

private:
    static constexpr size_t blockSize = 32;

    /** What is known of blockSize samples without looking at them. */
    struct Block
    {
        Extremes extremes;
        qint64 lastUs = 0;
    };

    void addToBlocks(size_t index);
    void rebuildBlocks(size_t firstSample);
    size_t keepExtremes(size_t first, size_t end, size_t kept);

    Samples samples;
    size_t samplesBefore = 0; ///< The most there were when some were taken away.
    /** Of each blockSize samples; the last may be of fewer. */
    std::vector<Block, PageAllocator<Block>> blocks;
};

} // namespace corvane
