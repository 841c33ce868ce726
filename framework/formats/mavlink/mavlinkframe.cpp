#include "mavlinkframe.h"

#include "mavlinkchecksum.h"

namespace corvane {

MavlinkFrame::Result MavlinkFrame::parse(QByteArrayView bytes, MavlinkFrame &frame)
{
    if (bytes.isEmpty())
        return Result::Incomplete;
    const auto *byte = reinterpret_cast<const quint8 *>(bytes.data());
    const bool version2 = byte[0] == startVersion2;
    if (!version2 && byte[0] != startVersion1)
        return Result::None;
    const qsizetype headerSize = version2 ? headerSizeVersion2 : headerSizeVersion1;
    if (bytes.size() < headerSize)
        return Result::Incomplete;
    // A receiver must not touch frames with flags that it does not know.
    if (version2 && (byte[2] & ~signedFlag) != 0)
        return Result::None;

    const bool isSigned = version2 && byte[2] == signedFlag;
    const quint8 payloadSize = byte[1];
    const qsizetype size = headerSize + payloadSize + checksumSize + (isSigned ? signatureSize : 0);
    if (bytes.size() < size)
        return Result::Incomplete;

    frame.headerSize = static_cast<quint8>(headerSize);
    frame.payloadSize = payloadSize;
    frame.isSigned = isSigned;
    const quint8 *sender = version2 ? byte + 4 : byte + 2;
    frame.sequence = sender[0];
    frame.systemId = sender[1];
    frame.componentId = sender[2];
    frame.messageId = version2 ? byte[7] | quint32(byte[8]) << 8 | quint32(byte[9]) << 16 : byte[5];
    const quint8 *tail = byte + headerSize + payloadSize;
    frame.checksum = static_cast<quint16>(tail[0] | tail[1] << 8);
    return Result::Frame;
}

quint16 MavlinkFrame::computeChecksum(QByteArrayView bytes, quint8 extra) const
{
    MavlinkChecksum computed;
    computed.add(bytes.sliced(1, headerSize - 1 + payloadSize));
    computed.add(extra);
    return computed.getValue();
}

quint16
MavlinkFrame::computeExtendedChecksum(QByteArrayView bytes, quint8 extra, int extendedSize) const
{
    static constexpr char zeros[255] = {};
    MavlinkChecksum computed;
    computed.add(static_cast<quint8>(extendedSize));
    computed.add(bytes.sliced(2, headerSize - 2 + payloadSize));
    computed.add(QByteArrayView(zeros, extendedSize - payloadSize));
    computed.add(extra);
    return computed.getValue();
}

} // namespace corvane
