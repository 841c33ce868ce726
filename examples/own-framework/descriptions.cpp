// Formats, message types and fields. This framework has no repeated, optional, virtual or
// confidential fields, no sub-messages and no symbolic names.

#include "fieldinfo.h"
#include "records.h"

QList<const MessageInfo *> &corvane::knownTypes()
{
    static QList<const MessageInfo *> types;
    return types;
}

FormatInfo::FormatInfo(std::unique_ptr<corvane::FormatInfoData> data)
    : d(std::move(data))
{
}

FormatInfo::~FormatInfo() = default;

QString FormatInfo::getName() const
{
    return d->name;
}

MessageInfo::MessageInfo(std::unique_ptr<corvane::MessageInfoData> data)
    : d(std::move(data))
{
}

MessageInfo::~MessageInfo() = default;

QList<const FieldInfo *> MessageInfo::getFieldInfos() const
{
    return d->fields;
}

QString MessageInfo::getName() const
{
    return d->name;
}

QString MessageInfo::getShortDescriptiveText() const
{
    return d->description;
}

bool MessageInfo::isMain() const
{
    return true;
}

FieldType::FieldType(Code code, int sizeBits)
    : code(code)
    , sizeBits(sizeBits)
{
}

QString FieldType::toShortString() const
{
    return QStringLiteral("uint%1").arg(sizeBits);
}

FieldInfo::FieldInfo(const FieldType &type, std::unique_ptr<corvane::FieldInfoData> data)
    : type(type)
    , d(std::move(data))
{
}

FieldInfo::~FieldInfo() = default;

bool FieldInfo::getByteRange(const Message *, unsigned int, quint32 *, quint32 *) const
{
    return false;
}

QString FieldInfo::getString(const Message *) const
{
    return {};
}

QString FieldInfo::getValueText(const Message *message, unsigned int index, bool) const
{
    return getRawString(getValue(message, index));
}

QString FieldInfo::getName() const
{
    return d->name;
}

bool FieldInfo::occursIn(const MessageInfo *messageInfo) const
{
    return messageInfo == d->message;
}

QList<const MessageInfo *> FieldInfo::getMessageInfos() const
{
    return {d->message};
}

QList<const FieldInfo *> FieldInfo::getSubFieldInfos() const
{
    return {};
}

const FieldInfo *FieldInfo::getParentFieldInfo() const
{
    return nullptr;
}

bool FieldInfo::isRepeated() const
{
    return false;
}

bool FieldInfo::isOptional() const
{
    return false;
}

bool FieldInfo::isStringField() const
{
    return false;
}

bool FieldInfo::isVirtual() const
{
    return false;
}

bool FieldInfo::isConfidential() const
{
    return false;
}

FieldInfo::Role FieldInfo::getRole() const
{
    return Ordinary;
}

bool FieldInfo::isSymbolicRepresentation(QString) const
{
    return false;
}

QString FieldInfo::getInterpretedString(const FieldValue &value, bool) const
{
    return getRawString(value);
}

QString FieldInfo::getRawString(const FieldValue &value) const
{
    return value.toString(false, -1, FieldValue::DefaultRepresentation, false);
}
