#pragma once

#include "fieldtext.h"

#include <QByteArray>
#include <QList>

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class FieldInfo;
class Message;
class MessageInfo;

namespace corvane {

/** Writes messages as JSON; docs/export.md says how. */
class JsonWriter
{
public:
    using Fields = std::vector<FieldText>;

    explicit JsonWriter(ValueNames names);

    Fields makeFields(const QList<const FieldInfo *> &fields) const;

    /** Appends the whole message, but only these \a fields of it. \a sender may be empty. */
    void appendMessage(std::string &out,
                       const Message *message,
                       std::string_view sender,
                       Fields &fields);
    /** Appends what \a field has in \a message; false (and nothing) where it is absent. */
    bool appendField(std::string &out, const Message *message, FieldText &field);

private:
    void appendFields(std::string &out, const Message *message, Fields &fields);
    void
    appendValue(std::string &out, const Message *message, FieldText &field, unsigned int index);
    Fields &getFieldsOf(const MessageInfo *type);

    ValueNames names;
    std::unordered_map<const MessageInfo *, Fields> fieldsByType; ///< Of sub-messages.
};

/** \a message with all its fields, as a line of an export without the name of its sender. */
QByteArray toJson(const Message *message);

} // namespace corvane
