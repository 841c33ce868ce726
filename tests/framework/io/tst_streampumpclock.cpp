#include "pumpscene.h"
#include "replayclock.h"
#include "testcase.h"

#include <QElapsedTimer>

#include <chrono>

using namespace corvane;
using namespace corvane::test;
using namespace std::chrono_literals;

class TestStreamPumpClock : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void clock_delaysFrames();
    void clock_asFastAsPossible();
    void clock_changedWhileWaiting();
    void clock_pausedWithThePump();
    void clock_pausedByItself_costsNothing();
    void goal_isReachedWhilePaused();
    void goal_isNotDelayedByTheClock();
    void goal_waitsForTheSource();
    void goal_endsWithTheSource();
    void seek_ofALiveSource_isRefused();
};

void TestStreamPumpClock::clock_delaysFrames()
{
    ReplayClock clock;
    Fixture f(&clock);
    QElapsedTimer timer;
    QList<qint64> timesMs;
    f.decoder.onFrame = [&](const QString &) { timesMs.append(timer.elapsed()); };
    f.source.add(timedLines(6, 40'000));
    f.source.end();
    timer.start();
    f.pump.start();
    QTRY_COMPARE(f.finished.size(), 1);
    QCOMPARE(timesMs.size(), 6);
    for (int i = 1; i < 6; ++i) {
        const qint64 sinceFirstMs = timesMs[i] - timesMs[0];
        QVERIFY2(sinceFirstMs >= i * 40 - 2, qPrintable(QString::number(sinceFirstMs)));
        QVERIFY2(sinceFirstMs < i * 40 + 2000, qPrintable(QString::number(sinceFirstMs)));
    }
}

void TestStreamPumpClock::clock_asFastAsPossible()
{
    ReplayClock clock;
    clock.setAsFastAsPossible();
    Fixture f(&clock);
    f.source.add(timedLines(1000, 1'000'000));
    f.source.end();
    f.pump.start();
    QTRY_COMPARE_WITH_TIMEOUT(f.finished.size(), 1, 2000);
    QCOMPARE(f.decoder.frameCount, 1000);
}

void TestStreamPumpClock::clock_changedWhileWaiting()
{
    ReplayClock clock;
    Fixture f(&clock);
    f.source.add(timedLines(2, 50'000'000));
    f.source.end();
    f.pump.start();
    QTest::qWait(20);
    QCOMPARE(f.decoder.frameCount, 1);
    clock.setAsFastAsPossible();
    QTRY_COMPARE_WITH_TIMEOUT(f.finished.size(), 1, 2000);
}

void TestStreamPumpClock::clock_pausedWithThePump()
{
    qint64 nowUs = 0;
    ReplayClock clock([&nowUs] { return nowUs; });
    Fixture f(&clock);
    f.source.add(timedLines(3, 1'000'000));
    f.pump.start();
    QTRY_COMPARE(f.decoder.frameCount, 1);
    f.pump.setPaused(true);
    QVERIFY(clock.isPaused());
    nowUs = 10'000'000;
    QTest::qWait(20);
    f.pump.setPaused(false);
    QTest::qWait(80);
    QCOMPARE(f.decoder.frameCount, 1);
    nowUs += 1'000'000;
    QTRY_COMPARE(f.decoder.frameCount, 2);
}

void TestStreamPumpClock::clock_pausedByItself_costsNothing()
{
    qint64 nowUs = 0;
    int asked = 0;
    ReplayClock clock([&] {
        ++asked;
        return nowUs;
    });
    Fixture f(&clock);
    f.source.add("0 x\n1 x\n");
    f.pump.start();
    QTRY_COMPARE(f.decoder.frameCount, 1);
    clock.pause();
    nowUs = 100;
    asked = 0;
    const double processorBefore = getProcessorMs();
    QTest::qWait(200);
    QVERIFY(getProcessorMs() - processorBefore < 100.0);
    QCOMPARE(f.decoder.frameCount, 1);
    clock.resume();
    nowUs += 100;
    QTRY_COMPARE(f.decoder.frameCount, 2);
}

void TestStreamPumpClock::goal_isReachedWhilePaused()
{
    Fixture f;
    QSignalSpy reached(&f.pump, &StreamPump::goalReached);
    f.source.add("one\ntwo\nthree\n");
    f.pump.setPaused(true);
    f.pump.start();
    f.pump.runUntil([&] { return f.decoder.frameCount == 2; });
    QVERIFY(f.pump.hasGoal());
    QTRY_COMPARE(reached.size(), 1);
    QVERIFY(!f.pump.hasGoal());
    QTest::qWait(20);
    QCOMPARE(f.decoder.frames, QStringList({"one", "two"}));
    f.pump.setPaused(false);
    QTRY_COMPARE(f.decoder.frameCount, 3);
    QCOMPARE(reached.size(), 1);
}

void TestStreamPumpClock::goal_isNotDelayedByTheClock()
{
    ReplayClock clock;
    Fixture f(&clock);
    QSignalSpy reached(&f.pump, &StreamPump::goalReached);
    f.source.add(timedLines(10, 5'000'000));
    f.pump.start();
    QTest::qWait(20);
    QCOMPARE(f.decoder.frameCount, 1);
    f.pump.runUntil([&] { return f.decoder.frameCount == 5; });
    QTRY_COMPARE(reached.size(), 1);
    QTest::qWait(20);
    QCOMPARE(f.decoder.frameCount, 5);
}

void TestStreamPumpClock::goal_waitsForTheSource()
{
    Fixture f;
    f.pump.setPaused(true);
    f.pump.start();
    f.pump.runUntil([&] { return f.decoder.frameCount == 1; });
    QTest::qWait(20);
    f.source.add("one\ntwo\n");
    QTRY_VERIFY(!f.pump.hasGoal());
    QTest::qWait(20);
    QCOMPARE(f.decoder.frames, QStringList({"one"}));
}

void TestStreamPumpClock::goal_endsWithTheSource()
{
    Fixture f;
    QSignalSpy reached(&f.pump, &StreamPump::goalReached);
    f.source.add("one\n");
    f.source.end();
    f.pump.setPaused(true);
    f.pump.start();
    f.pump.runUntil([] { return false; });
    QTRY_COMPARE(f.finished.size(), 1);
    QVERIFY(!f.pump.hasGoal());
    QCOMPARE(reached.size(), 0);
}

void TestStreamPumpClock::seek_ofALiveSource_isRefused()
{
    Fixture f;
    f.source.add("one\n");
    f.pump.start();
    QVERIFY(!f.pump.seek(0));
    QTRY_COMPARE(f.decoder.frames, QStringList({"one"}));
}

CORVANE_TEST_MAIN(TestStreamPumpClock)

#include "tst_streampumpclock.moc"
