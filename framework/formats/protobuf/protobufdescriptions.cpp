#include "protobufdescriptions.h"

#include "descriptions.h"
#include "enumeration.h"
#include "formatinfo.h"
#include "messageinfo.h"
#include "protobufcomment.h"
#include "protobuffieldinfo.h"

#include <algorithm>
#include <array>

namespace corvane {

using google::protobuf::Descriptor;
using google::protobuf::FieldDescriptor;

namespace {

constexpr std::array levels = {32, 16, 8, 4, 2, 1, 0};
constexpr quint64 maximumRows = 20'000;
constexpr size_t maximumMessages = 20'000;
constexpr size_t maximumAnyContents = 100;

/** Definitions may bring an Any of their own, which need not look like one. */
bool isAny(const Descriptor *type)
{
    const auto isSingle = [type](int number, FieldDescriptor::Type fieldType) {
        const FieldDescriptor *field = type->FindFieldByNumber(number);
        return field != nullptr && field->type() == fieldType && !field->is_repeated();
    };
    return type->full_name() == "google.protobuf.Any" && isSingle(1, FieldDescriptor::TYPE_STRING)
           && isSingle(2, FieldDescriptor::TYPE_BYTES);
}

FieldType fieldTypeOf(const FieldDescriptor *field)
{
    switch (field->cpp_type()) {
    case FieldDescriptor::CPPTYPE_INT32:
    case FieldDescriptor::CPPTYPE_ENUM:
        return {FieldType::SignedInteger, 32};
    case FieldDescriptor::CPPTYPE_INT64:
        return {FieldType::SignedInteger, 64};
    case FieldDescriptor::CPPTYPE_UINT32:
        return {FieldType::UnsignedInteger, 32};
    case FieldDescriptor::CPPTYPE_UINT64:
        return {FieldType::UnsignedInteger, 64};
    case FieldDescriptor::CPPTYPE_FLOAT:
        return {FieldType::Float, 32};
    case FieldDescriptor::CPPTYPE_DOUBLE:
        return {FieldType::Float, 64};
    case FieldDescriptor::CPPTYPE_BOOL:
        return {FieldType::Boolean, 1};
    case FieldDescriptor::CPPTYPE_STRING:
        if (field->type() == FieldDescriptor::TYPE_BYTES)
            return {FieldType::Bytes, 0};
        return field->is_repeated() ? FieldType(FieldType::Text, 0)
                                    : FieldType(FieldType::Character, 8);
    case FieldDescriptor::CPPTYPE_MESSAGE:
        break;
    }
    // A message that is not described any further.
    return {FieldType::Text, 0};
}

} // namespace

ProtobufDescriber::ProtobufDescriber(const ProtobufSchema &schema,
                                     const FormatInfo *format,
                                     const std::string &package)
    : schema(schema)
    , format(format)
    , package(package)
{
    if (!package.empty())
        format->getData()->package = QString::fromStdString(package + '.');
}

ProtobufDescriber::~ProtobufDescriber() = default;

const MessageInfo *ProtobufDescriber::describe(const Descriptor *root)
{
    const Key key{root, 0, false};
    findCircles(root);
    for (const Descriptor *content : getAnyContents({nullptr, 0, false}))
        if (!order.contains(content))
            findCircles(content);
    chooseMaximumLevel(key);
    if (countRows(key) > maximumRows)
        return nullptr;
    const MessageInfo *info = makeMessage(key);
    if (messages.size() >= maximumMessages)
        return nullptr;
    info->getData()->main = true;
    return info;
}

std::vector<const Descriptor *> ProtobufDescriber::getAnyContents(const Key &key) const
{
    std::vector<const Descriptor *> contents;
    if (key.insideAny)
        return contents;
    for (const auto *file : schema.getFiles())
        for (int i = 0; i < file->message_type_count() && contents.size() < maximumAnyContents; ++i)
            contents.push_back(file->message_type(i));
    return contents;
}

void ProtobufDescriber::findCircles(const Descriptor *type)
{
    const int number = static_cast<int>(order.size());
    order[type] = number;
    lowest[type] = number;
    open.push_back(type);
    for (const ProtobufField &field : schema.getLayout(type).getFields()) {
        const Descriptor *inner = field.descriptor->message_type();
        if (inner == nullptr)
            continue;
        if (!order.contains(inner)) {
            findCircles(inner);
            lowest[type] = std::min(lowest[type], lowest[inner]);
        } else if (!circles.contains(inner)) {
            lowest[type] = std::min(lowest[type], order[inner]);
        }
    }
    if (lowest[type] != number)
        return;
    const Descriptor *last = nullptr;
    while (last != type) {
        last = open.back();
        open.pop_back();
        circles[last] = number;
    }
}

std::optional<ProtobufDescriber::Key> ProtobufDescriber::getInner(const Key &outer,
                                                                  const Descriptor *inner) const
{
    const bool inCircle = circles.at(outer.type) == circles.at(inner);
    const int level = inCircle ? outer.level + 1 : 0;
    return level <= maximumLevel ? std::optional(Key{inner, level, outer.insideAny}) : std::nullopt;
}

quint64 ProtobufDescriber::countRows(const Key &key)
{
    const auto known = rows.find(key);
    if (known != rows.end())
        return known->second;
    quint64 count = 0;
    for (const ProtobufField &field : schema.getLayout(key.type).getFields()) {
        ++count;
        const Descriptor *held = field.isList ? nullptr : field.descriptor->message_type();
        const auto inner = held != nullptr ? getInner(key, held) : std::nullopt;
        if (inner && count <= maximumRows)
            count += countRows(*inner);
    }
    rows[key] = count;
    return count;
}

void ProtobufDescriber::chooseMaximumLevel(const Key &root)
{
    for (const int level : levels) {
        maximumLevel = level;
        rows.clear();
        if (countRows(root) <= maximumRows)
            return;
    }
}

const MessageInfo *ProtobufDescriber::makeMessage(const Key &key)
{
    const auto known = messages.find(key);
    if (known != messages.end())
        return known->second;

    const ProtobufComment comment = ProtobufComment::of(key.type);
    auto data = std::make_unique<MessageInfoData>();
    data->name = getName(key.type);
    data->shortDescription = firstSentence(comment.text);
    data->description = comment.text;
    data->format = format;
    data->main = false;
    FormatInfoData &all = *format->getData();
    MessageInfo *first = all.messagesByName.value(data->name);
    if (first != nullptr) {
        data->displayName = data->name;
        data->name += QStringLiteral("#%1").arg(first->getData()->variants.size() + 2);
    }
    MessageInfo *message = all.addMessage(std::make_unique<MessageInfo>(std::move(data)));
    if (first != nullptr)
        first->getData()->variants.append(message);
    messages[key] = message;
    for (const ProtobufField &field : schema.getLayout(key.type).getFields())
        if (messages.size() < maximumMessages)
            addField(message, key, field);
    if (isAny(key.type))
        addAnyContents(message, key);
    return message;
}

void ProtobufDescriber::addField(MessageInfo *message, const Key &key, const ProtobufField &field)
{
    const Descriptor *held = field.descriptor->message_type();
    const auto inner = held != nullptr ? getInner(key, held) : std::nullopt;
    const FieldType type = inner ? FieldType(makeMessage(*inner)) : fieldTypeOf(field.descriptor);
    message->getData()->addField(
        std::make_unique<ProtobufFieldInfo>(field, type, message, makeFieldData(field.descriptor)),
        message);
}

void ProtobufDescriber::addAnyContents(MessageInfo *message, const Key &key)
{
    for (const Descriptor *content : getAnyContents(key)) {
        auto data = std::make_unique<FieldInfoData>();
        data->name = QLatin1Char('[') + getName(content) + QLatin1Char(']');
        data->description = ProtobufComment::of(content).text;
        // As elements of a list, so that rows exist for the one type only that is there.
        data->repeated = true;
        const FieldType type(makeMessage({content, 0, true}));
        message->getData()->addField(
            std::make_unique<ProtobufAnyFieldInfo>(content, type, message, std::move(data)),
            message);
    }
}

std::unique_ptr<FieldInfoData> ProtobufDescriber::makeFieldData(const FieldDescriptor *field)
{
    const ProtobufComment comment = ProtobufComment::of(field);
    auto data = std::make_unique<FieldInfoData>();
    data->name = QString::fromStdString(field->is_extension() ? '[' + field->full_name() + ']'
                                                              : field->name());
    data->unit = comment.unit;
    data->description = comment.text;
    data->isString = !field->is_repeated() && field->type() == FieldDescriptor::TYPE_STRING;
    data->repeated = field->is_repeated() || data->isString;
    data->optional = !field->is_repeated() && field->has_presence() && !field->is_required();
    if (field->real_containing_oneof() != nullptr)
        data->choice = QString::fromStdString(field->real_containing_oneof()->name());
    if (field->enum_type() != nullptr)
        data->symbols = getEnumeration(field->enum_type());
    return data;
}

std::shared_ptr<const Enumeration>
ProtobufDescriber::getEnumeration(const google::protobuf::EnumDescriptor *descriptor)
{
    auto &known = enumerations[descriptor];
    if (known != nullptr)
        return known;
    auto made = std::make_shared<Enumeration>(QString::fromStdString(descriptor->name()));
    for (int i = 0; i < descriptor->value_count(); ++i) {
        const auto *value = descriptor->value(i);
        made->add({static_cast<quint64>(value->number()), QString::fromStdString(value->name()),
                   ProtobufComment::of(value).text});
    }
    known = made;
    return known;
}

QString ProtobufDescriber::getName(const Descriptor *type) const
{
    const std::string &name = type->full_name();
    const bool isOwn = !package.empty() && type->file()->package() == package;
    return QString::fromStdString(isOwn ? name.substr(package.size() + 1) : name);
}

} // namespace corvane
