#pragma once

#include "corvaneframework_export.h"
#include "descriptions.h"
#include "intervalstatistics.h"
#include "messageinfo.h"
#include "messagestatistics.h"
#include "messagestatisticscoordinator.h"
#include "rhythm.h"

#include <QHash>
#include <QList>

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <vector>

namespace corvane {

struct FrameHeader;

/** \a count in the bits of Result, or the largest value where it does not fit. */
template <typename Result>
Result saturated(quint64 count)
{
    return static_cast<Result>(
        std::min<quint64>(count, static_cast<quint64>(std::numeric_limits<Result>::max())));
}

/** What the statistics of all types of a stream share. */
struct StreamState
{
    /** The time of the latest frame, whatever its type; not what a message says itself. */
    qint64 latestUs = Rhythm::noTime;
    size_t unknownSenders = 0; ///< Senders of all unknown message ids together.
};

/** What is counted for one MessageStatistics. */
struct CORVANEFRAMEWORK_EXPORT MessageStatisticsData
{
    /** The rhythm of one sender. */
    struct Sender
    {
        quint32 id = 0;
        qint64 latestUs = Rhythm::noTime; ///< By the clock of the stream.
        Rhythm rhythm;
    };

    /** Messages of further senders are counted, but not their intervals. */
    static constexpr size_t maximumSenders = 64;
    /** The same for all unknown ids of a stream together: noise names ever more senders. */
    static constexpr size_t maximumUnknownSenders = 64;

    /** Counts one good message. */
    void count(const FrameHeader &frame);
    /** The next messages follow on nothing that is known. */
    void interrupt();
    /** Whether all senders that still send do so regularly. */
    bool isRegular() const;

    const FormatInfo *format = nullptr; ///< Not owned.
    const MessageInfo *message = nullptr; ///< Not owned; null for an unknown message id.
    StreamState *stream = nullptr; ///< Not owned.
    QString name;
    quint64 received = 0;
    quint64 withUnknownTime = 0;
    quint64 crcErrors = 0; ///< Damaged frames that claim to be of this type.
    IntervalStatistics intervals;
    std::vector<Sender> senders;
    size_t latestSender = 0; ///< Neighbouring messages often share a sender.

private:
    Sender *findSender(quint32 id);
    bool takeRoom();
    bool isActive(const Sender &sender) const;
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
    static constexpr qsizetype maximumUnknownNumbers = 256;

    /** The statistics of a message id without description; made at first sight. */
    MessageStatisticsData &getFor(const FormatInfo *format, quint32 unknownNumber);
    /** Adds \a type to the ones that were received. */
    void setReceived(const MessageStatisticsData &type);

    std::vector<std::unique_ptr<MessageStatistics>> all; ///< Also what only damage claims to be.
    QList<MessageStatistics *> received; ///< Views ask for it once for each of their rows.
    std::array<quint64, 16> eventCounts{};
    StreamState stream;

private:
    MessageStatisticsData &addFor(const MessageInfo *message);
    MessageStatisticsData &add(std::unique_ptr<MessageStatisticsData> data);

    std::vector<MessageStatisticsData *> bySlot;
    QHash<quint32, MessageStatisticsData *> unknownByNumber;
    MessageStatisticsData *otherUnknown = nullptr; ///< Not owned; null until there are too many.
};

} // namespace corvane
