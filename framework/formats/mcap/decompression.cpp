#include "decompression.h"

#include <QtEndian>

#include <lz4frame.h>
#include <zstd.h>

#include <algorithm>
#include <array>
#include <memory>

namespace corvane {

namespace {

using End = Decompression::End;

constexpr qsizetype pieceBytes = qsizetype{256} * 1024;

/** One step of a decompressor. */
struct Progress
{
    size_t read = 0;
    size_t written = 0;
    bool isFrameComplete = false;
    bool isDamaged = false;
};

class ZstdStream
{
public:
    // NOLINTNEXTLINE(readability-non-const-parameter): zstd writes there
    Progress advance(QByteArrayView input, char *output, size_t outputSize)
    {
        ZSTD_inBuffer in{input.data(), static_cast<size_t>(input.size()), 0};
        ZSTD_outBuffer out{output, outputSize, 0};
        const size_t result = ZSTD_decompressStream(context.get(), &out, &in);
        return {in.pos, out.pos, result == 0, ZSTD_isError(result) != 0};
    }

private:
    struct Deleter
    {
        void operator()(ZSTD_DStream *stream) const { ZSTD_freeDStream(stream); }
    };

    std::unique_ptr<ZSTD_DStream, Deleter> context{ZSTD_createDStream()};
};

class Lz4Stream
{
public:
    Lz4Stream()
    {
        LZ4F_dctx *created = nullptr;
        LZ4F_createDecompressionContext(&created, LZ4F_VERSION);
        context.reset(created);
    }

    Progress advance(QByteArrayView input, char *output, size_t outputSize)
    {
        auto read = static_cast<size_t>(input.size());
        size_t written = outputSize;
        const size_t result
            = LZ4F_decompress(context.get(), output, &written, input.data(), &read, nullptr);
        return {read, written, result == 0, LZ4F_isError(result) != 0};
    }

private:
    struct Deleter
    {
        void operator()(LZ4F_dctx *stream) const { LZ4F_freeDecompressionContext(stream); }
    };

    std::unique_ptr<LZ4F_dctx, Deleter> context;
};

template <typename Stream>
Decompression decompressWith(Stream stream, QByteArrayView input, quint64 maximumSize)
{
    Decompression result;
    for (;;) {
        const qsizetype begin = result.bytes.size();
        // One byte more than is allowed shows that there is more.
        const quint64 space
            = std::min<quint64>(maximumSize - static_cast<quint64>(begin) + 1, pieceBytes);
        result.bytes.resize(begin + static_cast<qsizetype>(space));
        const Progress progress = stream.advance(input, result.bytes.data() + begin, space);
        input = input.sliced(static_cast<qsizetype>(progress.read));
        result.bytes.truncate(begin + static_cast<qsizetype>(progress.written));
        if (static_cast<quint64>(result.bytes.size()) > maximumSize) {
            result.bytes.chop(1);
            result.end = End::TooLong;
            return result;
        }
        const bool isStuck = progress.read == 0 && progress.written == 0;
        if (progress.isDamaged || isStuck) {
            result.end = progress.isDamaged ? End::Damaged : End::Cut;
            return result;
        }
        if (progress.isFrameComplete && input.isEmpty())
            return result;
    }
}

using CrcTables = std::array<std::array<quint32, 256>, 8>;

/** Table n: what a byte does to the checksum when n bytes follow it. */
constexpr CrcTables makeCrcTables()
{
    CrcTables tables{};
    for (quint32 i = 0; i < 256; ++i) {
        quint32 value = i;
        for (int bit = 0; bit < 8; ++bit)
            value = (value & 1) != 0 ? (value >> 1) ^ 0xedb88320 : value >> 1;
        tables[0][i] = value;
    }
    for (size_t n = 1; n < tables.size(); ++n) {
        for (size_t i = 0; i < 256; ++i)
            tables[n][i] = tables[0][tables[n - 1][i] & 0xff] ^ (tables[n - 1][i] >> 8);
    }
    return tables;
}

constexpr CrcTables crcTables = makeCrcTables();

/** Takes eight bytes at once. */
quint32 advanceCrc(quint32 crc, quint64 eightBytes)
{
    eightBytes ^= crc;
    quint32 result = 0;
    for (size_t i = 0; i < crcTables.size(); ++i)
        result ^= crcTables[7 - i][(eightBytes >> (8 * i)) & 0xff];
    return result;
}

} // namespace

Decompression decompress(const QString &method, QByteArrayView bytes, quint64 maximumSize)
{
    const bool isKnown
        = method.isEmpty() || method == QLatin1String("zstd") || method == QLatin1String("lz4");
    if (!isKnown)
        return {QByteArray(), End::UnknownMethod};
    if (bytes.isEmpty())
        return {};
    if (method == QLatin1String("zstd"))
        return decompressWith(ZstdStream(), bytes, maximumSize);
    if (method == QLatin1String("lz4"))
        return decompressWith(Lz4Stream(), bytes, maximumSize);
    if (static_cast<quint64>(bytes.size()) > maximumSize)
        return {bytes.first(static_cast<qsizetype>(maximumSize)).toByteArray(), End::TooLong};
    return {bytes.toByteArray(), End::Complete};
}

quint32 getCrc32(QByteArrayView bytes)
{
    quint32 crc = 0xffffffff;
    for (; bytes.size() >= 8; bytes = bytes.sliced(8))
        crc = advanceCrc(crc, qFromLittleEndian<quint64>(bytes.data()));
    for (const char byte : bytes)
        crc = crcTables[0][(crc ^ static_cast<quint8>(byte)) & 0xff] ^ (crc >> 8);
    return ~crc;
}

} // namespace corvane
