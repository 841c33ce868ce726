#include "senderspanel.h"

#include "messageinfo.h"
#include "reception.h"
#include "steadytreewidget.h"

#include <QHeaderView>
#include <QLabel>
#include <QSettings>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

QString columnsKey()
{
    return QStringLiteral("senders/headerstate");
}

} // namespace

/** A type that damaged frames claim to be of. Noise makes thousands, so it keeps little. */
class SendersPanel::ClaimedTypeItem final : public QTreeWidgetItem
{
public:
    ClaimedTypeItem(QTreeWidgetItem *parent, QString name)
        : name(std::move(name))
    {
        parent->addChild(this);
        QTreeWidgetItem::operator=(QTreeWidgetItem()); // gives back what the tree has reserved
    }

    void setCrcErrors(quint64 count)
    {
        if (crcErrors == count)
            return;
        crcErrors = count;
        const QModelIndex cell = treeWidget()->indexFromItem(this, CrcErrorsColumn);
        Q_EMIT treeWidget()->model()->dataChanged(cell, cell);
    }

    QVariant data(int column, int role) const override
    {
        if (role == Qt::DisplayRole && column == SenderColumn)
            return name;
        if (role == Qt::DisplayRole && column == CrcErrorsColumn)
            return crcErrors;
        if (role == Qt::TextAlignmentRole && column == CrcErrorsColumn)
            return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
        return QTreeWidgetItem::data(column, role);
    }

private:
    QString name; ///< Shared with the type.
    quint64 crcErrors = 0;
};

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
    const int ofNumber = fontMetrics().horizontalAdvance(QStringLiteral("0123456789"));
    for (int column = FramesColumn; column < ColumnCount; ++column) {
        tree->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
        tree->header()->resizeSection(column,
                                      std::max(ofNumber, tree->header()->sectionSizeHint(column)));
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
    connect(tree, &QTreeWidget::itemExpanded, this, &SendersPanel::refresh);
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
    if (!sender.crcErrorsByType.isEmpty())
        row.item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    if (row.item->isExpanded())
        refreshClaimedTypes(row, sender);
}

void SendersPanel::refreshClaimedTypes(Row &row, const SenderStatistics &sender)
{
    for (auto entry = sender.crcErrorsByType.begin(); entry != sender.crcErrorsByType.end();
         ++entry) {
        ClaimedTypeItem *&item = row.claimedTypes[entry.key()];
        if (item == nullptr)
            item = new ClaimedTypeItem(row.item, entry.key()->getName());
        item->setCrcErrors(entry.value());
    }
}

} // namespace corvane
