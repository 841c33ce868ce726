#include "message.h"

Message::Message(const MessageInfo *info, const Message *mainMessage)
    : ReferenceCountedObject(mainMessage)
    , info(info)
{
}

Message::~Message() = default;

const MessageInfo *Message::getInfo() const
{
    return info;
}
