#pragma once

#include "corvaneframework_export.h"
#include "eventgatherer.h"
#include "eventlog.h"
#include "messagesource.h"
#include "messagestatisticscoordinator.h"
#include "senderstatistics.h"

#include <QString>

#include <optional>

class FormatInfo;
class MessageInfo;
class MessageNeedManager;

namespace corvane {

class MessageNeedCounts;
struct MessageStatisticsData;
class StreamFormat;

/** A frame as a frame reader found it. */
struct FrameHeader
{
    const MessageInfo *messageInfo = nullptr; ///< Null for an id that no definition describes.
    quint32 messageNumber = 0;
    quint32 senderId = 0;
    std::optional<quint32> sequence; ///< Nothing for a frame that belongs to no sequence.
    qint64 timeUs = 0; ///< Microseconds since 1970, or DecodedMessage::unknownTime.
    /** What a field of the message says: microseconds since anything. */
    std::optional<qint64> ownTimeUs = std::nullopt;

    /** The message's own time where it says one. */
    qint64 getMessageTimeUs() const { return ownTimeUs.value_or(timeUs); }
};

/**
 * What has been received from one stream: counts, statistics, senders and events of every frame,
 * needed or not; and the source of the messages that are needed.
 */
class CORVANEFRAMEWORK_EXPORT Reception : public MessageSource
{
    Q_OBJECT

public:
    struct Totals
    {
        quint64 bytes = 0;
        quint64 skippedBytes = 0; ///< Bytes that belong to no frame.
        quint64 frames = 0; ///< Good ones.
        quint64 unknownFrames = 0;
        std::optional<quint64> crcErrors; ///< Nothing for a format without checksum.
    };

    /** \a format: what the stream carries. \a needs: null for those of the whole process. */
    Reception(const FormatInfo *format,
              SenderTable::Namer senderNamer,
              bool hasChecksum,
              MessageNeedManager *needs = nullptr,
              QObject *parent = nullptr);
    /** What comes from a stream of \a format, which must outlive the reception. */
    explicit Reception(const StreamFormat &format,
                       MessageNeedManager *needs = nullptr,
                       QObject *parent = nullptr);
    ~Reception() override;

    const FormatInfo *getFormat() const { return format; }

    const Totals &getTotals() const { return totals; }

    const SenderTable &getSenders() const { return senders; }

    MessageStatisticsCoordinator *getStatistics() { return &statistics; }

    EventLog *getEventLog() { return &eventLog; }

    // What a frame reader reports, in stream order.

    void countBytes(quint64 count) { totals.bytes += count; }

    /** Counts a good frame; returns whether its message is needed, that is, to be decoded. */
    bool receiveFrame(const FrameHeader &frame);
    /** Hands a decoded message to the followers and gives up the creator's reference on it. */
    void deliver(const Message *message);
    void receiveUnknownFrame(const FrameHeader &frame);
    /** A frame of a described type. \a reason: what is wrong, beside claimed type and sender. */
    void receiveDamagedFrame(const FrameHeader &frame, const QString &reason);
    /** \a position: offset in the stream of the first of \a count bytes that belong to no frame. */
    void skipBytes(quint64 position, quint64 count, qint64 timeUs);
    /** The same, for bytes that should be a message and are none. \a reason: why they are none. */
    void skipBytes(quint64 position, quint64 count, const QString &reason, qint64 timeUs);

    /** Counts bytes that belong to no frame, which an event has told of. */
    void countSkippedBytes(quint64 count) { totals.skippedBytes += count; }

    /**
     * What comes next does not follow what came last: the source was lost meanwhile, or another
     * place of a recording is read. So the step to it is neither a loss nor an interval.
     */
    void noteDiscontinuity();
    /** Any other event. \a timeUs: microseconds since 1970, or DecodedMessage::unknownTime. */
    void addEvent(CorvaneEvent::Type type, const QString &text, qint64 timeUs);

    /** Lets events that were only counted so far enter the log; for the end of a stream. */
    void flushEvents() { gatherer.flush(); }

private:
    void
    noteEvent(EventKind kind, qint64 timeUs, const std::function<EventGatherer::Text()> &makeText);
    void countIn(MessageStatisticsData &type, const FrameHeader &frame);
    void reportLoss(const SenderStatistics &sender, const FrameHeader &frame, quint32 missing);
    QString describe(const FrameHeader &frame);

    const FormatInfo *format; ///< Not owned.
    const MessageNeedCounts *needs; ///< Not owned.
    Totals totals;
    SenderTable senders;
    MessageStatisticsCoordinator statistics;
    EventLog eventLog;
    EventGatherer gatherer{eventLog};
};

} // namespace corvane
