#include "steadytreewidget.h"

#include <QAccessible>
#include <QEvent>
#include <QScopedValueRollback>
#include <QSet>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyledItemDelegate>

#include <bitset>
#include <utility>

namespace {

class ShorteningDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override
    {
        return SteadyTreeWidget::shortened(QStyledItemDelegate::displayText(value, locale));
    }
};

bool isLineBreak(QChar character)
{
    switch (character.unicode()) {
    case u'\n':
    case u'\v':
    case u'\f':
    case u'\r':
    case 0x85:
    case QChar::LineSeparator:
    case QChar::ParagraphSeparator:
        return true;
    default:
        return false;
    }
}

} // namespace

/** Which characters are as high as a Latin letter, in the tree's font and style. */
class SteadyTreeWidget::PlainCharacters
{
public:
    bool contains(QChar character, SteadyTreeWidget &tree)
    {
        const char16_t code = character.unicode();
        if (!known.test(code)) {
            known.set(code);
            plain.set(code, isOfPlainKind(character) && isAsHighAsALetter(character, tree));
        }
        return plain.test(code);
    }

private:
    static bool isOfPlainKind(QChar character)
    {
        switch (character.category()) {
        case QChar::Other_Control:
        case QChar::Other_Format:
        case QChar::Other_Surrogate:
        case QChar::Other_PrivateUse:
        case QChar::Other_NotAssigned:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            return false;
        default:
            return character.script() == QChar::Script_Latin
                   || character.script() == QChar::Script_Common;
        }
    }

    // Whether a character needs another, taller font depends on the fonts of the machine.
    bool isAsHighAsALetter(QChar character, SteadyTreeWidget &tree)
    {
        if (letterHeight < 0)
            letterHeight = heightOf(QLatin1Char('A'), tree);
        return heightOf(character, tree) == letterHeight;
    }

    static int heightOf(QChar character, SteadyTreeWidget &tree)
    {
        QStyleOptionViewItem option;
        tree.initViewItemOption(&option);
        option.features |= QStyleOptionViewItem::HasDisplay;
        option.text = character;
        return tree.style()
            ->sizeFromContents(QStyle::CT_ItemViewItem, &option, QSize(), &tree)
            .height();
    }

    std::bitset<0x10000> known;
    std::bitset<0x10000> plain;
    int letterHeight = -1;
};

SteadyTreeWidget::SteadyTreeWidget(QWidget *parent)
    : QTreeWidget(parent)
    , ownDelegate(new ShorteningDelegate(this))
{
    const QAbstractItemDelegate *stock = itemDelegate();
    setItemDelegate(ownDelegate);
    delete stock;
}

SteadyTreeWidget::~SteadyTreeWidget() = default;

void SteadyTreeWidget::setItemText(QTreeWidgetItem *item, int column, const QString &text)
{
    setItemData(item, column, text, text);
}

void SteadyTreeWidget::setItemNumber(QTreeWidgetItem *item, int column, quint64 number)
{
    setItemData(item, column, number, QString::number(number));
}

void SteadyTreeWidget::setItemData(QTreeWidgetItem *item,
                                   int column,
                                   const QVariant &data,
                                   const QString &text)
{
    auto *tree = dynamic_cast<SteadyTreeWidget *>(item->treeWidget());
    if (tree == nullptr || !tree->isPlain(text) || !tree->isPlain(item->text(column))) {
        item->setData(column, Qt::DisplayRole, data);
        return;
    }
    const QScopedValueRollback change(tree->plainChange, PlainChange{item, column, &text});
    item->setData(column, Qt::DisplayRole, data);
}

void SteadyTreeWidget::setItemHidden(QTreeWidgetItem *item, bool hidden)
{
    if (item->isHidden() != hidden)
        item->setHidden(hidden);
}

void SteadyTreeWidget::setItemExpanded(QTreeWidgetItem *item, bool expanded)
{
    if (item->isExpanded() != expanded)
        item->setExpanded(expanded);
}

