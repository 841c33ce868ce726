#pragma once

#include <QList>
#include <QtGlobal>

#include <string>
#include <unordered_map>

class FieldInfo;
class FieldValue;
class MessageInfo;

namespace corvane {

/** Whether values that have names are written with these. */
enum class ValueNames {
    Symbolic,
    Raw
};

/** Writes the values of one field. Remembers the names of the values that it has met. */
class FieldText
{
public:
    enum class Token {
        Nothing, ///< There is no value.
        Literal, ///< A number or a truth value, as JSON has them.
        Text
    };

    /** \a field is not owned. */
    FieldText(const FieldInfo *field, ValueNames names);

    const FieldInfo *getField() const { return field; }

    /** The definition's name, behind those of the fields that it is a part of, with dots. */
    const std::string &getPath() const { return path; }

    /** The same as a JSON key, with its colon. */
    const std::string &getKey() const { return key; }

    /** Appends \a value, which is no sub-message, without quotes. */
    Token append(std::string &out, const FieldValue &value);

private:
    const std::string &getSymbol(const FieldValue &value, quint64 bits);

    const FieldInfo *field; ///< Not owned.
    std::string path;
    std::string key;
    bool hasSymbols;
    bool isText; ///< Though a character is a number as well.
    std::unordered_map<quint64, std::string> symbols; ///< Empty texts for values without a name.
};

/**
 * The fields that make up a whole message: all but the bits of a bit mask, which the text of the
 * mask names already.
 */
QList<const FieldInfo *> getExportedFields(const MessageInfo *type);

} // namespace corvane
