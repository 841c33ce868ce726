#include "endurance.h"
#include "messagetreefilter.h"
#include "messagetreewidget.h"
#include "messagetreewidgetitem.h"
#include "testformat.h"

#include <QApplication>

using namespace corvane::test;

class TestTreeEndurance : public EnduranceCase
{
    Q_OBJECT

private Q_SLOTS:
    void tree();
    void rows();

private:
    const TestFormat format{QStringLiteral("Demo"), QStringLiteral(R"(
        Position
          mode    uint8 {Manual=0, Auto=2}
          height  double optional
          samples int16[]
          best    Satellite optional
          sats    Satellite[]
        Satellite part
          state   uint8 {Lost=0, Good=1}
    )")};
    const MessageHolder first = format.message(
        QStringLiteral("Position{mode: Auto, samples: [1, 2], sats: [{state: Good}, {}]}"));
    const MessageHolder second
        = format.message(QStringLiteral("Position{mode: 0, height: 2, best: {state: Lost}}"));
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
