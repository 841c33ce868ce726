#include "eventlog.h"
#include "eventlogpanel.h"
#include "eventlogtablewidget.h"
#include "messageinfo.h"
#include "messagestatisticswidget.h"
#include "reception.h"
#include "senderspanel.h"
#include "statisticspanel.h"
#include "steadytreewidget.h"
#include "testcase.h"
#include "testformat.h"
#include "treeprinter.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QToolButton>

using namespace corvane;
using namespace corvane::test;

class tst_receptionpanels : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void statistics_sayWhatWouldFillThem();
    void statistics_showWhatIsReceived();
    void statistics_rememberTheirSorting();
    void statistics_surviveBrokenSettings();
    void senders_showLossesAndDamage();
    void senders_listClaimedTypesOnceExpanded();
    void senders_sortClaimedTypesByTheirErrors();
    void senders_withoutChecksum_haveNoErrorColumn();
    void events_showOnlyWhatIsLookedFor();
    void events_followTheirEndUntilScrolledBack();
    void events_startAgainWhenTheLogIsCleared();
    void events_ofALongLog_areFilteredAtOnce();
    void events_ofAFullLog_areShownAgainSoon_data();
    void events_ofAFullLog_areShownAgainSoon();
    void events_ofAFullLog_enterInSlices();
    void events_clearedWhileFiltered_areShownAfterwards();
};

namespace {

/** A reception of a type, 50 ms apart, of which some frames were damaged or lost. */
class Scene
{
public:
    explicit Scene(bool hasChecksum = true)
        : reception(
            format.getInfo(),
            [](quint32 id) { return QStringLiteral("unit %1").arg(id); },
            hasChecksum)
    {
    }

    FrameHeader frame(quint32 sequence, quint32 sender = 1) const
    {
        return {format.type("A"), 7, sender, sequence, 1'000'000 + sequence * 50'000LL};
    }

    const TestFormat format{"Demo", "A\n x int8\nB\n x int8\n"};
    Reception reception;
};

EventLog::Entry entry(const QString &text)
{
    return {{}, CorvaneEvent(CorvaneEvent::Other, text)};
}

QStringList shownEvents(const QTableWidget &table)
{
    QStringList texts;
    for (int row = 0; row < table.rowCount(); ++row)
        if (!table.isRowHidden(row))
            texts += table.item(row, 1)->text();
    return texts;
}

} // namespace

void tst_receptionpanels::statistics_sayWhatWouldFillThem()
{
    Scene scene;
    StatisticsPanel panel(*scene.reception.getStatistics());
    panel.show();
    const auto *hint = panel.findChild<QLabel *>();
    QVERIFY(hint->isVisible());
    scene.reception.receiveFrame(scene.frame(0));
    panel.refresh();
    QVERIFY(!hint->isVisible());
}

void tst_receptionpanels::statistics_showWhatIsReceived()
{
    Scene scene;
    StatisticsPanel panel(*scene.reception.getStatistics());
    const auto *tree = panel.findChild<MessageStatisticsWidget *>();
    for (quint32 i = 0; i < 100; ++i)
        if (i != 40)
            scene.reception.receiveFrame(scene.frame(i));
    scene.reception.receiveDamagedFrame(scene.frame(40), "damaged");
    FrameHeader noise = scene.frame(41);
    noise.messageInfo = scene.format.type("B");
    scene.reception.receiveDamagedFrame(noise, "damaged");
    panel.refresh(); // nobody sees it
    QCOMPARE(tree->topLevelItemCount(), 0);
    panel.show();
    QCOMPARE(printed(*tree), lines(R"(
        CRC Errors | 2 |  |
        Demo |  |  |
          +A | 99 | 50 ms (20 Hz) | 1 (1 epochs)
            +Gaps |  |  |
              1970-01-01T00:00:02.950Z | 1 | 50 ms |
            +Rates/Intervals |  |  |
              100 ms (10 Hz) | 1 |  |
              50 ms (20 Hz) | 98 |  |
    )"));
}

void tst_receptionpanels::statistics_rememberTheirSorting()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    Scene scene;
    {
        StatisticsPanel panel(*scene.reception.getStatistics());
        panel.restoreSettings(settings);
        panel.findChild<MessageStatisticsWidget *>()->sortByColumn(1, Qt::DescendingOrder);
        panel.saveSettings(settings);
    }
    StatisticsPanel panel(*scene.reception.getStatistics());
    panel.restoreSettings(settings);
    const auto *tree = panel.findChild<MessageStatisticsWidget *>();
    QCOMPARE(tree->sortColumn(), 1);
    QCOMPARE(tree->header()->sortIndicatorOrder(), Qt::DescendingOrder);
}

void tst_receptionpanels::statistics_surviveBrokenSettings()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    Scene scene;
    for (const QVariant &broken : {QVariant(4), QVariant(-2), QVariant("text"), QVariant(1e12)}) {
        settings.setValue("statistics/sortColumn", broken);
        settings.setValue("statistics/sortOrder", broken);
        settings.setValue("statistics/headerstate", QByteArray("no header"));
        StatisticsPanel panel(*scene.reception.getStatistics());
        panel.restoreSettings(settings);
        QCOMPARE(panel.findChild<MessageStatisticsWidget *>()->sortColumn(), 0);
    }
}

