#include "expansion.h"

#include "abstractfieldtreewidgetitem.h"
#include "messageinfo.h"
#include "messagetreewidgetitem.h"

#include <QSet>

namespace corvane {

namespace {

class Memory
{
public:
    explicit Memory(bool expanded)
        : expanded(expanded)
    {
    }

    void remember(const MessageInfo *type)
    {
        if (type == nullptr || known.contains(type))
            return;
        known.insert(type);
        MessageTreeWidget::sMessageInfoExpandedCollapsedMap[type] = expanded;
        for (const FieldInfo *field : type->getFieldInfos())
            remember(field);
    }

    void remember(const FieldInfo *field)
    {
        const bool isList = field->isRepeated() && !field->isStringField();
        if (isList || !field->getSubFieldInfos().isEmpty())
            MessageTreeWidget::sFieldInfoExpandedCollapsedMap[field] = expanded;
        for (const FieldInfo *part : field->getSubFieldInfos())
            remember(part);
        remember(field->getType().getSubMessageInfo());
    }

private:
    const bool expanded;
    QSet<const MessageInfo *> known; // one type can stand in many places
};

} // namespace

ForgetfulExpansion::~ForgetfulExpansion()
{
    MessageTreeWidget::sMessageInfoExpandedCollapsedMap.swap(messages);
    MessageTreeWidget::sFieldInfoExpandedCollapsedMap.swap(fields);
}

void rememberExpansionBelow(const QTreeWidgetItem *row, bool expanded)
{
    Memory memory(expanded);
    const auto *fieldRow = dynamic_cast<const AbstractFieldTreeWidgetItem *>(row);
    if (fieldRow != nullptr && fieldRow->getFieldInfo() != nullptr)
        memory.remember(fieldRow->getFieldInfo());
    else if (const auto *messageRow = dynamic_cast<const MessageTreeWidgetItem *>(row))
        memory.remember(messageRow->getMessageInfo());
}

} // namespace corvane
