#include "abstractfieldtreewidgetitem.h"

#include "memleaktracer.h"

AbstractFieldTreeWidgetItem::AbstractFieldTreeWidgetItem(MessageTreeWidget *messageTreeWidget)
    : AbstractMessageTreeWidgetItem(messageTreeWidget)
{
    MemLeakTracer::getInstance()->doAllocateObject(QStringLiteral("AbstractFieldTreeWidgetItem"));
}

AbstractFieldTreeWidgetItem::~AbstractFieldTreeWidgetItem()
{
    MemLeakTracer::getInstance()->doDeallocateObject(QStringLiteral("AbstractFieldTreeWidgetItem"));
}

void AbstractFieldTreeWidgetItem::setFieldInfo(const FieldInfo *fieldInfo)
{
    this->fieldInfo = fieldInfo;
}

const FieldInfo *AbstractFieldTreeWidgetItem::getFieldInfo() const
{
    return fieldInfo;
}
