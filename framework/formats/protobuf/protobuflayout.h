#pragma once

#include "protobufrecord.h"

#include <google/protobuf/descriptor.h>

#include <utility>
#include <vector>

namespace corvane {

/** How a value stands behind its tag, whose lowest three bits this is. */
enum class ProtobufWireType : quint32 {
    Varint = 0,
    Fixed64 = 1,
    LengthDelimited = 2,
    StartGroup = 3,
    EndGroup = 4,
    Fixed32 = 5
};

/** A field of a message type, and how its values stand in the bytes of a message. */
struct ProtobufField
{
    explicit ProtobufField(const google::protobuf::FieldDescriptor *descriptor, int place);

    const google::protobuf::FieldDescriptor *descriptor;
    int place; ///< Among the fields of the type.
    google::protobuf::FieldDescriptor::Type type;
    ProtobufWireType wireType; ///< Of a value that is not packed.
    bool isList;
    bool isMap;
    bool isPackable;
    bool mustBeUtf8;
    const ProtobufLayout *inner = nullptr; ///< What a message field holds.
    int choice = -1; ///< Where records keep which field of its "oneof" is there; -1 without one.
};

/**
 * The fields of a message type, with its extensions, each with a place in the records of the type.
 *
 * As \l{https://protobuf.dev/programming-guides/encoding}{the encoding} has it.
 */
class ProtobufLayout
{
public:
    using Descriptor = google::protobuf::Descriptor;

    explicit ProtobufLayout(const Descriptor *type);

    const Descriptor *getType() const { return type; }

    /** Whether extensions are sent in the old form of a set. */
    bool isMessageSet() const { return messageSet; }

    /** In the order of their places: that of the definition, then the extensions. */
    const std::vector<ProtobufField> &getFields() const { return fields; }

    std::vector<ProtobufField> &getFields() { return fields; }

    /** Null where the type has no field of that number. */
    const ProtobufField *find(quint32 number) const
    {
        if (number < low.size())
            return low[number] < 0 ? nullptr : &fields[static_cast<size_t>(low[number])];
        return findHigh(number);
    }

    /** Null where the type itself has no field of that name. */
    const ProtobufField *find(const char *name) const;

    /**
     * What a message without any bytes has: fields without presence have a value all the same. The
     * slots behind those of the fields are for the choices.
     */
    const std::vector<ProtobufSlot> &getEmptySlots() const { return emptySlots; }

private:
    const ProtobufField *findHigh(quint32 number) const;

    const Descriptor *type;
    bool messageSet;
    std::vector<ProtobufField> fields;
    std::vector<int> low; ///< The place of each low number, or -1.
    std::vector<std::pair<quint32, int>> high; ///< Number and place of the others, sorted.
    std::vector<ProtobufSlot> emptySlots;
};

} // namespace corvane
