#pragma once

#include "corvaneframework_export.h"
#include "message.h"

#include <QByteArrayView>

#include <limits>
#include <optional>

namespace corvane {

/** Base of the formats' messages: what is known of every message beside its fields. */
class CORVANEFRAMEWORK_EXPORT DecodedMessage : public Message
{
public:
    static constexpr qint64 unknownTime = std::numeric_limits<qint64>::min();

    /** Microseconds since 1970 (UTC), the message's own or that of its arrival, or unknownTime. */
    qint64 getTimeUs() const { return timeUs; }

    /** Who sent the message, as the format numbers senders. */
    quint32 getSenderId() const { return senderId; }

    /** Whether the message as a whole is the content of a confidential field. */
    bool isConfidential() const { return confidential; }

    /** The bytes that the message came as; empty for messages that did not come as bytes. */
    virtual QByteArrayView getBytes() const;
    /** The number that the sender gave the message; nothing in formats that do not count. */
    virtual std::optional<quint32> getSequence() const;

protected:
    DecodedMessage(const MessageInfo *info,
                   qint64 timeUs,
                   quint32 senderId,
                   bool confidential = false);
    /** A sub-message, which shares time, sender and confidentiality with \a mainMessage. */
    DecodedMessage(const MessageInfo *info, const DecodedMessage *mainMessage, bool confidential);

private:
    qint64 timeUs;
    quint32 senderId;
    bool confidential;
};

/**
 * The time that a message carries in the field that was named for it, in microseconds; nothing if
 * there is no such field or no such value.
 */
CORVANEFRAMEWORK_EXPORT std::optional<qint64> readOwnTimeUs(const Message *message);

} // namespace corvane
