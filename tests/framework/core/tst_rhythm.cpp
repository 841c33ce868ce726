#include "rhythmstream.h"
#include "testcase.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

using namespace corvane::test;
using corvane::Rhythm;

class TestRhythm : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void regular_showsAsOneInterval_data();
    void regular_showsAsOneInterval();
    void jitter_showsAsOneInterval_data();
    void jitter_showsAsOneInterval();
    void few_areNotRegularYet();
    void randomMoments_areNeverRegular_data();
    void randomMoments_areNeverRegular();
    void bursts_areNeverRegular();
    void longBursts_areNoRhythmWithGaps_data();
    void longBursts_areNoRhythmWithGaps();
    void pairs_areNoRhythmWithGaps();
    void oddPeriods_areNamed_data();
    void oddPeriods_areNamed();
    void changeOfRate_isFollowed_data();
    void changeOfRate_isFollowed();
    void slowDrift_isFollowed();
    void equalTimes_areCountedApart();
    void backInTime_isUnknown();
    void backInTimeAgainAndAgain_isNotRegular();
    void farTimes_areSteps();
    void anyStream_addsUp_data();
    void anyStream_addsUp();
    void fullClasses_addUp();
    void clockStep_isUnknown_data();
    void clockStep_isUnknown();
    void interruption_isUnknown();
    void irregular_isFiledUnderRoundValues_data();
    void irregular_isFiledUnderRoundValues();
};

void TestRhythm::regular_showsAsOneInterval_data()
{
    QTest::addColumn<qint64>("period");
    for (const int rate : {1, 5, 10, 20, 50, 100, 1000})
        QTest::addRow("%d Hz", rate) << second / rate;
    for (const int seconds : {1, 5, 60, 3600})
        QTest::addRow("%d s", seconds) << seconds * second;
}

void TestRhythm::regular_showsAsOneInterval()
{
    QFETCH(qint64, period);
    Stream stream;
    stream.sendRegularly(500, period);
    QCOMPARE(stream.classes(), QStringList{QStringLiteral("%1: 500").arg(period / ms)});
    QCOMPARE(stream.statistics.unknownIntervals, 0U);
    QCOMPARE(stream.statistics.gapCount, 0U);
    QVERIFY(stream.rhythm.isRegular());
    QCOMPARE(stream.rhythm.getIntervalMs(), static_cast<quint64>(period / ms));
}

void TestRhythm::jitter_showsAsOneInterval_data()
{
    QTest::addColumn<double>("jitter");
    QTest::newRow("1 %") << 0.01;
    QTest::newRow("5 %") << 0.05;
    QTest::newRow("10 %") << 0.1;
}

void TestRhythm::jitter_showsAsOneInterval()
{
    QFETCH(double, jitter);
    QRandomGenerator random(1);
    for (const int rate : {1, 5, 10, 20, 50, 100}) {
        Stream stream;
        const double period = static_cast<double>(second) / rate;
        for (int i = 0; i < 5000; ++i) {
            const double late = std::clamp(gaussian(random), -3.0, 3.0) * jitter * period;
            stream.send(beginning + std::llround(i * period + late));
        }
        const auto classes = stream.statistics.getClasses();
        QCOMPARE(classes.constFirst().ms, 1000 / rate);
        QVERIFY2(classes.constFirst().count >= 4900, qPrintable(stream.classes().join(", ")));
        QCOMPARE(stream.statistics.gapCount, 0U);
        QVERIFY(stream.rhythm.isRegular());
        QVERIFY(stream.addsUp());
    }
}

void TestRhythm::few_areNotRegularYet()
{
    Stream stream;
    stream.sendRegularly(5, second);
    QVERIFY(!stream.rhythm.isRegular());
    QCOMPARE(stream.statistics.unknownIntervals, 1U);
    stream.sendRegularly(1, second);
    QVERIFY(stream.rhythm.isRegular());
    QCOMPARE(stream.statistics.unknownIntervals, 0U); // the first one is part of it
    Stream fast;
    fast.sendRegularly(8, 20 * ms);
    QVERIFY(!fast.rhythm.isRegular());
    fast.sendRegularly(1, 20 * ms);
    QVERIFY(fast.rhythm.isRegular());
}

