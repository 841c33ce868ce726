#include "watchpanel.h"

#include "catalogue.h"
#include "corvane.h"
#include "descriptions.h"
#include "fieldvaluelabel.h"
#include "latestmessages.h"
#include "message.h"
#include "pathexpressioncombobox.h"
#include "pathexpressionlineedit.h"
#include "pathexpressionlistwidget.h"
#include "steadytreewidget.h"

#include <QAction>
#include <QCompleter>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSettings>
#include <QSplitter>
#include <QStringListModel>
#include <QStyle>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

constexpr int stateIntervalMs = 250;
constexpr qsizetype maximumCompletions = 200;

QString settingsKey()
{
    return QStringLiteral("watch/paths");
}

QString columnsKey()
{
    return QStringLiteral("watch/headerstate");
}

/** The paths of the fields that \a expression matches, at most \a maximum. */
QStringList pathsOf(const PathExpression &expression, qsizetype maximum)
{
    return expression.getMatchingExpressionsStringList(PathExpression::AllParts).mid(0, maximum);
}

} // namespace

WatchPanel::WatchPanel(const LatestMessages &latest, QWidget *parent)
    : QWidget(parent)
    , latest(latest)
    , completions(new QStringListModel(this))
{
    createTable();
    auto *splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(createChooser());
    splitter->addWidget(table);
    splitter->setStretchFactor(1, 1);
    notice = new QLabel(this);
    notice->setTextFormat(Qt::PlainText);
    notice->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(fontMetrics().height() / 4);
    layout->addWidget(splitter, 1);
    layout->addWidget(createButtons());
    layout->addWidget(notice);
    say(tr("Type the path of a field and press Enter, or pick one and press Watch."));

    connect(&latest, &MessageSource::newMessage, this, &WatchPanel::processMessage);
    connect(&latest, &LatestMessages::senderChanged, this, &WatchPanel::forgetValues);
    connect(&expression, &PathExpression::partsChanged, this, &WatchPanel::followParts);
    connect(Catalogue::getInstance(), &Catalogue::changed, this, &WatchPanel::resolve);
    connect(Corvane::getInstance(), &Corvane::confidentialInformationDisplayChanged, this,
            &WatchPanel::showAllLatest);
    connect(&stateTimer, &QTimer::timeout, this, &WatchPanel::refreshStates);
    stateTimer.start(stateIntervalMs);
}

WatchPanel::~WatchPanel()
{
    for (const Row &row : rows)
        row.label->setTimeOut(-1); // or its timer would be left behind
}

QWidget *WatchPanel::createChooser()
{
    auto *chooser = new QWidget(this);
    edit = new PathExpressionLineEdit(&expression, PathExpression::AllParts);
    edit->setAccessibleName(tr("Path of a field"));
    edit->setClearButtonEnabled(true);
    auto *completer = new QCompleter(completions, this);
    completer->setModelSorting(QCompleter::UnsortedModel);
    edit->setCompleter(completer);
    auto *formats = new PathExpressionComboBox(&expression, PathExpression::FormatPart, nullptr);
    formats->setAccessibleName(tr("Format"));
    auto *messages
        = new PathExpressionComboBox(&expression, PathExpression::MessagePart, &messageOptions);
    messages->setAccessibleName(tr("Message type"));
    // Long names of types do not make the panel wide.
    messages->setMinimumWidth(fontMetrics().averageCharWidth() * 16);
    auto *fields
        = new PathExpressionListWidget(&expression, PathExpression::FieldPart, &fieldOptions);
    fields->setAccessibleName(tr("Field"));
    fields->setMinimumHeight(fontMetrics().height() * 3 / 2);

    auto *combos = new QHBoxLayout;
    combos->addWidget(formats);
    combos->addWidget(messages, 1);
    auto *layout = new QVBoxLayout(chooser);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(fontMetrics().height() / 4);
    layout->addWidget(edit);
    layout->addLayout(combos);
    layout->addWidget(fields, 1);
    connect(edit, &QLineEdit::textEdited, this, &WatchPanel::completeOptions);
    connect(edit, &QLineEdit::returnPressed, this, [this] { watch(edit->text()); });
    return chooser;
}

