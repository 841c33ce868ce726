#pragma once

#include <QHash>
#include <QWidget>

class FormatInfo;
class MessageInfo;
class MessageTreeFilter;
class MessageTreeWidget;
class MessageTreeWidgetItem;
class QCompleter;
class QLineEdit;
class QMenu;
class QSettings;
class QStringListModel;
class QTreeWidgetItem;

namespace corvane {

class LatestMessages;
class TreeHistory;

/**
 * The tree of message types with their fields, live: a row for each type as it first arrives, what
 * of it is shown, and a filter for the elements of repeated sub-messages.
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

    MessageTreeWidget *getTree() const { return tree; }

    /** What may be shown, for a menu of the window as well. */
    QMenu *getMenu() const { return menu; }

Q_SIGNALS:
    /** People went to a row of that type. */
    void typeChosen(const MessageInfo *type);

private:
    void createTree();
    void createFilter();
    void createMenu();
    void addRow(const MessageInfo *type);
    void setAllTypesShown(bool shown);
    void refreshSymbols();
    void announceChosenType(QTreeWidgetItem *current);

    const LatestMessages &latest;
    const FormatInfo &format;
    MessageTreeWidget *tree; ///< Owned as a child.
    TreeHistory *history; ///< Owned by the tree.
    MessageTreeFilter *filter; ///< Owned as a child.
    QLineEdit *filterEdit; ///< Owned as a child.
    QStringListModel *symbols; ///< Owned as a child. What the filter can be set to.
    QMenu *menu; ///< Owned as a child.
    QHash<const MessageInfo *, MessageTreeWidgetItem *> rows; ///< Owned by the tree.
};

} // namespace corvane
