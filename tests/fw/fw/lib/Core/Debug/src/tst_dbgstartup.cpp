#include "callbackfunctions.h"
#include "DbgTrace.h"
#include "testcase.h"
#include "tracechildren.h"

#include <QFile>
#include <QTemporaryDir>

using corvane::test::ChildResult;
using corvane::test::runChild;

namespace {

const QString tracedLine = " Lv: Err      state Ln: ";
const char logVariable[] = "KESTREL_NO_FILE_LOGGING_IMPLEMENTED";

// Static objects of a program are initialised after the libraries that it uses.
const bool initialisedBeforeStatics = gv_bDBGInitialised;
DbgCallbackFunctions *const tableBeforeStatics = dbg_callback_fn;

} // namespace

class TestDbgStartup : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void loading_initialisesBeforeTheProgramsStatics();
    void loading_setsTheLibrarysNumbers();
    void loading_linesGoToStandardOutput();
    void loading_logVariable_namesTheFile();
    void loading_readsTheEnvironment();
};

void TestDbgStartup::loading_initialisesBeforeTheProgramsStatics()
{
    QVERIFY(initialisedBeforeStatics);
    QCOMPARE(tableBeforeStatics, getCallBackFunctions());
}

void TestDbgStartup::loading_setsTheLibrarysNumbers()
{
    const ChildResult result = runChild(TRACE_CHILD, {"state"}, {{"TAV_TRACELEVEL", "none"}});
    QCOMPARE(result.output, "table 1 initialised 1 count 1 file 0 stdout 1 continue 0 sleep 0 "
                            "size 3072\n");
    QCOMPARE(result.exitCode, 0);
}

void TestDbgStartup::loading_linesGoToStandardOutput()
{
    const ChildResult result = runChild(TRACE_CHILD, {"state"});
    const QString line = result.output.section('\n', 1);
    QVERIFY2(line.startsWith(tracedLine), qPrintable(line));
    QVERIFY2(line.endsWith(" reportState a traced line\n"), qPrintable(line));
}

void TestDbgStartup::loading_logVariable_namesTheFile()
{
    const QTemporaryDir directory;
    QFile log(directory.filePath("trace.log"));
    const ChildResult result
        = runChild(TRACE_CHILD, {"state"}, {{logVariable, log.fileName()}, {"TAV_LOGFILE", "/"}});
    QCOMPARE(result.output, "table 1 initialised 1 count 1 file 1 stdout 0 continue 0 sleep 0 "
                            "size 3072\n");
    QVERIFY(log.open(QIODevice::ReadOnly));
    const QByteArray content = log.readAll();
    QVERIFY2(content.endsWith(" a traced line\n"), content.constData());
}

void TestDbgStartup::loading_readsTheEnvironment()
{
    const ChildResult result
        = runChild(TRACE_CHILD, {"state"}, {{"TAV_TRACEINFO", "MODULE"}, {"TAV_MODULES", "child"}});
    QCOMPARE(result.output.section('\n', 1), "      child a traced line\n");
}

CORVANE_TEST_MAIN(TestDbgStartup)
#include "tst_dbgstartup.moc"
