#include "expansion.h"
#include "inspectortree.h"
#include "latestmessages.h"
#include "messageinfo.h"
#include "messagetreepanel.h"
#include "messagetreewidgetitem.h"
#include "testcase.h"
#include "testformat.h"
#include "testsource.h"

#include <QApplication>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace corvane::test;

class tst_messagetreepanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void rows_comeWithTheFirstMessageOfTheirType();
    void partTypes_haveNoRowOfTheirOwn();
    void menu_switchesWhatIsShown();
    void allKnownTypes_canBeShownAndHidden();
    void filter_isTypedWithCompletion();
    void filter_withoutRepeatedSubMessages_saysSo();
    void filter_isOfferedForElementsWithoutNamesToo();
    void emptyTree_saysWhatWouldFillIt();
    void currentRow_isDescribedBelow();
    void longDescription_leavesTheRowsTheirRoom();
    void currentRow_announcesItsType();
    void settings_areRemembered();
    void destructor_forgetsWhatWillBeGone();
    void settings_ofNobody_startWithTheDefault_data();
    void settings_ofNobody_startWithTheDefault();
};

namespace {

const char types[] = R"(
    Position
      height double
      spare  int32 secondary
      twice  int32 virtual
      sats   Satellite[]
    Satellite part
      state  uint8 {Lost=0, Good=1}
    Attitude
      roll   float
)";

class Shown
{
public:
    QStringList names() const
    {
        QStringList all;
        for (int i = 0; i < tree()->topLevelItemCount(); ++i)
            all += tree()->topLevelItem(i)->text(0);
        return all;
    }

    MessageTreeWidget *tree() const { return panel.getTree(); }

    QAction *action(const QString &text) const
    {
        for (QAction *action : panel.getMenu()->actions())
            if (action->text() == text)
                return action;
        return nullptr;
    }

    TestFormat format{QStringLiteral("Demo"), QLatin1String(types)};
    TestSource source{format};
    corvane::LatestMessages latest{source};
    corvane::MessageTreePanel panel{latest, *format.getInfo()};
};

} // namespace

void tst_messagetreepanel::cleanup()
{
    forgetExpansion();
    TestCase::cleanup();
}

void tst_messagetreepanel::rows_comeWithTheFirstMessageOfTheirType()
{
    Shown shown;
    QVERIFY(shown.names().isEmpty());
    shown.source.send("Attitude{roll: 1} Position{height: 2} Attitude{roll: 3}");
    QCOMPARE(shown.names(), QStringList({"Attitude", "Position"}));
    QTRY_COMPARE(shown.tree()->topLevelItem(0)->child(0)->text(2), "3");
    shown.source.send("Attitude{roll: 4}");
    QTRY_COMPARE(shown.tree()->topLevelItem(0)->child(0)->text(2), "4");
}

void tst_messagetreepanel::partTypes_haveNoRowOfTheirOwn()
{
    Shown shown;
    shown.source.send("Satellite{state: Good}");
    QVERIFY(shown.names().isEmpty());
}

void tst_messagetreepanel::menu_switchesWhatIsShown()
{
    Shown shown;
    shown.source.send("Position{height: 2}");
    QTreeWidgetItem *row = shown.tree()->topLevelItem(0);
    QCOMPARE(row->childCount(), 4);
    shown.action("&Computed Fields")->trigger();
    QCOMPARE(row->childCount(), 3);
    shown.action("&Secondary Fields")->trigger();
    QCOMPARE(row->childCount(), 2);
    shown.action("&Secondary Fields")->trigger();
    QCOMPARE(row->childCount(), 3);
    shown.action("&Raw Value")->trigger();
    QVERIFY(shown.tree()->hasColumn(MessageTreeWidget::RawValue));
    shown.action("C&ollapse All")->trigger();
    QVERIFY(!row->isExpanded());
    shown.action("&Expand All")->trigger();
    QVERIFY(row->isExpanded());
}

