#include "stringfieldtreewidgetitem.h"

#include "DbgTrace.h"
#include "memleaktracer.h"
#include "message.h"

namespace {

bool isRepeatedCharacterField(const FieldInfo *field)
{
    const qint32 code = field->getType().getCode();
    return field->isRepeated()
           && (code == FieldType::Character || code == FieldType::UnsignedCharacter);
}

} // namespace

StringFieldTreeWidgetItem::StringFieldTreeWidgetItem(MessageTreeWidget *messageTreeWidget)
    : AbstractMessageTreeWidgetItem(messageTreeWidget)
    , AbstractFieldTreeWidgetItem(messageTreeWidget)
{
    MemLeakTracer::getInstance()->doAllocateObject(QStringLiteral("StringFieldTreeWidgetItem"));
}

StringFieldTreeWidgetItem::~StringFieldTreeWidgetItem()
{
    MemLeakTracer::getInstance()->doDeallocateObject(QStringLiteral("StringFieldTreeWidgetItem"));
}

QString StringFieldTreeWidgetItem::extractString(const Message *message) const
{
    return getFieldInfo() != nullptr ? getFieldInfo()->getString(message)
                                     : QObject::tr("No field set");
}

void StringFieldTreeWidgetItem::setString(const QString &string)
{
    this->string = string;
    setValueText();
    setRawValueText();
}

QString StringFieldTreeWidgetItem::getString() const
{
    return string;
}

void StringFieldTreeWidgetItem::setFieldInfo(const FieldInfo *fieldInfo)
{
    if (fieldInfo == getFieldInfo())
        return;
    if (fieldInfo != nullptr && !isRepeatedCharacterField(fieldInfo)) {
        constexpr int line = 43; // by which this mistake is known
        dbg_AssertArg("corvanegui", "StringFieldTreeWidgetItem", "setFieldInfo",
                      "corvane/gui/src/tree/stringfieldtreewidgetitem", line,
                      "StringFieldTreeWidgetItem::setFieldInfo: given field is not a repeated "
                      "char field.");
    }
    AbstractFieldTreeWidgetItem::setFieldInfo(fieldInfo);
    clearValues();
    setNameText();
    setTypeText();
}

void StringFieldTreeWidgetItem::clearValues()
{
    setString(FieldValue::invalid().toString(false, -1, FieldValue::DefaultRepresentation, false));
}

QString StringFieldTreeWidgetItem::getNameText()
{
    return getFieldInfo() != nullptr ? getFieldInfo()->getName() : QObject::tr("No field set");
}

QString StringFieldTreeWidgetItem::getTypeText()
{
    return QObject::tr("string");
}

QString StringFieldTreeWidgetItem::getValueText()
{
    return string;
}

QString StringFieldTreeWidgetItem::getRawValueText()
{
    return string;
}

void StringFieldTreeWidgetItem::processMessage(const Message *message)
{
    const FieldInfo *field = getFieldInfo();
    if (field == nullptr)
        return;
    if (message == nullptr)
        clearValues();
    else if (field->occursIn(message->getInfo()))
        setString(field->getString(message));
}
