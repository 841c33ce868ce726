#include "messageexport.h"

#include "decodedmessage.h"
#include "descriptions.h"
#include "exporttext.h"
#include "fieldinfo.h"
#include "messageinfo.h"
#include "senderstatistics.h"

#include <QIODevice>

namespace corvane {

namespace {

constexpr size_t writtenAtOnce = 65'536;

} // namespace

MessageExport::MessageExport(QIODevice &device,
                             const ExportSelection &selection,
                             const SenderTable &senders,
                             ExportFormat format,
                             ValueNames names)
    : device(device)
    , senders(senders)
    , format(format)
    , json(names)
{
    addTypes(selection);
    if (format == ExportFormat::Csv)
        appendHeader(selection);
}

void MessageExport::addTypes(const ExportSelection &selection)
{
    size_t columns = 0;
    for (const ExportSelection::Type &selected : selection.types) {
        const size_t slot = selected.info->getData()->slot;
        if (slot >= typeBySlot.size())
            typeBySlot.resize(slot + 1);
        types.push_back({json.makeFields(selected.fields), columns, 0});
        typeBySlot[slot] = types.size();
        columns += types.back().fields.size();
    }
    for (Type &type : types)
        type.columnsBehind = columns - type.columnsBefore - type.fields.size();
}

void MessageExport::appendHeader(const ExportSelection &selection)
{
    buffer += "time,type,sender,sequence";
    for (size_t i = 0; i < types.size(); ++i) {
        for (const FieldText &field : types[i].fields) {
            buffer += ',';
            const size_t begin = buffer.size();
            if (types.size() > 1) {
                const auto &selected = selection.types.at(static_cast<qsizetype>(i));
                appendUtf8(buffer, selected.info->getData()->name);
                buffer += '.';
            }
            buffer += field.getPath();
            quoteCsv(buffer, begin);
        }
    }
    buffer += "\r\n";
}

bool MessageExport::write(const Message *message)
{
    const size_t slot = message->getInfo()->getData()->slot;
    const size_t number = slot < typeBySlot.size() ? typeBySlot[slot] : 0;
    if (number == 0 || !error.isEmpty())
        return error.isEmpty();
    Type &type = types[number - 1];
    if (format == ExportFormat::Csv) {
        appendRow(message, type);
    } else {
        json.appendMessage(buffer, message, getSenderName(message), type.fields);
        buffer += '\n';
    }
    ++count;
    return buffer.size() < writtenAtOnce || flush();
}

void MessageExport::appendRow(const Message *message, Type &type)
{
    const auto *decoded = static_cast<const DecodedMessage *>(message);
    appendTime(buffer, decoded->getTimeUs());
    buffer += ',';
    size_t begin = buffer.size();
    appendUtf8(buffer, message->getInfo()->getData()->name);
    quoteCsv(buffer, begin);
    buffer += ',';
    begin = buffer.size();
    buffer += getSenderName(message);
    if (buffer.size() > begin)
        quoteCsv(buffer, begin);
    buffer += ',';
    if (const auto sequence = decoded->getSequence())
        buffer += std::to_string(*sequence);
    buffer.append(type.columnsBefore, ',');
    for (FieldText &field : type.fields) {
        buffer += ',';
        appendCell(message, field);
    }
    buffer.append(type.columnsBehind, ',');
    buffer += "\r\n";
}

void MessageExport::appendCell(const Message *message, FieldText &fieldText)
{
    const FieldInfo *field = fieldText.getField();
    const size_t begin = buffer.size();
    if (field->isStringField()) {
        if (field->getNumberOfValues(message) == 0 && field->isOptional())
            return;
        appendUtf8(buffer, field->getString(message));
        quoteCsv(buffer, begin);
    } else if (field->isRepeated() || field->getType().getCode() == FieldType::SubMessage) {
        if (json.appendField(buffer, message, fieldText))
            quoteCsv(buffer, begin);
    } else if (fieldText.append(buffer, field->getValue(message, 0)) == FieldText::Token::Text) {
        quoteCsv(buffer, begin);
    }
}

const std::string &MessageExport::getSenderName(const Message *message)
{
    const quint32 id = static_cast<const DecodedMessage *>(message)->getSenderId();
    if (count == 0 || id != senderId) {
        senderName.clear();
        appendUtf8(senderName, senders.nameOf(id));
        senderId = id;
    }
    return senderName;
}

bool MessageExport::flush()
{
    size_t written = 0;
    while (error.isEmpty() && written < buffer.size()) {
        const qint64 taken
            = device.write(buffer.data() + written, static_cast<qint64>(buffer.size() - written));
        if (taken <= 0)
            error = device.errorString();
        else
            written += static_cast<size_t>(taken);
    }
    buffer.clear();
    return error.isEmpty();
}

} // namespace corvane
