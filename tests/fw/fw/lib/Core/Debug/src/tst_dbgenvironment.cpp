#include "DbgEnvironment.h"
#include "testcase.h"
#include "tracehost.h"

using corvane::test::resetTracing;
using corvane::test::TraceHost;

namespace {

/** The words of \a all whose bits are set in \a chosen. */
QStringList subset(const QStringList &all, int chosen)
{
    QStringList words;
    for (int i = 0; i < all.size(); ++i)
        if ((chosen & 1 << i) != 0)
            words.append(all.at(i));
    return words;
}

void setOrRemove(TraceHost &host, const char *variable, const QString &value)
{
    host.environment.remove(variable);
    if (value != QLatin1String("unset"))
        host.environment.insert(variable, value.toUtf8());
}

} // namespace

class TestDbgEnvironment : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void getenv_withoutHost_readsTheProcessEnvironment();
    void getenv_withHost_readsTheHostOnly();
    void level_fromVariable_data();
    void level_fromVariable();
    void level_everyCombination_followsTheRules();
    void info_fromVariable_data();
    void info_fromVariable();
    void info_everyCombination_printsTheNamedFieldsInOrder();
    void subModActive_uninitialised_isMinusOne();
    void subModActive_lists_data();
    void subModActive_lists();
    void time_setTime_winsOverTheHost();
    void time_withoutHost_isZero();
    void timeActive_range_data();
    void timeActive_range();
};

void TestDbgEnvironment::getenv_withoutHost_readsTheProcessEnvironment()
{
    TraceHost host;
    qputenv("TAV_TEST_VARIABLE", "from the process");
    host.environment = {{"TAV_TEST_VARIABLE", "from the host"}};

    host.table.getenv = nullptr;
    QCOMPARE(dbg_getenv("TAV_TEST_VARIABLE"), "from the process");
    dbg_SetCallbackFunctions(nullptr);
    QCOMPARE(dbg_getenv("TAV_TEST_VARIABLE"), "from the process");
    QCOMPARE(dbg_getenv("TAV_NO_SUCH_VARIABLE"), nullptr);
    QCOMPARE(dbg_getenv(nullptr), nullptr);
}

void TestDbgEnvironment::getenv_withHost_readsTheHostOnly()
{
    TraceHost host;
    qputenv("TAV_TEST_VARIABLE", "from the process");
    QCOMPARE(dbg_getenv("TAV_TEST_VARIABLE"), nullptr);
    host.environment = {{"TAV_TEST_VARIABLE", "from the host"}};
    QCOMPARE(dbg_getenv("TAV_TEST_VARIABLE"), "from the host");
}

void TestDbgEnvironment::level_fromVariable_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<unsigned>("mask");

    QTest::newRow("unset") << "unset" << 1u;
    QTest::newRow("empty") << "" << 1u;
    QTest::newRow("all") << "all" << 255u;
    QTest::newRow("none") << "none" << 0u;
    QTest::newRow("012") << "012" << 29u;
    QTest::newRow("210") << "210" << 29u;
    QTest::newRow("1FUNC") << "1FUNC" << 11u;
    QTest::newRow("2") << "2" << 17u;
    QTest::newRow("1") << "1" << 9u;
    QTest::newRow("0") << "0" << 5u;
    QTest::newRow("12") << "12" << 25u;
    QTest::newRow("02") << "02" << 21u;
    QTest::newRow("2 and none") << "2,none" << 0u;
    QTest::newRow("none and all") << "none all" << 255u;
    QTest::newRow("inside words") << "x2overallx" << 255u;
    QTest::newRow("case counts") << "func ALL NONE" << 1u;
    QTest::newRow("other digits") << "3456789" << 1u;
}

void TestDbgEnvironment::level_fromVariable()
{
    QFETCH(QString, value);
    TraceHost host;
    setOrRemove(host, "TAV_TRACELEVEL", value);
    sv_iTraceLevel = 77;
    host.initialise();
    QTEST(sv_iTraceLevel, "mask");

    sv_iTraceLevel = 77;
    QCOMPARE(TraceLevelInitialise(), 0);
    QTEST(sv_iTraceLevel, "mask");
}

