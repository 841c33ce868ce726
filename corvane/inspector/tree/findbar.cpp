#include "findbar.h"

#include "expansion.h"
#include "inspectortree.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QScopedValueRollback>
#include <QToolButton>

#include <algorithm>

namespace corvane {

FindBar::FindBar(InspectorTree &tree, const FormatInfo &format, QWidget *parent)
    : QWidget(parent)
    , tree(tree)
    , finder(tree, format)
    , edit(new QLineEdit(this))
    , state(new QLabel(this))
{
    createWidgets();
    hide();
    connect(edit, &QLineEdit::textChanged, this, [this] { search(Wish::First); });
    connect(&finder, &TreeSearch::progressed, this, &FindBar::follow);
    connect(&tree, &QTreeWidget::itemExpanded, this, &FindBar::noteExpansion);
    connect(&tree, &QTreeWidget::itemCollapsed, this, &FindBar::noteExpansion);
    connect(&tree, &InspectorTree::manyExpanded, this, [this] { expanded.clear(); });
    const auto noteChange = [this] { rowsChanged = true; };
    connect(tree.model(), &QAbstractItemModel::rowsInserted, this, noteChange);
    connect(tree.model(), &QAbstractItemModel::rowsRemoved, this, noteChange);
}

void FindBar::createWidgets()
{
    edit->setPlaceholderText(tr("Find a name, a value or a path"));
    edit->setAccessibleName(tr("Find in the tree"));
    edit->setToolTip(tr("Looks in names, values and, with a dot or a bracket, in paths "
                        "(\"position.lat\", \"volt[2]\"); Escape closes"));
    edit->setClearButtonEnabled(true);
    edit->installEventFilter(this);
    state->setTextFormat(Qt::PlainText);
    state->setMinimumWidth(fontMetrics().averageCharWidth() * 22);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(edit, 1);
    layout->addWidget(state);
    const auto addButton
        = [&](Qt::ArrowType arrow, const QString &text, const QString &toolTip, auto slot) {
              auto *button = new QToolButton(this);
              button->setArrowType(arrow);
              button->setText(text);
              button->setToolTip(toolTip);
              button->setAccessibleName(text);
              button->setAutoRaise(true);
              connect(button, &QToolButton::clicked, this, slot);
              layout->addWidget(button);
          };
    addButton(Qt::UpArrow, tr("Previous"), tr("Go to the previous one (Shift+F3, Shift+Enter)"),
              &FindBar::findPrevious);
    addButton(Qt::DownArrow, tr("Next"), tr("Go to the next one (F3, Enter)"), &FindBar::findNext);
    addButton(Qt::NoArrow, tr("Close"), tr("Close and collapse what was expanded (Escape)"),
              &FindBar::closeBar);
}

void FindBar::open()
{
    const bool wasOpen = isVisible();
    show();
    edit->setFocus(Qt::ShortcutFocusReason);
    edit->selectAll();
    if (!wasOpen)
        search(Wish::None);
}

void FindBar::closeBar()
{
    if (isHidden())
        return;
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    finder.start({}, nullptr);
    collapseAgain();
    hide();
    if (hadFocus)
        tree.setFocus(Qt::OtherFocusReason);
    Q_EMIT closed();
}

void FindBar::findNext()
{
    step(Wish::Next);
}

void FindBar::findPrevious()
{
    step(Wish::Previous);
}

void FindBar::search(Wish newWish)
{
    wish = newWish;
    current.reset();
    wrapText.clear();
    rowsChanged = false;
    finder.start(edit->text(), tree.currentItem());
    refreshState();
}

void FindBar::step(Wish direction)
{
    if (isHidden()) {
        open();
        return search(direction);
    }
    if (wish != Wish::None && finder.isRunning())
        return; // on the way to a hit
    if (!current || (rowsChanged && !finder.isRunning()))
        return search(direction);
    const bool forwards = direction == Wish::Next;
    const size_t last = finder.getHits().size() - 1;
    const size_t end = forwards ? last : 0;
    if (*current == end && finder.isRunning())
        return; // more may come
    const size_t next = *current == end ? last - end : forwards ? *current + 1 : *current - 1;
    // Values change, and elements come and go, while people look at a hit.
    if (!isStillHit(next))
        return search(direction);
    wrapText = *current == end ? textOfWrap(direction) : QString();
    goTo(next);
}

QString FindBar::textOfWrap(Wish direction)
{
    return direction == Wish::Previous ? tr("from the end again") : tr("from the top again");
}

bool FindBar::isStillHit(size_t hit)
{
    const RowPlace &place = finder.getHits()[hit];
    return findTopRow(tree, place.type) == nullptr || finder.isHit(place.findRow(tree));
}

void FindBar::follow()
{
    const auto &hits = finder.getHits();
    const auto before = finder.getHitsBeforeOrigin();
    if (wish != Wish::None && before && !hits.empty()) {
        size_t wished = wish == Wish::Previous ? *before - 1 : *before;
        if (wish == Wish::Next && wished < hits.size()
            && RowPlace::of(tree.currentItem()) == hits[wished])
            ++wished;
        const bool wraps = wished >= hits.size();
        // What lies behind the end is known when there is one.
        if (!wraps || !finder.isRunning()) {
            wrapText = wraps ? textOfWrap(wish) : QString();
            const size_t other = wish == Wish::Previous ? hits.size() - 1 : 0;
            wish = Wish::None;
            goTo(wraps ? other : wished);
        }
    }
    refreshState();
}

void FindBar::goTo(size_t hit)
{
    QTreeWidgetItem *row = findOrMakeRow(finder.getHits()[hit]);
    if (row == nullptr)
        return search(Wish::Next); // gone since it was found
    current = hit;
    expandTo(row);
    tree.goTo(row);
    refreshState();
}

QTreeWidgetItem *FindBar::findOrMakeRow(RowPlace place)
{
    if (findTopRow(tree, place.type) != nullptr)
        return place.findRow(tree);
    const QScopedValueRollback change(rowsChanged); // the new row was searched already
    Q_EMIT rowNeeded(place.type);
    QTreeWidgetItem *row = place.findRow(tree);
    for (; row == nullptr && !place.steps.empty(); row = place.findRow(tree))
        place.steps.pop_back();
    return row;
}

void FindBar::expandTo(QTreeWidgetItem *row)
{
    const ForgetfulExpansion forgetful;
    const QScopedValueRollback expanding(isExpanding, true);
    std::vector<QTreeWidgetItem *> collapsed;
    for (QTreeWidgetItem *above = row->parent(); above != nullptr; above = above->parent())
        if (!above->isExpanded())
            collapsed.insert(collapsed.begin(), above);
    for (QTreeWidgetItem *above : collapsed) {
        above->setExpanded(true);
        if (auto place = RowPlace::of(above))
            expanded.push_back(std::move(*place));
    }
}

void FindBar::collapseAgain()
{
    const ForgetfulExpansion forgetful;
    const QScopedValueRollback expanding(isExpanding, true);
    QTreeWidgetItem *shown = tree.currentItem();
    // NOLINTNEXTLINE(modernize-loop-convert): there is no range that goes backwards
    for (auto place = expanded.rbegin(); place != expanded.rend(); ++place) {
        QTreeWidgetItem *row = place->findRow(tree);
        if (row == nullptr)
            continue;
        row->setExpanded(false);
        for (QTreeWidgetItem *above = shown; above != nullptr; above = above->parent())
            if (above == row)
                shown = row;
    }
    expanded.clear();
    if (shown != tree.currentItem())
        tree.goTo(shown);
}

/** What people expand or collapse themselves stays as they leave it. */
void FindBar::noteExpansion(QTreeWidgetItem *row)
{
    if (isExpanding || expanded.empty())
        return;
    if (const auto place = RowPlace::of(row))
        expanded.erase(std::remove(expanded.begin(), expanded.end(), *place), expanded.end());
}

void FindBar::refreshState()
{
    state->setText(getStateText());
    state->setToolTip(state->text());
}

QString FindBar::getStateText() const
{
    const auto count = static_cast<qlonglong>(finder.getHits().size());
    const QLocale locale;
    if (edit->text().isEmpty())
        return {};
    if (count == 0)
        return finder.isRunning() ? tr("Searching…") : tr("Nothing found");
    QString text
        = current
              ? tr("%1 of %2").arg(locale.toString(qlonglong(*current) + 1), locale.toString(count))
              : tr("%1 found").arg(locale.toString(count));
    if (finder.isRunning())
        text += tr(" so far");
    if (!wrapText.isEmpty())
        text += QStringLiteral(", ") + wrapText;
    return text;
}

bool FindBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto *press = static_cast<QKeyEvent *>(event);
    switch (press->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        step(press->modifiers().testFlag(Qt::ShiftModifier) ? Wish::Previous : Wish::Next);
        return true;
    case Qt::Key_Escape:
        closeBar();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

} // namespace corvane
