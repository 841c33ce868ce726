#include "cinterface.h"
#include "testcase.h"
#include "tracehost.h"

using corvane::test::TraceHost;

class TestDbgCInterface : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void functions_calledFromC_trace();
    void globals_readFromC_haveTheirValues();
};

void TestDbgCInterface::functions_calledFromC_trace()
{
    TraceHost host;
    host.initialiseWith("TAV_TRACEINFO", "none");
    traceFromC();
    QCOMPARE(host.takeLines(),
             QStringList({" level 1\n", "           traceFromC>\n", " text\n", " number 12\n",
                          "c\n", "           traceFromC<\n", " 1 == 2\n", " 1 == 2\n", "dump\n"}));
}

void TestDbgCInterface::globals_readFromC_haveTheirValues()
{
    TraceHost host;
    host.initialise();
    QVERIFY(stateSeenFromC() != 0);
}

CORVANE_TEST_MAIN(TestDbgCInterface)
#include "tst_dbgcinterface.moc"
