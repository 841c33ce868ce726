#include "inspectorprogram.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <csignal>

using namespace corvane::test;

class tst_inspector : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void mistake_exitsWith1AndSaysWhere_data();
    void mistake_exitsWith1AndSaysWhere();
    void failingProgram_keepsTheReport();
    void screenshot_showsTheWindow();
    void screenshot_atEveryScale_data();
    void screenshot_atEveryScale();
    void screenshot_unwritable_exitsWith1();
    void optionsOfQt_areTakenByQt();
    void withoutDefinitions_theWindowAsks();
    void brokenSettings_arePutAside();
    void crash_leavesItsTrace_data();
    void crash_leavesItsTrace();
    void version_isPrinted();
};

void tst_inspector::mistake_exitsWith1AndSaysWhere_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("part");
    const QString recording = example(QStringLiteral("rover.tlog"));
    QTest::newRow("no definitions")
        << QStringList{"--report", "json", recording} << QByteArray("--definitions FILE");
    QTest::newRow("missing definitions")
        << QStringList{"--definitions", "gone.xml", "--report", "json", recording}
        << QByteArray("gone.xml");
    QTest::newRow("definitions that are none")
        << QStringList{"--definitions", recording, "--report", "json", recording}
        << QByteArray("rover.tlog:1:");
    QTest::newRow("overlay that is none") << onExample(
        {"--overlay", example(QStringLiteral("rover.xml")), "--report", "json", recording})
                                          << QByteArray("rover.xml:1:1");
    QTest::newRow("missing source")
        << onExample({"--report", "json", "gone.tlog"}) << QByteArray("gone.tlog");
    QTest::newRow("folder as source") << onExample({"--report", "json", "."}) << QByteArray(".");
    QTest::newRow("unknown scheme")
        << onExample({"--report", "json", "gopher://x"}) << QByteArray("gopher");
    QTest::newRow("refused connection")
        << onExample({"--report", "json", "tcp://127.0.0.1:1"}) << QByteArray("127.0.0.1:1");
    QTest::newRow("unknown option") << QStringList{"--wrong"} << QByteArray("wrong");
}

void tst_inspector::mistake_exitsWith1AndSaysWhere()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, part);
    const Outcome outcome = run(arguments);
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.errors.startsWith("corvane-inspector: "), outcome.errors.constData());
    QVERIFY2(outcome.errors.contains(part), outcome.errors.constData());
    QCOMPARE(outcome.output, QByteArray());
}

void tst_inspector::failingProgram_keepsTheReport()
{
    const Outcome outcome = reportOn(
        QStringLiteral("exec:cat '%1'; exit 3").arg(example(QStringLiteral("rover.tlog"))));
    QCOMPARE(outcome.exitCode, 1);
    QCOMPARE(outcome.json().value("frames").toInteger(), 1737);
    QVERIFY2(outcome.errors.contains("3"), outcome.errors.constData());
}

void tst_inspector::screenshot_showsTheWindow()
{
    const QTemporaryDir folder;
    const QString picture = folder.filePath(QStringLiteral("window.png"));
    const Outcome outcome = run(onExample({"--speed", "max", "--screenshot", picture, "--after",
                                           "1", example(QStringLiteral("rover.tlog"))}));
    QCOMPARE(outcome.exitCode, 0);
    const QImage image(picture);
    QVERIFY(image.width() > 300 && image.height() > 200);
    QVERIFY(image.convertToFormat(QImage::Format_Indexed8).colorCount() > 2);
}

void tst_inspector::screenshot_atEveryScale_data()
{
    QTest::addColumn<QByteArray>("scale");
    QTest::addColumn<QSize>("size");
    QTest::newRow("1") << QByteArray("1") << QSize(800, 500);
    QTest::newRow("1.5") << QByteArray("1.5") << QSize(1200, 750);
    QTest::newRow("2") << QByteArray("2") << QSize(1600, 1000);
}

