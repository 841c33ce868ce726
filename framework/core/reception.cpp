#include "reception.h"

#include "decodedmessage.h"
#include "descriptions.h"
#include "messageinfo.h"
#include "messageneedcounts.h"
#include "messageneedmanager.h"
#include "messagestatisticsdata.h"
#include "streamformat.h"

#include <QDateTime>

namespace corvane {

static_assert(MessageStatisticsData::noTime == DecodedMessage::unknownTime);

Reception::Reception(const FormatInfo *format,
                     SenderTable::Namer senderNamer,
                     bool hasChecksum,
                     MessageNeedManager *needs,
                     QObject *parent)
    : MessageSource(parent)
    , format(format)
    , needs(&(needs != nullptr ? needs : MessageNeedManager::getDefault())->getCounts())
    , senders(senderNamer)
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
    statistics.getData()->getFor(frame.messageInfo).count(frame.timeUs);
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
    statistics.getData()->getFor(format, frame.messageNumber).count(frame.timeUs);
    addEvent(
        CorvaneEvent::UnknownMessage,
        tr("Unknown message: %1. Load the definitions that describe this id.").arg(describe(frame)),
        frame.timeUs);
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
    ++senders.get(frame.senderId).crcErrors;
    increment(statistics.getData()->getFor(frame.messageInfo).crcErrors);
    addEvent(CorvaneEvent::CrcError, tr("CRC error: %1: %2").arg(describe(frame), reason),
             frame.timeUs);
}

void Reception::skipBytes(quint64 position, quint64 count, qint64 timeUs)
{
    totals.skippedBytes += count;
    addEvent(CorvaneEvent::LostBytes,
             tr("%1 bytes from offset %2 belong to no frame.").arg(count).arg(position), timeUs);
}

void Reception::skipBytes(quint64 position, quint64 count, const QString &reason, qint64 timeUs)
{
    countSkippedBytes(count);
    addEvent(CorvaneEvent::LostBytes,
             tr("%1 bytes from offset %2 are lost: %3.").arg(count).arg(position).arg(reason),
             timeUs);
}

void Reception::addEvent(CorvaneEvent::Type type, const QString &text, qint64 timeUs)
{
    increment(statistics.getData()->eventCounts.at(static_cast<size_t>(type)));
    const bool known = timeUs != DecodedMessage::unknownTime;
    const auto time = known ? QDateTime::fromMSecsSinceEpoch(timeUs / 1000, Qt::UTC) : QDateTime();
    eventLog.addEntry({time, CorvaneEvent(type, text)});
}

void Reception::reportLoss(const SenderStatistics &sender,
                           const FrameHeader &frame,
                           quint32 missing)
{
    addEvent(
        CorvaneEvent::SequenceGap,
        tr("Sender %1: %2 messages lost before sequence number %3.")
            .arg(sender.id, QString::number(missing), QString::number(frame.sequence.value_or(0))),
        frame.timeUs);
}

QString Reception::describe(const FrameHeader &frame)
{
    const QString name = frame.messageInfo != nullptr ? frame.messageInfo->getData()->name
                                                      : tr("id %1").arg(frame.messageNumber);
    return tr("%1 from sender %2").arg(name, senders.nameOf(frame.senderId));
}

} // namespace corvane
