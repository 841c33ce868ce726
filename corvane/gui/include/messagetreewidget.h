#pragma once

#include "fieldinfo.h"
#include "steadytreewidget.h"

#include <QHash>
#include <QList>

class AbstractMessageTreeWidgetItem;
class Message;
class MessageInfo;
class QAction;
class QSettings;

/**
 * A tree of message types with their fields, sub-messages and repeated values, live.
 *
 * The owner adds a MessageTreeWidgetItem for each type to show, configures it, and feeds messages
 * to processMessage(). The tree owns its rows as every QTreeWidget does; it decides on columns and
 * on which kinds of fields have rows, and remembers which types and fields people have expanded:
 * once for the whole process, so a field opened in one tree is open in the next.
 *
 * @code
 * auto *tree = new MessageTreeWidget(parent);
 * auto *row = new MessageTreeWidgetItem(tree, messageInfo);
 * tree->addTopLevelItem(row);
 * row->configureInTreeWidget();
 * connect(source, &MessageSource::newMessage, tree, &MessageTreeWidget::processMessage);
 * @endcode
 */
class CORVANEGUI_EXPORT MessageTreeWidget : public SteadyTreeWidget
{
    Q_OBJECT

public:
    /** What a column shows. All kinds in use lie between 0 and 999. */
    enum ColumnType : qint32 {
        Name = 0,
        RawValue = 1,
        Value = 2,
        Type = 3,
        Custom1 = 4,
        Custom2,
        Custom3,
        Custom4,
        Custom5,
        Custom6,
        Custom7,
        Custom8,
        Custom9,
        Custom10
    };

    /** The kind recorded for columns that the owner added to the tree itself; rows leave it alone.
     */
    static constexpr ColumnType fillerColumn = static_cast<ColumnType>(14);

    /** Starts with the columns Name, Type and Value. */
    explicit MessageTreeWidget(QWidget *parent = nullptr);
    ~MessageTreeWidget() override;

    /** Replaces all columns. A kind that comes twice is announced in a box and left out. */
    void setColumns(QList<ColumnType> columns);
    /** Adds a column at the end. \a reconfigure: also resizes all columns and builds all rows anew.
     */
    void addColumn(ColumnType type, bool reconfigure);
    void clearColumns(bool reconfigure);
    /** The kinds of all columns, in their order. */
    QList<ColumnType> getColumns() const;
    bool hasColumn(ColumnType type);
    /** The position of the column, or -1. */
    int getColumnIndex(ColumnType type);
    QString getColumnName(ColumnType type) const;
    static QString getDefaultColumnName(ColumnType type);
    /** Makes every column as wide as its contents. */
    void resizeColumns();

    // Checkable actions that show and hide columns, for menus of the owner. Owned by the tree.
    QList<QAction *> getToggleColumnActions();
    QAction *getToggleTypeColumnAction();
    QAction *getToggleRawValueColumnAction();

    /** The rows of messages; rows of other kinds that the owner added are left out. */
    QList<AbstractMessageTreeWidgetItem *> getTopLevelAbstractMessageTreeWidgetItems();
    void reconfigureTopLevelAbstractMessageTreeWidgetItems();
    bool mustShowFieldsWithRole(FieldInfo::Role role) const;
    bool mustShowVirtualFields() const;
    /**
     * Whether a new row starts expanded: as people left its type or field the last time; else
     * message types do and fields do not.
     */
    bool mustInitiallyBeExpanded(AbstractMessageTreeWidgetItem *item);

    // Saving and restoring under plain keys: the owner opens the group that they belong into.

    /** Saves columns and header. */
    void saveSettings(QSettings &settings);
    /** Trusts that \a settings hold what saveSettings() wrote. */
    void restoreSettings(QSettings &settings);
    /** Saves what is expanded in all trees of the process. */
    void saveExpansionState(QSettings &settings);
    /** For rows that are configured afterwards; rows that are there stay as they are. */
    void loadExpansionState(QSettings &settings);

    // What people expanded (true) and collapsed (false), in any tree of the process. Public so that
    // an owner that expands rows for its own purposes can put them back. An owner that removes a
    // format removes its types and fields here as well.
    static QHash<const MessageInfo *, bool>
        sMessageInfoExpandedCollapsedMap; // NOLINT(readability-identifier-naming)
    static QHash<const FieldInfo *, bool>
        sFieldInfoExpandedCollapsedMap; // NOLINT(readability-identifier-naming)

public Q_SLOTS:
    /** Hands \a message to every row; those of its type show it. */
    void processMessage(const Message *message);
    void processItemExpandedOrCollapsed(QTreeWidgetItem *item);
    void toggleColumnActionTriggered(bool checked);
    /** Reads backwards: true shows the secondary fields, false hides them. */
    void setHideSecondaryFields(bool hideSecondary);
    void setShowPrimaryFieldsOnly(bool showPrimaryOnly);
    void setHideVirtualFields(bool hideVirtualFields);
    void setShowVirtualFields(bool showVirtualFields);

private:
    QAction *addToggleColumnAction(const QString &text, ColumnType type);
    void setFlag(bool &flag, bool value);

    QList<ColumnType> columns;
    QList<int> columnIndexByType; ///< -1 for kinds without column; as long as was needed so far.
    QAction *toggleTypeColumnAction; ///< Owned as a child.
    QAction *toggleRawValueColumnAction; ///< Owned as a child.
    QList<QAction *> toggleColumnActions;
    QHash<ColumnType, QAction *> toggleColumnActionByType;
    bool showPrimaryFieldsOnly = false;
    bool showVirtualFields = true;
};
