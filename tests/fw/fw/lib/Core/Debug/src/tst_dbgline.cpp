#include "testcase.h"
#include "tracechildren.h"
#include "tracehost.h"

using corvane::test::ChildResult;
using corvane::test::runChild;
using corvane::test::TraceHost;

namespace {

enum class Body {
    Trace,
    TraceArg,
    TraceContArg,
    TraceIn,
    TraceOut,
    Assert,
    AssertArg
};

/** Makes a line with the given text, or function name where there is no text. */
void emitWith(Body body, const QByteArray &text)
{
    const char *word = text.constData();
    switch (body) {
    case Body::Trace:
        return dbg_Trace(4, "m", "s", "f", "file", 5, word);
    case Body::TraceArg:
        return dbg_TraceArg(4, "m", "s", "f", "file", 5, "%s", word);
    case Body::TraceContArg:
        return dbg_TraceContArg(4, "%s", word);
    case Body::TraceIn:
        return dbg_TraceIn(4, "m", "s", word, "file", 5);
    case Body::TraceOut:
        return dbg_TraceOut(4, "m", "s", word, "file", 5);
    case Body::Assert:
        return dbg_Assert("m", "s", "f", "file", 5, word);
    case Body::AssertArg:
        return dbg_AssertArg("m", "s", "f", "file", 5, "%s", word);
    }
}

bool cutKeepsNewline(Body body)
{
    return body != Body::TraceArg && body != Body::TraceContArg;
}

QString cutLine(const QString &line, int limit, bool keepsNewline)
{
    if (line.size() <= limit)
        return line;
    if (!keepsNewline || limit == 0)
        return line.left(limit);
    return line.left(limit - 1) + '\n';
}

} // namespace

Q_DECLARE_METATYPE(Body)

class TestDbgLine : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void level_everyLevel_hasAName_data();
    void level_everyLevel_hasAName();
    void prefix_longNames_arePrintedWhole();
    void prefix_numbers_keepTheirWidth_data();
    void prefix_numbers_keepTheirWidth();
    void prefix_time_isTheSetTime();
    void prefix_thread_data();
    void prefix_thread();
    void body_everyFunction_data();
    void body_everyFunction();
    void body_nullStrings_areEmpty();
    void cut_aroundTheLimit_data();
    void cut_aroundTheLimit();
    void cut_withinThePrefix_keepsTheRule();
    void cut_hugeSize_isNoLimit();
    void cut_withoutMemory_isThatOfTheStack();
    void cut_lengthOfAFailedFormat_isZero();
};

void TestDbgLine::level_everyLevel_hasAName_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("field");

    QTest::newRow("error") << 1 << " Lv: Err";
    QTest::newRow("function") << 2 << " Lv:Func";
    QTest::newRow("detail 0") << 4 << " Lv:   0";
    QTest::newRow("detail 1") << 8 << " Lv:   1";
    QTest::newRow("detail 2") << 16 << " Lv:   2";
    QTest::newRow("assertion") << 32 << " ASSERT:";
    QTest::newRow("beyond") << 64 << " Lv: Unk";
    QTest::newRow("several bits") << 5 << " Lv: Unk";
    QTest::newRow("none") << 0 << " Lv: Unk";
    QTest::newRow("negative") << -1 << " Lv: Unk";
}

void TestDbgLine::level_everyLevel_hasAName()
{
    QFETCH(int, level);
    QFETCH(QString, field);
    TraceHost host;
    host.initialiseWith("TAV_TRACEINFO", "LEVEL");
    dbg_Trace(level, "m", "s", "f", "file", 5, "text");
    QCOMPARE(host.takeLine(), field + " text\n");
}

void TestDbgLine::prefix_longNames_arePrintedWhole()
{
    TraceHost host;
    host.initialiseWith("TAV_TRACEINFO", "MODULE SUBMOD FUNC FILE");
    dbg_Trace(1, "moduleOf11c", "subOf10cha", "aFunctionOf21Charact", "aFileOf21Characters__", 5,
              "");
    QCOMPARE(host.takeLine(),
             " moduleOf11c subOf10cha aFunctionOf21Charact aFileOf21Characters__ \n");
}

void TestDbgLine::prefix_numbers_keepTheirWidth_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("field");

    QTest::newRow("0") << 0 << " Ln:   0";
    QTest::newRow("1234") << 1234 << " Ln:1234";
    QTest::newRow("12345") << 12345 << " Ln:12345";
    QTest::newRow("-1") << -1 << " Ln:  -1";
    QTest::newRow("least") << std::numeric_limits<int>::min() << " Ln:-2147483648";
    QTest::newRow("greatest") << std::numeric_limits<int>::max() << " Ln:2147483647";
}

