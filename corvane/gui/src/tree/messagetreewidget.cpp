#include "messagetreewidget.h"

#include "abstractfieldtreewidgetitem.h"
#include "DbgTrace.h"
#include "memleaktracer.h"
#include "message.h"
#include "messageinfo.h"
#include "messagetreewidgetitem.h"
#include "translations.h"

#include <QAction>
#include <QMessageBox>

#include <algorithm>
#include <typeinfo>

// The names are a public interface.
QHash<const MessageInfo *, bool>
    MessageTreeWidget::sMessageInfoExpandedCollapsedMap; // NOLINT(readability-identifier-naming)
QHash<const FieldInfo *, bool>
    MessageTreeWidget::sFieldInfoExpandedCollapsedMap; // NOLINT(readability-identifier-naming)

namespace {

constexpr char sourceFile[] = "corvane/gui/src/tree/messagetreewidget";
constexpr char negativeType[] = "ColumnType enum elements should have non-negative values";

// The lines are those by which these mistakes are known.
void assertNotNegative(MessageTreeWidget::ColumnType type, const char *function, int line)
{
    if (type < 0)
        dbg_AssertArg("corvanegui", "MessageTreeWidget", function, sourceFile, line, negativeType);
}

} // namespace

MessageTreeWidget::MessageTreeWidget(QWidget *parent)
    : SteadyTreeWidget(parent)
{
    corvane::installTranslations();
    MemLeakTracer::getInstance()->doAllocateObject(QStringLiteral("MessageTreeWidget"));
    connect(this, SIGNAL(itemExpanded(QTreeWidgetItem *)),
            SLOT(processItemExpandedOrCollapsed(QTreeWidgetItem *)));
    connect(this, SIGNAL(itemCollapsed(QTreeWidgetItem *)),
            SLOT(processItemExpandedOrCollapsed(QTreeWidgetItem *)));
    toggleTypeColumnAction = addToggleColumnAction(tr("&Type"), Type);
    toggleRawValueColumnAction = addToggleColumnAction(tr("&Raw Value"), RawValue);
    for (QAction *action : std::as_const(toggleColumnActions)) {
        connect(action, SIGNAL(triggered(bool)), SLOT(toggleColumnActionTriggered(bool)));
        action->setCheckable(true);
    }
    setColumns({Name, Type, Value});
}

MessageTreeWidget::~MessageTreeWidget()
{
    MemLeakTracer::getInstance()->doDeallocateObject(QStringLiteral("MessageTreeWidget"));
}

QAction *MessageTreeWidget::addToggleColumnAction(const QString &text, ColumnType type)
{
    auto *action = new QAction(text, this);
    toggleColumnActions.append(action);
    toggleColumnActionByType.insert(type, action);
    return action;
}

void MessageTreeWidget::setColumns(QList<ColumnType> columns)
{
    clearColumns(false);
    for (const ColumnType type : std::as_const(columns))
        addColumn(type, false);
    resizeColumns();
    reconfigureTopLevelAbstractMessageTreeWidgetItems();
}

void MessageTreeWidget::addColumn(ColumnType type, bool reconfigure)
{
    if (columns.contains(type)) {
        QMessageBox::warning(nullptr, tr("Duplicate column"),
                             tr("Attempt to add to a MessageTreeWidget a column that is already "
                                "present: %1. Duplicate column was not added.")
                                 .arg(getDefaultColumnName(type)),
                             QMessageBox::Ok, QMessageBox::NoButton);
        return;
    }
    const int position = columnCount();
    while (columns.size() < position)
        columns.append(fillerColumn);
    setColumnCount(position + 1);
    headerItem()->setData(position, Qt::DisplayRole, getDefaultColumnName(type));
    columns.append(type);
    assertNotNegative(type, "addColumn", 189);
    if (type > 999)
        dbg_AssertArg("corvanegui", "MessageTreeWidget", "addColumn", sourceFile, 190,
                      "ColumnType enum elements should have values < 1000");
    while (columnIndexByType.size() <= type)
        columnIndexByType.append(-1);
    columnIndexByType[type] = static_cast<int>(columns.size()) - 1;
    if (QAction *action = toggleColumnActionByType.value(type))
        action->setChecked(true);
    if (reconfigure) {
        resizeColumns();
        reconfigureTopLevelAbstractMessageTreeWidgetItems();
    }
}

void MessageTreeWidget::clearColumns(bool reconfigure)
{
    columns.clear();
    columnIndexByType.clear();
    setColumnCount(0);
    for (QAction *action : std::as_const(toggleColumnActions))
        action->setChecked(false);
    if (reconfigure) {
        resizeColumns();
        reconfigureTopLevelAbstractMessageTreeWidgetItems();
    }
}

QList<MessageTreeWidget::ColumnType> MessageTreeWidget::getColumns() const
{
    return columns;
}

bool MessageTreeWidget::hasColumn(ColumnType type)
{
    assertNotNegative(type, "hasColumn", 138);
    return columnIndexByType.value(type, -1) >= 0;
}

int MessageTreeWidget::getColumnIndex(ColumnType type)
{
    assertNotNegative(type, "getColumnIndex", 144);
    return columnIndexByType.value(type, -1);
}

QString MessageTreeWidget::getColumnName(ColumnType type) const
{
    return getDefaultColumnName(type);
}

