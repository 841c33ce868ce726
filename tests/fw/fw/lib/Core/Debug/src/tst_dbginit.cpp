#include "testcase.h"
#include "tracechildren.h"
#include "tracehost.h"

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <unistd.h>

using namespace corvane::test;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

} // namespace

class TestDbgInit : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init_firstCall_setsTheState();
    void init_everyCall_storesTheNumbers();
    void init_secondCall_doesNotReadTheEnvironment();
    void init_afterCompleteTermination_readsTheEnvironment();
    void init_lists_areCopied();
    void init_withoutTable_usesTheProcessEnvironment();
    void terminate_asOftenAsInitialised_ends();
    void logFile_variable_data();
    void logFile_variable();
    void logFile_existing_isAppendedTo();
    void logFile_notToBeOpened_isStandardOutput();
    void logFile_closedByTheLastTerminate();
    void logFile_notToBeClosed_isReported();
    void logFile_notToBeClosedWithoutOutput_isSilent();
    void errorCode_fromAStep_endsTheProcess_data();
    void errorCode_fromAStep_endsTheProcess();

private:
    QTemporaryDir directory;
};

void TestDbgInit::init_firstCall_setsTheState()
{
    TraceHost host;
    QVERIFY(!gv_bDBGInitialised);
    dbg_Init(nullptr, 1, 0, 300);
    QVERIFY(gv_bDBGInitialised);
    QCOMPARE(gv_bDBGInitialisedCounter, 1);
    QVERIFY(!gv_usingfile);
    QCOMPARE(gv_lhstdout, stdout);
    QCOMPARE(host.takeCalls(), QStringList("stream stdout"));
}

void TestDbgInit::init_everyCall_storesTheNumbers()
{
    TraceHost host;
    dbg_Init(nullptr, 1, 2, 3);
    QCOMPARE(QList<int>({continue_on_assert, sleep_time_on_assert, additional_info_size}),
             QList<int>({1, 2, 3}));
    dbg_Init(nullptr, 0, 5, 6);
    QCOMPARE(QList<int>({continue_on_assert, sleep_time_on_assert, additional_info_size}),
             QList<int>({0, 5, 6}));
}

void TestDbgInit::init_secondCall_doesNotReadTheEnvironment()
{
    TraceHost host;
    host.environment = {{"TAV_TRACELEVEL", "1"}, {"TAV_MODULES", "core"}};
    host.initialise();
    host.environment = {{"TAV_TRACELEVEL", "all"},
                        {"TAV_MODULES", "none"},
                        {"TAV_STARTTIME", "100"},
                        {"TAV_TRACEINFO", "FILE"}};
    dbg_Init(nullptr, 1, 0, 300);
    QCOMPARE(gv_bDBGInitialisedCounter, 2);
    QCOMPARE(host.takeCalls(), QStringList());
    QCOMPARE(sv_iTraceLevel, 9u);
    QCOMPARE(dbg_SubModActive("core", ""), 1);
    QVERIFY(dbg_TimeActive());
    dbg_Trace(1, "m", "s", "f", "file", 1, "text");
    QCOMPARE(host.takeLine(), " Lv: Err          s Ln:   1                    f text\n");
}

void TestDbgInit::init_afterCompleteTermination_readsTheEnvironment()
{
    TraceHost host;
    host.environment = {{"TAV_TRACELEVEL", "1"}, {"TAV_MODULES", "core"}, {"TAV_STOPTIME", "1"}};
    host.initialise();
    dbg_Terminate();
    host.environment = {{"TAV_TRACELEVEL", "all"}, {"TAV_STARTTIME", "2"}};
    host.initialise();
    host.time = 3000;
    QCOMPARE(sv_iTraceLevel, 255u);
    QCOMPARE(dbg_SubModActive("other", ""), 1);
    QVERIFY(dbg_TimeActive());
    host.time = 1000;
    QVERIFY(!dbg_TimeActive());
}

