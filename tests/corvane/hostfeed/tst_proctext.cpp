#include "proctext.h"
#include "testcase.h"

#include <limits>

using namespace corvane;

class TestProcText : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void systemCounters();
    void systemCounters_ofAnOldKernel();
    void systemCounters_leaveOutWhatIsBroken();
    void memorySizes();
    void interfaces();
    void disks();
    void processStat_name_data();
    void processStat_name();
    void processStat_figures();
    void processStat_cutAnywhere();
    void commandLine();
    void loadAverages();
    void uptimeAndNumbers();
    void shownText_data();
    void shownText();
    void shownText_keepsSurrogatesTogether();
    void rates();
};

void TestProcText::systemCounters()
{
    const SystemCounters counters = parseSystemCounters("cpu  1 2 3 4 5 6 7 8 9 10\n"
                                                        "cpu0 11 12 13 14 15 16 17 18 0 0\n"
                                                        "cpu12 1 1 1 1 1 1 1 1 0 0\n"
                                                        "intr 99 1 2 3\n"
                                                        "ctxt 18446744073709551615\n"
                                                        "btime 5\nprocesses 77\n");
    QVERIFY(counters.total);
    QCOMPARE(counters.total->user, 1);
    QCOMPARE(counters.total->nice, 2);
    QCOMPARE(counters.total->system, 3);
    QCOMPARE(counters.total->idle, 4);
    QCOMPARE(counters.total->wait, 5);
    QCOMPARE(counters.total->interrupts, 13);
    QCOMPARE(counters.total->steal, 8);
    QCOMPARE(counters.cores.keys(), QList<quint32>({0, 12}));
    QCOMPARE(counters.cores[0].idle, 14);
    QCOMPARE(counters.interrupts, 99);
    QCOMPARE(counters.contextSwitches, std::numeric_limits<quint64>::max());
    QCOMPARE(counters.forks, 77);
}

void TestProcText::systemCounters_ofAnOldKernel()
{
    const SystemCounters counters = parseSystemCounters("cpu 1 2 3 4\n");
    QVERIFY(counters.total);
    QCOMPARE(counters.total->idle, 4);
    QCOMPARE(counters.total->steal, 0);
    QVERIFY(!counters.contextSwitches);
}

void TestProcText::systemCounters_leaveOutWhatIsBroken()
{
    const SystemCounters counters
        = parseSystemCounters("cpu 1 2 3\ncpux 1 2 3 4\ncpu1 1 two 3 4\n\nctxt\nintr x\n"
                              "cpu2 1 2 3 18446744073709551616");
    QVERIFY(!counters.total);
    QVERIFY(counters.cores.isEmpty());
    QVERIFY(!counters.contextSwitches);
    QVERIFY(!counters.interrupts);
    QVERIFY(!parseSystemCounters("").total);
}

void TestProcText::memorySizes()
{
    const auto sizes = parseMemorySizes("MemTotal:       2048 kB\nHugePages_Total:       3\n"
                                        "Active(anon):  1 kB\nBroken: x kB\nNoColon 1 kB\n");
    QCOMPARE(sizes.keys(), QByteArrayList({"Active(anon)", "MemTotal"}));
    QCOMPARE(sizes["MemTotal"], 2048 * 1024);
}

void TestProcText::interfaces()
{
    const auto interfaces = parseInterfaces(
        "Inter-|   Receive                 |  Transmit\n"
        " face |bytes    packets errs drop fifo frame compressed multicast|bytes packets\n"
        "    lo: 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16\n"
        "odd:1:99 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16\n"
        " short: 1 2 3\n");
    QCOMPARE(interfaces.size(), size_t(2));
    QCOMPARE(interfaces[0].name, "lo");
    QCOMPARE(interfaces[0].received.bytes, 1);
    QCOMPARE(interfaces[0].received.packets, 2);
    QCOMPARE(interfaces[0].received.errors, 3);
    QCOMPARE(interfaces[0].received.dropped, 4);
    QCOMPARE(interfaces[0].sent.bytes, 9);
    QCOMPARE(interfaces[0].sent.dropped, 12);
    QCOMPARE(interfaces[1].name, "odd:1");
    QCOMPARE(interfaces[1].received.bytes, 99);
}

void TestProcText::disks()
{
    const auto disks = parseDisks("   8       0 sda 1 2 3 4 5 6 7 8 9 10 11 12 13 14\n"
                                  "   8       1 sda1 1 2 3\n   8 2 sda2 1 2 x 4 5 6 7 8 9 10 11\n");
    QCOMPARE(disks.size(), size_t(1));
    QCOMPARE(disks[0].name, "sda");
    QCOMPARE(disks[0].readBytes, 3 * 512);
    QCOMPARE(disks[0].writtenBytes, 7 * 512);
    QCOMPARE(disks[0].requestsInProgress, 9);
    QCOMPARE(disks[0].busyMs, 10);
}

void TestProcText::processStat_name_data()
{
    QTest::addColumn<QByteArray>("name");

    QTest::newRow("plain") << QByteArray("bash");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("spaces") << QByteArray(" Web Content ");
    QTest::newRow("parentheses") << QByteArray("(sd-pam)");
    QTest::newRow("looks like the end") << QByteArray("x) R 1 2 3 (");
    QTest::newRow("line break") << QByteArray("a\nb");
    QTest::newRow("not UTF-8") << QByteArray("\xff\xfe");
}

