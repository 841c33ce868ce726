#include "messagetreewidgetitem.h"

#include "memleaktracer.h"
#include "message.h"
#include "messageinfo.h"
#include "repeatedfieldtreewidgetitem.h"
#include "singlesubmessagefieldtreewidgetitem.h"
#include "singlevaluefieldtreewidgetitem.h"
#include "stringfieldtreewidgetitem.h"

#include <QFont>

#include <utility>

MessageTreeWidgetItem::MessageTreeWidgetItem(MessageTreeWidget *messageTreeWidget,
                                             const MessageInfo *messageInfo)
    : AbstractMessageTreeWidgetItem(messageTreeWidget)
{
    MemLeakTracer::getInstance()->doAllocateObject(QStringLiteral("MessageTreeWidgetItem"));
    setMessageInfo(messageInfo);
    setInitialExpansionPolicy(AskTreeWidget);
}

MessageTreeWidgetItem::~MessageTreeWidgetItem()
{
    MemLeakTracer::getInstance()->doDeallocateObject(QStringLiteral("MessageTreeWidgetItem"));
    setDisplayedMessage(nullptr);
}

const MessageInfo *MessageTreeWidgetItem::getMessageInfo() const
{
    return messageInfo;
}

const Message *MessageTreeWidgetItem::getDisplayedMessage() const
{
    return displayedMessage;
}

bool MessageTreeWidgetItem::isMessageDisplayed() const
{
    return displayedMessage != nullptr;
}

QString MessageTreeWidgetItem::getNameText()
{
    return messageInfo != nullptr ? messageInfo->getName() : tr("No message type set");
}

QString MessageTreeWidgetItem::getNameToolTip()
{
    return messageInfo != nullptr ? messageInfo->getShortDescriptiveText() : QString();
}

QString MessageTreeWidgetItem::getTypeText()
{
    return tr("Message");
}

QString MessageTreeWidgetItem::getValueText()
{
    return isMessageDisplayed() ? QString() : tr("No message");
}

void MessageTreeWidgetItem::setMessageInfo(const MessageInfo *messageInfo)
{
    if (messageInfo == this->messageInfo)
        return;
    setDisplayedMessage(nullptr);
    this->messageInfo = messageInfo;
    messageNeed.setMessageNeeded(messageInfo);
    deleteAllChildItems();
    if (messageInfo != nullptr)
        createChildItems();
    setNameText();
    setValueText();
    setRawValueText();
}

void MessageTreeWidgetItem::deleteAllChildItems()
{
    qDeleteAll(takeChildren());
    fieldItemsByFieldInfo.clear();
    confidentialityItem = nullptr;
}

void MessageTreeWidgetItem::createChildItems()
{
    bool hidConfidential = false;
    for (const FieldInfo *field : messageInfo->getFieldInfos()) {
        if (!mustShowField(field)) {
            hidConfidential = hidConfidential || field->isConfidential();
            continue;
        }
        if (field->getParentFieldInfo() != nullptr)
            continue; // has its row below its parent's
        AbstractFieldTreeWidgetItem *row = createFieldItem(field);
        addChild(row);
        fieldItemsByFieldInfo.insert(field, row);
        if (treeWidget() != nullptr)
            row->configureInTreeWidget();
    }
    if (hidConfidential)
        showConfidentialityMessage();
    else
        hideConfidentialityMessage();
}