void TestDbgInit::init_lists_areCopied()
{
    TraceHost host;
    // A host may answer every question out of the same place.
    host.table.getenv = [](const char *name) -> const char * {
        static char answer[64];
        if (qstrcmp(name, "TAV_LOGFILE") == 0)
            return nullptr; // or a file of that name is left behind
        qstrncpy(answer, name, sizeof answer);
        return answer;
    };
    host.initialise();
    QCOMPARE(dbg_SubModActive("TAV_MODULES", "TAV_SUBMODULES"), 1);
    QCOMPARE(dbg_SubModActive("TAV_TRACEINFO", "TAV_SUBMODULES"), 0);
}

void TestDbgInit::init_withoutTable_usesTheProcessEnvironment()
{
    TraceHost host;
    dbg_SetCallbackFunctions(nullptr);
    qputenv("TAV_TRACELEVEL", "2");
    dbg_Init(nullptr, 1, 0, 300);
    qunsetenv("TAV_TRACELEVEL");
    QCOMPARE(sv_iTraceLevel, 17u);
    QCOMPARE(gv_lhstdout, stdout);
    dbg_Trace(1, "m", "s", "f", "file", 1, "goes nowhere");
    dbg_Terminate();
    QCOMPARE(host.takeCalls(), QStringList());
}

void TestDbgInit::terminate_asOftenAsInitialised_ends()
{
    TraceHost host;
    host.initialise();
    host.initialise();
    QCOMPARE(gv_bDBGInitialisedCounter, 2);
    dbg_Terminate();
    QVERIFY(gv_bDBGInitialised);
    QCOMPARE(gv_bDBGInitialisedCounter, 1);
    dbg_Terminate();
    QVERIFY(!gv_bDBGInitialised);
    QCOMPARE(gv_bDBGInitialisedCounter, 0);
    QCOMPARE(dbg_SubModActive("m", "s"), -1);
    QCOMPARE(host.takeCalls(), QStringList());
}

void TestDbgInit::logFile_variable_data()
{
    QTest::addColumn<QByteArray>("argument");
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<bool>("opened");

    QTest::newRow("own variable") << QByteArray("MY_LOG") << QByteArray("MY_LOG") << true;
    QTest::newRow("own variable unset")
        << QByteArray("MY_LOG") << QByteArray("TAV_LOGFILE") << false;
    QTest::newRow("null argument") << QByteArray() << QByteArray("TAV_LOGFILE") << true;
    QTest::newRow("null argument, unset") << QByteArray() << QByteArray("MY_LOG") << false;
}

void TestDbgInit::logFile_variable()
{
    QFETCH(QByteArray, argument);
    QFETCH(QByteArray, variable);
    QFETCH(bool, opened);
    TraceHost host;
    host.environment = {{variable, directory.filePath("a.log").toUtf8()}};
    dbg_Init(argument.isNull() ? nullptr : argument.constData(), 1, 0, 300);
    QCOMPARE(host.takeCalls(), QStringList(opened ? "stream file" : "stream stdout"));
    QCOMPARE(gv_usingfile, opened);
    QCOMPARE(gv_lhstdout == stdout, !opened);
    QCOMPARE(host.stream, gv_lhstdout);
}

void TestDbgInit::logFile_existing_isAppendedTo()
{
    const QString path = directory.filePath("b.log");
    TraceHost host;
    host.table.output = [](const char *line, int) { fputs(line, gv_lhstdout); };
    host.environment = {{"TAV_LOGFILE", path.toUtf8()}, {"TAV_TRACEINFO", "none"}};
    for (const char *text : {"first", "second"}) {
        host.initialise();
        dbg_Trace(1, "m", "s", "f", "file", 1, text);
        dbg_Terminate();
    }
    QCOMPARE(contentOf(path), " first\n second\n");
}

void TestDbgInit::logFile_notToBeOpened_isStandardOutput()
{
    TraceHost host;
    host.environment = {{"TAV_LOGFILE", directory.filePath("missing/c.log").toUtf8()}};
    dbg_Init(nullptr, 1, 0, 300);
    QVERIFY(!gv_usingfile);
    QCOMPARE(host.takeCalls(), QStringList("stream stdout"));
    dbg_Terminate();
    QCOMPARE(host.takeCalls(), QStringList());
}

