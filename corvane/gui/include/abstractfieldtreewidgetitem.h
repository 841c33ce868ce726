#pragma once

#include "abstractmessagetreewidgetitem.h"

/** Base of the rows that show a field. */
class CORVANEGUI_EXPORT AbstractFieldTreeWidgetItem : public virtual AbstractMessageTreeWidgetItem
{
public:
    explicit AbstractFieldTreeWidgetItem(MessageTreeWidget *messageTreeWidget);
    ~AbstractFieldTreeWidgetItem() override;

    /** \a fieldInfo is not owned; null for no field. */
    virtual void setFieldInfo(const FieldInfo *fieldInfo);
    const FieldInfo *getFieldInfo() const;

private:
    const FieldInfo *fieldInfo = nullptr; ///< Not owned.
};
