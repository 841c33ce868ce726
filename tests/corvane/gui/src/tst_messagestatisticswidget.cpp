#include "echotranslator.h"
#include "metaobjects.h"
#include "statisticsscene.h"
#include "testcase.h"
#include "treeprinter.h"

#include <QApplication>
#include <QHeaderView>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <limits>

using namespace corvane::test;
using corvane::MessageStatisticsData;

namespace {

constexpr int narrow = 40; // narrower than the title of any column but 1

} // namespace

class TestMessageStatisticsWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isASortedTreeOfFourColumns();
    void declaresTwoSlots();
    void showsNothingOfNothing();
    void showsNothingOfANullCoordinator();
    void showsFormatsAndMessages();
    void keepsFormatsApart();
    void explainsItsRows();
    void namesUnknownMessages();
    void updatesWhatChanged();
    void changesNothingWithoutNews();
    void removesRowsOfStatisticsThatAreGone();
    void removesFormatsWithoutMessages();
    void showsTheGapsColumnByNeed();
    void looksForGapsUntilTheFirst();
    void setsTheGapsColumnOnlyWhenItChanges();
    void showsCrcErrorsWhileThereAreSome();
    void expandsAMessageWithItsIntervals();
    void remembersHeaderAndSorting();
    void startsWithDefaultsWithoutSettings();
    void sortsMessagesByNumberAndIntervalsByText();
    void translatesInItsContexts();
};

void TestMessageStatisticsWidget::isASortedTreeOfFourColumns()
{
    Scene scene;
    const MessageStatisticsWidget &widget = scene.widget;
    QStringList titles;
    for (int i = 0; i < widget.columnCount(); ++i)
        titles += widget.headerItem()->text(i);
    QCOMPARE(titles, (QStringList{"Message", "Count", "Current rate/interval", "Gaps"}));
    QVERIFY(widget.isSortingEnabled());
    QCOMPARE(widget.sortColumn(), 0);
    QCOMPARE(widget.header()->sortIndicatorOrder(), Qt::AscendingOrder);
    QCOMPARE(widget.indentation(), 10);
    QCOMPARE(widget.columnWidth(MessageColumn), 150);
    QVERIFY(widget.isColumnHidden(GapsColumn));
}

void TestMessageStatisticsWidget::declaresTwoSlots()
{
    QCOMPARE(ownMethods(MessageStatisticsWidget::staticMetaObject),
             (QStringList{"slot updateTree()", "slot processItemExpanded(QTreeWidgetItem*)"}));
    QCOMPARE(MessageStatisticsWidget::staticMetaObject.superClass(),
             &QTreeWidget::staticMetaObject);
}

void TestMessageStatisticsWidget::showsNothingOfNothing()
{
    Scene scene;
    scene.widget.updateTree();
    QCOMPARE(scene.widget.topLevelItemCount(), 0);
    QVERIFY(scene.widget.isColumnHidden(GapsColumn));
}

void TestMessageStatisticsWidget::showsNothingOfANullCoordinator()
{
    MessageStatisticsWidget widget(nullptr);
    widget.updateTree();
    QCOMPARE(widget.topLevelItemCount(), 0);
}

