#include "plotlegend.h"

#include <QAction>
#include <QHeaderView>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QStyledItemDelegate>
#include <QToolButton>

namespace corvane {

namespace {

/** Of a path that is too long, the end tells most. */
class PathDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideLeft;
    }
};

} // namespace

PlotLegend::PlotLegend(const PlotSeriesList &series, QWidget *parent)
    : QTableWidget(0, ColumnCount, parent)
    , series(series)
{
    setAccessibleName(tr("Plotted series"));
    setHorizontalHeaderLabels(
        {tr("Series"), tr("Value"), tr("At cursor"), tr("Unit"), tr("Axis"), tr("State"), {}});
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setItemDelegateForColumn(NameColumn, new PathDelegate(this));
    setShowGrid(false);
    setWordWrap(false); // or a number would be cut at its decimal point
    setMinimumHeight(fontMetrics().height() * 4);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    const int digit = fontMetrics().averageCharWidth();
    const int widths[] = {digit * 26, digit * 17, digit * 17, digit * 7, digit * 7};
    for (int column = NameColumn; column < StateColumn; ++column)
        setColumnWidth(column, widths[column]);
    horizontalHeader()->setSectionResizeMode(StateColumn, QHeaderView::Stretch);
    horizontalHeader()->setMinimumSectionSize(digit * 5);
    horizontalHeader()->setSectionResizeMode(RemoveColumn, QHeaderView::ResizeToContents);
    horizontalHeaderItem(CursorColumn)->setToolTip(tr("The newest value at the cursor's time"));
    setContextMenuPolicy(Qt::ActionsContextMenu);
    addAction(tr("Remove"), QKeySequence::Delete, &PlotLegend::removeRequested);
    addAction(tr("Draw at the Other Axis"), tr("Ctrl+T"), &PlotLegend::otherSideRequested);
}

void PlotLegend::addAction(const QString &text,
                           const QKeySequence &key,
                           void (PlotLegend::*signal)(int))
{
    auto *action = new QAction(text, this);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, [this, signal] {
        if (currentRow() >= 0)
            Q_EMIT(this->*signal)(currentRow());
    });
    QTableWidget::addAction(action);
}

void PlotLegend::rebuild()
{
    setRowCount(0);
    setRowCount(static_cast<int>(series.size()));
    for (int row = 0; row < rowCount(); ++row)
        createRow(row);
    refresh({});
}

void PlotLegend::createRow(int row)
{
    const PlotSeries &one = *series[static_cast<size_t>(row)];
    for (int column = 0; column < RemoveColumn; ++column)
        setItem(row, column, new QTableWidgetItem);
    item(row, NameColumn)->setIcon(iconOf(one));
    item(row, NameColumn)->setToolTip(one.getPath());
    item(row, NameColumn)->setData(Qt::AccessibleTextRole, one.getPath());
    for (const Column column : {ValueColumn, CursorColumn})
        item(row, column)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto *remove = new QToolButton;
    remove->setAutoRaise(true);
    remove->setFocusPolicy(Qt::StrongFocus);
    remove->setText(QStringLiteral("\u2715"));
    remove->setToolTip(tr("Remove %1").arg(one.getPath()));
    remove->setAccessibleName(remove->toolTip());
    const auto removeRow = [this, remove] { Q_EMIT removeRequested(indexAt(remove->pos()).row()); };
    // Queued, since the row and its button go.
    connect(remove, &QToolButton::clicked, this, removeRow, Qt::QueuedConnection);
    setCellWidget(row, RemoveColumn, remove);
}

void PlotLegend::refresh(std::optional<qint64> cursorUs)
{
    for (int row = 0; row < rowCount(); ++row) {
        const PlotSeries &one = *series[static_cast<size_t>(row)];
        setCellText(row, NameColumn, one.getName());
        setCellText(row, ValueColumn, one.getLastValueText());
        setCellText(row, CursorColumn, cursorUs ? one.getValueText(*cursorUs) : QString());
        setCellText(row, UnitColumn, one.getUnit());
        setCellText(row, AxisColumn,
                    one.getSide() == PlotSeries::Side::Left ? tr("Left") : tr("Right"));
        setCellText(row, StateColumn, one.getStateText());
    }
}

void PlotLegend::setCellText(int row, Column column, const QString &text)
{
    if (QTableWidgetItem *cell = item(row, column); cell->text() != text)
        cell->setText(text);
}

/** A piece of the line. */
QIcon PlotLegend::iconOf(const PlotSeries &one) const
{
    QPixmap pixmap(iconSize().isValid() ? iconSize() : QSize(16, 16));
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QPen pen = one.getPen();
    pen.setWidth(3);
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    painter.drawLine(0, pixmap.height() / 2, pixmap.width(), pixmap.height() / 2);
    return pixmap;
}

} // namespace corvane