void TestProcText::processStat_name()
{
    QFETCH(QByteArray, name);
    const auto stat = parseProcessStat("42 (" + name
                                       + ") S 1 42 42 0 -1 0 1 2 3 4 50 60 7 8 20 0 3 0 900 "
                                         "1000 77 18446744073709551615 1\n");
    QVERIFY(stat);
    QCOMPARE(stat->name, name);
    QCOMPARE(stat->pid, 42);
    QCOMPARE(stat->state, 'S');
}

void TestProcText::processStat_figures()
{
    const auto stat
        = parseProcessStat("42 (a) D 7 42 42 0 -1 0 1 2 3 4 50 60 7 8 20 -5 3 0 900 1000 77 1 1\n");
    QVERIFY(stat);
    QCOMPARE(stat->state, 'D');
    QCOMPARE(stat->parentPid, 7);
    QCOMPARE(stat->cpuTicks, 110);
    QCOMPARE(stat->nice, -5);
    QCOMPARE(stat->threads, 3);
    QCOMPARE(stat->startTicks, 900);
    QCOMPARE(stat->residentPages, 77);
}

void TestProcText::processStat_cutAnywhere()
{
    const QByteArray text = "42 (a) D 7 42 42 0 -1 0 1 2 3 4 50 60 7 8 20 -5 3 0 900 1000 7";
    QVERIFY(parseProcessStat(text));
    for (qsizetype i = 0; i < text.size(); ++i)
        QVERIFY(!parseProcessStat(text.first(i)));
}

void TestProcText::commandLine()
{
    QCOMPARE(parseCommandLine(QByteArrayView("/bin/sh\0-c\0echo a b\0", 20)),
             QByteArray("/bin/sh -c echo a b"));
    // A program may write what it likes there.
    QCOMPARE(parseCommandLine("sshd: me [priv]"), QByteArray("sshd: me [priv]"));
    QVERIFY(!parseCommandLine(""));
    QVERIFY(!parseCommandLine(QByteArrayView("\0\0", 2)));
}

void TestProcText::loadAverages()
{
    const auto load = parseLoadAverages("0.50 1.25 2.00 3/456 7890\n");
    QVERIFY(load);
    QCOMPARE(load->oneMinute, 0.5);
    QCOMPARE(load->fiveMinutes, 1.25);
    QCOMPARE(load->fifteenMinutes, 2.0);
    QCOMPARE(load->runnable, 3);
    QCOMPARE(load->threads, 456);
    QVERIFY(!parseLoadAverages("0.50 1.25 2.00"));
    QVERIFY(!parseLoadAverages("nan 1 1 1/1 1"));
    QVERIFY(!parseLoadAverages(""));
}

void TestProcText::uptimeAndNumbers()
{
    QCOMPARE(parseUptime("350735.47 234388.90\n"), 350735.47);
    QVERIFY(!parseUptime(""));
    QCOMPARE(parseNumber("-1000\n"), -1000);
    QVERIFY(!parseNumber("\n"));
    QVERIFY(!parseNumber("1 2"));
    QVERIFY(!parseNumber("9223372036854775808"));
}

void TestProcText::shownText_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("shown");

    QTest::newRow("plain") << QByteArray("eth0\n") << QByteArray("eth0");
    QTest::newRow("umlaut") << QByteArray("\xc3\xa4") << QByteArray("\xc3\xa4");
    QTest::newRow("broken UTF-8") << QByteArray("a\xff") << QByteArray("a\xef\xbf\xbd");
    QTest::newRow("control characters") << QByteArray("a\n\x1b[31mb") << QByteArray("a  [31mb");
    QTest::newRow("longest") << QByteArray(10, 'x') << QByteArray(10, 'x');
    QTest::newRow("too long") << QByteArray(11, 'x')
                              << QByteArray(10, 'x') + QByteArray("\xe2\x80\xa6");
}

void TestProcText::shownText()
{
    QFETCH(QByteArray, text);
    QTEST(QByteArray::fromStdString(makeShownText(text, 10)), "shown");
}

void TestProcText::shownText_keepsSurrogatesTogether()
{
    const QByteArray smile = "\xf0\x9f\x98\x80";
    QCOMPARE(QByteArray::fromStdString(makeShownText("x" + smile + smile, 4)),
             "x" + smile + "\xe2\x80\xa6");
}

void TestProcText::rates()
{
    QCOMPARE(getIncrease(5, 5), 0);
    QCOMPARE(getIncrease(5, 9), 4);
    QVERIFY(!getIncrease(5, 4));
    QVERIFY(!getIncrease(std::numeric_limits<quint64>::max(), 3));
    QCOMPARE(getRate(100, 150, 0.5), 100.0);
    QVERIFY(!getRate(100, 99, 0.5));
    QVERIFY(!getRate(100, 150, 0.0));
    QVERIFY(!getRate(100, 150, -1.0));
}

CORVANE_TEST_MAIN(TestProcText)
#include "tst_proctext.moc"
