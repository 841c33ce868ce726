#pragma once

#include <QHash>
#include <QStyledItemDelegate>
#include <QTimer>

#include <deque>

class FieldInfo;
class MessageTreeWidget;
class QAction;
class QTreeWidgetItem;

namespace corvane {

class LatestMessages;

/**
 * A column of the message tree with a small line for each numeric field: its last 15 seconds.
 *
 * The column is a custom one of the tree, painted by this delegate, so the other columns keep the
 * tree's own and what makes it fast. Values are taken from the rows that can be seen, 20 times a
 * second; a row that goes out of sight starts anew.
 */
class TreeHistory : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int intervalMs = 50;
    static constexpr size_t sampleCount = 15'000 / intervalMs;

    /** Neither is owned; both must outlive the object, which is a child of \a tree. */
    TreeHistory(MessageTreeWidget &tree, const LatestMessages &latest);

    /** Shows and hides the column. Owned. */
    QAction *getAction() const { return action; }

    /** To be called after the tree's columns changed otherwise. */
    void followColumns();

    void paint(QPainter *painter,
               const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    struct Line
    {
        const FieldInfo *field = nullptr; ///< Not owned. A row may be another one later.
        std::deque<double> values; ///< Not a number where there was none.
    };

    void setShown(bool shown);
    void takeValues();
    void paintLine(QPainter *painter, const QRectF &area, const Line &line) const;

    MessageTreeWidget &tree;
    const LatestMessages &latest;
    QAction *action; ///< Owned as a child.
    QHash<const QTreeWidgetItem *, Line> lines; ///< Of the rows that were visible the last time.
    int column = -1;
    QTimer timer;
};

} // namespace corvane