void tst_messagetreepanel::allKnownTypes_canBeShownAndHidden()
{
    Shown shown;
    shown.source.send("Attitude{roll: 1}");
    shown.action("All &Known Message Types")->trigger();
    QCOMPARE(shown.names(), QStringList({"Attitude", "Position"}));
    QCOMPARE(shown.tree()->topLevelItem(1)->text(2), "No message");
    shown.action("All &Known Message Types")->trigger();
    QCOMPARE(shown.names(), QStringList({"Attitude"}));
    shown.source.send("Position{height: 7}");
    QCOMPARE(shown.names(), QStringList({"Attitude", "Position"}));
}

void tst_messagetreepanel::filter_isTypedWithCompletion()
{
    Shown shown;
    shown.source.send("Position{sats: [{state: Good}, {state: Lost}]}");
    QTreeWidgetItem *sats = shown.tree()->topLevelItem(0)->child(3);
    QTRY_COMPARE(sats->childCount(), 2);
    auto *edit = shown.panel.findChild<QLineEdit *>();
    QVERIFY(edit->isEnabled());
    edit->completer()->setCompletionPrefix("oo");
    QCOMPARE(edit->completer()->currentCompletion(), "Good");
    edit->setText("Good");
    QVERIFY(!sats->child(0)->isHidden());
    QVERIFY(sats->child(1)->isHidden());
    edit->clear();
    QVERIFY(!sats->child(1)->isHidden());
}

void tst_messagetreepanel::filter_withoutRepeatedSubMessages_saysSo()
{
    const TestFormat format("Flat", "A\n  mode uint8 {Off=0}\n");
    TestSource source(format);
    const corvane::LatestMessages latest(source);
    const corvane::MessageTreePanel panel(latest, *format.getInfo());
    const auto *edit = panel.findChild<QLineEdit *>();
    QVERIFY(!edit->isEnabled());
    QVERIFY(edit->placeholderText().startsWith("Nothing to filter"));
}

void tst_messagetreepanel::filter_isOfferedForElementsWithoutNamesToo()
{
    const TestFormat format("Lists", "A\n  list B[]\nB part\n  n int8\n");
    TestSource source(format);
    const corvane::LatestMessages latest(source);
    const corvane::MessageTreePanel panel(latest, *format.getInfo());
    QVERIFY(panel.findChild<QLineEdit *>()->isEnabled());
}

void tst_messagetreepanel::emptyTree_saysWhatWouldFillIt()
{
    Shown shown;
    const QString text = shown.tree()->accessibleDescription();
    QVERIFY2(text.startsWith("No message has come yet."), qPrintable(text));
    QVERIFY2(text.contains("all 2 known types"), qPrintable(text));
    const TestFormat none("None", "");
    const corvane::MessageTreePanel panel(shown.latest, *none.getInfo());
    QVERIFY(panel.getTree()->accessibleDescription().startsWith("No definitions are loaded"));
}

void tst_messagetreepanel::currentRow_isDescribedBelow()
{
    Shown shown;
    const auto says = [&](const QString &text) {
        for (const auto *label : shown.panel.findChildren<QLabel *>())
            if (label->text().endsWith(text))
                return true;
        return false;
    };
    shown.source.send("Position{height: 2}");
    QTRY_VERIFY(says("A right click offers more."));
    shown.tree()->setCurrentItem(shown.tree()->topLevelItem(0)->child(3));
    QTRY_VERIFY(says("Empty in the newest message."));
    shown.source.send("Position{sats: [{state: Good}]}");
    QTRY_VERIFY(says("Demo.Position.sats  ·  list of Satellite"));
}

void tst_messagetreepanel::longDescription_leavesTheRowsTheirRoom()
{
    const QString words = QString("word ").repeated(25);
    const TestFormat format("Long", QString("A\n  %1 int8 '%2'\n").arg(QString(60, 'x'), words));
    TestSource source(format);
    const corvane::LatestMessages latest(source);
    corvane::MessageTreePanel panel(latest, *format.getInfo());
    source.send("A{}");
    panel.resize(300, 400);
    panel.show();
    const int before = panel.getTree()->height();
    panel.getTree()->setCurrentItem(panel.getTree()->topLevelItem(0)->child(0));
    QCoreApplication::processEvents();
    QCOMPARE(panel.getTree()->height(), before);
    QVERIFY(before > 200);
}

