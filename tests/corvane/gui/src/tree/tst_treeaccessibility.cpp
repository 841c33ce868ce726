#include "steadytreewidget.h"
#include "testcase.h"

#include <QAccessible>
#include <QApplication>

using namespace corvane::test;

namespace {

bool accessibilityActive = false;
QStringList changes;

} // namespace

// An accessibility bridge can only be had from the platform, and the one that tests run on has
// none. So this program stands in for it, where Qt's widgets ask for it and send it their events.
bool QAccessible::isActive()
{
    return accessibilityActive;
}

void QAccessible::updateAccessibility(QAccessibleEvent *event)
{
    if (event->type() != QAccessible::TableModelChanged)
        return;
    const auto *change = static_cast<QAccessibleTableModelChangeEvent *>(event);
    if (change->modelChangeType() == QAccessibleTableModelChangeEvent::DataChanged)
        changes += QStringLiteral("rows %1 to %2, columns %3 to %4")
                       .arg(change->firstRow())
                       .arg(change->lastRow())
                       .arg(change->firstColumn())
                       .arg(change->lastColumn());
}

class TestTreeAccessibility : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void changedCells_areTold();
};

namespace {

/** What a bridge gets to know of three changed cells. */
QStringList changesOf(QTreeWidget &tree, bool active)
{
    tree.setColumnCount(2);
    for (int i = 0; i < 3; ++i)
        new QTreeWidgetItem(&tree, {"name", "1.5"});
    tree.show();
    QApplication::processEvents();
    tree.visualItemRect(tree.topLevelItem(0)); // with a layout pending, the view tells nothing
    accessibilityActive = active;
    changes.clear();
    SteadyTreeWidget::setItemText(tree.topLevelItem(0), 1, "2.5");
    SteadyTreeWidget::setItemNumber(tree.topLevelItem(2), 0, 7);
    tree.topLevelItem(1)->setText(1, "other");
    accessibilityActive = false;
    return changes;
}

} // namespace

void TestTreeAccessibility::changedCells_areTold()
{
    QTreeWidget stock;
    const QStringList expected{"rows 0 to 0, columns 1 to 1", "rows 2 to 2, columns 0 to 0",
                               "rows 1 to 1, columns 1 to 1"};
    QCOMPARE(changesOf(stock, true), expected);
    SteadyTreeWidget tree;
    QCOMPARE(changesOf(tree, true), expected);
    SteadyTreeWidget unheard;
    QCOMPARE(changesOf(unheard, false), QStringList());
}

CORVANE_GUI_TEST_MAIN(TestTreeAccessibility)
#include "tst_treeaccessibility.moc"
