#include "rowactions.h"

#include "corvane.h"
#include "fieldinfo.h"
#include "inspectortree.h"
#include "jsonwriter.h"
#include "messagetreewidgetitem.h"
#include "pathexpression.h"
#include "singlevaluefieldtreewidgetitem.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QRegularExpression>

#include <algorithm>

namespace corvane {

namespace {

/** More elements are not plotted at once. */
constexpr int maximumPlottedElements = 8;

void copy(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

} // namespace

RowActions::RowActions(InspectorTree &tree, QObject *parent)
    : QObject(parent)
    , tree(tree)
    , menu(new QMenu(&tree))
{
    createActions();
    menu->addActions(actions);
    menu->setToolTipsVisible(true);
    connect(menu, &QMenu::aboutToShow, this, &RowActions::refresh);
    connect(&tree, &QTreeWidget::currentItemChanged, this, &RowActions::refresh);
    connect(&tree, &InspectorTree::menuRequested, this, &RowActions::showMenu);
    refresh();
}

void RowActions::createActions()
{
    using A = RowActions;
    add(tr("&Copy Value"), "Ctrl+C", tr("Copy the value as it is shown"), &A::whyNoValue,
        &A::copyValue);
    add(tr("Copy &Path"), "Ctrl+Shift+C",
        tr("Copy the path by which the watch list, the plot and exports know the row"),
        &A::whyNoPath, &A::copyPath);
    add(tr("Copy &Row"), "Ctrl+Shift+R", tr("Copy the texts of all columns, with tabs between"),
        &A::whyNoRow, &A::copyRow);
    add(tr("Copy Message as &JSON"), "Ctrl+Shift+J",
        tr("Copy the whole message that is shown, as in an export"), &A::whyNoMessage,
        &A::copyMessage);
    addSeparator();
    add(tr("Add to &Watch"), "Ctrl+Shift+W", tr("Show the field in the list of watched fields"),
        &A::whyNoWatch, &A::watch);
    add(tr("P&lot"), "Ctrl+Shift+P", tr("Draw the field over time"), &A::whyNoPlot, &A::plot);
    add(tr("Show &Form"), "Ctrl+Shift+F", tr("Show the message type as a form"), &A::whyNoPath,
        &A::showForm);
    add(tr("Show &Bytes"), "Ctrl+Shift+B",
        tr("Show the bytes of the message, with those of the field marked"), &A::whyNoPath,
        &A::showBytes);
    add(tr("Filter by &This Value"), "Ctrl+Shift+L",
        tr("Show only elements of lists that hold this value"), &A::whyNoFilter, &A::filterByValue);
    addSeparator();
    add(tr("E&xpand Below"), "Alt+Right", tr("Expand the row and all below"), &A::whyNothingBelow,
        &A::expandBelow);
    add(tr("C&ollapse Below"), "Alt+Left", tr("Collapse the row and all below"),
        &A::whyNothingBelow, &A::collapseBelow);
}

void RowActions::add(
    const QString &text, const char *key, const QString &toolTip, Reason reason, Deed deed)
{
    auto *action = new QAction(text, this);
    action->setShortcut(QKeySequence(QLatin1String(key)));
    action->setShortcutContext(Qt::WidgetShortcut); // the same keys copy in other panels
    connect(action, &QAction::triggered, this, [this, reason, deed] {
        const Target target = getTarget();
        if ((this->*reason)(target).isEmpty()) // or the row has changed since it was offered
            (this->*deed)(target);
    });
    tree.addAction(action);
    actions.append(action);
    entries.push_back({action, reason, toolTip});
}

void RowActions::addSeparator()
{
    auto *separator = new QAction(this);
    separator->setSeparator(true);
    actions.append(separator);
}

void RowActions::setPlotAvailable(bool available)
{
    plotAvailable = available;
    refresh();
}

void RowActions::refresh()
{
    const Target target = getTarget();
    for (const Entry &entry : entries) {
        const QString reason = (this->*entry.reason)(target);
        entry.action->setEnabled(reason.isEmpty());
        const QString key = entry.action->shortcut().toString(QKeySequence::NativeText);
        entry.action->setToolTip(
            reason.isEmpty() ? QStringLiteral("%1 (%2)").arg(entry.toolTip, key) : reason);
    }
}

void RowActions::showMenu(const QPoint &position)
{
    menu->popup(position);
}

RowActions::Target RowActions::getTarget() const
{
    Target target;
    target.row = tree.currentItem();
    target.place = RowPlace::of(target.row);
    if (const MessageTreeWidgetItem *top = topRowOf(target.row))
        target.message = top->getDisplayedMessage();
    if (auto *row = dynamic_cast<AbstractMessageTreeWidgetItem *>(target.row))
        target.valueText = row->getValueText();
    return target;
}

QString RowActions::whyNoRow(const Target &target) const
{
    return target.row == nullptr ? tr("No row is chosen") : QString();
}

QString RowActions::whyNoPath(const Target &target) const
{
    if (target.row != nullptr && !target.place)
        return tr("This row stands for no field");
    return whyNoRow(target);
}

QString RowActions::whyNoValue(const Target &target) const
{
    if (target.place && target.valueText.isEmpty())
        return tr("This row has no value of its own");
    return whyNoPath(target);
}

QString RowActions::whyNoMessage(const Target &target) const
{
    if (target.place && target.message == nullptr)
        return tr("No message of this type has come yet");
    return whyNoPath(target);
}

QString RowActions::whyNoWatch(const Target &target) const
{
    if (!target.place)
        return whyNoPath(target);
    if (target.place->getField() == nullptr)
        return tr("A message type cannot be watched; choose a field");
    if (target.place->getSubMessageStep() != nullptr)
        return tr("Fields inside sub-messages cannot be watched");
    return {};
}

QString RowActions::whyNoPlot(const Target &target) const
{
    if (!plotAvailable)
        return tr("This build has no plot");
    if (!target.place)
        return whyNoPath(target);
    const FieldInfo *field = target.place->getField();
    if (field == nullptr)
        return tr("A message type cannot be plotted; choose a numeric field");
    if (!isNumeric(field))
        return tr("Only numeric fields can be plotted; this one is of type %1")
            .arg(field->getType().toShortString());
    if (field->isConfidential() && !Corvane::confidentialInformationDisplayEnabled())
        return tr("What this field holds is confidential");
    return {};
}

QString RowActions::whyNoFilter(const Target &target) const
{
    if (!target.place)
        return whyNoPath(target);
    const RowPlace::Step *around = target.place->getSubMessageStep();
    const auto *row = dynamic_cast<const SingleValueFieldTreeWidgetItem *>(target.row);
    if (around == nullptr || around->element < 0 || row == nullptr)
        return tr("Only values inside the elements of a list of sub-messages can be filtered by");
    return row->getFieldValue().isValid() ? whyNoValue(target) : tr("There is no value");
}

QString RowActions::whyNothingBelow(const Target &target) const
{
    if (target.row != nullptr && target.row->childCount() == 0)
        return tr("There is nothing below this row");
    return whyNoRow(target);
}

void RowActions::copyValue(const Target &target)
{
    copy(target.valueText);
}

void RowActions::copyPath(const Target &target)
{
    copy(target.place->getPath());
}

void RowActions::copyRow(const Target &target)
{
    static const QRegularExpression breaks(QStringLiteral("[\\t\\r\\n]")); // of the table
    QStringList texts;
    for (int column = 0; column < tree.columnCount(); ++column)
        if (!tree.isColumnHidden(column))
            texts += target.row->text(column).replace(breaks, QStringLiteral(" "));
    copy(texts.join(QLatin1Char('\t')));
}

void RowActions::copyMessage(const Target &target)
{
    copy(QString::fromUtf8(toJson(target.message)));
}

/** The watch list shows fields as a whole. */
void RowActions::watch(const Target &target)
{
    PathExpression expression;
    expression.setupToMatchUnique(target.place->type);
    QString path = expression.getString(PathExpression::FormatPart | PathExpression::MessagePart);
    expression.setupToMatchUnique(target.place->getField());
    Q_EMIT watchRequested(path + QLatin1Char('.')
                          + expression.getString(PathExpression::FieldPart));
}

void RowActions::plot(const Target &target)
{
    QString path = target.place->getPath();
    const int elements = target.row->childCount();
    if (target.place->getElement() < 0 && target.place->getField()->isRepeated() && elements > 0)
        path += QStringLiteral("[0..%1]").arg(std::min(elements, maximumPlottedElements) - 1);
    Q_EMIT plotRequested(path);
}

void RowActions::showForm(const Target &)
{
    Q_EMIT formRequested();
}

void RowActions::showBytes(const Target &)
{
    Q_EMIT bytesRequested();
}

void RowActions::filterByValue(const Target &target)
{
    Q_EMIT filterRequested(target.valueText);
}

void RowActions::expandBelow(const Target &target)
{
    tree.setExpandedBelow(target.row, true);
}

void RowActions::collapseBelow(const Target &target)
{
    tree.setExpandedBelow(target.row, false);
}

} // namespace corvane