void TestDbgInit::logFile_closedByTheLastTerminate()
{
    TraceHost host;
    host.environment = {{"TAV_LOGFILE", directory.filePath("d.log").toUtf8()}};
    host.initialise();
    host.initialise();
    const int descriptor = fileno(gv_lhstdout);
    dbg_Terminate();
    QVERIFY(gv_usingfile);
    QVERIFY(fcntl(descriptor, F_GETFD) != -1);
    dbg_Terminate();
    QVERIFY(!gv_usingfile);
    QVERIFY(fcntl(descriptor, F_GETFD) == -1);
    // Whoever goes on writing must not meet the closed stream.
    QCOMPARE(host.takeCalls(), QStringList("stream stdout"));
    QCOMPARE(gv_lhstdout, stdout);
}

void TestDbgInit::logFile_notToBeClosed_isReported()
{
    TraceHost host;
    host.environment = {{"TAV_LOGFILE", directory.filePath("e.log").toUtf8()}};
    host.initialise();
    close(fileno(gv_lhstdout));
    dbg_Terminate();
    QCOMPARE(host.takeCalls(),
             QStringList({"stream stdout", "lock", "output 1 dbg_Terminate failed",
                          "output 1  could not close file.", "unlock"}));
    QVERIFY(!gv_usingfile);
}

void TestDbgInit::logFile_notToBeClosedWithoutOutput_isSilent()
{
    TraceHost host;
    host.environment = {{"TAV_LOGFILE", directory.filePath("f.log").toUtf8()}};
    host.initialise();
    close(fileno(gv_lhstdout));
    host.table.output = nullptr;
    dbg_Terminate();
    QCOMPARE(host.takeCalls(), QStringList("stream stdout"));
}

void TestDbgInit::errorCode_fromAStep_endsTheProcess_data()
{
    QTest::addColumn<QString>("levelCode");
    QTest::addColumn<QString>("infoCode");
    QTest::addColumn<QString>("output");

    QTest::newRow("success") << "0"
                             << "0"
                             << "initialised\n";
    QTest::newRow("1") << "1"
                       << "0"
                       << "dbg_Init failed : unknown type.";
    QTest::newRow("2") << "2"
                       << "0"
                       << "dbg_Init failed : could not open file.";
    QTest::newRow("3") << "3"
                       << "0"
                       << "dbg_Init failed : illegal nullpointer passed as argument.";
    QTest::newRow("4") << "4"
                       << "0"
                       << "dbg_Init failed : functionality not yet implemented.";
    QTest::newRow("5") << "5"
                       << "0"
                       << "dbg_Init failed : Mutex init failed.";
    QTest::newRow("6") << "6"
                       << "0"
                       << "dbg_Init failed : could not close file.";
    QTest::newRow("7") << "7"
                       << "0"
                       << "dbg_Init failed :Unknown Error";
    QTest::newRow("negative") << "-1"
                              << "0"
                              << "dbg_Init failed :Unknown Error";
    QTest::newRow("second step") << "0"
                                 << "1"
                                 << "dbg_Init failed : unknown type.";
    QTest::newRow("first step counts") << "2"
                                       << "1"
                                       << "dbg_Init failed : could not open file.";
}

void TestDbgInit::errorCode_fromAStep_endsTheProcess()
{
    QFETCH(QString, levelCode);
    QFETCH(QString, infoCode);
    QFETCH(QString, output);
    const ChildResult result
        = runChild(TRACE_INIT_FAILURE, {}, {{"LEVEL_CODE", levelCode}, {"INFO_CODE", infoCode}});
    QCOMPARE(result.output, output);
    QCOMPARE(result.exitCode, output.startsWith("dbg_Init") ? 1 : 0);
}

CORVANE_TEST_MAIN(TestDbgInit)
#include "tst_dbginit.moc"
