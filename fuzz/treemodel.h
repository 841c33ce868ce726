#pragma once

#include "messagetreewidget.h"

#include <QHash>
#include <QList>
#include <QString>

#include <memory>
#include <vector>

class MessageTreeFilter;

namespace corvane::fuzz {

/** What a row of the tree shows and keeps; a plain record without any view. */
struct ModelRow
{
    enum class Kind {
        Message,
        SubMessage,
        Value,
        String,
        Repeated,
        Notice ///< That something is hidden.
    };

    Kind kind = Kind::Message;
    const MessageInfo *type = nullptr; ///< Of a message or sub-message. Not owned.
    const FieldInfo *field = nullptr; ///< Null for a message and a notice. Not owned.
    unsigned index = 0;
    const Message *message = nullptr; ///< What a message or sub-message shows. Not owned.
    bool isAbsent = false;
    FieldValue fieldValue;
    QString string;
    QString value; ///< The text as it was last set, and so the next.
    QString rawValue;
    MessageTreeFilter *filter = nullptr; ///< Not owned.
    bool isHidden = false;
    bool isExpanded = false;
    std::vector<std::unique_ptr<ModelRow>> rows;
};

/**
 * What a message tree is to show, after the same history: each row is brought up to date by the
 * rules alone, without items, signals or anything remembered to save time.
 */
class TreeModel
{
public:
    using ColumnType = MessageTreeWidget::ColumnType;

    void addRow(const MessageInfo *type);
    void removeRow(int row);
    void removeType(const MessageInfo *type);
    void setFilter(int row, MessageTreeFilter *filter);
    /** To be called when the text of \a filter has changed. */
    void applyFilter(MessageTreeFilter *filter);
    void setColumns(const QList<ColumnType> &newColumns);
    void setShowPrimaryOnly(bool show);
    void setShowVirtual(bool show);
    void configure();
    void clear(int row);
    /** A message as it arrives: rows of other types take no notice. */
    void process(const Message *message);
    void display(int row, const Message *message);
    void setExpanded(ModelRow &row, bool expanded);

    const std::vector<std::unique_ptr<ModelRow>> &getRows() const { return rows; }

    /** As test::printed() writes a tree. */
    QString print() const;

private:
    bool mustShow(const FieldInfo *field) const;
    void setType(ModelRow &row, const MessageInfo *type);
    ModelRow *
    addBelow(ModelRow &parent, ModelRow::Kind kind, const FieldInfo *field, unsigned index);
    void display(ModelRow &row, const Message *message);
    void process(ModelRow &row, const Message *message);
    void processValue(ModelRow &row, const Message *message);
    void processSubMessage(ModelRow &row, const Message *message);
    void processRepeated(ModelRow &row, const Message *message);
    void clear(ModelRow &row);
    void configure(ModelRow &row);
    void print(const ModelRow &row, const QString &indentation, QString &text) const;

    QList<ColumnType> columns{MessageTreeWidget::Name, MessageTreeWidget::Type,
                              MessageTreeWidget::Value};
    bool showsPrimaryOnly = false;
    bool showsVirtual = true;
    std::vector<std::unique_ptr<ModelRow>> rows;
    QHash<const MessageInfo *, bool> expandedTypes;
    QHash<const FieldInfo *, bool> expandedFields;
};

} // namespace corvane::fuzz
