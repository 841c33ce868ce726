#pragma once

#include "corvaneframework_export.h"

#include <QByteArrayView>
#include <QStringList>

namespace corvane {

/** How the length of a message stands before it. */
enum class ProtobufFraming {
    Varint, ///< 7 bits a byte, the lowest first, the top bit set in all but the last byte.
    LittleEndian32 ///< 4 bytes, the lowest first.
};

/** The names that people give to them, in the order of their values: "varint" and "le32". */
QStringList protobufFramingNames();

/** A length before a message. */
struct CORVANEFRAMEWORK_EXPORT ProtobufLength
{
    enum class Result {
        Length,
        Incomplete,
        None ///< What stands there is no length.
    };

    /** Reads the length at the beginning of \a bytes. */
    static Result read(QByteArrayView bytes, ProtobufFraming framing, ProtobufLength &length);

    /** Of a varint; more cannot be one. */
    static constexpr int maximumPrefixSize = 10;

    int prefixSize = 0; ///< Bytes of the length itself.
    quint64 size = 0; ///< Bytes of the message.
};

} // namespace corvane
