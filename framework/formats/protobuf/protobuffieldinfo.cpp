#include "protobuffieldinfo.h"

#include "descriptions.h"
#include "protobufmessage.h"

#include <google/protobuf/unknown_field_set.h>

#include <algorithm>
#include <cmath>

namespace corvane {

using google::protobuf::FieldDescriptor;
using google::protobuf::FileDescriptor;
using google::protobuf::Reflection;

namespace {

using Content = google::protobuf::Message;

const ProtobufMessage &asProtobuf(const Message *message)
{
    return *static_cast<const ProtobufMessage *>(message);
}

QString fromUtf8(const std::string &text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

bool isAscii(const std::string &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

QString cutText(const QString &text, qsizetype maximum)
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
int findUnknownValues(const Content &message, const FieldDescriptor *field, int wanted, int *value)
{
    const auto &unknown = message.GetReflection()->GetUnknownFields(message);
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

} // namespace

ProtobufFieldInfo::ProtobufFieldInfo(const FieldDescriptor *descriptor,
                                     const FieldType &type,
                                     const MessageInfo *owner,
                                     std::unique_ptr<FieldInfoData> data)
    : DecodedFieldInfo(type, std::move(data))
    , descriptor(descriptor)
    , owner(owner)
    , cppType(descriptor->cpp_type())
    , isList(descriptor->is_repeated())
    , hasPresence(descriptor->has_presence())
    , isMap(descriptor->is_map())
    , closedEnumeration(descriptor->cpp_type() == FieldDescriptor::CPPTYPE_ENUM
                        && descriptor->file()->syntax() == FileDescriptor::SYNTAX_PROTO2)
{
}

int ProtobufFieldInfo::countPresent(const Content &message) const
{
    if (!isList && !hasPresence)
        return 1;
    const Reflection *reflection = message.GetReflection();
    int unused = 0;
    if (isList) {
        const int count = reflection->FieldSize(message, descriptor);
        return closedEnumeration ? count + findUnknownValues(message, descriptor, -1, &unused)
                                 : count;
    }
    if (reflection->HasField(message, descriptor))
        return 1;
    return closedEnumeration && findUnknownValues(message, descriptor, 0, &unused) != 0 ? 1 : 0;
}

bool ProtobufFieldInfo::isPresent(const Message *message) const
{
    return message->getInfo() == owner && countPresent(asProtobuf(message).getMessage()) != 0;
}

unsigned int ProtobufFieldInfo::getNumberOfValues(const Message *message) const
{
    if (message->getInfo() != owner)
        return 0;
    const Content &content = asProtobuf(message).getMessage();
    if (!isStringField())
        return static_cast<unsigned int>(countPresent(content));
    std::string scratch;
    const std::string &text
        = content.GetReflection()->GetStringReference(content, descriptor, &scratch);
    return static_cast<unsigned int>(isAscii(text) ? static_cast<qsizetype>(text.size())
                                                   : fromUtf8(text).toUcs4().size());
}

FieldValue ProtobufFieldInfo::readValue(const Message *message, unsigned int index) const
{
    const ProtobufMessage &owning = asProtobuf(message);
    if (isStringField())
        return FieldValue::fromCharacter(
            readText(owning.getMessage()).toUcs4().value(static_cast<qsizetype>(index)));
    if (cppType == FieldDescriptor::CPPTYPE_MESSAGE && getType().getCode() != FieldType::SubMessage)
        return FieldValue::fromText(QStringLiteral("(nested too deeply to be shown)"));
    return isList ? readElement(owning, static_cast<int>(index)) : readSingle(owning);
}

FieldValue ProtobufFieldInfo::makeSubMessage(const ProtobufMessage &owning,
                                             const Content &part) const
{
    return FieldValue::fromSubMessage(
        owning.getPart(part, getType().getSubMessageInfo(), isConfidential()));
}

FieldValue ProtobufFieldInfo::readSingle(const ProtobufMessage &owning) const
{
    const Content &message = owning.getMessage();
    const Reflection *reflection = message.GetReflection();
    switch (cppType) {
    case FieldDescriptor::CPPTYPE_INT32:
        return FieldValue::fromSigned(reflection->GetInt32(message, descriptor), 32);
    case FieldDescriptor::CPPTYPE_INT64:
        return FieldValue::fromSigned(reflection->GetInt64(message, descriptor), 64);
    case FieldDescriptor::CPPTYPE_UINT32:
        return FieldValue::fromUnsigned(reflection->GetUInt32(message, descriptor), 32);
    case FieldDescriptor::CPPTYPE_UINT64:
        return FieldValue::fromUnsigned(reflection->GetUInt64(message, descriptor), 64);
    case FieldDescriptor::CPPTYPE_DOUBLE:
        return FieldValue::fromDouble(reflection->GetDouble(message, descriptor));
    case FieldDescriptor::CPPTYPE_FLOAT:
        return FieldValue::fromFloat(reflection->GetFloat(message, descriptor));
    case FieldDescriptor::CPPTYPE_BOOL:
        return FieldValue::fromBoolean(reflection->GetBool(message, descriptor));
    case FieldDescriptor::CPPTYPE_ENUM: {
        int number = reflection->GetEnumValue(message, descriptor);
        if (closedEnumeration && !reflection->HasField(message, descriptor))
            findUnknownValues(message, descriptor, 0, &number);
        return FieldValue::fromSigned(number, 32);
    }
    case FieldDescriptor::CPPTYPE_STRING: {
        // A text of one value is a string field and not read here.
        std::string scratch;
        return bytesValue(reflection->GetStringReference(message, descriptor, &scratch));
    }
    case FieldDescriptor::CPPTYPE_MESSAGE:
        return makeSubMessage(owning, reflection->GetMessage(message, descriptor));
    }
    return FieldValue::invalid();
}

FieldValue ProtobufFieldInfo::readElement(const ProtobufMessage &owning, int index) const
{
    const Content &message = owning.getMessage();
    const Reflection *reflection = message.GetReflection();
    switch (cppType) {
    case FieldDescriptor::CPPTYPE_INT32:
        return FieldValue::fromSigned(reflection->GetRepeatedInt32(message, descriptor, index), 32);
    case FieldDescriptor::CPPTYPE_INT64:
        return FieldValue::fromSigned(reflection->GetRepeatedInt64(message, descriptor, index), 64);
    case FieldDescriptor::CPPTYPE_UINT32:
        return FieldValue::fromUnsigned(reflection->GetRepeatedUInt32(message, descriptor, index),
                                        32);
    case FieldDescriptor::CPPTYPE_UINT64:
        return FieldValue::fromUnsigned(reflection->GetRepeatedUInt64(message, descriptor, index),
                                        64);
    case FieldDescriptor::CPPTYPE_DOUBLE:
        return FieldValue::fromDouble(reflection->GetRepeatedDouble(message, descriptor, index));
    case FieldDescriptor::CPPTYPE_FLOAT:
        return FieldValue::fromFloat(reflection->GetRepeatedFloat(message, descriptor, index));
    case FieldDescriptor::CPPTYPE_BOOL:
        return FieldValue::fromBoolean(reflection->GetRepeatedBool(message, descriptor, index));
    case FieldDescriptor::CPPTYPE_ENUM: {
        const int known = reflection->FieldSize(message, descriptor);
        int number = 0;
        if (index < known)
            number = reflection->GetRepeatedEnumValue(message, descriptor, index);
        else
            findUnknownValues(message, descriptor, index - known, &number);
        return FieldValue::fromSigned(number, 32);
    }
    case FieldDescriptor::CPPTYPE_STRING: {
        std::string scratch;
        const std::string &text
            = reflection->GetRepeatedStringReference(message, descriptor, index, &scratch);
        return descriptor->type() == FieldDescriptor::TYPE_BYTES
                   ? bytesValue(text)
                   : FieldValue::fromText(cutText(fromUtf8(text), maximumCharacters));
    }
    case FieldDescriptor::CPPTYPE_MESSAGE:
        return makeSubMessage(owning,
                              isMap ? owning.getMapEntry(descriptor, index)
                                    : reflection->GetRepeatedMessage(message, descriptor, index));
    }
    return FieldValue::invalid();
}

QString ProtobufFieldInfo::readText(const Content &message) const
{
    std::string scratch;
    return fromUtf8(message.GetReflection()->GetStringReference(message, descriptor, &scratch));
}

QString ProtobufFieldInfo::readString(const Message *message) const
{
    if (message->getInfo() != owner)
        return {};
    return cutText(readText(asProtobuf(message).getMessage()), maximumCharacters);
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

FieldValue ProtobufAnyFieldInfo::readValue(const Message *message, unsigned int) const
{
    const ProtobufMessage &any = asProtobuf(message);
    return FieldValue::fromSubMessage(any.getPart(*any.resolveAny(any.getMessage()),
                                                  getType().getSubMessageInfo(), isConfidential()));
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
