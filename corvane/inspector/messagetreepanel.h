#pragma once

#include "rowplace.h"

#include <QHash>
#include <QList>
#include <QTimer>
#include <QWidget>

class FormatInfo;
class MessageTreeFilter;
class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QSettings;
class QStringListModel;
class QTreeWidgetItem;

namespace corvane {

class FindBar;
class InspectorTree;
class LatestMessages;
class RowActions;
class TreeHistory;

/**
 * The tree of message types with their fields, live: a row for each type as it first arrives, what
 * of it is shown, a filter for the elements of repeated sub-messages, a search, what can be done
 * with a row, and in words what its texts leave out.
 */
class MessageTreePanel : public QWidget
{
    Q_OBJECT

public:
    /** None of the arguments but the parent takes part in owning; both outlive the panel. */
    MessageTreePanel(const LatestMessages &latest,
                     const FormatInfo &format,
                     QWidget *parent = nullptr);
    ~MessageTreePanel() override;

    /**
     * Brings columns, header and expansion back. What \a settings hold that no tree can have
     * written is passed over, and removed there.
     */
    void restoreSettings(QSettings &settings);
    void saveSettings(QSettings &settings);

    /** Makes the row of \a place the current one, as far as there is one. */
    void goTo(const RowPlace &place);

    InspectorTree *getTree() const { return tree; }

    /** What can be done with the current row. */
    RowActions *getRowActions() const { return rowActions; }

    /** What may be shown, for a menu of the window as well. */
    QMenu *getMenu() const { return menu; }

Q_SIGNALS:
    /** People went to a row of that type. */
    void typeChosen(const MessageInfo *type);
    /** People went to a row; \a message is the one of its type that is shown, or null. */
    void placeChosen(const std::optional<RowPlace> &place, const Message *message);

private:
    void createTree();
    void createFilter();
    void createMenu();
    void addFindActions();
    void addSwitches();
    void addExpansionActions();
    QAction *addMenuAction(const QString &text,
                           const QKeySequence &key,
                           const QString &toolTip,
                           Qt::ShortcutContext context);
    void addRow(const MessageInfo *type);
    void setAllTypesShown(bool shown);
    void removeEmptyRows();
    void refreshDefinitions();
    void refreshRowState();
    void filterBy(const QString &text);
    void announceChoice(QTreeWidgetItem *current);

    const LatestMessages &latest;
    const FormatInfo &format;
    InspectorTree *tree; ///< Owned as a child.
    FindBar *findBar; ///< Owned as a child.
    RowActions *rowActions; ///< Owned as a child.
    TreeHistory *history; ///< Owned by the tree.
    MessageTreeFilter *filter; ///< Owned as a child.
    QLineEdit *filterEdit; ///< Owned as a child.
    QStringListModel *symbols; ///< Owned as a child. What the filter can be set to.
    QMenu *menu; ///< Owned as a child.
    QAction *allTypesAction = nullptr; ///< Owned as a child.
    QList<QAction *> switches; ///< Owned as children; remembered by their names.
    QLabel *rowState; ///< Owned as a child. What is to be said of the current row.
    QTimer rowStateTimer;
    QHash<const MessageInfo *, MessageTreeWidgetItem *> rows; ///< Owned by the tree.
};

} // namespace corvane
