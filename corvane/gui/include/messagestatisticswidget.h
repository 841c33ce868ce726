#pragma once

#include "corvanegui_export.h"
#include "steadytreewidget.h"

#include <QHash>

class FormatInfo;
class MessageStatistics;
class MessageStatisticsCoordinator;
class MessageStatisticsTreeWidgetItem;
class QSettings;

/**
 * The reception statistics of every message type of a coordinator, sortable: a row for each format,
 * below it one for each message type, and a row of CRC errors once there are any.
 *
 * The owner calls updateTree() as often as the view shall follow.
 */
class CORVANEGUI_EXPORT MessageStatisticsWidget : public SteadyTreeWidget
{
    Q_OBJECT

public:
    /** \a coordinator: not owned, must outlive the widget; with null there is nothing to show. */
    explicit MessageStatisticsWidget(MessageStatisticsCoordinator *coordinator,
                                     QWidget *parent = nullptr);
    ~MessageStatisticsWidget() override;

    /** updateTree() shows and hides the column by itself. */
    void setGapsColumnVisible(bool visible);
    /** Restores header and sorting from plain keys of the current group. */
    void readSettings(QSettings &settings);
    /** Saves header and sorting under plain keys of the current group. */
    void writeSettings(QSettings &settings);

public Q_SLOTS:
    /** Brings the rows up to date with what the coordinator has now. */
    void updateTree();
    void processItemExpanded(QTreeWidgetItem *item);

private:
    void setupColumns();
    QList<MessageStatistics *> getAllMessageStatistics() const;
    void deleteStaleItems();
    void deleteEmptyFormatItems();
    MessageStatisticsTreeWidgetItem *getAndUpdateItemFor(MessageStatistics *statistics);
    QTreeWidgetItem *getFormatItem(const FormatInfo *format);
    void updateCrcErrorsItem();

    MessageStatisticsCoordinator *coordinator; ///< Not owned.
    // The rows are the tree's; these find them.
    QHash<MessageStatistics *, MessageStatisticsTreeWidgetItem *> statisticsItems;
    QHash<const FormatInfo *, QTreeWidgetItem *> formatItems;
    QTreeWidgetItem *crcErrorsItem = nullptr; ///< Null while there are no CRC errors.
};
