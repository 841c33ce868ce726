#pragma once

#include "treesearch.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QTreeWidgetItem;

namespace corvane {

class InspectorTree;

/**
 * A slim bar that finds rows of the message tree while people type: by name, value or path, in rows
 * that are shown, collapsed, or not there yet. Hits are expanded to, and collapsed again when the
 * bar is closed; nothing of it is remembered.
 */
class FindBar : public QWidget
{
    Q_OBJECT

public:
    /** Neither is owned; both must outlive the bar, which starts hidden. */
    FindBar(InspectorTree &tree, const FormatInfo &format, QWidget *parent = nullptr);

    /** Shows the bar, ready for typing, and searches for what was last searched for. */
    void open();
    /** Hides the bar and restores what was expanded. */
    void closeBar();
    void findNext();
    void findPrevious();

Q_SIGNALS:
    /** A hit is a type, or lies in one, that has no row: whoever follows makes one. */
    void rowNeeded(const MessageInfo *type);
    /** The bar is closed: rows that were made for it need not stay. */
    void closed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /** Which hit to go to as soon as it is known. */
    enum class Wish {
        None,
        First, ///< The origin or the next one behind it.
        Next, ///< Behind the origin.
        Previous ///< Before the origin.
    };

    void createWidgets();
    void follow();
    void search(Wish newWish);
    void step(Wish direction);
    static QString textOfWrap(Wish direction);
    bool isStillHit(size_t hit);
    void goTo(size_t hit);
    QTreeWidgetItem *findOrMakeRow(RowPlace place);
    void expandTo(QTreeWidgetItem *row);
    void collapseAgain();
    void noteExpansion(QTreeWidgetItem *row);
    void refreshState();
    QString getStateText() const;

    InspectorTree &tree;
    TreeSearch finder;
    QLineEdit *edit; ///< Owned as a child.
    QLabel *state; ///< Owned as a child.
    Wish wish = Wish::None;
    std::optional<size_t> current; ///< The hit that is selected.
    QString wrapText; ///< How the current hit was come to, if over an end.
    bool rowsChanged = false; ///< Since the search began.
    bool isExpanding = false;
    std::vector<RowPlace> expanded; ///< By this bar, from the outside in.
};

} // namespace corvane
