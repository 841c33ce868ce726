#pragma once

#include "rowplace.h"

#include <QtGlobal>

#include <optional>
#include <vector>

namespace corvane {

class DecodedMessage;

/** Bytes of a message that belong together. */
struct ByteRange
{
    quint32 offset = 0; ///< From the first byte of the message.
    quint32 length = 0;

    bool operator==(const ByteRange &) const = default;
};

/**
 * Which bytes of \a message may be shown, a truth value for each. While confidential content is
 * hidden and the message can hold some, these are only the bytes that are known to belong to fields
 * that are not confidential: not even a checksum, from which others could be told.
 */
std::vector<bool> findOpenBytes(const DecodedMessage &message);

/** Where the field, or element, of \a place lies in \a message; empty where it is not known. */
std::vector<ByteRange> findByteRanges(const RowPlace &place, const Message *message);

/** The field, and the element of it, that the byte at \a offset of \a message belongs to. */
std::optional<RowPlace> findPlaceOfByte(const Message *message, quint32 offset);

/** Whether the format of \a message tells where fields lie. */
bool knowsByteRanges(const Message *message);

} // namespace corvane
