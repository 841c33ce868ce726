#include "latestmessages.h"

#include "descriptions.h"
#include "message.h"
#include "messageinfo.h"

#include <utility>

namespace corvane {

LatestMessages::LatestMessages(MessageSource &source, QObject *parent)
    : MessageSource(parent)
{
    frameTimer.setSingleShot(true);
    frameTimer.setInterval(frameMs);
    connect(&frameTimer, &QTimer::timeout, this, &LatestMessages::handOn);
    connect(&source, &MessageSource::newMessage, this, &LatestMessages::keep);
}

LatestMessages::~LatestMessages()
{
    for (const Slot &slot : slots)
        if (slot.message != nullptr)
            slot.message->removeReference();
}

const Message *LatestMessages::get(const MessageInfo *type) const
{
    const quint32 slot = type->getData()->slot;
    return slot < slots.size() ? slots[slot].message : nullptr;
}

void LatestMessages::setPaused(bool pause)
{
    paused = pause;
    if (paused)
        frameTimer.stop();
    else
        handOn();
}

void LatestMessages::keep(const Message *message)
{
    const quint32 number = message->getInfo()->getData()->slot;
    if (number >= slots.size())
        slots.resize(number + 1);
    Slot &slot = slots[number];
    message->addReference();
    const Message *previous = std::exchange(slot.message, message);
    if (!std::exchange(slot.isNew, true))
        newSlots.push_back(number);
    if (!paused && !frameTimer.isActive())
        frameTimer.start();
    if (previous != nullptr)
        previous->removeReference();
    else
        Q_EMIT typeSeen(message->getInfo());
}

void LatestMessages::handOn()
{
    // A follower may let the event loop run, so that newer messages come meanwhile.
    for (const quint32 number : std::exchange(newSlots, {})) {
        slots[number].isNew = false;
        const Message *message = slots[number].message;
        message->addReference();
        Q_EMIT newMessage(message);
        message->removeReference();
    }
}

} // namespace corvane
