#include "statisticsscene.h"
#include "testcase.h"

#include <QApplication>

#include <memory>

using namespace corvane::test;
using corvane::MessageStatisticsData;

/** The row of one message type, and those below it. */
class TestMessageStatisticsTreeWidgetItem : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void countsWithoutTimeAndInterval();
    void keepsIntervalRowsWhereTheyAre();
    void dropsIntervalsThatDoNotCount();
    void tellsEqualTimesApart();
    void showsGaps_data();
    void showsGaps();
    void saysWhenTheListOfGapsIsIncomplete();
    void dropsTheGapsGroupWithTheLastGap();
    void removesEverySecondSurplusGap();
    void rewritesOnlyGapsThatDiffer();
    void showsGapNInRowNWhateverTheSorting_data();
    void showsGapNInRowNWhateverTheSorting();
    void takesAGapCountOfManyBitsAsNone();
    void copiesOfRowsShowTheSame();
};

void TestMessageStatisticsTreeWidgetItem::countsWithoutTimeAndInterval()
{
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.withUnknownTime = 4;
    scene.widget.updateTree();
    const QTreeWidgetItem *intervals = intervalsOf(scene.item());
    const auto rows = [&] {
        QStringList texts;
        for (int i = 0; i < intervals->childCount(); ++i)
            texts += intervals->child(i)->text(0) + ' ' + intervals->child(i)->text(1);
        return texts;
    };
    QCOMPARE(rows(), QStringList{"No time 4"});
    alpha.withUnknownTime = 5;
    alpha.withUnknownInterval = 2;
    scene.widget.updateTree();
    QCOMPARE(rows(), (QStringList{"No time 5", "Unknown interval/rate 2"}));
    alpha.withUnknownTime = 0;
    scene.widget.updateTree();
    QCOMPARE(rows(), QStringList{"Unknown interval/rate 2"});
    alpha.withUnknownInterval = 0;
    scene.widget.updateTree();
    QCOMPARE(rows(), QStringList());
    alpha.withUnknownTime = 1;
    scene.widget.updateTree();
    QCOMPARE(rows(), QStringList{"No time 1"});
    // Without sorting they stand where they are put: each new one first.
    scene.widget.setSortingEnabled(false);
    alpha.intervals = {50};
    alpha.intervalCounts = {{50, 2}};
    scene.widget.updateTree();
    alpha.withUnknownInterval = 3;
    scene.widget.updateTree();
    QCOMPARE(rows(), (QStringList{"Unknown interval/rate 3", "No time 1", "interval 50 2"}));
}

void TestMessageStatisticsTreeWidgetItem::keepsIntervalRowsWhereTheyAre()
{
    Scene scene;
    scene.widget.setSortingEnabled(false);
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.intervals = {50, 20};
    alpha.intervalCounts = {{50, 9}, {20, 1}};
    scene.widget.updateTree();
    const QTreeWidgetItem *intervals = intervalsOf(scene.item());
    QCOMPARE(column(intervals, MessageColumn), (QStringList{"interval 50", "interval 20"}));
    const QTreeWidgetItem *first = intervals->child(0);
    alpha.intervals = {20, 50, 70};
    alpha.intervalCounts = {{50, 9}, {20, 10}, {70, 1}};
    scene.widget.updateTree();
    QCOMPARE(column(intervals, MessageColumn),
             (QStringList{"interval 50", "interval 20", "interval 70"}));
    QCOMPARE(column(intervals, CountColumn), (QStringList{"9", "10", "1"}));
    QCOMPARE(intervals->child(0), first);
}

void TestMessageStatisticsTreeWidgetItem::dropsIntervalsThatDoNotCount()
{
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.intervals = {50, 20, 10};
    alpha.intervalCounts = {{50, 9}, {20, 1}}; // 10 has no count
    scene.widget.updateTree();
    const QTreeWidgetItem *intervals = intervalsOf(scene.item());
    QCOMPARE(column(intervals, MessageColumn), (QStringList{"interval 20", "interval 50"}));
    alpha.intervalCounts[50] = 0;
    scene.widget.updateTree();
    QCOMPARE(column(intervals, MessageColumn), QStringList{"interval 20"});
    alpha.intervals = {};
    scene.widget.updateTree();
    QCOMPARE(intervals->childCount(), 0);
    alpha.intervals = {50};
    alpha.intervalCounts[50] = 3;
    scene.widget.updateTree();
    QCOMPARE(column(intervals, CountColumn), QStringList{"3"});
}

