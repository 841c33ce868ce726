#include "repeatedfieldtreewidgetitem.h"

#include "memleaktracer.h"
#include "message.h"
#include "messagetreefilter.h"
#include "singlesubmessagefieldtreewidgetitem.h"
#include "singlevaluefieldtreewidgetitem.h"

RepeatedFieldTreeWidgetItem::RepeatedFieldTreeWidgetItem(MessageTreeWidget *messageTreeWidget)
    : AbstractMessageTreeWidgetItem(messageTreeWidget)
    , AbstractFieldTreeWidgetItem(messageTreeWidget)
{
    MemLeakTracer::getInstance()->doAllocateObject(QStringLiteral("RepeatedFieldTreeWidgetItem"));
    setInitialExpansionPolicy(AskTreeWidget);
}

RepeatedFieldTreeWidgetItem::~RepeatedFieldTreeWidgetItem()
{
    MemLeakTracer::getInstance()->doDeallocateObject(QStringLiteral("RepeatedFieldTreeWidgetItem"));
}

void RepeatedFieldTreeWidgetItem::setFieldInfo(const FieldInfo *fieldInfo)
{
    AbstractFieldTreeWidgetItem::setFieldInfo(fieldInfo);
    deleteAllChildItems();
    setNameText();
    setValueText();
    setRawValueText();
}

void RepeatedFieldTreeWidgetItem::deleteAllChildItems()
{
    qDeleteAll(takeChildren());
    childItems.clear();
}

void RepeatedFieldTreeWidgetItem::clearValues()
{
    deleteAllChildItems();
    setValueText();
    setRawValueText();
}

QString RepeatedFieldTreeWidgetItem::getNameText()
{
    return getFieldInfo() != nullptr ? getFieldInfo()->getName() : QObject::tr("No field set");
}

QString RepeatedFieldTreeWidgetItem::getTypeText()
{
    return {};
}

QString RepeatedFieldTreeWidgetItem::getValueText()
{
    if (getFieldInfo() == nullptr)
        return {};
    const qsizetype count = childItems.size();
    if (count == 0 && getFieldInfo()->isOptional())
        return QObject::tr("No values for optional field");
    const QString noun
        = hasSubMessages() ? QObject::tr("submessage") : QObject::tr("repeated value");
    const QString text = count == 1 ? QObject::tr("%1 %2") : QObject::tr("%1 %2s");
    return text.arg(count).arg(noun);
}

QString RepeatedFieldTreeWidgetItem::getRawValueText()
{
    return getValueText();
}

bool RepeatedFieldTreeWidgetItem::hasSubMessages() const
{
    return getFieldInfo()->getType().getCode() == FieldType::SubMessage;
}

void RepeatedFieldTreeWidgetItem::processMessage(const Message *message)
{
    const FieldInfo *field = getFieldInfo();
    if (field == nullptr)
        return;
    if (message == nullptr)
        clearValues();
    else if (field->occursIn(message->getInfo()))
        updateChildItems(message);
}

void RepeatedFieldTreeWidgetItem::updateChildItems(const Message *message)
{
    const FieldInfo *field = getFieldInfo();
    if (message == nullptr || field == nullptr)
        return;
    if (field->occursIn(message->getInfo())) {
        const auto count = static_cast<qsizetype>(field->getNumberOfValues(message));
        while (childItems.size() < count)
            appendChildItem();
        if (childItems.size() > count) {
            const auto surplus = childItems.mid(count);
            childItems.resize(count);
            SteadyTreeWidget::removeChildren(this, {surplus.begin(), surplus.end()});
        }
        for (AbstractFieldTreeWidgetItem *row : std::as_const(childItems))
            row->processMessage(message);
    }
    setValueText();
    setRawValueText();
    applyFilter();
}

void RepeatedFieldTreeWidgetItem::appendChildItem()
{
    const auto index = static_cast<unsigned int>(childItems.size());
    AbstractFieldTreeWidgetItem *row = nullptr;
    if (hasSubMessages())
        row = new SingleSubMessageFieldTreeWidgetItem(getMessageTreeWidget(), index);
    else
        row = new SingleValueFieldTreeWidgetItem(getMessageTreeWidget(), index);
    row->setFieldInfo(getFieldInfo());
    addChild(row);
    childItems.append(row);
    if (treeWidget() != nullptr)
        row->configureInTreeWidget();
    row->setFilter(getFilter());
}

void RepeatedFieldTreeWidgetItem::setFilter(MessageTreeFilter *filter)
{
    if (getFilter() != nullptr)
        QObject::disconnect(getFilter(), nullptr, this, nullptr);
    for (AbstractFieldTreeWidgetItem *row : std::as_const(childItems))
        row->setFilter(filter);
    AbstractFieldTreeWidgetItem::setFilter(filter);
    if (filter != nullptr)
        connect(filter, SIGNAL(changed()), this, SLOT(applyFilter()));
}

void RepeatedFieldTreeWidgetItem::applyFilter()
{
    MessageTreeFilter *filter = getFilter();
    if (filter == nullptr || getFieldInfo() == nullptr || !hasSubMessages())
        return;
    const bool loaded = filter->isLoadedFor(getFieldInfo()->getType().getSubMessageInfo());
    bool anyMatch = false;
    QList<QTreeWidgetItem *> misses;
    for (AbstractFieldTreeWidgetItem *row : std::as_const(childItems)) {
        // Elements of such a field are of no other class.
        const auto *element = static_cast<SingleSubMessageFieldTreeWidgetItem *>(row);
        if (filter->isInFilter(element->getDisplayedMessage())) {
            anyMatch = true;
            SteadyTreeWidget::setItemHidden(row, false);
        } else {
            misses.append(row);
        }
    }
    // A search that is not about these elements does not empty the list.
    for (QTreeWidgetItem *row : std::as_const(misses))
        SteadyTreeWidget::setItemHidden(row, loaded || anyMatch);
}
