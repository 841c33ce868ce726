#include "hostfeed.h"
#include "mainwindow.h"
#include "noticearea.h"
#include "openpanel.h"
#include "recentsources.h"
#include "testcase.h"
#include "workbench.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUrl>

using namespace corvane;
using namespace corvane::test;

class tst_workbench : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void recent_latestFirstEachOnce();
    void recent_isLimited();
    void recent_ofBrokenSettings_isLeftOut_data();
    void recent_ofBrokenSettings_isLeftOut();
    void panel_saysWhatIsMissing();
    void panel_readsEveryKindBack_data();
    void panel_readsEveryKindBack();
    void panel_sortsDroppedFiles();
    void panel_asksBeforeAProgramStarts();
    void panel_recentProgram_isNotStartedUnasked();
    void workbench_asksForDefinitions();
    void workbench_opensAndRemembers();
    void workbench_opensAnotherInItsPlace();
    void workbench_saysWhyDefinitionsDoNotLoad();
    void workbench_opensDroppedRecording();
    void hostFeed_quotesItsPath();

private:
    static QString recording()
    {
        return sourceFile(QStringLiteral("examples/recording/rover.tlog"));
    }

    static QString dialect() { return sourceFile(QStringLiteral("examples/recording/rover.xml")); }

    QTemporaryDir folder;
    int settingsCount = 0;

    std::unique_ptr<QSettings> newSettings()
    {
        return std::make_unique<QSettings>(
            folder.filePath(QStringLiteral("%1.ini").arg(++settingsCount)), QSettings::IniFormat);
    }
};

namespace {

QLabel *noticeOf(const OpenPanel &panel)
{
    QLabel *notice = nullptr;
    for (QLabel *label : panel.findChildren<QLabel *>())
        if (label->buddy() == nullptr)
            notice = label;
    return notice;
}

QString sourcesOf(const QSettings &, const RecentSources &recent)
{
    QStringList sources;
    for (const SourceChoice &choice : recent.get())
        sources += choice.source;
    return sources.join(QLatin1Char(' '));
}

void drop(QWidget &widget, const QStringList &files)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString &file : files)
        urls += QUrl::fromLocalFile(file);
    data.setUrls(urls);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&widget, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

void tst_workbench::recent_latestFirstEachOnce()
{
    const auto settings = newSettings();
    RecentSources recent(*settings);
    QVERIFY(recent.get().isEmpty());
    recent.add({"a", {"x.xml"}, {"o.json"}, "raw", "p.T"});
    recent.add({"b", {"y.xml"}, {}, {}, {}});
    recent.add({"a", {"z.xml"}, {"o.json"}, "tlog", {}});
    QCOMPARE(sourcesOf(*settings, recent), "a b");
    const SourceChoice expected{"a", {"z.xml"}, {"o.json"}, "tlog", {}};
    QCOMPARE(recent.get().constFirst(), expected);
    recent.remove("a");
    QCOMPARE(sourcesOf(*settings, recent), "b");
}

void tst_workbench::recent_isLimited()
{
    const auto settings = newSettings();
    RecentSources recent(*settings);
    for (int i = 0; i < 30; ++i)
        recent.add({QString::number(i), {}, {}, {}, {}});
    QCOMPARE(sourcesOf(*settings, recent), "29 28 27 26 25 24 23 22 21 20 19 18");
}

void tst_workbench::recent_ofBrokenSettings_isLeftOut_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("no source") << "recentSources/1/source" << QVariant(QString());
    QTest::newRow("control characters") << "recentSources/1/source" << QVariant("a\nb");
    QTest::newRow("long") << "recentSources/1/root" << QVariant(QString(5000, QLatin1Char('x')));
    QTest::newRow("many files") << "recentSources/1/definitions"
                                << QVariant(QStringList(100, QStringLiteral("f")));
    QTest::newRow("size") << "recentSources/size" << QVariant(-5);
}

