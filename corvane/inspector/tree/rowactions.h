#pragma once

#include "rowplace.h"

#include <QList>
#include <QObject>

#include <vector>

class QAction;
class QMenu;

namespace corvane {

class InspectorTree;

/**
 * What people can do with a row of the message tree: in its menu, from the keyboard while the tree
 * has it, and from a menu of the window. What cannot be done with the current row is disabled, and
 * its tool tip says why.
 */
class RowActions : public QObject
{
    Q_OBJECT

public:
    /** \a tree is not owned and must outlive the object. */
    explicit RowActions(InspectorTree &tree, QObject *parent = nullptr);

    /** In the order of the menu, with separators. Owned. */
    const QList<QAction *> &getActions() const { return actions; }

    /** Whether there is a plot to send fields to; initially there is none. */
    void setPlotAvailable(bool available);

Q_SIGNALS:
    /** The path of a field, for the watch list. */
    void watchRequested(const QString &path);
    /** The path of a numeric field or element, or of the first ones of a list, for the plot. */
    void plotRequested(const QString &path);
    void formRequested();
    void bytesRequested();
    /** The text of a value, to filter elements by. */
    void filterRequested(const QString &text);

private:
    /** What the actions are about, looked up when one is needed. */
    struct Target
    {
        QTreeWidgetItem *row = nullptr; ///< Not owned.
        std::optional<RowPlace> place;
        const Message *message = nullptr; ///< The main message that is shown. Not owned.
        QString valueText;
    };

    using Reason = QString (RowActions::*)(const Target &) const;
    using Deed = void (RowActions::*)(const Target &);

    struct Entry
    {
        QAction *action; ///< Owned as a child.
        Reason reason; ///< Why it cannot be done; empty where it can.
        QString toolTip;
    };

    void createActions();
    void
    add(const QString &text, const char *key, const QString &toolTip, Reason reason, Deed deed);
    void addSeparator();
    void refresh();
    void showMenu(const QPoint &position);
    Target getTarget() const;

    QString whyNoRow(const Target &target) const;
    QString whyNoValue(const Target &target) const;
    QString whyNoPath(const Target &target) const;
    QString whyNoMessage(const Target &target) const;
    QString whyNoWatch(const Target &target) const;
    QString whyNoPlot(const Target &target) const;
    QString whyNoFilter(const Target &target) const;
    QString whyNothingBelow(const Target &target) const;
    void copyValue(const Target &target);
    void copyPath(const Target &target);
    void copyRow(const Target &target);
    void copyMessage(const Target &target);
    void watch(const Target &target);
    void plot(const Target &target);
    void showForm(const Target &target);
    void showBytes(const Target &target);
    void filterByValue(const Target &target);
    void expandBelow(const Target &target);
    void collapseBelow(const Target &target);

    InspectorTree &tree;
    QList<QAction *> actions; ///< Owned as children.
    std::vector<Entry> entries;
    QMenu *menu; ///< Owned.
    bool plotAvailable = false;
};

} // namespace corvane
