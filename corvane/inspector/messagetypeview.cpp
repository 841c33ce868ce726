#include "messagetypeview.h"

#include "messagestatistics.h"
#include "messagetypemodel.h"

#include <QHeaderView>
#include <QSettings>
#include <QSortFilterProxyModel>

namespace corvane {

namespace {

QString columnsKey()
{
    return QStringLiteral("window/types");
}

} // namespace

MessageTypeView::MessageTypeView(const MessageStatisticsCoordinator &statistics, QWidget *parent)
    : QTreeView(parent)
    , types(new MessageTypeModel(statistics, this))
    , sorted(new QSortFilterProxyModel(this))
{
    setObjectName(QStringLiteral("typeView"));
    sorted->setSourceModel(types);
    sorted->setSortRole(MessageTypeModel::sortRole);
    sorted->setSortCaseSensitivity(Qt::CaseInsensitive);
    setModel(sorted);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setMinimumSize(fontMetrics().averageCharWidth() * 28, fontMetrics().height() * 3);
    setSortingEnabled(true);
    sortByColumn(MessageTypeModel::NameColumn, Qt::AscendingOrder);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(MessageTypeModel::NameColumn, QHeaderView::Stretch);
    header()->resizeSection(MessageTypeModel::CountColumn, fontMetrics().averageCharWidth() * 14);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &MessageTypeView::chosen);
}

void MessageTypeView::refresh()
{
    types->refresh();
}

bool MessageTypeView::isEmpty() const
{
    return types->rowCount() == 0;
}

const MessageStatistics *MessageTypeView::getChosen() const
{
    return types->getStatistics(sorted->mapToSource(currentIndex()));
}

void MessageTypeView::choose(const MessageInfo *type)
{
    for (int row = 0; row < sorted->rowCount(); ++row) {
        const QModelIndex index = sorted->index(row, MessageTypeModel::NameColumn);
        if (types->getStatistics(sorted->mapToSource(index))->getMessageInfo() == type)
            setCurrentIndex(index);
    }
}

void MessageTypeView::chooseFirst()
{
    if (!currentIndex().isValid())
        setCurrentIndex(sorted->index(0, MessageTypeModel::NameColumn));
}

void MessageTypeView::saveSettings(QSettings &settings) const
{
    settings.setValue(columnsKey(), header()->saveState());
}

void MessageTypeView::restoreSettings(const QSettings &settings)
{
    header()->restoreState(settings.value(columnsKey()).toByteArray());
}

} // namespace corvane
