#include "protobuffieldinfo.h"

#include "descriptions.h"

#include <google/protobuf/repeated_field.h>
#include <google/protobuf/unknown_field_set.h>

#include <algorithm>
#include <cmath>

namespace corvane {

using google::protobuf::FieldDescriptor;
using google::protobuf::FileDescriptor;
using google::protobuf::Reflection;

namespace pb = google::protobuf;

namespace {

using Content = google::protobuf::Message;
using MessageList = google::protobuf::RepeatedPtrField<Content>;

const ProtobufMessage &asProtobuf(const Message *message)
{
    return *static_cast<const ProtobufMessage *>(message);
}

QString fromUtf8(const std::string &text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

unsigned int countCharacters(const std::string &text)
{
    const bool ascii = std::all_of(text.begin(), text.end(),
                                   [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    return static_cast<unsigned int>(ascii ? static_cast<qsizetype>(text.size())
                                           : fromUtf8(text).toUcs4().size());
}

QString cutText(QString text, qsizetype maximum)
{
    if (text.size() <= maximum)
        return text;
    return text.left(maximum) + QStringLiteral("… (cut, %1 characters)").arg(text.size());
}

FieldValue bytesValue(const std::string &bytes)
{
    const auto size = static_cast<qsizetype>(bytes.size());
    const qsizetype shown = std::min(size, ProtobufFieldInfo::maximumBytes);
    const FieldValue value = FieldValue::fromBytes(QByteArray(bytes.data(), shown));
    if (shown == size)
        return value;
    return FieldValue::fromText(value.toString(false, -1, FieldValue::DefaultRepresentation, false)
                                + QStringLiteral("… (cut, %1 bytes)").arg(size));
}

/** The unknown values of a field with a closed enumeration, up to \a wanted; their count. */
int findUnknownValues(const ProtobufMessage &message,
                      const FieldDescriptor *field,
                      int wanted,
                      int *value)
{
    const auto &unknown = message.getReflection().GetUnknownFields(message.getMessage());
    int count = 0;
    for (int i = 0; i < unknown.field_count(); ++i) {
        const google::protobuf::UnknownField &entry = unknown.field(i);
        if (entry.number() != field->number()
            || entry.type() != google::protobuf::UnknownField::TYPE_VARINT)
            continue;
        // Of a single field the last one counts.
        if (count == wanted || !field->is_repeated())
            *value = static_cast<int>(entry.varint());
        ++count;
    }
    return count;
}

QString textIn(const ProtobufMessage::Values &values)
{
    const std::string &text = *static_cast<const std::string *>(values.data);
    const bool ascii = text.size() == values.count;
    return ascii ? QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()))
                 : fromUtf8(text);
}

// What libprotobuf offers in the place of these lists reads each element by a virtual call.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

template <typename Number>
ProtobufMessage::Values numbersOf(const ProtobufMessage &message, const FieldDescriptor *field)
{
    const auto &list
        = message.getReflection().GetRepeatedField<Number>(message.getMessage(), field);
    return {static_cast<unsigned int>(list.size()), list.data()};
}

ProtobufMessage::Values messagesOf(const ProtobufMessage &message, const FieldDescriptor *field)
{
    const auto &list
        = message.getReflection().GetRepeatedPtrField<Content>(message.getMessage(), field);
    return {static_cast<unsigned int>(list.size()), &list};
}

QT_WARNING_POP

} // namespace

ProtobufFieldInfo::ProtobufFieldInfo(const FieldDescriptor *descriptor,
                                     const FieldType &type,
                                     const MessageInfo *owner,
                                     std::unique_ptr<FieldInfoData> data)
    : DecodedFieldInfo(type, std::move(data))
    , descriptor(descriptor)
    , owner(owner)
    , cppType(descriptor->cpp_type())
    , isText(isStringField())
    , isList(descriptor->is_repeated())
    , hasPresence(descriptor->has_presence())
    , isMap(descriptor->is_map())
    , closedEnumeration(descriptor->cpp_type() == FieldDescriptor::CPPTYPE_ENUM
                        && descriptor->file()->syntax() == FileDescriptor::SYNTAX_PROTO2)
{
}

bool ProtobufFieldInfo::isPresent(const Message *message) const
{
    if (message->getInfo() != owner)
        return false;
    const ProtobufMessage &owning = asProtobuf(message);
    return isList ? getValues(owning).count != 0 : hasSingle(owning);
}

unsigned int ProtobufFieldInfo::getNumberOfValues(const Message *message) const
{
    return message->getInfo() == owner ? getValues(asProtobuf(message)).count : 0;
}

const ProtobufMessage::Values &ProtobufFieldInfo::getValues(const ProtobufMessage &owning) const
{
    return owning.getValues(this, [&] { return findValues(owning); });
}

ProtobufMessage::Values ProtobufFieldInfo::findValues(const ProtobufMessage &owning) const
{
    if (isText) {
        const std::string &text = getTextOf(owning);
        return {countCharacters(text), &text};
    }
    if (!isList)
        return {hasSingle(owning) ? 1U : 0U, nullptr};
    switch (cppType) {
    case FieldDescriptor::CPPTYPE_INT32:
        return numbersOf<pb::int32>(owning, descriptor);
    case FieldDescriptor::CPPTYPE_INT64:
        return numbersOf<pb::int64>(owning, descriptor);
    case FieldDescriptor::CPPTYPE_UINT32:
        return numbersOf<pb::uint32>(owning, descriptor);
    case FieldDescriptor::CPPTYPE_UINT64:
        return numbersOf<pb::uint64>(owning, descriptor);
    case FieldDescriptor::CPPTYPE_DOUBLE:
        return numbersOf<double>(owning, descriptor);
    case FieldDescriptor::CPPTYPE_FLOAT:
        return numbersOf<float>(owning, descriptor);
    case FieldDescriptor::CPPTYPE_BOOL:
        return numbersOf<bool>(owning, descriptor);
    case FieldDescriptor::CPPTYPE_MESSAGE:
        return messagesOf(owning, descriptor);
    default: {
        const int known = owning.getReflection().FieldSize(owning.getMessage(), descriptor);
        int unused = 0;
        const int unknown
            = closedEnumeration ? findUnknownValues(owning, descriptor, -1, &unused) : 0;
        return {static_cast<unsigned int>(known + unknown), nullptr};
    }
    }
}

bool ProtobufFieldInfo::hasSingle(const ProtobufMessage &owning) const
{
    if (!hasPresence || owning.getReflection().HasField(owning.getMessage(), descriptor))
        return true;
    int unused = 0;
    return closedEnumeration && findUnknownValues(owning, descriptor, 0, &unused) != 0;
}

FieldValue ProtobufFieldInfo::readValue(const Message *message, unsigned int index) const
{
    if (message->getInfo() != owner)
        return FieldValue::invalid();
    const ProtobufMessage &owning = asProtobuf(message);
    const ProtobufMessage::Values &values = getValues(owning);
    if (index >= values.count)
        return FieldValue::invalid();
    if (cppType == FieldDescriptor::CPPTYPE_MESSAGE)
        return readSubMessage(owning, values, index);
    if (isText)
        return FieldValue::fromCharacter(
            textIn(values).toUcs4().value(static_cast<qsizetype>(index)));
    if (values.data != nullptr)
        return readNumber(values.data, index);
    return isList ? readElement(owning, static_cast<int>(index)) : readSingle(owning);
}

FieldValue ProtobufFieldInfo::readSubMessage(const ProtobufMessage &owning,
                                             const ProtobufMessage::Values &values,
                                             unsigned int index) const
{
    if (getType().getCode() != FieldType::SubMessage)
        return FieldValue::fromText(QStringLiteral("(nested too deeply to be shown)"));
    const auto read = [&]() -> const Content & {
        if (!isList)
            return owning.getReflection().GetMessage(owning.getMessage(), descriptor);
        return isMap ? owning.getMapEntry(descriptor, static_cast<int>(index))
                     : static_cast<const MessageList *>(values.data)->Get(static_cast<int>(index));
    };
    return FieldValue::fromSubMessage(owning.getPart(this, index, values.count, read));
}

FieldValue ProtobufFieldInfo::readSingle(const ProtobufMessage &owning) const
{
    const Content &message = owning.getMessage();
    const Reflection &reflection = owning.getReflection();
    switch (cppType) {
    case FieldDescriptor::CPPTYPE_INT32:
        return FieldValue::fromSigned(reflection.GetInt32(message, descriptor), 32);
    case FieldDescriptor::CPPTYPE_INT64:
        return FieldValue::fromSigned(reflection.GetInt64(message, descriptor), 64);
    case FieldDescriptor::CPPTYPE_UINT32:
        return FieldValue::fromUnsigned(reflection.GetUInt32(message, descriptor), 32);
    case FieldDescriptor::CPPTYPE_UINT64:
        return FieldValue::fromUnsigned(reflection.GetUInt64(message, descriptor), 64);
    case FieldDescriptor::CPPTYPE_DOUBLE:
        return FieldValue::fromDouble(reflection.GetDouble(message, descriptor));
    case FieldDescriptor::CPPTYPE_FLOAT:
        return FieldValue::fromFloat(reflection.GetFloat(message, descriptor));
    case FieldDescriptor::CPPTYPE_BOOL:
        return FieldValue::fromBoolean(reflection.GetBool(message, descriptor));
    case FieldDescriptor::CPPTYPE_ENUM: {
        int number = reflection.GetEnumValue(message, descriptor);
        if (closedEnumeration && !reflection.HasField(message, descriptor))
            findUnknownValues(owning, descriptor, 0, &number);
        return FieldValue::fromSigned(number, 32);
    }
    case FieldDescriptor::CPPTYPE_STRING: // bytes; a text is a string field
        return bytesValue(getTextOf(owning));
    case FieldDescriptor::CPPTYPE_MESSAGE:
        break; // readSubMessage()
    }
    return FieldValue::invalid();
}

FieldValue ProtobufFieldInfo::readNumber(const void *numbers, unsigned int index) const
{
    switch (cppType) {
    case FieldDescriptor::CPPTYPE_INT32:
        return FieldValue::fromSigned(static_cast<const pb::int32 *>(numbers)[index], 32);
    case FieldDescriptor::CPPTYPE_INT64:
        return FieldValue::fromSigned(static_cast<const pb::int64 *>(numbers)[index], 64);
    case FieldDescriptor::CPPTYPE_UINT32:
        return FieldValue::fromUnsigned(static_cast<const pb::uint32 *>(numbers)[index], 32);
    case FieldDescriptor::CPPTYPE_UINT64:
        return FieldValue::fromUnsigned(static_cast<const pb::uint64 *>(numbers)[index], 64);
    case FieldDescriptor::CPPTYPE_DOUBLE:
        return FieldValue::fromDouble(static_cast<const double *>(numbers)[index]);
    case FieldDescriptor::CPPTYPE_FLOAT:
        return FieldValue::fromFloat(static_cast<const float *>(numbers)[index]);
    case FieldDescriptor::CPPTYPE_BOOL:
        return FieldValue::fromBoolean(static_cast<const bool *>(numbers)[index]);
    default:
        return FieldValue::invalid();
    }
}

FieldValue ProtobufFieldInfo::readElement(const ProtobufMessage &owning, int index) const
{
    const Content &message = owning.getMessage();
    const Reflection &reflection = owning.getReflection();
    if (cppType == FieldDescriptor::CPPTYPE_ENUM) {
        const int known = reflection.FieldSize(message, descriptor);
        int number = 0;
        if (index < known)
            number = reflection.GetRepeatedEnumValue(message, descriptor, index);
        else
            findUnknownValues(owning, descriptor, index - known, &number);
        return FieldValue::fromSigned(number, 32);
    }
    std::string unused; // a message keeps its texts itself
    const std::string &text
        = reflection.GetRepeatedStringReference(message, descriptor, index, &unused);
    return descriptor->type() == FieldDescriptor::TYPE_BYTES
               ? bytesValue(text)
               : FieldValue::fromText(cutText(fromUtf8(text), maximumCharacters));
}

const std::string &ProtobufFieldInfo::getTextOf(const ProtobufMessage &owning) const
{
    static std::string unused; // a message keeps its texts itself
    return owning.getReflection().GetStringReference(owning.getMessage(), descriptor, &unused);
}

QString ProtobufFieldInfo::readString(const Message *message) const
{
    if (message->getInfo() != owner)
        return {};
    return cutText(textIn(getValues(asProtobuf(message))), maximumCharacters);
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
    const ProtobufMessage &any = asProtobuf(message);
    const Content *resolved = any.resolveAny(any.getMessage());
    return resolved != nullptr && resolved->GetDescriptor() == content ? 1 : 0;
}

FieldValue ProtobufAnyFieldInfo::readValue(const Message *message, unsigned int index) const
{
    if (index >= getNumberOfValues(message))
        return FieldValue::invalid();
    const ProtobufMessage &any = asProtobuf(message);
    return FieldValue::fromSubMessage(any.getPart(
        this, index, 1, [&]() -> const Content & { return *any.resolveAny(any.getMessage()); }));
}

std::optional<quint64> readProtobufInteger(const Content &message, const FieldDescriptor *field)
{
    const Reflection *reflection = message.GetReflection();
    if (field->is_repeated() || (field->has_presence() && !reflection->HasField(message, field)))
        return std::nullopt;
    switch (field->cpp_type()) {
    case FieldDescriptor::CPPTYPE_INT32:
        return static_cast<quint64>(reflection->GetInt32(message, field));
    case FieldDescriptor::CPPTYPE_INT64:
        return static_cast<quint64>(reflection->GetInt64(message, field));
    case FieldDescriptor::CPPTYPE_UINT32:
        return reflection->GetUInt32(message, field);
    case FieldDescriptor::CPPTYPE_UINT64:
        return reflection->GetUInt64(message, field);
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

std::optional<qint64> readStampUs(const Content &stamp)
{
    const auto *seconds = stamp.GetDescriptor()->FindFieldByName("seconds");
    const auto *nanos = stamp.GetDescriptor()->FindFieldByName("nanos");
    if (seconds == nullptr || nanos == nullptr)
        return std::nullopt;
    const auto wholeSeconds = static_cast<qint64>(readProtobufInteger(stamp, seconds).value_or(0));
    const auto rest = static_cast<qint64>(readProtobufInteger(stamp, nanos).value_or(0));
    constexpr qint64 furthest = 9'000'000'000'000;
    if (wholeSeconds > furthest || wholeSeconds < -furthest)
        return std::nullopt;
    return wholeSeconds * 1'000'000 + rest / 1000;
}

} // namespace

std::optional<qint64>
readProtobufTimeUs(const Content &message, const FieldDescriptor *field, qint64 unitUs)
{
    const Reflection *reflection = message.GetReflection();
    if (field->is_repeated() || (field->has_presence() && !reflection->HasField(message, field)))
        return std::nullopt;
    switch (field->cpp_type()) {
    case FieldDescriptor::CPPTYPE_MESSAGE:
        return readStampUs(reflection->GetMessage(message, field));
    case FieldDescriptor::CPPTYPE_DOUBLE:
        return timeOf(reflection->GetDouble(message, field) * static_cast<double>(unitUs));
    case FieldDescriptor::CPPTYPE_FLOAT:
        return timeOf(static_cast<double>(reflection->GetFloat(message, field))
                      * static_cast<double>(unitUs));
    case FieldDescriptor::CPPTYPE_UINT64:
        if (reflection->GetUInt64(message, field) > std::numeric_limits<qint64>::max())
            return std::nullopt;
        break;
    default:
        break;
    }
    const auto number = readProtobufInteger(message, field);
    qint64 us = 0;
    if (!number || qMulOverflow(static_cast<qint64>(*number), unitUs, &us))
        return std::nullopt;
    return us;
}

} // namespace corvane