void tst_inspector::screenshot_atEveryScale()
{
    QFETCH(QByteArray, scale);
    QFETCH(QSize, size);
    const QTemporaryDir folder;
    const QString file = folder.filePath("window.png");
    qputenv("QT_SCALE_FACTOR", scale);
    const Outcome outcome
        = run(QStringList{"-qwindowgeometry", "800x500"}
              + onExample({"--screenshot", file, "--after", "0.5", example("rover.tlog")}));
    qunsetenv("QT_SCALE_FACTOR");
    QVERIFY2(outcome.exitCode == 0, outcome.errors.constData());
    QCOMPARE(QImage(file).size(), size);
}

void tst_inspector::screenshot_unwritable_exitsWith1()
{
    const Outcome outcome = run({"--screenshot", "no/such/folder/window.png", "--after", "0"});
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY(outcome.errors.contains("no/such/folder/window.png"));
}

void tst_inspector::optionsOfQt_areTakenByQt()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("window.png");
    const Outcome outcome
        = run(QStringList{"-style", "windows", "-platform", "offscreen"}
              + onExample({"--screenshot", file, "--after", "0.2", example("rover.tlog")}));
    QVERIFY2(outcome.exitCode == 0, outcome.errors.constData());
    QVERIFY(!QImage(file).isNull());
    const Outcome wrong = run({"-style", "windows", "--wrong"});
    QCOMPARE(wrong.exitCode, 1);
    QVERIFY2(wrong.errors.contains("corvane-inspector: Unknown option 'wrong'"),
             wrong.errors.constData());
}

void tst_inspector::withoutDefinitions_theWindowAsks()
{
    QProcess process;
    process.start(QStringLiteral(CORVANE_INSPECTOR), {example("rover.tlog")});
    QVERIFY(process.waitForStarted());
    QVERIFY(!process.waitForFinished(1000)); // it shows a window instead of giving up
    process.terminate();
    QVERIFY(process.waitForFinished());
}

void tst_inspector::brokenSettings_arePutAside()
{
    const QTemporaryDir home;
    const QDir folder(home.filePath("corvane"));
    QVERIFY(QDir().mkpath(folder.path()));
    QFile broken(folder.filePath("corvane-inspector.ini"));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("\x7f\0\xff no settings", 15);
    broken.close();
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    const Outcome outcome = run(onExample(
        {"--screenshot", home.filePath("window.png"), "--after", "0.2", example("rover.tlog")}));
    qputenv("XDG_CONFIG_HOME", before);
    QVERIFY2(outcome.exitCode == 0, outcome.errors.constData());
    QCOMPARE(folder.entryList({"corvane-inspector.ini.broken-*"}).size(), 1);
}

void tst_inspector::crash_leavesItsTrace_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("memory fault") << SIGSEGV << QByteArray("SIGSEGV");
    QTest::newRow("assertion") << SIGABRT << QByteArray("SIGABRT");
}

void tst_inspector::crash_leavesItsTrace()
{
    QFETCH(int, signal);
    QFETCH(QByteArray, name);
    const QTemporaryDir home;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_DATA_HOME", home.path());
    environment.insert("XDG_CONFIG_HOME", home.path());
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(CORVANE_INSPECTOR), onExample({example("rover.tlog")}));
    QVERIFY(process.waitForStarted());
    QVERIFY(!process.waitForFinished(1500)); // it is reading by then
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), signal), 0);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    const QDir folder(home.filePath("corvane/crashes"));
    const QStringList files = folder.entryList({"crash-*.txt"});
    QCOMPARE(files.size(), 1);
    QFile file(folder.filePath(files.constFirst()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray trace = file.readAll();
    QVERIFY2(trace.startsWith("corvane-inspector ended by " + name), trace.constData());
    QVERIFY2(trace.contains("Opened "), trace.constData());
}

void tst_inspector::version_isPrinted()
{
    const Outcome outcome = run({"--version"});
    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(outcome.output.startsWith("corvane-inspector "));
}

CORVANE_TEST_MAIN(tst_inspector)
#include "tst_inspector.moc"
