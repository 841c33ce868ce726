#include "abstractplotpanel.h"
#include "bytespanel.h"
#include "exportbar.h"
#include "exportcontroller.h"
#include "fieldvaluelabel.h"
#include "hexview.h"
#include "inspectortree.h"
#include "mainwindow.h"
#include "messagetreepanel.h"
#include "messagewidget.h"
#include "session.h"
#include "shownwindow.h"
#include "testcase.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QToolBar>
#include <QTreeView>

using namespace corvane;
using namespace corvane::test;

class tst_mainwindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutSource_saysHowToOpenOne();
    void nothingDecoded_saysWhatHappened();
    void firstMessage_isChosenAndShown();
    void firstStart_hasTheFormInFront();
    void types_areListedWithTheirCounts();
    void choosingAType_showsItsLastMessageAtOnce();
    void form_followsTheStream();
    void keyboard_reachesEveryType();
    void countHeader_clicked_sortsByNumber();
    void darkPalette_isFollowed();
    void totals_nameDamage();
    void figures_tellOfTheLongestRound();
    void statusBar_neverWidensTheWindow();
    void paused_viewsStandStillAndTheBarSaysWhatCame();
    void plot_isAPanelOrSaysThatItIsMissing();
    void plot_isPausedAndRemembered();
    void rowActions_reachThePanels_data();
    void rowActions_reachThePanels();
    void bytes_followWhatIsChosen();
    void exportedStatistics_areToldAboveTheViews();
    void transportBar_isThereForRecordingsOnly();
    void layout_isRememberedByTheSettings();
    void columns_areRemembered();
    void layout_atFirst_showsTheForm();
    void layout_ofRandomBytes_startsWithTheDefault();
};

void tst_mainwindow::withoutSource_saysHowToOpenOne()
{
    Session session;
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    const MainWindow window(session, settings);
    const auto labels = window.findChildren<QLabel *>();
    const bool explained = std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
        return label->text().contains(QStringLiteral("No source is open"));
    });
    QVERIFY(explained);
}

