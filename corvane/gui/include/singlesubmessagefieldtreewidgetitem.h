#pragma once

#include "abstractfieldtreewidgetitem.h"
#include "messagetreewidgetitem.h"

/**
 * The row of one embedded message: a row of a field, with the rows of the embedded type's fields
 * below it. These are hidden while the message above comes without the embedded one.
 */
class CORVANEGUI_EXPORT SingleSubMessageFieldTreeWidgetItem : public MessageTreeWidgetItem,
                                                              public AbstractFieldTreeWidgetItem
{
public:
    /** \a index: which value of a repeated field to show, from 0. */
    SingleSubMessageFieldTreeWidgetItem(MessageTreeWidget *messageTreeWidget, unsigned int index);
    ~SingleSubMessageFieldTreeWidgetItem() override;

    void setIndex(unsigned int index);
    unsigned int getIndex() const;

    QString getNameText() override;
    QString getNameToolTip() override;
    QString getTypeText() override;
    QString getValueText() override;
    void clearValues() override;
    /** \a message: the one that embeds what the row shows, not the embedded one. */
    void processMessage(const Message *message) override;
    void configureInTreeWidget() override;
    void setFilter(MessageTreeFilter *filter) override;
    /** A field that is no sub-message ends the process. */
    void setFieldInfo(const FieldInfo *fieldInfo) override;
    QString getRawValueText() override;

private:
    void showAbsence();

    unsigned int index;
    bool optionalSubMessageAbsent = false;
};
