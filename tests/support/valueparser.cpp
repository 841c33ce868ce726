#include "valueparser.h"

#include "descriptions.h"
#include "enumeration.h"
#include "fieldinfo.h"
#include "literalreader.h"

#include <charconv>
#include <limits>

namespace corvane::test {

namespace {

[[noreturn]] void failValue(const LiteralReader &reader, const Token &token, const FieldInfo *field)
{
    reader.fail(token, QStringLiteral("no value of type %1 for field %2")
                           .arg(field->getType().toShortString(), field->getData()->name));
}

quint64 magnitudeOf(const LiteralReader &reader, const Token &token)
{
    QString digits = token.text;
    if (digits.startsWith(QLatin1Char('-')))
        digits.remove(0, 1);
    const bool binary = digits.startsWith(QLatin1String("0b"));
    const bool hexadecimal = digits.startsWith(QLatin1String("0x"));
    bool good = false;
    const quint64 magnitude = binary || hexadecimal
                                  ? digits.mid(2).toULongLong(&good, binary ? 2 : 16)
                                  : digits.toULongLong(&good);
    if (token.kind != Token::Number || !good)
        reader.fail(token, QStringLiteral("expected an integer"));
    return magnitude;
}

template <typename Float>
Float floatOf(const LiteralReader &reader, const Token &token)
{
    const QByteArray text = token.text.toLatin1();
    Float value = 0;
    const auto end = std::from_chars(text.cbegin(), text.cend(), value);
    if (end.ec != std::errc() || end.ptr != text.cend())
        reader.fail(token, QStringLiteral("expected a number"));
    return value;
}

quint64 symbolValue(const LiteralReader &reader, const Token &token, const Enumeration *symbols)
{
    for (const auto &entry : symbols->getEntries())
        if (entry.name == token.text)
            return entry.value;
    reader.fail(token, QStringLiteral("no symbol %1 in %2").arg(token.text, symbols->getName()));
}

quint64 parseSymbols(LiteralReader &reader, const Enumeration *symbols)
{
    quint64 value = symbolValue(reader, reader.take(), symbols);
    while (symbols->isBitMask() && reader.takeIf('|'))
        value |= symbolValue(reader, reader.take(), symbols);
    return value;
}

quint64 parseIntegerOrSymbols(LiteralReader &reader, const FieldInfo *field, bool isSigned)
{
    const Enumeration *symbols = field->getData()->symbols.get();
    const bool named = reader.peek().kind == Token::Name || reader.peek().kind == Token::Text;
    return named && symbols != nullptr
               ? parseSymbols(reader, symbols)
               : parseInteger(reader, isSigned, field->getType().getSizeBits());
}

FieldValue parseCharacter(LiteralReader &reader, const FieldInfo *field)
{
    if (reader.peek().kind != Token::Text)
        return FieldValue::fromCharacter(static_cast<char32_t>(parseInteger(reader, false, 32)));
    const Token token = reader.take();
    const auto codes = token.text.toUcs4();
    if (codes.size() != 1)
        failValue(reader, token, field);
    return FieldValue::fromCharacter(codes.constFirst());
}

FieldValue parseBoolean(LiteralReader &reader, const FieldInfo *field)
{
    const Token token = reader.take();
    if (!token.is("true") && !token.is("false"))
        failValue(reader, token, field);
    return FieldValue::fromBoolean(token.is("true"));
}

FieldValue parseBytes(LiteralReader &reader, const FieldInfo *field)
{
    const Token token = reader.take();
    QString digits = token.text;
    digits.remove(QLatin1Char(' '));
    const QByteArray bytes = QByteArray::fromHex(digits.toLatin1());
    if (token.kind != Token::Text || bytes.size() * 2 != digits.size())
        failValue(reader, token, field);
    return FieldValue::fromBytes(bytes);
}

FieldValue parseText(LiteralReader &reader, const FieldInfo *field)
{
    const Token token = reader.take();
    if (token.kind != Token::Text)
        failValue(reader, token, field);
    return FieldValue::fromText(token.text);
}

FieldValue parseFloat(LiteralReader &reader, int sizeBits)
{
    const Token token = reader.take();
    return sizeBits == 32 ? FieldValue::fromFloat(floatOf<float>(reader, token))
                          : FieldValue::fromDouble(floatOf<double>(reader, token));
}

} // namespace

quint64 parseInteger(LiteralReader &reader, bool isSigned, int sizeBits)
{
    const Token token = reader.take();
    const quint64 magnitude = magnitudeOf(reader, token);
    const bool negative = token.text.startsWith(QLatin1Char('-'));
    const int unused = 64 - sizeBits;
    const quint64 unsignedLimit = std::numeric_limits<quint64>::max() >> unused;
    const quint64 limit = isSigned ? (unsignedLimit >> 1) + (negative ? 1 : 0) : unsignedLimit;
    if (magnitude > limit || (negative && !isSigned))
        reader.fail(token, QStringLiteral("out of range for %1 bits").arg(sizeBits));
    return negative ? 0 - magnitude : magnitude;
}

FieldValue parseValue(LiteralReader &reader, const FieldInfo *field)
{
    if (reader.takeIf("invalid"))
        return FieldValue::invalid();
    const int sizeBits = field->getType().getSizeBits();
    switch (field->getType().getCode()) {
    case FieldType::SignedInteger:
        return FieldValue::fromSigned(
            static_cast<qint64>(parseIntegerOrSymbols(reader, field, true)), sizeBits);
    case FieldType::UnsignedInteger:
        return FieldValue::fromUnsigned(parseIntegerOrSymbols(reader, field, false), sizeBits);
    case FieldType::Character:
    case FieldType::UnsignedCharacter:
        return parseCharacter(reader, field);
    case FieldType::Boolean:
        return parseBoolean(reader, field);
    case FieldType::Float:
        return parseFloat(reader, sizeBits);
    case FieldType::Text:
        return parseText(reader, field);
    case FieldType::Bytes:
        return parseBytes(reader, field);
    default:
        failValue(reader, reader.peek(), field);
    }
}

} // namespace corvane::test