void TestRhythm::randomMoments_areNeverRegular_data()
{
    QTest::addColumn<double>("mean");
    QTest::addColumn<qint64>("resolution");
    QTest::newRow("50 ms") << 50.0 * ms << qint64(1);
    QTest::newRow("1 s") << 1000.0 * ms << qint64(1);
    QTest::newRow("50 ms in whole milliseconds") << 50.0 * ms << ms;
    QTest::newRow("5 ms in whole milliseconds") << 5.0 * ms << ms;
}

void TestRhythm::randomMoments_areNeverRegular()
{
    QFETCH(double, mean);
    QFETCH(qint64, resolution);
    for (quint32 seed = 1; seed <= 40; ++seed) {
        QRandomGenerator random(seed);
        Stream stream;
        double time = 0;
        for (int i = 0; i < 5000; ++i) {
            time += -mean * std::log(1.0 - random.generateDouble());
            stream.send(beginning + std::llround(time) / resolution * resolution);
            QVERIFY2(!stream.rhythm.isRegular(),
                     qPrintable(QStringLiteral("seed %1, message %2").arg(seed).arg(i)));
        }
        QCOMPARE(stream.statistics.gapCount, 0U);
        QVERIFY(stream.addsUp());
    }
}

void TestRhythm::bursts_areNeverRegular()
{
    Stream stream;
    for (int i = 0; i < 500; ++i)
        for (int j = 0; j < 6; ++j) {
            stream.send(beginning + i * second + j * ms);
            QVERIFY(!stream.rhythm.isRegular());
        }
    QCOMPARE(stream.statistics.gapCount, 0U);
}

void TestRhythm::longBursts_areNoRhythmWithGaps_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {9, 12, 20, 30})
        QTest::addRow("%d", size) << size;
}

void TestRhythm::longBursts_areNoRhythmWithGaps()
{
    QFETCH(int, size);
    Stream stream;
    for (int i = 0; i < 200; ++i)
        for (int j = 0; j < size; ++j) {
            stream.send(beginning + i * 200 * ms + j * 50);
            // The first pause might be a gap; the second one tells.
            QVERIFY(i < 3 || !stream.rhythm.isRegular());
        }
    QCOMPARE(stream.statistics.gapCount, 0U);
    QVERIFY(stream.addsUp());
    stream.sendRegularly(100, 50 * ms); // now it is regular
    QVERIFY(stream.rhythm.isRegular());
    QCOMPARE(stream.rhythm.getIntervalMs(), 50U);
}

void TestRhythm::pairs_areNoRhythmWithGaps()
{
    Stream stream;
    for (int i = 0; i < 1000; ++i)
        stream.send(beginning + i / 2 * 100 * ms + i % 2 * 20 * ms);
    QVERIFY(!stream.rhythm.isRegular());
    QCOMPARE(stream.statistics.gapCount, 0U);
}

