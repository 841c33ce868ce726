#include "DbgMsgBuffer.h"
#include "testcase.h"
#include "tracehost.h"

using corvane::test::TraceHost;

namespace {

// What the listener and the hook were told, in the order of the calls.
QStringList told;
bool busyInListener = false;

void listen(int level)
{
    busyInListener = dbg_IsBusy();
    told.append(QStringLiteral("listener %1").arg(level));
}

void hook(const char *line, int length)
{
    told.append(QStringLiteral("hook %1 %2").arg(length).arg(QString(line).trimmed()));
}

QString ringText()
{
    QString all;
    uint64_t cursor = 0;
    while (const char *text = Tav::dbgMsgBufferPeekNext(cursor, false))
        all += text;
    return all;
}

} // namespace

class TestDbgEmission : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void line_isOutputUnderTheLock();
    void severity_ofTheLevel_data();
    void severity_ofTheLevel();
    void listenerAndHook_ofTheLevel_data();
    void listenerAndHook_ofTheLevel();
    void listener_tracing_isNoDeadEnd();
    void hook_ofACutLine_getsTheCutLength();
    void hook_isNotCalledForDumpInfo();
    void dumpInfo_isEmittedAsItIs();
    void busy_onlyWhileALineIsMade();
    void ring_getsEveryLine();
    void slots_missing_areLeftOut();
    void lines_withoutTable_goToTheRing();
    void switches_areNotReadByTheTraceFunctions();
    void lock_passesTheContext();
};

void TestDbgEmission::line_isOutputUnderTheLock()
{
    TraceHost host;
    host.initialiseWith("TAV_TRACEINFO", "none");
    dbg_Trace(4, "m", "s", "f", "file", 5, "one");
    QCOMPARE(host.takeCalls(), QStringList({"lock", "output 2  one\n", "unlock"}));
    dbg_AssertArg("m", "s", "f", "file", 5, "two %d", 2);
    QCOMPARE(host.takeCalls(), QStringList({"lock", "output 1  two 2\n", "unlock"}));
    dbg_DumpInfo("three", 1);
    QCOMPARE(host.takeCalls(), QStringList({"lock", "output 1 three", "unlock"}));
}

void TestDbgEmission::severity_ofTheLevel_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("output");

    for (const int level : {1, 32})
        QTest::addRow("%d", level) << level << "output 1 x\n";
    for (const int level : {0, 2, 3, 4, 8, 16, 33, 64, -1})
        QTest::addRow("%d", level) << level << "output 2 x\n";
}

void TestDbgEmission::severity_ofTheLevel()
{
    QFETCH(int, level);
    TraceHost host;
    host.initialise();
    dbg_TraceContArg(level, "x");
    QTEST(host.takeCalls().value(1), "output");
    dbg_DumpInfo("x\n", level);
    QTEST(host.takeCalls().value(1), "output");
}

void TestDbgEmission::listenerAndHook_ofTheLevel_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("error") << 1 << QStringList{"listener 1", "hook 6 text"};
    QTest::newRow("assertion") << 32 << QStringList{"listener 32"};
    for (const int level : {0, 2, 4, 8, 16, 33, 64})
        QTest::addRow("%d", level) << level << QStringList();
}

void TestDbgEmission::listenerAndHook_ofTheLevel()
{
    QFETCH(int, level);
    QFETCH(QStringList, expected);
    TraceHost host;
    host.initialise();
    told.clear();
    dbg_TraceContArg(level, "text");
    QCOMPARE(told, QStringList());

    dbg_TraceSetListener(listen);
    dbg_ErrorLineHook = hook;
    dbg_TraceContArg(level, "text");
    QCOMPARE(told, expected);
}

void TestDbgEmission::listener_tracing_isNoDeadEnd()
{
    TraceHost host;
    host.initialise();
    dbg_TraceSetListener([](int) { dbg_TraceContArg(4, "from the listener"); });
    dbg_TraceContArg(1, "error");
    QCOMPARE(host.takeCalls(), QStringList({"lock", "output 1 error\n", "unlock", "lock",
                                            "output 2 from the listener\n", "unlock"}));
}

void TestDbgEmission::hook_ofACutLine_getsTheCutLength()
{
    TraceHost host;
    host.initialise({.additionalInfoSize = -100});
    told.clear();
    dbg_ErrorLineHook = hook;
    dbg_TraceContArg(1, "%s", "0123456789012345678901234567890123456789");
    QCOMPARE(told, QStringList("hook 28 012345678901234567890123456"));
}

