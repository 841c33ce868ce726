#include "overlayplan.h"

#include "descriptions.h"
#include "formatinfo.h"
#include "messageinfo.h"
#include "virtualfieldinfo.h"

namespace corvane {

namespace {

/** The changeable one behind a field of a message's list. */
FieldInfo *ownedField(const FieldInfo *field)
{
    for (const MessageInfo *message : field->getMessageInfos())
        for (const auto &owned : message->getData()->ownedFields)
            if (owned.get() == field)
                return owned.get();
    return nullptr;
}

void applyTo(const MessageInfo *message, const MessageChange &change)
{
    MessageInfoData &data = *message->getData();
    if (change.displayName)
        data.displayName = *change.displayName;
    if (change.description)
        data.shortDescription = *change.description;
    if (change.timeField == nullptr)
        return;
    data.timeField = change.timeField;
    data.timeFieldUnitUs = change.timeFieldUnitUs;
}

} // namespace

QString fieldPath(const FieldInfo *field)
{
    QString path = field->getData()->name;
    while ((field = field->getParentFieldInfo()) != nullptr)
        path = field->getData()->name + QLatin1Char('.') + path;
    return path;
}

const FieldInfo *OverlayPlan::findField(const MessageInfo *message, const QString &path) const
{
    const FieldInfo *added = newFieldsByPath.value({message, path});
    return added != nullptr ? added : message->getData()->findField(path);
}

bool OverlayPlan::isNew(const MessageInfo *message, const QString &path) const
{
    return newFieldsByPath.contains({message, path});
}

QStringList OverlayPlan::getFieldPaths(const MessageInfo *message) const
{
    QStringList paths;
    for (const FieldInfo *field : message->getData()->fields)
        paths.append(fieldPath(field));
    for (const NewField &added : newFields)
        if (added.message == message)
            paths.append(fieldPath(added.field.get()));
    return paths;
}

FieldInfo *OverlayPlan::addField(const MessageInfo *message, std::unique_ptr<FieldInfo> field)
{
    FieldInfo *added = field.get();
    newFieldsByPath.insert({message, fieldPath(added)}, added);
    newFields.push_back({message, std::move(field)});
    return added;
}

void OverlayPlan::changeField(const FieldInfo *field, const FieldChange &change)
{
    fieldChanges.emplace_back(field, change);
}

void OverlayPlan::changeMessage(const MessageInfo *message, const MessageChange &change)
{
    messageChanges.emplace_back(message, change);
}

void OverlayPlan::apply()
{
    for (const auto &[field, change] : fieldChanges)
        if (FieldInfo *owned = ownedField(field))
            change.applyTo(*owned);
    for (NewField &added : newFields)
        added.message->getData()->addField(std::move(added.field), added.message);
    for (const auto &[message, change] : messageChanges)
        applyTo(message, change);
    if (framing)
        format->getData()->framing = *framing;
    if (envelope)
        applyEnvelope();
    updateConfidential();
}

void OverlayPlan::applyEnvelope()
{
    const auto setMain = [](const Envelope &wrapping, bool contentsAreMain) {
        for (const FieldInfo *field : wrapping.contentFields)
            field->getType().getSubMessageInfo()->getData()->main = contentsAreMain;
        wrapping.type->getData()->main = !contentsAreMain;
    };
    if (const auto &previous = format->getData()->envelope)
        setMain(*previous, false);
    setMain(*envelope, true);
    format->getData()->envelope = envelope;
}

void OverlayPlan::updateConfidential()
{
    for (const auto &message : format->getData()->messages)
        for (const auto &field : message->getData()->ownedFields)
            if (auto *virtualField = dynamic_cast<VirtualFieldInfo *>(field.get()))
                virtualField->updateConfidential();
}

} // namespace corvane
