#include "DbgMsgBuffer.h"

#include <algorithm>
#include <atomic>
#include <bit>
#include <cstdio>
#include <cstring>
#include <new>

// The assertions below guard memory that is not ours: they stay in release builds.
#undef NDEBUG
#include <cassert>

#define RING_ASSERT(condition)                                                                     \
    ((condition) ? void() : assertionFailed(#condition, __LINE__, __func__))

namespace {

constexpr uint64_t maxTextLength = 2048;

[[noreturn]] void assertionFailed(const char *expression, unsigned line, const char *function)
{
    __assert_fail(expression, "fw/fw/lib/Core/Debug/src/DbgMsgBuffer", line, function);
}

struct Node
{
    Node *next; ///< The next newer one; null for the newest.
    Node *prev; ///< The next older one; null for the oldest.
};

static_assert(sizeof(Node) == 16 && alignof(Node) == 8, "the layout of the area is fixed");

char *textOf(Node *node)
{
    return reinterpret_cast<char *>(node + 1);
}

char *addressOf(Node *node)
{
    return reinterpret_cast<char *>(node);
}

class MsgBuffer
{
public:
    void setArea(char *start, uint64_t size);
    void reset();
    bool push(const char *line);
    Node *step(uint64_t &cursor, bool backwards) const;

private:
    char *endOfBuffer() const { return areaStart + areaSize; }

    char *findPlace(Node *oldest, uint64_t need) const;
    void dropOldest();
    void placeNode(char *place, const char *line, uint64_t length);

    char *areaStart = nullptr; ///< Not owned.
    uint64_t areaSize = 0;
    Node *first = nullptr;
    Node *last = nullptr;
    char *endOfLastNode = nullptr;
};

constinit MsgBuffer buffer;

void MsgBuffer::setArea(char *start, uint64_t size)
{
    const uint64_t gap = -std::bit_cast<uint64_t>(start) % alignof(Node);
    areaStart = start == nullptr ? nullptr : start + std::min(gap, size);
    areaSize = start == nullptr ? 0 : size - std::min(gap, size);
    endOfLastNode = nullptr;
    reset();
}

void MsgBuffer::reset()
{
    first = nullptr;
    last = nullptr;
}

// The place for a node if the given one were the oldest; null if there is no room.
char *MsgBuffer::findPlace(Node *oldest, uint64_t need) const
{
    char *oldestStart = addressOf(oldest);
    const bool wrapped = endOfLastNode <= oldestStart;
    if (!wrapped && static_cast<uint64_t>(endOfBuffer() - endOfLastNode) >= need)
        return endOfLastNode;
    char *candidate = wrapped ? endOfLastNode : areaStart;
    return static_cast<uint64_t>(oldestStart - candidate) >= need ? candidate : nullptr;
}

void MsgBuffer::dropOldest()
{
    first = first->next;
    if (first != nullptr)
        first->prev = nullptr;
}

void MsgBuffer::placeNode(char *place, const char *line, uint64_t length)
{
    endOfLastNode = place + Tav::msgNodeSizeAligned(length);
    RING_ASSERT(endOfLastNode <= endOfBuffer());
    Node *node = new (place) Node{nullptr, last};
    if (last != nullptr)
        last->next = node;
    else
        first = node;
    last = node;
    std::memcpy(textOf(node), line, length);
    textOf(node)[length] = '\0';
}

bool MsgBuffer::push(const char *line)
{
    const uint64_t length = strnlen(line, maxTextLength);
    const uint64_t need = Tav::msgNodeSizeAligned(length);
    // What does not fit beside the newest line fits beside no older one either.
    const bool fits = first == nullptr ? need <= areaSize : findPlace(last, need) != nullptr;
    if (!fits)
        return false;

    bool dropped = false;
    char *place = areaStart;
    while (first != nullptr && (place = findPlace(first, need)) == nullptr) {
        dropOldest();
        dropped = true;
    }
    if (first == nullptr) {
        RING_ASSERT(!last);
        place = areaStart;
    }
    placeNode(place, line, length);
    return !dropped;
}

Node *MsgBuffer::step(uint64_t &cursor, bool backwards) const
{
    const Node *current = std::bit_cast<const Node *>(cursor);
    Node *next = nullptr;
    if (current == nullptr)
        next = backwards ? last : first;
    else
        next = backwards ? current->prev : current->next;
    if (next != nullptr)
        cursor = std::bit_cast<uint64_t>(next);
    return next;
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming)
constinit bool Tav::dbgDumpAllowed = true;

void Tav::DbgDump_setTraceBuffer(void *start, uint64_t size)
{
    buffer.setArea(static_cast<char *>(start), size);
}

void Tav::dbgMsgBufferReset()
{
    buffer.reset();
}

bool Tav::dbgMsgBufferPush(const char *line)
{
    return buffer.push(line == nullptr ? "" : line);
}

const char *Tav::dbgMsgBufferPeekNext(uint64_t &cursor, bool backwards)
{
    Node *node = buffer.step(cursor, backwards);
    return node == nullptr ? nullptr : textOf(node);
}

uint64_t Tav::msgNodeSizeAligned(uint64_t length)
{
    return length / 8 * 8 + 24;
}

void Tav::DbgDump_enableDump(bool allowed)
{
    std::atomic_ref(dbgDumpAllowed).store(allowed, std::memory_order_relaxed);
}

uint64_t Tav::DbgDump_getNextLine(
    char *out, uint64_t outSize, int lineNumber, uint64_t &cursor, bool backwards)
{
    const char *text = dbgMsgBufferPeekNext(cursor, backwards);
    if (text == nullptr || out == nullptr || outSize < 2)
        return 0;
    if (!std::atomic_ref(dbgDumpAllowed).load(std::memory_order_relaxed))
        return 0;

    constexpr uint64_t longest = maxTextLength + 16;
    std::snprintf(out, std::min(outSize, longest), "%3d %s", lineNumber, text);
    out[outSize - 2] = '\n';
    out[outSize - 1] = '\0';
    return std::strlen(out);
}

void DbgDump_setVersion(const char *) {}
