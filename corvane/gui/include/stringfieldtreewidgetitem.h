#pragma once

#include "abstractfieldtreewidgetitem.h"

/** The row of a repeated character field, which reads as one text. */
class CORVANEGUI_EXPORT StringFieldTreeWidgetItem : public AbstractFieldTreeWidgetItem
{
public:
    explicit StringFieldTreeWidgetItem(MessageTreeWidget *messageTreeWidget);
    ~StringFieldTreeWidgetItem() override;

    /** The text of the field in \a message, which is not null. */
    QString extractString(const Message *message) const;
    void setString(const QString &string);
    QString getString() const;

    /** Any field but a repeated character field, or null, ends the process. */
    void setFieldInfo(const FieldInfo *fieldInfo) override;
    void clearValues() override;
    QString getNameText() override;
    QString getTypeText() override;
    QString getValueText() override;
    QString getRawValueText() override;
    /** Null clears the text; a message without the field changes nothing. */
    void processMessage(const Message *message) override;

private:
    QString string;
};
