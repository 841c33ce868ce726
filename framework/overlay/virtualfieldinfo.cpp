#include "virtualfieldinfo.h"

#include "calculation.h"
#include "descriptions.h"

#include <QVarLengthArray>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

using Operand = VirtualFieldInfo::Operand;
using Step = VirtualFieldInfo::Step;

/** The message that holds the number, inside \a message or itself; null where it is absent. */
const Message *holderOf(const Operand &operand, const Message *message)
{
    for (size_t i = 0; message != nullptr && i + 1 < operand.size(); ++i)
        message = operand[i].field->getValue(message, operand[i].index).getSubMessage();
    return message;
}

bool isPresent(const Operand &operand, const Message *message)
{
    const Message *holder = holderOf(operand, message);
    const Step &last = operand.back();
    return holder != nullptr && last.index < last.field->getNumberOfValues(holder);
}

FieldValue readOperand(const Operand &operand, const Message *message)
{
    const Message *holder = holderOf(operand, message);
    const Step &last = operand.back();
    return holder != nullptr ? last.field->getValue(holder, last.index) : FieldValue::invalid();
}

std::unique_ptr<FieldInfoData> asVirtual(std::unique_ptr<FieldInfoData> data)
{
    data->isVirtual = true;
    return data;
}

} // namespace

VirtualFieldInfo::VirtualFieldInfo(QString expression, std::unique_ptr<FieldInfoData> data)
    : DecodedFieldInfo(FieldType(FieldType::Float, 64), asVirtual(std::move(data)))
    , expression(std::move(expression))
{
}

VirtualFieldInfo::~VirtualFieldInfo() = default;

void VirtualFieldInfo::bind(std::vector<Operand> boundOperands,
                            std::unique_ptr<Calculation> boundCalculation)
{
    operands = std::move(boundOperands);
    calculation = std::move(boundCalculation);
}

void VirtualFieldInfo::complete()
{
    cost = static_cast<qint64>(operands.size());
    for (const VirtualFieldInfo *field : getUsedVirtualFields()) {
        cost += field->getCost();
        depth = std::max(depth, field->getDepth() + 1);
    }
    const auto mayBeAbsent
        = [](const Step &step) { return step.field->isOptional() || step.field->isRepeated(); };
    getData()->optional = std::any_of(operands.begin(), operands.end(), [&](const auto &operand) {
        return std::any_of(operand.begin(), operand.end(), mayBeAbsent);
    });
}

std::vector<const VirtualFieldInfo *> VirtualFieldInfo::getUsedVirtualFields() const
{
    std::vector<const VirtualFieldInfo *> used;
    for (const Operand &operand : operands)
        if (const auto *field = dynamic_cast<const VirtualFieldInfo *>(operand.back().field))
            used.push_back(field);
    return used;
}

void VirtualFieldInfo::updateConfidential()
{
    getData()->confidential = usesConfidential();
}

bool VirtualFieldInfo::usesConfidential() const
{
    // Virtual fields are asked anew: they may not have been updated yet.
    const auto isConfidentialStep = [](const Step &step) {
        const auto *field = dynamic_cast<const VirtualFieldInfo *>(step.field);
        return field != nullptr ? field->usesConfidential() : step.field->isConfidential();
    };
    return declaredConfidential
           || std::any_of(operands.begin(), operands.end(), [&](const Operand &operand) {
                  return std::any_of(operand.begin(), operand.end(), isConfidentialStep);
              });
}

unsigned int VirtualFieldInfo::getNumberOfValues(const Message *message) const
{
    const bool complete = std::all_of(operands.begin(), operands.end(), [&](const auto &operand) {
        return isPresent(operand, message);
    });
    return complete ? 1 : 0;
}

QString
VirtualFieldInfo::getValueText(const Message *message, unsigned int index, bool interpreted) const
{
    // A hidden value cannot be calculated, but it is there and has the text of all hidden values.
    const FieldValue value = getValue(message, index);
    if (!value.isValid())
        return value.isConfidential() ? getRawString(value) : QString();
    return interpreted ? getInterpretedString(value, true) : getRawString(value);
}

FieldValue VirtualFieldInfo::readValue(const Message *message, unsigned int index) const
{
    if (index >= getNumberOfValues(message))
        return FieldValue::invalid();
    QVarLengthArray<double, 16> numbers;
    bool confidential = false;
    for (const Operand &operand : operands) {
        const FieldValue value = readOperand(operand, message);
        confidential = confidential || value.isConfidential();
        if (const auto number = value.toDouble())
            numbers.append(*number);
    }
    const bool complete = numbers.size() == static_cast<qsizetype>(operands.size());
    FieldValue result = complete ? FieldValue::fromDouble(calculation->calculate(numbers.data()))
                                 : FieldValue::invalid();
    result.setConfidential(confidential);
    return result;
}

} // namespace corvane
