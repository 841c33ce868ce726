#include "decodedmessage.h"

#include "descriptions.h"
#include "fieldinfo.h"
#include "fieldvalue.h"
#include "messageinfo.h"

#include <cmath>

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

std::optional<qint64> readOwnTimeUs(const Message *message)
{
    const MessageInfoData &type = *message->getInfo()->getData();
    if (type.timeField == nullptr || type.timeField->getNumberOfValues(message) == 0)
        return std::nullopt;
    FieldValue value = type.timeField->getValue(message, 0);
    value.setConfidential(false); // the time of a message is no content
    const double us
        = value.toDouble().value_or(std::nan("")) * static_cast<double>(type.timeFieldUnitUs);
    constexpr double exact = 9007199254740992.0; // 2^53: microseconds until the year 2255
    if (!(std::abs(us) < exact))
        return std::nullopt;
    return std::llround(us);
}

std::optional<quint32> DecodedMessage::getSequence() const
{
    return std::nullopt;
}

} // namespace corvane
