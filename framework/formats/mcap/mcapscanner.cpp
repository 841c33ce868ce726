#include "mcapscanner.h"

#include "mcaprecords.h"

#include <QtEndian>

#include <algorithm>
#include <limits>

namespace corvane {

namespace {

// Where times stand in the content of chunks and messages.
constexpr qsizetype chunkBeginOffset = 0;
constexpr qsizetype chunkEndOffset = 8;
constexpr qsizetype logTimeOffset = 6;
constexpr qsizetype neededSize = 16;

std::optional<qint64> readTimeUs(QByteArrayView content, qsizetype offset)
{
    return static_cast<qint64>(qFromLittleEndian<quint64>(content.data() + offset) / 1000);
}

} // namespace

void McapScanner::append(QByteArrayView bytes)
{
    const qint64 end = bufferOffset + buffer.size();
    const qint64 consumed = std::min(position, end) - bufferOffset;
    buffer.remove(0, static_cast<qsizetype>(consumed));
    // What is passed over is not kept.
    const qint64 toSkip = std::clamp<qint64>(position - end, 0, bytes.size());
    buffer.append(bytes.sliced(static_cast<qsizetype>(toSkip)));
    bufferOffset += consumed + toSkip;
}

std::optional<StreamScanner::Place> McapScanner::find(qint64 offset)
{
    if (position == 0)
        position = mcapFileMark.size();
    while (!atEnd) {
        const Record record = parseRecord();
        if (record.size == 0)
            break;
        if (record.isPlace && position >= offset)
            return Place{position, record.firstTimeUs};
        if (record.lastTimeUs)
            latestTimeUs = std::max(latestTimeUs.value_or(*record.lastTimeUs), *record.lastTimeUs);
        constexpr qint64 furthest = std::numeric_limits<qint64>::max();
        atEnd = record.isLast || record.size > furthest - position;
        // Nothing behind the end is kept.
        position = atEnd ? furthest : position + record.size;
    }
    return std::nullopt;
}

McapScanner::Record McapScanner::parseRecord() const
{
    Record record;
    if (position > bufferOffset + buffer.size())
        return record;
    const auto bytes
        = QByteArrayView(buffer).sliced(static_cast<qsizetype>(position - bufferOffset));
    const auto header = parseMcapRecordHeader(bytes);
    if (!header)
        return record;
    const QByteArrayView content = bytes.sliced(McapRecordHeader::size);
    const auto opcode = static_cast<McapOpcode>(header->opcode);
    const bool hasTime = (opcode == McapOpcode::Chunk || opcode == McapOpcode::Message)
                         && header->contentSize >= neededSize;
    if (hasTime && content.size() < neededSize)
        return record;
    constexpr quint64 longest = std::numeric_limits<qint64>::max() - McapRecordHeader::size;
    record.size
        = McapRecordHeader::size + static_cast<qint64>(std::min(header->contentSize, longest));
    record.isLast = opcode == McapOpcode::DataEnd || header->opcode == 0;
    record.isPlace = hasTime;
    if (hasTime && opcode == McapOpcode::Chunk) {
        record.firstTimeUs = readTimeUs(content, chunkBeginOffset);
        record.lastTimeUs = readTimeUs(content, chunkEndOffset);
    } else if (hasTime) {
        record.firstTimeUs = record.lastTimeUs = readTimeUs(content, logTimeOffset);
    }
    return record;
}

} // namespace corvane
