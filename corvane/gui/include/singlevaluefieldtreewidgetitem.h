#pragma once

#include "abstractfieldtreewidgetitem.h"
#include "fieldvalue.h"

/**
 * The row of one value of a field, with a row below it for each part of the field.
 *
 * The value stays until a message brings another one or says that an optional field is absent.
 */
class CORVANEGUI_EXPORT SingleValueFieldTreeWidgetItem : public AbstractFieldTreeWidgetItem
{
public:
    /** \a index: which value of a repeated field to show, from 0. */
    SingleValueFieldTreeWidgetItem(MessageTreeWidget *messageTreeWidget, unsigned int index);
    ~SingleValueFieldTreeWidgetItem() override;

    void setIndex(unsigned int index);
    unsigned int getIndex() const;
    const FieldValue &getFieldValue() const;
    /** Shows \a value; the rows of the field's parts stay as they are. */
    void setFieldValue(const FieldValue &value);

    void setFieldInfo(const FieldInfo *fieldInfo) override;
    void clearValues() override;
    QString getNameText() override;
    QString getTypeText() override;
    QString getValueText() override;
    QString getRawValueText() override;
    /** \a message: of a type in which the field occurs; null clears the values. */
    void processMessage(const Message *message) override;

private:
    void ensureChildItems();
    /** What stands in place of a value; empty when there is one. */
    QString getPlaceholderText() const;

    unsigned int index = 0;
    FieldValue fieldValue;
    bool optionalValueAbsent = false;
    QList<SingleValueFieldTreeWidgetItem *> childItems; ///< Owned as children.
};
