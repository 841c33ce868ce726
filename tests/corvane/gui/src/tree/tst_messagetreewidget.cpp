#include "echotranslator.h"
#include "memleaktracer.h"
#include "messagetreescene.h"
#include "metaobjects.h"
#include "singlevaluefieldtreewidgetitem.h"
#include "testcase.h"
#include "testsource.h"
#include "treeprinter.h"

#include <QAction>
#include <QHeaderView>

using namespace corvane::test;

namespace {

/** Counts how often it was configured. */
class CountingRow : public SingleValueFieldTreeWidgetItem
{
public:
    explicit CountingRow(MessageTreeWidget *tree)
        : AbstractMessageTreeWidgetItem(tree)
        , SingleValueFieldTreeWidgetItem(tree, 0)
    {
    }

    void configureInTreeWidget() override { ++configured; }

    void processMessage(const Message *message) override { received.append(message); }

    int configured = 0;
    QList<const Message *> received;
};

} // namespace

class TestMessageTreeWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void metaObject();
    void newWidget();
    void rawValueAction_addsAndRemovesItsColumn();
    void typeAction_removesItsColumn();
    void action_withTheColumnInPlace_changesNothing();
    void toggleSlot_ofOthers_isIgnored();
    void addColumn_duplicate_isAnnouncedAndLeftOut();
    void addColumn_isAtTheEnd();
    void addColumn_afterColumnsOfTheHost();
    void fillerColumn_becomesRealWhenReadded();
    void clearColumns_leavesNone();
    void columnNames();
    void columnNames_areTranslated();
    void resizeColumns_fitsContents();
    void topLevelRows_skipOthers();
    void processMessage_reachesEveryRow();
    void flags_reconfigureOnChangeOnly();
    void mustInitiallyBeExpanded_defaults();
    void expansion_isRememberedForTheProcess();
    void expansion_ofOtherItems_isIgnored();
    void accounting();
};

void TestMessageTreeWidget::cleanup()
{
    forgetExpansion();
    TestCase::cleanup();
}

void TestMessageTreeWidget::metaObject()
{
    const QMetaObject &metaObject = MessageTreeWidget::staticMetaObject;
    QCOMPARE(metaObject.className(), "MessageTreeWidget");
    QCOMPARE(metaObject.superClass(), &QTreeWidget::staticMetaObject);
    QCOMPARE(
        ownMethods(metaObject),
        QStringList({"slot processMessage(const Message*)",
                     "slot processItemExpandedOrCollapsed(QTreeWidgetItem*)",
                     "slot toggleColumnActionTriggered(bool)", "slot setHideSecondaryFields(bool)",
                     "slot setShowPrimaryFieldsOnly(bool)", "slot setHideVirtualFields(bool)",
                     "slot setShowVirtualFields(bool)"}));
    const QList<QByteArray> names{"message",          "item",
                                  "checked",          "hideSecondary",
                                  "showPrimaryOnly",  "hideVirtualFields",
                                  "showVirtualFields"};
    for (int i = 0; i < names.size(); ++i)
        QCOMPARE(metaObject.method(metaObject.methodOffset() + i).parameterNames(),
                 QList<QByteArray>{names.at(i)});
}

void TestMessageTreeWidget::newWidget()
{
    QWidget parent;
    auto *tree = new MessageTreeWidget(&parent);
    QCOMPARE(tree->parent(), &parent);
    QCOMPARE(tree->getColumns(), defaultColumns);
    QCOMPARE(tree->columnCount(), 3);
    QCOMPARE(tree->headerItem()->text(1), "Type");
    for (int i = 0; i < 3; ++i)
        QCOMPARE(tree->getColumnIndex(defaultColumns.at(i)), i);
    QVERIFY(!tree->hasColumn(MessageTreeWidget::RawValue));
    QCOMPARE(tree->getColumnIndex(MessageTreeWidget::RawValue), -1);
    QCOMPARE(tree->getColumnIndex(MessageTreeWidget::Custom10), -1);
    QVERIFY(tree->getToggleTypeColumnAction()->isChecked());
    QVERIFY(!tree->getToggleRawValueColumnAction()->isChecked());
    QCOMPARE(tree->getToggleColumnActions(),
             (QList<QAction *>{tree->getToggleTypeColumnAction(),
                               tree->getToggleRawValueColumnAction()}));
    QCOMPARE(tree->getToggleTypeColumnAction()->text(), "&Type");
    QCOMPARE(tree->getToggleRawValueColumnAction()->text(), "&Raw Value");
    QCOMPARE(tree->getToggleTypeColumnAction()->parent(), tree);
    QVERIFY(tree->mustShowVirtualFields());
    for (const auto role :
         {FieldInfo::Ordinary, FieldInfo::Primary, FieldInfo::Secondary, FieldInfo::Technical})
        QVERIFY(tree->mustShowFieldsWithRole(role));
    QCOMPARE(tree->selectionMode(), QTreeWidget().selectionMode());
    QVERIFY(!tree->isSortingEnabled());
}

