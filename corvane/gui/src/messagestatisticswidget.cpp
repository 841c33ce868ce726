#include "messagestatisticswidget.h"

#include "formatinfo.h"
#include "memleaktracer.h"
#include "messagestatistics.h"
#include "messagestatisticscoordinator.h"
#include "messagestatisticstreewidgetitem.h"
#include "translations.h"

#include <QHeaderView>
#include <QSettings>

namespace {

enum Column {
    MessageColumn,
    CountColumn,
    RateColumn,
    GapsColumn,
    ColumnCount
};

constexpr int messageColumnWidth = 150;

QString headerStateKey()
{
    return QStringLiteral("headerstate");
}

QString sortColumnKey()
{
    return QStringLiteral("sortColumn");
}

QString sortOrderKey()
{
    return QStringLiteral("sortOrder");
}

} // namespace

MessageStatisticsWidget::MessageStatisticsWidget(MessageStatisticsCoordinator *coordinator,
                                                 QWidget *parent)
    : SteadyTreeWidget(parent)
    , coordinator(coordinator)
{
    corvane::installTranslations();
    MemLeakTracer::getInstance()->doAllocateObject(QStringLiteral("MessageStatisticsWidget"));
    setSortingEnabled(true);
    setIndentation(10);
    setupColumns();
    setColumnWidth(MessageColumn, messageColumnWidth);
    connect(this, SIGNAL(itemExpanded(QTreeWidgetItem *)),
            SLOT(processItemExpanded(QTreeWidgetItem *)));
}

MessageStatisticsWidget::~MessageStatisticsWidget()
{
    MemLeakTracer::getInstance()->doDeallocateObject(QStringLiteral("MessageStatisticsWidget"));
}

void MessageStatisticsWidget::setupColumns()
{
    setHeaderLabels({tr("Message"), tr("Count"), tr("Current rate/interval"), tr("Gaps")});
    setColumnCount(ColumnCount);
    setGapsColumnVisible(false);
    sortByColumn(MessageColumn, Qt::AscendingOrder);
}

void MessageStatisticsWidget::setGapsColumnVisible(bool visible)
{
    if (isColumnHidden(GapsColumn) != visible)
        return;
    setColumnHidden(GapsColumn, !visible);
    resizeColumnToContents(RateColumn);
}

QList<MessageStatistics *> MessageStatisticsWidget::getAllMessageStatistics() const
{
    return coordinator != nullptr ? coordinator->getAllMessageStatistics()
                                  : QList<MessageStatistics *>();
}

void MessageStatisticsWidget::updateTree()
{
    deleteStaleItems();
    deleteEmptyFormatItems();
    bool hasGaps = false;
    const auto all = getAllMessageStatistics();
    for (MessageStatistics *statistics : all) {
        getAndUpdateItemFor(statistics);
        hasGaps = hasGaps || !statistics->getGaps().isEmpty();
    }
    setGapsColumnVisible(hasGaps);
    updateCrcErrorsItem();
}

void MessageStatisticsWidget::deleteStaleItems()
{
    const auto known = statisticsItems.keys();
    for (MessageStatistics *statistics : known) {
        MessageStatisticsTreeWidgetItem *item = statisticsItems.value(statistics);
        if (getAllMessageStatistics().contains(statistics)
            && item->getMessageStatistics() == statistics)
            continue;
        delete item;
        statisticsItems.remove(statistics);
    }
}

void MessageStatisticsWidget::deleteEmptyFormatItems()
{
    const auto formats = formatItems.keys();
    for (const FormatInfo *format : formats) {
        if (formatItems.value(format)->childCount() == 0)
            delete formatItems.take(format);
    }
}

MessageStatisticsTreeWidgetItem *
MessageStatisticsWidget::getAndUpdateItemFor(MessageStatistics *statistics)
{
    MessageStatisticsTreeWidgetItem *&item = statisticsItems[statistics];
    if (item != nullptr) {
        item->updateContents();
    } else {
        item = new MessageStatisticsTreeWidgetItem(statistics);
        getFormatItem(statistics->getFormatInfo())->addChild(item);
    }
    return item;
}

QTreeWidgetItem *MessageStatisticsWidget::getFormatItem(const FormatInfo *format)
{
    QTreeWidgetItem *&item = formatItems[format];
    if (item == nullptr) {
        const QString name = format->getName();
        item = new QTreeWidgetItem;
        item->setText(MessageColumn, name);
        item->setToolTip(MessageColumn,
                         tr("Message statistics for the messages\nin the %1 format.").arg(name));
        addTopLevelItem(item);
        expandItem(item);
    }
    return item;
}

void MessageStatisticsWidget::updateCrcErrorsItem()
{
    const unsigned int count
        = coordinator != nullptr ? coordinator->getEventCount(CorvaneEvent::CrcError) : 0;
    if (count == 0) {
        delete crcErrorsItem;
        crcErrorsItem = nullptr;
        return;
    }
    if (crcErrorsItem == nullptr) {
        crcErrorsItem = new QTreeWidgetItem;
        crcErrorsItem->setText(MessageColumn, tr("CRC Errors"));
        insertTopLevelItem(0, crcErrorsItem);
    }
    setItemText(crcErrorsItem, CountColumn, QString::number(count));
}

void MessageStatisticsWidget::processItemExpanded(QTreeWidgetItem *item)
{
    if (!item->isExpanded())
        return;
    if (auto *messageItem = dynamic_cast<MessageStatisticsTreeWidgetItem *>(item))
        messageItem->fullExpand();
}

void MessageStatisticsWidget::readSettings(QSettings &settings)
{
    const QByteArray headerState = settings.value(headerStateKey()).toByteArray();
    if (headerState.isEmpty())
        setColumnWidth(MessageColumn, messageColumnWidth);
    else
        header()->restoreState(headerState);
    setSortingEnabled(true);
    const int sortColumn = settings.value(sortColumnKey(), 0).toInt();
    const int sortOrder = settings.value(sortOrderKey(), 0).toInt();
    sortByColumn(sortColumn, static_cast<Qt::SortOrder>(sortOrder));
}

void MessageStatisticsWidget::writeSettings(QSettings &settings)
{
    settings.setValue(headerStateKey(), header()->saveState());
    settings.setValue(sortColumnKey(), header()->sortIndicatorSection());
    settings.setValue(sortOrderKey(), static_cast<int>(header()->sortIndicatorOrder()));
}
