#include "messagetreepanel.h"

#include "catalogue.h"
#include "corvane.h"
#include "descriptions.h"
#include "enumeration.h"
#include "formatinfo.h"
#include "latestmessages.h"
#include "message.h"
#include "messageinfo.h"
#include "messagetreefilter.h"
#include "messagetreewidget.h"
#include "messagetreewidgetitem.h"
#include "treehistory.h"

#include <QCompleter>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QSet>
#include <QSettings>
#include <QStringListModel>
#include <QToolButton>
#include <QVBoxLayout>

namespace corvane {

namespace {

QString settingsGroup()
{
    return QStringLiteral("tree");
}

/** Whether a tree can have written \a stored: each of the kinds with a name at most once. */
bool areColumns(const QVariant &stored)
{
    const int type = stored.typeId();
    if (type != QMetaType::QVariantList && type != QMetaType::QStringList)
        return false;
    const QVariantList columns = stored.toList();
    QSet<int> seen;
    for (const QVariant &column : columns) {
        bool isNumber = false;
        const int kind = column.toInt(&isNumber);
        if (!isNumber || kind < MessageTreeWidget::Name || kind > MessageTreeWidget::Custom10
            || seen.contains(kind))
            return false;
        seen.insert(kind);
    }
    return !columns.isEmpty();
}

/** The names that values inside repeated sub-messages of \a format can have. */
QStringList symbolsOf(const FormatInfo &format)
{
    QSet<QString> names;
    for (const auto &message : format.getData()->messages) {
        for (const FieldInfo *field : message->getFieldInfos()) {
            const MessageInfo *element = field->getType().getSubMessageInfo();
            if (!field->isRepeated() || element == nullptr)
                continue;
            for (const FieldInfo *inner : element->getFieldInfos())
                if (const auto symbols = inner->getData()->symbols)
                    for (const Enumeration::Entry &entry : symbols->getEntries())
                        names.insert(entry.name);
        }
    }
    QStringList sorted = names.values();
    sorted.sort(Qt::CaseInsensitive);
    return sorted;
}

} // namespace

MessageTreePanel::MessageTreePanel(const LatestMessages &latest,
                                   const FormatInfo &format,
                                   QWidget *parent)
    : QWidget(parent)
    , latest(latest)
    , format(format)
    , tree(new MessageTreeWidget(this))
    , history(new TreeHistory(*tree, latest))
    , filter(new MessageTreeFilter(this))
    , filterEdit(new QLineEdit(this))
    , symbols(new QStringListModel(this))
    , menu(new QMenu(tr("&Tree"), this))
{
    createTree();
    createFilter();
    createMenu();
    auto *menuButton = new QToolButton(this);
    menuButton->setText(tr("Show"));
    menuButton->setToolTip(tr("Choose what the tree shows"));
    menuButton->setMenu(menu);
    menuButton->setPopupMode(QToolButton::InstantPopup);

    auto *bar = new QHBoxLayout;
    bar->addWidget(filterEdit, 1);
    bar->addWidget(menuButton);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    layout->addWidget(tree, 1);
}

MessageTreePanel::~MessageTreePanel()
{
    // What is remembered of these types and fields must not outlive them.
    for (const auto &type : format.getData()->messages) {
        MessageTreeWidget::sMessageInfoExpandedCollapsedMap.remove(type.get());
        for (const FieldInfo *field : type->getFieldInfos())
            MessageTreeWidget::sFieldInfoExpandedCollapsedMap.remove(field);
    }
}

void MessageTreePanel::createTree()
{
    tree->setAccessibleName(tr("Messages"));
    tree->setAlternatingRowColors(true);
    tree->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    connect(&latest, &LatestMessages::typeSeen, this, &MessageTreePanel::addRow);
    connect(&latest, &MessageSource::newMessage, tree, &MessageTreeWidget::processMessage);
    connect(Corvane::getInstance(), &Corvane::confidentialInformationDisplayChanged, this, [this] {
        for (MessageTreeWidgetItem *row : std::as_const(rows))
            row->configureInTreeWidget();
    });
    connect(&latest, &LatestMessages::senderChanged, this, [this] {
        for (MessageTreeWidgetItem *row : std::as_const(rows))
            row->clearValues();
    });
    connect(tree, &QTreeWidget::currentItemChanged, this, &MessageTreePanel::announceChosenType);
}

void MessageTreePanel::createFilter()
{
    filterEdit->setClearButtonEnabled(true);
    filterEdit->setAccessibleName(tr("Filter of repeated sub-messages"));
    auto *completer = new QCompleter(symbols, this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    filterEdit->setCompleter(completer);
    connect(filterEdit, &QLineEdit::textChanged, filter, &MessageTreeFilter::setSearchString);
    connect(Catalogue::getInstance(), &Catalogue::changed, this, &MessageTreePanel::refreshSymbols);
    refreshSymbols();
}

void MessageTreePanel::createMenu()
{
    menu->addActions(tree->getToggleColumnActions());
    menu->addAction(history->getAction());
    menu->addSeparator();
    const auto addSwitch
        = [this](const QString &name, const QString &text, bool on, auto receiver, auto slot) {
              QAction *action = menu->addAction(text);
              action->setObjectName(name);
              action->setCheckable(true);
              action->setChecked(on);
              connect(action, &QAction::toggled, receiver, slot);
          };
    addSwitch(QStringLiteral("showVirtual"), tr("&Computed Fields"), true, tree,
              &MessageTreeWidget::setShowVirtualFields);
    addSwitch(QStringLiteral("showSecondary"), tr("&Secondary Fields"), true, tree,
              [this](bool shown) { tree->setShowPrimaryFieldsOnly(!shown); });
    addSwitch(QStringLiteral("showAllTypes"), tr("All &Known Message Types"), false, this,
              &MessageTreePanel::setAllTypesShown);
    menu->addSeparator();
    menu->addAction(tr("&Expand All"), tree, &QTreeWidget::expandAll);
    menu->addAction(tr("C&ollapse All"), tree, &QTreeWidget::collapseAll);
}

void MessageTreePanel::restoreSettings(QSettings &settings)
{
    settings.beginGroup(settingsGroup());
    const QString columnsKey = QStringLiteral("columns");
    if (settings.contains(columnsKey) && !areColumns(settings.value(columnsKey))) {
        settings.remove(columnsKey);
        settings.remove(QStringLiteral("headerstate"));
    }
    const bool isFirstTime = !settings.contains(QStringLiteral("headerstate"));
    tree->restoreSettings(settings);
    if (isFirstTime) {
        tree->setColumnWidth(0, fontMetrics().averageCharWidth() * 46);
        tree->setColumnWidth(1, fontMetrics().averageCharWidth() * 12);
    }
    tree->loadExpansionState(settings);
    history->followColumns();
    for (QAction *action : menu->actions())
        if (action->isCheckable() && settings.contains(action->objectName()))
            action->setChecked(settings.value(action->objectName()).toBool());
    settings.endGroup();
}

void MessageTreePanel::saveSettings(QSettings &settings)
{
    settings.beginGroup(settingsGroup());
    tree->saveSettings(settings);
    tree->saveExpansionState(settings);
    for (const QAction *action : menu->actions())
        if (!action->objectName().isEmpty())
            settings.setValue(action->objectName(), action->isChecked());
    settings.endGroup();
}

void MessageTreePanel::addRow(const MessageInfo *type)
{
    // A sub-message shows inside its main message.
    if (!type->isMain() || rows.contains(type))
        return;
    auto *row = new MessageTreeWidgetItem(tree, type);
    rows.insert(type, row);
    tree->addTopLevelItem(row);
    row->setFilter(filter);
    row->configureInTreeWidget();
    if (const Message *message = latest.get(type))
        row->processMessage(message);
}

void MessageTreePanel::setAllTypesShown(bool shown)
{
    if (shown) {
        for (const auto &type : format.getData()->messages)
            addRow(type.get());
        return;
    }
    for (auto row = rows.begin(); row != rows.end();) {
        if (latest.get(row.key()) != nullptr) {
            ++row;
            continue;
        }
        delete row.value();
        row = rows.erase(row);
    }
}

void MessageTreePanel::refreshSymbols()
{
    symbols->setStringList(symbolsOf(format));
    const bool canFilter = symbols->rowCount() > 0;
    filterEdit->setEnabled(canFilter);
    filterEdit->setPlaceholderText(
        canFilter ? tr("Show only repeated sub-messages with this name of a value")
                  : tr("Nothing to filter: no message type has repeated sub-messages with named "
                       "values"));
}

void MessageTreePanel::announceChosenType(QTreeWidgetItem *current)
{
    while (current != nullptr && current->parent() != nullptr)
        current = current->parent();
    if (auto *row = dynamic_cast<MessageTreeWidgetItem *>(current))
        Q_EMIT typeChosen(row->getMessageInfo());
}

} // namespace corvane
