#include "testcase.h"
#include "tracechildren.h"

using corvane::test::ChildResult;
using corvane::test::runChild;

namespace {

const QString assertPrefix = "output 1  ASSERT:          s Ln:  12                    f ";
const QString abnormal = "Abnormal program termination...\n";

} // namespace

class TestDbgAssert : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void end_data();
    void end();
};

void TestDbgAssert::end_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("errors");

    const QString line = assertPrefix + "a == b\n";
    const QString survived = "survived\n";
    const QString handler = "handler\n";
    const QString clears = "handler clears\n";

    QTest::newRow("initialised, fatal") << "assert" << line + handler << "";
    QTest::newRow("initialised, continue") << "assert continue" << line + survived << "";
    QTest::newRow("uninitialised, fatal") << "assert uninitialised" << handler << "";
    QTest::newRow("uninitialised, continue") << "assert uninitialised continue" << survived << "";

    const QString argLine = assertPrefix + "1 is not 2\n";
    QTest::newRow("format, fatal") << "assertarg" << argLine + handler << "";
    QTest::newRow("format, continue") << "assertarg continue" << argLine + survived << "";
    QTest::newRow("format, uninitialised, fatal") << "assertarg uninitialised" << handler << "";
    QTest::newRow("format, uninitialised, continue")
        << "assertarg uninitialised continue" << survived << "";

    QTest::newRow("sleep") << "assert sleep" << line + "sleep 250 dump 0\n" + handler << "";
    QTest::newRow("sleep, continue") << "assert sleep continue" << line + survived << "";
    QTest::newRow("no sleep slot") << "assert sleep nosleepslot" << line + handler << "";
    QTest::newRow("no handler") << "assert nohandler" << line << "";
    QTest::newRow("no table") << "assert notable"
                              << "" << abnormal;

    QTest::newRow("abort, handler") << "abort" << handler << "";
    QTest::newRow("abort, no handler") << "abort nohandler"
                                       << ""
                                       << "";
    QTest::newRow("abort, no table") << "abort notable"
                                     << "" << abnormal;
    QTest::newRow("abort, handler clears table") << "abort clearing" << clears << abnormal;
}

void TestDbgAssert::end()
{
    QFETCH(QString, arguments);
    QFETCH(QString, output);
    const ChildResult result = runChild(TRACE_CHILD, arguments.split(' '));
    QCOMPARE(result.output, output);
    QTEST(result.errors, "errors");
    const bool survives = output.endsWith("survived\n");
    QCOMPARE(result.aborted, !survives);
    QCOMPARE(result.exitCode, survives ? 0 : -1);
}

CORVANE_TEST_MAIN(TestDbgAssert)
#include "tst_dbgassert.moc"
