#include "fieldvalue.h"

#include "corvane.h"
#include "decodedfieldinfo.h"
#include "numbertext.h"

#include <QChar>

#include <bit>
#include <utility>

namespace {

enum Kind : quint8 {
    Nothing,
    Signed,
    Unsigned,
    SingleFloat,
    DoubleFloat,
    Boolean,
    Character,
    SubMessage,
    Text,
    Bytes
};

template <typename T>
quint64 bitsOf(T *pointer)
{
    return reinterpret_cast<quintptr>(pointer);
}

template <typename T>
T *pointerIn(quint64 bits)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): all kinds of values share 64 bits
    return reinterpret_cast<T *>(static_cast<quintptr>(bits));
}

QString escaped(const QString &text)
{
    QString result(QLatin1Char('"'));
    for (const QChar c : text) {
        if (c == QLatin1Char('"') || c == QLatin1Char('\\'))
            result += QLatin1Char('\\') + QString(c);
        else if (c.unicode() < 0x20 || c.unicode() == 0x7F)
            result += QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0'));
        else
            result += c;
    }
    return result + QLatin1Char('"');
}

QString digits(quint64 value, int sizeBits, FieldValue::RepresentationMode mode)
{
    if (sizeBits < 64)
        value &= (quint64(1) << sizeBits) - 1;
    if (mode == FieldValue::BinaryRepresentation)
        return QStringLiteral("0b")
               + QString::number(value, 2).rightJustified(sizeBits, QLatin1Char('0'));
    const int width = (sizeBits + 3) / 4;
    return QStringLiteral("0x")
           + QString::number(value, 16).toUpper().rightJustified(width, QLatin1Char('0'));
}

template <typename Float>
QString floatText(Float value, int precision, FieldValue::RepresentationMode mode)
{
    if (mode == FieldValue::ScientificRepresentation)
        return corvane::scientificTextOf(value, precision);
    return precision < 0 ? corvane::textOf(value)
                         : corvane::fixedTextOf(static_cast<double>(value), precision);
}

} // namespace

FieldValue::FieldValue() = default;

FieldValue::FieldValue(quint8 kind, quint64 bits, int sizeBits)
    : bits(bits)
    , kind(kind)
    , sizeBits(static_cast<quint8>(qBound(1, sizeBits, 64)))
{
}

FieldValue::~FieldValue()
{
    if (kind == Text)
        delete pointerIn<QString>(bits);
    if (kind == Bytes)
        delete pointerIn<QByteArray>(bits);
}

FieldValue::FieldValue(const FieldValue &other)
    : bits(other.bits)
    , kind(other.kind)
    , sizeBits(other.sizeBits)
    , confidential(other.confidential)
{
    if (kind == Text)
        bits = bitsOf(new QString(*pointerIn<QString>(other.bits)));
    if (kind == Bytes)
        bits = bitsOf(new QByteArray(*pointerIn<QByteArray>(other.bits)));
}

FieldValue &FieldValue::operator=(const FieldValue &other)
{
    if (this != &other)
        *this = FieldValue(other);
    return *this;
}

FieldValue FieldValue::invalid()
{
    return {};
}

FieldValue FieldValue::fromSigned(qint64 value, int sizeBits)
{
    return {Signed, static_cast<quint64>(value), sizeBits};
}

FieldValue FieldValue::fromUnsigned(quint64 value, int sizeBits)
{
    return {Unsigned, value, sizeBits};
}

FieldValue FieldValue::fromFloat(float value)
{
    return {SingleFloat, std::bit_cast<quint32>(value), 32};
}

FieldValue FieldValue::fromDouble(double value)
{
    return {DoubleFloat, std::bit_cast<quint64>(value), 64};
}

FieldValue FieldValue::fromBoolean(bool value)
{
    return {Boolean, value ? 1U : 0U, 1};
}

FieldValue FieldValue::fromCharacter(char32_t code)
{
    return {Character, code, 8};
}

FieldValue FieldValue::fromText(const QString &text)
{
    return {Text, bitsOf(new QString(text)), 8};
}

FieldValue FieldValue::fromBytes(const QByteArray &bytes)
{
    return {Bytes, bitsOf(new QByteArray(bytes)), 8};
}

FieldValue FieldValue::fromSubMessage(const Message *message)
{
    return {SubMessage, bitsOf(message), 64};
}

bool FieldValue::isValid() const
{
    return kind != Nothing;
}

bool FieldValue::isConfidential() const
{
    return confidential;
}

void FieldValue::setConfidential(bool isConfidential)
{
    confidential = isConfidential;
}

bool FieldValue::isHidden() const
{
    return confidential && !Corvane::confidentialInformationDisplayEnabled();
}

QString FieldValue::toString(bool quoted,
                             signed char precision,
                             FieldValue::RepresentationMode mode,
                             bool grouped) const
{
    if (isHidden())
        return corvane::confidentialText();
    const bool inDigits = mode == HexadecimalRepresentation || mode == BinaryRepresentation;
    const auto plain
        = [grouped](const QString &text) { return grouped ? corvane::groupedDigits(text) : text; };
    switch (kind) {
    case Signed:
        return inDigits ? digits(bits, sizeBits, mode)
                        : plain(QString::number(static_cast<qint64>(bits)));
    case Unsigned:
        return inDigits ? digits(bits, sizeBits, mode) : plain(QString::number(bits));
    case SingleFloat:
        return floatText(std::bit_cast<float>(static_cast<quint32>(bits)), precision, mode);
    case DoubleFloat:
        return floatText(std::bit_cast<double>(bits), precision, mode);
    case Boolean:
        return bits != 0 ? QStringLiteral("true") : QStringLiteral("false");
    case Character: {
        const QString text = QStringView(QChar::fromUcs4(static_cast<char32_t>(bits))).toString();
        return quoted ? escaped(text) : text;
    }
    case Text:
        return quoted ? escaped(*pointerIn<QString>(bits)) : *pointerIn<QString>(bits);
    case Bytes:
        return QStringLiteral("0x")
               + QString::fromLatin1(pointerIn<QByteArray>(bits)->toHex().toUpper());
    default:
        return {};
    }
}

const Message *FieldValue::getSubMessage() const
{
    return kind == SubMessage ? pointerIn<const Message>(bits) : nullptr;
}

std::optional<double> FieldValue::toDouble() const
{
    if (isHidden())
        return std::nullopt;
    switch (kind) {
    case Signed:
        return static_cast<double>(static_cast<qint64>(bits));
    case Unsigned:
    case Boolean:
    case Character:
        return static_cast<double>(bits);
    case SingleFloat:
        return static_cast<double>(std::bit_cast<float>(static_cast<quint32>(bits)));
    case DoubleFloat:
        return std::bit_cast<double>(bits);
    default:
        return std::nullopt;
    }
}

std::optional<quint64> FieldValue::toInteger() const
{
    return isHidden() ? std::nullopt : bitsOfInteger();
}

std::optional<quint64> FieldValue::bitsOfInteger() const
{
    const bool isInteger
        = kind == Signed || kind == Unsigned || kind == Boolean || kind == Character;
    return isInteger ? std::optional(bits) : std::nullopt;
}

bool operator==(const FieldValue &left, const FieldValue &right)
{
    if (left.kind != right.kind)
        return false;
    if (left.kind == Text)
        return *pointerIn<QString>(left.bits) == *pointerIn<QString>(right.bits);
    if (left.kind == Bytes)
        return *pointerIn<QByteArray>(left.bits) == *pointerIn<QByteArray>(right.bits);
    return left.bits == right.bits;
}
