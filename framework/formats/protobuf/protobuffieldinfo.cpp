#include "protobuffieldinfo.h"

#include "descriptions.h"
#include "messageinfo.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace corvane {

using google::protobuf::FieldDescriptor;

namespace {

QString fromUtf8(const ProtobufText &text)
{
    return QString::fromUtf8(text.data, text.size);
}

unsigned int countCharacters(const ProtobufText &text)
{
    const bool ascii = std::all_of(text.data, text.data + text.size,
                                   [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    return static_cast<unsigned int>(ascii ? text.size : fromUtf8(text).toUcs4().size());
}

QString cutText(QString text, qsizetype maximum)
{
    if (text.size() <= maximum)
        return text;
    return text.left(maximum) + QStringLiteral("… (cut, %1 characters)").arg(text.size());
}

FieldValue bytesValue(const ProtobufText &bytes)
{
    const qsizetype shown = std::min(bytes.size, ProtobufFieldInfo::maximumBytes);
    FieldValue value = FieldValue::fromBytes(QByteArray(bytes.data, shown));
    if (shown == bytes.size)
        return value;
    return FieldValue::fromText(value.toString(false, -1, FieldValue::DefaultRepresentation, false)
                                + QStringLiteral("… (cut, %1 bytes)").arg(bytes.size));
}

double doubleOf(quint64 number)
{
    return std::bit_cast<double>(number);
}

float floatOf(quint64 number)
{
    return std::bit_cast<float>(static_cast<quint32>(number));
}

} // namespace

ProtobufFieldInfo::ProtobufFieldInfo(const ProtobufField &field,
                                     const FieldType &type,
                                     const MessageInfo *owner,
                                     std::unique_ptr<FieldInfoData> data)
    : DecodedFieldInfo(type, std::move(data))
    , field(field)
    , owner(owner)
    , cppType(field.descriptor->cpp_type())
    , isText(isStringField())
{
}

bool ProtobufFieldInfo::isPresent(const Message *message) const
{
    const ProtobufSlot *slot = findSlot(message);
    return slot != nullptr && slot->count != 0;
}

unsigned int ProtobufFieldInfo::getNumberOfValues(const Message *message) const
{
    const ProtobufSlot *slot = findSlot(message);
    if (slot == nullptr || slot->count == 0)
        return 0;
    return isText ? countCharacters(slot->getText()) : slot->count;
}

FieldValue ProtobufFieldInfo::readValue(const Message *message, unsigned int index) const
{
    const ProtobufSlot *slot = findSlot(message);
    if (slot == nullptr || index >= (isText ? getNumberOfValues(message) : slot->count))
        return FieldValue::invalid();
    if (cppType == FieldDescriptor::CPPTYPE_STRING)
        return readText(*slot, index);
    if (cppType == FieldDescriptor::CPPTYPE_MESSAGE)
        return readSubMessage(message, field.isList ? *slot->records[index] : *slot->record);
    const quint64 number = field.isList ? slot->numbers[index] : slot->number;
    switch (cppType) {
    case FieldDescriptor::CPPTYPE_INT32:
    case FieldDescriptor::CPPTYPE_ENUM:
        return FieldValue::fromSigned(static_cast<qint64>(number), 32);
    case FieldDescriptor::CPPTYPE_INT64:
        return FieldValue::fromSigned(static_cast<qint64>(number), 64);
    case FieldDescriptor::CPPTYPE_UINT32:
        return FieldValue::fromUnsigned(number, 32);
    case FieldDescriptor::CPPTYPE_UINT64:
        return FieldValue::fromUnsigned(number, 64);
    case FieldDescriptor::CPPTYPE_DOUBLE:
        return FieldValue::fromDouble(doubleOf(number));
    case FieldDescriptor::CPPTYPE_FLOAT:
        return FieldValue::fromFloat(floatOf(number));
    case FieldDescriptor::CPPTYPE_BOOL:
        return FieldValue::fromBoolean(number != 0);
    default:
        return FieldValue::invalid();
    }
}

FieldValue ProtobufFieldInfo::readSubMessage(const Message *message,
                                             const ProtobufRecord &part) const
{
    if (getType().getCode() != FieldType::SubMessage)
        return FieldValue::fromText(QStringLiteral("(nested too deeply to be shown)"));
    return FieldValue::fromSubMessage(
        static_cast<const ProtobufMessage *>(message)->getPart(this, part));
}

FieldValue ProtobufFieldInfo::readText(const ProtobufSlot &slot, unsigned int index) const
{
    if (isText)
        return FieldValue::fromCharacter(
            fromUtf8(slot.getText()).toUcs4().value(static_cast<qsizetype>(index)));
    const ProtobufText text = field.isList ? slot.texts[index] : slot.getText();
    return field.type == FieldDescriptor::TYPE_BYTES
               ? bytesValue(text)
               : FieldValue::fromText(cutText(fromUtf8(text), maximumCharacters));
}

QString ProtobufFieldInfo::readString(const Message *message) const
{
    return isPresent(message) ? cutText(fromUtf8(findSlot(message)->getText()), maximumCharacters)
                              : QString();
}

ProtobufAnyFieldInfo::ProtobufAnyFieldInfo(const google::protobuf::Descriptor *content,
                                           const FieldType &type,
                                           const MessageInfo *owner,
                                           std::unique_ptr<FieldInfoData> data)
    : DecodedFieldInfo(type, std::move(data))
    , content(content)
    , owner(owner)
{
}

unsigned int ProtobufAnyFieldInfo::getNumberOfValues(const Message *message) const
{
    if (message->getInfo() != owner)
        return 0;
    const ProtobufRecord *resolved = static_cast<const ProtobufMessage *>(message)->resolveAny();
    return resolved != nullptr && resolved->getLayout().getType() == content ? 1 : 0;
}

FieldValue ProtobufAnyFieldInfo::readValue(const Message *message, unsigned int index) const
{
    if (index >= getNumberOfValues(message))
        return FieldValue::invalid();
    const auto &any = *static_cast<const ProtobufMessage *>(message);
    return FieldValue::fromSubMessage(any.getPart(this, *any.resolveAny()));
}

std::optional<quint64> readProtobufInteger(const ProtobufRecord &record, const ProtobufField &field)
{
    const ProtobufSlot &slot = record.at(field.place);
    if (field.isList || slot.count == 0)
        return std::nullopt;
    switch (field.descriptor->cpp_type()) {
    case FieldDescriptor::CPPTYPE_INT32:
    case FieldDescriptor::CPPTYPE_INT64:
    case FieldDescriptor::CPPTYPE_UINT32:
    case FieldDescriptor::CPPTYPE_UINT64:
        return slot.number;
    default:
        return std::nullopt;
    }
}

namespace {

/** Microseconds since 1970 fit far into other centuries; what does not is no time. */
std::optional<qint64> timeOf(double us)
{
    constexpr double furthest = 9.0e18;
    return std::abs(us) < furthest ? std::optional(static_cast<qint64>(us)) : std::nullopt;
}

std::optional<qint64> readStampUs(const ProtobufRecord &stamp)
{
    const ProtobufField *seconds = stamp.getLayout().find("seconds");
    const ProtobufField *nanos = stamp.getLayout().find("nanos");
    if (seconds == nullptr || nanos == nullptr)
        return std::nullopt;
    const auto wholeSeconds = static_cast<qint64>(readProtobufInteger(stamp, *seconds).value_or(0));
    const auto rest = static_cast<qint64>(readProtobufInteger(stamp, *nanos).value_or(0));
    constexpr qint64 furthest = 9'000'000'000'000;
    if (wholeSeconds > furthest || wholeSeconds < -furthest)
        return std::nullopt;
    return wholeSeconds * 1'000'000 + rest / 1000;
}

} // namespace

std::optional<qint64>
readProtobufTimeUs(const ProtobufRecord &record, const ProtobufField &field, qint64 unitUs)
{
    const ProtobufSlot &slot = record.at(field.place);
    if (field.isList || slot.count == 0)
        return std::nullopt;
    switch (field.descriptor->cpp_type()) {
    case FieldDescriptor::CPPTYPE_MESSAGE:
        return readStampUs(*slot.record);
    case FieldDescriptor::CPPTYPE_DOUBLE:
        return timeOf(doubleOf(slot.number) * static_cast<double>(unitUs));
    case FieldDescriptor::CPPTYPE_FLOAT:
        return timeOf(static_cast<double>(floatOf(slot.number)) * static_cast<double>(unitUs));
    case FieldDescriptor::CPPTYPE_UINT64:
        if (slot.number > std::numeric_limits<qint64>::max())
            return std::nullopt;
        break;
    default:
        break;
    }
    const auto number = readProtobufInteger(record, field);
    qint64 us = 0;
    if (!number || qMulOverflow(static_cast<qint64>(*number), unitUs, &us))
        return std::nullopt;
    return us;
}

} // namespace corvane
