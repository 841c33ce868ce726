#include "fieldvaluelabel.h"

#include "fieldinfo.h"
#include "memleaktracer.h"
#include "message.h"
#include "messageneed.h"
#include "messagesource.h"
#include "translations.h"

#include <QTimer>

FieldValueLabel::FieldValueLabel(const FieldInfo *fieldInfo,
                                 MessageSource *source,
                                 bool showInterpretedString,
                                 int timeOut)
{
    corvane::installTranslations();
    MemLeakTracer::getInstance()->doAllocateObject(QStringLiteral("FieldValueLabel"));
    this->showInterpretedString = showInterpretedString;
    messageNeed = new MessageNeed(nullptr);
    setFieldInfo(fieldInfo);
    if (source != nullptr)
        connect(source, SIGNAL(newMessage(const Message *)), this,
                SLOT(processMessage(const Message *)));
    setText(tr("N/A"));
    if (timeOut >= 1)
        setTimeOut(timeOut);
}

FieldValueLabel::~FieldValueLabel()
{
    MemLeakTracer::getInstance()->doDeallocateObject(QStringLiteral("FieldValueLabel"));
    delete messageNeed;
    // The timer is left behind on purpose: nothing listens to it any more.
}

void FieldValueLabel::setFieldInfo(const FieldInfo *fieldInfo)
{
    this->fieldInfo = fieldInfo;
    if (fieldInfo == nullptr)
        messageNeed->clearMessagesNeeded(false);
    else
        messageNeed->setMessagesNeeded(fieldInfo->getMessageInfos());
}

const FieldInfo *FieldValueLabel::getFieldInfo() const
{
    return fieldInfo;
}

void FieldValueLabel::setIndex(unsigned int index)
{
    indexSet = true;
    this->index = index;
}

void FieldValueLabel::clearIndex()
{
    indexSet = false;
    index = 0;
}

bool FieldValueLabel::hasIndex() const
{
    return indexSet;
}

unsigned int FieldValueLabel::getIndex() const
{
    return index;
}

void FieldValueLabel::setShowInterpretedString(bool showInterpretedString)
{
    this->showInterpretedString = showInterpretedString;
}

bool FieldValueLabel::getShowInterpretedString() const
{
    return showInterpretedString;
}

void FieldValueLabel::setTimeOut(int milliseconds)
{
    if (milliseconds < 0) {
        delete timer;
        timer = nullptr;
        return;
    }
    if (timer == nullptr) {
        timer = new QTimer;
        connect(timer, SIGNAL(timeout()), this, SLOT(onTimeout()));
        timer->setSingleShot(true);
    }
    timer->setInterval(milliseconds);
    timer->start();
}

void FieldValueLabel::clearValue()
{
    setText(tr("N/A"));
}

void FieldValueLabel::processMessage(const Message *message)
{
    if (fieldInfo == nullptr || !fieldInfo->occursIn(message->getInfo()))
        return;
    const unsigned int count = fieldInfo->getNumberOfValues(message);
    if (count <= index) {
        setText(tr("N/A"));
        return;
    }
    setText(getText(message, count));
    if (timer != nullptr)
        timer->start();
}

QString FieldValueLabel::getText(const Message *message, unsigned int count) const
{
    if (fieldInfo->isStringField() && !indexSet)
        return fieldInfo->getString(message);
    const FieldValue value = fieldInfo->getValue(message, index);
    QString text = showInterpretedString
                       ? fieldInfo->getInterpretedString(value, true)
                       : value.toString(false, -1, FieldValue::DefaultRepresentation, false);
    if (count >= 2 && !indexSet)
        text += tr(" [...]");
    return text;
}

void FieldValueLabel::onTimeout()
{
    setText(tr("N/A"));
}
