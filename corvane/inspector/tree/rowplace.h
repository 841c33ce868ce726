#pragma once

#include <QString>

#include <optional>
#include <vector>

class FieldInfo;
class Message;
class MessageInfo;
class MessageTreeWidget;
class MessageTreeWidgetItem;
class QTreeWidgetItem;

namespace corvane {

/**
 * What a row of a message tree stands for, in terms of descriptions: it names the same row after
 * rows were built anew, and rows that are not built yet. Not to be used after its format is gone.
 */
struct RowPlace
{
    struct Step
    {
        const FieldInfo *field = nullptr; ///< Not owned.
        int element = -1; ///< Of a repeated field, from 0; -1 for the field as a whole.

        bool operator==(const Step &) const = default;
    };

    /** Nothing for a row that is neither a message nor a field, and for null. */
    static std::optional<RowPlace> of(const QTreeWidgetItem *row);

    /** The row in \a tree, or null where there is none now. */
    QTreeWidgetItem *findRow(const MessageTreeWidget &tree) const;

    /** The innermost field; null for a message type. */
    const FieldInfo *getField() const { return steps.empty() ? nullptr : steps.back().field; }

    /** The element of the innermost field, or of the whole that it is a part of; -1 for none. */
    int getElement() const;
    /**
     * The message that the innermost field is read from: \a message, which is of the place's type,
     * or a sub-message of it. Null where it is absent.
     */
    const Message *getHolder(const Message *message) const;
    /** The sub-message that the innermost field lies in directly; null in a main message. */
    const Step *getSubMessageStep() const;
    /** "Format.Message.list[2].inner", as the plot and exports take it. */
    QString getPath() const;

    bool operator==(const RowPlace &) const = default;

    const MessageInfo *type = nullptr; ///< Not owned. The main message.
    std::vector<Step> steps; ///< From the outside in; a part of a field is a step of its own.
};

/** The row of the message type that \a row lies below, or is; null for other rows. */
const MessageTreeWidgetItem *topRowOf(const QTreeWidgetItem *row);
MessageTreeWidgetItem *findTopRow(const MessageTreeWidget &tree, const MessageInfo *type);

/** Whether the values of \a field, which may be null, are numbers. */
bool isNumeric(const FieldInfo *field);

} // namespace corvane
