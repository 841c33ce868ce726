#pragma once

#include "corvaneframework_export.h"
#include "decodedmessage.h"
#include "mavlinkframe.h"

namespace corvane {

/**
 * A MAVLink message: the bytes of its frame, in one block with the object itself. Nothing is
 * decoded until a field is read.
 */
class CORVANEFRAMEWORK_EXPORT MavlinkMessage final : public DecodedMessage
{
public:
    /** Copies the bytes of \a frame, which begin at \a bytes. The caller owns one reference. */
    static const MavlinkMessage *
    create(const MessageInfo *info, const MavlinkFrame &frame, QByteArrayView bytes, qint64 timeUs);

    QByteArrayView getBytes() const override { return {firstByte(), frameSize}; }

    std::optional<quint32> getSequence() const override;

    /** The payload as it was sent; version 2 cuts zeros off its end. */
    QByteArrayView getPayload() const { return {firstByte() + headerSize, payloadSize}; }

    int getHeaderSize() const { return headerSize; }

    bool isVersion1() const { return headerSize == MavlinkFrame::headerSizeVersion1; }

    /** Whether the frame carries a signature, the last 13 bytes. It is not verified. */
    bool isSigned() const { return hasSignature; }

    // NOLINTNEXTLINE(misc-new-delete-overloads): made by placement, with the frame behind it
    static void operator delete(void *block) { ::operator delete(block); }

private:
    MavlinkMessage(const MessageInfo *info,
                   const MavlinkFrame &frame,
                   QByteArrayView bytes,
                   qint64 timeUs);

    const char *firstByte() const { return reinterpret_cast<const char *>(this + 1); }

    quint16 frameSize;
    quint8 headerSize;
    quint8 payloadSize;
    bool hasSignature;
};

/** The id of a sender: its system and its component. */
constexpr quint32 mavlinkSenderId(const MavlinkFrame &frame)
{
    return quint32(frame.systemId) << 8 | frame.componentId;
}

/** "system/component". */
CORVANEFRAMEWORK_EXPORT QString mavlinkSenderName(quint32 senderId);

} // namespace corvane