void TestMessageStatisticsWidget::showsFormatsAndMessages()
{
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.count = 12;
    alpha.regular = true;
    alpha.lastInterval = 50;
    alpha.intervals = {50, 100};
    alpha.intervalCounts = {{50, 9}, {100, 2}};
    alpha.gapCount = 1;
    alpha.missingEpochs = 3;
    alpha.gaps = {{1000, 3, 500}};
    MessageStatisticsData &beta = scene.add("Beta");
    beta.count = 1;
    beta.lastInterval = 70;
    beta.withUnknownTime = 1;
    scene.coordinator.getData()->crcErrors = 5;
    scene.widget.updateTree();
    QCOMPARE(printed(scene.widget), lines(R"(
        CRC Errors | 5 |  |
        Demo |  |  |
          +Alpha | 12 | interval 50 | 1 (3 epochs)
            +Gaps |  |  |
              time 1000 | 3 | 1.5 s |
            +Rates/Intervals |  |  |
              interval 100 | 2 |  |
              interval 50 | 9 |  |
          +Beta | 1 | N/A |
            +Rates/Intervals |  |  |
              No time | 1 |  |
    )"));
    QCOMPARE(scene.item()->data(CountColumn, Qt::DisplayRole).typeId(), QMetaType::ULongLong);
    QCOMPARE(childOf(intervalsOf(scene.item()), "interval 50")
                 ->data(CountColumn, Qt::DisplayRole)
                 .typeId(),
             QMetaType::QString);
    QCOMPARE(scene.item()->type(), 0);
    QCOMPARE(scene.item()->getMessageStatistics(), scene.coordinator.getData()->all.front().get());
}

void TestMessageStatisticsWidget::keepsFormatsApart()
{
    Scene scene;
    const TestFormat other("Another", "Gamma 'Third'\n  c int8\n");
    scene.add("Alpha");
    scene.coordinator.getData()->add(other.getInfo(), other.type("Gamma"), "Gamma");
    scene.add("Beta");
    scene.widget.updateTree();
    QCOMPARE(scene.widget.topLevelItemCount(), 2);
    QCOMPARE(column(scene.widget.topLevelItem(0), MessageColumn), QStringList{"Gamma"});
    QCOMPARE(column(scene.widget.topLevelItem(1), MessageColumn), (QStringList{"Alpha", "Beta"}));
    QVERIFY(scene.widget.topLevelItem(0)->isExpanded());
    QVERIFY(scene.widget.topLevelItem(1)->isExpanded());
}

void TestMessageStatisticsWidget::explainsItsRows()
{
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.withUnknownTime = 1;
    alpha.withUnknownInterval = 2;
    alpha.intervals = {50};
    alpha.intervalCounts = {{50, 9}};
    alpha.gaps = makeGaps(1);
    scene.widget.updateTree();
    const QTreeWidgetItem *item = scene.item();
    QCOMPARE(scene.formatItem()->toolTip(MessageColumn),
             "Message statistics for the messages\nin the Demo format.");
    QCOMPARE(item->toolTip(MessageColumn), "The first one");
    QCOMPARE(item->toolTip(CountColumn), "Number of times the Alpha\nmessage has been received.");
    QCOMPARE(item->toolTip(RateColumn),
             "Most recent regular rate/interval at which the Alpha\nmessage has been received.");
    QCOMPARE(item->toolTip(GapsColumn),
             "Detected gaps in regular data segments with valid time, if any.");
    const QTreeWidgetItem *intervals = intervalsOf(item);
    QCOMPARE(intervals->toolTip(MessageColumn),
             "The rates/intervals in which this message has been received,\n"
             "together with the corresponding count.");
    const auto compareBoth = [&](const QString &title, const QString &toolTip) {
        const QTreeWidgetItem *row = childOf(intervals, title);
        QVERIFY(row != nullptr);
        QCOMPARE(row->toolTip(MessageColumn), toolTip);
        QCOMPARE(row->toolTip(CountColumn), toolTip);
    };
    compareBoth("No time", "The number of times this message \n"
                           "has been received without a valid time tag.");
    compareBoth("Unknown interval/rate", "Number of times this message has been received \n"
                                         "with a valid time tag but for which the interval \n"
                                         "could not be determined: \n"
                                         "there was no previous message with valid time, \n"
                                         "and the following messages did not \n"
                                         "come in at a regular rate.");
    compareBoth("interval 50", "Number of times the message was received at interval 50.");
    QCOMPARE(gapsOf(item)->toolTip(MessageColumn), "Gaps, with time and duration");
    const QTreeWidgetItem *gap = gapsOf(item)->child(0);
    QCOMPARE(gap->toolTip(MessageColumn), "Gaps start");
    QCOMPARE(gap->toolTip(CountColumn), "Missing epochs");
    QCOMPARE(gap->toolTip(RateColumn), "Duration");
    QCOMPARE(gap->type(), 0);
}

void TestMessageStatisticsWidget::namesUnknownMessages()
{
    Scene scene;
    scene.coordinator.getData()->add(scene.format.getInfo(), nullptr, "Demo 77");
    scene.widget.updateTree();
    QCOMPARE(scene.item()->text(MessageColumn), "Demo 77");
    QCOMPARE(scene.item()->toolTip(MessageColumn), "Demo 77 (unknown)");
}

void TestMessageStatisticsWidget::updatesWhatChanged()
{
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    scene.widget.updateTree();
    QTreeWidgetItem *item = scene.item();
    alpha.count = std::numeric_limits<unsigned int>::max();
    alpha.regular = true;
    alpha.lastInterval = 20;
    alpha.gapCount = 2;
    alpha.missingEpochs = 7;
    scene.widget.updateTree();
    QCOMPARE(scene.item(), item);
    QCOMPARE(item->data(CountColumn, Qt::DisplayRole).toULongLong(), 4294967295ULL);
    QCOMPARE(item->text(RateColumn), "interval 20");
    QCOMPARE(item->text(GapsColumn), "2 (7 epochs)");
    alpha.regular = false;
    alpha.gapCount = 0;
    scene.widget.updateTree();
    QCOMPARE(item->text(RateColumn), "N/A");
    QCOMPARE(item->text(GapsColumn), "");
}

void TestMessageStatisticsWidget::changesNothingWithoutNews()
{
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.count = 3;
    alpha.intervals = {50};
    alpha.intervalCounts = {{50, 2}};
    alpha.gaps = makeGaps(3);
    scene.coordinator.getData()->crcErrors = 1;
    scene.widget.updateTree();
    const QSignalSpy changes(&scene.widget, &QTreeWidget::itemChanged);
    scene.widget.updateTree();
    QCOMPARE(changes.size(), 0);
}

void TestMessageStatisticsWidget::removesRowsOfStatisticsThatAreGone()
{
    Scene scene;
    scene.add("Alpha");
    scene.add("Beta");
    scene.widget.updateTree();
    scene.coordinator.getData()->remove("Alpha");
    scene.widget.updateTree();
    QCOMPARE(column(scene.formatItem(), MessageColumn), QStringList{"Beta"});
    // A type that comes back has new statistics and a new row.
    scene.add("Alpha").count = 7;
    scene.widget.updateTree();
    QCOMPARE(column(scene.formatItem(), CountColumn), (QStringList{"7", "0"}));
}

void TestMessageStatisticsWidget::removesFormatsWithoutMessages()
{
    Scene scene;
    scene.add("Alpha");
    scene.widget.updateTree();
    scene.coordinator.getData()->remove("Alpha");
    scene.widget.updateTree();
    QCOMPARE(scene.widget.topLevelItemCount(), 0);
    scene.add("Beta");
    scene.widget.updateTree();
    QCOMPARE(column(scene.formatItem(), MessageColumn), QStringList{"Beta"});
}

void TestMessageStatisticsWidget::showsTheGapsColumnByNeed()
{
    Scene scene;
    scene.add("Alpha");
    MessageStatisticsData &beta = scene.add("Beta");
    scene.widget.header()->setStretchLastSection(false);
    scene.widget.setColumnWidth(RateColumn, narrow);
    scene.widget.updateTree();
    QVERIFY(scene.widget.isColumnHidden(GapsColumn));
    QCOMPARE(scene.widget.columnWidth(RateColumn), narrow);
    beta.gaps = makeGaps(1);
    scene.widget.updateTree();
    QVERIFY(!scene.widget.isColumnHidden(GapsColumn));
    QVERIFY(scene.widget.columnWidth(RateColumn) > narrow);
    scene.widget.setColumnWidth(RateColumn, narrow);
    scene.widget.updateTree();
    QCOMPARE(scene.widget.columnWidth(RateColumn), narrow);
    beta.gaps.clear();
    scene.widget.updateTree();
    QVERIFY(scene.widget.isColumnHidden(GapsColumn));
    QVERIFY(scene.widget.columnWidth(RateColumn) > narrow);
}

void TestMessageStatisticsWidget::looksForGapsUntilTheFirst()
{
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    MessageStatisticsData &beta = scene.add("Beta");
    alpha.gaps = makeGaps(1);
    scene.widget.updateTree();
    // Once for the rows of each; once more for the column, where that is not decided yet.
    QCOMPARE(alpha.gapsAsked, 2);
    QCOMPARE(beta.gapsAsked, 1);
}

void TestMessageStatisticsWidget::setsTheGapsColumnOnlyWhenItChanges()
{
    Scene scene;
    scene.widget.header()->setStretchLastSection(false);
    scene.widget.setColumnWidth(RateColumn, narrow);
    scene.widget.setGapsColumnVisible(false);
    QCOMPARE(scene.widget.columnWidth(RateColumn), narrow);
    scene.widget.setGapsColumnVisible(true);
    QVERIFY(!scene.widget.isColumnHidden(GapsColumn));
    QVERIFY(scene.widget.columnWidth(RateColumn) > narrow);
    scene.widget.setColumnWidth(RateColumn, narrow);
    scene.widget.setGapsColumnVisible(true);
    QCOMPARE(scene.widget.columnWidth(RateColumn), narrow);
}

void TestMessageStatisticsWidget::showsCrcErrorsWhileThereAreSome()
{
    Scene scene;
    scene.add("Alpha");
    unsigned int &crcErrors = scene.coordinator.getData()->crcErrors;
    crcErrors = 5;
    scene.widget.updateTree();
    const auto item = [&] { return scene.widget.topLevelItem(0); };
    QCOMPARE(item()->text(MessageColumn), "CRC Errors");
    QCOMPARE(item()->data(CountColumn, Qt::DisplayRole), QVariant(QStringLiteral("5")));
    QCOMPARE(item()->data(CountColumn, Qt::DisplayRole).typeId(), QMetaType::QString);
    crcErrors = std::numeric_limits<unsigned int>::max();
    scene.widget.updateTree();
    QCOMPARE(item()->text(CountColumn), "4294967295");
    QCOMPARE(scene.widget.topLevelItemCount(), 2);
    crcErrors = 0;
    scene.widget.updateTree();
    QCOMPARE(scene.widget.topLevelItemCount(), 1);
    QCOMPARE(item()->text(MessageColumn), "Demo");
    crcErrors = 1;
    scene.widget.updateTree();
    QCOMPARE(item()->text(CountColumn), "1");
}

void TestMessageStatisticsWidget::expandsAMessageWithItsIntervals()
{
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.intervals = {50};
    alpha.intervalCounts = {{50, 2}};
    alpha.gaps = makeGaps(1);
    scene.widget.updateTree();
    scene.widget.expandItem(scene.item());
    QVERIFY(intervalsOf(scene.item())->isExpanded());
    QVERIFY(!gapsOf(scene.item())->isExpanded());
    // Only what is expanded expands more.
    scene.widget.collapseItem(intervalsOf(scene.item()));
    scene.widget.collapseItem(scene.item());
    scene.widget.processItemExpanded(scene.item());
    QVERIFY(!scene.item()->isExpanded());
    QVERIFY(!intervalsOf(scene.item())->isExpanded());
    scene.item()->fullExpand();
    QVERIFY(scene.item()->isExpanded());
    QVERIFY(intervalsOf(scene.item())->isExpanded());
    scene.widget.collapseItem(scene.item());
    scene.widget.collapseItem(scene.formatItem());
    scene.widget.expandItem(scene.formatItem());
    QVERIFY(!scene.item()->isExpanded());
}

void TestMessageStatisticsWidget::remembersHeaderAndSorting()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    {
        Scene scene;
        scene.widget.sortByColumn(CountColumn, Qt::DescendingOrder);
        scene.widget.setColumnWidth(CountColumn, 77);
        scene.widget.writeSettings(settings);
    }
    QCOMPARE(settings.allKeys(), (QStringList{"headerstate", "sortColumn", "sortOrder"}));
    QCOMPARE(settings.value("sortColumn").toInt(), 1);
    QCOMPARE(settings.value("sortOrder").toInt(), 1);
    Scene scene;
    scene.widget.setSortingEnabled(false);
    scene.widget.readSettings(settings);
    QVERIFY(scene.widget.isSortingEnabled());
    QCOMPARE(scene.widget.sortColumn(), 1);
    QCOMPARE(scene.widget.header()->sortIndicatorOrder(), Qt::DescendingOrder);
    QCOMPARE(scene.widget.columnWidth(CountColumn), 77);
}

