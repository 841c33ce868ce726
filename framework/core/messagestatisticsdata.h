#pragma once

#include "corvaneframework_export.h"
#include "descriptions.h"
#include "messageinfo.h"
#include "messagestatistics.h"
#include "messagestatisticscoordinator.h"

#include <QHash>

#include <array>
#include <limits>
#include <memory>
#include <vector>

namespace corvane {

/** Adds 1 and stays at the largest value. */
template <typename Count>
void increment(Count &count)
{
    if (count != std::numeric_limits<Count>::max())
        ++count;
}

/** The counts behind one MessageStatistics. */
struct MessageStatisticsData
{
    static constexpr qint64 noTime = std::numeric_limits<qint64>::min();

    /** Counts one good message; \a timeUs in microseconds since 1970, or noTime. */
    void count(qint64 timeUs)
    {
        increment(received);
        if (timeUs == noTime) {
            increment(withUnknownTime);
            return;
        }
        if (lastTimeUs == noTime || timeUs < lastTimeUs)
            increment(withUnknownInterval);
        else
            lastIntervalMs = static_cast<quint64>(timeUs - lastTimeUs) / 1000;
        lastTimeUs = timeUs;
    }

    /** The interval to the next message is unknown. */
    void forgetTime() { lastTimeUs = noTime; }

    const FormatInfo *format = nullptr; ///< Not owned.
    const MessageInfo *message = nullptr; ///< Not owned; null for an unknown message id.
    QString name;
    quint32 received = 0;
    quint32 withUnknownTime = 0;
    quint32 withUnknownInterval = 0;
    quint32 crcErrors = 0; ///< Damaged frames that claim to be of this type.
    qint64 lastTimeUs = noTime;
    quint64 lastIntervalMs = 0;
};

/** The statistics behind one MessageStatisticsCoordinator. */
class MessageStatisticsCoordinatorData
{
public:
    /** The statistics of a described type; made at first sight. */
    MessageStatisticsData &getFor(const MessageInfo *message)
    {
        const quint32 slot = message->getData()->slot;
        return slot < bySlot.size() && bySlot[slot] != nullptr ? *bySlot[slot] : addFor(message);
    }

    /** So many ids without description have statistics of their own; further ones share one. */
    static constexpr qsizetype maximumUnknownNumbers = 4096;

    /** The statistics of a message id without description; made at first sight. */
    MessageStatisticsData &getFor(const FormatInfo *format, quint32 unknownNumber);

    void forgetTimes()
    {
        for (const auto &statistics : all)
            statistics->getData()->forgetTime();
    }

    std::vector<std::unique_ptr<MessageStatistics>> all;
    std::array<quint32, 16> eventCounts{};

private:
    MessageStatisticsData &addFor(const MessageInfo *message);
    MessageStatisticsData &add(std::unique_ptr<MessageStatisticsData> data);

    std::vector<MessageStatisticsData *> bySlot;
    QHash<quint32, MessageStatisticsData *> unknownByNumber;
    MessageStatisticsData *otherUnknown = nullptr; ///< Not owned; null until there are too many.
};

} // namespace corvane