void tst_receptionpanels::senders_showLossesAndDamage()
{
    Scene scene;
    SendersPanel panel(scene.reception);
    panel.show();
    auto *tree = panel.findChild<SteadyTreeWidget *>();
    QVERIFY(tree->columnWidth(3) > tree->fontMetrics().horizontalAdvance("99999999")); // "Lost"
    QVERIFY(panel.findChild<QLabel *>()->isVisible());
    scene.reception.receiveFrame(scene.frame(0));
    scene.reception.receiveFrame(scene.frame(4));
    scene.reception.receiveFrame(scene.frame(0, 2));
    scene.reception.receiveDamagedFrame(scene.frame(5), "damaged");
    panel.refresh();
    QVERIFY(!panel.findChild<QLabel *>()->isVisible());
    tree->expandAll();
    panel.refresh();
    QCOMPARE(printed(*tree), lines(R"(
        unit 1 | 2 | 1 | 3 | 1
          A |  |  |  | 1
        unit 2 | 1 | 0 | 0 | 0
    )"));
    scene.reception.receiveDamagedFrame(scene.frame(6), "damaged");
    panel.refresh();
    QCOMPARE(tree->topLevelItem(0)->child(0)->text(4), "2");
    QCOMPARE(tree->topLevelItem(0)->child(0)->textAlignment(4),
             tree->topLevelItem(0)->textAlignment(4));
}

void tst_receptionpanels::senders_listClaimedTypesOnceExpanded()
{
    Scene scene;
    SendersPanel panel(scene.reception);
    panel.show();
    auto *tree = panel.findChild<SteadyTreeWidget *>();
    scene.reception.receiveFrame(scene.frame(0));
    panel.refresh();
    QTreeWidgetItem *sender = tree->topLevelItem(0);
    QCOMPARE(sender->childIndicatorPolicy(), QTreeWidgetItem::DontShowIndicatorWhenChildless);
    scene.reception.receiveDamagedFrame(scene.frame(1), "damaged");
    panel.refresh();
    QCOMPARE(sender->childIndicatorPolicy(), QTreeWidgetItem::ShowIndicator);
    QCOMPARE(sender->childCount(), 0);
    tree->setCurrentItem(sender);
    QTest::keyClick(tree, Qt::Key_Right);
    QCOMPARE(sender->childCount(), 1);
    QCOMPARE(sender->child(0)->text(4), "1");
    QTest::keyClick(tree, Qt::Key_Left);
    scene.reception.receiveDamagedFrame(scene.frame(2), "damaged");
    panel.refresh();
    QTest::keyClick(tree, Qt::Key_Right);
    QCOMPARE(sender->child(0)->text(4), "2");
}

void tst_receptionpanels::senders_sortClaimedTypesByTheirErrors()
{
    Scene scene;
    SendersPanel panel(scene.reception);
    panel.show();
    auto *tree = panel.findChild<SteadyTreeWidget *>();
    for (quint32 i = 0; i < 12; ++i) {
        FrameHeader frame = scene.frame(i);
        frame.messageInfo = scene.format.type(i < 9 ? "A" : "B");
        scene.reception.receiveDamagedFrame(frame, "damaged");
    }
    panel.refresh();
    tree->sortByColumn(4, Qt::AscendingOrder);
    const QTreeWidgetItem *sender = tree->topLevelItem(0);
    tree->expandItem(sender);
    QCOMPARE(sender->child(0)->text(0), "B");
    // Numbers, of which 9 is less than 13.
    for (quint32 i = 12; i < 22; ++i) {
        FrameHeader frame = scene.frame(i);
        frame.messageInfo = scene.format.type("B");
        scene.reception.receiveDamagedFrame(frame, "damaged");
    }
    panel.refresh();
    QCOMPARE(sender->child(0)->text(0), "A");
    QCOMPARE(sender->child(1)->text(4), "13");
}

void tst_receptionpanels::senders_withoutChecksum_haveNoErrorColumn()
{
    Scene scene(false);
    const SendersPanel panel(scene.reception);
    QVERIFY(panel.findChild<SteadyTreeWidget *>()->isColumnHidden(4));
    Scene other(true);
    const SendersPanel otherPanel(other.reception);
    QVERIFY(!otherPanel.findChild<SteadyTreeWidget *>()->isColumnHidden(4));
}

void tst_receptionpanels::events_showOnlyWhatIsLookedFor()
{
    EventLog log;
    log.addEntry(entry("CRC error: A"));
    EventLogPanel panel(log);
    panel.show();
    log.addEntry(entry("lost"));
    auto *edit = panel.findChild<QLineEdit *>();
    const auto *table = panel.findChild<EventLogTableWidget *>();
    const auto *state = panel.findChild<QLabel *>();
    QTRY_COMPARE(state->text(), "Entries: 2");
    QTest::keyClicks(edit, "crc");
    QTRY_COMPARE(shownEvents(*table), QStringList{"CRC error: A"});
    log.addEntry(entry("crc error: B"));
    log.addEntry(entry("lost again"));
    QTRY_COMPARE(state->text(), "Entries: 2 of 4");
    QCOMPARE(shownEvents(*table), (QStringList{"CRC error: A", "crc error: B"}));
    edit->clear();
    QTRY_COMPARE(shownEvents(*table).size(), 4);
}

void tst_receptionpanels::events_followTheirEndUntilScrolledBack()
{
    EventLog log;
    EventLogPanel panel(log);
    panel.resize(500, 300);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    const auto *table = panel.findChild<EventLogTableWidget *>();
    const QScrollBar *bar = table->verticalScrollBar();
    int total = 0;
    const auto add = [&](int count) {
        for (int i = 0; i < count; ++i)
            log.addEntry(entry("event"));
        total += count;
        QTRY_COMPARE(table->rowCount(), total);
        QCoreApplication::processEvents();
    };
    add(100);
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), bar->maximum());
    auto *button = panel.findChild<QToolButton *>();
    QVERIFY(!button->isEnabled());

    const_cast<QScrollBar *>(bar)->setValue(10);
    QVERIFY(!panel.isFollowing());
    QVERIFY(panel.findChild<QLabel *>()->text().endsWith("not following"));
    add(10);
    QCOMPARE(bar->value(), 10);
    const_cast<QScrollBar *>(bar)->setValue(bar->maximum());
    add(10);
    QCOMPARE(bar->value(), bar->maximum());

    const_cast<QScrollBar *>(bar)->setValue(10);
    button->click();
    QCOMPARE(bar->value(), bar->maximum());
    add(10);
    QCOMPARE(bar->value(), bar->maximum());
}