void TestDbgEnvironment::level_everyCombination_followsTheRules()
{
    const QStringList words{"2", "1", "0", "FUNC", "none", "all"};
    const QList<unsigned> bits{16, 8, 4, 2};
    TraceHost host;
    for (int chosen = 0; chosen < 64; ++chosen) {
        unsigned expected = 1;
        for (int i = 0; i < bits.size(); ++i)
            if ((chosen & 1 << i) != 0)
                expected += bits.at(i);
        if ((chosen & 16) != 0)
            expected = 0;
        if ((chosen & 32) != 0)
            expected = 255;
        const QByteArray value = subset(words, chosen).join(',').toUtf8();
        host.initialiseWith("TAV_TRACELEVEL", value.constData());
        QVERIFY2(sv_iTraceLevel == expected, value.constData());
    }
}

void TestDbgEnvironment::info_fromVariable_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("line");

    const QString standard = " Lv:   0        sub Ln:   7                 func text\n";
    QTest::newRow("unset") << "unset" << standard;
    QTest::newRow("empty") << ""
                           << " text\n";
    QTest::newRow("no keyword") << "level time"
                                << " text\n";
    QTest::newRow("time and thread") << "TIME,THREAD"
                                     << "      5000 Thd:            main text\n";
    QTest::newRow("inside a word") << "xFUNCTION"
                                   << "                 func text\n";
    QTest::newRow("all") << "all"
                         << "      5000 Lv:   0 Thd:            main     module        sub Ln:   7"
                            "                 func                 file text\n";
    QTest::newRow("all with others") << "LINE and all the rest"
                                     << "      5000 Lv:   0 Thd:            main     module        "
                                        "sub Ln:   7                 func                 file "
                                        "text\n";
}

void TestDbgEnvironment::info_fromVariable()
{
    QFETCH(QString, value);
    TraceHost host;
    host.time = 5000999;
    setOrRemove(host, "TAV_TRACEINFO", value);
    host.initialise();
    dbg_Trace(4, "module", "sub", "func", "file", 7, "text");
    QTEST(host.takeLine(), "line");

    QCOMPARE(TraceInfoInitialise(), 0);
    dbg_Trace(4, "module", "sub", "func", "file", 7, "text");
    QTEST(host.takeLine(), "line");
}

void TestDbgEnvironment::info_everyCombination_printsTheNamedFieldsInOrder()
{
    const QStringList words{"TIME", "LEVEL", "THREAD", "MODULE", "SUBMOD", "LINE", "FUNC", "FILE"};
    const QStringList fields{
        "       123",  " Lv: Err", " Thd:            main", "     module",
        "        sub", " Ln:   7", "                 func", "                 file"};
    TraceHost host;
    host.time = 123456;
    for (int chosen = 0; chosen < 256; ++chosen) {
        const QByteArray value = subset(words, chosen).join(' ').toUtf8();
        host.initialiseWith("TAV_TRACEINFO", value.constData());
        dbg_Trace(1, "module", "sub", "func", "file", 7, "text");
        QCOMPARE(host.takeLine(), subset(fields, chosen).join(QString()) + " text\n");
    }
}

void TestDbgEnvironment::subModActive_uninitialised_isMinusOne()
{
    const TraceHost host;
    QCOMPARE(dbg_SubModActive("module", "sub"), -1);
}

