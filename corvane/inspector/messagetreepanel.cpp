#include "messagetreepanel.h"

#include "catalogue.h"
#include "corvane.h"
#include "descriptions.h"
#include "enumeration.h"
#include "findbar.h"
#include "formatinfo.h"
#include "inspectortree.h"
#include "latestmessages.h"
#include "message.h"
#include "messageinfo.h"
#include "messagetreefilter.h"
#include "messagetreewidgetitem.h"
#include "rowactions.h"
#include "rowdescription.h"
#include "treehistory.h"

#include <QCompleter>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSet>
#include <QSettings>
#include <QShortcut>
#include <QStringListModel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

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

/** The types of the elements of repeated sub-messages in \a format. */
QSet<const MessageInfo *> elementTypesOf(const FormatInfo &format)
{
    QSet<const MessageInfo *> types;
    for (const auto &message : format.getData()->messages)
        for (const FieldInfo *field : message->getFieldInfos())
            if (field->isRepeated() && field->getType().getCode() == FieldType::SubMessage)
                types.insert(field->getType().getSubMessageInfo());
    return types;
}

/** The names that values of \a types can have. */
QStringList symbolsOf(const QSet<const MessageInfo *> &types)
{
    QSet<QString> names;
    for (const MessageInfo *type : types)
        for (const FieldInfo *field : type->getFieldInfos())
            if (const auto symbols = field->getData()->symbols)
                for (const Enumeration::Entry &entry : symbols->getEntries())
                    names.insert(entry.name);
    QStringList sorted = names.values();
    sorted.sort(Qt::CaseInsensitive);
    return sorted;
}

/** Two lines of text, whatever it says, so that rows stay where they are; less where it is tight.
 */
class RowState : public QLabel
{
public:
    explicit RowState(QWidget *parent)
        : QLabel(parent)
    {
        setTextFormat(Qt::PlainText);
        setTextInteractionFlags(Qt::TextSelectableByMouse);
        setAlignment(Qt::AlignTop | Qt::AlignLeft);
        setWordWrap(true);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Maximum);
        setMinimumHeight(1);
    }

    bool hasHeightForWidth() const override { return false; }

    QSize sizeHint() const override { return {1, fontMetrics().lineSpacing() * 2}; }
};

// What is absent from a message changes with each of them; nobody reads faster.
constexpr int rowStateIntervalMs = 250;

} // namespace

MessageTreePanel::MessageTreePanel(const LatestMessages &latest,
                                   const FormatInfo &format,
                                   QWidget *parent)
    : QWidget(parent)
    , latest(latest)
    , format(format)
    , tree(new InspectorTree(this))
    , findBar(new FindBar(*tree, format, this))
    , rowActions(new RowActions(*tree, this))
    , history(new TreeHistory(*tree, latest))
    , filter(new MessageTreeFilter(this))
    , filterEdit(new QLineEdit(this))
    , symbols(new QStringListModel(this))
    , menu(new QMenu(tr("&Tree"), this))
    , rowState(new RowState(this))
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
    layout->addWidget(findBar);
    layout->addWidget(tree, 1);
    layout->addWidget(rowState);
    refreshDefinitions();
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
    connect(tree, &QTreeWidget::currentItemChanged, this, &MessageTreePanel::announceChoice);
    connect(rowActions, &RowActions::filterRequested, this, &MessageTreePanel::filterBy);
    connect(findBar, &FindBar::rowNeeded, this, &MessageTreePanel::addRow);
    connect(findBar, &FindBar::closed, this, &MessageTreePanel::removeEmptyRows);
    auto *closeFind = new QShortcut(Qt::Key_Escape, this);
    closeFind->setContext(Qt::WidgetWithChildrenShortcut);
    connect(closeFind, &QShortcut::activated, findBar, &FindBar::closeBar);
    rowStateTimer.setSingleShot(true);
    rowStateTimer.setInterval(rowStateIntervalMs);
    connect(&rowStateTimer, &QTimer::timeout, this, &MessageTreePanel::refreshRowState);
    connect(&latest, &MessageSource::newMessage, this, [this] {
        if (!rowStateTimer.isActive())
            rowStateTimer.start();
    });
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
    connect(filterEdit, &QLineEdit::textChanged, this, &MessageTreePanel::refreshRowState);
    connect(Catalogue::getInstance(), &Catalogue::changed, this,
            &MessageTreePanel::refreshDefinitions);
}

void MessageTreePanel::createMenu()
{
    menu->setToolTipsVisible(true);
    addFindActions();
    menu->addSeparator();
    QList<QAction *> columns = tree->getToggleColumnActions();
    for (QAction *toggle : std::as_const(columns))
        toggle->setToolTip(tr("Show or hide this column"));
    columns += history->getAction();
    menu->addActions(columns);
    tree->header()->addActions(columns);
    tree->header()->setContextMenuPolicy(Qt::ActionsContextMenu);
    addSwitches();
    menu->addSeparator();
    addExpansionActions();
    QMenu *rowMenu = menu->addMenu(tr("Current Ro&w"));
    rowMenu->setToolTipsVisible(true);
    rowMenu->addActions(rowActions->getActions());
}

QAction *MessageTreePanel::addMenuAction(const QString &text,
                                         const QKeySequence &key,
                                         const QString &toolTip,
                                         Qt::ShortcutContext context)
{
    QAction *action = menu->addAction(text);
    action->setShortcut(key);
    action->setShortcutContext(context);
    action->setToolTip(
        QStringLiteral("%1 (%2)").arg(toolTip, key.toString(QKeySequence::NativeText)));
    tree->addAction(action);
    return action;
}

