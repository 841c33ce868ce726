#include "protobuflayout.h"

#include <google/protobuf/descriptor.pb.h>

#include <algorithm>

namespace corvane {

using google::protobuf::FieldDescriptor;
using google::protobuf::FileDescriptor;

namespace {

// Numbers below are found by a table; almost all are, and it stays small.
constexpr quint32 tableSize = 128;

ProtobufWireType wireTypeOf(FieldDescriptor::Type type)
{
    switch (type) {
    case FieldDescriptor::TYPE_DOUBLE:
    case FieldDescriptor::TYPE_FIXED64:
    case FieldDescriptor::TYPE_SFIXED64:
        return ProtobufWireType::Fixed64;
    case FieldDescriptor::TYPE_STRING:
    case FieldDescriptor::TYPE_BYTES:
    case FieldDescriptor::TYPE_MESSAGE:
        return ProtobufWireType::LengthDelimited;
    case FieldDescriptor::TYPE_GROUP:
        return ProtobufWireType::StartGroup;
    case FieldDescriptor::TYPE_FLOAT:
    case FieldDescriptor::TYPE_FIXED32:
    case FieldDescriptor::TYPE_SFIXED32:
        return ProtobufWireType::Fixed32;
    default:
        return ProtobufWireType::Varint;
    }
}

} // namespace

ProtobufField::ProtobufField(const FieldDescriptor *descriptor, int place)
    : descriptor(descriptor)
    , place(place)
    , type(descriptor->type())
    , wireType(wireTypeOf(descriptor->type()))
    , isList(descriptor->is_repeated())
    , isMap(descriptor->is_map())
    , isPackable(descriptor->is_packable())
    , mustBeUtf8(descriptor->type() == FieldDescriptor::TYPE_STRING
                 && descriptor->file()->syntax() == FileDescriptor::SYNTAX_PROTO3)
{
}

ProtobufLayout::ProtobufLayout(const Descriptor *type)
    : type(type)
    , messageSet(type->options().message_set_wire_format())
{
    std::vector<const FieldDescriptor *> descriptors;
    descriptors.reserve(static_cast<size_t>(type->field_count()));
    for (int i = 0; i < type->field_count(); ++i)
        descriptors.push_back(type->field(i));
    if (type->extension_range_count() > 0)
        type->file()->pool()->FindAllExtensions(type, &descriptors);

    for (const FieldDescriptor *descriptor : descriptors) {
        const auto place = static_cast<int>(fields.size());
        const auto number = static_cast<quint32>(descriptor->number());
        ProtobufField &field = fields.emplace_back(descriptor, place);
        if (const auto *oneof = descriptor->real_containing_oneof())
            field.choice = static_cast<int>(descriptors.size()) + oneof->index();
        if (number < tableSize) {
            low.resize(std::max<size_t>(low.size(), number + 1), -1);
            low[number] = place;
        } else {
            high.emplace_back(number, place);
        }
        ProtobufSlot &slot = emptySlots.emplace_back();
        slot.count = field.isList || descriptor->has_presence() ? 0 : 1;
    }
    std::sort(high.begin(), high.end());
    emptySlots.resize(fields.size() + static_cast<size_t>(type->real_oneof_decl_count()));
}

const ProtobufField *ProtobufLayout::find(const char *name) const
{
    const FieldDescriptor *descriptor = type->FindFieldByName(name);
    return descriptor != nullptr ? find(static_cast<quint32>(descriptor->number())) : nullptr;
}

const ProtobufField *ProtobufLayout::findHigh(quint32 number) const
{
    const auto found = std::lower_bound(high.begin(), high.end(), std::pair(number, 0));
    return found != high.end() && found->first == number
               ? &fields[static_cast<size_t>(found->second)]
               : nullptr;
}

} // namespace corvane