void SteadyTreeWidget::removeChildren(QTreeWidgetItem *parent,
                                      const QList<QTreeWidgetItem *> &doomed)
{
    // Each removal visits all rows that are expanded, so these are collapsed meanwhile.
    constexpr qsizetype fewRows = 8;
    QSet<QTreeWidgetItem *> toRemove(doomed.begin(), doomed.end());
    auto *tree = dynamic_cast<SteadyTreeWidget *>(parent->treeWidget());
    QList<QTreeWidgetItem *> toExpand;
    if (tree != nullptr && doomed.size() > fewRows) {
        tree->moveCurrentOut(parent, toRemove);
        tree->scheduleDelayedItemsLayout(); // with a layout pending, collapsing does not do its own
        const QSignalBlocker blocker(tree);
        for (int i = 0; i < parent->childCount(); ++i) {
            QTreeWidgetItem *child = parent->child(i);
            if (!child->isExpanded())
                continue;
            child->setExpanded(false);
            if (!toRemove.contains(child))
                toExpand.append(child);
        }
    }
    // By index, from the end: the parent does not have to search, and in a sorted tree the doomed
    // may stand anywhere.
    for (int i = parent->childCount() - 1; i >= 0 && !toRemove.isEmpty(); --i)
        if (toRemove.remove(parent->child(i)))
            delete parent->takeChild(i);
    const QSignalBlocker blocker(toExpand.isEmpty() ? nullptr : tree);
    for (QTreeWidgetItem *child : std::as_const(toExpand))
        child->setExpanded(true);
}

void SteadyTreeWidget::moveCurrentOut(QTreeWidgetItem *parent,
                                      const QSet<QTreeWidgetItem *> &doomed)
{
    QTreeWidgetItem *ancestor = currentItem();
    while (ancestor != nullptr && ancestor->parent() != parent)
        ancestor = ancestor->parent();
    if (!doomed.contains(ancestor))
        return;
    QTreeWidgetItem *next = parent;
    for (int i = parent->childCount() - 1; i >= 0 && next == parent; --i)
        if (!doomed.contains(parent->child(i)))
            next = parent->child(i);
    const bool scrollsByItself = hasAutoScroll();
    setAutoScroll(false);
    if (selectionMode() == SingleSelection)
        setCurrentItem(next, currentColumn());
    else
        setCurrentItem(next, currentColumn(), QItemSelectionModel::NoUpdate);
    setAutoScroll(scrollsByItself);
}

QString SteadyTreeWidget::shortened(const QString &text)
{
    constexpr qsizetype maximumCharacters = 1000;
    constexpr int maximumLines = 4;
    qsizetype end = 0;
    int lines = 1;
    while (end < qMin(text.size(), maximumCharacters)) {
        if (isLineBreak(text.at(end)) && ++lines > maximumLines)
            break;
        ++end;
    }
    if (end == text.size())
        return text;
    if (end > 0 && text.at(end - 1).isHighSurrogate())
        --end;
    return text.left(end) + QChar(0x2026);
}

void SteadyTreeWidget::dataChanged(const QModelIndex &topLeft,
                                   const QModelIndex &bottomRight,
                                   const QList<int> &roles)
{
    if (!canSkipLayout(topLeft, bottomRight)) {
        QTreeWidget::dataChanged(topLeft, bottomRight, roles);
    } else if (!repaintRequested) {
        viewport()->update();
        // A viewport that takes no requests now is painted as a whole once it does.
        repaintRequested = viewport()->isVisible() && viewport()->updatesEnabled();
    }
}

void SteadyTreeWidget::paintEvent(QPaintEvent *event)
{
    repaintRequested = false;
    QTreeWidget::paintEvent(event);
}

bool SteadyTreeWidget::canSkipLayout(const QModelIndex &topLeft, const QModelIndex &bottomRight)
{
    if (plainChange.item == nullptr || topLeft != bottomRight
        || topLeft.column() != plainChange.column || itemFromIndex(topLeft) != plainChange.item)
        return false;
    const QTreeWidgetItem *item = std::exchange(plainChange.item, nullptr);
    // A slot may have set another text already. A cell with a font of its own is not measured, and
    // editors and widgets of cells are children of the viewport that the base keeps up to date.
    return item->text(plainChange.column) == *plainChange.text
           && !item->data(plainChange.column, Qt::FontRole).isValid() && !wordWrap()
           && sizeAdjustPolicy() == AdjustIgnored && viewport()->children().isEmpty()
           && !QAccessible::isActive() && itemDelegateForIndex(topLeft) == ownDelegate;
}

bool SteadyTreeWidget::isPlain(const QString &text)
{
    if (plainCharacters == nullptr)
        plainCharacters = std::make_unique<PlainCharacters>();
    for (const QChar character : text)
        if (!plainCharacters->contains(character, *this))
            return false;
    return !text.isEmpty();
}

void SteadyTreeWidget::changeEvent(QEvent *event)
{
    plainCharacters.reset(); // fonts and styles among others
    QTreeWidget::changeEvent(event);
}

bool SteadyTreeWidget::event(QEvent *event)
{
    if (event->type() == QEvent::Polish || event->type() == QEvent::ScreenChangeInternal)
        plainCharacters.reset();
    return QTreeWidget::event(event);
}
