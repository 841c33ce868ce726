#include "mcapreader.h"

#include "decompression.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace corvane {

namespace {

using Kind = McapProblem::Kind;

constexpr qsizetype compactingBytes = 1024LL * 1024;
constexpr quint64 restOfFile = std::numeric_limits<quint64>::max();

QString tr(const char *text)
{
    return QCoreApplication::translate("corvane::McapReader", text);
}

bool isRead(McapOpcode opcode)
{
    return opcode == McapOpcode::Schema || opcode == McapOpcode::Channel
           || opcode == McapOpcode::Message || opcode == McapOpcode::Chunk;
}

bool isPastLimit(McapOpcode opcode, quint64 contentSize, const McapLimits &limits)
{
    return isRead(opcode) && contentSize > limits.recordBytes;
}

/** What is wrong with \a chunk, that gave \a result; empty when nothing is. */
QString findMistake(const McapChunk &chunk, const Decompression &result)
{
    switch (result.end) {
    case Decompression::End::UnknownMethod:
        return QCoreApplication::translate("corvane::McapReader",
                                           "A chunk is compressed with \"%1\", which is not known.")
            .arg(chunk.compression);
    case Decompression::End::Damaged:
        return QCoreApplication::translate("corvane::McapReader",
                                           "A chunk cannot be decompressed.");
    case Decompression::End::TooLong:
        return QCoreApplication::translate("corvane::McapReader",
                                           "A chunk holds more than the %1 bytes it tells of.")
            .arg(chunk.uncompressedSize);
    case Decompression::End::Cut:
    case Decompression::End::Complete:
        break;
    }
    if (chunk.isCut)
        return {};
    if (result.end == Decompression::End::Cut
        || static_cast<quint64>(result.bytes.size()) != chunk.uncompressedSize)
        return QCoreApplication::translate("corvane::McapReader",
                                           "A chunk holds less than the %1 bytes it tells of.")
            .arg(chunk.uncompressedSize);
    if (chunk.uncompressedCrc != 0 && chunk.uncompressedCrc != getCrc32(result.bytes))
        return QCoreApplication::translate("corvane::McapReader",
                                           "The checksum of a chunk is wrong.");
    return {};
}

} // namespace

McapListener::~McapListener() = default;

McapReader::McapReader(McapListener &listener, const McapLimits &limits)
    : listener(listener)
    , limits(limits)
{
}

void McapReader::define(const McapDefinitions &more)
{
    for (const auto &[id, schema] : more.schemas)
        if (const auto added = definitions.schemas.emplace(id, schema); added.second)
            listener.readSchema(added.first->second);
    for (const auto &[id, channel] : more.channels)
        if (const auto added = definitions.channels.emplace(id, channel); added.second)
            listener.readChannel(added.first->second, definitions.findSchema(channel));
}

void McapReader::reset(qint64 newOffset)
{
    part = newOffset == 0 ? Part::Magic : Part::Data;
    isFinished = false;
    isCutReported = false;
    buffer.clear();
    consumed = 0;
    offset = newOffset;
    bytesToPassOver = 0;
    isInChunk = false;
    chunkRecords = QByteArray();
}

void McapReader::append(QByteArrayView bytes)
{
    if (consumed > compactingBytes && consumed > buffer.size() / 2) {
        buffer.remove(0, consumed);
        consumed = 0;
    }
    buffer.append(bytes);
}

void McapReader::finish()
{
    isFinished = true;
}

McapReader::Step McapReader::step()
{
    if (isInChunk)
        return stepChunk();
    Step result = Step::NeedsBytes;
    if (bytesToPassOver > 0)
        result = passOver();
    else if (part == Part::Magic || part == Part::ClosingMagic)
        result = stepMagic();
    else if (part == Part::Data || part == Part::Summary)
        result = stepRecord();
    else
        result = stepBehindEnd();
    return result == Step::NeedsBytes && isFinished ? stepAtEnd() : result;
}

std::optional<quint64> McapReader::getNextLogTimeNs() const
{
    if (!isInChunk && (part != Part::Data || bytesToPassOver > 0))
        return std::nullopt;
    const QByteArrayView records
        = isInChunk ? QByteArrayView(chunkRecords).sliced(chunkPosition) : getAvailable();
    const auto header = parseMcapRecordHeader(records);
    if (!header || static_cast<McapOpcode>(header->opcode) != McapOpcode::Message)
        return std::nullopt;
    const QByteArrayView content = records.sliced(McapRecordHeader::size);
    if (static_cast<quint64>(content.size()) < header->contentSize)
        return std::nullopt;
    const auto message
        = parseMcapMessage(content.first(static_cast<qsizetype>(header->contentSize)));
    return message ? std::optional(message->logTimeNs) : std::nullopt;
}