void TestDbgEmission::hook_isNotCalledForDumpInfo()
{
    TraceHost host;
    host.initialise();
    told.clear();
    dbg_TraceSetListener(listen);
    dbg_ErrorLineHook = hook;
    dbg_DumpInfo("text", 1);
    dbg_DumpInfo("text", 32);
    dbg_DumpInfo("text", 4);
    QCOMPARE(told, QStringList({"listener 1", "listener 32"}));
}

void TestDbgEmission::dumpInfo_isEmittedAsItIs()
{
    TraceHost host;
    host.initialise({.additionalInfoSize = 0});
    const QString text = QString(5000, 'x');
    dbg_DumpInfo(qPrintable(text), 4);
    QCOMPARE(host.takeLine(), text);
}

void TestDbgEmission::busy_onlyWhileALineIsMade()
{
    TraceHost host;
    host.initialise();
    dbg_TraceSetListener(listen);
    QVERIFY(!dbg_IsBusy());
    dbg_TraceContArg(1, "text");
    QVERIFY(host.busyInOutput);
    QVERIFY(busyInListener);
    QVERIFY(!dbg_IsBusy());
    dbg_TraceIn(2, "m", "s", "f", "file", 5);
    dbg_Assert("m", "s", "f", "file", 5, "x");
    QVERIFY(!dbg_IsBusy());
    dbg_DumpInfo("text", 4);
    QVERIFY(!host.busyInOutput);
}

void TestDbgEmission::ring_getsEveryLine()
{
    TraceHost host;
    host.initialiseWith("TAV_TRACEINFO", "none");
    alignas(8) static char area[1024];
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    dbg_Trace(4, "m", "s", "f", "file", 5, "Trace");
    dbg_TraceArg(4, "m", "s", "f", "file", 5, "TraceArg");
    dbg_TraceContArg(4, "TraceContArg");
    dbg_TraceIn(4, "m", "s", "f", "file", 5);
    dbg_TraceOut(4, "m", "s", "f", "file", 5);
    dbg_Assert("m", "s", "f", "file", 5, "Assert");
    dbg_AssertArg("m", "s", "f", "file", 5, "AssertArg");
    dbg_DumpInfo("DumpInfo", 4);
    QCOMPARE(ringText(), host.takeLines().join(QString()));
    QVERIFY(ringText().endsWith("DumpInfo"));
}

void TestDbgEmission::slots_missing_areLeftOut()
{
    TraceHost host;
    host.initialiseWith("TAV_TRACEINFO", "none");
    alignas(8) static char area[1024];
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    host.table.lock = nullptr;
    dbg_Trace(4, "m", "s", "f", "file", 5, "a");
    QCOMPARE(host.takeCalls(), QStringList({"output 2  a\n", "unlock"}));
    host.table.unlock = nullptr;
    dbg_Trace(4, "m", "s", "f", "file", 5, "b");
    QCOMPARE(host.takeCalls(), QStringList("output 2  b\n"));
    host.table.output = nullptr;
    dbg_Trace(4, "m", "s", "f", "file", 5, "c");
    QCOMPARE(host.takeCalls(), QStringList());
    QCOMPARE(ringText(), " a\n b\n c\n");
}

void TestDbgEmission::lines_withoutTable_goToTheRing()
{
    TraceHost host;
    host.initialiseWith("TAV_TRACEINFO", "all");
    alignas(8) static char area[1024];
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    dbg_SetCallbackFunctions(nullptr);
    dbg_lock();
    dbg_unlock();
    dbg_Trace(4, "m", "s", "f", "file", 5, "text");
    QCOMPARE(ringText(), "         0 Lv:   0          m          s Ln:   5                    f"
                         "                 file text\n");
    QCOMPARE(host.takeCalls(), QStringList());
}

void TestDbgEmission::switches_areNotReadByTheTraceFunctions()
{
    TraceHost host;
    host.environment = {{"TAV_TRACELEVEL", "none"},
                        {"TAV_MODULES", "none"},
                        {"TAV_STARTTIME", "100"},
                        {"TAV_TRACEINFO", "none"}};
    host.initialise();
    dbg_TraceDisable();
    dbg_Trace(4, "m", "s", "f", "file", 5, "text");
    QCOMPARE(host.takeLine(), " text\n");
    dbg_Terminate();
    dbg_Trace(4, "m", "s", "f", "file", 5, "uninitialised");
    QCOMPARE(host.takeLine(), " uninitialised\n");
}

void TestDbgEmission::lock_passesTheContext()
{
    TraceHost host;
    dbg_lock();
    dbg_unlock();
    QCOMPARE(host.takeCalls(), QStringList({"lock", "unlock"}));
    host.table.lockContext = nullptr;
    dbg_lock();
    QCOMPARE(host.takeCalls(), QStringList("lock with a wrong context"));
}

CORVANE_TEST_MAIN(TestDbgEmission)
#include "tst_dbgemission.moc"