void tst_mainwindow::nothingDecoded_saysWhatHappened()
{
    ShownWindow shown;
    const auto readFile = [&shown](const QByteArray &content) {
        QFile file(shown.folder.filePath(QStringLiteral("file.tlog")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        Session session;
        shown.options.source = SourceAddress::parse(file.fileName()).address;
        session.load(shown.options);
        shown.window = std::make_unique<MainWindow>(session, shown.settings);
        QVERIFY(!shown.says(QStringLiteral("has ended")));
        session.start(shown.options);
        QTRY_VERIFY(shown.says(QStringLiteral("file.tlog has ended.")));
        QVERIFY(!shown.says(QStringLiteral("No source is open")));
        QVERIFY(!shown.says(QStringLiteral("Waiting for messages")));
        QCOMPARE(shown.says(QStringLiteral("No bytes have come.")), content.isEmpty());
        QCOMPARE(shown.says(QStringLiteral("None of its 9 bytes could be decoded")),
                 !content.isEmpty());
        shown.window.reset();
    };
    readFile("no frames");
    readFile({});
}

void tst_mainwindow::firstMessage_isChosenAndShown()
{
    const ShownWindow shown;
    QVERIFY(shown.types()->currentIndex().isValid());
    QTRY_VERIFY(!shown.form().isEmpty());
    QVERIFY(!shown.form().constFirst().endsWith(QStringLiteral("N/A")));
}

void tst_mainwindow::firstStart_hasTheFormInFront()
{
    const ShownWindow shown;
    QTRY_VERIFY(!shown.window->findChild<QDockWidget *>("form")->visibleRegion().isEmpty());
    QVERIFY(shown.window->findChild<QDockWidget *>("bytes")->visibleRegion().isEmpty());
}

void tst_mainwindow::types_areListedWithTheirCounts()
{
    const ShownWindow shown;
    QTRY_COMPARE(shown.indexOf(QStringLiteral("MOTION")).siblingAtColumn(1).data().toString(),
                 QStringLiteral("596"));
    QCOMPARE(shown.types()->model()->rowCount(), 6);
}

void tst_mainwindow::choosingAType_showsItsLastMessageAtOnce()
{
    const ShownWindow shown;
    QTRY_VERIFY(shown.indexOf(QStringLiteral("TEXT")).isValid());
    shown.choose(QStringLiteral("TEXT"));
    QCOMPARE(shown.form(), (QStringList{QStringLiteral("severity: ROVER_SEVERITY_INFO"),
                                        QStringLiteral("text: Returning home")}));
    QVERIFY(shown.says(QStringLiteral("A line of text for people.")));
}

void tst_mainwindow::form_followsTheStream()
{
    const ShownWindow shown(10.0);
    QTRY_VERIFY(shown.indexOf(QStringLiteral("HEARTBEAT")).isValid());
    shown.choose(QStringLiteral("HEARTBEAT"));
    const QString before = shown.form().constFirst();
    QTRY_VERIFY(shown.form().constFirst() != before);
}

void tst_mainwindow::keyboard_reachesEveryType()
{
    const ShownWindow shown;
    QTRY_COMPARE(shown.types()->model()->rowCount(), 6);
    QTest::keyClick(shown.types(), Qt::Key_Home);
    QCOMPARE(shown.types()->currentIndex().data().toString(), QStringLiteral("BATTERY"));
    QTest::keyClick(shown.types(), Qt::Key_Down);
    QVERIFY(shown.says(QStringLiteral("Says once a second who is there")));
    QTest::keyClick(shown.types(), Qt::Key_End);
    QCOMPARE(shown.types()->currentIndex().data().toString(), QStringLiteral("WHEELS"));
}

void tst_mainwindow::countHeader_clicked_sortsByNumber()
{
    const ShownWindow shown;
    QTRY_COMPARE(shown.indexOf(QStringLiteral("WHEELS")).siblingAtColumn(1).data().toString(),
                 QStringLiteral("597"));
    shown.types()->sortByColumn(1, Qt::AscendingOrder);
    QCOMPARE(shown.types()->model()->index(0, 0).data().toString(), QStringLiteral("TEXT"));
    QCOMPARE(shown.types()->model()->index(5, 0).data().toString(), QStringLiteral("WHEELS"));
}

void tst_mainwindow::darkPalette_isFollowed()
{
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 40), QColor(30, 30, 30)));
    {
        const ShownWindow shown;
        const QImage image = shown.window->grab().toImage();
        QVERIFY(image.pixelColor(image.width() - 3, image.height() / 2).lightness() < 80);
    }
    QApplication::setPalette(light);
}

void tst_mainwindow::totals_nameDamage()
{
    const ShownWindow shown;
    QTRY_VERIFY(shown.says(QStringLiteral("CRC errors: 1")));
}

void tst_mainwindow::figures_tellOfTheLongestRound()
{
    const ShownWindow shown;
    const QRegularExpression text(QStringLiteral("^Longest round: [1-9]\\d* ms$"));
    const auto isTold = [&] {
        const auto labels = shown.window->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(), [&](const QLabel *label) {
            return text.match(label->text()).hasMatch();
        });
    };
    QTRY_VERIFY(isTold());
}

void tst_mainwindow::statusBar_neverWidensTheWindow()
{
    const ShownWindow shown;
    const int before = shown.window->minimumSizeHint().width();
    shown.window->showState(QString(2000, QLatin1Char('m')));
    QCoreApplication::processEvents();
    QVERIFY(shown.window->minimumSizeHint().width() <= before);
}

void tst_mainwindow::paused_viewsStandStillAndTheBarSaysWhatCame()
{
    const ShownWindow shown(10.0);
    QTRY_VERIFY(shown.indexOf(QStringLiteral("MOTION")).isValid());
    shown.choose(QStringLiteral("MOTION"));
    auto *pause = shown.action(QStringLiteral("&Pause the Views"));
    pause->trigger();
    const QStringList before = shown.form();
    const auto pauseText = [&shown] {
        for (const QLabel *label : shown.window->findChildren<QLabel *>())
            if (label->text().startsWith(QStringLiteral("Paused for")) && label->isVisible())
                return label->text();
        return QString();
    };
    const QRegularExpression some(QStringLiteral("^Paused for \\d+ s, new messages: [1-9]"));
    QTRY_VERIFY(some.match(pauseText()).hasMatch());
    QCOMPARE(shown.form(), before);
    pause->trigger();
    QVERIFY(shown.form() != before);
    QCOMPARE(pauseText(), QString());
}