McapReader::Step McapReader::stepMagic()
{
    const QByteArrayView expected = mcapFileMark;
    const QByteArrayView found
        = getAvailable().first(std::min(getAvailable().size(), expected.size()));
    const bool isOpening = part == Part::Magic;
    if (!expected.startsWith(found)) {
        reportProblem(isOpening ? Kind::NotMcap : Kind::Damaged, offset,
                      isOpening ? tr("This is no MCAP file, or one of another version.")
                                : tr("The mark at the end of the file is wrong."),
                      restOfFile);
        part = Part::Unreadable;
        return Step::Advanced;
    }
    if (found.size() < expected.size())
        return Step::NeedsBytes;
    consume(expected.size());
    part = isOpening ? Part::Data : Part::End;
    return Step::Advanced;
}

McapReader::Step McapReader::stepRecord()
{
    const auto header = parseMcapRecordHeader(getAvailable());
    if (!header)
        return Step::NeedsBytes;
    const auto opcode = static_cast<McapOpcode>(header->opcode);
    if (part == Part::Summary || !isRead(opcode)
        || isPastLimit(opcode, header->contentSize, limits)) {
        beginPassingOver(*header);
        return Step::Advanced;
    }
    if (!isWhole(*header))
        return Step::NeedsBytes;
    const auto size = static_cast<qsizetype>(header->contentSize);
    readRecord(opcode, getAvailable().sliced(McapRecordHeader::size, size), offset);
    consume(McapRecordHeader::size + size);
    return Step::Advanced;
}

void McapReader::beginPassingOver(const McapRecordHeader &header)
{
    const auto opcode = static_cast<McapOpcode>(header.opcode);
    if (header.opcode == 0) {
        // As in a file whose end was never written. Nothing tells where another record begins.
        reportProblem(Kind::Damaged, offset, tr("There is no record where one must be."),
                      restOfFile);
        part = Part::Unreadable;
        return;
    }
    if (part == Part::Data && isRead(opcode))
        reportProblem(Kind::TooLarge, offset,
                      tr("A record of %1 bytes is larger than the %2 that are allowed.")
                          .arg(header.contentSize)
                          .arg(limits.recordBytes),
                      McapRecordHeader::size + header.contentSize);
    if (opcode == McapOpcode::DataEnd)
        part = Part::Summary;
    else if (opcode == McapOpcode::Footer)
        part = Part::ClosingMagic;
    consume(McapRecordHeader::size);
    bytesToPassOver = header.contentSize;
}

McapReader::Step McapReader::passOver()
{
    const quint64 size = std::min(bytesToPassOver, static_cast<quint64>(getAvailable().size()));
    bytesToPassOver -= size;
    consume(static_cast<qsizetype>(size));
    return size > 0 ? Step::Advanced : Step::NeedsBytes;
}

McapReader::Step McapReader::stepChunk()
{
    const QByteArrayView records = QByteArrayView(chunkRecords).sliced(chunkPosition);
    const auto header = parseMcapRecordHeader(records);
    const quint64 room = header ? static_cast<quint64>(records.size() - McapRecordHeader::size) : 0;
    if (!header || header->opcode == 0 || header->contentSize > room) {
        if (!records.isEmpty() && !isChunkCut)
            reportProblem(Kind::Damaged, chunkOffset,
                          tr("The records of a chunk do not end where the chunk does."));
        isInChunk = false;
        chunkRecords = QByteArray();
        return Step::Advanced;
    }
    const auto size = static_cast<qsizetype>(header->contentSize);
    chunkPosition += McapRecordHeader::size + size;
    const auto opcode = static_cast<McapOpcode>(header->opcode);
    if (opcode == McapOpcode::Chunk)
        reportProblem(Kind::Damaged, chunkOffset, tr("There is a chunk inside a chunk."));
    else
        readRecord(opcode, records.sliced(McapRecordHeader::size, size), chunkOffset);
    return Step::Advanced;
}

McapReader::Step McapReader::stepBehindEnd()
{
    if (getAvailable().isEmpty())
        return Step::NeedsBytes;
    if (part == Part::End) {
        reportProblem(Kind::Damaged, offset, tr("There are bytes behind the end of the file."),
                      restOfFile);
        part = Part::Unreadable;
    }
    consume(getAvailable().size());
    return Step::Advanced;
}

/** Reads what is there of a chunk, and then says that the file is cut. */
McapReader::Step McapReader::stepAtEnd()
{
    if (isCutReported || part == Part::End || part == Part::Unreadable)
        return Step::NeedsBytes;
    const auto header = parseMcapRecordHeader(getAvailable());
    const bool isChunk = part == Part::Data && bytesToPassOver == 0 && header
                         && static_cast<McapOpcode>(header->opcode) == McapOpcode::Chunk;
    if (isChunk)
        openChunk(getAvailable().sliced(McapRecordHeader::size), true, offset);
    consume(getAvailable().size());
    if (isChunk)
        return Step::Advanced;
    isCutReported = true;
    reportProblem(Kind::Cut, offset, tr("The file is cut off here."));
    return Step::NeedsBytes;
}

