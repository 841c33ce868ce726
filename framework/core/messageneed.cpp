#include "messageneed.h"

#include "descriptions.h"
#include "messageinfo.h"
#include "messageneedcounts.h"
#include "messageneedmanager.h"

MessageNeedManager::MessageNeedManager()
    : d(std::make_unique<corvane::MessageNeedCounts>())
{
}

MessageNeedManager::~MessageNeedManager() = default;

MessageNeedManager *MessageNeedManager::getDefault()
{
    static auto *manager = new MessageNeedManager;
    return manager;
}

bool MessageNeedManager::isNeeded(const MessageInfo *messageInfo) const
{
    return messageInfo != nullptr && d->isNeeded(messageInfo->getData()->slot);
}

MessageNeed::MessageNeed(MessageNeedManager *manager)
    : manager(manager != nullptr ? manager : MessageNeedManager::getDefault())
{
}

MessageNeed::~MessageNeed()
{
    clearMessagesNeeded(true);
}

void MessageNeed::declare(const MessageInfo *messageInfo)
{
    if (messageInfo == nullptr)
        return;
    const quint32 slot = messageInfo->getData()->slot;
    manager->getCounts().add(slot);
    if (firstSlot == 0) {
        firstSlot = slot;
        return;
    }
    if (furtherSlots == nullptr)
        furtherSlots = new QList<quint32>;
    furtherSlots->append(slot);
}

void MessageNeed::setMessageNeeded(const MessageInfo *messageInfo)
{
    clearMessagesNeeded(false);
    declare(messageInfo);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is fixed
void MessageNeed::setMessagesNeeded(QList<const MessageInfo *> messageInfos)
{
    clearMessagesNeeded(false);
    for (const MessageInfo *messageInfo : messageInfos)
        declare(messageInfo);
}

void MessageNeed::clearMessagesNeeded(bool releaseMemory)
{
    auto &counts = manager->getCounts();
    if (firstSlot != 0)
        counts.remove(firstSlot);
    firstSlot = 0;
    if (furtherSlots == nullptr)
        return;
    for (const quint32 slot : *furtherSlots)
        counts.remove(slot);
    furtherSlots->clear();
    if (!releaseMemory)
        return;
    delete furtherSlots;
    furtherSlots = nullptr;
}