void TestRhythm::oddPeriods_areNamed_data()
{
    QTest::addColumn<qint64>("periodUs");
    QTest::addColumn<int>("named");
    QTest::newRow("30 Hz") << qint64(33'333) << 33;
    QTest::newRow("about 20 Hz") << qint64(49'600) << 50;
    QTest::newRow("about 260 ms") << qint64(258'600) << 260;
    QTest::newRow("27 Hz") << qint64(37'100) << 37;
    QTest::newRow("about 5 s") << qint64(5'030'000) << 5000;
    QTest::newRow("5.5 s") << qint64(5'500'000) << 5500;
    QTest::newRow("17.24 s") << qint64(17'243'000) << 17000;
    QTest::newRow("faster than a millisecond") << qint64(200) << 1;
}

void TestRhythm::oddPeriods_areNamed()
{
    QFETCH(qint64, periodUs);
    QFETCH(int, named);
    Stream stream;
    stream.sendRegularly(200, periodUs);
    QCOMPARE(stream.classes(), QStringList{QStringLiteral("%1: 200").arg(named)});
}

void TestRhythm::changeOfRate_isFollowed_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("half") << 50 << 100;
    QTest::newRow("twice") << 100 << 50;
    QTest::newRow("a little slower") << 50 << 70;
    QTest::newRow("a little faster") << 100 << 80;
    QTest::newRow("much slower") << 20 << 1000;
    QTest::newRow("much faster") << 1000 << 20;
}

void TestRhythm::changeOfRate_isFollowed()
{
    QFETCH(int, before);
    QFETCH(int, after);
    Stream stream;
    stream.sendRegularly(300, before * ms);
    stream.sendRegularly(300, after * ms);
    QVERIFY(stream.rhythm.isRegular());
    QCOMPARE(stream.rhythm.getIntervalMs(), static_cast<quint64>(after));
    QCOMPARE(stream.statistics.gapCount, 0U);
    const auto classes = stream.statistics.getClasses();
    QVERIFY2(classes.at(0).count >= 295 && classes.at(1).count >= 295,
             qPrintable(stream.classes().join(", ")));
    QVERIFY(stream.addsUp());
}

void TestRhythm::slowDrift_isFollowed()
{
    Stream stream;
    double time = 0;
    for (int i = 0; i < 4000; ++i) {
        stream.send(beginning + std::llround(time));
        time += 50'000.0 * (1.0 + i / 8000.0); // in the end 1.5 times as slow
    }
    QVERIFY(stream.rhythm.isRegular());
    QVERIFY(stream.rhythm.getIntervalMs() >= 67);
    QCOMPARE(stream.statistics.gapCount, 0U);
    QVERIFY(stream.addsUp());
}

void TestRhythm::equalTimes_areCountedApart()
{
    Stream stream;
    for (int i = 0; i < 100; ++i)
        stream.send(beginning);
    QCOMPARE(stream.classes(), QStringList{"0: 99"});
    QVERIFY(!stream.rhythm.isRegular());
    QCOMPARE(stream.statistics.unknownIntervals, 1U);
}

void TestRhythm::backInTime_isUnknown()
{
    Stream stream;
    stream.sendRegularly(100, 50 * ms);
    stream.send(beginning);
    QCOMPARE(stream.statistics.unknownIntervals, 1U);
    QVERIFY(stream.rhythm.isRegular());
    stream.sendRegularly(99, 50 * ms);
    // The rhythm goes on behind it, so the message has its place there.
    QCOMPARE(stream.statistics.unknownIntervals, 0U);
    QCOMPARE(stream.statistics.gapCount, 0U);
    QCOMPARE(stream.classes(), QStringList{"50: 200"});
}

void TestRhythm::backInTimeAgainAndAgain_isNotRegular()
{
    Stream stream;
    stream.sendRegularly(100, 50 * ms);
    stream.sendRegularly(4, -50 * ms);
    QVERIFY(stream.rhythm.isRegular());
    stream.sendRegularly(1, -50 * ms);
    QVERIFY(!stream.rhythm.isRegular());
    Stream toAndFro;
    for (int i = 0; i < 100; ++i)
        toAndFro.send(beginning + (i < 50 ? i : i % 2) * 50 * ms);
    QVERIFY(!toAndFro.rhythm.isRegular());
    QVERIFY(toAndFro.addsUp());
}

void TestRhythm::farTimes_areSteps()
{
    constexpr qint64 first = std::numeric_limits<qint64>::min() + 1; // the least one is no time
    constexpr qint64 last = std::numeric_limits<qint64>::max();
    Stream stream;
    for (int i = 0; i < 10; ++i) {
        stream.send(first);
        stream.send(last);
    }
    QCOMPARE(stream.statistics.unknownIntervals, 20U);
    for (int i = 0; i < 50; ++i)
        stream.send(last - (49 - i) * second);
    for (int i = 0; i < 50; ++i)
        stream.send(first + i * second + (i > 40 ? 5 * second : 0));
    QVERIFY(stream.rhythm.isRegular());
    QCOMPARE(stream.statistics.gapCount, 1U);
    QCOMPARE(stream.statistics.gaps.constFirst().start, 0U); // before 1970 is no time for people
    QVERIFY(stream.addsUp());
}

void TestRhythm::anyStream_addsUp_data()
{
    QTest::addColumn<double>("mean");
    QTest::addColumn<qint64>("resolution");
    for (const double mean : {0.02, 1.0, 20.0, 100.0, 60'000.0})
        for (const qint64 resolution : {1, 1000, 10'000, 16'000})
            QTest::addRow("%g ms, %lld us", mean, resolution) << mean * ms << resolution;
}

/** Streams that look regular now and then, with late messages, holes and changes of the clock. */
void TestRhythm::anyStream_addsUp()
{
    QFETCH(double, mean);
    QFETCH(qint64, resolution);
    for (quint32 seed = 1; seed <= 20; ++seed) {
        QRandomGenerator random(seed);
        Stream stream;
        double time = 0;
        bool wild = false;
        for (int i = 0; i < 4000; ++i) {
            if (random.bounded(200) == 0)
                wild = !wild;
            if (random.bounded(500) == 0)
                time += (random.generateDouble() - 0.5) * 1e11;
            const double scale = wild ? 0.3 * std::pow(1.0 - random.generateDouble(), -0.7)
                                      : 1.0 + 0.05 * gaussian(random);
            time += mean * scale;
            stream.send(beginning + std::llround(time) / resolution * resolution);
            if (i % 100 == 0)
                QVERIFY2(stream.addsUp(), qPrintable(QString::number(seed)));
        }
        QVERIFY(stream.addsUp());
    }
}

void TestRhythm::fullClasses_addUp()
{
    Stream stream;
    for (int i = 0; i < 64; ++i)
        stream.statistics.getClass(7 + i * i); // nothing in them, and no room for others
    QRandomGenerator random(3);
    std::array<Rhythm, 3> others;
    for (int stretch = 0; stretch < 300; ++stretch) {
        const qint64 period = (1 + random.bounded(3000)) * 997;
        for (int i = random.bounded(150); i > 0; --i) {
            const qint64 time = beginning + stretch * 1000 * second + i * period;
            others[static_cast<size_t>(i % 3)].addMessage(
                time + random.bounded(static_cast<int>(period / 10 + 1)), stream.statistics);
            ++stream.sent;
        }
        stream.sendRegularly(random.bounded(150), period + random.bounded(1000));
    }
    QVERIFY(stream.addsUp());
    for (const auto &known : stream.statistics.getClasses())
        QVERIFY(known.count <= stream.sent);
    QVERIFY(stream.statistics.getClasses().size() <= 64);
}

void TestRhythm::clockStep_isUnknown_data()
{
    QTest::addColumn<qint64>("step");
    QTest::newRow("a day") << 24 * 3600 * second;
    QTest::newRow("12 hours") << 12 * 3600 * second;
    QTest::newRow("to 1970") << -beginning;
}

void TestRhythm::clockStep_isUnknown()
{
    QFETCH(qint64, step);
    Stream stream;
    stream.sendRegularly(100, 50 * ms);
    stream.send(stream.rhythm.getLastTimeUs() + step);
    QCOMPARE(stream.statistics.unknownIntervals, 1U);
    stream.sendRegularly(50, 50 * ms);
    QCOMPARE(stream.statistics.gapCount, 0U);
    QCOMPARE(stream.classes(), QStringList{"50: 151"});
    // Just below half a day it is a hole.
    stream.sendRegularly(1, 12 * 3600 * second - 50 * ms);
    stream.sendRegularly(50, 50 * ms);
    QCOMPARE(stream.statistics.gapCount, 1U);
    QCOMPARE(stream.statistics.missingEpochs, 12U * 3600 * 20 - 2);
}

void TestRhythm::interruption_isUnknown()
{
    Stream stream;
    stream.sendRegularly(100, 50 * ms);
    const qint64 time = stream.rhythm.getLastTimeUs();
    stream.rhythm.interrupt();
    stream.send(time + 3 * second);
    QCOMPARE(stream.statistics.unknownIntervals, 1U);
    QVERIFY(stream.rhythm.isRegular());
    stream.sendRegularly(1, 50 * ms);
    QCOMPARE(stream.statistics.gapCount, 0U);
    QCOMPARE(stream.classes(), QStringList{"50: 102"});
}

void TestRhythm::irregular_isFiledUnderRoundValues_data()
{
    QTest::addColumn<qint64>("intervalUs");
    QTest::addColumn<QString>("filed");
    QTest::newRow("half a millisecond") << qint64(500) << "1: 1";
    QTest::newRow("1.4 ms") << qint64(1400) << "1: 1";
    QTest::newRow("1.5 ms") << qint64(1500) << "2: 1";
    QTest::newRow("70 ms") << 70 * ms << "50: 1";
    QTest::newRow("71 ms") << 71 * ms << "100: 1";
    QTest::newRow("100 ms") << 100 * ms << "100: 1";
    QTest::newRow("50 s") << 50 * second << "60000: 1";
    QTest::newRow("11 hours") << 11 * 3600 * second << "43200000: 1";
}

void TestRhythm::irregular_isFiledUnderRoundValues()
{
    QFETCH(qint64, intervalUs);
    QFETCH(QString, filed);
    Stream stream;
    stream.send(beginning);
    stream.send(beginning + intervalUs);
    QCOMPARE(stream.classes(), QStringList{filed});
    QCOMPARE(stream.statistics.unknownIntervals, 1U);
}

CORVANE_TEST_MAIN(TestRhythm)
#include "tst_rhythm.moc"