QString MessageTreeWidget::getDefaultColumnName(ColumnType type)
{
    switch (type) {
    case Name:
        return tr("Name");
    case RawValue:
        return tr("Raw value");
    case Value:
        return tr("Value");
    case Type:
        return tr("Type");
    case Custom1:
        return tr("Custom 1");
    case Custom2:
        return tr("Custom 2");
    case Custom3:
        return tr("Custom 3");
    case Custom4:
        return tr("Custom 4");
    case Custom5:
        return tr("Custom 5");
    case Custom6:
        return tr("Custom 6");
    case Custom7:
        return tr("Custom 7");
    case Custom8:
        return tr("Custom 8");
    case Custom9:
        return tr("Custom 9");
    case Custom10:
        return tr("Custom 10");
    }
    return tr("Column type %1").arg(static_cast<qint32>(type));
}

void MessageTreeWidget::resizeColumns()
{
    for (int column = 0; column < columnCount(); ++column)
        resizeColumnToContents(column);
}

QList<QAction *> MessageTreeWidget::getToggleColumnActions()
{
    return toggleColumnActions;
}

QAction *MessageTreeWidget::getToggleTypeColumnAction()
{
    return toggleTypeColumnAction;
}

QAction *MessageTreeWidget::getToggleRawValueColumnAction()
{
    return toggleRawValueColumnAction;
}

QList<AbstractMessageTreeWidgetItem *>
MessageTreeWidget::getTopLevelAbstractMessageTreeWidgetItems()
{
    QTreeWidgetItem *root = invisibleRootItem();
    const int count = root->childCount();
    QList<AbstractMessageTreeWidgetItem *> items;
    items.reserve(count);
    for (int i = 0; i < count; ++i) {
        QTreeWidgetItem *item = root->child(i);
        // Nearly all rows are of this class, and a cast through a virtual base takes its time.
        if (typeid(*item) == typeid(MessageTreeWidgetItem))
            items.append(static_cast<AbstractMessageTreeWidgetItem *>(item));
        else if (auto *messageItem = dynamic_cast<AbstractMessageTreeWidgetItem *>(item))
            items.append(messageItem);
    }
    return items;
}

void MessageTreeWidget::reconfigureTopLevelAbstractMessageTreeWidgetItems()
{
    for (AbstractMessageTreeWidgetItem *item : getTopLevelAbstractMessageTreeWidgetItems())
        item->configureInTreeWidget();
}

bool MessageTreeWidget::mustShowFieldsWithRole(FieldInfo::Role role) const
{
    return !showPrimaryFieldsOnly || (role != FieldInfo::Secondary && role != FieldInfo::Technical);
}

bool MessageTreeWidget::mustShowVirtualFields() const
{
    return showVirtualFields;
}

bool MessageTreeWidget::mustInitiallyBeExpanded(AbstractMessageTreeWidgetItem *item)
{
    if (const auto *messageItem = dynamic_cast<MessageTreeWidgetItem *>(item))
        return sMessageInfoExpandedCollapsedMap.value(messageItem->getMessageInfo(), true);
    if (const auto *fieldItem = dynamic_cast<AbstractFieldTreeWidgetItem *>(item))
        return sFieldInfoExpandedCollapsedMap.value(fieldItem->getFieldInfo(), false);
    return false;
}

void MessageTreeWidget::processMessage(const Message *message)
{
    for (AbstractMessageTreeWidgetItem *item : getTopLevelAbstractMessageTreeWidgetItems())
        item->processMessage(message);
}

void MessageTreeWidget::processItemExpandedOrCollapsed(QTreeWidgetItem *item)
{
    const bool expanded = item->isExpanded();
    const auto *messageItem = dynamic_cast<MessageTreeWidgetItem *>(item);
    if (messageItem != nullptr && messageItem->getMessageInfo() != nullptr) {
        sMessageInfoExpandedCollapsedMap[messageItem->getMessageInfo()] = expanded;
        return;
    }
    const auto *fieldItem = dynamic_cast<AbstractFieldTreeWidgetItem *>(item);
    if (fieldItem != nullptr && fieldItem->getFieldInfo() != nullptr)
        sFieldInfoExpandedCollapsedMap[fieldItem->getFieldInfo()] = expanded;
}

void MessageTreeWidget::toggleColumnActionTriggered(bool checked)
{
    auto *action = qobject_cast<QAction *>(sender());
    const auto found
        = std::find(toggleColumnActionByType.cbegin(), toggleColumnActionByType.cend(), action);
    if (action == nullptr || found == toggleColumnActionByType.cend())
        return;
    const ColumnType type = found.key();
    if (checked && !columns.contains(type)) {
        addColumn(type, true);
    } else if (!checked && columns.contains(type)) {
        QList<ColumnType> remaining = columns;
        remaining.removeOne(type);
        setColumns(remaining);
    }
}

void MessageTreeWidget::setHideSecondaryFields(bool hideSecondary)
{
    setFlag(showPrimaryFieldsOnly, !hideSecondary); // kept as it is, though it reads backwards
}

void MessageTreeWidget::setShowPrimaryFieldsOnly(bool showPrimaryOnly)
{
    setFlag(showPrimaryFieldsOnly, showPrimaryOnly);
}

void MessageTreeWidget::setHideVirtualFields(bool hideVirtualFields)
{
    setFlag(showVirtualFields, !hideVirtualFields);
}

void MessageTreeWidget::setShowVirtualFields(bool showVirtualFields)
{
    setFlag(this->showVirtualFields, showVirtualFields);
}

void MessageTreeWidget::setFlag(bool &flag, bool value)
{
    if (flag == value)
        return;
    flag = value;
    reconfigureTopLevelAbstractMessageTreeWidgetItems();
}
