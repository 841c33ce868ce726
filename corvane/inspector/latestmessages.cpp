#include "latestmessages.h"

#include "decodedmessage.h"
#include "descriptions.h"
#include "messageinfo.h"

#include <algorithm>
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
    for (const Sender &sender : senders)
        for (const Kept &kept : sender.newest)
            if (kept.message != nullptr)
                kept.message->removeReference();
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

LatestMessages::Sender &LatestMessages::senderFor(quint32 id)
{
    const auto known = std::find_if(senders.begin() + 1, senders.end(),
                                    [id](const Sender &sender) { return sender.id == id; });
    if (known != senders.end())
        return *known;
    const bool hasRoom = senders.size() <= maximumSenders;
    return hasRoom || id == chosenSender ? senders.emplace_back(Sender{id, {}}) : senders.front();
}

void LatestMessages::keep(const Message *message)
{
    const quint32 number = message->getInfo()->getData()->slot;
    const quint32 senderId = static_cast<const DecodedMessage *>(message)->getSenderId();
    Sender &sender = senderFor(senderId);
    if (number >= sender.newest.size())
        sender.newest.resize(number + 1);
    message->addReference();
    const Kept previous = std::exchange(sender.newest[number], {message, ++messageCount});
    if (!chosenSender || senderId == *chosenSender)
        show(number, message);
    if (previous.message != nullptr)
        previous.message->removeReference();
}

void LatestMessages::show(quint32 number, const Message *message)
{
    if (number >= slots.size())
        slots.resize(number + 1);
    Slot &slot = slots[number];
    slot.message = message;
    if (!std::exchange(slot.isNew, true))
        newSlots.push_back(number);
    if (!paused && !frameTimer.isActive())
        frameTimer.start();
    if (!std::exchange(slot.isSeen, true))
        Q_EMIT typeSeen(message->getInfo());
}

/** The newest message of those who are chosen, or null. */
const Message *LatestMessages::choose(quint32 number) const
{
    Kept newest;
    for (const Sender &sender : senders)
        if ((!chosenSender || sender.id == chosenSender) && number < sender.newest.size()
            && sender.newest[number].number > newest.number)
            newest = sender.newest[number];
    return newest.message;
}

void LatestMessages::setSender(std::optional<quint32> sender)
{
    if (sender == chosenSender)
        return;
    chosenSender = sender;
    size_t count = 0;
    for (const Sender &known : senders)
        count = std::max(count, known.newest.size());
    slots.resize(count);
    for (quint32 number = 0; number < count; ++number) {
        const Message *message = choose(number);
        if (message != nullptr)
            show(number, message);
        else
            slots[number].message = nullptr;
    }
    Q_EMIT senderChanged();
    handOn(); // people asked for another view, so they get it though it is paused
}

void LatestMessages::handOn()
{
    // A follower may let the event loop run, so that newer messages come meanwhile.
    for (const quint32 number : std::exchange(newSlots, {})) {
        slots[number].isNew = false;
        const Message *message = slots[number].message;
        if (message == nullptr)
            continue; // the chosen sender has not sent it
        message->addReference();
        Q_EMIT newMessage(message);
        message->removeReference();
    }
}

} // namespace corvane