void TestMessageStatisticsWidget::startsWithDefaultsWithoutSettings()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    Scene scene;
    scene.widget.setColumnWidth(MessageColumn, 33);
    scene.widget.sortByColumn(CountColumn, Qt::DescendingOrder);
    scene.widget.readSettings(settings);
    QCOMPARE(scene.widget.columnWidth(MessageColumn), 150);
    QCOMPARE(scene.widget.sortColumn(), 0);
    QCOMPARE(scene.widget.header()->sortIndicatorOrder(), Qt::AscendingOrder);
    scene.widget.setColumnWidth(MessageColumn, 33);
    settings.setValue("headerstate", QByteArray());
    scene.widget.readSettings(settings);
    QCOMPARE(scene.widget.columnWidth(MessageColumn), 150);
}

void TestMessageStatisticsWidget::sortsMessagesByNumberAndIntervalsByText()
{
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.count = 10;
    alpha.intervals = {50, 100};
    alpha.intervalCounts = {{50, 9}, {100, 10}};
    scene.add("Beta").count = 9;
    scene.widget.updateTree();
    scene.widget.sortByColumn(CountColumn, Qt::AscendingOrder);
    QCOMPARE(column(scene.formatItem(), CountColumn), (QStringList{"9", "10"}));
    QCOMPARE(column(intervalsOf(scene.item(1)), CountColumn), (QStringList{"10", "9"}));
}