void TestMessageTreeWidget::rawValueAction_addsAndRemovesItsColumn()
{
    MessageTreeWidget tree;
    auto *row = new CountingRow(&tree);
    tree.addTopLevelItem(row);
    tree.getToggleRawValueColumnAction()->trigger();
    QCOMPARE(tree.getColumnIndex(MessageTreeWidget::RawValue), 3);
    QCOMPARE(tree.headerItem()->text(3), "Raw value");
    QCOMPARE(row->configured, 1);
    QVERIFY(tree.getToggleRawValueColumnAction()->isChecked());
    tree.getToggleRawValueColumnAction()->trigger();
    QCOMPARE(tree.getColumns(), defaultColumns);
    QCOMPARE(tree.columnCount(), 3);
    QCOMPARE(row->configured, 2);
    QVERIFY(!tree.getToggleRawValueColumnAction()->isChecked());
    QVERIFY(tree.getToggleTypeColumnAction()->isChecked());
}

void TestMessageTreeWidget::typeAction_removesItsColumn()
{
    MessageTreeWidget tree;
    tree.getToggleTypeColumnAction()->trigger();
    QCOMPARE(tree.getColumns(), (Columns{MessageTreeWidget::Name, MessageTreeWidget::Value}));
    QCOMPARE(tree.getColumnIndex(MessageTreeWidget::Value), 1);
    QVERIFY(!tree.getToggleTypeColumnAction()->isChecked());
}

void TestMessageTreeWidget::action_withTheColumnInPlace_changesNothing()
{
    MessageTreeWidget tree;
    auto *row = new CountingRow(&tree);
    tree.addTopLevelItem(row);
    Q_EMIT tree.getToggleTypeColumnAction()->triggered(true);
    Q_EMIT tree.getToggleRawValueColumnAction()->triggered(false);
    QCOMPARE(tree.getColumns(), defaultColumns);
    QCOMPARE(row->configured, 0);
}

void TestMessageTreeWidget::toggleSlot_ofOthers_isIgnored()
{
    MessageTreeWidget tree;
    tree.toggleColumnActionTriggered(false);
    QAction foreign;
    connect(&foreign, &QAction::triggered, &tree, &MessageTreeWidget::toggleColumnActionTriggered);
    foreign.trigger();
    QObject sender;
    connect(&sender, &QObject::objectNameChanged, &tree,
            [&tree] { tree.toggleColumnActionTriggered(false); });
    sender.setObjectName("x");
    QCOMPARE(tree.getColumns(), defaultColumns);
}

void TestMessageTreeWidget::addColumn_duplicate_isAnnouncedAndLeftOut()
{
    MessageTreeWidget tree;
    const BoxReader reader;
    tree.addColumn(MessageTreeWidget::Value, true);
    QCOMPARE(reader.boxes,
             QStringList("Duplicate column: Attempt to add to a MessageTreeWidget a column that is "
                         "already present: Value. Duplicate column was not added."));
    QCOMPARE(reader.standardButtons, QMessageBox::Ok);
    QCOMPARE(reader.icon, QMessageBox::Warning);
    QCOMPARE(tree.getColumns(), defaultColumns);
    tree.setColumns({MessageTreeWidget::Type, MessageTreeWidget::Name, MessageTreeWidget::Type});
    QCOMPARE(reader.boxes.size(), 2);
    QCOMPARE(tree.getColumns(), (Columns{MessageTreeWidget::Type, MessageTreeWidget::Name}));
}

void TestMessageTreeWidget::addColumn_isAtTheEnd()
{
    MessageTreeWidget tree;
    auto *row = new CountingRow(&tree);
    tree.addTopLevelItem(row);
    tree.setColumns({MessageTreeWidget::Name});
    QCOMPARE(row->configured, 1);
    tree.addColumn(MessageTreeWidget::Custom10, false);
    QCOMPARE(row->configured, 1);
    QCOMPARE(tree.getColumnIndex(MessageTreeWidget::Custom10), 1);
    QCOMPARE(tree.getColumnIndex(MessageTreeWidget::Custom5), -1);
    QCOMPARE(tree.headerItem()->text(1), "Custom 10");
    QCOMPARE(tree.getColumnName(MessageTreeWidget::Custom10), "Custom 10");
}

