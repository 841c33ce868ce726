#include "singlesubmessagefieldtreewidgetitem.h"

#include "memleaktracer.h"
#include "message.h"

namespace {

/** Embedded messages are gone with the message that they were part of. */
void forgetMessagesBelow(QTreeWidgetItem *item)
{
    for (int i = 0; i < item->childCount(); ++i) {
        QTreeWidgetItem *child = item->child(i);
        if (auto *row = dynamic_cast<SingleSubMessageFieldTreeWidgetItem *>(child))
            row->setDisplayedMessage(nullptr);
        forgetMessagesBelow(child);
    }
}

} // namespace

SingleSubMessageFieldTreeWidgetItem::SingleSubMessageFieldTreeWidgetItem(
    MessageTreeWidget *messageTreeWidget, unsigned int index)
    : AbstractMessageTreeWidgetItem(messageTreeWidget)
    , MessageTreeWidgetItem(messageTreeWidget, nullptr)
    , AbstractFieldTreeWidgetItem(messageTreeWidget)
    , index(index)
{
    MemLeakTracer::getInstance()->doAllocateObject(
        QStringLiteral("SingleSubMessageFieldTreeWidgetItem"));
    SingleSubMessageFieldTreeWidgetItem::clearValues();
    setNameText();
}

SingleSubMessageFieldTreeWidgetItem::~SingleSubMessageFieldTreeWidgetItem()
{
    MemLeakTracer::getInstance()->doDeallocateObject(
        QStringLiteral("SingleSubMessageFieldTreeWidgetItem"));
}

void SingleSubMessageFieldTreeWidgetItem::setIndex(unsigned int index)
{
    this->index = index;
    clearValues();
    setNameText();
}

unsigned int SingleSubMessageFieldTreeWidgetItem::getIndex() const
{
    return index;
}

QString SingleSubMessageFieldTreeWidgetItem::getNameText()
{
    const FieldInfo *field = getFieldInfo();
    if (field == nullptr)
        return QObject::tr("No field set");
    return field->isRepeated() ? field->getName() + QObject::tr(" [%1]").arg(index)
                               : field->getName();
}

QString SingleSubMessageFieldTreeWidgetItem::getNameToolTip()
{
    return MessageTreeWidgetItem::getNameToolTip();
}

QString SingleSubMessageFieldTreeWidgetItem::getTypeText()
{
    return getFieldInfo() != nullptr ? getFieldInfo()->getType().toShortString()
                                     : QObject::tr("N/A");
}

QString SingleSubMessageFieldTreeWidgetItem::getValueText()
{
    return optionalSubMessageAbsent ? QObject::tr("Optional submessage not present") : QString();
}

QString SingleSubMessageFieldTreeWidgetItem::getRawValueText()
{
    return getValueText();
}

void SingleSubMessageFieldTreeWidgetItem::clearValues()
{
    MessageTreeWidgetItem::clearValues();
}

void SingleSubMessageFieldTreeWidgetItem::configureInTreeWidget()
{
    MessageTreeWidgetItem::configureInTreeWidget();
}

void SingleSubMessageFieldTreeWidgetItem::setFilter(MessageTreeFilter *filter)
{
    MessageTreeWidgetItem::setFilter(filter);
}

void SingleSubMessageFieldTreeWidgetItem::setFieldInfo(const FieldInfo *fieldInfo)
{
    if (fieldInfo == getFieldInfo())
        return;
    const MessageInfo *subType
        = fieldInfo != nullptr ? fieldInfo->getType().getSubMessageInfo() : nullptr;
    if (fieldInfo != nullptr && subType == nullptr)
        qFatal("SingleSubMessageFieldTreeWidgetItem::setFieldInfo: non-submessage field given!");
    setMessageInfo(subType);
    AbstractFieldTreeWidgetItem::setFieldInfo(fieldInfo);
    clearValues();
    setNameText();
    setTypeText();
}

void SingleSubMessageFieldTreeWidgetItem::processMessage(const Message *message)
{
    const FieldInfo *field = getFieldInfo();
    if (field == nullptr)
        return;
    optionalSubMessageAbsent = false;
    if (message == nullptr) {
        showAbsence();
        return;
    }
    const unsigned int count = field->getNumberOfValues(message);
    if (count == 0 && field->isOptional() && field->occursIn(message->getInfo())) {
        optionalSubMessageAbsent = true;
        showAbsence();
    } else if (count > index) {
        displayMessage(field->getValue(message, index).getSubMessage());
        setChildItemsHidden(false);
    } else {
        // All texts stay, but a filter must not ask for what is not there any more.
        setDisplayedMessage(nullptr);
        forgetMessagesBelow(this);
    }
}

void SingleSubMessageFieldTreeWidgetItem::showAbsence()
{
    clearValues();
    setChildItemsHidden(true);
}
