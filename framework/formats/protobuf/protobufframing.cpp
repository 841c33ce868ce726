#include "protobufframing.h"

#include <QtEndian>

namespace corvane {

namespace {

ProtobufLength::Result readVarint(QByteArrayView bytes, ProtobufLength &length)
{
    quint64 value = 0;
    for (int i = 0; i < ProtobufLength::maximumPrefixSize; ++i) {
        if (i >= bytes.size())
            return ProtobufLength::Result::Incomplete;
        const auto byte = static_cast<quint8>(bytes[i]);
        const bool overflows = i == ProtobufLength::maximumPrefixSize - 1 && byte > 1;
        if (overflows)
            return ProtobufLength::Result::None;
        value |= static_cast<quint64>(byte & 0x7F) << (7 * i);
        if (byte < 0x80) {
            length = {i + 1, value};
            return ProtobufLength::Result::Length;
        }
    }
    return ProtobufLength::Result::None;
}

} // namespace

QStringList protobufFramingNames()
{
    return {QStringLiteral("varint"), QStringLiteral("le32")};
}

ProtobufLength::Result
ProtobufLength::read(QByteArrayView bytes, ProtobufFraming framing, ProtobufLength &length)
{
    if (framing == ProtobufFraming::Varint)
        return readVarint(bytes, length);
    if (bytes.size() < 4)
        return Result::Incomplete;
    length = {4, qFromLittleEndian<quint32>(bytes.data())};
    return Result::Length;
}

} // namespace corvane
