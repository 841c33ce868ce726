#include "protobufdecoder.h"

#include "descriptions.h"
#include "messageinfo.h"
#include "protobuffieldinfo.h"
#include "protobufformat.h"
#include "protobufmessage.h"
#include "reception.h"

#include <QCoreApplication>

#include <algorithm>

namespace corvane {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("corvane::ProtobufDecoder", text);
}

/** Null for no field, and for one that an overlay made of parts of another. */
const ProtobufField *fieldOf(const FieldInfo *field)
{
    const auto *transmitted = dynamic_cast<const ProtobufFieldInfo *>(field);
    return transmitted != nullptr ? &transmitted->getField() : nullptr;
}

bool isWhole(const ProtobufContent &content)
{
    return content.getDamage() == ProtobufContent::Damage::None;
}

} // namespace

ProtobufDecoder::ProtobufDecoder(const ProtobufFormat &format,
                                 Reception &reception,
                                 ProtobufFraming framing)
    : format(format)
    , reception(reception)
    , framing(framing)
{
}

ProtobufDecoder::~ProtobufDecoder() = default;

void ProtobufDecoder::append(QByteArrayView bytes, std::optional<qint64> arrival)
{
    arrivalUs = arrival;
    reception.countBytes(static_cast<quint64>(bytes.size()));
    buffer.erase(buffer.begin(), buffer.begin() + static_cast<qptrdiff>(position));
    position = 0;
    buffer.insert(buffer.end(), bytes.begin(), bytes.end());
}

void ProtobufDecoder::finish()
{
    finished = true;
}

void ProtobufDecoder::reset(quint64 newPosition)
{
    buffer.clear();
    position = 0;
    streamPosition = newPosition;
    toPassOver = 0;
    next.reset();
    arrivalUs.reset();
    finished = false;
}

QByteArrayView ProtobufDecoder::getRest() const
{
    return {buffer.data() + position, static_cast<qsizetype>(buffer.size() - position)};
}

bool ProtobufDecoder::prepare() const
{
    if (next != nullptr)
        return true;
    ProtobufLength length;
    const QByteArrayView rest = getRest();
    if (format.getLayout() == nullptr || toPassOver != 0
        || ProtobufLength::read(rest, framing, length) != ProtobufLength::Result::Length
        || length.size > maximumSize
        || static_cast<quint64>(rest.size() - length.prefixSize) < length.size)
        return false;
    const auto bytes = rest.sliced(length.prefixSize, static_cast<qsizetype>(length.size));
    next = std::make_unique<Next>();
    next->length = length;
    next->content
        = std::make_unique<ProtobufContent>(format.getSchema(), *format.getLayout(), bytes);
    const MessageInfoData &root = *format.getRootInfo()->getData();
    const ProtobufField *timeField = fieldOf(root.timeField);
    if (isWhole(*next->content) && timeField != nullptr)
        next->timeUs
            = readProtobufTimeUs(next->content->getRoot(), *timeField, root.timeFieldUnitUs);
    return true;
}

std::optional<qint64> ProtobufDecoder::getNextTimeUs() const
{
    return prepare() ? next->timeUs : std::nullopt;
}

StreamDecoder::Step ProtobufDecoder::step()
{
    if (format.getLayout() == nullptr)
        return skipRest(tr("no definitions are loaded"));
    if (toPassOver != 0)
        return passOver();
    if (prepare())
        return takeNext();
    ProtobufLength length;
    switch (ProtobufLength::read(getRest(), framing, length)) {
    case ProtobufLength::Result::Length:
        if (length.size > maximumSize)
            return takeOversized(length);
        break;
    case ProtobufLength::Result::None:
        reception.skipBytes(streamPosition, ProtobufLength::maximumPrefixSize,
                            tr("they should be the length of a message and are none"),
                            arrivalUs.value_or(DecodedMessage::unknownTime));
        advance(ProtobufLength::maximumPrefixSize);
        return Step::Advanced;
    case ProtobufLength::Result::Incomplete:
        break;
    }
    return finished ? skipRest(tr("the stream ends inside of a message")) : Step::NeedsBytes;
}

StreamDecoder::Step ProtobufDecoder::takeNext()
{
    FrameHeader header;
    header.timeUs = next->timeUs.value_or(arrivalUs.value_or(DecodedMessage::unknownTime));
    const auto size = static_cast<size_t>(next->length.prefixSize) + next->length.size;
    if (isWhole(*next->content))
        deliver(header);
    else
        reception.skipBytes(streamPosition, size, describeDamage(), header.timeUs);
    advance(size);
    return Step::Advanced;
}

QString ProtobufDecoder::describeDamage() const
{
    if (next->content->getDamage() == ProtobufContent::Damage::TooMuch)
        return tr("the message would take more than %1 bytes of memory")
            .arg(ProtobufContent::maximumMemory);
    return tr("they are no message of type %1").arg(format.getRootInfo()->getData()->name);
}

void ProtobufDecoder::deliver(FrameHeader header)
{
    const ProtobufRecord &root = next->content->getRoot();
    const auto &envelope = format.getInfo()->getData()->envelope;
    if (!envelope || envelope->type != format.getRootInfo()) {
        header.messageInfo = format.getRootInfo();
        return deliver(header, root, false);
    }
    if (const ProtobufField *sequenceField = fieldOf(envelope->sequenceField))
        header.sequence = readProtobufInteger(root, *sequenceField);
    for (const FieldInfo *field : envelope->contentFields) {
        const ProtobufSlot &content = root.at(fieldOf(field)->place);
        if (content.count == 0)
            continue;
        header.messageInfo = field->getType().getSubMessageInfo();
        return deliver(header, *content.record, field->isConfidential());
    }
    header.messageNumber = root.unknownNumber;
    reception.receiveUnknownFrame(header);
}

void ProtobufDecoder::deliver(const FrameHeader &header,
                              const ProtobufRecord &record,
                              bool confidential)
{
    if (reception.receiveFrame(header))
        reception.deliver(ProtobufMessage::create(header.messageInfo, std::move(next->content),
                                                  record, header.timeUs, confidential));
}

StreamDecoder::Step ProtobufDecoder::takeOversized(const ProtobufLength &length)
{
    reception.addEvent(CorvaneEvent::LostBytes,
                       tr("The message at offset %1 would be %2 bytes long, more than %3; it is "
                          "passed over. Is the framing right?")
                           .arg(streamPosition)
                           .arg(length.size)
                           .arg(maximumSize),
                       arrivalUs.value_or(DecodedMessage::unknownTime));
    const auto prefix = static_cast<quint64>(length.prefixSize);
    toPassOver = length.size > std::numeric_limits<quint64>::max() - prefix ? length.size
                                                                            : length.size + prefix;
    return passOver();
}

StreamDecoder::Step ProtobufDecoder::passOver()
{
    const auto count = std::min<quint64>(toPassOver, buffer.size() - position);
    if (count == 0)
        return Step::NeedsBytes;
    reception.countSkippedBytes(count);
    toPassOver -= count;
    advance(static_cast<size_t>(count));
    return Step::Advanced;
}

StreamDecoder::Step ProtobufDecoder::skipRest(const QString &reason)
{
    const auto rest = static_cast<size_t>(getRest().size());
    if (rest == 0)
        return Step::NeedsBytes;
    reception.skipBytes(streamPosition, rest, reason,
                        arrivalUs.value_or(DecodedMessage::unknownTime));
    advance(rest);
    return Step::Advanced;
}

void ProtobufDecoder::advance(size_t count)
{
    position += count;
    streamPosition += count;
    next.reset();
}

} // namespace corvane