QWidget *WatchPanel::createButtons()
{
    auto *bar = new QWidget(this);
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto addButton = [&](const QString &text, const QString &toolTip, auto slot) {
        auto *button = new QToolButton(bar);
        button->setText(text);
        button->setToolTip(toolTip);
        connect(button, &QToolButton::clicked, this, slot);
        layout->addWidget(button);
    };
    addButton(tr("Watch"), tr("Add the chosen fields"),
              [this] { watch(expression.getString(PathExpression::AllParts)); });
    layout->addStretch(1);
    addButton(tr("Up"), tr("Move the current row up"), [this] { moveCurrent(-1); });
    addButton(tr("Down"), tr("Move the current row down"), [this] { moveCurrent(1); });
    addButton(tr("Remove"), tr("Stop watching the current row (Delete)"),
              &WatchPanel::removeCurrent);
    return bar;
}

void WatchPanel::createTable()
{
    table = new QTableWidget(0, ColumnCount, this);
    table->setAccessibleName(tr("Watched fields"));
    table->setMinimumHeight(fontMetrics().height() * 3);
    table->setHorizontalHeaderLabels({tr("Path"), tr("Value"), tr("Unit"), tr("State")});
    table->setTabKeyNavigation(false); // Tab leads on to the next control
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->verticalHeader()->hide();
    table->verticalHeader()->setMinimumSectionSize(0);
    fitRowHeight();
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setSectionsMovable(true);
    table->setColumnWidth(PathColumn, fontMetrics().averageCharWidth() * 24);
    table->setColumnWidth(ValueColumn, fontMetrics().averageCharWidth() * 14);
    table->setColumnWidth(UnitColumn, fontMetrics().averageCharWidth() * 8);
    table->setTextElideMode(Qt::ElideLeft); // the end of a path says most
    auto *remove = new QAction(tr("Stop Watching"), table);
    remove->setShortcut(QKeySequence::Delete);
    remove->setShortcutContext(Qt::WidgetShortcut);
    connect(remove, &QAction::triggered, this, &WatchPanel::removeCurrent);
    connect(table, &QTableWidget::itemSelectionChanged, this, &WatchPanel::colorLabels);
    table->addAction(remove);
    table->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void WatchPanel::fitRowHeight()
{
    table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
}

void WatchPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitRowHeight();
}

void WatchPanel::completeOptions()
{
    // Of its own: the list of fields completes the shared one when the text so far names a field.
    PathExpression typed;
    typed.setStringPrefix(edit->text(), PathExpression::AllParts);
    completions->setStringList(pathsOf(typed, maximumCompletions));
}

void WatchPanel::followParts()
{
    messageOptions.setString(expression.getString(PathExpression::FormatPart),
                             PathExpression::FormatPart);
    constexpr auto typeParts = PathExpression::FormatPart | PathExpression::MessagePart;
    fieldOptions.setString(expression.getString(typeParts), typeParts);
}

void WatchPanel::watch(const QString &path)
{
    PathExpression wanted;
    wanted.setString(path);
    const QStringList paths = pathsOf(wanted, maximumMatches + 1);
    if (paths.isEmpty()) {
        say(tr("No field is named \"%1\". A path is FORMAT.MESSAGE.FIELD; * stands for any text.")
                .arg(path));
        return;
    }
    if (paths.size() > maximumMatches) {
        say(tr("\"%1\" names more than %2 fields; name fewer.").arg(path).arg(maximumMatches));
        return;
    }
    for (const QString &found : paths)
        add(found);
    resolve();
    fillTable();
    table->setCurrentCell(table->rowCount() - 1, PathColumn);
    say({});
}

void WatchPanel::add(const QString &path)
{
    const bool known
        = std::any_of(rows.begin(), rows.end(), [&](const Row &row) { return row.path == path; });
    if (!known)
        rows.emplace_back().path = path;
}

void WatchPanel::fillTable()
{
    // The labels are owned by their cells, so they are made anew with these.
    for (const Row &row : rows)
        if (row.label != nullptr)
            row.label->setTimeOut(-1);
    table->setRowCount(0);
    table->setRowCount(static_cast<int>(rows.size()));
    int number = 0;
    for (Row &row : rows) {
        createLabel(row);
        for (const Column column : {PathColumn, UnitColumn, StateColumn})
            table->setItem(number, column, new QTableWidgetItem);
        table->item(number, PathColumn)->setText(row.path);
        table->item(number, UnitColumn)
            ->setText(row.field != nullptr ? row.field->getData()->unit : QString());
        table->setCellWidget(number, ValueColumn, row.label);
        ++number;
    }
    refreshStates();
}

void WatchPanel::createLabel(Row &row)
{
    row.label = new FieldValueLabel(row.field);
    row.label->setTextFormat(Qt::PlainText);
    row.label->setTimeOut(timeOutMs);
    row.label->setIndent(table->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1); // as cells
    showLatest(row);
}

