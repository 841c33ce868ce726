#include "msgbuffermodel.h"

#include "DbgMsgBuffer.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <vector>

namespace corvane::test {

namespace {

constexpr uint64_t maxTextLength = 2048;
constexpr char marginByte = '\x5a';

std::string numbered(int number, const std::string &text)
{
    char prefix[16];
    std::snprintf(prefix, sizeof prefix, "%3d ", number);
    return prefix + text;
}

/** What a buffer of \a outSize bytes, all of them set beforehand, reads as. */
std::string dumpedLine(const std::string &line, uint64_t outSize)
{
    std::string bytes = line.substr(0, outSize - 1);
    bytes.resize(outSize, '\0');
    bytes[outSize - 2] = '\n';
    bytes[outSize - 1] = '\0';
    return bytes.substr(0, bytes.find('\0'));
}

} // namespace

MsgBufferModel::MsgBufferModel(uint64_t size)
    : areaSize(size)
{
}

uint64_t MsgBufferModel::findPlace(uint64_t oldestOffset, uint64_t need) const
{
    const uint64_t end = lines.back().offset + lines.back().size;
    if (end <= oldestOffset)
        return oldestOffset - end >= need ? end : nowhere;
    if (areaSize - end >= need)
        return end;
    return oldestOffset >= need ? 0 : nowhere;
}

bool MsgBufferModel::push(std::string_view text)
{
    text = text.substr(0, maxTextLength);
    const uint64_t need = text.size() - text.size() % 8 + 24;
    uint64_t place = lines.empty() && need <= areaSize ? 0 : nowhere;
    size_t dropped = 0;
    for (; dropped < lines.size(); ++dropped) {
        place = findPlace(lines[dropped].offset, need);
        if (place != nowhere)
            break;
    }
    if (place == nowhere)
        return false;
    lines.erase(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(dropped));
    lines.push_back({place, need, std::string(text)});
    return dropped == 0;
}

MsgBufferExercise::~MsgBufferExercise()
{
    Tav::DbgDump_setTraceBuffer(nullptr, 0);
}

std::string MsgBufferExercise::setArea(uint64_t size, uint64_t misalignment, uint64_t margin)
{
    std::string wrong = checkMargins();
    areaSize = size;
    areaOffset = margin + misalignment;
    blockSize = areaOffset + size + margin;
    block = std::make_unique<char[]>(blockSize);
    std::fill_n(block.get(), blockSize, marginByte);
    // A block begins on an 8-byte boundary, and margins keep to it.
    const uint64_t gap = (8 - misalignment % 8) % 8;
    firstOffset = areaOffset + std::min(gap, size);
    model = MsgBufferModel(size - std::min(gap, size));
    Tav::DbgDump_setTraceBuffer(block.get() + areaOffset, size);
    return wrong;
}

std::string MsgBufferExercise::push(const std::string &text)
{
    const bool expected = model.push(text);
    if (Tav::dbgMsgBufferPush(text.c_str()) != expected)
        return "wrong result of a push";
    return {};
}

std::string MsgBufferExercise::reset()
{
    model.reset();
    Tav::dbgMsgBufferReset();
    return read(false, 1) + read(true, 1);
}

const MsgBufferModel::Line *MsgBufferExercise::lineAt(uint64_t index, bool backwards) const
{
    const auto &lines = model.getLines();
    if (index >= lines.size())
        return nullptr;
    return &lines[backwards ? lines.size() - 1 - index : index];
}

std::string MsgBufferExercise::read(bool backwards, uint64_t count) const
{
    uint64_t cursor = 0;
    for (uint64_t index = 0; index < count; ++index) {
        const MsgBufferModel::Line *expected = lineAt(index, backwards);
        const uint64_t cursorBefore = cursor;
        const char *text = Tav::dbgMsgBufferPeekNext(cursor, backwards);
        if (expected == nullptr)
            return text == nullptr && cursor == cursorBefore ? "" : "a line too many";
        if (text == nullptr)
            return "a line is missing";
        if (text != block.get() + firstOffset + expected->offset + 16)
            return "wrong place";
        if (text != expected->text)
            return "wrong text";
    }
    return {};
}

std::string MsgBufferExercise::dump(bool backwards, uint64_t outSize) const
{
    std::vector<char> out(outSize);
    uint64_t cursor = 0;
    for (int number = 0;; ++number) {
        const MsgBufferModel::Line *expected = lineAt(static_cast<uint64_t>(number), backwards);
        std::fill(out.begin(), out.end(), marginByte);
        const uint64_t length
            = Tav::DbgDump_getNextLine(out.data(), outSize, number, cursor, backwards);
        if (expected == nullptr)
            return length == 0 ? "" : "a dumped line too many";
        if (dumpedLine(numbered(number, expected->text), outSize) != out.data())
            return "wrong dumped line";
        if (length != std::strlen(out.data()))
            return "wrong length of a dumped line";
    }
}

std::string MsgBufferExercise::checkMargins() const
{
    const auto isMargin = [](char byte) { return byte == marginByte; };
    const char *begin = block.get();
    const char *end = begin + blockSize;
    const bool same = std::all_of(begin, begin + firstOffset, isMargin)
                      && std::all_of(begin + areaOffset + areaSize, end, isMargin);
    return same ? "" : "a byte outside the area was written";
}

} // namespace corvane::test
