#include "mcaprecords.h"

#include <QtEndian>

#include <algorithm>

namespace corvane {

namespace {

/** Reads one value after another. Once the bytes do not suffice, all that it gives is empty. */
class Cursor
{
public:
    explicit Cursor(QByteArrayView bytes)
        : rest(bytes)
    {
    }

    bool isValid() const { return valid; }

    bool isAtEnd() const { return rest.isEmpty(); }

    QByteArrayView takeBytes(quint64 size)
    {
        valid = valid && size <= static_cast<quint64>(rest.size());
        if (!valid)
            return {};
        const QByteArrayView taken = rest.first(static_cast<qsizetype>(size));
        rest = rest.sliced(taken.size());
        return taken;
    }

    template <typename Number>
    Number take()
    {
        const QByteArrayView bytes = takeBytes(sizeof(Number));
        return valid ? qFromLittleEndian<Number>(bytes.data()) : Number();
    }

    QByteArrayView takeSizedBytes() { return takeBytes(take<quint32>()); }

    QString takeString() { return QString::fromUtf8(takeSizedBytes()); }

    QByteArrayView takeAtMost(quint64 size)
    {
        return takeBytes(std::min(size, static_cast<quint64>(rest.size())));
    }

private:
    QByteArrayView rest;
    bool valid = true;
};

template <typename Record>
std::optional<Record> resultOf(const Cursor &cursor, const Record &record)
{
    return cursor.isValid() ? std::optional(record) : std::nullopt;
}

} // namespace

std::optional<McapRecordHeader> parseMcapRecordHeader(QByteArrayView bytes)
{
    Cursor cursor(bytes);
    McapRecordHeader header;
    header.opcode = cursor.take<quint8>();
    header.contentSize = cursor.take<quint64>();
    return resultOf(cursor, header);
}

std::optional<McapSchema> parseMcapSchema(QByteArrayView content)
{
    Cursor cursor(content);
    McapSchema schema;
    schema.id = cursor.take<quint16>();
    schema.name = cursor.takeString();
    schema.encoding = cursor.takeString();
    schema.data = cursor.takeSizedBytes().toByteArray();
    return resultOf(cursor, schema);
}

std::optional<McapChannel> parseMcapChannel(QByteArrayView content)
{
    Cursor cursor(content);
    McapChannel channel;
    channel.id = cursor.take<quint16>();
    channel.schemaId = cursor.take<quint16>();
    channel.topic = cursor.takeString();
    channel.messageEncoding = cursor.takeString();
    Cursor entries(cursor.takeSizedBytes());
    while (cursor.isValid() && entries.isValid() && !entries.isAtEnd()) {
        const QString key = entries.takeString();
        channel.metadata.insert(key, entries.takeString());
    }
    return entries.isValid() ? resultOf(cursor, channel) : std::nullopt;
}

std::optional<McapMessage> parseMcapMessage(QByteArrayView content)
{
    Cursor cursor(content);
    McapMessage message;
    message.channelId = cursor.take<quint16>();
    message.sequence = cursor.take<quint32>();
    message.logTimeNs = cursor.take<quint64>();
    message.publishTimeNs = cursor.take<quint64>();
    message.data = cursor.takeAtMost(static_cast<quint64>(content.size()));
    return resultOf(cursor, message);
}

std::optional<McapChunk> parseMcapChunk(QByteArrayView content)
{
    Cursor cursor(content);
    McapChunk chunk;
    cursor.takeBytes(16); // Times of its first and last message.
    chunk.uncompressedSize = cursor.take<quint64>();
    chunk.uncompressedCrc = cursor.take<quint32>();
    chunk.compression = cursor.takeString();
    const auto size = cursor.take<quint64>();
    chunk.records = cursor.takeAtMost(size);
    chunk.isCut = static_cast<quint64>(chunk.records.size()) < size;
    return resultOf(cursor, chunk);
}

} // namespace corvane
