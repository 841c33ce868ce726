#include "fieldtext.h"

#include "descriptions.h"
#include "enumeration.h"
#include "exporttext.h"
#include "fieldinfo.h"
#include "messageinfo.h"

#include <charconv>
#include <cmath>

namespace corvane {

namespace {

// A counter with a few names would otherwise be remembered whole.
constexpr size_t maximumSymbols = 1024;

QString pathOf(const FieldInfo *field)
{
    const FieldInfo *parent = field->getParentFieldInfo();
    const QString &name = field->getData()->name;
    return parent == nullptr ? name : pathOf(parent) + QLatin1Char('.') + name;
}

bool isTextCode(qint32 code)
{
    return code == FieldType::Character || code == FieldType::UnsignedCharacter
           || code == FieldType::Text || code == FieldType::Bytes;
}

template <typename Number>
void appendNumber(std::string &out, Number number)
{
    char text[32];
    out.append(text, std::to_chars(text, text + sizeof text, number).ptr);
}

void appendInteger(std::string &out, const FieldValue &value, quint64 bits)
{
    if (value.toDouble().value_or(0) < 0)
        appendNumber(out, static_cast<qint64>(bits));
    else
        appendNumber(out, bits);
}

FieldText::Token appendFloat(std::string &out, double number, int sizeBits)
{
    if (!std::isfinite(number)) {
        out += std::isnan(number) ? "NaN" : number < 0 ? "-Infinity" : "Infinity";
        return FieldText::Token::Text;
    }
    const auto single = static_cast<float>(number);
    if (sizeBits == 32 && static_cast<double>(single) == number)
        appendNumber(out, single);
    else
        appendNumber(out, number);
    return FieldText::Token::Literal;
}

bool isBitOfMask(const FieldInfo *field)
{
    const FieldInfo *parent = field->getParentFieldInfo();
    return parent != nullptr && parent->getData()->symbols != nullptr
           && parent->getData()->symbols->isBitMask();
}

} // namespace

FieldText::FieldText(const FieldInfo *field, ValueNames names)
    : field(field)
    , hasSymbols(names == ValueNames::Symbolic && field->getData()->symbols != nullptr)
    , isText(isTextCode(field->getType().getCode()))
{
    appendUtf8(path, pathOf(field));
    key = path;
    quoteJson(key, 0);
    key += ':';
}

FieldText::Token FieldText::append(std::string &out, const FieldValue &value)
{
    const auto bits = isText && !hasSymbols ? std::nullopt : value.toInteger();
    if (bits && hasSymbols) {
        if (const std::string &symbol = getSymbol(value, *bits); !symbol.empty()) {
            out += symbol;
            return Token::Text;
        }
    }
    if (bits && !isText) {
        if (field->getType().getCode() == FieldType::Boolean)
            out += *bits != 0 ? "true" : "false";
        else
            appendInteger(out, value, *bits);
        return Token::Literal;
    }
    if (const auto number = isText ? std::nullopt : value.toDouble())
        return appendFloat(out, *number, field->getType().getSizeBits());
    const QString text = value.toString(false, -1, FieldValue::DefaultRepresentation, false);
    // A hidden value may not even be there, and has the text of all hidden values.
    if (!value.isValid() && text.isEmpty())
        return Token::Nothing;
    appendUtf8(out, text);
    return Token::Text;
}

const std::string &FieldText::getSymbol(const FieldValue &value, quint64 bits)
{
    const auto known = symbols.find(bits);
    if (known != symbols.end())
        return known->second;
    if (symbols.size() >= maximumSymbols)
        symbols.clear();
    std::string &symbol = symbols[bits];
    const QString text = field->getInterpretedString(value, true);
    if (text != field->getRawString(value))
        appendUtf8(symbol, text);
    return symbol;
}

QList<const FieldInfo *> getExportedFields(const MessageInfo *type)
{
    QList<const FieldInfo *> fields = type->getFieldInfos();
    fields.removeIf(isBitOfMask);
    return fields;
}

} // namespace corvane