void TestMessageStatisticsWidget::translatesInItsContexts()
{
    const EchoTranslator translator;
    Scene scene;
    MessageStatisticsData &alpha = scene.add("Alpha");
    alpha.withUnknownTime = 1;
    alpha.withUnknownInterval = 1;
    alpha.intervals = {0, 50};
    alpha.intervalCounts = {{0, 1}, {50, 1}};
    alpha.unstoredGaps = true;
    alpha.gapCount = 1;
    alpha.gaps = {{1, 1, 1}, {2, 1, 1000}};
    scene.coordinator.getData()->crcErrors = 1;
    scene.widget.updateTree();
    const auto inWidget
        = [](const char *text) { return QStringLiteral("MessageStatisticsWidget|") + text; };
    const auto inObject = [](const char *text) { return QStringLiteral("QObject|") + text; };
    QCOMPARE(scene.widget.headerItem()->text(RateColumn), inWidget("Current rate/interval"));
    QTreeWidgetItem *crc = scene.widget.topLevelItem(0)->childCount() == 0
                               ? scene.widget.topLevelItem(0)
                               : scene.widget.topLevelItem(1);
    QCOMPARE(crc->text(MessageColumn), inWidget("CRC Errors"));
    QTreeWidgetItem *format = scene.widget.topLevelItem(scene.widget.indexOfTopLevelItem(crc) == 0);
    QVERIFY(format->toolTip(MessageColumn).startsWith(inWidget("Message statistics")));
    const QTreeWidgetItem *item = format->child(0);
    QCOMPARE(item->text(RateColumn), inObject("N/A"));
    QVERIFY(item->text(GapsColumn).startsWith(inObject("1 (")));
    for (int i = 0; i <= GapsColumn; ++i)
        QVERIFY(i == MessageColumn || item->toolTip(i).startsWith("QObject|"));
    QCOMPARE(item->childCount(), 2);
    for (int i = 0; i < 2; ++i) {
        const QTreeWidgetItem *group = item->child(i);
        QVERIFY(group->text(MessageColumn).startsWith("QObject|"));
        QVERIFY(group->toolTip(MessageColumn).startsWith("QObject|"));
        for (int j = 0; j < group->childCount(); ++j) {
            QVERIFY(group->child(j)->toolTip(MessageColumn).startsWith("QObject|"));
            QVERIFY(group->child(j)->toolTip(CountColumn).startsWith("QObject|"));
        }
    }
    const QTreeWidgetItem *gaps = childOf(item, inObject("Gaps (incomplete list)"));
    QVERIFY(gaps != nullptr);
    QCOMPARE(column(gaps, RateColumn), (QStringList{inObject("1 ms"), inObject("1 s")}));
}

CORVANE_GUI_TEST_MAIN(TestMessageStatisticsWidget)
#include "tst_messagestatisticswidget.moc"
