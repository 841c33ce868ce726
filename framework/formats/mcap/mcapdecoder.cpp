#include "mcapdecoder.h"

#include "messageinfo.h"
#include "protobufmessage.h"
#include "reception.h"

#include <QCoreApplication>

#include <algorithm>

namespace corvane {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("corvane::McapDecoder", text);
}

qint64 toMicroseconds(quint64 timeNs)
{
    return static_cast<qint64>(timeNs / 1000);
}

} // namespace

McapDecoder::McapDecoder(const McapFormat &format, Reception &reception)
    : format(format)
    , reception(reception)
    , reader(*this)
{
    // Reading may begin at any place, behind the definitions.
    reader.define(format.getDefinitions());
}

void McapDecoder::append(QByteArrayView bytes, std::optional<qint64>)
{
    reception.countBytes(static_cast<quint64>(bytes.size()));
    reader.append(bytes);
}

void McapDecoder::finish()
{
    reader.finish();
}

StreamDecoder::Step McapDecoder::step()
{
    const qint64 before = reader.getOffset();
    const McapReader::Step result = reader.step();
    const quint64 skipped = std::min(toSkip, static_cast<quint64>(reader.getOffset() - before));
    toSkip -= skipped;
    reception.countSkippedBytes(skipped);
    return result == McapReader::Step::Advanced ? Step::Advanced : Step::NeedsBytes;
}

std::optional<qint64> McapDecoder::getNextTimeUs() const
{
    const std::optional<quint64> timeNs = reader.getNextLogTimeNs();
    return timeNs ? std::optional(toMicroseconds(*timeNs)) : std::nullopt;
}

void McapDecoder::reset(quint64 position)
{
    reader.reset(static_cast<qint64>(position));
    toSkip = 0;
}

void McapDecoder::readSchema(const McapSchema &) {}

void McapDecoder::readChannel(const McapChannel &channel, const McapSchema *schema)
{
    types[channel.id] = format.findType(channel, schema);
}

void McapDecoder::readMessage(const McapMessage &message, const McapChannel &channel, qint64 offset)
{
    FrameHeader header;
    header.senderId = channel.id;
    header.sequence = message.sequence;
    header.timeUs = toMicroseconds(message.logTimeNs);
    const McapFormat::Type *type = types[channel.id];
    if (type == nullptr) {
        header.messageNumber = channel.id;
        return reception.receiveUnknownFrame(header);
    }
    auto content = std::make_unique<ProtobufContent>(type->schema, *type->layout, message.data);
    if (content->getDamage() != ProtobufContent::Damage::None)
        return reception.addEvent(
            CorvaneEvent::LostBytes,
            tr("%1 bytes of channel %2, at offset %3 of the file, are no message of type %4.")
                .arg(message.data.size())
                .arg(channel.topic)
                .arg(offset)
                .arg(QString::fromStdString(type->layout->getType()->full_name())),
            header.timeUs);
    header.messageInfo = type->info;
    if (!reception.receiveFrame(header))
        return;
    const ProtobufRecord &root = content->getRoot();
    reception.deliver(
        ProtobufMessage::create(type->info, std::move(content), root, header.timeUs, false));
}

void McapDecoder::reportProblem(const McapProblem &problem)
{
    toSkip = problem.size;
    reception.addEvent(CorvaneEvent::LostBytes,
                       tr("%1 (at offset %2)").arg(problem.text).arg(problem.offset),
                       DecodedMessage::unknownTime);
}

} // namespace corvane