void tst_receptionpanels::events_startAgainWhenTheLogIsCleared()
{
    EventLog log;
    EventLogPanel panel(log);
    log.addEntry(entry("one"));
    log.clear();
    QTRY_VERIFY(panel.findChild<QLabel *>()->text().startsWith("No events"));
    panel.setFilter("t");
    log.addEntry(entry("two"));
    log.addEntry(entry("one"));
    QTRY_COMPARE(panel.findChild<QLabel *>()->text(), "Entries: 1 of 2");
}

void tst_receptionpanels::events_ofALongLog_areFilteredAtOnce()
{
    EventLog log;
    constexpr int count = 20'000;
    for (int i = 0; i < count; ++i)
        log.addEntry(entry(QString::number(i)));
    EventLogPanel panel(log);
    panel.show();
    panel.setFilter("77");
    QStringList expected;
    for (int i = 0; i < count; ++i)
        if (QString::number(i).contains("77"))
            expected += QString::number(i);
    QTRY_COMPARE(shownEvents(*panel.findChild<EventLogTableWidget *>()), expected);
}

void tst_receptionpanels::events_ofAFullLog_areShownAgainSoon_data()
{
    QTest::addColumn<QString>("filter");
    QTest::newRow("all") << QString();
    QTest::newRow("some") << "77";
    QTest::newRow("none") << "nothing";
}

