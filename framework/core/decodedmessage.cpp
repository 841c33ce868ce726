#include "decodedmessage.h"

namespace corvane {

DecodedMessage::DecodedMessage(const MessageInfo *info,
                               qint64 timeUs,
                               quint32 senderId,
                               bool confidential)
    : Message(info)
    , timeUs(timeUs)
    , senderId(senderId)
    , confidential(confidential)
{
}

DecodedMessage::DecodedMessage(const MessageInfo *info,
                               const DecodedMessage *mainMessage,
                               bool confidential)
    : Message(info, mainMessage)
    , timeUs(mainMessage->timeUs)
    , senderId(mainMessage->senderId)
    , confidential(confidential || mainMessage->confidential)
{
}

QByteArrayView DecodedMessage::getBytes() const
{
    return {};
}

} // namespace corvane
