#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <lz4frame.h>
#include <zstd.h>

namespace corvane::test {

/** Little-endian numbers and sized texts, one behind the other. */
class McapBytes
{
public:
    template <typename Number>
    McapBytes &number(Number value)
    {
        for (size_t i = 0; i < sizeof value; ++i)
            bytes.append(static_cast<char>(static_cast<quint64>(value) >> (8 * i) & 0xff));
        return *this;
    }

    McapBytes &sized(const QByteArray &text)
    {
        number(static_cast<quint32>(text.size()));
        return raw(text);
    }

    McapBytes &raw(const QByteArray &text)
    {
        bytes.append(text);
        return *this;
    }

    QByteArray bytes;
};

inline QByteArray mcapMagic()
{
    return "\x89MCAP0\r\n";
}

inline QByteArray mcapRecord(int opcode, const QByteArray &content)
{
    return McapBytes()
        .number(static_cast<quint8>(opcode))
        .number(static_cast<quint64>(content.size()))
        .raw(content)
        .bytes;
}

inline QByteArray mcapHeader()
{
    return mcapRecord(1, McapBytes().sized("profile").sized("a test").bytes);
}

inline QByteArray mcapSchema(quint16 id, const QByteArray &name, const QByteArray &data = "xyz")
{
    return mcapRecord(3, McapBytes().number(id).sized(name).sized("protobuf").sized(data).bytes);
}

inline QByteArray mcapChannel(quint16 id, quint16 schema, const QByteArray &topic)
{
    const QByteArray metadata = McapBytes().sized("key").sized("value").bytes;
    return mcapRecord(
        4,
        McapBytes().number(id).number(schema).sized(topic).sized("protobuf").sized(metadata).bytes);
}

inline QByteArray mcapMessage(quint16 channel, quint32 sequence, const QByteArray &data)
{
    return mcapRecord(5, McapBytes()
                             .number(channel)
                             .number(sequence)
                             .number(quint64(1000) * sequence)
                             .number(quint64(7))
                             .raw(data)
                             .bytes);
}

inline QByteArray mcapCompress(const QByteArray &method, const QByteArray &bytes)
{
    if (method.isEmpty())
        return bytes;
    const auto size = static_cast<size_t>(bytes.size());
    if (method == "zstd") {
        QByteArray result(static_cast<qsizetype>(ZSTD_compressBound(size)), '\0');
        result.resize(static_cast<qsizetype>(ZSTD_compress(
            result.data(), static_cast<size_t>(result.size()), bytes.constData(), size, 1)));
        return result;
    }
    QByteArray result(static_cast<qsizetype>(LZ4F_compressFrameBound(size, nullptr)), '\0');
    result.resize(static_cast<qsizetype>(LZ4F_compressFrame(
        result.data(), static_cast<size_t>(result.size()), bytes.constData(), size, nullptr)));
    return result;
}

/** The CRC is computed bit by bit here, to have it twice. */
inline quint32 mcapCrc(const QByteArray &bytes)
{
    quint32 crc = 0xffffffff;
    for (const char byte : bytes) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xedb88320 : 0);
    }
    return ~crc;
}

/** A chunk that may tell of other figures than it has. */
inline QByteArray mcapChunk(const QByteArray &method,
                            const QByteArray &compressed,
                            quint64 uncompressedSize,
                            quint32 crc,
                            quint64 firstTimeNs = 1,
                            quint64 lastTimeNs = 2)
{
    return mcapRecord(6, McapBytes()
                             .number(firstTimeNs)
                             .number(lastTimeNs)
                             .number(uncompressedSize)
                             .number(crc)
                             .sized(method)
                             .number(static_cast<quint64>(compressed.size()))
                             .raw(compressed)
                             .bytes);
}

inline QByteArray mcapChunk(const QByteArray &method, const QByteArray &records)
{
    return mcapChunk(method, mcapCompress(method, records), static_cast<quint64>(records.size()),
                     mcapCrc(records));
}

/** The end of the data and of the file, with a summary that begins at \a summaryOffset. */
inline QByteArray mcapEnd(const QByteArray &summary, qint64 summaryOffset)
{
    const QByteArray footer
        = McapBytes().number(static_cast<quint64>(summaryOffset)).raw(QByteArray(12, '\0')).bytes;
    return mcapRecord(0x0f, QByteArray(4, '\0')) + summary + mcapRecord(2, footer) + mcapMagic();
}

/** The end of the data, a summary that repeats \a summary, and the end of the file. */
inline QByteArray mcapEnd(const QByteArray &summary = QByteArray())
{
    return mcapRecord(0x0f, QByteArray(4, '\0')) + summary + mcapRecord(2, QByteArray(20, '\0'))
           + mcapMagic();
}

} // namespace corvane::test
