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
    return corvane::saturated<unsigned int>(d->received);
}

unsigned int MessageStatistics::getCountWithUnknownTime() const
{
    return corvane::saturated<unsigned int>(d->withUnknownTime);
}

unsigned int MessageStatistics::getCountWithKnownTimeButUnknownInterval() const
{
    return corvane::saturated<unsigned int>(d->intervals.unknownIntervals);
}

unsigned int MessageStatistics::getNumberOfMissingEpochs() const
{
    return corvane::saturated<unsigned int>(d->intervals.missingEpochs);
}

unsigned int MessageStatistics::getNumberOfGaps() const
{
    // Followers read the number as a signed one.
    return static_cast<unsigned int>(corvane::saturated<int>(d->intervals.gapCount));
}

bool MessageStatistics::hasUnstoredGaps() const
{
    return d->intervals.gapCount > static_cast<quint64>(d->intervals.gaps.size());
}

bool MessageStatistics::isCurrentlyRegular() const
{
    return d->isRegular();
}

unsigned long long MessageStatistics::getLastInterval() const
{
    return d->latestSender < d->senders.size() ? d->senders[d->latestSender].rhythm.getIntervalMs()
                                               : 0;
}

QHash<long long, unsigned int> MessageStatistics::getIntervalCountHash() const
{
    QHash<long long, unsigned int> counts;
    for (const auto &known : d->intervals.getClasses())
        counts.insert(known.ms, corvane::saturated<unsigned int>(known.count));
    return counts;
}

QList<long long> MessageStatistics::getIntervalsSortedOnFrequency(int maximum) const
{
    QList<long long> intervals;
    for (const auto &known : d->intervals.getClasses())
        intervals.append(known.ms);
    return maximum >= 0 ? intervals.mid(0, maximum) : intervals;
}

QList<MessageStatistics::Gap> MessageStatistics::getGaps() const
{
    return d->intervals.gaps;
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
