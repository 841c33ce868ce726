#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QtGlobal>

namespace corvane {

/** What came out of compressed bytes. */
struct Decompression
{
    enum class End {
        Complete, ///< The bytes were read to the end of their last frame.
        Cut, ///< All is right so far, and more is missing.
        Damaged, ///< They cannot be read on; what came out before may be wrong, too.
        TooLong, ///< More comes out than was allowed.
        UnknownMethod,
    };

    QByteArray bytes; ///< Never more than was allowed.
    End end = End::Complete;
};

/**
 * Undoes \a method: "zstd", "lz4" (its frame format), or the empty one that changes nothing. Memory
 * grows with what comes out, never before.
 */
Decompression decompress(const QString &method, QByteArrayView bytes, quint64 maximumSize);

/** CRC-32 as in ISO 3309: polynomial 0xEDB88320 (reflected), start and end with all bits flipped.
 */
quint32 getCrc32(QByteArrayView bytes);

} // namespace corvane
