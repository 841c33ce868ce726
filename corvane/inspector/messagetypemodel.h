#pragma once

#include <QAbstractTableModel>
#include <QList>

class MessageStatistics;
class MessageStatisticsCoordinator;

namespace corvane {

/** The message types of a stream that have been seen so far, with their counts. */
class MessageTypeModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        NameColumn,
        CountColumn,
        ColumnCount
    };

    /** Sorts numbers as numbers. */
    static constexpr int sortRole = Qt::UserRole;

    /** \a statistics is not owned and must outlive the model. */
    explicit MessageTypeModel(const MessageStatisticsCoordinator &statistics,
                              QObject *parent = nullptr);

    /** Null for an invalid index. */
    const MessageStatistics *getStatistics(const QModelIndex &index) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

public Q_SLOTS:
    /** Takes over new types and new counts. */
    void refresh();

private:
    const MessageStatisticsCoordinator &statistics;
    QList<MessageStatistics *> rows; ///< Not owned.
    QList<unsigned int> shownCounts;
};

} // namespace corvane