void tst_messagetreepanel::currentRow_announcesItsType()
{
    Shown shown;
    shown.source.send("Attitude{roll: 1} Position{}");
    QList<const MessageInfo *> chosen;
    connect(&shown.panel, &corvane::MessageTreePanel::typeChosen, this,
            [&](const MessageInfo *type) { chosen.append(type); });
    shown.tree()->setCurrentItem(shown.tree()->topLevelItem(1)->child(0));
    shown.tree()->setCurrentItem(shown.tree()->topLevelItem(0));
    QCOMPARE(chosen, (QList<const MessageInfo *>{shown.format.type("Position"),
                                                 shown.format.type("Attitude")}));
}

void tst_messagetreepanel::settings_areRemembered()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("s.ini"), QSettings::IniFormat);
    Shown shown;
    shown.source.send("Position{}");
    shown.action("&Type")->trigger();
    shown.action("&Units")->trigger();
    shown.action("He&xadecimal")->trigger();
    shown.tree()->topLevelItem(0)->child(3)->setExpanded(true);
    shown.panel.saveSettings(settings);
    MessageTreeWidget::sFieldInfoExpandedCollapsedMap.clear();
    corvane::MessageTreePanel next(shown.latest, *shown.format.getInfo());
    next.restoreSettings(settings);
    QCOMPARE(next.getTree()->getColumns(), (QList<MessageTreeWidget::ColumnType>{
                                               MessageTreeWidget::Name, MessageTreeWidget::Value}));
    QVERIFY(MessageTreeWidget::sFieldInfoExpandedCollapsedMap.value(
        shown.format.field("Position.sats")));
    QVERIFY(!next.getTree()->areUnitsShown());
    QVERIFY(next.getTree()->isHexadecimalShown());
}

void tst_messagetreepanel::destructor_forgetsWhatWillBeGone()
{
    {
        Shown shown;
        shown.source.send("Position{}");
        shown.tree()->topLevelItem(0)->child(3)->setExpanded(true);
        QVERIFY(!MessageTreeWidget::sFieldInfoExpandedCollapsedMap.isEmpty());
    }
    QVERIFY(MessageTreeWidget::sFieldInfoExpandedCollapsedMap.isEmpty());
    QVERIFY(MessageTreeWidget::sMessageInfoExpandedCollapsedMap.isEmpty());
}

void tst_messagetreepanel::settings_ofNobody_startWithTheDefault_data()
{
    QTest::addColumn<QVariant>("columns");
    QTest::newRow("negative") << QVariant(QVariantList{0, -1});
    QTest::newRow("too great") << QVariant(QVariantList{0, 1000});
    QTest::newRow("twice") << QVariant(QVariantList{0, 2, 0});
    QTest::newRow("filler") << QVariant(QVariantList{0, 14});
    QTest::newRow("none") << QVariant(QVariantList{});
    QTest::newRow("text") << QVariant("012");
    QTest::newRow("words") << QVariant(QStringList{"Name", "Value"});
    QTest::newRow("bytes") << QVariant(QByteArray("\x01\x02"));
}

void tst_messagetreepanel::settings_ofNobody_startWithTheDefault()
{
    QFETCH(QVariant, columns);
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("s.ini"), QSettings::IniFormat);
    settings.setValue("tree/columns", columns);
    settings.setValue("tree/headerstate", QByteArray("no header"));
    Shown shown;
    shown.panel.restoreSettings(settings);
    QCOMPARE(shown.tree()->getColumns(),
             (QList<MessageTreeWidget::ColumnType>{MessageTreeWidget::Name, MessageTreeWidget::Type,
                                                   MessageTreeWidget::Value}));
    QVERIFY(!settings.contains("tree/columns"));
}

CORVANE_GUI_TEST_MAIN(tst_messagetreepanel)
#include "tst_messagetreepanel.moc"