void McapReader::readRecord(McapOpcode opcode, QByteArrayView content, qint64 recordOffset)
{
    if (opcode == McapOpcode::Schema)
        readSchema(content, recordOffset);
    else if (opcode == McapOpcode::Channel)
        readChannel(content, recordOffset);
    else if (opcode == McapOpcode::Message)
        readMessage(content, recordOffset);
    else if (opcode == McapOpcode::Chunk)
        openChunk(content, false, recordOffset);
}

void McapReader::readSchema(QByteArrayView content, qint64 recordOffset)
{
    const std::optional<McapSchema> schema = parseMcapSchema(content);
    if (!schema || schema->id == 0)
        return reportProblem(Kind::Damaged, recordOffset, tr("A schema is incomplete."));
    const auto known = definitions.schemas.find(schema->id);
    if (known != definitions.schemas.end()) {
        if (!(known->second == *schema))
            reportProblem(
                Kind::Damaged, recordOffset,
                tr("Schema %1 is not the one that had this number before.").arg(schema->id));
        return;
    }
    const auto size = static_cast<quint64>(content.size());
    if (definitions.schemas.size() >= limits.schemas
        || size > limits.schemaBytes - totalSchemaBytes)
        return reportProblem(Kind::TooLarge, recordOffset,
                             tr("There are more or larger schemas than are allowed."));
    totalSchemaBytes += size;
    listener.readSchema(definitions.schemas.emplace(schema->id, *schema).first->second);
}

void McapReader::readChannel(QByteArrayView content, qint64 recordOffset)
{
    const std::optional<McapChannel> channel = parseMcapChannel(content);
    if (!channel)
        return reportProblem(Kind::Damaged, recordOffset, tr("A channel is incomplete."));
    const auto known = definitions.channels.find(channel->id);
    if (known != definitions.channels.end()) {
        if (!(known->second == *channel))
            reportProblem(
                Kind::Damaged, recordOffset,
                tr("Channel %1 is not the one that had this number before.").arg(channel->id));
        return;
    }
    const McapSchema *schema = definitions.findSchema(*channel);
    if (channel->schemaId != 0 && schema == nullptr)
        return reportProblem(Kind::Damaged, recordOffset,
                             tr("Channel %1 names schema %2, which the file does not contain.")
                                 .arg(channel->id)
                                 .arg(channel->schemaId));
    if (definitions.channels.size() >= limits.channels)
        return reportProblem(Kind::TooLarge, recordOffset,
                             tr("There are more channels than are allowed."));
    listener.readChannel(definitions.channels.emplace(channel->id, *channel).first->second, schema);
}

void McapReader::readMessage(QByteArrayView content, qint64 recordOffset)
{
    const std::optional<McapMessage> message = parseMcapMessage(content);
    if (!message)
        return reportProblem(Kind::Damaged, recordOffset, tr("A message is incomplete."));
    const auto channel = definitions.channels.find(message->channelId);
    if (channel == definitions.channels.end())
        return reportProblem(Kind::Damaged, recordOffset,
                             tr("A message names channel %1, which the file does not contain.")
                                 .arg(message->channelId));
    listener.readMessage(*message, channel->second, recordOffset);
}

void McapReader::openChunk(QByteArrayView content, bool isFileCut, qint64 recordOffset)
{
    const std::optional<McapChunk> chunk = parseMcapChunk(content);
    const auto size = static_cast<quint64>(McapRecordHeader::size + content.size());
    if (!chunk || (chunk->isCut && !isFileCut)) {
        if (!isFileCut)
            reportProblem(Kind::Damaged, recordOffset, tr("A chunk is incomplete."), size);
        return;
    }
    if (chunk->uncompressedSize > limits.chunkBytes)
        return reportProblem(Kind::TooLarge, recordOffset,
                             tr("A chunk tells of %1 bytes, more than the %2 that are allowed.")
                                 .arg(chunk->uncompressedSize)
                                 .arg(limits.chunkBytes),
                             size);
    const Decompression result
        = decompress(chunk->compression, chunk->records, chunk->uncompressedSize);
    const QString mistake = findMistake(*chunk, result);
    if (!mistake.isEmpty())
        return reportProblem(Kind::Damaged, recordOffset, mistake, size);
    isInChunk = true;
    isChunkCut = chunk->isCut;
    chunkRecords = result.bytes;
    chunkPosition = 0;
    chunkOffset = recordOffset;
}

bool McapReader::isWhole(const McapRecordHeader &header) const
{
    return header.contentSize
           <= static_cast<quint64>(getAvailable().size() - McapRecordHeader::size);
}

QByteArrayView McapReader::getAvailable() const
{
    return QByteArrayView(buffer).sliced(consumed);
}

void McapReader::consume(qsizetype size)
{
    consumed += size;
    offset += size;
    if (consumed == buffer.size()) {
        buffer.clear();
        consumed = 0;
    }
}

void McapReader::reportProblem(McapProblem::Kind kind,
                               qint64 problemOffset,
                               const QString &text,
                               quint64 size)
{
    listener.reportProblem({kind, problemOffset, text, size});
}

} // namespace corvane
