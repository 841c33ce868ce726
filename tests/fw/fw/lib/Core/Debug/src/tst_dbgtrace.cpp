#include "DbgTrace.h"
#include "testcase.h"
#include "tracehost.h"

using corvane::test::TraceHost;

namespace {

int evaluations = 0;

int evaluated()
{
    return ++evaluations;
}

void traceStatement()
{
    DBG_TRACE(DbgLevelDetail0, "core", "reader", "argument %d", evaluated());
}

} // namespace

class TestDbgTrace : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void enable_isOnAtFirst();
    void macro_wanted_traces();
    void macro_notWanted_evaluatesNothing_data();
    void macro_notWanted_evaluatesNothing();
    void macro_isOneStatement();
};

void TestDbgTrace::enable_isOnAtFirst()
{
    QCOMPARE(sv_bTraceEnabled, 1);
    dbg_TraceDisable();
    QCOMPARE(sv_bTraceEnabled, 0);
    dbg_TraceEnable();
    QCOMPARE(sv_bTraceEnabled, 1);
}

void TestDbgTrace::macro_wanted_traces()
{
    TraceHost host;
    host.environment = {{"TAV_TRACELEVEL", "0"}, {"TAV_TRACEINFO", "MODULE SUBMOD FUNC"}};
    host.initialise();
    evaluations = 0;
    traceStatement();
    QCOMPARE(host.takeLine(), "       core     reader       traceStatement argument 1\n");
    QCOMPARE(evaluations, 1);
}

void TestDbgTrace::macro_notWanted_evaluatesNothing_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QByteArray>("value");

    QTest::newRow("level") << QByteArray("TAV_TRACELEVEL") << QByteArray("12FUNC");
    QTest::newRow("no level") << QByteArray("TAV_TRACELEVEL") << QByteArray("none");
    QTest::newRow("module") << QByteArray("TAV_MODULES") << QByteArray("gui");
    QTest::newRow("sub-module") << QByteArray("TAV_SUBMODULES") << QByteArray("none");
    QTest::newRow("too early") << QByteArray("TAV_STARTTIME") << QByteArray("3");
    QTest::newRow("too late") << QByteArray("TAV_STOPTIME") << QByteArray("1");
    QTest::newRow("switched off") << QByteArray("switch") << QByteArray();
    QTest::newRow("uninitialised") << QByteArray("uninitialised") << QByteArray();
}

void TestDbgTrace::macro_notWanted_evaluatesNothing()
{
    QFETCH(QByteArray, variable);
    QFETCH(QByteArray, value);
    TraceHost host;
    host.time = 2000;
    host.environment = {{"TAV_TRACELEVEL", "0"}};
    host.environment.insert(variable, value);
    host.initialise();
    if (variable == "switch")
        dbg_TraceDisable();
    if (variable == "uninitialised")
        dbg_Terminate();
    evaluations = 0;
    traceStatement();
    QCOMPARE(host.takeLines(), QStringList());
    QCOMPARE(evaluations, 0);
}

void TestDbgTrace::macro_isOneStatement()
{
    TraceHost host;
    host.initialiseWith("TAV_TRACELEVEL", "none");
    bool otherwise = false;
    if (sv_iTraceLevel != 0)
        DBG_TRACE(DbgLevelError, "core", "reader", "unwanted");
    else
        otherwise = true;
    QVERIFY(otherwise);
}

CORVANE_TEST_MAIN(TestDbgTrace)
#include "tst_dbgtrace.moc"
