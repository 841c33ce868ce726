#pragma once

#include "fieldvalue.h"

#include <QString>

#include <optional>
#include <vector>

class FieldInfo;
class Message;
class MessageInfo;

namespace corvane {

/**
 * One value of a message: a field, an element of a repeated one, or what lies inside sub-messages.
 *
 * It is written as a path expression, with the element behind a field in brackets (0 where there
 * are none): "Format.Message.samples[3]", "Format.Message.satellites[1].position.height". It holds
 * pointers to descriptions, so it must not be used after their format is removed.
 */
class FieldPlace
{
public:
    /** Nothing unless \a path names exactly one field of one message type. */
    static std::optional<FieldPlace> find(const QString &path);

    /** The type of the messages that are read. */
    const MessageInfo *getType() const { return type; }

    /** The innermost field. */
    const FieldInfo *getField() const { return steps.back().field; }

    /** The path in full, with an element behind each repeated field. */
    QString getPath() const;
    /** The path as people see it, without the format: "Message.samples[3]". */
    QString getName() const;
    bool isNumeric() const;
    /** Whether the values are truth values or have names, so that nothing lies between two. */
    bool isStepped() const;
    bool isConfidential() const;
    /** \a number, which was a value of a numeric place, as people read it. */
    QString textOf(double number) const;
    /** An invalid value where \a message, which is one of getType(), has none at the place. */
    FieldValue read(const Message *message) const;

private:
    struct Step
    {
        const FieldInfo *field; ///< Not owned.
        unsigned int index;
    };

    static QString elementText(const Step &step);
    bool descend(const MessageInfo *within, const QString &text);
    bool addStep(const MessageInfo *within, const QString &text);

    const MessageInfo *type = nullptr; ///< Not owned.
    std::vector<Step> steps;
};

} // namespace corvane
