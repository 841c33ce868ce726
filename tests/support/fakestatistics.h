#pragma once

#include "messagestatistics.h"
#include "messagestatisticscoordinator.h"

#include <memory>
#include <vector>

// Another framework behind MessageStatistics and MessageStatisticsCoordinator, whose figures a test
// sets. A program that is built with fakestatistics.cpp has this one in place of ours: the names of
// a program go before those of the libraries that it loads.

namespace corvane {

struct MessageStatisticsData
{
    const FormatInfo *format = nullptr; ///< Not owned.
    const MessageInfo *message = nullptr; ///< Not owned.
    QString name;
    unsigned int count = 0;
    unsigned int withUnknownTime = 0;
    unsigned int withUnknownInterval = 0;
    unsigned int missingEpochs = 0;
    unsigned int gapCount = 0;
    bool unstoredGaps = false;
    bool regular = false;
    unsigned long long lastInterval = 0;
    QHash<long long, unsigned int> intervalCounts;
    QList<long long> intervals;
    QList<MessageStatistics::Gap> gaps;
    int gapsAsked = 0; ///< How often getGaps() was called.
};

class MessageStatisticsCoordinatorData
{
public:
    /** Adds the statistics of a type; it lives until remove(). */
    MessageStatisticsData &
    add(const FormatInfo *format, const MessageInfo *message, const QString &name);
    void remove(const QString &name);

    std::vector<std::unique_ptr<MessageStatistics>> all;
    unsigned int crcErrors = 0;
};

} // namespace corvane
