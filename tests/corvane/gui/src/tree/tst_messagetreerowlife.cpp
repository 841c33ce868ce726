#include "memleaktracer.h"
#include "messageneedmanager.h"
#include "repeatedfieldtreewidgetitem.h"
#include "singlesubmessagefieldtreewidgetitem.h"
#include "singlevaluefieldtreewidgetitem.h"
#include "stringfieldtreewidgetitem.h"
#include "treerows.h"

#include <QApplication>

using namespace corvane::test;

/** How a row comes by its type and its message, and what it leaves of them. */
class TestMessageTreeRowLife : public TreeRowCase
{
    Q_OBJECT

private Q_SLOTS:
    void displayMessage_otherType_rebuilds();
    void displayMessage_null_empties();
    void processMessage_otherType_changesNothing();
    void clearValues_keepsTheRowsOfFields();
    void setMessageInfo_sameType_keepsTheRows();
    void configure_rebuildsAndShowsTheMessageAgain();
    void references_oneForTheShownMainMessage();
    void need_isDeclaredWhileTyped();
    void accounting_countsEachClassOfTheChain();
};

void TestMessageTreeRowLife::displayMessage_otherType_rebuilds()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    shown.row()->displayMessage(format.message("Attitude{roll: 1.5}"));
    QCOMPARE(shown.row()->getMessageInfo(), format.type("Attitude"));
    shown.tree.expandAll();
    QCOMPARE(printed(shown.tree), "Attitude | Message |\n  roll | float | 1.5");
}

void TestMessageTreeRowLife::displayMessage_null_empties()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    const auto message = format.message("Position{mode: 2}");
    shown.row()->displayMessage(message);
    shown.row()->displayMessage(nullptr);
    QCOMPARE(printed(shown.tree), withoutRow("Message"));
    QCOMPARE(message->getReferenceCount(), 1);
    QVERIFY(shown.row()->getMessageInfo() == nullptr);
}

void TestMessageTreeRowLife::processMessage_otherType_changesNothing()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    const QString before = shown.after("Position{mode: 2}");
    QCOMPARE(shown.after("Attitude{roll: 1}"), before);
}

void TestMessageTreeRowLife::clearValues_keepsTheRowsOfFields()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    const QString empty = printed(shown.tree);
    shown.after("Position{mode: 2, samples: [1], best: {id: 1}, sats: [{}], name: \"x\"}");
    QTreeWidgetItem *mode = shown.row()->child(0);
    shown.row()->clearValues();
    QVERIFY(!shown.row()->isMessageDisplayed());
    QCOMPARE(shown.row()->child(0), mode);
    // The row of height goes on saying that the value was absent.
    QCOMPARE(printed(shown.tree),
             QString(empty).replace("height | double |",
                                    "height | double | No value for optional field"));
}

void TestMessageTreeRowLife::setMessageInfo_sameType_keepsTheRows()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    QTreeWidgetItem *mode = shown.row()->child(0);
    shown.row()->setMessageInfo(format.type("Position"));
    QCOMPARE(shown.row()->child(0), mode);
    shown.row()->setMessageInfo(nullptr);
    QCOMPARE(shown.row()->childCount(), 0);
}

void TestMessageTreeRowLife::configure_rebuildsAndShowsTheMessageAgain()
{
    const TestFormat format("Demo", rowTypes);
    Shown shown(format, {"Position"});
    shown.after("Position{mode: 2, sats: [{id: 4}]}");
    const auto *message = shown.row()->getDisplayedMessage();
    const QString before = printed(shown.tree);
    shown.row()->configureInTreeWidget();
    shown.tree.expandAll();
    QCOMPARE(printed(shown.tree), before);
    QCOMPARE(shown.row()->getDisplayedMessage(), message);
    QCOMPARE(message->getReferenceCount(), 1);
}

void TestMessageTreeRowLife::references_oneForTheShownMainMessage()
{
    const TestFormat format("Demo", rowTypes);
    const auto first = format.message("Position{best: {id: 1}, sats: [{id: 2}]}");
    const auto second = format.message("Position{best: {id: 3}}");
    {
        Shown shown(format, {"Position"});
        shown.tree.processMessage(first);
        QCOMPARE(first->getReferenceCount(), 2);
        shown.tree.processMessage(first);
        QCOMPARE(first->getReferenceCount(), 2);
        shown.tree.setShowVirtualFields(false);
        QCOMPARE(first->getReferenceCount(), 2);
        shown.tree.processMessage(second);
        QCOMPARE(first->getReferenceCount(), 1);
        QCOMPARE(second->getReferenceCount(), 2);
        shown.row()->clearValues();
        QCOMPARE(second->getReferenceCount(), 1);
        shown.tree.processMessage(second);
        shown.row()->setMessageInfo(format.type("Attitude"));
        QCOMPARE(second->getReferenceCount(), 1);
        shown.row()->displayMessage(first);
        QCOMPARE(first->getReferenceCount(), 2);
        delete shown.row();
        QCOMPARE(first->getReferenceCount(), 1);
        auto *next = new MessageTreeWidgetItem(&shown.tree, format.type("Position"));
        shown.tree.addTopLevelItem(next);
        next->processMessage(second);
    }
    QCOMPARE(second->getReferenceCount(), 1);
}

void TestMessageTreeRowLife::need_isDeclaredWhileTyped()
{
    const TestFormat format("Demo", rowTypes);
    const auto needed = [&](const char *type) {
        return MessageNeedManager::getDefault()->isNeeded(format.type(QLatin1String(type)));
    };
    {
        Shown shown(format, {"Attitude"});
        QVERIFY(needed("Attitude"));
        shown.row()->setMessageInfo(format.type("Position"));
        QVERIFY(!needed("Attitude"));
        QVERIFY(needed("Position"));
    }
    QVERIFY(!needed("Position"));
}

void TestMessageTreeRowLife::accounting_countsEachClassOfTheChain()
{
    const TestFormat format("Demo", rowTypes);
    const auto live = [] { return MemLeakTracer::getInstance()->getLiveObjects(); };
    const auto before = live();
    MessageTreeWidget tree;
    {
        const SingleSubMessageFieldTreeWidgetItem sub(&tree, 0);
        const RepeatedFieldTreeWidgetItem repeated(&tree);
        const StringFieldTreeWidgetItem string(&tree);
        const SingleValueFieldTreeWidgetItem single(&tree, 0);
        auto now = live();
        const auto more = [&](const char *name) {
            return now.value(QLatin1String(name)) - before.value(QLatin1String(name));
        };
        QCOMPARE(more("AbstractMessageTreeWidgetItem"), 4);
        QCOMPARE(more("AbstractFieldTreeWidgetItem"), 4);
        QCOMPARE(more("MessageTreeWidgetItem"), 1);
        QCOMPARE(more("SingleSubMessageFieldTreeWidgetItem"), 1);
        QCOMPARE(more("RepeatedFieldTreeWidgetItem"), 1);
        QCOMPARE(more("StringFieldTreeWidgetItem"), 1);
        QCOMPARE(more("SingleValueFieldTreeWidgetItem"), 1);
    }
    QCOMPARE(live().value("AbstractMessageTreeWidgetItem"),
             before.value("AbstractMessageTreeWidgetItem"));
}

CORVANE_GUI_TEST_MAIN(TestMessageTreeRowLife)
#include "tst_messagetreerowlife.moc"
