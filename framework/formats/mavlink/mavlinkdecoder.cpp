#include "mavlinkdecoder.h"

#include "descriptions.h"
#include "mavlinkformat.h"
#include "mavlinkmessage.h"
#include "messageinfo.h"
#include "reception.h"

#include <QCoreApplication>
#include <QtEndian>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

// So many bytes without a frame that decides are enough to stop waiting for one.
constexpr size_t framingHorizon = size_t{64} * 1024;
// A stream that holds no frames at all is told about in pieces, not only at its end.
constexpr size_t longestSkip = size_t{64} * 1024;
constexpr size_t timeStampSize = 8;
// 2000-01-01 and 2100-01-01: a time between them is taken for one, other numbers are not.
constexpr quint64 earliestPlausibleUs = 946'684'800'000'000;
constexpr quint64 latestPlausibleUs = 4'102'444'800'000'000;

bool isStartByte(char byte)
{
    return static_cast<quint8>(byte) == MavlinkFrame::startVersion1
           || static_cast<quint8>(byte) == MavlinkFrame::startVersion2;
}

bool isRight(const MavlinkFrame &frame, QByteArrayView bytes, const MavlinkMessageType &type)
{
    return frame.checksum == frame.computeChecksum(bytes, type.checksumExtra);
}

/** The payload size up to which zeros make the checksum fit, or 0. */
int findExtendedSize(const MavlinkFrame &frame,
                     QByteArrayView bytes,
                     const MavlinkMessageType &type)
{
    for (int size = frame.payloadSize + 1; size <= type.fullSize; ++size)
        if (frame.computeExtendedChecksum(bytes, type.checksumExtra, size) == frame.checksum)
            return size;
    return 0;
}

bool isPlausibleTime(const char *bytes)
{
    const auto time = qFromBigEndian<quint64>(bytes);
    return time >= earliestPlausibleUs && time < latestPlausibleUs;
}

} // namespace

MavlinkDecoder::MavlinkDecoder(const MavlinkFormat &format,
                               Reception &reception,
                               MavlinkFraming framing)
    : format(format)
    , reception(reception)
    , framing(framing)
{
}

void MavlinkDecoder::append(QByteArrayView bytes, std::optional<qint64> arrival)
{
    arrivalUs = arrival;
    reception.countBytes(static_cast<quint64>(bytes.size()));
    buffer.erase(buffer.begin(), buffer.begin() + static_cast<qptrdiff>(position));
    position = 0;
    buffer.insert(buffer.end(), bytes.begin(), bytes.end());
}

void MavlinkDecoder::finish()
{
    finished = true;
}

void MavlinkDecoder::reset(quint64 newPosition)
{
    reportSkipped();
    buffer.clear();
    position = 0;
    streamPosition = newPosition;
    examined = 0;
    arrivalUs.reset();
    inStep = true;
    finished = false;
}

QByteArrayView MavlinkDecoder::getRest(size_t from) const
{
    return {buffer.data() + from, static_cast<qsizetype>(buffer.size() - from)};
}

StreamDecoder::Step MavlinkDecoder::step()
{
    if (framing == MavlinkFraming::Automatic && !decideFraming())
        return Step::NeedsBytes;
    const size_t begin = position + getPrefixSize();
    if (begin >= buffer.size())
        return finished ? skipByte() : Step::NeedsBytes;

    const QByteArrayView bytes = getRest(begin);
    MavlinkFrame frame;
    switch (MavlinkFrame::parse(bytes, frame)) {
    case MavlinkFrame::Result::Incomplete:
        return finished ? skipByte() : Step::NeedsBytes;
    case MavlinkFrame::Result::None:
        return skipByte();
    case MavlinkFrame::Result::Frame:
        break;
    }
    const MavlinkMessageType *type = format.findType(frame.messageId);
    if (type != nullptr && isRight(frame, bytes, *type))
        return takeFrame(frame, bytes, *type);
    return inStep ? takeDoubtful(frame, bytes, type) : skipByte();
}

FrameHeader MavlinkDecoder::headerOf(const MavlinkFrame &frame,
                                     const MavlinkMessageType *type) const
{
    return {.messageInfo = type != nullptr ? type->info : nullptr,
            .messageNumber = frame.messageId,
            .senderId = mavlinkSenderId(frame),
            .sequence = frame.sequence,
            .timeUs = readTimeUs()};
}