void MessageTreePanel::addFindActions()
{
    const auto add
        = [this](const QString &text, const QString &key, const QString &toolTip, auto slot) {
              connect(addMenuAction(text, key, toolTip, Qt::WindowShortcut), &QAction::triggered,
                      findBar, slot);
          };
    add(tr("&Find…"), tr("Ctrl+F"), tr("Find a row by name, value or path"), &FindBar::open);
    add(tr("Find &Next"), tr("F3"), tr("Go to the next row that was found"), &FindBar::findNext);
    add(tr("Find &Previous"), tr("Shift+F3"), tr("Go to the row that was found before"),
        &FindBar::findPrevious);
}

void MessageTreePanel::addSwitches()
{
    const auto add = [this](const char *name, const QString &text, bool on, const QString &toolTip,
                            auto receiver, auto slot) {
        QAction *action = menu->addAction(text);
        action->setObjectName(QLatin1String(name));
        action->setCheckable(true);
        action->setChecked(on);
        action->setToolTip(toolTip);
        connect(action, &QAction::toggled, receiver, slot);
        switches.append(action);
        return action;
    };
    add("units", tr("&Units"), tree->areUnitsShown(), tr("Show units beside numbers"), tree,
        &InspectorTree::setUnitsShown);
    add("hexadecimal", tr("He&xadecimal"), tree->isHexadecimalShown(),
        tr("Show integers in hexadecimal digits as well"), tree,
        &InspectorTree::setHexadecimalShown);
    menu->addSeparator();
    add("showVirtual", tr("&Computed Fields"), true,
        tr("Show fields that are computed from others"), tree,
        &MessageTreeWidget::setShowVirtualFields);
    add("showSecondary", tr("&Secondary Fields"), true, tr("Show details that few readers want"),
        tree, [this](bool shown) { tree->setShowPrimaryFieldsOnly(!shown); });
    allTypesAction = add("showAllTypes", tr("All &Known Message Types"), false,
                         tr("Show types of which no message has come yet as well"), this,
                         &MessageTreePanel::setAllTypesShown);
}

void MessageTreePanel::addExpansionActions()
{
    const auto add
        = [this](const QString &text, const QString &key, const QString &toolTip, bool expanded) {
              connect(addMenuAction(text, key, toolTip, Qt::WidgetShortcut), &QAction::triggered,
                      tree, [this, expanded] { tree->setAllExpanded(expanded); });
          };
    add(tr("&Expand All"), tr("Ctrl+Right"), tr("Expand all rows"), true);
    add(tr("C&ollapse All"), tr("Ctrl+Left"), tr("Collapse all rows"), false);
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
    for (QAction *action : std::as_const(switches))
        action->setChecked(settings.value(action->objectName(), action->isChecked()).toBool());
    settings.endGroup();
}

void MessageTreePanel::saveSettings(QSettings &settings)
{
    settings.beginGroup(settingsGroup());
    tree->saveSettings(settings);
    tree->saveExpansionState(settings);
    for (const QAction *action : std::as_const(switches))
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
    if (!shown)
        return removeEmptyRows();
    for (const auto &type : format.getData()->messages)
        addRow(type.get());
}

/** Types without messages have rows only while they are asked for. */
void MessageTreePanel::removeEmptyRows()
{
    if (allTypesAction->isChecked())
        return;
    for (auto row = rows.begin(); row != rows.end();) {
        if (latest.get(row.key()) != nullptr) {
            ++row;
            continue;
        }
        delete row.value();
        row = rows.erase(row);
    }
}

void MessageTreePanel::refreshDefinitions()
{
    const auto elementTypes = elementTypesOf(format);
    symbols->setStringList(symbolsOf(elementTypes));
    filterEdit->setEnabled(!elementTypes.isEmpty());
    filterEdit->setPlaceholderText(
        elementTypes.isEmpty() ? tr("Nothing to filter: no message type has repeated sub-messages")
                               : tr("Show only repeated sub-messages with this name of a value"));
    const auto &types = format.getData()->messages;
    const auto mainTypes = std::count_if(types.begin(), types.end(),
                                         [](const auto &type) { return type->isMain(); });
    tree->setEmptyText(
        mainTypes == 0
            ? tr("No definitions are loaded, so nothing can be shown. Open a source "
                 "together with the definitions of its messages.")
            : tr("No message has come yet. Each message type gets its row with its first "
                 "message. The menu \"Show\" lists all %1 known types, messages or not.")
                  .arg(mainTypes));
}

void MessageTreePanel::filterBy(const QString &text)
{
    filterEdit->setText(text);
    filterEdit->setFocus(Qt::OtherFocusReason);
}

void MessageTreePanel::goTo(const RowPlace &place)
{
    if (QTreeWidgetItem *row = place.findRow(*tree))
        tree->goTo(row);
}

void MessageTreePanel::refreshRowState()
{
    QString text = SteadyTreeWidget::shortened(
        describeRow(tree->currentItem()).join(QStringLiteral("  ·  ")));
    if (text.isEmpty() && tree->topLevelItemCount() > 0)
        text = tr("Choose a row to read about it. A right click offers more.");
    text = SteadyTreeWidget::shortened(text);
    if (text == rowState->text())
        return;
    rowState->setText(text);
    rowState->setToolTip(text); // where there is not enough room
}

void MessageTreePanel::announceChoice(QTreeWidgetItem *current)
{
    refreshRowState();
    const MessageTreeWidgetItem *row = topRowOf(current);
    if (row != nullptr && row->getMessageInfo() != nullptr)
        Q_EMIT typeChosen(row->getMessageInfo());
    Q_EMIT placeChosen(RowPlace::of(current),
                       row != nullptr ? row->getDisplayedMessage() : nullptr);
}

} // namespace corvane
