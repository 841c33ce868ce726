#include "typeparser.h"

#include "bitfieldinfo.h"
#include "descriptions.h"
#include "enumeration.h"
#include "formatinfo.h"
#include "messageinfo.h"
#include "testfieldinfo.h"
#include "valueparser.h"

#include <QRegularExpression>

namespace corvane::test {

namespace {

struct NamedType
{
    const char *name;
    FieldType::Code code;
    int sizeBits;
};

constexpr NamedType namedTypes[] = {
    {"float", FieldType::Float, 32},   {"double", FieldType::Float, 64},
    {"char", FieldType::Character, 8}, {"uchar", FieldType::UnsignedCharacter, 8},
    {"bool", FieldType::Boolean, 1},   {"text", FieldType::Text, 0},
    {"bytes", FieldType::Bytes, 0},
};

struct Flag
{
    const char *name;
    bool FieldInfoData::*member;
};

constexpr Flag flags[] = {
    {"optional", &FieldInfoData::optional},
    {"confidential", &FieldInfoData::confidential},
    {"virtual", &FieldInfoData::isVirtual},
    {"instance", &FieldInfoData::instance},
};

struct NamedRole
{
    const char *name;
    FieldInfo::Role role;
};

constexpr NamedRole roles[] = {
    {"primary", FieldInfo::Primary},
    {"secondary", FieldInfo::Secondary},
    {"technical", FieldInfo::Technical},
};

/** The type of that name; with the code Invalid if there is none. */
FieldType typeOf(const QString &name, const FormatInfo *format)
{
    static const QRegularExpression integer(QStringLiteral("^(u?)int([1-9]|[1-5][0-9]|6[0-4])$"));
    for (const NamedType &type : namedTypes)
        if (name == QLatin1String(type.name))
            return {type.code, type.sizeBits};
    if (const auto match = integer.match(name); match.hasMatch())
        return {match.captured(1).isEmpty() ? FieldType::SignedInteger : FieldType::UnsignedInteger,
                match.captured(2).toInt()};
    const MessageInfo *subMessageInfo = format->getData()->findMessage(name);
    return subMessageInfo == nullptr ? FieldType() : FieldType(subMessageInfo);
}

bool isInteger(const FieldInfo *field)
{
    const qint32 code = field->getType().getCode();
    return code == FieldType::SignedInteger || code == FieldType::UnsignedInteger;
}

void listField(MessageInfo *type, const FieldInfo *field)
{
    type->getData()->fields.append(field);
    field->getData()->messageInfos.append(type);
    for (const FieldInfo *subField : field->getSubFieldInfos())
        listField(type, subField);
}

} // namespace

TypeParser::TypeParser(FormatInfo *format, const QString &text)
    : format(format)
    , text(text)
    , reader(text)
    , typeIndent(reader.peek().indent)
{
}

void TypeParser::parse()
{
    declareTypes();
    while (!reader.isAtEnd()) {
        const Token start = reader.peek();
        if (!start.firstOnLine || start.indent != typeIndent)
            reader.fail(start, QStringLiteral("expected the name of a message type"));
        parseType(format->getData()->findMessage(reader.take().text));
    }
}

void TypeParser::declareTypes()
{
    // Types may name types that follow.
    LiteralReader ahead(text);
    while (!ahead.isAtEnd()) {
        const Token start = ahead.peek();
        if (!start.firstOnLine || start.indent != typeIndent) {
            ahead.take();
            continue;
        }
        auto data = std::make_unique<MessageInfoData>();
        data->name = ahead.expectName("the name of a message type");
        data->format = format;
        data->number = static_cast<quint32>(format->getData()->messages.size());
        if (format->getData()->findMessage(data->name) != nullptr)
            ahead.fail(start, QStringLiteral("there is a type of this name already"));
        format->getData()->addMessage(std::make_unique<MessageInfo>(std::move(data)));
    }
}

void TypeParser::parseType(MessageInfo *type)
{
    MessageInfoData &data = *type->getData();
    while (!reader.peek().firstOnLine) {
        const Token token = reader.take();
        if (token.is("part"))
            data.main = false;
        else if (token.is("as"))
            data.displayName = takeText();
        else if (token.kind == Token::Text)
            data.shortDescription = token.text;
        else if (!token.is("main"))
            reader.fail(token, QStringLiteral("expected main, part, as or a description"));
    }
    levels.clear();
    while (!reader.isAtEnd() && reader.peek().indent > typeIndent)
        parseFieldLine(type);
}

void TypeParser::parseFieldLine(MessageInfo *type)
{
    const Token start = reader.peek();
    while (!levels.empty() && levels.back().indent >= start.indent)
        levels.pop_back();
    const FieldInfo *parent = levels.empty() ? nullptr : levels.back().field;
    const FieldInfo *field = parseField(type, parent);
    if (!reader.peek().firstOnLine)
        reader.fail(reader.peek(), QStringLiteral("expected an attribute or a new line"));
    levels.push_back({start.indent, field});
}

const FieldInfo *TypeParser::parseField(MessageInfo *type, const FieldInfo *parent)
{
    const Token start = reader.peek();
    auto data = std::make_unique<FieldInfoData>();
    data->name = reader.expectName("the name of a field");
    data->parent = parent;
    for (const FieldInfo *other : std::as_const(type->getData()->fields))
        if (other->getData()->name == data->name && other->getParentFieldInfo() == parent)
            reader.fail(start, QStringLiteral("there is a field of this name already"));
    if (reader.takeIf("from"))
        return share(type, data->name);
    if (reader.takeIf("bits"))
        return parseBits(type, parent, std::move(data));
    return parseOrdinary(type, std::move(data));
}

const FieldInfo *TypeParser::share(MessageInfo *type, const QString &fieldName)
{
    const Token start = reader.peek();
    const MessageInfo *other = format->getData()->findMessage(reader.take().text);
    const FieldInfo *field = other != nullptr ? other->getData()->findField(fieldName) : nullptr;
    if (field == nullptr)
        reader.fail(start, QStringLiteral("no type above has a field %1").arg(fieldName));
    listField(type, field);
    return field;
}

const FieldInfo *TypeParser::parseBits(MessageInfo *type,
                                       const FieldInfo *parent,
                                       std::unique_ptr<FieldInfoData> data)
{
    if (parent == nullptr || !isInteger(parent))
        reader.fail(reader.peek(), QStringLiteral("bits are part of an integer field"));
    const int width = parent->getType().getSizeBits();
    BitFieldInfo::Bits bits;
    bits.first = takeNumber(0, width - 1);
    if (reader.takeIf('.')) {
        reader.expect('.');
        bits.count = takeNumber(bits.first, width - 1) - bits.first + 1;
    }
    bits.isSigned = reader.takeIf("signed");
    bits.isBoolean = reader.takeIf("bool");
    parseAttributes(*data);
    return type->getData()->addField(std::make_unique<BitFieldInfo>(parent, bits, std::move(data)),
                                     type);
}

const FieldInfo *TypeParser::parseOrdinary(MessageInfo *type, std::unique_ptr<FieldInfoData> data)
{
    const Token start = reader.peek();
    const FieldType fieldType = typeOf(reader.expectName("a type"), format);
    if (fieldType.getCode() == FieldType::Invalid)
        reader.fail(start, QStringLiteral("no type %1").arg(start.text));
    if (reader.takeIf('[')) {
        reader.expect(']');
        data->repeated = true;
    }
    data->isString = data->repeated
                     && (fieldType.getCode() == FieldType::Character
                         || fieldType.getCode() == FieldType::UnsignedCharacter);
    parseAttributes(*data);
    return type->getData()->addField(std::make_unique<TestFieldInfo>(fieldType, std::move(data)),
                                     type);
}

void TypeParser::parseAttributes(FieldInfoData &data)
{
    while (!reader.peek().firstOnLine)
        if (!parseFlag(data) && !parseRole(data) && !parseTextAttribute(data))
            reader.fail(reader.peek(), QStringLiteral("unknown attribute"));
}

bool TypeParser::parseFlag(FieldInfoData &data)
{
    for (const Flag &flag : flags) {
        if (!reader.takeIf(flag.name))
            continue;
        data.*flag.member = true;
        return true;
    }
    return false;
}

bool TypeParser::parseRole(FieldInfoData &data)
{
    for (const NamedRole &role : roles) {
        if (!reader.takeIf(role.name))
            continue;
        data.role = role.role;
        return true;
    }
    if (!reader.takeIf("role"))
        return false;
    data.role = static_cast<FieldInfo::Role>(takeNumber(0, 1000));
    return true;
}

bool TypeParser::parseTextAttribute(FieldInfoData &data)
{
    if (reader.peek().kind == Token::Text)
        data.description = takeText();
    else if (reader.takeIf("as"))
        data.displayName = takeText();
    else if (reader.takeIf("unit"))
        data.unit = takeText();
    else if (reader.takeIf("mask"))
        data.symbols = parseSymbols(data.name, true);
    else if (reader.peek().is('{'))
        data.symbols = parseSymbols(data.name, false);
    else
        return false;
    return true;
}

std::shared_ptr<const Enumeration> TypeParser::parseSymbols(const QString &fieldName,
                                                            bool isBitMask)
{
    const auto symbols = std::make_shared<Enumeration>(fieldName, isBitMask);
    quint64 value = 0;
    reader.expect('{');
    while (!reader.peek().is('}')) {
        const Token start = reader.peek();
        const QString name = reader.expectName("the name of a symbol, or '}'");
        if (reader.takeIf('='))
            value = parseInteger(reader, !reader.isAtEnd() && reader.peek().text.startsWith(u'-'),
                                 64);
        if (!symbols->add({value, name, {}}))
            reader.fail(start, QStringLiteral("the symbol or its value is there already"));
        ++value;
        if (!reader.takeIf(','))
            break;
    }
    reader.expect('}');
    return symbols;
}

QString TypeParser::takeText()
{
    if (reader.peek().kind != Token::Text)
        reader.fail(reader.peek(), QStringLiteral("expected a text in quotes"));
    return reader.take().text;
}

int TypeParser::takeNumber(int minimum, int maximum)
{
    const Token token = reader.peek();
    const quint64 number = parseInteger(reader, false, 31);
    if (number < static_cast<quint64>(minimum) || number > static_cast<quint64>(maximum))
        reader.fail(token,
                    QStringLiteral("expected a number from %1 to %2").arg(minimum).arg(maximum));
    return static_cast<int>(number);
}

} // namespace corvane::test
