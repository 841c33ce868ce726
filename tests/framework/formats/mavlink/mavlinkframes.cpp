#include "mavlinkframes.h"

#include "descriptions.h"
#include "fieldinfo.h"
#include "formatinfo.h"
#include "mavlinkmessage.h"
#include "messageinfo.h"
#include "messagestatistics.h"
#include "messagestatisticsdata.h"

#include <QCryptographicHash>
#include <QFile>
#include <QtEndian>
#include <QTest>

#include <algorithm>

namespace corvane::test {

namespace {

constexpr int signatureSize = 13;

/** The checksum bit by bit, as its definition has it. */
quint16 checksumOf(const QByteArray &bytes)
{
    unsigned int crc = 0xFFFF;
    for (const char byte : bytes) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) != 0 ? (crc >> 1) ^ 0x8408 : crc >> 1;
    }
    return static_cast<quint16>(crc);
}

QByteArray withChecksum(const QByteArray &frame, quint8 extra)
{
    const quint16 checksum = checksumOf(frame.mid(1) + static_cast<char>(extra));
    return frame + static_cast<char>(checksum & 0xFF) + static_cast<char>(checksum >> 8);
}

void appendByte(QByteArray &bytes, quint32 value)
{
    bytes.append(static_cast<char>(value & 0xFF));
}

} // namespace

QString DialectFolder::write(const QString &name, const QByteArray &content) const
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

QString DialectFolder::writeDialect(const QString &name, const QByteArray &body) const
{
    return write(name, "<?xml version=\"1.0\"?>\n<mavlink>\n" + body + "\n</mavlink>\n");
}

QByteArray frameVersion1(const FrameParts &parts)
{
    QByteArray frame;
    appendByte(frame, 0xFE);
    appendByte(frame, static_cast<quint32>(parts.payload.size()));
    for (const quint32 value :
         {quint32(parts.sequence), quint32(parts.system), quint32(parts.component), parts.id})
        appendByte(frame, value);
    return withChecksum(frame + parts.payload, parts.extra);
}

QByteArray frameVersion2(const FrameParts &parts, quint8 flags)
{
    QByteArray payload = parts.payload;
    while (payload.size() > 1 && payload.back() == '\0')
        payload.chop(1);
    QByteArray frame;
    appendByte(frame, 0xFD);
    appendByte(frame, static_cast<quint32>(payload.size()));
    for (const quint32 value :
         {quint32(flags), quint32(0), quint32(parts.sequence), quint32(parts.system),
          quint32(parts.component), parts.id, parts.id >> 8, parts.id >> 16})
        appendByte(frame, value);
    return withChecksum(frame + payload, parts.extra);
}

QByteArray signedFrame(const FrameParts &parts)
{
    return frameVersion2(parts, 0x01) + QByteArray(signatureSize, 'S');
}

QByteArray stamped(const QByteArray &frame, quint64 timeUs)
{
    QByteArray time(8, '\0');
    qToBigEndian(timeUs, time.data());
    return time + frame;
}

QByteArray fromHex(const char *text)
{
    return QByteArray::fromHex(QByteArray(text).replace(' ', ""));
}

const FieldInfo *findField(const MavlinkFormat &format, const QString &message, const QString &path)
{
    const MessageInfo *info = format.getInfo()->getData()->findMessage(message);
    const FieldInfo *field = info != nullptr ? info->getData()->findField(path) : nullptr;
    if (field == nullptr)
        qFatal("no field %s in %s", qPrintable(path), qPrintable(message));
    return field;
}

FrameMessage::FrameMessage(const MavlinkFormat &format, const QByteArray &frame)
    : format(format)
{
    MavlinkFrame header;
    const MavlinkMessageType *type = nullptr;
    if (MavlinkFrame::parse(frame, header) == MavlinkFrame::Result::Frame)
        type = format.findType(header.messageId);
    if (type == nullptr || header.computeChecksum(frame, type->checksumExtra) != header.checksum)
        qFatal("not a frame: %s", frame.toHex().constData());
    message = MavlinkMessage::create(type->info, header, frame, DecodedMessage::unknownTime);
}

FrameMessage::~FrameMessage()
{
    message->removeReference();
}

