#pragma once

#include "samplerun.h"

#include <iterator>
#include <optional>

namespace corvane {

/**
 * What one series has been over time, in bounded memory.
 *
 * While the store is full, its older half is thinned, a little at a time: of each group of six
 * samples only the smallest and the largest stay, and a gap where there was one. So the whole time
 * stays to be seen, with all its peaks, coarser the longer ago it is. A sample costs 16 bytes, and
 * less than one more for the extremes by block that make decimate() fast.
 */
class SampleStore
{
public:
    static constexpr size_t defaultCapacity = 1'000'000;
    static constexpr size_t minimumCapacity = 24;
    /** A sample that is late by no more than this is put where it belongs, in microseconds. */
    static constexpr qint64 reorderUs = 1'000'000;

    /** Over all samples in the order of time, until the store changes. */
    class Iterator
    {
    public:
        using iterator_category = std::bidirectional_iterator_tag;
        using value_type = Sample;
        using difference_type = std::ptrdiff_t;
        using pointer = const Sample *;
        using reference = const Sample &;

        const Sample &operator*() const { return (*runs)[run].getSamples()[place]; }

        const Sample *operator->() const { return &**this; }

        Iterator &operator++();
        Iterator &operator--();

        friend bool operator==(const Iterator &, const Iterator &) = default;

    private:
        friend class SampleStore;

        Iterator(const std::vector<SampleRun> *runs, size_t run, size_t place);

        const std::vector<SampleRun> *runs;
        size_t run; ///< As many as there are at the end.
        size_t place;
    };

    /** \a capacity: in samples, raised to minimumCapacity. */
    explicit SampleStore(size_t capacity = defaultCapacity);

    /**
     * Adds a sample. One that is late by more than reorderUs begins a new run, as after a jump back
     * in a recording: it replaces what there was from its time on. A gap behind a gap is not kept.
     * Infinite values, and those that no axis could show, are gaps.
     */
    void append(qint64 timeUs, double value);
    void clear();

    Iterator begin() const { return {&runs, 0, 0}; }

    Iterator end() const { return {&runs, runs.size(), 0}; }

    size_t size() const { return count; }

    bool isEmpty() const { return count == 0; }

    /** The oldest sample; there must be one. */
    const Sample &front() const { return runs.front().getSamples().front(); }

    /** The newest sample; there must be one. */
    const Sample &back() const { return runs.back().getSamples().back(); }

    /** What it takes of memory. */
    size_t getBytes() const;

    /** The newest sample at or before \a timeUs. */
    std::optional<Sample> getAt(qint64 timeUs) const;
    /** The first sample that is not before \a timeUs. */
    Iterator find(qint64 timeUs) const;

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
    void push(const Sample &sample);
    void addRun();
    void insertLate(const Sample &sample);
    void truncate(const Iterator &place);
    void thinNext();
    Iterator scan(Iterator from, qint64 endUs, Extremes &extremes) const;

    size_t capacity;
    size_t runSize; ///< No run has more samples.
    std::vector<SampleRun> runs; ///< In the order of time; none is empty.
    std::optional<SampleRun> spare; ///< An empty one, so that a full store takes no memory for it.
    size_t count = 0;
    size_t nextToThin = 0; ///< The number of a run.
};

} // namespace corvane
