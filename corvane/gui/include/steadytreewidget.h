#pragma once

#include "corvanegui_export.h"

#include <QList>
#include <QTreeWidget>

#include <memory>

/**
 * A QTreeWidget in which texts that change all the time cost little while they are shown.
 *
 * For every changed cell a plain QTreeWidget measures the row again and looks for its place, which
 * takes longer the more rows there are. Most changes of a text cannot alter the height of its row:
 * both texts are one line of characters that are as high as a Latin letter. For these, made through
 * setItemText(), this class only asks for one repaint of the viewport per round of events. All
 * other changes go the way that QTreeWidget takes, so rows look and behave the same. Only texts
 * that would take seconds to be measured, or fill the view, are shown shortened().
 *
 * The operations work on any item, in a tree of another kind or in none as well.
 */
class CORVANEGUI_EXPORT SteadyTreeWidget : public QTreeWidget
{
public:
    explicit SteadyTreeWidget(QWidget *parent = nullptr);
    ~SteadyTreeWidget() override;

    /** Sets the display text of \a item's \a column. */
    static void setItemText(QTreeWidgetItem *item, int column, const QString &text);
    /** The same for a number, by which the column then sorts. */
    static void setItemNumber(QTreeWidgetItem *item, int column, quint64 number);
    // Setting these to what they are would make the tree lay out all rows again.
    static void setItemHidden(QTreeWidgetItem *item, bool hidden);
    static void setItemExpanded(QTreeWidgetItem *item, bool expanded);
    /**
     * Removes the children \a doomed of \a parent, which usually are its last ones, and deletes
     * them. The rows that stay keep expansion, selection and scroll position; a current item among
     * the doomed gives way to the last row that stays, or to \a parent.
     */
    static void removeChildren(QTreeWidgetItem *parent, const QList<QTreeWidgetItem *> &doomed);

    /** \a text as far as it is shown: at most 1,000 characters in 4 lines; "…" stands for the rest.
     */
    static QString shortened(const QString &text);

    void dataChanged(const QModelIndex &topLeft,
                     const QModelIndex &bottomRight,
                     const QList<int> &roles) override;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    class PlainCharacters;

    void moveCurrentOut(QTreeWidgetItem *parent, const QSet<QTreeWidgetItem *> &doomed);
    static void
    setItemData(QTreeWidgetItem *item, int column, const QVariant &data, const QString &text);
    bool isPlain(const QString &text);
    bool canSkipLayout(const QModelIndex &topLeft, const QModelIndex &bottomRight);

    /** The text that setItemText() is about to set, while old and new text are plain. */
    struct PlainChange
    {
        const QTreeWidgetItem *item = nullptr; ///< Null while there is none. Not owned.
        int column = 0;
        const QString *text = nullptr; ///< Not owned.
    };

    std::unique_ptr<PlainCharacters> plainCharacters;
    PlainChange plainChange;
    bool repaintRequested = false; ///< Since the last painting.
    QAbstractItemDelegate *ownDelegate; ///< Owned as a child. The one that it starts with.
};
