#pragma once

#include "abstractfieldtreewidgetitem.h"

#include <QObject>

/**
 * The row of a repeated field, with a row below it for each value of the last message.
 *
 * With a filter, elements that are sub-messages are shown and hidden by what they hold. Where the
 * search text names a value of their type, exactly the matching ones are shown; else all are unless
 * one matches.
 */
class CORVANEGUI_EXPORT RepeatedFieldTreeWidgetItem : public QObject,
                                                      public AbstractFieldTreeWidgetItem
{
    Q_OBJECT

public:
    explicit RepeatedFieldTreeWidgetItem(MessageTreeWidget *messageTreeWidget);
    ~RepeatedFieldTreeWidgetItem() override;

    /** Removes all elements, also when the field stays the same. */
    void setFieldInfo(const FieldInfo *fieldInfo) override;
    /** Removes all elements. */
    void clearValues() override;
    QString getNameText() override;
    QString getTypeText() override;
    QString getValueText() override;
    QString getRawValueText() override;
    /** Null clears the values; a message without the field changes nothing. */
    void processMessage(const Message *message) override;
    void setFilter(MessageTreeFilter *filter) override;
    void deleteAllChildItems();
    /** Makes the elements as many as \a message has and shows its values. */
    void updateChildItems(const Message *message);

public Q_SLOTS:
    void applyFilter();

private:
    void appendChildItem();
    bool hasSubMessages() const;

    QList<AbstractFieldTreeWidgetItem *> childItems; ///< Owned as children.
};
