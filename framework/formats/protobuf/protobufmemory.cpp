#include "protobufmemory.h"

#include <google/protobuf/io/coded_stream.h>
#include <google/protobuf/wire_format_lite.h>

namespace corvane {

using google::protobuf::Descriptor;
using google::protobuf::FieldDescriptor;
using google::protobuf::internal::WireFormatLite;

namespace {

constexpr int maximumDepth = 100;
// What an element of a list, or a field that is not known, takes beside its content.
constexpr quint64 elementSize = 40;

quint64 sizeOf(const Descriptor *type)
{
    return 64 + (type != nullptr ? static_cast<quint64>(type->field_count()) * 24 : 0);
}

class Estimate
{
public:
    Estimate(QByteArrayView bytes, quint64 limit)
        : input(reinterpret_cast<const uint8_t *>(bytes.data()), static_cast<int>(bytes.size()))
        , limit(limit)
    {
    }

    bool isWithinLimit() const { return used <= limit; }

    /** Adds what is read up to the end of the message, or of the group that it is. */
    void addMessage(const Descriptor *type, int depth)
    {
        used += sizeOf(type);
        while (isWithinLimit()) {
            const uint32_t tag = input.ReadTag();
            const auto wireType = WireFormatLite::GetTagWireType(tag);
            if (tag == 0 || wireType == WireFormatLite::WIRETYPE_END_GROUP || depth > maximumDepth
                || !addField(findField(type, WireFormatLite::GetTagFieldNumber(tag)), tag, depth))
                return;
        }
    }

private:
    static const FieldDescriptor *findField(const Descriptor *type, int number)
    {
        if (type == nullptr)
            return nullptr;
        const FieldDescriptor *field = type->FindFieldByNumber(number);
        if (field != nullptr || !type->IsExtensionNumber(number))
            return field;
        return type->file()->pool()->FindExtensionByNumber(type, number);
    }

    bool addField(const FieldDescriptor *field, uint32_t tag, int depth)
    {
        used += elementSize;
        const Descriptor *inner = field != nullptr ? field->message_type() : nullptr;
        switch (WireFormatLite::GetTagWireType(tag)) {
        case WireFormatLite::WIRETYPE_START_GROUP:
            addMessage(inner, depth + 1);
            return true;
        case WireFormatLite::WIRETYPE_LENGTH_DELIMITED:
            return addContent(field, inner, depth);
        default:
            return WireFormatLite::SkipField(&input, tag);
        }
    }

    bool addContent(const FieldDescriptor *field, const Descriptor *inner, int depth)
    {
        int size = 0;
        if (!input.ReadVarintSizeAsInt(&size))
            return false;
        if (inner == nullptr) {
            if (!input.Skip(size))
                return false;
            // A packed list may have an element of 8 bytes for each byte.
            const bool isPacked = field != nullptr && field->is_packable();
            used += static_cast<quint64>(size) * (isPacked ? 8 : 1);
            return true;
        }
        const auto outer = input.PushLimit(size);
        addMessage(inner, depth + 1);
        const bool isWhole = input.Skip(input.BytesUntilLimit());
        input.PopLimit(outer);
        return isWhole;
    }

    google::protobuf::io::CodedInputStream input;
    quint64 limit;
    quint64 used = 0;
};

} // namespace

bool fitsIntoMemory(QByteArrayView bytes, const Descriptor *type, quint64 limit)
{
    Estimate estimate(bytes, limit);
    estimate.addMessage(type, 0);
    return estimate.isWithinLimit();
}

} // namespace corvane
