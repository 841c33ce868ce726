#pragma once

#include <QtGlobal>

#include <cstddef>
#include <limits>
#include <optional>
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

/**
 * What one series has been over time, in bounded memory.
 *
 * When the store is full, its older half is thinned: of each group of six samples only the smallest
 * and the largest stay, and a gap where there was one. So the whole time stays to be seen, with all
 * its peaks, coarser the longer ago it is. A sample costs 16 bytes, and less than one more for the
 * extremes by block that make decimate() fast.
 */
class SampleStore
{
public:
    static constexpr size_t defaultCapacity = 1'000'000;
    static constexpr size_t minimumCapacity = 24;
    /** A sample that is late by no more than this is put where it belongs, in microseconds. */
    static constexpr qint64 reorderUs = 1'000'000;

    /** \a capacity: in samples, raised to minimumCapacity. */
    explicit SampleStore(size_t capacity = defaultCapacity);

    /**
     * Adds a sample. One that is late by more than reorderUs begins a new run, as after a jump back
     * in a recording: it replaces what there was from its time on. A gap behind a gap is not kept.
     * Infinite values, and those that no axis could show, are gaps.
     */
    void append(qint64 timeUs, double value);
    void clear();

    const std::vector<Sample> &getSamples() const { return samples; }

    /** What it takes of memory. */
    size_t getBytes() const
    {
        return samples.size() * sizeof(Sample) + blocks.size() * sizeof(Block);
    }

    /** The newest sample at or before \a timeUs. */
    std::optional<Sample> getAt(qint64 timeUs) const;
    /** The number of samples before \a timeUs. */
    size_t indexOf(qint64 timeUs) const;

    /**
     * Appends to \a line what a line through all samples looks like on a screen.
     *
     * Of the samples in each of \a columns columns of \a columnUs microseconds, the first of which
     * begins at \a fromUs, these are kept, in the order of time: up to four as they are; of more
     * than four the first, the smallest, the largest and the last, where the two extremes are given
     * the middle of the time between the first and the last. One sample before and one behind the
     * columns let the line run to the edges.
     */
    void decimate(qint64 fromUs, qint64 columnUs, int columns, std::vector<Sample> &line) const;

private:
    static constexpr size_t blockSize = 32;

    struct Extremes
    {
        void add(double value);
        void add(const Extremes &other);

        double smallest = std::numeric_limits<double>::infinity();
        double largest = -std::numeric_limits<double>::infinity();
    };

    /** What is known of blockSize samples without looking at them. */
    struct Block
    {
        Extremes extremes;
        qint64 lastUs = 0;
    };

    void reserve();
    void addToBlocks(size_t index);
    void push(const Sample &sample);
    void insertLate(const Sample &sample);
    void thinOlderHalf();
    size_t keepExtremes(size_t first, size_t kept);
    void rebuildBlocks(size_t firstSample);
    size_t scan(size_t first, qint64 endUs, Extremes &extremes) const;
    void addColumn(size_t first, size_t end, Extremes extremes, std::vector<Sample> &line) const;

    size_t capacity;
    std::vector<Sample> samples; ///< In the order of time.
    std::vector<Block> blocks; ///< Of each blockSize samples; the last may be of fewer.
};

} // namespace corvane