void TestMessageTreeWidget::addColumn_afterColumnsOfTheHost()
{
    MessageTreeWidget tree;
    tree.setColumnCount(5);
    tree.addColumn(MessageTreeWidget::RawValue, false);
    QCOMPARE(tree.getColumns(),
             defaultColumns
                 + Columns({MessageTreeWidget::fillerColumn, MessageTreeWidget::fillerColumn,
                            MessageTreeWidget::RawValue}));
    QCOMPARE(tree.getColumnIndex(MessageTreeWidget::RawValue), 5);
    QCOMPARE(tree.getColumnIndex(MessageTreeWidget::fillerColumn), -1);
}

void TestMessageTreeWidget::fillerColumn_becomesRealWhenReadded()
{
    MessageTreeWidget tree;
    tree.setColumnCount(4);
    tree.addColumn(MessageTreeWidget::RawValue, false);
    tree.getToggleRawValueColumnAction()->trigger();
    QCOMPARE(tree.getColumns(), defaultColumns + Columns{MessageTreeWidget::fillerColumn});
    QCOMPARE(tree.headerItem()->text(3), "Column type 14");
    QCOMPARE(tree.getColumnIndex(MessageTreeWidget::fillerColumn), 3);
}

void TestMessageTreeWidget::clearColumns_leavesNone()
{
    MessageTreeWidget tree;
    auto *row = new CountingRow(&tree);
    tree.addTopLevelItem(row);
    tree.clearColumns(false);
    QCOMPARE(row->configured, 0);
    QCOMPARE(tree.columnCount(), 0);
    QVERIFY(tree.getColumns().isEmpty());
    QVERIFY(!tree.hasColumn(MessageTreeWidget::Name));
    QVERIFY(!tree.getToggleTypeColumnAction()->isChecked());
    QVERIFY(!tree.getToggleRawValueColumnAction()->isChecked());
    tree.clearColumns(true);
    QCOMPARE(row->configured, 1);
}

void TestMessageTreeWidget::columnNames()
{
    const QStringList names{"Name",     "Raw value", "Value",    "Type",      "Custom 1",
                            "Custom 2", "Custom 3",  "Custom 4", "Custom 5",  "Custom 6",
                            "Custom 7", "Custom 8",  "Custom 9", "Custom 10", "Column type 14"};
    for (int i = 0; i < names.size(); ++i)
        QCOMPARE(
            MessageTreeWidget::getDefaultColumnName(static_cast<MessageTreeWidget::ColumnType>(i)),
            names.at(i));
    QCOMPARE(
        MessageTreeWidget::getDefaultColumnName(static_cast<MessageTreeWidget::ColumnType>(-3)),
        "Column type -3");
}

void TestMessageTreeWidget::columnNames_areTranslated()
{
    const EchoTranslator translator;
    MessageTreeWidget tree;
    QCOMPARE(tree.headerItem()->text(0), "MessageTreeWidget|Name");
    QCOMPARE(tree.getToggleTypeColumnAction()->text(), "MessageTreeWidget|&Type");
    QCOMPARE(tree.getToggleRawValueColumnAction()->text(), "MessageTreeWidget|&Raw Value");
    const BoxReader reader;
    tree.addColumn(MessageTreeWidget::Name, false);
    QVERIFY(reader.boxes.value(0).startsWith("MessageTreeWidget|Duplicate column: "
                                             "MessageTreeWidget|Attempt to add"));
}

void TestMessageTreeWidget::resizeColumns_fitsContents()
{
    const TestFormat format("Demo", types);
    MessageTreeWidget tree;
    addRow(tree, format, "Position");
    tree.setColumnWidth(0, 700);
    tree.resizeColumns();
    const int fitting = tree.columnWidth(0);
    QVERIFY(fitting < 700);
    tree.setColumnWidth(0, 10);
    tree.resizeColumns();
    QCOMPARE(tree.columnWidth(0), fitting);
}

void TestMessageTreeWidget::topLevelRows_skipOthers()
{
    const TestFormat format("Demo", types);
    MessageTreeWidget tree;
    auto *first = addRow(tree, format, "Position");
    tree.addTopLevelItem(new QTreeWidgetItem);
    auto *counting = new CountingRow(&tree);
    tree.addTopLevelItem(counting);
    QCOMPARE(tree.getTopLevelAbstractMessageTreeWidgetItems(),
             (QList<AbstractMessageTreeWidgetItem *>{first, counting}));
}