StreamDecoder::Step MavlinkDecoder::takeFrame(const MavlinkFrame &frame,
                                              QByteArrayView bytes,
                                              const MavlinkMessageType &type)
{
    // Followers of the reception may load further types, which moves the present ones.
    FrameHeader header = headerOf(frame, &type);
    if (framing == MavlinkFraming::Raw && header.messageInfo->getData()->timeField != nullptr)
        readTimeField(header, frame, bytes);
    reportSkipped();
    inStep = true;
    if (reception.receiveFrame(header))
        reception.deliver(
            MavlinkMessage::create(header.messageInfo, frame, bytes, header.getMessageTimeUs()));
    advance(getPrefixSize() + static_cast<size_t>(frame.getSize()));
    return Step::Advanced;
}

void MavlinkDecoder::readTimeField(FrameHeader &header,
                                   const MavlinkFrame &frame,
                                   QByteArrayView bytes)
{
    const MavlinkMessage *message
        = MavlinkMessage::create(header.messageInfo, frame, bytes, header.timeUs);
    header.ownTimeUs = readOwnTimeUs(message);
    message->removeReference();
}

StreamDecoder::Step MavlinkDecoder::takeDoubtful(const MavlinkFrame &frame,
                                                 QByteArrayView bytes,
                                                 const MavlinkMessageType *type)
{
    switch (lookAround(frame)) {
    case Outlook::Unknown:
        return Step::NeedsBytes;
    case Outlook::None:
        return skipByte();
    default:
        break;
    }
    const FrameHeader header = headerOf(frame, type);
    if (type == nullptr)
        reception.receiveUnknownFrame(header);
    else
        reception.receiveDamagedFrame(header, describeDamage(frame, bytes, *type));
    advance(getPrefixSize() + static_cast<size_t>(frame.getSize()));
    return Step::Advanced;
}

MavlinkDecoder::Outlook MavlinkDecoder::lookAt(size_t begin, MavlinkFrame &frame) const
{
    if (begin >= buffer.size())
        return finished ? Outlook::Possible : Outlook::Unknown;
    const QByteArrayView bytes = getRest(begin);
    switch (MavlinkFrame::parse(bytes, frame)) {
    case MavlinkFrame::Result::None:
        return Outlook::None;
    case MavlinkFrame::Result::Incomplete:
        return finished ? Outlook::Possible : Outlook::Unknown;
    case MavlinkFrame::Result::Frame:
        break;
    }
    const MavlinkMessageType *type = format.findType(frame.messageId);
    if (type == nullptr)
        return Outlook::Possible;
    if (isRight(frame, bytes, *type))
        return Outlook::Valid;
    return frame.payloadSize <= type->fullSize ? Outlook::Possible : Outlook::None;
}

MavlinkDecoder::Outlook MavlinkDecoder::lookAt(size_t begin) const
{
    MavlinkFrame frame;
    return lookAt(begin, frame);
}

bool MavlinkDecoder::canBeFrame(size_t begin) const
{
    const Outlook outlook = lookAt(begin);
    return begin < buffer.size() && (outlook == Outlook::Valid || outlook == Outlook::Possible);
}

/** Whether \a doubtful, the next frame, stands between others as a frame does. */
MavlinkDecoder::Outlook MavlinkDecoder::lookAround(const MavlinkFrame &doubtful) const
{
    const size_t begin = position + getPrefixSize();
    const size_t end = begin + static_cast<size_t>(doubtful.getSize());
    const size_t next = end + getPrefixSize();
    const Outlook behind = lookAt(next);
    if (behind == Outlook::None || behind == Outlook::Unknown)
        return behind;

    const size_t payloadEnd = begin + doubtful.headerSize + doubtful.payloadSize;
    for (size_t inside = begin + 1; inside < std::min(next, buffer.size()); ++inside) {
        if (!isStartByte(buffer[inside]))
            continue;
        MavlinkFrame frame;
        const Outlook outlook = lookAt(inside, frame);
        if (outlook == Outlook::Unknown)
            return Outlook::Unknown;
        // A frame that lies in the payload as a whole is what the message transports.
        if (outlook == Outlook::Valid && inside + static_cast<size_t>(frame.getSize()) > payloadEnd)
            return Outlook::None;
    }
    return behind;
}

QString MavlinkDecoder::describeDamage(const MavlinkFrame &frame,
                                       QByteArrayView bytes,
                                       const MavlinkMessageType &type) const
{
    const auto hex
        = [](quint16 value) { return QStringLiteral("0x%1").arg(value, 4, 16, QLatin1Char('0')); };
    QString text
        = QCoreApplication::translate("corvane::MavlinkDecoder",
                                      "checksum %1 received, %2 computed")
              .arg(hex(frame.checksum), hex(frame.computeChecksum(bytes, type.checksumExtra)));
    const int extended = findExtendedSize(frame, bytes, type);
    if (extended > 0)
        text += QCoreApplication::translate(
                    "corvane::MavlinkDecoder",
                    "; it fits the payload extended with zeros to %1 bytes, so a relay has cut the "
                    "zeros after the checksum was made")
                    .arg(extended);
    return text;
}