QString FrameMessage::textOf(const QString &path) const
{
    const FieldInfo *field = findField(format, message->getInfo()->getData()->name, path);
    const unsigned int count = field->getNumberOfValues(message);
    QStringList texts;
    for (unsigned int index = 0; index < count; ++index)
        texts.append(field->getValueText(message, index, true));
    return count == 0 ? QStringLiteral("absent") : texts.join(QLatin1Char(' '));
}

DecoderRun::DecoderRun(const MavlinkFormat &format,
                       MavlinkFraming framing,
                       const std::optional<QStringList> &needed)
    : need(&manager)
    , reception(format.getInfo(), mavlinkSenderName, true, &manager)
    , decoder(format, reception, framing)
{
    QList<const MessageInfo *> infos;
    for (const auto &info : format.getInfo()->getData()->messages)
        if (!needed || needed->contains(info->getData()->name))
            infos.append(info.get());
    need.setMessagesNeeded(infos);
    QObject::connect(&reception, &MessageSource::newMessage, &reception,
                     [this](const Message *message) {
                         const auto *frame = static_cast<const MavlinkMessage *>(message);
                         frames.append(frame->getBytes().toByteArray());
                         frameBytes += frame->getBytes().size();
                     });
}

void DecoderRun::append(const QByteArray &bytes, qsizetype pieceSize)
{
    const qsizetype size = pieceSize > 0 ? pieceSize : qMax<qsizetype>(1, bytes.size());
    for (qsizetype begin = 0; begin < bytes.size(); begin += size) {
        const auto piece
            = QByteArrayView(bytes).sliced(begin, std::min(size, bytes.size() - begin));
        decoder.append(piece, std::nullopt);
        while (decoder.step() == StreamDecoder::Step::Advanced) {
        }
    }
}

void DecoderRun::finish()
{
    decoder.finish();
    while (decoder.step() == StreamDecoder::Step::Advanced) {
    }
}

QStringList DecoderRun::getEvents(std::optional<CorvaneEvent::Type> type)
{
    reception.flushEvents();
    QStringList texts;
    const auto entries = reception.getEventLog()->getEntries();
    for (const EventLog::Entry &entry : entries)
        if (!type || entry.event.getType() == *type)
            texts.append(entry.event.getMessage());
    return texts;
}

QStringList DecoderRun::getSenders() const
{
    QStringList texts;
    for (const auto &sender : reception.getSenders().getAll())
        texts.append(QStringLiteral("%1: %2 frames, %3 gaps, %4 lost")
                         .arg(sender->id)
                         .arg(sender->frames)
                         .arg(sender->sequenceGaps)
                         .arg(sender->lost));
    return texts;
}

QString DecoderRun::getSummary()
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const QByteArray &frame : std::as_const(frames))
        hash.addData(frame);
    const Reception::Totals &totals = reception.getTotals();
    QStringList lines{
        QStringLiteral("framing %1, %2 bytes, %3 skipped, %4 good, %5 unknown, %6 bad")
            .arg(static_cast<int>(decoder.getFraming()))
            .arg(totals.bytes)
            .arg(totals.skippedBytes)
            .arg(totals.frames)
            .arg(totals.unknownFrames)
            .arg(totals.crcErrors.value_or(0)),
        QStringLiteral("%1 delivered %2")
            .arg(frames.size())
            .arg(QString::fromLatin1(hash.result().toHex()))};
    for (const auto &type : reception.getStatistics()->getData()->all)
        lines.append(QStringLiteral("%1: %2, %3 bad")
                         .arg(type->getMessageName())
                         .arg(type->getCount())
                         .arg(type->getData()->crcErrors));
    return (lines + getSenders() + getEvents()).join(QLatin1Char('\n'));
}

qint64 DecoderRun::getDoubtfulBytes()
{
    const Reception::Totals &totals = reception.getTotals();
    const qint64 prefix = decoder.getFraming() == MavlinkFraming::TimeStamped ? 8 : 0;
    return static_cast<qint64>(totals.bytes) - static_cast<qint64>(totals.skippedBytes) - frameBytes
           - frames.size() * prefix;
}

} // namespace corvane::test
