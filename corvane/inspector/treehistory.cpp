#include "treehistory.h"

#include "corvane.h"
#include "latestmessages.h"
#include "messagetreewidget.h"
#include "rowplace.h"
#include "singlevaluefieldtreewidgetitem.h"

#include <QAction>
#include <QApplication>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace corvane {

namespace {

constexpr auto kind = MessageTreeWidget::Custom1;
constexpr int widthInCharacters = 18;

} // namespace

TreeHistory::TreeHistory(MessageTreeWidget &tree, const LatestMessages &latest)
    : QStyledItemDelegate(&tree)
    , tree(tree)
    , latest(latest)
    , action(new QAction(tr("&History"), this))
{
    action->setCheckable(true);
    action->setToolTip(tr("A small line of the last 15 seconds of each numeric field"));
    connect(action, &QAction::triggered, this, &TreeHistory::setShown);
    for (const QAction *other : tree.getToggleColumnActions())
        connect(other, &QAction::triggered, this, &TreeHistory::followColumns);
    connect(Corvane::getInstance(), &Corvane::confidentialInformationDisplayChanged, this,
            [this] { lines.clear(); });
    connect(&latest, &LatestMessages::senderChanged, this, [this] { lines.clear(); });
    connect(&timer, &QTimer::timeout, this, &TreeHistory::takeValues);
}

void TreeHistory::setShown(bool shown)
{
    const int width = tree.fontMetrics().averageCharWidth() * widthInCharacters;
    if (shown) {
        // The last column takes all room that is left; it gives up some of it.
        const int last = tree.columnCount() - 1;
        const int widthOfLast = std::max(tree.columnWidth(last) - width, width);
        tree.addColumn(kind, false); // rows stay, since none of their texts is shown here
        tree.setColumnWidth(last, widthOfLast);
    } else {
        auto columns = tree.getColumns();
        columns.removeAll(kind);
        tree.setColumns(columns);
    }
    followColumns();
}

void TreeHistory::followColumns()
{
    if (column >= 0)
        tree.setItemDelegateForColumn(column, nullptr);
    lines.clear();
    column = tree.getColumnIndex(kind);
    action->setChecked(column >= 0);
    if (column < 0) {
        timer.stop();
        return;
    }
    tree.headerItem()->setText(column, tr("History"));
    tree.setItemDelegateForColumn(column, this);
    timer.start(intervalMs);
}

void TreeHistory::takeValues()
{
    if (latest.isPaused() || !tree.isVisible())
        return;
    QHash<const QTreeWidgetItem *, Line> visible;
    const int bottom = tree.viewport()->height();
    for (QModelIndex index = tree.indexAt(QPoint(0, 0));
         index.isValid() && tree.visualRect(index).top() < bottom; index = tree.indexBelow(index))
    {
        const auto *item = tree.itemFromIndex(index);
        const auto *row = dynamic_cast<const SingleValueFieldTreeWidgetItem *>(item);
        if (row == nullptr || !isNumeric(row->getFieldInfo()))
            continue;
        Line line = lines.take(item);
        if (std::exchange(line.field, row->getFieldInfo()) != row->getFieldInfo())
            line.values.clear();
        line.values.push_back(
            row->getFieldValue().toDouble().value_or(std::numeric_limits<double>::quiet_NaN()));
        if (line.values.size() > sampleCount)
            line.values.pop_front();
        visible.insert(item, std::move(line));
    }
    lines = std::move(visible);
    tree.viewport()->update(tree.columnViewportPosition(column), 0, tree.columnWidth(column),
                            bottom);
}

void TreeHistory::paint(QPainter *painter,
                        const QStyleOptionViewItem &option,
                        const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cell.text.clear();
    const QStyle *style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    const auto line = lines.constFind(tree.itemFromIndex(index));
    if (line == lines.constEnd())
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const bool selected = cell.state.testFlag(QStyle::State_Selected);
    painter->setPen(
        QPen(cell.palette.color(selected ? QPalette::HighlightedText : QPalette::Highlight), 1));
    paintLine(painter, QRectF(cell.rect).adjusted(2, 2, -2, -2), *line);
    painter->restore();
}

/** The newest value is at the right edge; a constant value runs through the middle. */
void TreeHistory::paintLine(QPainter *painter, const QRectF &area, const Line &line) const
{
    double smallest = std::numeric_limits<double>::infinity();
    double largest = -smallest;
    for (const double value : line.values) {
        if (!std::isfinite(value))
            continue;
        smallest = std::min(smallest, value);
        largest = std::max(largest, value);
    }
    const double size = largest - smallest;
    const double step = area.width() / static_cast<double>(sampleCount - 1);
    double x = area.right() - static_cast<double>(line.values.size() - 1) * step;
    QPolygonF points;
    for (const double value : line.values) {
        if (std::isfinite(value)) {
            const double part = size > 0 ? (value - smallest) / size : 0.5;
            points.append({x, area.bottom() - part * area.height()});
        } else {
            painter->drawPolyline(points);
            points.clear();
        }
        x += step;
    }
    painter->drawPolyline(points);
}

} // namespace corvane
