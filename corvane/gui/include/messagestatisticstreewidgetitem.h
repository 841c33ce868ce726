#pragma once

#include "corvanegui_export.h"
#include "messagestatistics.h"

#include <QHash>
#include <QList>
#include <QTreeWidgetItem>

/**
 * The row of one message type in a MessageStatisticsWidget: its count, its rate while it is regular
 * and its gaps; below it how often each interval occurred, and each gap.
 */
class CORVANEGUI_EXPORT MessageStatisticsTreeWidgetItem : public QTreeWidgetItem
{
public:
    /** \a statistics: not owned; must be alive whenever the contents are updated. */
    explicit MessageStatisticsTreeWidgetItem(MessageStatistics *statistics);
    ~MessageStatisticsTreeWidgetItem() override;
    MessageStatisticsTreeWidgetItem(const MessageStatisticsTreeWidgetItem &) = delete;
    MessageStatisticsTreeWidgetItem &operator=(const MessageStatisticsTreeWidgetItem &) = delete;

    MessageStatistics *getMessageStatistics();
    /** Brings the row and the rows below it up to date. */
    void updateContents();
    /** Expands the row and its intervals. */
    void fullExpand();

private:
    void updateIntervalSubItems();
    void updateCountItem(QTreeWidgetItem *&item,
                         unsigned int count,
                         const QString &title,
                         const QString &toolTip);
    QTreeWidgetItem *getIntervalItem(long long interval);
    void updateGapSubItems();
    void writeGap(QTreeWidgetItem *item, const MessageStatistics::Gap &gap);

    MessageStatistics *statistics; ///< Not owned.
    // These and the rows found by them are rows below this one, owned as such.
    QTreeWidgetItem *intervalsItem;
    QHash<long long, QTreeWidgetItem *> intervalItems;
    QTreeWidgetItem *noTimeItem = nullptr; ///< Null while each message has a time.
    QTreeWidgetItem *unknownIntervalItem = nullptr; ///< Null while each interval is known.
    QList<MessageStatistics::Gap> shownGaps; ///< What the rows of the gaps show.
    QTreeWidgetItem *gapsItem = nullptr; ///< Null while there are no gaps.
};
