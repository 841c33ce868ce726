#include "messagetypemodel.h"

#include "formatinfo.h"
#include "messageinfo.h"
#include "messagestatistics.h"
#include "messagestatisticscoordinator.h"

namespace corvane {

MessageTypeModel::MessageTypeModel(const MessageStatisticsCoordinator &statistics, QObject *parent)
    : QAbstractTableModel(parent)
    , statistics(statistics)
{
    refresh();
}

const MessageStatistics *MessageTypeModel::getStatistics(const QModelIndex &index) const
{
    return index.isValid() ? rows.at(index.row()) : nullptr;
}

int MessageTypeModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int MessageTypeModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant MessageTypeModel::data(const QModelIndex &index, int role) const
{
    const MessageStatistics *type = getStatistics(index);
    if (type == nullptr)
        return {};
    const bool isName = index.column() == NameColumn;
    switch (role) {
    case Qt::DisplayRole:
        return isName ? QVariant(type->getMessageName())
                      : QVariant(QString::number(shownCounts.at(index.row())));
    case sortRole:
        return isName ? QVariant(type->getMessageName()) : QVariant(shownCounts.at(index.row()));
    case Qt::TextAlignmentRole:
        return isName ? QVariant() : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::ToolTipRole:
        return type->getMessageInfo() != nullptr
                   ? QVariant(type->getMessageInfo()->getShortDescriptiveText())
                   : QVariant(tr("No definition describes this message."));
    default:
        return {};
    }
}

QVariant MessageTypeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return section == NameColumn ? tr("Message") : tr("Count");
    if (role == Qt::TextAlignmentRole && section == CountColumn)
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

void MessageTypeModel::refresh()
{
    const auto all = statistics.getAllMessageStatistics();
    if (all.size() > rows.size()) {
        beginInsertRows({}, static_cast<int>(rows.size()), static_cast<int>(all.size()) - 1);
        while (rows.size() < all.size()) {
            rows.append(all.at(rows.size()));
            shownCounts.append(rows.constLast()->getCount());
        }
        endInsertRows();
    }
    for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
        const unsigned int count = rows.at(row)->getCount();
        if (count == shownCounts.at(row))
            continue;
        shownCounts[row] = count;
        const QModelIndex cell = createIndex(row, CountColumn);
        Q_EMIT dataChanged(cell, cell, {Qt::DisplayRole, sortRole});
    }
}

} // namespace corvane
