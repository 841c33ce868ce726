#include "messagestatisticscoordinator.h"

#include "descriptions.h"
#include "formatinfo.h"
#include "messageinfo.h"
#include "messagestatisticsdata.h"

#include <algorithm>

namespace corvane {

MessageStatisticsData &
MessageStatisticsCoordinatorData::add(std::unique_ptr<MessageStatisticsData> data)
{
    data->stream = &stream;
    all.push_back(std::make_unique<MessageStatistics>(std::move(data)));
    return *all.back()->getData();
}

void MessageStatisticsCoordinatorData::setReceived(const MessageStatisticsData &type)
{
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](const auto &one) { return one->getData() == &type; });
    received.append(found->get());
}

MessageStatisticsData &MessageStatisticsCoordinatorData::addFor(const MessageInfo *message)
{
    const MessageInfoData &info = *message->getData();
    auto data = std::make_unique<MessageStatisticsData>();
    data->format = info.format;
    data->message = message;
    data->name = message->getName();
    if (info.slot >= bySlot.size())
        bySlot.resize(info.slot + 1, nullptr);
    bySlot[info.slot] = &add(std::move(data));
    return *bySlot[info.slot];
}

MessageStatisticsData &MessageStatisticsCoordinatorData::getFor(const FormatInfo *format,
                                                                quint32 unknownNumber)
{
    const auto found = unknownByNumber.constFind(unknownNumber);
    if (found != unknownByNumber.cend())
        return **found;
    const bool full = unknownByNumber.size() >= maximumUnknownNumbers;
    if (full && otherUnknown != nullptr)
        return *otherUnknown;

    auto data = std::make_unique<MessageStatisticsData>();
    data->format = format;
    data->name = full ? QStringLiteral("%1, other unknown ids").arg(format->getName())
                      : QStringLiteral("%1 %2").arg(format->getName()).arg(unknownNumber);
    MessageStatisticsData &added = add(std::move(data));
    if (full)
        otherUnknown = &added;
    else
        unknownByNumber.insert(unknownNumber, &added);
    return added;
}

} // namespace corvane

MessageStatisticsCoordinator::MessageStatisticsCoordinator()
    : d(std::make_unique<corvane::MessageStatisticsCoordinatorData>())
{
}

MessageStatisticsCoordinator::~MessageStatisticsCoordinator() = default;

QList<MessageStatistics *> MessageStatisticsCoordinator::getAllMessageStatistics() const
{
    return d->received;
}

unsigned int MessageStatisticsCoordinator::getEventCount(CorvaneEvent::Type type) const
{
    const auto index = static_cast<size_t>(type);
    return index < d->eventCounts.size() ? corvane::saturated<unsigned int>(d->eventCounts[index])
                                         : 0;
}