void TestDbgEnvironment::subModActive_lists_data()
{
    QTest::addColumn<QString>("modules");
    QTest::addColumn<QString>("subModules");
    QTest::addColumn<int>("active");

    // The question is always for module "core" and sub-module "reader".
    QTest::newRow("no lists") << "unset"
                              << "unset" << 1;
    QTest::newRow("modules none") << "none"
                                  << "all" << 0;
    QTest::newRow("modules all") << "all"
                                 << "unset" << 1;
    QTest::newRow("module named") << "gui,core"
                                  << "unset" << 1;
    QTest::newRow("module not named") << "gui,cor"
                                      << "unset" << 0;
    QTest::newRow("module within a word") << "encored"
                                          << "unset" << 1;
    QTest::newRow("modules empty") << ""
                                   << "unset" << 0;
    QTest::newRow("all among others") << "gui,all"
                                      << "unset" << 0;
    QTest::newRow("none among others") << "none,core"
                                       << "unset" << 1;
    QTest::newRow("sub-modules none") << "unset"
                                      << "none" << 0;
    QTest::newRow("sub-modules all") << "unset"
                                     << "all" << 1;
    QTest::newRow("sub-module named") << "unset"
                                      << "writer reader" << 1;
    QTest::newRow("sub-module not named") << "unset"
                                          << "writer" << 0;
    QTest::newRow("sub-modules empty") << "unset"
                                       << "" << 0;
    QTest::newRow("module but not sub-module") << "core"
                                               << "writer" << 0;
    QTest::newRow("sub-module but not module") << "gui"
                                               << "reader" << 0;
    QTest::newRow("both") << "core"
                          << "reader" << 1;
}

void TestDbgEnvironment::subModActive_lists()
{
    QFETCH(QString, modules);
    QFETCH(QString, subModules);
    TraceHost host;
    setOrRemove(host, "TAV_MODULES", modules);
    setOrRemove(host, "TAV_SUBMODULES", subModules);
    host.initialise();
    QTEST(dbg_SubModActive("core", "reader"), "active");

    // A null name is an empty one, which every list but "none" contains.
    const bool none = modules == QLatin1String("none") || subModules == QLatin1String("none");
    QCOMPARE(dbg_SubModActive(nullptr, nullptr), none ? 0 : 1);
}

void TestDbgEnvironment::time_setTime_winsOverTheHost()
{
    TraceHost host;
    host.time = 1000;
    QCOMPARE(dbg_GetTime(), 1000u);
    dbg_SetTime(77);
    QCOMPARE(dbg_GetTime(), 77u);
    dbg_SetTime(0);
    QCOMPARE(dbg_GetTime(), 1000u);
}

void TestDbgEnvironment::time_withoutHost_isZero()
{
    TraceHost host;
    host.table.getTime = nullptr;
    QCOMPARE(dbg_GetTime(), 0u);
    dbg_SetCallbackFunctions(nullptr);
    QCOMPARE(dbg_GetTime(), 0u);
}

void TestDbgEnvironment::timeActive_range_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("stop");
    QTest::addColumn<quint64>("time");
    QTest::addColumn<bool>("active");

    const quint64 latest = ~quint64(0);
    QTest::newRow("no range, time 0") << "unset"
                                      << "unset" << quint64(0) << true;
    QTest::newRow("no range, latest time") << "unset"
                                           << "unset" << latest << true;
    QTest::newRow("before") << "5"
                            << "7" << quint64(4999) << false;
    QTest::newRow("first") << "5"
                           << "7" << quint64(5000) << true;
    QTest::newRow("last") << "5"
                          << "7" << quint64(7000) << true;
    QTest::newRow("after") << "5"
                           << "7" << quint64(7001) << false;
    QTest::newRow("start only") << "5"
                                << "unset" << latest << true;
    QTest::newRow("stop only") << "unset"
                               << "7" << quint64(0) << true;
    QTest::newRow("no number is 0") << "unset"
                                    << "soon" << quint64(1) << false;
    QTest::newRow("number with rest") << "5s"
                                      << "unset" << quint64(4999) << false;
    QTest::newRow("reversed") << "7"
                              << "5" << quint64(6000) << false;
}

void TestDbgEnvironment::timeActive_range()
{
    QFETCH(QString, start);
    QFETCH(QString, stop);
    QFETCH(quint64, time);
    TraceHost host;
    setOrRemove(host, "TAV_STARTTIME", start);
    setOrRemove(host, "TAV_STOPTIME", stop);
    host.initialise();
    host.time = time;
    QTEST(dbg_TimeActive(), "active");
}

CORVANE_TEST_MAIN(TestDbgEnvironment)
#include "tst_dbgenvironment.moc"