void tst_workbench::recent_ofBrokenSettings_isLeftOut()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    const auto settings = newSettings();
    RecentSources recent(*settings);
    recent.add({"a", {}, {}, {}, {}});
    settings->setValue(key, value);
    QVERIFY(recent.get().isEmpty());
    settings->setValue(QStringLiteral("recentSources/size"), 1'000'000'000);
    QVERIFY(recent.get().size() <= 1);
}

void tst_workbench::panel_saysWhatIsMissing()
{
    const auto settings = newSettings();
    OpenPanel panel(*settings);
    const QSignalSpy chosen(&panel, &OpenPanel::chosen);
    panel.open();
    QVERIFY(noticeOf(panel)->text().startsWith("Name the source"));
    panel.setChoice({"/some/file.tlog", {}, {}, {}, {}});
    panel.open();
    QVERIFY(noticeOf(panel)->text().contains("definitions"));
    panel.setChoice({"tcp://host", {"x.xml"}, {}, {}, {}});
    panel.open();
    QVERIFY(!noticeOf(panel)->text().isEmpty());
    QCOMPARE(chosen.size(), 0);
    panel.setChoice({"tcp://host:1", {"x.xml"}, {}, {}, {}});
    panel.open();
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(noticeOf(panel)->text(), QString());
}

void tst_workbench::panel_readsEveryKindBack_data()
{
    QTest::addColumn<QString>("source");
    for (const char *source : {"/a/b.tlog", "-", "tcp://host:5", "tcp-listen://:5", "udp://:14550",
                               "serial:/dev/ttyS0?baud=9600", "exec:cat file"})
        QTest::newRow(source) << QString::fromLatin1(source);
}

void tst_workbench::panel_readsEveryKindBack()
{
    QFETCH(QString, source);
    const auto settings = newSettings();
    OpenPanel panel(*settings);
    const SourceChoice choice{source, {"d.xml", "e.xml"}, {"o.json"}, "le32", "p.T"};
    panel.setChoice(choice);
    QCOMPARE(panel.getChoice(), choice);
}

void tst_workbench::panel_sortsDroppedFiles()
{
    const auto settings = newSettings();
    OpenPanel panel(*settings);
    drop(panel, {"/f/common.xml", "/f/o.JSON", "/f/log.tlog", "/f/host.proto", "/f/common.xml"});
    const SourceChoice expected{
        "/f/log.tlog", {"/f/common.xml", "/f/host.proto"}, {"/f/o.JSON"}, {}, {}};
    QCOMPARE(panel.getChoice(), expected);
}

void tst_workbench::panel_asksBeforeAProgramStarts()
{
    const auto settings = newSettings();
    OpenPanel panel(*settings);
    const QSignalSpy chosen(&panel, &OpenPanel::chosen);
    panel.setChoice({"exec:rm -r things", {"x.xml"}, {}, {}, {}});
    panel.open();
    QCOMPARE(chosen.size(), 0);
    QVERIFY(noticeOf(panel)->text().contains("rm -r things"));
    // Another program is another question.
    panel.findChild<QLineEdit *>()->setText("other");
    panel.open();
    QCOMPARE(chosen.size(), 0);
    panel.open();
    QCOMPARE(chosen.size(), 1);
}

void tst_workbench::panel_recentProgram_isNotStartedUnasked()
{
    const auto settings = newSettings();
    RecentSources(*settings).add({"exec:evil", {"x.xml"}, {}, {}, {}});
    OpenPanel panel(*settings);
    panel.show();
    const QSignalSpy chosen(&panel, &OpenPanel::chosen);
    auto *list = panel.findChild<QListWidget *>();
    list->setCurrentRow(0);
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(chosen.size(), 0);
    QVERIFY(noticeOf(panel)->text().contains("evil"));
}

void tst_workbench::workbench_asksForDefinitions()
{
    const auto settings = newSettings();
    const auto options = Options::parse({"inspector", recording()});
    QCOMPARE(options.wish, Options::Wish::Run);
    Workbench workbench(options, *settings);
    workbench.askForDefinitions(options);
    auto *panel = qobject_cast<OpenPanel *>(workbench.getWindow());
    QVERIFY(panel != nullptr && panel->isVisible());
    QCOMPARE(panel->getChoice().source, recording());
    QVERIFY(noticeOf(*panel)->text().contains("dialect (.xml)"));
    QVERIFY(noticeOf(*panel)->text().contains(".proto"));
    QVERIFY(QTest::qWaitForWindowActive(panel));
    QCOMPARE(panel->focusWidget()->accessibleName(), QStringLiteral("Add to: Definitions"));
    workbench.getNotices().say("a", "Something");
    QVERIFY(workbench.getNotices().isVisible());
}

