// Messages, where they come from, and who needs them. Here everything is always decoded, so a need
// changes nothing.

#include "message.h"
#include "messageneed.h"
#include "messagesource.h"

ReferenceCountedObject::ReferenceCountedObject(const ReferenceCountedObject *keeper)
    : keeper(keeper != nullptr ? keeper : this)
    , references(1)
{
}

ReferenceCountedObject::~ReferenceCountedObject() = default;

void ReferenceCountedObject::addReference() const
{
    ++keeper->references;
}

void ReferenceCountedObject::removeReference() const
{
    if (--keeper->references == 0)
        delete keeper;
}

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

MessageSource::MessageSource(QObject *parent)
    : QObject(parent)
{
}

MessageSource::~MessageSource() = default;

MessageNeed::MessageNeed(MessageNeedManager *manager)
    : manager(manager)
    , firstSlot(0)
{
}

MessageNeed::~MessageNeed() = default;

void MessageNeed::setMessageNeeded(const MessageInfo *) {}

void MessageNeed::setMessagesNeeded(QList<const MessageInfo *>) {}

void MessageNeed::clearMessagesNeeded(bool) {}

#include "moc_messagesource.cpp"
