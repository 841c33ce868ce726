#pragma once

#include "corvaneframework_export.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QtGlobal>

#include <memory>

class FormatInfo;
class MessageInfo;

namespace corvane {
struct MessageStatisticsData;
} // namespace corvane

/**
 * What is known of the reception of one message type.
 *
 * Counts have 32 bits and stay at their largest value instead of starting again at 0. Intervals
 * are in milliseconds, times in milliseconds since 1970-01-01 00:00 UTC.
 */
class CORVANEFRAMEWORK_EXPORT MessageStatistics
{
public:
    /** A run of missing epochs inside a regular stretch. */
    struct Gap
    {
        quint64 start = 0; ///< Time of the last message before the gap.
        quint32 missingEpochs = 0;
        qint64 interval = 0; ///< The interval of the regular stretch, in milliseconds.

        friend bool operator==(const Gap &left, const Gap &right)
        {
            return left.start == right.start && left.missingEpochs == right.missingEpochs
                   && left.interval == right.interval;
        }

        friend bool operator!=(const Gap &left, const Gap &right) { return !(left == right); }
    };

    explicit MessageStatistics(std::unique_ptr<corvane::MessageStatisticsData> data);
    ~MessageStatistics();
    MessageStatistics(const MessageStatistics &) = delete;
    MessageStatistics &operator=(const MessageStatistics &) = delete;

    const FormatInfo *getFormatInfo() const;
    /** Null for a message id that no definition describes. */
    const MessageInfo *getMessageInfo() const;
    QString getMessageName() const;

    unsigned int getCount() const;
    unsigned int getCountWithUnknownTime() const;
    unsigned int getCountWithKnownTimeButUnknownInterval() const;
    unsigned int getNumberOfMissingEpochs() const;
    unsigned int getNumberOfGaps() const;
    /** Whether there were more gaps than getGaps() lists. */
    bool hasUnstoredGaps() const;
    /** Whether the message arrives at a steady interval at present. */
    bool isCurrentlyRegular() const;

    unsigned long long getLastInterval() const;
    /** How often each interval occurred. */
    QHash<long long, unsigned int> getIntervalCountHash() const;
    /** The \a maximum most frequent intervals, most frequent first; -1 for all. */
    QList<long long> getIntervalsSortedOnFrequency(int maximum) const;
    QList<MessageStatistics::Gap> getGaps() const;

    /** \a time as ISO 8601 text in UTC, with milliseconds. */
    static QString getTimeString(unsigned long long time);
    /** \a interval as people say it, such as "50 ms (20 Hz)" or "5 s". */
    static QString getIntervalString(unsigned long long interval);

    /** The framework's own record. */
    corvane::MessageStatisticsData *getData() const { return d.get(); }

private:
    std::unique_ptr<corvane::MessageStatisticsData> d;
};