void tst_receptionpanels::events_ofAFullLog_areShownAgainSoon()
{
    QFETCH(QString, filter);
    EventLog log;
    EventLogPanel panel(log);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    panel.setFilter(filter);
    QElapsedTimer timer;
    timer.start();
    constexpr int limit = 20'000;
    for (int i = 0; i < limit; ++i)
        log.addEntry(entry(QString::number(i)));
    const auto *table = panel.findChild<EventLogTableWidget *>();
    QTRY_COMPARE(table->rowCount(), limit);
    log.addEntry(entry("77 is the last one")); // half of them go, the others come anew
    QTRY_COMPARE(table->rowCount(), limit / 2 + 2);
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    QStringList expected;
    const auto entries = log.getEntries();
    for (const EventLog::Entry &each : entries)
        if (each.event.getMessage().contains(filter))
            expected += each.event.getMessage();
    QTRY_COMPARE(shownEvents(*table), expected);
}

void tst_receptionpanels::events_ofAFullLog_enterInSlices()
{
    EventLog log;
    EventLogPanel panel(log);
    panel.show();
    const auto *table = panel.findChild<EventLogTableWidget *>();
    constexpr int limit = 20'000;
    for (int i = 0; i < limit; ++i)
        log.addEntry(entry(QString::number(i)));
    QCOMPARE(table->rowCount(), 0);
    int rounds = 0;
    for (; table->rowCount() < limit; ++rounds)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QVERIFY(rounds > 1);
    log.clear();
    QCOMPARE(table->rowCount(), 0);
}

void tst_receptionpanels::events_clearedWhileFiltered_areShownAfterwards()
{
    EventLog log;
    EventLogPanel panel(log);
    panel.show();
    for (int i = 0; i < 100; ++i)
        log.addEntry(entry(QString::number(i)));
    panel.setFilter("nothing");
    const auto *table = panel.findChild<EventLogTableWidget *>();
    QTRY_COMPARE(table->rowCount(), 100);
    QTRY_COMPARE(shownEvents(*table), QStringList());
    log.clear();
    panel.setFilter({});
    log.addEntry(entry("one"));
    QTRY_COMPARE(shownEvents(*table), QStringList{"one"});
    panel.setFilter("two");
    log.clear();
    log.addEntry(entry("two"));
    log.addEntry(entry("three"));
    QTRY_COMPARE(panel.findChild<QLabel *>()->text(), "Entries: 1 of 2");
    QCOMPARE(shownEvents(*table), QStringList{"two"});
}

CORVANE_GUI_TEST_MAIN(tst_receptionpanels)
#include "tst_receptionpanels.moc"