void tst_workbench::workbench_opensAndRemembers()
{
    const auto settings = newSettings();
    const auto options = Options::parse({"inspector", "--definitions", dialect(), recording()});
    Workbench workbench(options, *settings);
    QCOMPARE(workbench.open(options), QStringList());
    auto *window = qobject_cast<MainWindow *>(workbench.getWindow());
    QVERIFY(window != nullptr && window->isVisible());
    QVERIFY(window->windowTitle().contains("rover.tlog"));
    const auto recent = RecentSources(*settings).get();
    QCOMPARE(recent.size(), 1);
    QCOMPARE(recent.constFirst().source, recording());
    QCOMPARE(recent.constFirst().definitions, QStringList{dialect()});
}

void tst_workbench::workbench_opensAnotherInItsPlace()
{
    const auto settings = newSettings();
    const auto options = Options::parse({"inspector", "--definitions", dialect(), recording()});
    Workbench workbench(options, *settings);
    workbench.open(options);
    const QPointer<QWidget> first = workbench.getWindow();
    workbench.showOpenPanel();
    auto *panel = qobject_cast<OpenPanel *>(QApplication::activeWindow());
    if (panel == nullptr)
        for (QWidget *widget : QApplication::topLevelWidgets())
            if (auto *found = qobject_cast<OpenPanel *>(widget))
                panel = found;
    QCOMPARE(panel->getChoice().source, recording()); // ready to be changed a little
    panel->findChildren<QPushButton *>().constLast()->click();
    QTRY_VERIFY(first.isNull());
    auto *window = qobject_cast<MainWindow *>(workbench.getWindow());
    QVERIFY(window != nullptr && window->isVisible());
    QVERIFY(!panel->isVisible());
}

void tst_workbench::workbench_saysWhyDefinitionsDoNotLoad()
{
    const auto settings = newSettings();
    const auto options = Options::parse({"inspector", "--definitions", dialect(), recording()});
    Workbench workbench(options, *settings);
    workbench.showOpenPanel();
    auto *panel = qobject_cast<OpenPanel *>(workbench.getWindow());
    expectWarning("This plugin does not support raise()");
    panel->setChoice({recording(), {"/no/such/file.xml"}, {}, {}, {}});
    panel->open();
    QTRY_VERIFY(noticeOf(*panel)->text().contains("/no/such/file.xml"));
    QCOMPARE(workbench.getWindow(), panel);
    QVERIFY(RecentSources(*settings).get().isEmpty());
}

void tst_workbench::workbench_opensDroppedRecording()
{
    const auto settings = newSettings();
    const auto options = Options::parse({"inspector", "--definitions", dialect(), recording()});
    Workbench workbench(options, *settings);
    workbench.open(options);
    const QString copy = folder.filePath("copy.tlog");
    QVERIFY(QFile::copy(recording(), copy));
    drop(*workbench.getWindow(), {copy});
    QTRY_VERIFY(workbench.getWindow()->windowTitle().contains("copy.tlog"));
    QCOMPARE(RecentSources(*settings).get().constFirst().definitions, QStringList{dialect()});
}

void tst_workbench::hostFeed_quotesItsPath()
{
    const auto feed = findHostFeed();
    if (!feed)
        QSKIP("the feed is not built beside this program");
    QVERIFY(feed->isProgram());
    QVERIFY(feed->source.startsWith("exec:'") && feed->source.endsWith("corvane-hostfeed'"));
    QVERIFY(QFile::exists(feed->definitions.constFirst()));
    QVERIFY(QFile::exists(feed->overlays.constFirst()));
}

CORVANE_GUI_TEST_MAIN(tst_workbench)
#include "tst_workbench.moc"
