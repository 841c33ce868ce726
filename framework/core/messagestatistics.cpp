#include "messagestatistics.h"

#include "formatinfo.h"
#include "messageinfo.h"
#include "messagestatisticsdata.h"
#include "numbertext.h"

#include <QDateTime>

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
    return d->received;
}

unsigned int MessageStatistics::getCountWithUnknownTime() const
{
    return d->withUnknownTime;
}

unsigned int MessageStatistics::getCountWithKnownTimeButUnknownInterval() const
{
    return d->withUnknownInterval;
}

// Regularity is not judged yet, so there is no regular stretch that could have gaps.

unsigned int MessageStatistics::getNumberOfMissingEpochs() const
{
    return 0;
}

unsigned int MessageStatistics::getNumberOfGaps() const
{
    return 0;
}

bool MessageStatistics::hasUnstoredGaps() const
{
    return false;
}

bool MessageStatistics::isCurrentlyRegular() const
{
    return false;
}

unsigned long long MessageStatistics::getLastInterval() const
{
    return d->lastIntervalMs;
}

QHash<long long, unsigned int> MessageStatistics::getIntervalCountHash() const
{
    return {};
}

QList<long long> MessageStatistics::getIntervalsSortedOnFrequency(int) const
{
    return {};
}

QList<MessageStatistics::Gap> MessageStatistics::getGaps() const
{
    return {};
}

QString MessageStatistics::getTimeString(unsigned long long time)
{
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(time), Qt::UTC)
        .toString(Qt::ISODateWithMs);
}

QString MessageStatistics::getIntervalString(unsigned long long interval)
{
    const double seconds = static_cast<double>(interval) / 1000.0;
    if (interval >= 1000)
        return corvane::textOf(seconds) + QStringLiteral(" s");
    if (interval == 0)
        return QStringLiteral("0 ms");
    const QString rate = QString::number(1.0 / seconds, 'g', interval == 1 ? 4 : 3);
    return QStringLiteral("%1 ms (%2 Hz)").arg(interval).arg(rate);
}
