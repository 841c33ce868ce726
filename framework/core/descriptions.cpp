#include "descriptions.h"

#include "formatinfo.h"
#include "messageinfo.h"

#include <atomic>

namespace corvane {

namespace {

bool isInside(const FieldInfo *field, const FieldInfo *ancestor)
{
    for (; field != nullptr; field = field->getParentFieldInfo())
        if (field == ancestor)
            return true;
    return false;
}

QString pathOf(const FieldInfo *field)
{
    QString path = field->getData()->name;
    while ((field = field->getParentFieldInfo()) != nullptr)
        path = field->getData()->name + QLatin1Char('.') + path;
    return path;
}

constexpr qsizetype maximumSentence = 160;

} // namespace

FieldInfo *MessageInfoData::addField(std::unique_ptr<FieldInfo> field, const MessageInfo *owner)
{
    FieldInfo *added = field.get();
    const FieldInfo *parent = added->getParentFieldInfo();
    added->getData()->messageInfos.append(owner);

    auto position = fields.size();
    if (parent != nullptr) {
        parent->getData()->subFieldInfos.append(added);
        position = fields.indexOf(parent) + 1;
        while (position < fields.size() && isInside(fields.at(position), parent))
            ++position;
    }
    fields.insert(position, added);
    ownedFields.push_back(std::move(field));
    return added;
}

const FieldInfo *MessageInfoData::findField(const QString &path) const
{
    for (const FieldInfo *field : fields)
        if (pathOf(field) == path)
            return field;
    return nullptr;
}

MessageInfo *FormatInfoData::addMessage(std::unique_ptr<MessageInfo> message)
{
    MessageInfo *added = message.get();
    messagesByName.insert(added->getData()->name, added);
    messages.push_back(std::move(message));
    return added;
}

MessageInfo *FormatInfoData::findMessage(const QString &name) const
{
    MessageInfo *found = messagesByName.value(name);
    if (found != nullptr || package.isEmpty() || !name.startsWith(package))
        return found;
    return messagesByName.value(name.mid(package.size()));
}

QString firstSentence(const QString &text)
{
    const auto end = text.indexOf(QLatin1String(". "));
    QString sentence = end < 0 ? text : text.left(end + 1);
    if (sentence.size() <= maximumSentence)
        return sentence;
    return sentence.left(maximumSentence - 1).trimmed() + QChar(0x2026);
}

} // namespace corvane

MessageInfo::MessageInfo(std::unique_ptr<corvane::MessageInfoData> data)
    : d(std::move(data))
{
    static std::atomic<quint32> nextSlot = 1;
    d->slot = nextSlot++;
}

MessageInfo::~MessageInfo() = default;

QList<const FieldInfo *> MessageInfo::getFieldInfos() const
{
    return d->fields;
}

QString MessageInfo::getName() const
{
    return d->displayName.isEmpty() ? d->name : d->displayName;
}

QString MessageInfo::getShortDescriptiveText() const
{
    return d->shortDescription;
}

bool MessageInfo::isMain() const
{
    return d->main;
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