void TestDbgLine::prefix_numbers_keepTheirWidth()
{
    QFETCH(int, number);
    QFETCH(QString, field);
    TraceHost host;
    host.initialiseWith("TAV_TRACEINFO", "LINE");
    dbg_Trace(1, "m", "s", "f", "file", number, "text");
    QCOMPARE(host.takeLine(), field + " text\n");
}

void TestDbgLine::prefix_time_isTheSetTime()
{
    TraceHost host;
    host.initialiseWith("TAV_TRACEINFO", "TIME");
    host.time = 1999;
    dbg_Trace(1, "m", "s", "f", "file", 5, "host");
    dbg_SetTime(7000);
    dbg_Trace(1, "m", "s", "f", "file", 5, "set");
    dbg_SetTime(~uint64_t(0));
    dbg_Trace(1, "m", "s", "f", "file", 5, "latest");
    QCOMPARE(host.takeLines(),
             QStringList({"         1 host\n", "         7 set\n", "18446744073709551 latest\n"}));
}

void TestDbgLine::prefix_thread_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("field");

    QTest::newRow("short") << QByteArray("io") << " Thd:              io";
    QTest::newRow("empty") << QByteArray("") << " Thd:                ";
    QTest::newRow("longest") << QByteArray("fifteenletters!") << " Thd: fifteenletters!";
    QTest::newRow("too long") << QByteArray("more than fifteen letters") << " Thd: more than fifte";
}

void TestDbgLine::prefix_thread()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, field);
    TraceHost host;
    host.initialiseWith("TAV_TRACEINFO", "THREAD LINE");
    host.threadName = name;
    dbg_Trace(1, "m", "s", "f", "file", 5, "text");
    QCOMPARE(host.takeLine(), field + " Ln:   5 text\n");

    // A host that forgets the terminator.
    host.table.getThreadName = [](char *out, int size) { memset(out, 'x', size_t(size)); };
    dbg_Trace(1, "m", "s", "f", "file", 5, "text");
    QCOMPARE(host.takeLine(), " Thd:xxxxxxxxxxxxxxxx Ln:   5 text\n");

    host.table.getThreadName = nullptr;
    dbg_Trace(1, "m", "s", "f", "file", 5, "text");
    QCOMPARE(host.takeLine(), " Ln:   5 text\n");
}

void TestDbgLine::body_everyFunction_data()
{
    QTest::addColumn<Body>("body");
    QTest::addColumn<QString>("bare");
    QTest::addColumn<QString>("prefixed");

    const QString level = " Lv:   0";
    const QString rest = "          s Ln:   5";
    const QString f = "                    f";
    const QString word = "                 word";
    QTest::newRow("Trace") << Body::Trace << " word\n" << level + rest + f + " word\n";
    QTest::newRow("TraceArg") << Body::TraceArg << " word\n" << level + rest + f + " word\n";
    QTest::newRow("TraceContArg") << Body::TraceContArg << "word\n"
                                  << "word\n";
    QTest::newRow("TraceIn") << Body::TraceIn << word + ">\n" << level + rest + word + ">\n";
    QTest::newRow("TraceOut") << Body::TraceOut << word + "<\n" << level + rest + word + "<\n";
    QTest::newRow("Assert") << Body::Assert << " word\n"
                            << " ASSERT:" + rest + f + " word\n";
    QTest::newRow("AssertArg") << Body::AssertArg << " word\n"
                               << " ASSERT:" + rest + f + " word\n";
}

void TestDbgLine::body_everyFunction()
{
    QFETCH(Body, body);
    TraceHost host;
    host.initialiseWith("TAV_TRACEINFO", "nothing");
    emitWith(body, "word");
    QTEST(host.takeLine(), "bare");
    corvane::test::resetTracing();
    host.environment.clear();
    host.initialise();
    emitWith(body, "word");
    QTEST(host.takeLine(), "prefixed");
}

