#include "reception.h"

#include "decodedmessage.h"
#include "descriptions.h"
#include "messageinfo.h"
#include "messageneedcounts.h"
#include "messageneedmanager.h"
#include "messagestatisticsdata.h"
#include "streamformat.h"

#include <utility>

namespace corvane {

static_assert(Rhythm::noTime == DecodedMessage::unknownTime);

namespace {

/** What is equal for the log: the same message (type or id) of the same sender. */
quint64 subjectOf(const FrameHeader &frame)
{
    return quint64(frame.senderId) << 32U | frame.messageNumber;
}

} // namespace

Reception::Reception(const FormatInfo *format,
                     SenderTable::Namer senderNamer,
                     bool hasChecksum,
                     MessageNeedManager *needs,
                     QObject *parent)
    : MessageSource(parent)
    , format(format)
    , needs(&(needs != nullptr ? needs : MessageNeedManager::getDefault())->getCounts())
    , senders(std::move(senderNamer))
{
    if (hasChecksum)
        totals.crcErrors = 0;
}

Reception::Reception(const StreamFormat &format, MessageNeedManager *needs, QObject *parent)
    : Reception(format.getInfo(), format.getSenderNamer(), format.hasChecksum(), needs, parent)
{
    senders = SenderTable(format.getSenderNamer(), format.getLastSequenceNumber());
}

Reception::~Reception() = default;

bool Reception::receiveFrame(const FrameHeader &frame)
{
    ++totals.frames;
    countIn(statistics.getData()->getFor(frame.messageInfo), frame);
    if (frame.sequence) {
        SenderStatistics &sender = senders.get(frame.senderId);
        const quint32 missing = sender.receive(*frame.sequence);
        if (missing != 0)
            reportLoss(sender, frame, missing);
    }
    return needs->isNeeded(frame.messageInfo->getData()->slot);
}

void Reception::deliver(const Message *message)
{
    Q_EMIT newMessage(message);
    message->removeReference();
}

void Reception::receiveUnknownFrame(const FrameHeader &frame)
{
    ++totals.unknownFrames;
    countIn(statistics.getData()->getFor(format, frame.messageNumber), frame);
    noteEvent({CorvaneEvent::UnknownMessage, subjectOf(frame)}, frame.timeUs, [&] {
        const QString subject = tr("Unknown message: %1").arg(describe(frame));
        return EventGatherer::Text{
            tr("%1. Load the definitions that describe this id.").arg(subject), subject};
    });
    // The frame used up a number all the same. One that cannot be checked makes no new sender.
    SenderStatistics *sender = frame.sequence ? senders.find(frame.senderId) : nullptr;
    const quint32 missing = sender != nullptr ? sender->pass(*frame.sequence) : 0;
    if (missing != 0)
        reportLoss(*sender, frame, missing);
}

void Reception::receiveDamagedFrame(const FrameHeader &frame, const QString &reason)
{
    if (totals.crcErrors)
        ++*totals.crcErrors;
    if (SenderStatistics *sender = senders.getDoubtful(frame.senderId))
        sender->countCrcError(frame.messageInfo);
    ++statistics.getData()->getFor(frame.messageInfo).crcErrors;
    noteEvent({CorvaneEvent::CrcError, subjectOf(frame)}, frame.timeUs, [&] {
        const QString subject = tr("CRC error: %1").arg(describe(frame));
        return EventGatherer::Text{tr("%1: %2").arg(subject, reason), subject};
    });
}

void Reception::skipBytes(quint64 position, quint64 count, qint64 timeUs)
{
    totals.skippedBytes += count;
    noteEvent({CorvaneEvent::LostBytes}, timeUs, [&] {
        return EventGatherer::Text{
            tr("%1 bytes from offset %2 belong to no frame.").arg(count).arg(position),
            tr("Bytes that belong to no frame")};
    });
}

void Reception::skipBytes(quint64 position, quint64 count, const QString &reason, qint64 timeUs)
{
    countSkippedBytes(count);
    noteEvent({CorvaneEvent::LostBytes, static_cast<quint64>(qHash(reason))}, timeUs, [&] {
        return EventGatherer::Text{
            tr("%1 bytes from offset %2 are lost: %3.").arg(count).arg(position).arg(reason),
            tr("Bytes lost: %1").arg(reason)};
    });
}

void Reception::addEvent(CorvaneEvent::Type type, const QString &text, qint64 timeUs)
{
    const auto subject = static_cast<quint64>(qHash(text));
    noteEvent({type, subject}, timeUs, [&] { return EventGatherer::Text{text, text}; });
}

void Reception::noteEvent(EventKind kind,
                          qint64 timeUs,
                          const std::function<EventGatherer::Text()> &makeText)
{
    ++statistics.getData()->eventCounts.at(static_cast<size_t>(kind.type));
    gatherer.add(kind, timeUs, makeText);
}

void Reception::countIn(MessageStatisticsData &type, const FrameHeader &frame)
{
    if (frame.timeUs != Rhythm::noTime)
        statistics.getData()->stream.latestUs = frame.timeUs;
    if (type.received == 0)
        statistics.getData()->setReceived(type);
    type.count(frame);
}

void Reception::noteDiscontinuity()
{
    senders.forgetSequences();
    for (const auto &type : statistics.getData()->all)
        type->getData()->interrupt();
}

void Reception::reportLoss(const SenderStatistics &sender,
                           const FrameHeader &frame,
                           quint32 missing)
{
    noteEvent({CorvaneEvent::SequenceGap, frame.senderId}, frame.timeUs, [&] {
        return EventGatherer::Text{tr("Sender %1: %2 messages lost before sequence number %3.")
                                       .arg(sender.id, QString::number(missing),
                                            QString::number(frame.sequence.value_or(0))),
                                   tr("Sender %1: messages lost").arg(sender.id)};
    });
}

QString Reception::describe(const FrameHeader &frame)
{
    const QString name = frame.messageInfo != nullptr ? frame.messageInfo->getData()->name
                                                      : tr("id %1").arg(frame.messageNumber);
    return tr("%1 from sender %2").arg(name, senders.nameOf(frame.senderId));
}

} // namespace corvane
