#include "messagereader.h"

#include "calculation.h"
#include "circularfields.h"
#include "descriptions.h"
#include "fieldresolver.h"
#include "messageinfo.h"
#include "names.h"
#include "overlaykeys.h"

#include <QSet>

namespace corvane {

namespace {

/** Whether the field is a sub-message with whole seconds and the nanoseconds beyond them. */
bool isTimeStamp(const FieldInfo *field)
{
    const MessageInfo *type = field->getType().getSubMessageInfo();
    return type != nullptr && type->getData()->findField(QStringLiteral("seconds")) != nullptr
           && type->getData()->findField(QStringLiteral("nanos")) != nullptr;
}

} // namespace

MessageReader::MessageReader(NodeReader &reader, OverlayPlan &plan)
    : reader(reader)
    , plan(plan)
{
}

void MessageReader::readMessage(const JsonNode &node, const MessageInfo *message)
{
    if (!reader.isObject(node, QStringLiteral("message")))
        return;
    MessageChange change;
    change.displayName = reader.readText(node, "displayName");
    change.description = reader.readText(node, "description");
    plan.changeMessage(message, change);
    for (const MessageInfo *variant : message->getData()->variants)
        plan.changeMessage(variant, change);
    if (const JsonNode *fields = reader.find(node, "fields", JsonNode::Object))
        readFields(*fields, message);
    if (const JsonNode *list = node.find(QStringLiteral("virtualFields")))
        NewFieldReader(reader, plan, message).readVirtualFields(*list, &unboundFields);
    if (const JsonNode *timeField = node.find(QStringLiteral("timeField")))
        timeFields.push_back({timeField, message});
    if (const JsonNode *envelope = node.find(QStringLiteral("envelope")))
        readEnvelope(*envelope, message);
}

void MessageReader::readEnvelope(const JsonNode &node, const MessageInfo *message)
{
    if (!reader.isObject(node, QStringLiteral("envelope")))
        return;
    Envelope envelope;
    envelope.type = message;
    const JsonNode *oneof = reader.require(node, "oneof", JsonNode::Text);
    const bool isGood = oneof != nullptr && readContentFields(*oneof, envelope);
    if (readSequenceField(node, envelope) && isGood)
        plan.setEnvelope(envelope);
}

bool MessageReader::readContentFields(const JsonNode &oneof, Envelope &envelope)
{
    QStringList choices;
    QSet<const MessageInfo *> types;
    for (const FieldInfo *field : envelope.type->getData()->fields) {
        const QString &choice = field->getData()->choice;
        if (!choice.isEmpty() && !choices.contains(choice))
            choices.append(choice);
        if (choice.isEmpty() || choice != oneof.text)
            continue;
        const MessageInfo *type = field->getType().getSubMessageInfo();
        if (type == nullptr || types.contains(type)) {
            reader.addError(oneof, QStringLiteral("the case %1 of %2 cannot be a message type; "
                                                  "expected a sub-message of a type of its own")
                                       .arg(quoted(field->getData()->name), quoted(oneof.text)));
            return false;
        }
        types.insert(type);
        envelope.contentFields.append(field);
    }
    if (envelope.contentFields.isEmpty())
        reader.addError(oneof, QStringLiteral("message %1 has no oneof %2%3")
                                   .arg(quoted(envelope.type->getData()->name), quoted(oneof.text),
                                        suggestion(oneof.text, choices)));
    return !envelope.contentFields.isEmpty();
}

bool MessageReader::readSequenceField(const JsonNode &node, Envelope &envelope)
{
    if (node.find(QStringLiteral("sequenceField")) == nullptr)
        return true;
    const JsonNode *name = reader.find(node, "sequenceField", JsonNode::Text);
    if (name == nullptr)
        return false;
    const FieldInfo *field = envelope.type->getData()->findField(name->text);
    if (field == nullptr) {
        reader.addError(*name, unknownFieldText(plan, envelope.type, name->text));
        return false;
    }
    const qint32 code = field->getType().getCode();
    const bool isInteger = code == FieldType::SignedInteger || code == FieldType::UnsignedInteger;
    if (!isInteger || field->isRepeated() || field->getParentFieldInfo() != nullptr
        || field->isVirtual())
    {
        reader.addError(*name, QStringLiteral("%1 cannot count the messages; expected a field that "
                                              "is transmitted and holds one integer")
                                   .arg(quoted(name->text)));
        return false;
    }
    envelope.sequenceField = field;
    return true;
}

void MessageReader::readFields(const JsonNode &object, const MessageInfo *message)
{
    for (const JsonNode &node : object.children)
        if (!reader.getSource().isFull())
            readField(node, message);
}

void MessageReader::readField(const JsonNode &node, const MessageInfo *message)
{
    const FieldInfo *field = message->getData()->findField(node.key);
    if (field == nullptr)
        return reader.addErrorAtKey(node, unknownFieldText(plan, message, node.key));
    if (!reader.isObject(node, QStringLiteral("field")))
        return;
    const FieldChange change = readFieldChange(reader, node, field->getType(), node.key);
    plan.changeField(field, change);
    for (const MessageInfo *variant : message->getData()->variants)
        if (const FieldInfo *same = variant->getData()->findField(node.key))
            plan.changeField(same, change);
    if (const JsonNode *list = node.find(QStringLiteral("subFields")))
        NewFieldReader(reader, plan, message).readSubFields(*list, field);
}

void MessageReader::finish()
{
    for (const TimeField &timeField : timeFields)
        readTimeField(timeField);
    for (const UnboundVirtualField &unbound : unboundFields)
        if (!reader.getSource().isFull())
            bind(unbound);
    completeInOrder(unboundFields, reader.getSource());
}

void MessageReader::readTimeField(const TimeField &timeField)
{
    const JsonNode &node = *timeField.node;
    if (!reader.isObject(node, QStringLiteral("timeField")))
        return;
    const FieldInfo *field = findTimeField(node, timeField.message);
    reader.require(node, "unit", JsonNode::Text);
    const auto unit = reader.readChoice(node, "unit", overlayTimeUnitNames());
    if (field == nullptr || !unit)
        return;
    MessageChange change;
    change.timeField = field;
    change.timeFieldUnitUs = overlayTimeUnitUs(overlayTimeUnitNames().at(*unit));
    plan.changeMessage(timeField.message, change);
}

const FieldInfo *MessageReader::findTimeField(const JsonNode &node, const MessageInfo *message)
{
    const JsonNode *name = reader.require(node, "field", JsonNode::Text);
    if (name == nullptr)
        return nullptr;
    const FieldInfo *field = plan.findField(message, name->text);
    if (field == nullptr) {
        reader.addError(*name, unknownFieldText(plan, message, name->text));
        return nullptr;
    }
    if ((isNumeric(field) || isTimeStamp(field)) && !field->isRepeated() && !field->isVirtual())
        return field;
    reader.addError(*name, QStringLiteral("%1 cannot carry the time; expected a field that is "
                                          "transmitted and holds one number")
                               .arg(quoted(name->text)));
    return nullptr;
}

void MessageReader::bind(const UnboundVirtualField &unbound)
{
    JsonSource &source = reader.getSource();
    std::vector<VirtualFieldInfo::Operand> operands;
    for (const FieldReference &reference : unbound.expression.references) {
        QString problem;
        if (auto operand = resolveField(plan, unbound.message, reference, &problem))
            operands.push_back(std::move(*operand));
        else
            source.addErrorInText(*unbound.expressionNode, reference.position, problem);
    }
    if (operands.size() != unbound.expression.references.size())
        return;
    auto calculation = Calculation::create(unbound.expression);
    if (calculation == nullptr)
        return reader.addError(*unbound.expressionNode,
                               QStringLiteral("this expression cannot be calculated"));
    unbound.field->bind(std::move(operands), std::move(calculation));
}

} // namespace corvane
