#include "fieldinfo.h"

#include "corvane.h"
#include "decodedfieldinfo.h"
#include "descriptions.h"
#include "enumeration.h"

namespace {

QString symbolOf(quint64 number, const corvane::Enumeration &symbols, const FieldType &type)
{
    // A mask has no sign: what a signed word fills up with are no bits of it.
    const int unused = symbols.isBitMask() ? 64 - qBound(1, type.getSizeBits(), 64) : 0;
    return symbols.getText(number << unused >> unused);
}

} // namespace

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

QString FieldInfo::getValueText(const Message *message, unsigned int index, bool interpreted) const
{
    const FieldValue value = getValue(message, index);
    if (!value.isValid())
        return {};
    return interpreted ? getInterpretedString(value, true) : getRawString(value);
}

QString FieldInfo::getName() const
{
    return d->displayName.isEmpty() ? d->name : d->displayName;
}

bool FieldInfo::occursIn(const MessageInfo *messageInfo) const
{
    return d->messageInfos.contains(messageInfo);
}

QList<const MessageInfo *> FieldInfo::getMessageInfos() const
{
    return d->messageInfos;
}

QList<const FieldInfo *> FieldInfo::getSubFieldInfos() const
{
    return d->subFieldInfos;
}

const FieldInfo *FieldInfo::getParentFieldInfo() const
{
    return d->parent;
}

bool FieldInfo::isRepeated() const
{
    return d->repeated;
}

bool FieldInfo::isOptional() const
{
    return d->optional;
}

bool FieldInfo::isStringField() const
{
    return d->isString;
}

bool FieldInfo::isVirtual() const
{
    return d->isVirtual;
}

bool FieldInfo::isConfidential() const
{
    // A sub-field shows a part of its parent, so it is as confidential as the parent.
    return d->confidential || (d->parent != nullptr && d->parent->isConfidential());
}

FieldInfo::Role FieldInfo::getRole() const
{
    return d->role;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is fixed
bool FieldInfo::isSymbolicRepresentation(QString text) const
{
    return d->symbols != nullptr && d->symbols->hasName(text);
}

QString FieldInfo::getInterpretedString(const FieldValue &value, bool symbolic) const
{
    if (isHidden())
        return corvane::confidentialText();
    // A value hidden by itself (a part of a confidential message) has no integer either.
    const auto number = symbolic && d->symbols != nullptr ? value.toInteger() : std::nullopt;
    const QString symbol = number ? symbolOf(*number, *d->symbols, type) : QString();
    return symbol.isEmpty() ? getRawString(value) : symbol;
}

QString FieldInfo::getRawString(const FieldValue &value) const
{
    if (isHidden())
        return corvane::confidentialText();
    return value.toString(false, -1, FieldValue::DefaultRepresentation, false);
}

bool FieldInfo::isHidden() const
{
    return !Corvane::confidentialInformationDisplayEnabled() && isConfidential();
}
