// Values: whole numbers, or nothing.

#include "fieldvalue.h"

namespace {

enum Kind : quint8 {
    Nothing,
    Number
};

} // namespace

FieldValue::FieldValue() = default;

FieldValue::FieldValue(quint8 kind, quint64 bits, int sizeBits)
    : bits(bits)
    , kind(kind)
    , sizeBits(static_cast<quint8>(sizeBits))
{
}

FieldValue::~FieldValue() = default;

FieldValue::FieldValue(const FieldValue &other) = default;

FieldValue &FieldValue::operator=(const FieldValue &other) = default;

FieldValue FieldValue::invalid()
{
    return {};
}

// [value]
FieldValue FieldValue::fromUnsigned(quint64 value, int sizeBits)
{
    return {Number, value, sizeBits};
}

QString FieldValue::toString(bool, signed char, RepresentationMode, bool) const
{
    return kind == Number ? QString::number(bits) : QString();
}

// [value]

const Message *FieldValue::getSubMessage() const
{
    return nullptr;
}
