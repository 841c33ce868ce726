#include "senderspanel.h"

#include "messageinfo.h"
#include "reception.h"
#include "steadytreewidget.h"

#include <QHeaderView>
#include <QLabel>
#include <QSettings>
#include <QVBoxLayout>

namespace corvane {

namespace {

QString columnsKey()
{
    return QStringLiteral("senders/headerstate");
}

} // namespace

SendersPanel::SendersPanel(const Reception &reception, QWidget *parent)
    : QWidget(parent)
    , reception(reception)
    , hint(new QLabel(tr("Here stands each sender with what it has sent and what was lost, once "
                         "messages with sequence numbers come."),
                      this))
    , tree(new SteadyTreeWidget(this))
{
    hint->setWordWrap(true);
    hint->setMargin(fontMetrics().height() / 2);
    tree->setAccessibleName(tr("Senders"));
    tree->setUniformRowHeights(true);
    tree->setMinimumHeight(fontMetrics().height() * 3);
    tree->setHeaderLabels(
        {tr("Sender"), tr("Frames"), tr("Places with losses"), tr("Lost"), tr("CRC errors")});
    tree->headerItem()->setToolTip(SenderColumn,
                                   tr("Below a sender: the message types that its damaged frames "
                                      "claim to be of"));
    tree->headerItem()->setToolTip(LostColumn, tr("Messages missing by their sequence numbers"));
    tree->header()->setStretchLastSection(false);
    tree->header()->setSectionResizeMode(SenderColumn, QHeaderView::Stretch);
    for (int column = FramesColumn; column < ColumnCount; ++column) {
        tree->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
        tree->header()->resizeSection(column, tree->header()->sectionSizeHint(column));
    }
    tree->setSortingEnabled(true);
    tree->sortByColumn(SenderColumn, Qt::AscendingOrder);
    hideErrorsWithoutChecksum();
    tree->setToolTip(tr("Enter or a double click shows the messages of one sender only"));
    connect(tree, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem *item) {
        while (item->parent() != nullptr)
            item = item->parent();
        Q_EMIT senderChosen(item->data(SenderColumn, Qt::UserRole).toUInt());
    });
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(hint);
    layout->addWidget(tree, 1);
}

/** There are no errors to be found then, which is not the same as none found. */
void SendersPanel::hideErrorsWithoutChecksum()
{
    tree->setColumnHidden(CrcErrorsColumn, !reception.getTotals().crcErrors.has_value());
}

void SendersPanel::saveSettings(QSettings &settings) const
{
    settings.setValue(columnsKey(), tree->header()->saveState());
}

void SendersPanel::restoreSettings(const QSettings &settings)
{
    tree->header()->restoreState(settings.value(columnsKey()).toByteArray());
    hideErrorsWithoutChecksum(); // the last source may have been of another format
}

void SendersPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

void SendersPanel::refresh()
{
    if (!isVisible())
        return;
    for (const auto &sender : reception.getSenders().getAll())
        refreshRow(*sender);
    hint->setVisible(rows.isEmpty());
}

void SendersPanel::refreshRow(const SenderStatistics &sender)
{
    Row &row = rows[&sender];
    if (row.item == nullptr) {
        row.item = new QTreeWidgetItem(tree, {sender.id});
        row.item->setData(SenderColumn, Qt::UserRole, sender.number);
        for (int column = FramesColumn; column < ColumnCount; ++column)
            row.item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
    SteadyTreeWidget::setItemNumber(row.item, FramesColumn, sender.frames);
    SteadyTreeWidget::setItemNumber(row.item, GapsColumn, sender.sequenceGaps);
    SteadyTreeWidget::setItemNumber(row.item, LostColumn, sender.lost);
    SteadyTreeWidget::setItemNumber(row.item, CrcErrorsColumn, sender.crcErrors);
    for (auto entry = sender.crcErrorsByType.begin(); entry != sender.crcErrorsByType.end();
         ++entry) {
        QTreeWidgetItem *&item = row.claimedTypes[entry.key()];
        if (item == nullptr) {
            item = new QTreeWidgetItem(row.item, {entry.key()->getName()});
            item->setTextAlignment(CrcErrorsColumn, Qt::AlignRight | Qt::AlignVCenter);
        }
        SteadyTreeWidget::setItemNumber(item, CrcErrorsColumn, entry.value());
    }
}

} // namespace corvane
