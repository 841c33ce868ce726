#pragma once

#include <QByteArrayView>

#include <google/protobuf/descriptor.h>

namespace corvane {

/**
 * Whether a message of type \a type, parsed from \a bytes, takes no more than about \a limit bytes
 * of memory. A sub-message of two bytes takes hundreds, so the size of a message says little.
 *
 * Bytes that are no message fit as far as they can be read.
 */
bool fitsIntoMemory(QByteArrayView bytes, const google::protobuf::Descriptor *type, quint64 limit);

} // namespace corvane
