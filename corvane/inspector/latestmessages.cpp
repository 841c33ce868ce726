#include "latestmessages.h"

#include "descriptions.h"
#include "message.h"
#include "messageinfo.h"
#include "messagesource.h"

#include <utility>

namespace corvane {

LatestMessages::LatestMessages(MessageSource &source, QObject *parent)
    : QObject(parent)
{
    connect(&source, &MessageSource::newMessage, this, &LatestMessages::keep);
}

LatestMessages::~LatestMessages()
{
    for (const Message *message : bySlot)
        if (message != nullptr)
            message->removeReference();
}

const Message *LatestMessages::get(const MessageInfo *type) const
{
    const quint32 slot = type->getData()->slot;
    return slot < bySlot.size() ? bySlot[slot] : nullptr;
}

void LatestMessages::keep(const Message *message)
{
    const quint32 slot = message->getInfo()->getData()->slot;
    if (slot >= bySlot.size())
        bySlot.resize(slot + 1, nullptr);
    message->addReference();
    const Message *previous = std::exchange(bySlot[slot], message);
    if (previous != nullptr)
        previous->removeReference();
    else
        Q_EMIT typeSeen(message->getInfo());
}

} // namespace corvane