void tst_mainwindow::plot_isAPanelOrSaysThatItIsMissing()
{
    const ShownWindow shown;
    const bool isThere = shown.window->findChild<QDockWidget *>(QStringLiteral("plot")) != nullptr;
    QCOMPARE(shown.action(QStringLiteral("Plot")) != nullptr, isThere);
    QCOMPARE(shown.action(QStringLiteral("Plot (not in this build)")) == nullptr, isThere);
}

void tst_mainwindow::plot_isPausedAndRemembered()
{
    ShownWindow shown;
    auto *dock = shown.window->findChild<QDockWidget *>(QStringLiteral("plot"));
    if (dock == nullptr)
        QSKIP("built without plot");
    auto *plot = dynamic_cast<AbstractPlotPanel *>(dock->widget());
    plot->addSeries(QStringLiteral("MAVLink.MOTION.heading"));
    shown.action(QStringLiteral("&Pause the Views"))->trigger();
    QVERIFY(shown.says(QStringLiteral("Paused, values are kept")));
    shown.window->close();
    QCOMPARE(shown.settings.value(QStringLiteral("plot/paths")).toStringList(),
             QStringList(QStringLiteral("MAVLink.MOTION.heading")));
}

void tst_mainwindow::rowActions_reachThePanels_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("dock");
    QTest::newRow("watch") << "Add to &Watch"
                           << "watch";
    QTest::newRow("plot") << "P&lot"
                          << "plot";
    QTest::newRow("form") << "Show &Form"
                          << "form";
    QTest::newRow("bytes") << "Show &Bytes"
                           << "bytes";
}

void tst_mainwindow::rowActions_reachThePanels()
{
    QFETCH(QString, action);
    QFETCH(QString, dock);
    const ShownWindow shown;
    if (dock == "plot" && shown.window->findChild<QDockWidget *>(dock) == nullptr)
        QSKIP("this build has no plot");
    for (auto *closed : shown.window->findChildren<QDockWidget *>())
        closed->close();
    shown.chooseRow("satellites");
    QVERIFY(shown.action(action)->isEnabled());
    shown.action(action)->trigger();
    QVERIFY(shown.window->findChild<QDockWidget *>(dock)->isVisible());
    QStringList paths;
    for (const auto *table : shown.window->findChildren<QTableWidget *>())
        for (int row = 0; row < table->rowCount(); ++row)
            for (int column = 0; column < table->columnCount(); ++column)
                if (const auto *cell = table->item(row, column))
                    paths += cell->text() + cell->toolTip();
    const bool isListed = paths.join(' ').contains("POSITION.satellites");
    QCOMPARE(isListed, dock == "watch" || dock == "plot");
}

void tst_mainwindow::bytes_followWhatIsChosen()
{
    const ShownWindow shown;
    shown.window->findChild<QDockWidget *>("bytes")->raise();
    QTRY_VERIFY(shown.window->findChild<BytesPanel *>()->isVisible());
    shown.choose("BATTERY");
    QTRY_VERIFY(shown.says("BATTERY: "));
    shown.chooseRow("satellites");
    QVERIFY(shown.says("satellites: offset "));
    QCOMPARE(shown.types()->currentIndex(), shown.indexOf("POSITION"));
    const auto *tree = shown.window->findChild<InspectorTree *>();
    const QTreeWidgetItem *satellites = tree->currentItem();
    shown.chooseRow("accuracy");
    auto *view = shown.window->findChild<HexView *>();
    QTest::keyClick(view, Qt::Key_Right);
    QTest::keyClick(view, Qt::Key_Right);
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(tree->currentItem(), satellites); // which lies behind
}

