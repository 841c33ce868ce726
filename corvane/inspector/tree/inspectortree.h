#pragma once

#include "messagetreewidget.h"

namespace corvane {

/**
 * The message tree as the inspector shows it: with units and hexadecimal digits in a quieter shade
 * beside numbers, with words where it is empty, and with a description of the row under the
 * pointer. All of this is painted or asked for when needed, so rows cost what they always do.
 */
class InspectorTree : public MessageTreeWidget
{
    Q_OBJECT

public:
    explicit InspectorTree(QWidget *parent = nullptr);

    void setUnitsShown(bool shown);
    void setHexadecimalShown(bool shown);

    bool areUnitsShown() const { return unitsShown; }

    bool isHexadecimalShown() const { return hexadecimalShown; }

    /** Said in place of rows while there are none. */
    void setEmptyText(const QString &text);
    /** What stands beside the value of \a row, such as "m  0x2A"; empty for most rows. */
    QString getAnnotation(const QTreeWidgetItem *row) const;
    /**
     * Makes \a row the current one and brings it into sight, with what stands around it where it
     * was out of sight. The rows above it are expanded. Takes no longer the farther it is.
     */
    void goTo(QTreeWidgetItem *row);
    /** Expands or collapses \a row and all below, and remembers it, for elements to come too. */
    void setExpandedBelow(QTreeWidgetItem *row, bool expanded);
    /** The same for all rows. Takes one layout, however many there are. */
    void setAllExpanded(bool expanded);

Q_SIGNALS:
    /** People want a menu for the current row, at \a globalPosition. */
    void menuRequested(const QPoint &globalPosition);
    /** Many rows were expanded or collapsed at once, which the signals of single rows do not tell.
     */
    void manyExpanded();

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void drawRow(QPainter *painter,
                 const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;

private:
    bool isInSight(const QTreeWidgetItem *row) const;
    bool showToolTip(const QPoint &position, const QPoint &globalPosition);

    QString emptyText;
    bool unitsShown = true;
    bool hexadecimalShown = false;
};

} // namespace corvane
