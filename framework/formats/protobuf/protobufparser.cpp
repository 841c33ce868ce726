#include "protobufparser.h"

#include "protobufarena.h"
#include "protobuflayout.h"

#include <QtEndian>

#include <algorithm>
#include <string_view>

namespace corvane {

using google::protobuf::FieldDescriptor;

namespace {

// What libprotobuf takes as well.
constexpr int maximumDepth = 100;
constexpr qptrdiff maximumTagSize = 5; // also that of a length
constexpr int maximumVarintBits = 70;

using WireType = ProtobufWireType;

/** The tag of a field. */
constexpr quint32 tagOf(quint32 number, WireType type)
{
    return (number << 3) | static_cast<quint32>(type);
}

// A message set, which is an old form of extensions, consists of groups of a number and a message.
constexpr quint32 setItemTag = tagOf(1, WireType::StartGroup);
constexpr quint32 setItemEndTag = tagOf(1, WireType::EndGroup);
constexpr quint32 setNumberTag = tagOf(2, WireType::Varint);
constexpr quint32 setMessageTag = tagOf(3, WireType::LengthDelimited);

quint32 numberOf(quint32 tag)
{
    return tag >> 3;
}

WireType wireTypeOf(quint32 tag)
{
    return static_cast<WireType>(tag & 7);
}

quint64 fixedSizeOf(WireType type)
{
    return type == WireType::Fixed64 ? 8 : 4;
}

quint64 fromSigned(qint64 number)
{
    return static_cast<quint64>(number);
}

/** Numbers near 0 are small ones in this form, negative ones as well. */
quint64 fromZigZag(quint64 number)
{
    return (number >> 1) ^ (~(number & 1) + 1);
}

/** What is sent as a varint. */
quint64 fromVarint(FieldDescriptor::Type type, quint64 value)
{
    const auto low = static_cast<quint32>(value);
    switch (type) {
    case FieldDescriptor::TYPE_INT32:
    case FieldDescriptor::TYPE_ENUM:
        return fromSigned(static_cast<qint32>(low));
    case FieldDescriptor::TYPE_UINT32:
        return low;
    case FieldDescriptor::TYPE_SINT32:
        return fromZigZag(low);
    case FieldDescriptor::TYPE_SINT64:
        return fromZigZag(value);
    case FieldDescriptor::TYPE_BOOL:
        return value != 0 ? 1 : 0;
    default:
        return value;
    }
}

std::string_view viewOf(const ProtobufSlot &slot)
{
    return {slot.text, slot.room};
}

/** Whether the key of map entry \a left comes before that of \a right. */
bool isBefore(const ProtobufRecord &left, const ProtobufRecord &right, const ProtobufField &key)
{
    const ProtobufSlot &leftSlot = left.at(key.place);
    const ProtobufSlot &rightSlot = right.at(key.place);
    switch (key.descriptor->cpp_type()) {
    case FieldDescriptor::CPPTYPE_STRING:
        return viewOf(leftSlot) < viewOf(rightSlot);
    case FieldDescriptor::CPPTYPE_INT32:
    case FieldDescriptor::CPPTYPE_INT64:
        return static_cast<qint64>(leftSlot.number) < static_cast<qint64>(rightSlot.number);
    default:
        return leftSlot.number < rightSlot.number;
    }
}

void sortMap(ProtobufSlot &slot, const ProtobufLayout &entry)
{
    const ProtobufField &key = *entry.find(1);
    std::stable_sort(slot.records, slot.records + slot.count,
                     [&](const ProtobufRecord *left, const ProtobufRecord *right) {
                         return isBefore(*left, *right, key);
                     });
}

/** The slot of a single value that came: of those in its "oneof" it is the one that counts. */
ProtobufSlot &claimSlot(const ProtobufField &field, ProtobufRecord &record)
{
    ProtobufSlot &slot = record.at(field.place);
    if (field.choice < 0)
        return slot;
    ProtobufSlot &choice = record.at(field.choice);
    const auto place = static_cast<quint64>(field.place);
    if (choice.count != 0 && choice.number != place)
        record.at(static_cast<int>(choice.number)).count = 0;
    choice.count = 1;
    choice.number = place;
    return slot;
}

} // namespace

ProtobufParser::ProtobufParser(ProtobufArena &arena, quint64 maximumMemory)
    : arena(arena)
    , maximumMemory(maximumMemory)
{
}

const ProtobufRecord *ProtobufParser::parse(const ProtobufLayout &layout, QByteArrayView bytes)
{
    const auto *begin = reinterpret_cast<const uchar *>(bytes.data());
    Rest rest{begin, begin + bytes.size()};
    ProtobufRecord *record = makeRecord(layout);
    if (record == nullptr || !readFields(rest, *record, 0, 0))
        return nullptr;
    for (const auto &[slot, entry] : maps)
        sortMap(*slot, *entry);
    maps.clear();
    return record;
}

bool ProtobufParser::readVarint(Rest &rest, quint64 &value)
{
    value = 0;
    for (int shift = 0; shift < maximumVarintBits && rest.at != rest.end; shift += 7) {
        const quint64 byte = *rest.at++;
        value |= (byte & 0x7F) << shift;
        if (byte < 0x80)
            return true;
    }
    return false;
}

bool ProtobufParser::readTag(Rest &rest, quint32 &tag)
{
    const uchar *begin = rest.at;
    quint64 value = 0;
    if (!readVarint(rest, value))
        return false;
    tag = static_cast<quint32>(value);
    return rest.at - begin <= maximumTagSize && numberOf(tag) != 0;
}

bool ProtobufParser::readNumber(const ProtobufField &field, Rest &rest, quint64 &number)
{
    if (field.wireType == WireType::Varint) {
        if (!readVarint(rest, number))
            return false;
        number = fromVarint(field.type, number);
        return true;
    }
    Rest bytes{};
    if (!take(rest, fixedSizeOf(field.wireType), bytes))
        return false;
    if (field.wireType == WireType::Fixed64)
        number = qFromLittleEndian<quint64>(bytes.at);
    else if (field.type == FieldDescriptor::TYPE_SFIXED32)
        number = fromSigned(qFromLittleEndian<qint32>(bytes.at));
    else
        number = qFromLittleEndian<quint32>(bytes.at);
    return true;
}

bool ProtobufParser::take(Rest &rest, quint64 size, Rest &taken)
{
    if (size > static_cast<quint64>(rest.end - rest.at))
        return false;
    taken = {rest.at, rest.at + size};
    rest.at = taken.end;
    return true;
}

bool ProtobufParser::takeContent(Rest &rest, Rest &content)
{
    const uchar *begin = rest.at;
    quint64 size = 0;
    return readVarint(rest, size) && rest.at - begin <= maximumTagSize && take(rest, size, content);
}

bool ProtobufParser::readFields(Rest &rest, ProtobufRecord &record, int depth, quint32 group)
{
    const ProtobufLayout &layout = record.getLayout();
    while (rest.at != rest.end) {
        quint32 tag = 0;
        if (!readTag(rest, tag))
            return false;
        const WireType wireType = wireTypeOf(tag);
        if (wireType == WireType::EndGroup)
            return numberOf(tag) == group;
        const ProtobufField *field = layout.find(numberOf(tag));
        bool good = false;
        if (field != nullptr && wireType == field->wireType) {
            good = readValue(*field, rest, record, depth);
        } else if (field != nullptr && field->isPackable && wireType == WireType::LengthDelimited) {
            good = readPacked(*field, rest, record.at(field->place));
        } else {
            if (field == nullptr && wireType == WireType::LengthDelimited
                && record.unknownNumber == 0)
                record.unknownNumber = numberOf(tag);
            const bool isItem = tag == setItemTag && layout.isMessageSet();
            good = isItem ? readSetItem(rest, record, depth) : skip(tag, rest, depth);
        }
        if (!good)
            return false;
    }
    return group == 0;
}

bool ProtobufParser::readValue(const ProtobufField &field,
                               Rest &rest,
                               ProtobufRecord &record,
                               int depth)
{
    switch (field.type) {
    case FieldDescriptor::TYPE_MESSAGE:
    case FieldDescriptor::TYPE_GROUP:
        return readMessage(field, rest, record, depth);
    case FieldDescriptor::TYPE_STRING:
    case FieldDescriptor::TYPE_BYTES:
        return readText(field, rest, record);
    default:
        break;
    }
    quint64 number = 0;
    if (!readNumber(field, rest, number))
        return false;
    if (field.isList)
        return append(record.at(field.place), &ProtobufSlot::numbers, number);
    ProtobufSlot &slot = claimSlot(field, record);
    slot.count = 1;
    slot.number = number;
    return true;
}

bool ProtobufParser::readText(const ProtobufField &field, Rest &rest, ProtobufRecord &record)
{
    Rest content{};
    if (!takeContent(rest, content))
        return false;
    const auto *text = reinterpret_cast<const char *>(content.at);
    const qptrdiff size = content.end - content.at;
    if (field.mustBeUtf8 && !QByteArrayView(text, size).isValidUtf8())
        return false;
    if (field.isList)
        return append(record.at(field.place), &ProtobufSlot::texts, ProtobufText{text, size});
    ProtobufSlot &slot = claimSlot(field, record);
    slot.count = 1;
    slot.room = static_cast<quint32>(size);
    slot.text = text;
    return true;
}

bool ProtobufParser::readPacked(const ProtobufField &field, Rest &rest, ProtobufSlot &slot)
{
    Rest content{};
    if (!takeContent(rest, content))
        return false;
    const auto size = static_cast<quint64>(content.end - content.at);
    quint64 count = 0;
    if (field.wireType == WireType::Varint)
        count = static_cast<quint64>(
            std::count_if(content.at, content.end, [](uchar byte) { return byte < 0x80; }));
    else
        count = size / fixedSizeOf(field.wireType);
    if (!makeRoom(slot, &ProtobufSlot::numbers, slot.count + count))
        return false;
    while (content.at != content.end) {
        quint64 number = 0;
        if (!readNumber(field, content, number))
            return false;
        slot.numbers[slot.count++] = number;
    }
    return true;
}

bool ProtobufParser::readMessage(const ProtobufField &field,
                                 Rest &rest,
                                 ProtobufRecord &record,
                                 int depth)
{
    if (depth == maximumDepth)
        return false;
    Rest content{};
    const bool isGroup = field.wireType == WireType::StartGroup;
    if (!isGroup && !takeContent(rest, content))
        return false;
    ProtobufRecord *inner
        = addRecord(field, field.isList ? record.at(field.place) : claimSlot(field, record));
    if (inner == nullptr)
        return false;
    return isGroup ? readFields(rest, *inner, depth + 1,
                                static_cast<quint32>(field.descriptor->number()))
                   : readFields(content, *inner, depth + 1, 0);
}

bool ProtobufParser::readSetItem(Rest &rest, ProtobufRecord &record, int depth)
{
    // The group and the message in it.
    const int innerDepth = depth + 2;
    if (innerDepth > maximumDepth)
        return false;
    quint64 number = 0;
    Rest content{};
    quint32 tag = 0;
    while (tag != setItemEndTag) {
        bool good = rest.at != rest.end && readTag(rest, tag);
        if (good && tag == setNumberTag)
            good = readVarint(rest, number);
        else if (good && tag == setMessageTag)
            good = takeContent(rest, content);
        else if (good && tag != setItemEndTag)
            good = skip(tag, rest, depth + 1);
        if (!good)
            return false;
    }
    const ProtobufField *field = record.getLayout().find(static_cast<quint32>(number));
    if (field == nullptr || field->inner == nullptr)
        return true;
    ProtobufRecord *inner = addRecord(*field, record.at(field->place));
    return inner != nullptr && readFields(content, *inner, innerDepth, 0);
}

bool ProtobufParser::skip(quint32 tag, Rest &rest, int depth)
{
    Rest unused{};
    quint64 number = 0;
    switch (wireTypeOf(tag)) {
    case WireType::Varint:
        return readVarint(rest, number);
    case WireType::LengthDelimited:
        return takeContent(rest, unused);
    case WireType::Fixed64:
    case WireType::Fixed32:
        return take(rest, fixedSizeOf(wireTypeOf(tag)), unused);
    case WireType::StartGroup:
        break;
    default:
        return false;
    }
    if (depth == maximumDepth)
        return false;
    while (rest.at != rest.end) {
        quint32 inner = 0;
        if (!readTag(rest, inner))
            return false;
        if (wireTypeOf(inner) == WireType::EndGroup)
            return numberOf(inner) == numberOf(tag);
        if (!skip(inner, rest, depth + 1))
            return false;
    }
    return false;
}

ProtobufRecord *ProtobufParser::addRecord(const ProtobufField &field, ProtobufSlot &slot)
{
    // A single sub-message that comes in parts is one all the same.
    if (!field.isList && slot.count != 0)
        return slot.record;
    ProtobufRecord *record = makeRecord(*field.inner);
    if (record == nullptr || (field.isList && !append(slot, &ProtobufSlot::records, record)))
        return nullptr;
    if (!field.isList) {
        slot.count = 1;
        slot.record = record;
    } else if (field.isMap && slot.count == 2) {
        maps.emplace_back(&slot, field.inner);
    }
    return record;
}

ProtobufRecord *ProtobufParser::makeRecord(const ProtobufLayout &layout)
{
    const std::vector<ProtobufSlot> &slots = layout.getEmptySlots();
    void *place = allocate(sizeof(ProtobufRecord) + slots.size() * sizeof(ProtobufSlot));
    if (place == nullptr)
        return nullptr;
    auto *record = new (place) ProtobufRecord(layout);
    std::uninitialized_copy(slots.begin(), slots.end(), &record->at(0));
    return record;
}

template <typename Element>
bool ProtobufParser::makeRoom(ProtobufSlot &slot, Element *ProtobufSlot::*list, quint64 count)
{
    if (count <= slot.room)
        return true;
    constexpr quint64 fewest = 4;
    const quint64 room = std::max({count, quint64{2} * slot.room, fewest});
    // NOLINTNEXTLINE(bugprone-sizeof-expression): lists of sub-messages are lists of pointers
    auto *elements = static_cast<Element *>(allocate(room * sizeof(Element)));
    if (elements == nullptr)
        return false;
    std::uninitialized_copy_n(slot.*list, slot.count, elements);
    slot.*list = elements;
    slot.room = static_cast<quint32>(room);
    return true;
}

template <typename Element>
bool ProtobufParser::append(ProtobufSlot &slot, Element *ProtobufSlot::*list, Element element)
{
    if (!makeRoom(slot, list, quint64{slot.count} + 1))
        return false;
    (slot.*list)[slot.count++] = element;
    return true;
}

void *ProtobufParser::allocate(quint64 size)
{
    outOfMemory = outOfMemory || arena.getSize() + size > maximumMemory;
    return outOfMemory ? nullptr : arena.allocate(static_cast<size_t>(size));
}

} // namespace corvane
