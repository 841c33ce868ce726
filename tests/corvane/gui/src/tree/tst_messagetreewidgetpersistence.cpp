#include "messagetreescene.h"
#include "testcase.h"

#include <QAction>
#include <QHeaderView>
#include <QSettings>
#include <QTemporaryDir>

using namespace corvane::test;

namespace {

class SettingsFile
{
public:
    QTemporaryDir folder;
    QSettings settings{folder.filePath(QStringLiteral("s.ini")), QSettings::IniFormat};
};

} // namespace

class TestMessageTreeWidgetPersistence : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void settings_roundTrip();
    void settings_empty_widenTheFirstColumn();
    void settings_duplicates_areAnnounced();
    void settings_columnsOfOtherKinds_readAsNone();
    void settings_refusedHeader_keepsTheWidths();
    void expansionState_roundTrip();
    void expansionState_ofSubMessageFields_roundTrip();
    void expansionState_collapsedIsNotStored();
    void expansionState_ambiguousOrUnknown_isDropped();
    void expansionState_loadingNeverCollapses();
};

void TestMessageTreeWidgetPersistence::cleanup()
{
    forgetExpansion();
    TestCase::cleanup();
}

void TestMessageTreeWidgetPersistence::settings_roundTrip()
{
    SettingsFile file;
    const Columns columns{MessageTreeWidget::Value, MessageTreeWidget::Custom2,
                          MessageTreeWidget::Name, MessageTreeWidget::RawValue};
    {
        MessageTreeWidget tree;
        tree.setColumns(columns);
        tree.setColumnWidth(1, 77);
        tree.header()->moveSection(0, 2);
        tree.saveSettings(file.settings);
    }
    QCOMPARE(file.settings.value("columns").toList(), (QVariantList{2, 5, 0, 1}));
    MessageTreeWidget tree;
    tree.restoreSettings(file.settings);
    QCOMPARE(tree.getColumns(), columns);
    QCOMPARE(tree.columnWidth(1), 77);
    QCOMPARE(tree.header()->visualIndex(0), 2);
    QVERIFY(tree.getToggleRawValueColumnAction()->isChecked());
    QVERIFY(!tree.getToggleTypeColumnAction()->isChecked());
}

void TestMessageTreeWidgetPersistence::settings_empty_widenTheFirstColumn()
{
    SettingsFile file;
    MessageTreeWidget tree;
    tree.restoreSettings(file.settings);
    QCOMPARE(tree.getColumns(), defaultColumns);
    QCOMPARE(tree.columnWidth(0), 150);
}

void TestMessageTreeWidgetPersistence::settings_duplicates_areAnnounced()
{
    SettingsFile file;
    file.settings.setValue("columns", QVariantList{0, 1, 1});
    MessageTreeWidget tree;
    const BoxReader reader;
    tree.restoreSettings(file.settings);
    QCOMPARE(reader.boxes.size(), 1);
    QCOMPARE(tree.getColumns(), (Columns{MessageTreeWidget::Name, MessageTreeWidget::RawValue}));
}

void TestMessageTreeWidgetPersistence::settings_columnsOfOtherKinds_readAsNone()
{
    SettingsFile file;
    MessageTreeWidget tree;
    file.settings.setValue("columns", "012");
    tree.restoreSettings(file.settings);
    QVERIFY(tree.getColumns().isEmpty());
    file.settings.setValue("columns", QStringList{"2", "0"});
    tree.restoreSettings(file.settings);
    QCOMPARE(tree.getColumns(), (Columns{MessageTreeWidget::Value, MessageTreeWidget::Name}));
}

void TestMessageTreeWidgetPersistence::settings_refusedHeader_keepsTheWidths()
{
    SettingsFile file;
    file.settings.setValue("headerstate", QByteArray("no header state"));
    MessageTreeWidget tree;
    tree.setColumnWidth(0, 91);
    tree.restoreSettings(file.settings);
    QCOMPARE(tree.columnWidth(0), 91);
}

