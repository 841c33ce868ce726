#pragma once

#include "literalreader.h"
#include "testmessage.h"

class FormatInfo;

namespace corvane::test {

/**
 * Reads message literals, "Position{lat: 4.5, mode: Auto, sats: [{id: 1}, {id: 2}]}".
 *
 * The types of a format give the meaning: what does not fit them ends the program.
 */
class MessageParser
{
public:
    MessageParser(const FormatInfo *format, const QString &text);

    bool isAtEnd() const { return reader.isAtEnd(); }

    /** Reads one message, which is followed by others or by the end. */
    std::shared_ptr<const MessageContent> parseMessage();

private:
    std::shared_ptr<const MessageContent> parseContent(const MessageInfo *info);
    void parseTimeAndSender(MessageContent &content);
    void parseFields(MessageContent &content);
    const FieldInfo *parseFieldPath(const MessageInfo *info);
    QList<MessageContent::Item> parseItems(const FieldInfo *field);
    MessageContent::Item parseItem(const FieldInfo *field);
    QList<MessageContent::Item> parseCharacters();

    const FormatInfo *format; ///< Not owned.
    LiteralReader reader;
};

} // namespace corvane::test
