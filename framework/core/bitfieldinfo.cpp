#include "bitfieldinfo.h"

#include "descriptions.h"

namespace corvane {

namespace {

FieldType typeOf(BitFieldInfo::Bits bits)
{
    if (bits.isBoolean && bits.count == 1)
        return {FieldType::Boolean, 1};
    return {bits.isSigned ? FieldType::SignedInteger : FieldType::UnsignedInteger, bits.count};
}

std::unique_ptr<FieldInfoData> partOf(const FieldInfo *parent, std::unique_ptr<FieldInfoData> data)
{
    data->parent = parent;
    data->repeated = parent->isRepeated();
    data->optional = parent->isOptional();
    return data;
}

} // namespace

BitFieldInfo::BitFieldInfo(const FieldInfo *parent, Bits bits, std::unique_ptr<FieldInfoData> data)
    : DecodedFieldInfo(typeOf(bits), partOf(parent, std::move(data)))
    , bits(bits)
{
}

unsigned int BitFieldInfo::getNumberOfValues(const Message *message) const
{
    return getParentFieldInfo()->getNumberOfValues(message);
}

bool BitFieldInfo::getByteRange(const Message *message,
                                unsigned int index,
                                quint32 *offset,
                                quint32 *length) const
{
    return getParentFieldInfo()->getByteRange(message, index, offset, length);
}

FieldValue BitFieldInfo::readValue(const Message *message, unsigned int index) const
{
    const auto word = getParentFieldInfo()->getValue(message, index).bitsOfInteger();
    if (!word)
        return FieldValue::invalid();
    const int unused = 64 - bits.count;
    const quint64 atTop = *word << (unused - bits.first);
    if (bits.isSigned)
        return FieldValue::fromSigned(static_cast<qint64>(atTop) >> unused, bits.count);
    const quint64 value = atTop >> unused;
    if (getType().getCode() == FieldType::Boolean)
        return FieldValue::fromBoolean(value != 0);
    return FieldValue::fromUnsigned(value, bits.count);
}

} // namespace corvane
