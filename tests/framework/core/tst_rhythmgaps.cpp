#include "rhythmstream.h"
#include "testcase.h"

#include <algorithm>
#include <cmath>

using namespace corvane::test;
using corvane::Rhythm;

class TestRhythmGaps : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void removedMessages_areFound_data();
    void removedMessages_areFound();
    void everySecondRemoved_isHalfTheRate();
    void removedRuns_areFound();
    void removedFromJitter_areFound();
    void lateMessages_areNoGaps();
    void manyLateMessages_areNoGaps();
    void silenceAtTheEnd_isNoGap();
    void otherRateForAWhile_isNoGap();
    void gap_tellsWhereItIs();
};

void TestRhythmGaps::removedMessages_areFound_data()
{
    QTest::addColumn<int>("every");
    for (const int every : {3, 4, 5, 7, 10, 33, 100})
        QTest::addRow("every %dth", every) << every;
}

void TestRhythmGaps::removedMessages_areFound()
{
    QFETCH(int, every);
    for (const qint64 period : {10 * ms, 50 * ms, second, 60 * second}) {
        Stream stream;
        quint64 removed = 0;
        QList<quint64> starts;
        for (int i = 0; i < 1000; ++i) {
            if (i % every == every - 1) {
                removed += i < 998 ? 1 : 0; // the rhythm has to go on behind it
                starts.append(static_cast<quint64>((beginning + (i - 1) * period) / ms));
            } else {
                stream.send(beginning + i * period);
            }
        }
        QCOMPARE(stream.statistics.gapCount, removed);
        QCOMPARE(stream.statistics.missingEpochs, removed);
        for (qsizetype i = 0; i < stream.statistics.gaps.size(); ++i) {
            QCOMPARE(stream.statistics.gaps.at(i).start, starts.at(i));
            QCOMPARE(stream.statistics.gaps.at(i).missingEpochs, 1U);
            QCOMPARE(stream.statistics.gaps.at(i).interval, period / ms);
        }
        QVERIFY(stream.rhythm.isRegular());
        QVERIFY(stream.addsUp());
    }
}

void TestRhythmGaps::everySecondRemoved_isHalfTheRate()
{
    Stream stream;
    for (int i = 0; i < 1000; i += 2)
        stream.send(beginning + i * 50 * ms);
    QCOMPARE(stream.classes(), QStringList{"100: 500"});
    QCOMPARE(stream.statistics.gapCount, 0U);
}

void TestRhythmGaps::removedRuns_areFound()
{
    QRandomGenerator random(5);
    Stream stream;
    quint64 gaps = 0;
    quint64 removed = 0;
    int epoch = 0;
    while (epoch < 20'000) {
        for (int i = 10 + random.bounded(100); i > 0; --i)
            stream.send(beginning + epoch++ * 20 * ms);
        const int missing = 1 + random.bounded(50);
        epoch += missing;
        removed += static_cast<quint64>(missing);
        ++gaps;
    }
    stream.sendRegularly(1, 20 * ms); // behind the last gap: hides it, since it is not in rhythm
    QVERIFY(gaps > 200);
    QCOMPARE(stream.statistics.gapCount, gaps - 1);
    QVERIFY(stream.statistics.missingEpochs < removed);
    QVERIFY(stream.statistics.missingEpochs >= removed - 50);
}

void TestRhythmGaps::removedFromJitter_areFound()
{
    QRandomGenerator random(7);
    for (const int every : {10, 25, 100}) {
        Stream stream;
        quint64 removed = 0;
        for (int i = 0; i < 5000; ++i) {
            if (i % every == every - 1 && i < 4999) {
                ++removed;
                continue;
            }
            const double late = std::clamp(gaussian(random), -3.0, 3.0) * 0.06 * 50 * ms;
            stream.send(beginning + i * 50 * ms + std::llround(late));
        }
        QCOMPARE(stream.statistics.gapCount, removed);
        QCOMPARE(stream.statistics.missingEpochs, removed);
    }
}

void TestRhythmGaps::lateMessages_areNoGaps()
{
    // A network that holds a few messages back and then lets them through at once.
    Stream stream;
    qint64 latest = 0;
    for (int i = 0; i < 2000; ++i) {
        const qint64 due = beginning + i * 50 * ms + (i % 7) * ms;
        const int heldUntil = i % 97 < 4 ? i - i % 97 + 4 : i;
        latest = std::max(latest, std::max(due, beginning + heldUntil * 50 * ms));
        stream.send(latest);
    }
    QCOMPARE(stream.statistics.gapCount, 0U);
    QCOMPARE(stream.statistics.gaps.size(), 0);
    QVERIFY(stream.rhythm.isRegular());
    QVERIFY(stream.addsUp());
}

void TestRhythmGaps::manyLateMessages_areNoGaps()
{
    Stream stream;
    qint64 latest = 0;
    for (int i = 0; i < 2000; ++i) {
        const int heldUntil = i % 200 >= 100 && i % 200 < 120 ? i - i % 200 + 120 : i;
        latest = std::max(latest + 30, beginning + heldUntil * 50 * ms);
        stream.send(latest);
        QVERIFY(i < 10 || stream.rhythm.isRegular());
        QVERIFY(i < 10 || stream.rhythm.getIntervalMs() == 50);
    }
    QCOMPARE(stream.statistics.gapCount, 0U);
    QVERIFY(stream.addsUp());
}

void TestRhythmGaps::silenceAtTheEnd_isNoGap()
{
    Stream stream;
    stream.sendRegularly(100, 50 * ms);
    stream.sendRegularly(1, second);
    QCOMPARE(stream.statistics.gapCount, 0U); // nothing says yet that the rhythm goes on
    stream.sendRegularly(1, 50 * ms);
    QCOMPARE(stream.statistics.gapCount, 1U);
    QCOMPARE(stream.statistics.missingEpochs, 19U);
}

void TestRhythmGaps::otherRateForAWhile_isNoGap()
{
    Stream stream;
    stream.sendRegularly(100, 50 * ms);
    stream.sendRegularly(6, 100 * ms);
    stream.sendRegularly(100, 50 * ms);
    QCOMPARE(stream.statistics.gapCount, 0U);
    QVERIFY(stream.rhythm.isRegular());
}

void TestRhythmGaps::gap_tellsWhereItIs()
{
    Stream stream;
    stream.sendRegularly(50, 50 * ms);
    const qint64 start = stream.rhythm.getLastTimeUs();
    stream.sendRegularly(1, 200 * ms);
    stream.sendRegularly(50, 50 * ms);
    const MessageStatistics::Gap expected{static_cast<quint64>(start / ms), 3, 50};
    QCOMPARE(stream.statistics.gaps.size(), 1);
    QVERIFY(stream.statistics.gaps.constFirst() == expected);
    QCOMPARE(stream.classes(), (QStringList{"50: 100", "200: 1"}));
}

CORVANE_TEST_MAIN(TestRhythmGaps)
#include "tst_rhythmgaps.moc"