void TestMessageTreeWidgetPersistence::expansionState_roundTrip()
{
    const TestFormat format("Demo", types);
    SettingsFile file;
    MessageTreeWidget tree;
    auto *row = addRow(tree, format, "Position");
    row->child(1)->setExpanded(true);
    row->setExpanded(false);
    row->setExpanded(true);
    tree.saveExpansionState(file.settings);
    // Rows that the tree itself expanded are remembered as well.
    QStringList messages = file.settings.value("expandedMessages").toStringList();
    messages.sort();
    QCOMPARE(messages, QStringList({"Demo.Position", "Demo.Satellite"}));
    QCOMPARE(file.settings.value("expandedFields").toStringList(),
             QStringList("Demo.Position.list"));
    forgetExpansion();
    tree.loadExpansionState(file.settings);
    QCOMPARE(MessageTreeWidget::sFieldInfoExpandedCollapsedMap.value(format.field("Position.list")),
             true);
    QCOMPARE(MessageTreeWidget::sMessageInfoExpandedCollapsedMap.value(format.type("Position")),
             true);
}

void TestMessageTreeWidgetPersistence::expansionState_ofSubMessageFields_roundTrip()
{
    const TestFormat format("Demo", types);
    SettingsFile file;
    MessageTreeWidget tree;
    auto *row = addRow(tree, format, "Position");
    row->child(0)->child(0)->setExpanded(true);
    tree.saveExpansionState(file.settings);
    MessageTreeWidget::sFieldInfoExpandedCollapsedMap.clear();
    tree.loadExpansionState(file.settings);
    QVERIFY(
        MessageTreeWidget::sFieldInfoExpandedCollapsedMap.value(format.field("Satellite.signals")));
}

void TestMessageTreeWidgetPersistence::expansionState_collapsedIsNotStored()
{
    const TestFormat format("Demo", types);
    SettingsFile file;
    MessageTreeWidget tree;
    auto *row = addRow(tree, format, "Attitude");
    row->child(0)->setExpanded(true);
    row->child(0)->setExpanded(false);
    row->setExpanded(false);
    tree.saveExpansionState(file.settings);
    QVERIFY(file.settings.value("expandedMessages").toStringList().isEmpty());
    QVERIFY(file.settings.value("expandedFields").toStringList().isEmpty());
}

void TestMessageTreeWidgetPersistence::expansionState_ambiguousOrUnknown_isDropped()
{
    const TestFormat format("Demo", types);
    SettingsFile file;
    file.settings.setValue("expandedMessages", QStringList{"Demo.*", "Demo.Gone", ""});
    file.settings.setValue("expandedFields",
                           QStringList{"Demo.Position.*", "Demo.Position.gone", "Demo.*.roll"});
    MessageTreeWidget tree;
    tree.loadExpansionState(file.settings);
    QVERIFY(MessageTreeWidget::sMessageInfoExpandedCollapsedMap.isEmpty());
    QCOMPARE(MessageTreeWidget::sFieldInfoExpandedCollapsedMap.keys(),
             QList<const FieldInfo *>{format.field("Attitude.roll")});
}

void TestMessageTreeWidgetPersistence::expansionState_loadingNeverCollapses()
{
    const TestFormat format("Demo", types);
    SettingsFile file;
    MessageTreeWidget::sMessageInfoExpandedCollapsedMap[format.type("Attitude")] = false;
    MessageTreeWidget::sFieldInfoExpandedCollapsedMap[format.field("Attitude.roll")] = true;
    MessageTreeWidget tree;
    tree.loadExpansionState(file.settings);
    QCOMPARE(
        MessageTreeWidget::sMessageInfoExpandedCollapsedMap.value(format.type("Attitude"), true),
        false);
    QVERIFY(MessageTreeWidget::sFieldInfoExpandedCollapsedMap.value(format.field("Attitude.roll")));
}

CORVANE_GUI_TEST_MAIN(TestMessageTreeWidgetPersistence)
#include "tst_messagetreewidgetpersistence.moc"
