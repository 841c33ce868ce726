#include "messageparser.h"

#include "descriptions.h"
#include "formatinfo.h"
#include "messageinfo.h"
#include "testfieldinfo.h"
#include "valueparser.h"

namespace corvane::test {

MessageParser::MessageParser(const FormatInfo *format, const QString &text)
    : format(format)
    , reader(text)
{
}

std::shared_ptr<const MessageContent> MessageParser::parseMessage()
{
    const Token start = reader.peek();
    const QString name = reader.expectName("the name of a message type");
    const MessageInfo *info = format->getData()->findMessage(name);
    if (info == nullptr)
        reader.fail(start, QStringLiteral("no message type %1").arg(name));
    return parseContent(info);
}

std::shared_ptr<const MessageContent> MessageParser::parseContent(const MessageInfo *info)
{
    const auto content = std::make_shared<MessageContent>();
    content->info = info;
    parseTimeAndSender(*content);
    reader.expect('{');
    if (!reader.takeIf('}'))
        parseFields(*content);
    return content;
}

void MessageParser::parseTimeAndSender(MessageContent &content)
{
    if (reader.takeIf('@'))
        content.timeUs = reader.take().text.toLongLong();
    if (reader.takeIf('#'))
        content.senderId = reader.take().text.toUInt();
}

void MessageParser::parseFields(MessageContent &content)
{
    do {
        if (reader.takeIf('}'))
            return;
        const Token start = reader.peek();
        const FieldInfo *field = parseFieldPath(content.info);
        if (content.items.contains(field))
            reader.fail(start, QStringLiteral("the field has its values already"));
        reader.expect(':');
        content.items.insert(field, parseItems(field));
    } while (reader.takeIf(','));
    reader.expect('}');
}

const FieldInfo *MessageParser::parseFieldPath(const MessageInfo *info)
{
    const Token start = reader.peek();
    QString path = reader.expectName("the name of a field, or '}'");
    while (reader.takeIf('.'))
        path += QLatin1Char('.') + reader.expectName("the name of a sub-field");
    const FieldInfo *field = info->getData()->findField(path);
    if (field == nullptr)
        reader.fail(start, QStringLiteral("no field %1 in %2").arg(path, info->getData()->name));
    if (dynamic_cast<const TestFieldInfo *>(field) == nullptr)
        reader.fail(start, QStringLiteral("a field of bits has no values of its own"));
    return field;
}

QList<MessageContent::Item> MessageParser::parseItems(const FieldInfo *field)
{
    if (!field->isRepeated())
        return {parseItem(field)};
    if (field->isStringField() && reader.peek().kind == Token::Text)
        return parseCharacters();
    reader.expect('[');
    QList<MessageContent::Item> items;
    while (!reader.peek().is(']')) {
        items.append(parseItem(field));
        if (!reader.takeIf(','))
            break;
    }
    reader.expect(']');
    return items;
}

MessageContent::Item MessageParser::parseItem(const FieldInfo *field)
{
    const MessageInfo *subMessageInfo = field->getType().getSubMessageInfo();
    if (subMessageInfo == nullptr || reader.peek().is("invalid"))
        return {parseValue(reader, field), nullptr};
    if (!reader.peek().is('{') && !reader.peek().is('@') && !reader.peek().is('#')) {
        const Token start = reader.peek();
        if (reader.expectName("'{' or a type's name") != subMessageInfo->getData()->name)
            reader.fail(start, QStringLiteral("expected a message of type %1")
                                   .arg(subMessageInfo->getData()->name));
    }
    return {{}, parseContent(subMessageInfo)};
}

QList<MessageContent::Item> MessageParser::parseCharacters()
{
    QList<MessageContent::Item> items;
    const auto codes = reader.take().text.toUcs4();
    for (const uint code : codes)
        items.append({FieldValue::fromCharacter(code), nullptr});
    return items;
}

} // namespace corvane::test
