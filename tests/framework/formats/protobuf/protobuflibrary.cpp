#include "protobuflibrary.h"

#include "fieldinfo.h"
#include "message.h"
#include "messageinfo.h"
#include "protobuffieldinfo.h"
#include "protobufmessages.h"

#include <google/protobuf/stubs/logging.h>
#include <google/protobuf/unknown_field_set.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace corvane::test {

using google::protobuf::FieldDescriptor;
using Content = google::protobuf::Message;

namespace {

QString compare(const Message *ours, const Content &theirs);

/** The number is kept among the unknown fields there, and where it was sent by the format. */
bool hasUnknownEnumerator(const Content &message, const FieldDescriptor *field)
{
    const auto isThere = [&message](const FieldDescriptor *asked) {
        const auto &unknown = message.GetReflection()->GetUnknownFields(message);
        for (int i = 0; i < unknown.field_count(); ++i)
            if (unknown.field(i).number() == asked->number() && asked->enum_type() != nullptr)
                return true;
        return false;
    };
    const auto *oneof = field->real_containing_oneof();
    for (int i = 0; oneof != nullptr && i < oneof->field_count(); ++i)
        if (isThere(oneof->field(i)))
            return true;
    return isThere(field);
}

FieldValue textValue(const FieldDescriptor *field, const std::string &text)
{
    return field->type() == FieldDescriptor::TYPE_BYTES
               ? FieldValue::fromBytes(QByteArray::fromStdString(text))
               : FieldValue::fromText(QString::fromStdString(text));
}

/** Whether the format shows only the beginning of some bytes. */
bool isCut(const FieldValue &value)
{
    return value.toString(false, -1, FieldValue::DefaultRepresentation, false)
        .contains(QStringLiteral("… (cut, "));
}

FieldValue singleValue(const Content &message, const FieldDescriptor *field)
{
    const auto *reflection = message.GetReflection();
    switch (field->cpp_type()) {
    case FieldDescriptor::CPPTYPE_INT32:
        return FieldValue::fromSigned(reflection->GetInt32(message, field), 32);
    case FieldDescriptor::CPPTYPE_INT64:
        return FieldValue::fromSigned(reflection->GetInt64(message, field), 64);
    case FieldDescriptor::CPPTYPE_UINT32:
        return FieldValue::fromUnsigned(reflection->GetUInt32(message, field), 32);
    case FieldDescriptor::CPPTYPE_UINT64:
        return FieldValue::fromUnsigned(reflection->GetUInt64(message, field), 64);
    case FieldDescriptor::CPPTYPE_DOUBLE:
        return FieldValue::fromDouble(reflection->GetDouble(message, field));
    case FieldDescriptor::CPPTYPE_FLOAT:
        return FieldValue::fromFloat(reflection->GetFloat(message, field));
    case FieldDescriptor::CPPTYPE_BOOL:
        return FieldValue::fromBoolean(reflection->GetBool(message, field));
    case FieldDescriptor::CPPTYPE_ENUM:
        return FieldValue::fromSigned(reflection->GetEnumValue(message, field), 32);
    default:
        return textValue(field, reflection->GetString(message, field));
    }
}

FieldValue listedValue(const Content &message, const FieldDescriptor *field, int index)
{
    const auto *reflection = message.GetReflection();
    switch (field->cpp_type()) {
    case FieldDescriptor::CPPTYPE_INT32:
        return FieldValue::fromSigned(reflection->GetRepeatedInt32(message, field, index), 32);
    case FieldDescriptor::CPPTYPE_INT64:
        return FieldValue::fromSigned(reflection->GetRepeatedInt64(message, field, index), 64);
    case FieldDescriptor::CPPTYPE_UINT32:
        return FieldValue::fromUnsigned(reflection->GetRepeatedUInt32(message, field, index), 32);
    case FieldDescriptor::CPPTYPE_UINT64:
        return FieldValue::fromUnsigned(reflection->GetRepeatedUInt64(message, field, index), 64);
    case FieldDescriptor::CPPTYPE_DOUBLE:
        return FieldValue::fromDouble(reflection->GetRepeatedDouble(message, field, index));
    case FieldDescriptor::CPPTYPE_FLOAT:
        return FieldValue::fromFloat(reflection->GetRepeatedFloat(message, field, index));
    case FieldDescriptor::CPPTYPE_BOOL:
        return FieldValue::fromBoolean(reflection->GetRepeatedBool(message, field, index));
    case FieldDescriptor::CPPTYPE_ENUM:
        return FieldValue::fromSigned(reflection->GetRepeatedEnumValue(message, field, index), 32);
    default:
        return textValue(field, reflection->GetRepeatedString(message, field, index));
    }
}

/** Entries of a map have another order there. */
QString compareMap(const ProtobufFieldInfo &field, const Message *ours, const Content &theirs)
{
    const FieldDescriptor *descriptor = field.getField().descriptor;
    const auto *reflection = theirs.GetReflection();
    std::vector<const Content *> left;
    for (int i = 0; i < reflection->FieldSize(theirs, descriptor); ++i)
        left.push_back(&reflection->GetRepeatedMessage(theirs, descriptor, i));
    for (unsigned int i = 0; i < field.getNumberOfValues(ours); ++i) {
        const Message *entry = field.getValue(ours, i).getSubMessage();
        const auto same = std::find_if(left.begin(), left.end(), [entry](const Content *candidate) {
            return entry == nullptr || compare(entry, *candidate).isEmpty();
        });
        if (same == left.end())
            return QStringLiteral("an entry is not there");
        left.erase(same);
    }
    return left.empty() ? QString() : QStringLiteral("an entry is missing");
}

QString compareField(const ProtobufFieldInfo &field, const Message *ours, const Content &theirs)
{
    const FieldDescriptor *descriptor = field.getField().descriptor;
    const auto *reflection = theirs.GetReflection();
    const bool isList = descriptor->is_repeated();
    if (hasUnknownEnumerator(theirs, descriptor))
        return {};
    if (descriptor->is_map())
        return compareMap(field, ours, theirs);
    const int count = isList ? reflection->FieldSize(theirs, descriptor)
                             : static_cast<int>(!descriptor->has_presence()
                                                || reflection->HasField(theirs, descriptor));
    if (field.isPresent(ours) != (count != 0))
        return QStringLiteral("presence");
    if (field.isStringField()) {
        const std::string text = count == 0 ? "" : reflection->GetString(theirs, descriptor);
        const bool isSame = field.getString(ours) == QString::fromStdString(text);
        return isSame ? QString() : QStringLiteral("text");
    }
    if (field.getNumberOfValues(ours) != static_cast<unsigned int>(count))
        return QStringLiteral("number of values");
    for (int i = 0; i < count; ++i) {
        const FieldValue value = field.getValue(ours, static_cast<unsigned int>(i));
        if (descriptor->message_type() == nullptr) {
            const FieldValue expected
                = isList ? listedValue(theirs, descriptor, i) : singleValue(theirs, descriptor);
            if (value != expected && !isCut(value))
                return QStringLiteral("value %1").arg(i);
        } else if (const Message *part = value.getSubMessage()) {
            const QString difference
                = compare(part, isList ? reflection->GetRepeatedMessage(theirs, descriptor, i)
                                       : reflection->GetMessage(theirs, descriptor));
            if (!difference.isEmpty())
                return difference;
        }
    }
    return {};
}

QString compare(const Message *ours, const Content &theirs)
{
    const auto fields = ours->getInfo()->getFieldInfos();
    for (const FieldInfo *field : fields) {
        const auto *transmitted = dynamic_cast<const ProtobufFieldInfo *>(field);
        const QString difference
            = transmitted != nullptr ? compareField(*transmitted, ours, theirs) : QString();
        if (!difference.isEmpty())
            return field->getName() + QStringLiteral(": ") + difference;
    }
    return {};
}

} // namespace

ProtobufLibrary::ProtobufLibrary(const ProtobufFormat &format)
    : format(format)
{
}

QString ProtobufLibrary::findDifference(const QByteArray &bytes)
{
    const google::protobuf::LogSilencer silencer;
    const std::unique_ptr<Content> theirs(factory.GetPrototype(format.getRoot())->New());
    const bool isTaken
        = theirs->ParsePartialFromArray(bytes.constData(), static_cast<int>(bytes.size()));
    const DecodedProtobuf ours(format, bytes);
    if (isTaken != (ours.get() != nullptr))
        return isTaken ? QStringLiteral("is refused") : QStringLiteral("is taken for a message");
    return isTaken ? compare(ours.get(), *theirs) : QString();
}

} // namespace corvane::test
