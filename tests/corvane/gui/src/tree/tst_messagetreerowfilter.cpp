#include "messagetreefilter.h"
#include "treerows.h"

#include <QApplication>

using namespace corvane::test;

/** Which rows of elements a filter lets be seen. */
class TestMessageTreeRowFilter : public TreeRowCase
{
    Q_OBJECT

private Q_SLOTS:
    void filter_loadedForTheType();
    void filter_notLoaded();
    void filter_elementWithoutContent();
    void filter_afterTheMessageIsGone();
    void filter_ofScalars_showsAll();
    void filter_replaced_leavesNoConnection();
    void filter_reachesNewRows();
};

void TestMessageTreeRowFilter::filter_loadedForTheType()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    MessageTreeFilter filter;
    shown.row()->setFilter(&filter);
    shown.after("Position{sats: [{state: Good}, {state: Lost}, {state: Good}]}");
    QTreeWidgetItem *sats = shown.row()->child(5);
    const auto hidden = [&] {
        QString marks;
        for (int i = 0; i < sats->childCount(); ++i)
            marks += sats->child(i)->isHidden() ? "h" : "s";
        return marks;
    };
    QCOMPARE(hidden(), "sss");
    filter.setSearchString("Good");
    QCOMPARE(hidden(), "shs");
    shown.after("Position{sats: [{state: Lost}, {state: Lost}, {state: Lost}, {state: Good}]}");
    QCOMPARE(hidden(), "hhhs");
    shown.after("Position{sats: [{state: Lost}]}");
    QCOMPARE(hidden(), "h"); // exactly the matching ones: none
    filter.setSearchString("");
    QCOMPARE(hidden(), "s");
    shown.row()->setFilter(nullptr);
    filter.setSearchString("Good");
    QCOMPARE(hidden(), "s");
}

void TestMessageTreeRowFilter::filter_notLoaded()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    MessageTreeFilter filter;
    shown.row()->setFilter(&filter);
    shown.after("Position{sats: [{id: 7}, {id: 8}]}");
    QTreeWidgetItem *sats = shown.row()->child(5);
    filter.setSearchString("8");
    QVERIFY(sats->child(0)->isHidden());
    QVERIFY(!sats->child(1)->isHidden());
    filter.setSearchString("nothing of the kind");
    QVERIFY(!sats->child(0)->isHidden());
    QVERIFY(!sats->child(1)->isHidden());
}

void TestMessageTreeRowFilter::filter_elementWithoutContent()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    MessageTreeFilter filter;
    filter.setSearchString("Good");
    shown.row()->setFilter(&filter);
    shown.after("Position{sats: [{state: Good}, invalid]}");
    QTreeWidgetItem *sats = shown.row()->child(5);
    QVERIFY(!sats->child(0)->isHidden());
    QVERIFY(sats->child(1)->isHidden());
}

void TestMessageTreeRowFilter::filter_afterTheMessageIsGone()
{
    const TestFormat format("Demo", "A\n b B\nB part\n list C[]\nC part\n x uint8 {P=1, Q=2}\n");
    Shown shown(format, {"A"});
    MessageTreeFilter filter;
    shown.row()->setFilter(&filter);
    const QString before = shown.after("A{b: {list: [{x: P}, {x: Q}]}}");
    // The second message has no b, so its rows stay, but what they showed is deleted.
    QCOMPARE(shown.after("A{}"), before);
    auto *b = dynamic_cast<MessageTreeWidgetItem *>(shown.row()->child(0));
    auto *element = dynamic_cast<MessageTreeWidgetItem *>(b->child(0)->child(0));
    QCOMPARE(b->getDisplayedMessage(), nullptr);
    QCOMPARE(element->getDisplayedMessage(), nullptr);

    filter.setSearchString("P");
    QVERIFY(element->isHidden());
    filter.setSearchString("");
    QCOMPARE(printed(shown.tree), before);
}

void TestMessageTreeRowFilter::filter_ofScalars_showsAll()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    MessageTreeFilter filter;
    shown.row()->setFilter(&filter);
    shown.after("Position{samples: [7, 8]}");
    filter.setSearchString("8");
    QVERIFY(!shown.row()->child(3)->child(0)->isHidden());
}

void TestMessageTreeRowFilter::filter_replaced_leavesNoConnection()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    MessageTreeFilter first;
    MessageTreeFilter second;
    shown.row()->setFilter(&first);
    shown.after("Position{sats: [{state: Good}, {state: Lost}]}");
    shown.row()->setFilter(&second);
    QCOMPARE(shown.row()->getFilter(), &second);
    second.setSearchString("Lost");
    QTreeWidgetItem *sats = shown.row()->child(5);
    QVERIFY(sats->child(0)->isHidden());
    sats->child(0)->setHidden(false);
    first.setSearchString("Lost");
    QVERIFY(!sats->child(0)->isHidden()); // nobody filtered again
}

void TestMessageTreeRowFilter::filter_reachesNewRows()
{
    const TestFormat format("Demo", rowTypes);
    MessageTreeFilter filter;
    MessageTreeWidget tree;
    auto *row = new MessageTreeWidgetItem(&tree, nullptr);
    tree.addTopLevelItem(row);
    row->setFilter(&filter);
    filter.setSearchString("Good");
    row->displayMessage(format.message("Position{sats: [{state: Lost}, {state: Good}]}"));
    auto *sats = dynamic_cast<AbstractMessageTreeWidgetItem *>(row->child(5));
    QCOMPARE(sats->getFilter(), &filter);
    QVERIFY(sats->child(0)->isHidden());
    auto *inner = dynamic_cast<AbstractMessageTreeWidgetItem *>(sats->child(1)->child(2));
    QCOMPARE(inner->getFilter(), &filter);
    row->setMessageInfo(nullptr);
}

CORVANE_GUI_TEST_MAIN(TestMessageTreeRowFilter)
#include "tst_messagetreerowfilter.moc"
