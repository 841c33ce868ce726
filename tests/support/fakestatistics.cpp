#include "fakestatistics.h"

namespace corvane {

MessageStatisticsData &MessageStatisticsCoordinatorData::add(const FormatInfo *format,
                                                             const MessageInfo *message,
                                                             const QString &name)
{
    auto data = std::make_unique<MessageStatisticsData>();
    data->format = format;
    data->message = message;
    data->name = name;
    all.push_back(std::make_unique<MessageStatistics>(std::move(data)));
    return *all.back()->getData();
}

void MessageStatisticsCoordinatorData::remove(const QString &name)
{
    std::erase_if(all, [&](const auto &statistics) { return statistics->getData()->name == name; });
}

} // namespace corvane

MessageStatistics::MessageStatistics(std::unique_ptr<corvane::MessageStatisticsData> data)
    : d(std::move(data))
{
}

MessageStatistics::~MessageStatistics() = default;

const FormatInfo *MessageStatistics::getFormatInfo() const
{
    return d->format;
}

const MessageInfo *MessageStatistics::getMessageInfo() const
{
    return d->message;
}

QString MessageStatistics::getMessageName() const
{
    return d->name;
}

unsigned int MessageStatistics::getCount() const
{
    return d->count;
}

unsigned int MessageStatistics::getCountWithUnknownTime() const
{
    return d->withUnknownTime;
}

unsigned int MessageStatistics::getCountWithKnownTimeButUnknownInterval() const
{
    return d->withUnknownInterval;
}

unsigned int MessageStatistics::getNumberOfMissingEpochs() const
{
    return d->missingEpochs;
}

unsigned int MessageStatistics::getNumberOfGaps() const
{
    return d->gapCount;
}

bool MessageStatistics::hasUnstoredGaps() const
{
    return d->unstoredGaps;
}

bool MessageStatistics::isCurrentlyRegular() const
{
    return d->regular;
}

unsigned long long MessageStatistics::getLastInterval() const
{
    return d->lastInterval;
}

QHash<long long, unsigned int> MessageStatistics::getIntervalCountHash() const
{
    return d->intervalCounts;
}

QList<long long> MessageStatistics::getIntervalsSortedOnFrequency(int maximum) const
{
    return maximum < 0 ? d->intervals : d->intervals.mid(0, maximum);
}

QList<MessageStatistics::Gap> MessageStatistics::getGaps() const
{
    ++d->gapsAsked;
    return d->gaps;
}

QString MessageStatistics::getTimeString(unsigned long long time)
{
    return QStringLiteral("time %1").arg(time);
}

QString MessageStatistics::getIntervalString(unsigned long long interval)
{
    return QStringLiteral("interval %1").arg(interval);
}

MessageStatisticsCoordinator::MessageStatisticsCoordinator()
    : d(std::make_unique<corvane::MessageStatisticsCoordinatorData>())
{
}

MessageStatisticsCoordinator::~MessageStatisticsCoordinator() = default;

QList<MessageStatistics *> MessageStatisticsCoordinator::getAllMessageStatistics() const
{
    QList<MessageStatistics *> result;
    for (const auto &statistics : d->all)
        result.append(statistics.get());
    return result;
}

unsigned int MessageStatisticsCoordinator::getEventCount(CorvaneEvent::Type type) const
{
    return static_cast<int>(type) == 2 ? d->crcErrors : 0;
}