void tst_mainwindow::exportedStatistics_areToldAboveTheViews()
{
    const ShownWindow shown;
    QVERIFY(shown.action(QStringLiteral("&Export Messages...")) != nullptr);
    const QString file = shown.folder.filePath(QStringLiteral("statistics.csv"));
    shown.window->findChild<ExportController *>()->exportStatistics(file);
    QVERIFY(shown.says(QStringLiteral("Exported to \"%1\".").arg(file)));
    QVERIFY(shown.window->findChild<ExportBar *>()->isVisible());
    QVERIFY(QFileInfo(file).size() > 0);
}

void tst_mainwindow::transportBar_isThereForRecordingsOnly()
{
    ShownWindow shown(1.0);
    const auto *bar = shown.window->findChild<QToolBar *>(QStringLiteral("transport"));
    QVERIFY(bar->isVisible());
    Options live = shown.options;
    live.source = SourceAddress::parse(QStringLiteral("udp://127.0.0.1:0")).address;
    shown.session.start(live);
    QVERIFY(!bar->isVisible());
}

void tst_mainwindow::layout_isRememberedByTheSettings()
{
    const ShownWindow shown;
    shown.window->findChild<QDockWidget *>(QStringLiteral("form"))->close();
    shown.window->resize(700, 560);
    shown.window->close();
    Session session;
    QSettings settings(shown.settings.fileName(), QSettings::IniFormat);
    MainWindow next(session, settings);
    next.show();
    QVERIFY(!next.findChild<QDockWidget *>(QStringLiteral("form"))->isVisible());
    QVERIFY(next.findChild<QDockWidget *>(QStringLiteral("types"))->isVisible());
    QCOMPARE(next.size(), QSize(700, 560));
}

void tst_mainwindow::columns_areRemembered()
{
    ShownWindow shown;
    const auto headerOf = [&shown](const char *dock) {
        const auto *panel = shown.window->findChild<QDockWidget *>(QLatin1String(dock));
        for (QHeaderView *header : panel->findChildren<QHeaderView *>())
            if (header->orientation() == Qt::Horizontal)
                return header;
        return static_cast<QHeaderView *>(nullptr);
    };
    headerOf("watch")->resizeSection(0, 123);
    headerOf("watch")->moveSection(2, 1);
    headerOf("events")->resizeSection(0, 77);
    headerOf("senders")->setSortIndicator(3, Qt::DescendingOrder);
    shown.window->close();
    shown.window = std::make_unique<MainWindow>(shown.session, shown.settings);
    QCOMPARE(headerOf("watch")->sectionSize(0), 123);
    QCOMPARE(headerOf("watch")->visualIndex(2), 1);
    QCOMPARE(headerOf("events")->sectionSize(0), 77);
    QCOMPARE(headerOf("senders")->sortIndicatorSection(), 3);
    QCOMPARE(headerOf("senders")->sortIndicatorOrder(), Qt::DescendingOrder);
}

void tst_mainwindow::layout_atFirst_showsTheForm()
{
    const ShownWindow shown;
    const auto isInFront = [&shown](const char *name) {
        return !shown.window->findChild<QDockWidget *>(QLatin1String(name))
                    ->visibleRegion()
                    .isEmpty();
    };
    QTRY_VERIFY(isInFront("form"));
    QVERIFY(isInFront("types") && isInFront("statistics"));
    QVERIFY(!isInFront("watch") && !isInFront("help"));
}

void tst_mainwindow::layout_ofRandomBytes_startsWithTheDefault()
{
    Session session;
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    for (const char *key : {"window/geometry", "window/layout"})
        settings.setValue(QLatin1String(key), QByteArray("\x00\xff not a layout", 15));
    MainWindow window(session, settings);
    window.show();
    QVERIFY(window.findChild<QDockWidget *>(QStringLiteral("form"))->isVisible());
}

CORVANE_GUI_TEST_MAIN(tst_mainwindow)
#include "tst_mainwindow.moc"