/** As the cells beside them. */
void WatchPanel::colorLabels()
{
    for (size_t i = 0; i < rows.size(); ++i) {
        const QTableWidgetItem *cell = table->item(static_cast<int>(i), PathColumn);
        if (rows[i].label != nullptr && cell != nullptr)
            rows[i].label->setForegroundRole(cell->isSelected() ? QPalette::HighlightedText
                                                                : QPalette::Text);
    }
}

void WatchPanel::showLatest(const Row &row)
{
    if (row.field == nullptr || !row.sinceValue.isValid() || row.sinceValue.hasExpired(timeOutMs))
        return;
    for (const MessageInfo *type : row.field->getMessageInfos())
        if (const Message *message = latest.get(type))
            showValue(message, *row.label);
}

void WatchPanel::showValue(const Message *message, FieldValueLabel &label)
{
    label.processMessage(message);
    // A text of any length may come, which would be laid out as a whole.
    if (const QString text = SteadyTreeWidget::shortened(label.text()); text != label.text())
        label.setText(text);
}

void WatchPanel::showAllLatest()
{
    for (const Row &row : rows)
        showLatest(row);
}

void WatchPanel::forgetValues()
{
    for (Row &row : rows) {
        row.sinceValue.invalidate();
        row.absent = false;
        row.label->clearValue();
    }
    refreshStates();
}

void WatchPanel::resolve()
{
    bool changed = false;
    PathExpression wanted;
    wanted.setConsiderSubMessages(true);
    for (Row &row : rows) {
        wanted.setString(row.path);
        const auto fields = wanted.getMatchingFieldInfos();
        const FieldInfo *field = fields.size() == 1 ? fields.constFirst() : nullptr;
        if (std::exchange(row.field, field) == field)
            continue;
        changed = true;
        row.sinceValue.invalidate();
        row.absent = false;
    }
    if (changed)
        fillTable();
}

void WatchPanel::removeCurrent()
{
    const int current = table->currentRow();
    if (current < 0)
        return;
    rows[static_cast<size_t>(current)].label->setTimeOut(-1);
    rows.erase(rows.begin() + current);
    table->removeRow(current);
}

void WatchPanel::moveCurrent(int distance)
{
    const int from = table->currentRow();
    const int to = std::clamp(from + distance, 0, table->rowCount() - 1);
    if (from < 0 || from == to)
        return;
    Row moved = rows[static_cast<size_t>(from)];
    moved.label->setTimeOut(-1);
    rows.erase(rows.begin() + from);
    moved.label = nullptr;
    table->removeRow(from);
    rows.insert(rows.begin() + to, moved);
    fillTable();
    table->setCurrentCell(to, PathColumn);
}

void WatchPanel::processMessage(const Message *message)
{
    for (Row &row : rows) {
        if (row.field == nullptr || !row.field->occursIn(message->getInfo()))
            continue;
        showValue(message, *row.label);
        row.absent = row.field->getNumberOfValues(message) == 0;
        row.sinceValue.start();
    }
}

void WatchPanel::refreshStates()
{
    for (size_t i = 0; i < rows.size(); ++i) {
        QTableWidgetItem *cell = table->item(static_cast<int>(i), StateColumn);
        if (const QString text = getStateText(rows[i]); text != cell->text())
            cell->setText(text);
    }
}

QString WatchPanel::getStateText(const Row &row)
{
    if (row.field == nullptr)
        return tr("Not described by the loaded definitions");
    if (!row.sinceValue.isValid())
        return tr("Not received yet");
    if (row.sinceValue.hasExpired(timeOutMs))
        return tr("Timed out");
    return row.absent ? tr("Absent in the last message") : tr("Current");
}

void WatchPanel::say(const QString &text)
{
    notice->setText(text);
    notice->setVisible(!text.isEmpty());
}

void WatchPanel::saveSettings(QSettings &settings) const
{
    QStringList paths;
    for (const Row &row : rows)
        paths.append(row.path);
    settings.setValue(settingsKey(), paths);
    settings.setValue(columnsKey(), table->horizontalHeader()->saveState());
}

void WatchPanel::restoreSettings(QSettings &settings)
{
    for (const QString &path : settings.value(settingsKey()).toStringList())
        add(path);
    table->horizontalHeader()->restoreState(settings.value(columnsKey()).toByteArray());
    resolve();
    fillTable();
}

} // namespace corvane
