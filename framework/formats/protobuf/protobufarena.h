#pragma once

#include <QtGlobal>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

namespace corvane {

/** Memory that is taken piece by piece and given back as a whole; nothing in it is destroyed. */
class ProtobufArena
{
public:
    /** \a firstBlock: so many bytes are taken from the heap at once when the first is needed. */
    explicit ProtobufArena(size_t firstBlock)
        : blockSize(firstBlock)
    {
    }

    /** \a size bytes that nobody has written yet, aligned for pointers and numbers. */
    void *allocate(size_t size)
    {
        constexpr size_t alignment = alignof(std::max_align_t);
        const size_t taken = (size + alignment - 1) / alignment * alignment;
        if (taken > left)
            addBlock(taken);
        void *place = next;
        next += taken;
        left -= taken;
        return place;
    }

    /** The bytes that were taken from the heap. */
    quint64 getSize() const { return size; }

private:
    void addBlock(size_t wanted)
    {
        constexpr size_t largestBlock = 65536;
        left = std::max(wanted, blockSize);
        blocks.push_back(std::make_unique_for_overwrite<char[]>(left));
        next = blocks.back().get();
        size += left;
        blockSize = std::min(2 * blockSize, largestBlock);
    }

    std::vector<std::unique_ptr<char[]>> blocks;
    char *next = nullptr;
    size_t left = 0; ///< Of the last block.
    size_t blockSize; ///< Of the next one.
    quint64 size = 0;
};

} // namespace corvane
