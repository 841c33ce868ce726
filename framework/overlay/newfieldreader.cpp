#include "newfieldreader.h"

#include "descriptions.h"
#include "names.h"
#include "splitfieldinfo.h"

namespace corvane {

namespace {

constexpr qsizetype maximumSubFields = 64;
constexpr qsizetype maximumVirtualFields = 256;
constexpr qsizetype maximumNewFields = 4096;

int wordSizeOf(const FieldInfo *field)
{
    const int size = field->getType().getSizeBits();
    return size > 0 && size < 64 ? size : 64;
}

} // namespace

NewFieldReader::NewFieldReader(NodeReader &reader, OverlayPlan &plan, const MessageInfo *message)
    : reader(reader)
    , plan(plan)
    , message(message)
{
}

void NewFieldReader::addErrorAtName(const JsonNode &node, const QString &text)
{
    reader.addError(*node.find(QStringLiteral("name")), text);
}

bool NewFieldReader::isWithinLimit(const JsonNode &list, qsizetype most)
{
    const auto size = static_cast<qsizetype>(list.children.size());
    if (size > most)
        reader.addError(
            list,
            QStringLiteral("%1: at most %2, found %3").arg(quoted(list.key)).arg(most).arg(size));
    else if (plan.getNumberOfNewFields() + size > maximumNewFields)
        reader.addError(list,
                        QStringLiteral("one overlay adds at most %1 fields").arg(maximumNewFields));
    else
        return true;
    return false;
}

bool NewFieldReader::canBeSplit(const JsonNode &list, const FieldInfo *parent)
{
    const qint32 code = parent->getType().getCode();
    const bool isInteger = code == FieldType::SignedInteger || code == FieldType::UnsignedInteger;
    if (isInteger && dynamic_cast<const BitFieldInfo *>(parent) == nullptr)
        return true;
    reader.addErrorAtKey(
        list, QStringLiteral("only whole integer fields are split; %1 is %2")
                  .arg(quoted(fieldPath(parent)),
                       isInteger ? QStringLiteral("a sub-field already")
                                 : QStringLiteral("of type ") + parent->getType().toShortString()));
    return false;
}

void NewFieldReader::readSubFields(const JsonNode &list, const FieldInfo *parent)
{
    if (!reader.isOfKind(list, JsonNode::Array) || !canBeSplit(list, parent)
        || !isWithinLimit(list, maximumSubFields))
        return;
    for (const JsonNode &node : list.children)
        if (!reader.getSource().isFull())
            readSubField(node, parent);
}

void NewFieldReader::readSubField(const JsonNode &node, const FieldInfo *parent)
{
    if (!reader.isObject(node, QStringLiteral("subField")))
        return;
    const auto name = reader.readNewName(node);
    const auto bits = readBits(node, parent);
    if (!name || !bits)
        return;

    auto data = std::make_unique<FieldInfoData>();
    data->name = *name;
    auto field = std::make_unique<SplitFieldInfo>(parent, *bits, std::move(data));
    const FieldChange change = readFieldChange(reader, node, field->getType(), *name);

    const QString path = fieldPath(field.get());
    const FieldInfo *known = plan.findField(message, path);
    if (known == nullptr) {
        change.applyTo(*field);
        plan.addField(message, std::move(field));
        return;
    }
    const auto *split = dynamic_cast<const SplitFieldInfo *>(known);
    if (plan.isNew(message, path))
        addErrorAtName(node, QStringLiteral("the sub-field %1 is there twice").arg(quoted(path)));
    else if (split == nullptr || !split->isMadeOf(*bits))
        addErrorAtName(node, QStringLiteral("there is a field %1 already, made of something else")
                                 .arg(quoted(path)));
    else
        plan.changeField(known, change);
}

std::optional<BitFieldInfo::Bits> NewFieldReader::readBits(const JsonNode &node,
                                                           const FieldInfo *parent)
{
    const JsonNode *bit = node.find(QStringLiteral("bit"));
    if (bit == nullptr)
        return readRange(node, parent);
    for (const char *other : {"firstBit", "bits", "signed"}) {
        const JsonNode *member = node.find(QLatin1String(other));
        if (member == nullptr)
            continue;
        reader.addErrorAtKey(*member, QStringLiteral("\"%1\" does not go with \"bit\"; expected "
                                                     "\"bit\", or \"firstBit\" and \"bits\"")
                                          .arg(QLatin1String(other)));
        return std::nullopt;
    }
    return readBit(node, parent);
}

std::optional<BitFieldInfo::Bits> NewFieldReader::readBit(const JsonNode &node,
                                                          const FieldInfo *parent)
{
    const auto bit = reader.readInteger(node, "bit", 0, wordSizeOf(parent) - 1);
    if (!bit)
        return std::nullopt;
    return BitFieldInfo::Bits{*bit, 1, false, true};
}

std::optional<BitFieldInfo::Bits> NewFieldReader::readRange(const JsonNode &node,
                                                            const FieldInfo *parent)
{
    if (node.find(QStringLiteral("firstBit")) == nullptr
        || node.find(QStringLiteral("bits")) == nullptr)
    {
        reader.addError(node, QStringLiteral("which bits? expected \"firstBit\" and \"bits\", or "
                                             "\"bit\" for a single truth value"));
        return std::nullopt;
    }
    const int wordSize = wordSizeOf(parent);
    const auto first = reader.readInteger(node, "firstBit", 0, wordSize - 1);
    const auto count = reader.readInteger(node, "bits", 1, wordSize - first.value_or(0));
    const auto isSigned = reader.readBoolean(node, "signed");
    if (!first || !count)
        return std::nullopt;
    return BitFieldInfo::Bits{*first, *count, isSigned.value_or(false), false};
}

void NewFieldReader::readVirtualFields(const JsonNode &list,
                                       std::vector<UnboundVirtualField> *unbound)
{
    if (!reader.isOfKind(list, JsonNode::Array) || !isWithinLimit(list, maximumVirtualFields))
        return;
    for (const JsonNode &node : list.children)
        if (!reader.getSource().isFull())
            readVirtualField(node, unbound);
}

void NewFieldReader::readVirtualField(const JsonNode &node,
                                      std::vector<UnboundVirtualField> *unbound)
{
    if (!reader.isObject(node, QStringLiteral("virtualField")))
        return;
    const auto name = reader.readNewName(node);
    const JsonNode *expressionNode = reader.require(node, "expression", JsonNode::Text);
    if (expressionNode == nullptr)
        return;
    ParsedExpression parsed;
    if (const auto error = parseExpression(expressionNode->text, &parsed)) {
        reader.getSource().addErrorInText(*expressionNode, error->position, error->message);
        return;
    }
    if (!name || keepVirtualField(node, *name, expressionNode->text))
        return;
    auto data = std::make_unique<FieldInfoData>();
    data->name = *name;
    auto field = std::make_unique<VirtualFieldInfo>(expressionNode->text, std::move(data));
    readFieldChange(reader, node, field->getType(), *name).applyTo(*field);
    unbound->push_back({field.get(), message, expressionNode, std::move(parsed)});
    plan.addField(message, std::move(field));
}

bool NewFieldReader::keepVirtualField(const JsonNode &node,
                                      const QString &path,
                                      const QString &expression)
{
    const FieldInfo *known = plan.findField(message, path);
    if (known == nullptr)
        return false;
    const auto *virtualField = dynamic_cast<const VirtualFieldInfo *>(known);
    if (plan.isNew(message, path))
        addErrorAtName(node,
                       QStringLiteral("the virtual field %1 is there twice").arg(quoted(path)));
    else if (virtualField == nullptr || virtualField->getExpression() != expression)
        addErrorAtName(node, QStringLiteral("there is a field %1 already, made of something else")
                                 .arg(quoted(path)));
    else
        plan.changeField(known, readFieldChange(reader, node, known->getType(), path));
    return true;
}

} // namespace corvane
