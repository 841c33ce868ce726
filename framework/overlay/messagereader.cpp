#include "messagereader.h"

#include "calculation.h"
#include "circularfields.h"
#include "descriptions.h"
#include "fieldresolver.h"
#include "messageinfo.h"
#include "names.h"
#include "overlaykeys.h"

namespace corvane {

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
    if (const JsonNode *fields = reader.find(node, "fields", JsonNode::Object))
        readFields(*fields, message);
    if (const JsonNode *list = node.find(QStringLiteral("virtualFields")))
        NewFieldReader(reader, plan, message).readVirtualFields(*list, &unboundFields);
    if (const JsonNode *timeField = node.find(QStringLiteral("timeField")))
        timeFields.push_back({timeField, message});
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
    plan.changeField(field, readFieldChange(reader, node, field->getType(), node.key));
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
    if (isNumeric(field) && !field->isRepeated() && !field->isVirtual())
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
