#include "rowplace.h"

#include "fieldinfo.h"
#include "messagetreewidgetitem.h"
#include "pathexpression.h"
#include "repeatedfieldtreewidgetitem.h"
#include "singlesubmessagefieldtreewidgetitem.h"
#include "singlevaluefieldtreewidgetitem.h"

#include <algorithm>

namespace corvane {

namespace {

const FieldInfo *fieldOf(const QTreeWidgetItem *row)
{
    const auto *fieldRow = dynamic_cast<const AbstractFieldTreeWidgetItem *>(row);
    return fieldRow != nullptr ? fieldRow->getFieldInfo() : nullptr;
}

bool isElement(const QTreeWidgetItem *row)
{
    return dynamic_cast<const RepeatedFieldTreeWidgetItem *>(row->parent()) != nullptr;
}

int indexOf(const QTreeWidgetItem *row)
{
    if (const auto *value = dynamic_cast<const SingleValueFieldTreeWidgetItem *>(row))
        return static_cast<int>(value->getIndex());
    const auto *message = dynamic_cast<const SingleSubMessageFieldTreeWidgetItem *>(row);
    return message != nullptr ? static_cast<int>(message->getIndex()) : -1;
}

QTreeWidgetItem *findChild(const QTreeWidgetItem *row, const FieldInfo *field)
{
    for (int i = 0; i < row->childCount(); ++i)
        if (fieldOf(row->child(i)) == field)
            return row->child(i);
    return nullptr;
}

bool isSubMessage(const RowPlace::Step &step)
{
    return step.field->getType().getCode() == FieldType::SubMessage;
}

} // namespace

std::optional<RowPlace> RowPlace::of(const QTreeWidgetItem *row)
{
    RowPlace place;
    while (row != nullptr && row->parent() != nullptr) {
        const FieldInfo *field = fieldOf(row);
        if (field == nullptr)
            return std::nullopt;
        const bool element = isElement(row);
        place.steps.push_back({field, element ? indexOf(row) : -1});
        row = element ? row->parent()->parent() : row->parent();
    }
    const auto *top = dynamic_cast<const MessageTreeWidgetItem *>(row);
    if (top == nullptr || top->getMessageInfo() == nullptr)
        return std::nullopt;
    place.type = top->getMessageInfo();
    std::reverse(place.steps.begin(), place.steps.end());
    return place;
}

QTreeWidgetItem *RowPlace::findRow(const MessageTreeWidget &tree) const
{
    QTreeWidgetItem *row = findTopRow(tree, type);
    for (const Step &step : steps) {
        if (row != nullptr)
            row = findChild(row, step.field);
        if (row != nullptr && step.element >= 0)
            row = row->child(step.element);
    }
    return row;
}

int RowPlace::getElement() const
{
    for (auto step = steps.rbegin(); step != steps.rend(); ++step)
        if (step->element >= 0 || step->field->getParentFieldInfo() == nullptr)
            return step->element;
    return -1;
}

const Message *RowPlace::getHolder(const Message *message) const
{
    for (size_t i = 0; i + 1 < steps.size() && message != nullptr; ++i)
        if (isSubMessage(steps[i]))
            message
                = steps[i]
                      .field
                      ->getValue(message, static_cast<unsigned int>(std::max(steps[i].element, 0)))
                      .getSubMessage();
    return message;
}

const RowPlace::Step *RowPlace::getSubMessageStep() const
{
    for (size_t i = steps.size(); i > 1; --i)
        if (isSubMessage(steps[i - 2]))
            return &steps[i - 2];
    return nullptr;
}

QString RowPlace::getPath() const
{
    PathExpression expression;
    expression.setupToMatchUnique(type);
    QString path = expression.getString(PathExpression::FormatPart | PathExpression::MessagePart);
    for (auto step = steps.begin(); step != steps.end(); ++step) {
        // The expression of a part names the whole as well.
        const auto next = step + 1;
        if (next != steps.end() && next->field->getParentFieldInfo() == step->field)
            continue;
        expression.setupToMatchUnique(step->field);
        path += QLatin1Char('.') + expression.getString(PathExpression::FieldPart);
        int element = step->element;
        for (auto whole = step; element < 0 && whole->field->getParentFieldInfo() != nullptr;)
            element = (--whole)->element;
        if (element >= 0)
            path += QStringLiteral("[%1]").arg(element);
    }
    return path;
}

const MessageTreeWidgetItem *topRowOf(const QTreeWidgetItem *row)
{
    while (row != nullptr && row->parent() != nullptr)
        row = row->parent();
    return dynamic_cast<const MessageTreeWidgetItem *>(row);
}

MessageTreeWidgetItem *findTopRow(const MessageTreeWidget &tree, const MessageInfo *type)
{
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
        auto *row = dynamic_cast<MessageTreeWidgetItem *>(tree.topLevelItem(i));
        if (row != nullptr && row->getMessageInfo() == type)
            return row;
    }
    return nullptr;
}

bool isNumeric(const FieldInfo *field)
{
    const qint32 code = field != nullptr ? field->getType().getCode() : FieldType::Invalid;
    return code == FieldType::SignedInteger || code == FieldType::UnsignedInteger
           || code == FieldType::Boolean || code == FieldType::Float;
}

} // namespace corvane
