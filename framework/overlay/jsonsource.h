#pragma once

#include "loaderror.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <vector>

namespace corvane {

/** A value of a JSON text that knows where it stands, so that whatever is wrong can be shown. */
struct JsonNode
{
    enum Kind {
        Null,
        Boolean,
        Integer, ///< A whole number that a qint64 holds.
        Number, ///< Any other number.
        Text,
        Array,
        Object
    };

    /** The member of that name, or null. */
    const JsonNode *find(const QString &name) const;

    Kind kind = Null;
    qint64 offset = 0; ///< Of the first byte of the value.
    qint64 integer = 0; ///< Of an Integer; 1 for a Boolean that is true.
    QString text; ///< Of a Text.
    QString key; ///< The name of the value, as a member of an object.
    qint64 keyOffset = 0; ///< Of the opening quotation mark of the name.
    std::vector<JsonNode> children; ///< Elements or members, in their order.
};

/**
 * The bytes of a JSON file, and what was found wrong with them.
 *
 * Keeps the first maximumErrors errors; readers stop when isFull().
 */
class JsonSource
{
public:
    static constexpr qsizetype maximumErrors = 20;

    JsonSource(QString file, QByteArray bytes);

    const QByteArray &getBytes() const { return bytes; }

    /** \a offset: of the byte where the error is; -1 for an error of the file as a whole. */
    void addError(qint64 offset, const QString &message);
    /** An error at the character \a index of the text of \a node. */
    void addErrorInText(const JsonNode &node, qsizetype index, const QString &message);

    bool isFull() const { return errors.size() >= maximumErrors; }

    const QList<LoadError> &getErrors() const { return errors; }

private:
    qint64 offsetInText(const JsonNode &node, qsizetype index) const;

    QString file;
    QByteArray bytes;
    QList<LoadError> errors;
};

} // namespace corvane