StreamDecoder::Step MavlinkDecoder::skipByte()
{
    inStep = false;
    if (position >= buffer.size()) {
        reportSkipped();
        return Step::NeedsBytes;
    }
    // On to the next byte before which a frame could begin.
    const size_t prefix = getPrefixSize();
    size_t next = position + 1;
    while (next + prefix < buffer.size() && !isStartByte(buffer[next + prefix]))
        ++next;
    if (finished && next + prefix >= buffer.size())
        next = buffer.size();
    const size_t count = std::min<size_t>(next - position, longestSkip - skipped);
    skipped += count;
    advance(count);
    if (skipped == longestSkip)
        reportSkipped();
    return Step::Advanced;
}

void MavlinkDecoder::reportSkipped()
{
    if (skipped == 0)
        return;
    const quint64 count = std::exchange(skipped, 0);
    reception.skipBytes(streamPosition - count, count, readTimeUs());
}

void MavlinkDecoder::advance(size_t count)
{
    position += count;
    streamPosition += count;
}

qint64 MavlinkDecoder::readTimeUs() const
{
    if (framing != MavlinkFraming::TimeStamped)
        return arrivalUs.value_or(DecodedMessage::unknownTime);
    if (position + timeStampSize > buffer.size())
        return DecodedMessage::unknownTime;
    const auto time = qFromBigEndian<qint64>(buffer.data() + position);
    return time >= 0 ? time : DecodedMessage::unknownTime;
}

std::optional<qint64> MavlinkDecoder::getNextTimeUs() const
{
    const size_t begin = position + timeStampSize;
    if (framing != MavlinkFraming::TimeStamped || !inStep || begin >= buffer.size())
        return std::nullopt;
    if (!isStartByte(buffer[begin]))
        return std::nullopt;
    const qint64 time = readTimeUs();
    return time != DecodedMessage::unknownTime ? std::optional(time) : std::nullopt;
}

MavlinkFraming MavlinkDecoder::findFraming(const MavlinkFormat &format, QByteArrayView head)
{
    Reception unused(format.getInfo(), mavlinkSenderName, true);
    MavlinkDecoder decoder(format, unused);
    decoder.append(head, std::nullopt);
    decoder.finish();
    decoder.decideFraming();
    return decoder.framing;
}

bool MavlinkDecoder::decideFraming()
{
    for (; examined < std::min(buffer.size(), framingHorizon); ++examined) {
        if (!isStartByte(buffer[examined]))
            continue;
        MavlinkFrame frame;
        const Outlook outlook = lookAt(examined, frame);
        if (outlook == Outlook::Unknown)
            return false;
        if (outlook != Outlook::Valid)
            continue;
        const auto guess = guessFraming(examined, examined + static_cast<size_t>(frame.getSize()));
        if (!guess)
            return false;
        framing = *guess;
        if (framing != MavlinkFraming::Automatic)
            return true;
    }
    if (!finished && buffer.size() < framingHorizon)
        return false;
    // Perhaps no definition describes any of the frames; their start bytes still show.
    framing = !canBeFrame(0) && canBeFrame(timeStampSize) ? MavlinkFraming::TimeStamped
                                                          : MavlinkFraming::Raw;
    return true;
}

/** What a valid frame tells of the framing: perhaps nothing (Automatic), perhaps not yet. */
std::optional<MavlinkFraming> MavlinkDecoder::guessFraming(size_t begin, size_t end) const
{
    const bool hasTime = begin >= timeStampSize && isPlausibleTime(&buffer[begin - timeStampSize]);
    if (begin == timeStampSize && hasTime)
        return MavlinkFraming::TimeStamped;
    if (begin == 0 || canBeFrame(end))
        return MavlinkFraming::Raw;
    if (lookAt(end) == Outlook::Unknown)
        return std::nullopt;
    if (hasTime && canBeFrame(end + timeStampSize))
        return MavlinkFraming::TimeStamped;
    if (lookAt(end + timeStampSize) == Outlook::Unknown)
        return std::nullopt;
    if (!finished)
        return MavlinkFraming::Automatic;
    return hasTime ? MavlinkFraming::TimeStamped : MavlinkFraming::Raw;
}

} // namespace corvane
