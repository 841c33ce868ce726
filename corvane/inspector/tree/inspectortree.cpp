#include "inspectortree.h"

#include "descriptions.h"
#include "emptyhint.h"
#include "expansion.h"
#include "plainmarkup.h"
#include "rowdescription.h"
#include "rowplace.h"
#include "singlevaluefieldtreewidgetitem.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QToolTip>

namespace corvane {

namespace {

constexpr int quietAlpha = 150; // of 255

void setRowsExpanded(QTreeWidgetItem *row, bool expanded)
{
    if (row->childCount() > 0)
        SteadyTreeWidget::setItemExpanded(row, expanded);
    for (int i = 0; i < row->childCount(); ++i)
        setRowsExpanded(row->child(i), expanded);
}

QString hexadecimalOf(const FieldInfo *field, const FieldValue &value)
{
    const qint32 code = field->getType().getCode();
    const bool isInteger = code == FieldType::SignedInteger || code == FieldType::UnsignedInteger;
    // A hidden value has no integer.
    if (!isInteger || !value.toInteger())
        return {};
    return value.toString(false, -1, FieldValue::HexadecimalRepresentation, false);
}

} // namespace

InspectorTree::InspectorTree(QWidget *parent)
    : MessageTreeWidget(parent)
{
    setAlternatingRowColors(true);
    setVerticalScrollMode(ScrollPerItem);
}

void InspectorTree::setUnitsShown(bool shown)
{
    unitsShown = shown;
    viewport()->update();
}

void InspectorTree::setHexadecimalShown(bool shown)
{
    hexadecimalShown = shown;
    viewport()->update();
}

void InspectorTree::setEmptyText(const QString &text)
{
    emptyText = text;
    setAccessibleDescription(text);
    viewport()->update();
}

QString InspectorTree::getAnnotation(const QTreeWidgetItem *row) const
{
    const auto *valueRow = dynamic_cast<const SingleValueFieldTreeWidgetItem *>(row);
    if (valueRow == nullptr || valueRow->getFieldInfo() == nullptr
        || !valueRow->getFieldValue().isValid())
        return {};
    const FieldInfo *field = valueRow->getFieldInfo();
    QStringList parts;
    // What has a name instead of a number has no unit either.
    if (unitsShown && isNumeric(field))
        parts += field->getData()->unit;
    if (hexadecimalShown)
        parts += hexadecimalOf(field, valueRow->getFieldValue());
    parts.removeAll(QString());
    return parts.join(QStringLiteral("  "));
}

void InspectorTree::goTo(QTreeWidgetItem *row)
{
    const bool wasInSight = isInSight(row);
    // The view asks where the old and the new row are, to paint these alone. It would measure all
    // rows between them; this way it only counts them, and is painted as a whole.
    const bool scrollsByItself = hasAutoScroll();
    setAutoScroll(false);
    setUniformRowHeights(true);
    setCurrentItem(row);
    setUniformRowHeights(false);
    setAutoScroll(scrollsByItself);
    viewport()->update();
    scrollToItem(row, wasInSight ? EnsureVisible : PositionAtCenter);
}

bool InspectorTree::isInSight(const QTreeWidgetItem *row) const
{
    const int bottom = viewport()->height();
    for (const QTreeWidgetItem *seen = itemAt(0, 0);
         seen != nullptr && visualItemRect(seen).bottom() <= bottom; seen = itemBelow(seen))
        if (seen == row)
            return true;
    return false;
}

void InspectorTree::setExpandedBelow(QTreeWidgetItem *row, bool expanded)
{
    scheduleDelayedItemsLayout(); // with a layout pending, no row does its own
    {
        const QSignalBlocker blocker(this);
        setRowsExpanded(row, expanded);
    }
    rememberExpansionBelow(row, expanded);
    Q_EMIT manyExpanded();
}

void InspectorTree::setAllExpanded(bool expanded)
{
    if (expanded)
        expandAll();
    else
        collapseAll();
    for (int i = 0; i < topLevelItemCount(); ++i)
        rememberExpansionBelow(topLevelItem(i), expanded);
    Q_EMIT manyExpanded();
}

void InspectorTree::contextMenuEvent(QContextMenuEvent *event)
{
    QTreeWidgetItem *row = currentItem();
    if (event->reason() == QContextMenuEvent::Keyboard && row != nullptr) {
        goTo(row);
        const QRect area = visualItemRect(row).intersected(viewport()->rect());
        Q_EMIT menuRequested(viewport()->mapToGlobal(area.center()));
    } else {
        Q_EMIT menuRequested(event->globalPos());
    }
    event->accept();
}

void InspectorTree::paintEvent(QPaintEvent *event)
{
    MessageTreeWidget::paintEvent(event);
    if (topLevelItemCount() == 0)
        paintEmptyHint(*this, emptyText);
}

bool InspectorTree::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        if (showToolTip(help->pos(), help->globalPos()))
            return true;
    }
    return MessageTreeWidget::viewportEvent(event);
}

bool InspectorTree::showToolTip(const QPoint &position, const QPoint &globalPosition)
{
    QTreeWidgetItem *row = itemAt(position);
    const QStringList sentences = describeRow(row);
    if (sentences.isEmpty())
        return false;
    // Belonging to the viewport, it would keep the base from skipping layouts.
    QToolTip::showText(globalPosition, plainMarkup(sentences.join(QLatin1Char('\n'))), this);
    return true;
}

void InspectorTree::drawRow(QPainter *painter,
                            const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    MessageTreeWidget::drawRow(painter, option, index);
    const int column = static_cast<int>(getColumns().indexOf(Value));
    const QTreeWidgetItem *row = itemFromIndex(index);
    if (column < 0 || isColumnHidden(column))
        return;
    const QString annotation = getAnnotation(row);
    if (annotation.isEmpty())
        return;
    QRect area = visualRect(index.siblingAtColumn(column));
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    const int taken = margin + fontMetrics().horizontalAdvance(shortened(row->text(column)))
                      + fontMetrics().averageCharWidth();
    if (layoutDirection() == Qt::RightToLeft)
        area.adjust(margin, 0, -taken, 0);
    else
        area.adjust(taken, 0, -margin, 0);
    if (area.width() < fontMetrics().averageCharWidth() * 2)
        return;
    const bool isSelected = selectionModel()->isSelected(index);
    QColor color = option.palette.color(isActiveWindow() ? QPalette::Active : QPalette::Inactive,
                                        isSelected ? QPalette::HighlightedText : QPalette::Text);
    color.setAlpha(quietAlpha);
    painter->save();
    painter->setPen(color);
    painter->drawText(area,
                      static_cast<int>(QStyle::visualAlignment(layoutDirection(),
                                                               {Qt::AlignVCenter | Qt::AlignLeft})),
                      fontMetrics().elidedText(annotation, Qt::ElideRight, area.width()));
    painter->restore();
}

} // namespace corvane
