#include "singlevaluefieldtreewidgetitem.h"

#include "memleaktracer.h"
#include "message.h"

SingleValueFieldTreeWidgetItem::SingleValueFieldTreeWidgetItem(MessageTreeWidget *messageTreeWidget,
                                                               unsigned int index)
    : AbstractMessageTreeWidgetItem(messageTreeWidget)
    , AbstractFieldTreeWidgetItem(messageTreeWidget)
{
    MemLeakTracer::getInstance()->doAllocateObject(
        QStringLiteral("SingleValueFieldTreeWidgetItem"));
    setIndex(index);
}

SingleValueFieldTreeWidgetItem::~SingleValueFieldTreeWidgetItem()
{
    MemLeakTracer::getInstance()->doDeallocateObject(
        QStringLiteral("SingleValueFieldTreeWidgetItem"));
}

void SingleValueFieldTreeWidgetItem::setIndex(unsigned int index)
{
    if (index == this->index)
        return;
    this->index = index;
    ensureChildItems();
    // NOLINTNEXTLINE(clang-analyzer-optin.cplusplus.VirtualCall): of this class while it is made
    clearValues();
    setNameText();
}

unsigned int SingleValueFieldTreeWidgetItem::getIndex() const
{
    return index;
}

const FieldValue &SingleValueFieldTreeWidgetItem::getFieldValue() const
{
    return fieldValue;
}

void SingleValueFieldTreeWidgetItem::setFieldValue(const FieldValue &value)
{
    fieldValue = value;
    setValueText();
    setRawValueText();
}

void SingleValueFieldTreeWidgetItem::setFieldInfo(const FieldInfo *fieldInfo)
{
    if (fieldInfo == getFieldInfo())
        return;
    AbstractFieldTreeWidgetItem::setFieldInfo(fieldInfo);
    clearValues();
    setNameText();
    setTypeText();
    ensureChildItems();
}

void SingleValueFieldTreeWidgetItem::ensureChildItems()
{
    qDeleteAll(childItems);
    childItems.clear();
    const auto subFields = getFieldInfo() != nullptr ? getFieldInfo()->getSubFieldInfos()
                                                     : QList<const FieldInfo *>();
    if (subFields.isEmpty())
        return;
    setInitialExpansionPolicy(AskTreeWidget);
    for (const FieldInfo *subField : subFields) {
        if (!mustShowField(subField))
            continue;
        auto *row = new SingleValueFieldTreeWidgetItem(getMessageTreeWidget(), index);
        row->setFieldInfo(subField);
        addChild(row);
        childItems.append(row);
        if (treeWidget() != nullptr)
            row->configureInTreeWidget();
        row->setFilter(getFilter());
    }
}

void SingleValueFieldTreeWidgetItem::clearValues()
{
    setFieldValue(FieldValue::invalid());
    for (SingleValueFieldTreeWidgetItem *row : std::as_const(childItems))
        row->clearValues();
}

QString SingleValueFieldTreeWidgetItem::getNameText()
{
    const FieldInfo *field = getFieldInfo();
    if (field == nullptr)
        return QObject::tr("No field set");
    return field->isRepeated() ? field->getName() + QObject::tr(" [%1]").arg(index)
                               : field->getName();
}

QString SingleValueFieldTreeWidgetItem::getTypeText()
{
    return getFieldInfo() != nullptr ? getFieldInfo()->getType().toShortString()
                                     : QObject::tr("N/A");
}

QString SingleValueFieldTreeWidgetItem::getPlaceholderText() const
{
    if (getFieldInfo() == nullptr)
        return QObject::tr("No field set");
    return optionalValueAbsent ? QObject::tr("No value for optional field") : QString();
}

QString SingleValueFieldTreeWidgetItem::getValueText()
{
    const QString placeholder = getPlaceholderText();
    return placeholder.isEmpty() ? getFieldInfo()->getInterpretedString(fieldValue, true)
                                 : placeholder;
}

QString SingleValueFieldTreeWidgetItem::getRawValueText()
{
    const QString placeholder = getPlaceholderText();
    return placeholder.isEmpty() ? getFieldInfo()->getRawString(fieldValue) : placeholder;
}

void SingleValueFieldTreeWidgetItem::processMessage(const Message *message)
{
    const FieldInfo *field = getFieldInfo();
    if (field == nullptr)
        return;
    optionalValueAbsent = false;
    if (message == nullptr) {
        clearValues();
        return;
    }
    const unsigned int count = field->getNumberOfValues(message);
    if (count == 0 && field->isOptional() && field->occursIn(message->getInfo())) {
        optionalValueAbsent = true;
        clearValues();
    } else if (count > index) {
        setFieldValue(field->getValue(message, index));
    }
    for (SingleValueFieldTreeWidgetItem *row : std::as_const(childItems))
        row->processMessage(message);
}
