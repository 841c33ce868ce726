#include "abstractmessagetreewidgetitem.h"

#include "corvane.h"
#include "memleaktracer.h"

#include <algorithm>

AbstractMessageTreeWidgetItem::AbstractMessageTreeWidgetItem(MessageTreeWidget *messageTreeWidget)
    : QTreeWidgetItem(QTreeWidgetItem::Type)
    , messageTreeWidget(messageTreeWidget)
{
    MemLeakTracer::getInstance()->doAllocateObject(QStringLiteral("AbstractMessageTreeWidgetItem"));
}

AbstractMessageTreeWidgetItem::~AbstractMessageTreeWidgetItem()
{
    MemLeakTracer::getInstance()->doDeallocateObject(
        QStringLiteral("AbstractMessageTreeWidgetItem"));
}

QString AbstractMessageTreeWidgetItem::getNameText()
{
    return {};
}

QString AbstractMessageTreeWidgetItem::getNameToolTip()
{
    return {};
}

QString AbstractMessageTreeWidgetItem::getTypeText()
{
    return {};
}

QString AbstractMessageTreeWidgetItem::getValueText()
{
    return {};
}

QString AbstractMessageTreeWidgetItem::getRawValueText()
{
    return {};
}

void AbstractMessageTreeWidgetItem::setFilter(MessageTreeFilter *filter)
{
    this->filter = filter;
}

bool AbstractMessageTreeWidgetItem::isInFilter()
{
    return true;
}

MessageTreeFilter *AbstractMessageTreeWidgetItem::getFilter()
{
    return filter;
}

void AbstractMessageTreeWidgetItem::setInitialExpansionPolicy(InitialExpansionPolicy policy)
{
    initialExpansionPolicy = policy;
}

AbstractMessageTreeWidgetItem::InitialExpansionPolicy
AbstractMessageTreeWidgetItem::getInitialExpansionPolicy() const
{
    return initialExpansionPolicy;
}

MessageTreeWidget *AbstractMessageTreeWidgetItem::getMessageTreeWidget()
{
    QTreeWidget *inside = treeWidget();
    // Nearly always so, and comparing takes less time than casting.
    if (inside == nullptr || inside == messageTreeWidget)
        return messageTreeWidget;
    return dynamic_cast<MessageTreeWidget *>(inside);
}

QString AbstractMessageTreeWidgetItem::getTextForColumn(MessageTreeWidget::ColumnType type)
{
    switch (type) {
    case MessageTreeWidget::Name:
        return getNameText();
    case MessageTreeWidget::RawValue:
        return getRawValueText();
    case MessageTreeWidget::Value:
        return getValueText();
    case MessageTreeWidget::Type:
        return getTypeText();
    default:
        return QObject::tr("Column %1").arg(MessageTreeWidget::getDefaultColumnName(type));
    }
}

void AbstractMessageTreeWidgetItem::setNameText()
{
    MessageTreeWidget *tree = getMessageTreeWidget();
    const int column = tree != nullptr ? tree->getColumnIndex(MessageTreeWidget::Name) : -1;
    if (column < 0)
        return;
    SteadyTreeWidget::setItemText(this, column, getNameText());
    setData(column, Qt::ToolTipRole, getNameToolTip());
}

void AbstractMessageTreeWidgetItem::setTypeText()
{
    setColumnText(MessageTreeWidget::Type, &AbstractMessageTreeWidgetItem::getTypeText);
}

void AbstractMessageTreeWidgetItem::setValueText()
{
    setColumnText(MessageTreeWidget::Value, &AbstractMessageTreeWidgetItem::getValueText);
}

void AbstractMessageTreeWidgetItem::setRawValueText()
{
    setColumnText(MessageTreeWidget::RawValue, &AbstractMessageTreeWidgetItem::getRawValueText);
}

void AbstractMessageTreeWidgetItem::setColumnText(MessageTreeWidget::ColumnType type,
                                                  QString (AbstractMessageTreeWidgetItem::*text)())
{
    MessageTreeWidget *tree = getMessageTreeWidget();
    const int column = tree != nullptr ? tree->getColumnIndex(type) : -1;
    if (column >= 0)
        SteadyTreeWidget::setItemText(this, column, (this->*text)());
}

void AbstractMessageTreeWidgetItem::setAllTexts()
{
    MessageTreeWidget *tree = getMessageTreeWidget();
    if (tree == nullptr)
        return;
    int column = 0;
    for (const MessageTreeWidget::ColumnType type : tree->getColumns()) {
        if (type != MessageTreeWidget::fillerColumn)
            SteadyTreeWidget::setItemText(this, column, getTextForColumn(type));
        ++column;
    }
}

bool AbstractMessageTreeWidgetItem::mustShowField(const FieldInfo *field)
{
    if (field->isConfidential() && !Corvane::confidentialInformationDisplayEnabled())
        return false;
    const MessageTreeWidget *tree = getMessageTreeWidget();
    if (tree == nullptr)
        return true;
    if (field->isVirtual() && !tree->mustShowVirtualFields())
        return false;
    if (tree->mustShowFieldsWithRole(field->getRole()))
        return true;
    // A field that would be hidden keeps its row for the sake of its parts.
    const auto parts = field->getSubFieldInfos();
    return std::any_of(parts.begin(), parts.end(),
                       [this](const FieldInfo *part) { return mustShowField(part); });
}

void AbstractMessageTreeWidgetItem::configureInTreeWidget()
{
    if (treeWidget() == nullptr)
        return;
    for (int i = 0; i < childCount(); ++i)
        if (auto *row = dynamic_cast<AbstractMessageTreeWidgetItem *>(child(i)))
            row->configureInTreeWidget();
    setAllTexts();
    MessageTreeWidget *tree = getMessageTreeWidget();
    if (initialExpansionPolicy != AskTreeWidget)
        SteadyTreeWidget::setItemExpanded(this, initialExpansionPolicy == ExpandInitially);
    else if (tree != nullptr)
        SteadyTreeWidget::setItemExpanded(this, tree->mustInitiallyBeExpanded(this));
}