void TestDbgLine::body_nullStrings_areEmpty()
{
    TraceHost host;
    host.initialiseWith("TAV_TRACEINFO", "MODULE SUBMOD FUNC FILE");
    const QString prefix = QString(11 + 11 + 21 + 21, ' ');
    // Through pointers without the attribute by which the compiler refuses a null format.
    void (*const traceArg)(int, const char *, const char *, const char *, const char *, int,
                           const char *, ...)
        = dbg_TraceArg;
    void (*const traceContArg)(int, const char *, ...) = dbg_TraceContArg;
    void (*const assertArg)(const char *, const char *, const char *, const char *, int,
                            const char *, ...)
        = dbg_AssertArg;

    dbg_Trace(4, nullptr, nullptr, nullptr, nullptr, 5, nullptr);
    QCOMPARE(host.takeLine(), prefix + " \n");
    traceArg(4, nullptr, nullptr, nullptr, nullptr, 5, nullptr, 1);
    QCOMPARE(host.takeLine(), prefix + " \n");
    traceContArg(4, nullptr, 1);
    QCOMPARE(host.takeLine(), "\n");
    dbg_TraceIn(4, nullptr, nullptr, nullptr, nullptr, 5);
    QCOMPARE(host.takeLine(), prefix + ">\n");
    dbg_TraceOut(4, nullptr, nullptr, nullptr, nullptr, 5);
    QCOMPARE(host.takeLine(), prefix + "<\n");
    dbg_Assert(nullptr, nullptr, nullptr, nullptr, 5, nullptr);
    QCOMPARE(host.takeLine(), prefix + " \n");
    assertArg(nullptr, nullptr, nullptr, nullptr, 5, nullptr, 1);
    QCOMPARE(host.takeLine(), prefix + " \n");
    dbg_DumpInfo(nullptr, 4);
    QCOMPARE(host.takeLine(), "");
}

void TestDbgLine::cut_aroundTheLimit_data()
{
    QTest::addColumn<Body>("body");
    QTest::addColumn<int>("size");

    const QList<QPair<const char *, Body>> bodies{{"Trace", Body::Trace},
                                                  {"TraceArg", Body::TraceArg},
                                                  {"TraceContArg", Body::TraceContArg},
                                                  {"TraceIn", Body::TraceIn},
                                                  {"TraceOut", Body::TraceOut},
                                                  {"Assert", Body::Assert},
                                                  {"AssertArg", Body::AssertArg}};
    // 880 is the last size whose line lives on the stack.
    for (const auto &[name, body] : bodies)
        for (const int size : {-1000, -128, -127, -126, -125, -1, 0, 1, 879, 880, 881, 882, 3072})
            QTest::addRow("%s %d", name, size) << body << size;
}

void TestDbgLine::cut_aroundTheLimit()
{
    QFETCH(Body, body);
    QFETCH(int, size);
    const int limit = qMax(0, size + 127);
    TraceHost host;
    for (const char *info : {"none", "FUNC", "LEVEL SUBMOD LINE FUNC FILE"}) {
        host.initialiseWith("TAV_TRACEINFO", info);
        for (int length = qMax(0, limit - 90); length < limit + 40; ++length) {
            const QByteArray text(length, 'x');
            dbg_Init(nullptr, 1, 0, 8000);
            emitWith(body, text);
            const QString whole = host.takeLine();
            dbg_Init(nullptr, 1, 0, size);
            emitWith(body, text);
            QCOMPARE(host.takeLine(), cutLine(whole, limit, cutKeepsNewline(body)));
        }
    }
}

void TestDbgLine::cut_withinThePrefix_keepsTheRule()
{
    TraceHost host;
    host.environment = {{"TAV_TRACEINFO", "MODULE FUNC FILE"}};
    host.initialise({.additionalInfoSize = -107});
    dbg_Trace(4, "abcdefghijklmnopqrstuvwxyz", "s", "f", "file", 5, "text");
    QCOMPARE(host.takeLine(), " abcdefghijklmnopqr\n");
    dbg_TraceArg(4, "abcdefghijklmnopqrstuvwxyz", "s", "f", "file", 5, "text");
    QCOMPARE(host.takeLine(), " abcdefghijklmnopqrs");
    dbg_TraceIn(4, "a", "s", "f", "file", 5);
    QCOMPARE(host.takeLine(), "          a        \n");
}

void TestDbgLine::cut_hugeSize_isNoLimit()
{
    TraceHost host;
    host.environment = {{"TAV_TRACEINFO", "nothing"}};
    const QByteArray text(200000, 'x');
    host.initialise({.additionalInfoSize = 1 << 20});
    dbg_TraceArg(4, "m", "s", "f", "file", 5, "%s", text.constData());
    QCOMPARE(host.takeLine(), ' ' + QString(text) + '\n');
}

void TestDbgLine::cut_withoutMemory_isThatOfTheStack()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("a sanitizer needs more memory than the limit of this test");
#endif
    const ChildResult result = runChild(TRACE_CHILD, {"nomemory"});
    QCOMPARE(result.output, "output 2 " + QString(1007, 'x') + "\nsurvived\n");
}

void TestDbgLine::cut_lengthOfAFailedFormat_isZero()
{
    TraceHost host;
    host.initialiseWith("TAV_TRACEINFO", "LINE");
    // No character of any encoding: the C library refuses the whole format.
    const wchar_t bad[] = {-1, 0};
    dbg_TraceArg(4, "m", "s", "f", "file", 5, "%ls", bad);
    QCOMPARE(host.takeLine(), " Ln:   5 \n");
}

CORVANE_TEST_MAIN(TestDbgLine)
#include "tst_dbgline.moc"
