#include "jsonwriter.h"

#include "decodedmessage.h"
#include "descriptions.h"
#include "exporttext.h"
#include "fieldinfo.h"
#include "messageinfo.h"

namespace corvane {

namespace {

void appendText(std::string &out, QStringView text)
{
    const size_t begin = out.size();
    appendUtf8(out, text);
    quoteJson(out, begin);
}

void appendTimeMember(std::string &out, qint64 timeUs)
{
    out += "\"time\":";
    const size_t begin = out.size();
    if (appendTime(out, timeUs))
        quoteJson(out, begin);
    else
        out += "null";
}

} // namespace

JsonWriter::JsonWriter(ValueNames names)
    : names(names)
{
}

JsonWriter::Fields JsonWriter::makeFields(const QList<const FieldInfo *> &fields) const
{
    Fields result;
    for (const FieldInfo *field : fields)
        result.emplace_back(field, names);
    return result;
}

JsonWriter::Fields &JsonWriter::getFieldsOf(const MessageInfo *type)
{
    const auto known = fieldsByType.find(type);
    if (known != fieldsByType.end())
        return known->second;
    return fieldsByType[type] = makeFields(getExportedFields(type));
}

void JsonWriter::appendMessage(std::string &out,
                               const Message *message,
                               std::string_view sender,
                               Fields &fields)
{
    const auto *decoded = static_cast<const DecodedMessage *>(message);
    out += '{';
    appendTimeMember(out, decoded->getTimeUs());
    out += ",\"type\":";
    appendText(out, message->getInfo()->getData()->name);
    if (!sender.empty()) {
        out += ",\"sender\":";
        const size_t begin = out.size();
        out += sender;
        quoteJson(out, begin);
    }
    if (const auto sequence = decoded->getSequence())
        out += ",\"sequence\":" + std::to_string(*sequence);
    out += ",\"fields\":";
    appendFields(out, message, fields);
    out += '}';
}

void JsonWriter::appendFields(std::string &out, const Message *message, Fields &fields)
{
    out += '{';
    bool first = true;
    for (FieldText &field : fields) {
        const size_t begin = out.size();
        if (!first)
            out += ',';
        out += field.getKey();
        if (appendField(out, message, field))
            first = false;
        else
            out.resize(begin);
    }
    out += '}';
}

bool JsonWriter::appendField(std::string &out, const Message *message, FieldText &fieldText)
{
    const FieldInfo *field = fieldText.getField();
    const unsigned int count = field->getNumberOfValues(message);
    if (count == 0 && (!field->isRepeated() || field->isOptional()))
        return false;
    if (field->isStringField()) {
        appendText(out, field->getString(message));
        return true;
    }
    if (!field->isRepeated()) {
        appendValue(out, message, fieldText, 0);
        return true;
    }
    out += '[';
    for (unsigned int index = 0; index < count; ++index) {
        if (index > 0)
            out += ',';
        appendValue(out, message, fieldText, index);
    }
    out += ']';
    return true;
}

void JsonWriter::appendValue(std::string &out,
                             const Message *message,
                             FieldText &field,
                             unsigned int index)
{
    const FieldValue value = field.getField()->getValue(message, index);
    if (const Message *part = value.getSubMessage()) {
        appendFields(out, part, getFieldsOf(part->getInfo()));
        return;
    }
    const size_t begin = out.size();
    switch (field.append(out, value)) {
    case FieldText::Token::Nothing:
        out += "null";
        break;
    case FieldText::Token::Text:
        quoteJson(out, begin);
        break;
    case FieldText::Token::Literal:
        break;
    }
}

QByteArray toJson(const Message *message)
{
    JsonWriter writer(ValueNames::Symbolic);
    JsonWriter::Fields fields = writer.makeFields(getExportedFields(message->getInfo()));
    std::string out;
    writer.appendMessage(out, message, {}, fields);
    return QByteArray::fromStdString(out);
}

} // namespace corvane
