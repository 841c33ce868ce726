#include "mavlinkmessage.h"

#include <QString>

#include <cstring>
#include <new>

namespace corvane {

const MavlinkMessage *MavlinkMessage::create(const MessageInfo *info,
                                             const MavlinkFrame &frame,
                                             QByteArrayView bytes,
                                             qint64 timeUs)
{
    void *block = ::operator new(sizeof(MavlinkMessage) + static_cast<size_t>(frame.getSize()));
    return new (block) MavlinkMessage(info, frame, bytes, timeUs);
}

MavlinkMessage::MavlinkMessage(const MessageInfo *info,
                               const MavlinkFrame &frame,
                               QByteArrayView bytes,
                               qint64 timeUs)
    : DecodedMessage(info, timeUs, mavlinkSenderId(frame))
    , frameSize(static_cast<quint16>(frame.getSize()))
    , headerSize(frame.headerSize)
    , payloadSize(frame.payloadSize)
    , hasSignature(frame.isSigned)
{
    std::memcpy(const_cast<char *>(firstByte()), bytes.data(), frameSize);
}

std::optional<quint32> MavlinkMessage::getSequence() const
{
    return static_cast<quint8>(firstByte()[isVersion1() ? 2 : 4]);
}

QString mavlinkSenderName(quint32 senderId)
{
    return QStringLiteral("%1/%2").arg(senderId >> 8).arg(senderId & 0xFF);
}

} // namespace corvane