AbstractFieldTreeWidgetItem *MessageTreeWidgetItem::createFieldItem(const FieldInfo *field)
{
    MessageTreeWidget *tree = getMessageTreeWidget();
    AbstractFieldTreeWidgetItem *row = nullptr;
    if (field->isRepeated() && field->isStringField())
        row = new StringFieldTreeWidgetItem(tree);
    else if (field->isRepeated())
        row = new RepeatedFieldTreeWidgetItem(tree);
    else if (field->getType().getCode() == FieldType::SubMessage)
        row = new SingleSubMessageFieldTreeWidgetItem(tree, 0);
    else
        row = new SingleValueFieldTreeWidgetItem(tree, 0);
    row->setFieldInfo(field);
    row->setFilter(getFilter());

    const int column = tree != nullptr ? tree->getColumnIndex(MessageTreeWidget::Name) : -1;
    if (field->isVirtual() && column >= 0) {
        auto font = qvariant_cast<QFont>(row->data(column, Qt::FontRole));
        font.setStyle(QFont::StyleItalic);
        row->setData(column, Qt::FontRole, font);
    }
    return row;
}

void MessageTreeWidgetItem::showConfidentialityMessage()
{
    if (confidentialityItem == nullptr) {
        confidentialityItem = new QTreeWidgetItem(QTreeWidgetItem::Type);
        MessageTreeWidget *tree = getMessageTreeWidget();
        const int column = tree != nullptr ? tree->getColumnIndex(MessageTreeWidget::Name) : -1;
        if (column >= 0) {
            confidentialityItem->setData(column, Qt::DisplayRole, tr("Hidden data"));
            confidentialityItem->setData(column, Qt::ToolTipRole,
                                         tr("Due to confidentiality, the data in this message has "
                                            "been (partly) hidden."));
        }
    }
    insertChild(0, confidentialityItem);
}

void MessageTreeWidgetItem::hideConfidentialityMessage()
{
    delete std::exchange(confidentialityItem, nullptr);
}

void MessageTreeWidgetItem::setDisplayedMessage(const Message *message)
{
    if (message == displayedMessage)
        return;
    if (displayedMessage != nullptr && messageInfo != nullptr && messageInfo->isMain())
        displayedMessage->removeReference();
    // A message inside another one lives as long as that one, which a row above holds.
    if (message != nullptr && message->getInfo()->isMain())
        message->addReference();
    displayedMessage = message;
}

void MessageTreeWidgetItem::displayMessage(const Message *message)
{
    setMessageInfo(message != nullptr ? message->getInfo() : nullptr);
    setDisplayedMessage(message);
    setValueText();
    setRawValueText();
    for (AbstractFieldTreeWidgetItem *row : std::as_const(fieldItemsByFieldInfo))
        row->processMessage(message);
}

void MessageTreeWidgetItem::processMessage(const Message *message)
{
    if (message->getInfo() == messageInfo)
        MessageTreeWidgetItem::displayMessage(message);
}

void MessageTreeWidgetItem::clearValues()
{
    setDisplayedMessage(nullptr);
    setValueText();
    setRawValueText();
    for (AbstractFieldTreeWidgetItem *row : std::as_const(fieldItemsByFieldInfo))
        row->clearValues();
}

void MessageTreeWidgetItem::configureInTreeWidget()
{
    // The rows of a message inside another one are rebuilt with those of the main message.
    if (messageInfo != nullptr && messageInfo->isMain())
        rebuild();
    AbstractMessageTreeWidgetItem::configureInTreeWidget();
}

void MessageTreeWidgetItem::rebuild()
{
    const MessageInfo *info = messageInfo;
    const Message *message = displayedMessage;
    if (message != nullptr)
        message->addReference();
    setMessageInfo(nullptr);
    setMessageInfo(info);
    if (message != nullptr) {
        displayMessage(message);
        message->removeReference();
    }
}

void MessageTreeWidgetItem::setFilter(MessageTreeFilter *filter)
{
    for (AbstractFieldTreeWidgetItem *row : std::as_const(fieldItemsByFieldInfo))
        row->setFilter(filter);
    AbstractMessageTreeWidgetItem::setFilter(filter);
}

void MessageTreeWidgetItem::setChildItemsHidden(bool hidden)
{
    for (int i = 0; i < childCount(); ++i)
        SteadyTreeWidget::setItemHidden(child(i), hidden);
}