void TestMessageTreeWidget::processMessage_reachesEveryRow()
{
    const TestFormat format("Demo", types);
    MessageTreeWidget tree;
    auto *first = addRow(tree, format, "Position");
    auto *second = addRow(tree, format, "Position");
    auto *other = addRow(tree, format, "Attitude");
    auto *counting = new CountingRow(&tree);
    tree.addTopLevelItem(counting);
    TestSource source(format);
    connect(&source, SIGNAL(newMessage(const Message *)), &tree,
            SLOT(processMessage(const Message *)));
    const auto message = format.message("Position{list: [1]}");
    source.send(message.get());
    QCOMPARE(first->getDisplayedMessage(), message.get());
    QCOMPARE(second->getDisplayedMessage(), message.get());
    QVERIFY(!other->isMessageDisplayed());
    QCOMPARE(counting->received, QList<const Message *>{message.get()});
    delete other;
    delete first;
    delete second;
    tree.processMessage(nullptr); // passed on as it is
    QCOMPARE(counting->received.constLast(), nullptr);
}

void TestMessageTreeWidget::flags_reconfigureOnChangeOnly()
{
    MessageTreeWidget tree;
    auto *row = new CountingRow(&tree);
    tree.addTopLevelItem(row);
    tree.setHideSecondaryFields(true);
    tree.setShowPrimaryFieldsOnly(false);
    tree.setShowVirtualFields(true);
    tree.setHideVirtualFields(false);
    QCOMPARE(row->configured, 0);
    tree.setHideSecondaryFields(false);
    QCOMPARE(row->configured, 1);
    QVERIFY(tree.mustShowFieldsWithRole(FieldInfo::Primary));
    QVERIFY(!tree.mustShowFieldsWithRole(FieldInfo::Secondary));
    QVERIFY(!tree.mustShowFieldsWithRole(FieldInfo::Technical));
    QVERIFY(tree.mustShowFieldsWithRole(static_cast<FieldInfo::Role>(4)));
    tree.setShowPrimaryFieldsOnly(true);
    QCOMPARE(row->configured, 1);
    tree.setHideVirtualFields(true);
    QCOMPARE(row->configured, 2);
    QVERIFY(!tree.mustShowVirtualFields());
}

void TestMessageTreeWidget::mustInitiallyBeExpanded_defaults()
{
    const TestFormat format("Demo", types);
    MessageTreeWidget tree;
    auto *row = addRow(tree, format, "Position");
    auto *list = dynamic_cast<AbstractMessageTreeWidgetItem *>(row->child(1));
    QVERIFY(!tree.mustInitiallyBeExpanded(nullptr));
    QVERIFY(tree.mustInitiallyBeExpanded(row));
    QVERIFY(!tree.mustInitiallyBeExpanded(list));
    QVERIFY(row->isExpanded());
    QVERIFY(!list->isExpanded());
    MessageTreeWidgetItem untyped(&tree, nullptr);
    QVERIFY(tree.mustInitiallyBeExpanded(&untyped));
}

void TestMessageTreeWidget::expansion_isRememberedForTheProcess()
{
    const TestFormat format("Demo", types);
    {
        MessageTreeWidget tree;
        auto *row = addRow(tree, format, "Position");
        row->child(1)->setExpanded(true);
        row->setExpanded(false);
    }
    MessageTreeWidget other;
    auto *row = addRow(other, format, "Position");
    QVERIFY(!row->isExpanded());
    QVERIFY(row->child(1)->isExpanded());
    row->setExpanded(true);
    QVERIFY(addRow(other, format, "Position")->isExpanded());
}

void TestMessageTreeWidget::expansion_ofOtherItems_isIgnored()
{
    MessageTreeWidget tree;
    auto *plain = new QTreeWidgetItem;
    plain->addChild(new QTreeWidgetItem);
    tree.addTopLevelItem(plain);
    plain->setExpanded(true);
    auto *untyped = new MessageTreeWidgetItem(&tree, nullptr);
    tree.addTopLevelItem(untyped);
    untyped->setExpanded(true);
    QVERIFY(MessageTreeWidget::sMessageInfoExpandedCollapsedMap.isEmpty());
    QVERIFY(MessageTreeWidget::sFieldInfoExpandedCollapsedMap.isEmpty());
}

void TestMessageTreeWidget::accounting()
{
    const auto count
        = [] { return MemLeakTracer::getInstance()->getLiveObjects().value("MessageTreeWidget"); };
    const auto before = count();
    {
        const MessageTreeWidget tree;
        QCOMPARE(count(), before + 1);
    }
    QCOMPARE(count(), before);
}

CORVANE_GUI_TEST_MAIN(TestMessageTreeWidget)
#include "tst_messagetreewidget.moc"