void TestMessageStatisticsTreeWidgetItem::tellsEqualTimesApart()
{
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.intervals = {0};
    alpha.intervalCounts = {{0, 2}};
    scene.widget.updateTree();
    const QTreeWidgetItem *row = intervalsOf(scene.item())->child(0);
    QCOMPARE(row->text(MessageColumn), "interval 0");
    const QString toolTip
        = "Number of times the messages was received\nwith the same time stamp as previous.";
    QCOMPARE(row->toolTip(MessageColumn), toolTip);
    QCOMPARE(row->toolTip(CountColumn), toolTip);
}

void TestMessageStatisticsTreeWidgetItem::showsGaps_data()
{
    QTest::addColumn<quint32>("missing");
    QTest::addColumn<qint64>("interval");
    QTest::addColumn<QString>("duration");

    QTest::newRow("seconds and a half") << 3U << qint64(500) << "1.5 s";
    QTest::newRow("below a second") << 2U << qint64(400) << "800 ms";
    QTest::newRow("exactly a second") << 1U << qint64(1000) << "1 s";
    QTest::newRow("just below") << 1U << qint64(999) << "999 ms";
    QTest::newRow("two seconds") << 20U << qint64(100) << "2 s";
    QTest::newRow("six digits") << 1U << qint64(1'234'567) << "1234.57 s";
    QTest::newRow("many seconds") << 2'000'000U << qint64(1000) << "2e+06 s";
    QTest::newRow("beyond 32 bits") << 3U << qint64(1'000'000'000) << "-1294967296 ms";
    QTest::newRow("an interval beyond 32 bits") << 1U << (qint64(1) << 32) + 5 << "5 ms";
}

void TestMessageStatisticsTreeWidgetItem::showsGaps()
{
    QFETCH(quint32, missing);
    QFETCH(qint64, interval);
    QFETCH(QString, duration);
    Scene scene;
    scene.add("Alpha").gaps = {{77, missing, interval}};
    scene.widget.updateTree();
    const QTreeWidgetItem *row = gapsOf(scene.item())->child(0);
    QCOMPARE(row->text(MessageColumn), "time 77");
    QCOMPARE(row->text(CountColumn), QString::number(missing));
    QCOMPARE(row->text(RateColumn), duration);
}

void TestMessageStatisticsTreeWidgetItem::saysWhenTheListOfGapsIsIncomplete()
{
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.gaps = makeGaps(2);
    scene.widget.updateTree();
    QTreeWidgetItem *gaps = gapsOf(scene.item());
    alpha.unstoredGaps = true;
    scene.widget.updateTree();
    QCOMPARE(gaps->text(MessageColumn), "Gaps (incomplete list)");
    alpha.unstoredGaps = false;
    scene.widget.updateTree();
    QCOMPARE(gaps->text(MessageColumn), "Gaps");
}

void TestMessageStatisticsTreeWidgetItem::dropsTheGapsGroupWithTheLastGap()
{
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.gaps = makeGaps(2);
    scene.widget.updateTree();
    alpha.gaps.clear();
    scene.widget.updateTree();
    QCOMPARE(gapsOf(scene.item()), nullptr);
    // The same gaps again are written again: nothing is left of what was shown.
    alpha.gaps = makeGaps(2);
    scene.widget.updateTree();
    QCOMPARE(column(gapsOf(scene.item()), MessageColumn), (QStringList{"time 1000", "time 1001"}));
}

void TestMessageStatisticsTreeWidgetItem::removesEverySecondSurplusGap()
{
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.gaps = makeGaps(6);
    scene.widget.updateTree();
    alpha.gaps = makeGaps(2);
    scene.widget.updateTree();
    QCOMPARE(column(gapsOf(scene.item()), MessageColumn),
             (QStringList{"time 1000", "time 1001", "time 1003", "time 1005"}));
    // What was shown is forgotten as far as the list was cut: row 2 is written anew.
    alpha.gaps = makeGaps(3);
    alpha.gaps[2].start = 5;
    scene.widget.updateTree();
    QCOMPARE(column(gapsOf(scene.item()), MessageColumn),
             (QStringList{"time 1000", "time 1001", "time 5"}));
}

void TestMessageStatisticsTreeWidgetItem::rewritesOnlyGapsThatDiffer()
{
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.gaps = makeGaps(3);
    scene.widget.updateTree();
    const QTreeWidgetItem *gaps = gapsOf(scene.item());
    for (int i = 0; i < 3; ++i)
        gaps->child(i)->setText(MessageColumn, "untouched");
    alpha.gaps[1].interval = 101;
    scene.widget.updateTree();
    QCOMPARE(column(gaps, MessageColumn), (QStringList{"untouched", "time 1001", "untouched"}));
    alpha.gaps[0].start = 9;
    alpha.gaps[2].missingEpochs = 9;
    scene.widget.updateTree();
    QCOMPARE(column(gaps, MessageColumn), (QStringList{"time 9", "time 1001", "time 1002"}));
    QCOMPARE(gaps->child(2)->text(CountColumn), "9");
}

void TestMessageStatisticsTreeWidgetItem::showsGapNInRowNWhateverTheSorting_data()
{
    QTest::addColumn<int>("sortColumn");
    QTest::addColumn<Qt::SortOrder>("order");

    for (int column = MessageColumn; column <= GapsColumn; ++column) {
        QTest::addRow("column %d up", column) << column << Qt::AscendingOrder;
        QTest::addRow("column %d down", column) << column << Qt::DescendingOrder;
    }
}

void TestMessageStatisticsTreeWidgetItem::showsGapNInRowNWhateverTheSorting()
{
    QFETCH(int, sortColumn);
    QFETCH(Qt::SortOrder, order);
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.gaps = makeGaps(9);
    alpha.gaps[4].start = 5; // the clock was set
    scene.widget.updateTree();
    scene.item()->setExpanded(true);
    gapsOf(scene.item())->setExpanded(true);
    scene.widget.resize(400, 400);
    scene.widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&scene.widget));
    scene.widget.sortByColumn(sortColumn, order);
    for (int count = 10; count < 40; ++count) {
        alpha.gaps.append({static_cast<quint64>(3000 - count * 7), 40U - count, 10});
        scene.widget.updateTree();
        if (count % 3 == 0)
            QCoreApplication::processEvents();
    }
    QStringList expected;
    for (const MessageStatistics::Gap &gap : std::as_const(alpha.gaps))
        expected += QStringLiteral("time %1").arg(gap.start);
    QCOMPARE(column(gapsOf(scene.item()), MessageColumn), expected);
}

void TestMessageStatisticsTreeWidgetItem::takesAGapCountOfManyBitsAsNone()
{
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.gapCount = 0x80000000U;
    scene.widget.updateTree();
    QCOMPARE(scene.item()->text(GapsColumn), "");
    alpha.gapCount = 0x7fffffffU;
    scene.widget.updateTree();
    QCOMPARE(scene.item()->text(GapsColumn), "2147483647 (0 epochs)");
}

void TestMessageStatisticsTreeWidgetItem::copiesOfRowsShowTheSame()
{
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.intervals = {50};
    alpha.intervalCounts = {{50, 12}};
    alpha.gaps = makeGaps(1);
    scene.widget.updateTree();
    for (const QTreeWidgetItem *group : {intervalsOf(scene.item()), gapsOf(scene.item())}) {
        const std::unique_ptr<QTreeWidgetItem> copy(group->child(0)->clone());
        for (int column = MessageColumn; column <= GapsColumn; ++column)
            QCOMPARE(copy->text(column), group->child(0)->text(column));
        QVERIFY(!copy->text(CountColumn).isEmpty());
    }
}

CORVANE_GUI_TEST_MAIN(TestMessageStatisticsTreeWidgetItem)
#include "tst_messagestatisticstreewidgetitem.moc"
