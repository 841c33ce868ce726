#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QMap>
#include <QString>
#include <QtGlobal>

#include <optional>

/** \file
 * The records of MCAP files, as the public description of the format lays them out: numbers are
 * little-endian, texts are UTF-8 behind their length. Readers give nothing when the content ends
 * too early; what stands behind the known fields is passed over.
 */

namespace corvane {

/** What a file begins and ends with. */
inline constexpr QByteArrayView mcapFileMark("\x89MCAP0\r\n", 8);

/** How the messages of channels are laid out. */
struct McapSchema
{
    quint16 id = 0; ///< Never 0.
    QString name;
    QString encoding; ///< Such as "protobuf".
    QByteArray data; ///< The description itself, in the encoding's own form.

    bool operator==(const McapSchema &other) const = default;
};

/** A stream of messages of one schema. */
struct McapChannel
{
    quint16 id = 0;
    quint16 schemaId = 0; ///< 0: none.
    QString topic;
    QString messageEncoding; ///< Such as "protobuf".
    QMap<QString, QString> metadata;

    bool operator==(const McapChannel &other) const = default;
};

struct McapMessage
{
    quint16 channelId = 0;
    quint32 sequence = 0;
    quint64 logTimeNs = 0; ///< When it was recorded; since an epoch that the recorder chose.
    quint64 publishTimeNs = 0; ///< When it was sent.
    QByteArrayView data; ///< Belongs to the bytes it was read from.
};

/** Records that stand together, compressed or not. */
struct McapChunk
{
    quint64 uncompressedSize = 0;
    quint32 uncompressedCrc = 0; ///< CRC-32 of the records; 0: not known.
    QString compression; ///< "zstd", "lz4", or empty.
    QByteArrayView records; ///< Belongs to the bytes it was read from.
    bool isCut = false; ///< Some of the records are missing at the end.
};

/** What stands before the content of each record. */
struct McapRecordHeader
{
    static constexpr qsizetype size = 9;

    quint8 opcode = 0;
    quint64 contentSize = 0;
};

enum class McapOpcode : quint8 {
    Footer = 0x02,
    Schema = 0x03,
    Channel = 0x04,
    Message = 0x05,
    Chunk = 0x06,
    DataEnd = 0x0f,
};

std::optional<McapRecordHeader> parseMcapRecordHeader(QByteArrayView bytes);
std::optional<McapSchema> parseMcapSchema(QByteArrayView content);
std::optional<McapChannel> parseMcapChannel(QByteArrayView content);
std::optional<McapMessage> parseMcapMessage(QByteArrayView content);
/** \a content may end anywhere in the records; the chunk is then cut. */
std::optional<McapChunk> parseMcapChunk(QByteArrayView content);

} // namespace corvane
