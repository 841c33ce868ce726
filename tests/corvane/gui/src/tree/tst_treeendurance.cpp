#include "endurance.h"
#include "messagetreefilter.h"
#include "messagetreewidget.h"
#include "messagetreewidgetitem.h"

#include <QApplication>

using namespace corvane::test;

class TestTreeEndurance : public EnduranceCase, protected PositionMessages
{
    Q_OBJECT

private Q_SLOTS:
    void tree();
    void rows();
};

void TestTreeEndurance::tree()
{
    repeat([this] {
        MessageTreeWidget tree(nullptr);
        auto *row = new MessageTreeWidgetItem(&tree, format.type("Position"));
        tree.addTopLevelItem(row);
        tree.processMessage(first);
        tree.processMessage(second);
    });
}

void TestTreeEndurance::rows()
{
    MessageTreeWidget tree(nullptr);
    tree.show(); // it forgets rows that are gone when it is laid out
    repeat([this, &tree] {
        MessageTreeFilter filter(nullptr);
        auto *row = new MessageTreeWidgetItem(&tree, format.type("Position"));
        tree.addTopLevelItem(row);
        row->configureInTreeWidget();
        row->setFilter(&filter);
        tree.processMessage(first);
        filter.setSearchString(QStringLiteral("Good"));
        tree.processMessage(second);
        delete row;
    });
}

CORVANE_GUI_TEST_MAIN(TestTreeEndurance)
#include "tst_treeendurance.moc"
