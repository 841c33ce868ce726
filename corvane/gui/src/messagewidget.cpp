#include "messagewidget.h"

#include "fieldinfo.h"
#include "fieldvaluelabel.h"
#include "memleaktracer.h"
#include "message.h"
#include "messageinfo.h"
#include "translations.h"

#include <QGridLayout>
#include <QLabel>

namespace {

/** Once for all: else each would be shown later by itself, and all be laid out each time. */
void showLabels(QLayout &layout)
{
    layout.setEnabled(false);
    for (int i = 0; i < layout.count(); ++i)
        layout.itemAt(i)->widget()->show();
    layout.setEnabled(true);
    layout.activate();
}

} // namespace

MessageWidget::MessageWidget(QWidget *parent, const MessageInfo *messageInfo)
    : QWidget(parent)
{
    corvane::installTranslations();
    MemLeakTracer::getInstance()->doAllocateObject(QStringLiteral("MessageWidget"));
    setMessageInfo(messageInfo);
}

MessageWidget::~MessageWidget()
{
    MemLeakTracer::getInstance()->doDeallocateObject(QStringLiteral("MessageWidget"));
}

const MessageInfo *MessageWidget::getMessageInfo() const
{
    return messageInfo;
}

void MessageWidget::setMessageInfo(const MessageInfo *MessageInfo)
{
    messageInfo = MessageInfo;
    if (gridLayout != nullptr)
        removeRows();
    labels.clear();
    if (messageInfo == nullptr) {
        setWindowTitle(tr("No message type set"));
        return;
    }
    createRows();
    setWindowTitle(messageInfo->getName());
}

void MessageWidget::removeRows()
{
    delete gridLayout;
    gridLayout = nullptr;
    qDeleteAll(findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly));
}

void MessageWidget::createRows()
{
    gridLayout = new QGridLayout(this);
    int row = 0;
    for (const FieldInfo *fieldInfo : messageInfo->getFieldInfos()) {
        auto *nameLabel = new QLabel(fieldInfo->getName());
        auto *valueLabel = new FieldValueLabel(fieldInfo, nullptr, true, -1);
        gridLayout->addWidget(nameLabel, row, 0);
        gridLayout->addWidget(valueLabel, row, 1);
        labels.append(valueLabel);
        ++row;
    }
    if (isVisible())
        showLabels(*gridLayout);
}

void MessageWidget::displayMessage(const Message *message)
{
    if (message == nullptr) {
        setMessageInfo(nullptr);
        return;
    }
    if (message->getInfo() != messageInfo)
        setMessageInfo(message->getInfo());
    for (FieldValueLabel *label : std::as_const(labels))
        label->processMessage(message);
}

void MessageWidget::clearValues()
{
    for (FieldValueLabel *label : std::as_const(labels))
        label->clearValue();
}

void MessageWidget::processMessage(const Message *message)
{
    if (message->getInfo() == messageInfo)
        displayMessage(message);
}
