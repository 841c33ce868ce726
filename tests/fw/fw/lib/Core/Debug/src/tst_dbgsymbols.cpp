#include "testcase.h"

#include <QProcess>
#include <QRegularExpression>

namespace {

const QStringList unmangledNames{
    "additional_info_size",
    "continue_on_assert",
    "dbg_Abort",
    "dbg_Assert",
    "dbg_AssertArg",
    "dbg_DumpInfo",
    "dbg_ErrorLineHook",
    "dbg_GetTime",
    "dbg_Init",
    "dbg_IsBusy",
    "dbg_SetCallbackFunctions",
    "dbg_SetTime",
    "dbg_SubModActive",
    "dbg_Terminate",
    "dbg_TimeActive",
    "dbg_Trace",
    "dbg_TraceArg",
    "dbg_TraceContArg",
    "dbg_TraceDisable",
    "dbg_TraceEnable",
    "dbg_TraceIn",
    "dbg_TraceOut",
    "dbg_TraceSetListener",
    "dbg_callback_fn",
    "dbg_lock",
    "dbg_unlock",
    "gv_bDBGInitialised",
    "gv_bDBGInitialisedCounter",
    "gv_lhstdout",
    "gv_usingfile",
    "sleep_time_on_assert",
    "sv_bTraceEnabled",
    "sv_iTraceLevel",
};

const QStringList mangledNames{
    "DbgDump_setVersion(char const*)",
    "DbgInitSegVHandler()",
    "Tav::DbgDump_enableDump(bool)",
    "Tav::DbgDump_getNextLine(char*, unsigned long, int, unsigned long&, bool)",
    "Tav::DbgDump_setTraceBuffer(void*, unsigned long)",
    "Tav::dbgDumpAllowed",
    "Tav::dbgMsgBufferPeekNext(unsigned long&, bool)",
    "Tav::dbgMsgBufferPush(char const*)",
    "Tav::dbgMsgBufferReset()",
    "Tav::msgNodeSizeAligned(unsigned long)",
    "TraceInfoInitialise()",
    "TraceLevelInitialise()",
    "dbg_getenv(char const*)",
};

/** The names that the library defines for others, sorted. */
QStringList exportedNames(const QStringList &options)
{
    QProcess nm;
    nm.start(NM_PROGRAM, QStringList{"-D", "--defined-only", "--format=posix"} + options
                             + QStringList{LIBRARY_FILE});
    nm.waitForFinished();
    QStringList names;
    const QRegularExpression line("^(.+) [A-Za-z] [0-9a-f]+( [0-9a-f]*)?$");
    for (const QString &text : QString::fromUtf8(nm.readAllStandardOutput()).split('\n'))
        if (const auto match = line.match(text); match.hasMatch())
            names.append(match.captured(1));
    names.sort();
    return names;
}

} // namespace

class TestDbgSymbols : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void unmangledNames_areTheInterface();
    void mangledNames_areTheInterface();
};

void TestDbgSymbols::unmangledNames_areTheInterface()
{
    // Names that begin with _ are mangled or the linker's, or the run-time of a sanitizer; and
    // gcov, which counts lines, has one without.
    QStringList found = exportedNames({}).filter(QRegularExpression("^[^_]"));
    found.removeOne("mangle_path");
    QCOMPARE(found, unmangledNames);
}

void TestDbgSymbols::mangledNames_areTheInterface()
{
    // The run-time of a sanitizer adds names with two strokes.
    QStringList found = exportedNames({"-C"}).filter(QRegularExpression(
        "^(?!__)(Tav::.*|.*([Dd]bg|Trace(Level|Info|State)|MsgBuffer|[mM]sgNode).*)"));
    for (const QString &name : unmangledNames)
        found.removeAll(name);
    QCOMPARE(found, mangledNames);
}

CORVANE_TEST_MAIN(TestDbgSymbols)
#include "tst_dbgsymbols.moc"
