#include "replayclock.h"
#include "testcase.h"

#include <limits>

using namespace corvane;

namespace {

constexpr qint64 second = 1'000'000;
constexpr qint64 start = 1'700'000'000 * second;

} // namespace

class TestReplayClock : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void wait_isTheRecordedDistance();
    void wait_ofALateFrame_doesNotShiftTheNext();
    void wait_followsTheSpeed_data();
    void wait_followsTheSpeed();
    void wait_asFastAsPossible_isNone();
    void wait_afterAGap_isNone();
    void wait_afterAJumpBack_isNone();
    void wait_ofFramesOutOfOrder_doesNotAddUp();
    void wait_whilePaused_stands();
    void wait_afterReset_isNone();
    void wait_ofExtremeTimes();
    void setSpeed_keepsThePosition();
    void setSpeed_fromAsFastAsPossible_goesOnFromThere();
    void setSpeed_ofNoSpeed_isIgnored();
    void timeSource_byDefault_isTheSteadyClock();

private:
    ReplayClock makeClock()
    {
        nowUs = 5 * second;
        return ReplayClock([this] { return nowUs; });
    }

    qint64 nowUs = 0;
};

void TestReplayClock::wait_isTheRecordedDistance()
{
    ReplayClock clock = makeClock();
    QCOMPARE(clock.getSpeed(), 1.0);
    QCOMPARE(clock.getWaitUs(start), 0);
    QCOMPARE(clock.getWaitUs(start + 3 * second), 3 * second);
    nowUs += 2 * second;
    QCOMPARE(clock.getWaitUs(start + 3 * second), second);
    nowUs += second;
    QCOMPARE(clock.getWaitUs(start + 3 * second), 0);
}

void TestReplayClock::wait_ofALateFrame_doesNotShiftTheNext()
{
    ReplayClock clock = makeClock();
    clock.getWaitUs(start);
    nowUs += 9 * second;
    QCOMPARE(clock.getWaitUs(start + 5 * second), 0);
    QCOMPARE(clock.getWaitUs(start + 10 * second), second);
}

void TestReplayClock::wait_followsTheSpeed_data()
{
    QTest::addColumn<double>("speed");
    QTest::addColumn<qint64>("waitUs");
    QTest::newRow("twice") << 2.0 << 5 * second;
    QTest::newRow("a hundred times") << 100.0 << second / 10;
    QTest::newRow("half") << 0.5 << 20 * second;
    QTest::newRow("rounded up") << 3.0 << qint64(3'333'334);
    QTest::newRow("hardly") << 1e-300 << qint64(1'000'000'000'000'000);
    QTest::newRow("immense") << 1e300 << qint64(1);
}

void TestReplayClock::wait_followsTheSpeed()
{
    QFETCH(double, speed);
    QFETCH(qint64, waitUs);
    ReplayClock clock = makeClock();
    clock.setSpeed(speed);
    clock.getWaitUs(start);
    QCOMPARE(clock.getWaitUs(start + 10 * second), waitUs);
}

void TestReplayClock::wait_asFastAsPossible_isNone()
{
    ReplayClock clock = makeClock();
    clock.setAsFastAsPossible();
    QVERIFY(!clock.getSpeed());
    QCOMPARE(clock.getWaitUs(start), 0);
    QCOMPARE(clock.getWaitUs(start + 50 * second), 0);
}

void TestReplayClock::wait_afterAGap_isNone()
{
    ReplayClock clock = makeClock();
    clock.getWaitUs(start);
    const qint64 longest = start + ReplayClock::maximumGapUs;
    QCOMPARE(clock.getWaitUs(longest), ReplayClock::maximumGapUs);
    const qint64 nextDay = longest + ReplayClock::maximumGapUs + 1;
    QCOMPARE(clock.getWaitUs(nextDay), 0);
    QCOMPARE(clock.getWaitUs(nextDay + 2 * second), 2 * second);
}

void TestReplayClock::wait_afterAJumpBack_isNone()
{
    ReplayClock clock = makeClock();
    clock.getWaitUs(start);
    clock.getWaitUs(start + 10 * second);
    QCOMPARE(clock.getWaitUs(start + 5 * second), 0);
    QCOMPARE(clock.getWaitUs(start + 7 * second), 2 * second);
}

void TestReplayClock::wait_ofFramesOutOfOrder_doesNotAddUp()
{
    ReplayClock clock = makeClock();
    clock.getWaitUs(start);
    for (int i = 1; i <= 10; ++i) {
        nowUs += second;
        QCOMPARE(clock.getWaitUs(start + i * second), 0);
        QCOMPARE(clock.getWaitUs(start + i * second - second / 2), 0);
    }
    QCOMPARE(clock.getWaitUs(start + 11 * second), second);
}

void TestReplayClock::wait_whilePaused_stands()
{
    ReplayClock clock = makeClock();
    clock.getWaitUs(start);
    nowUs += second;
    clock.pause();
    clock.pause();
    QVERIFY(clock.isPaused());
    nowUs += 100 * second;
    QCOMPARE(clock.getWaitUs(start + 3 * second), 2 * second);
    clock.resume();
    clock.resume();
    QVERIFY(!clock.isPaused());
    QCOMPARE(clock.getWaitUs(start + 3 * second), 2 * second);
    nowUs += 2 * second;
    QCOMPARE(clock.getWaitUs(start + 3 * second), 0);
}

void TestReplayClock::wait_afterReset_isNone()
{
    ReplayClock clock = makeClock();
    clock.getWaitUs(start);
    clock.reset();
    QCOMPARE(clock.getWaitUs(start + 10 * second), 0);
    QCOMPARE(clock.getWaitUs(start + 11 * second), second);
}

void TestReplayClock::wait_ofExtremeTimes()
{
    constexpr qint64 smallest = std::numeric_limits<qint64>::min();
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    ReplayClock clock = makeClock();
    QCOMPARE(clock.getWaitUs(largest), 0);
    QCOMPARE(clock.getWaitUs(smallest), 0);
    QCOMPARE(clock.getWaitUs(smallest + second), second);
    QCOMPARE(clock.getWaitUs(largest - second), 0);
    QCOMPARE(clock.getWaitUs(largest), second);
}

void TestReplayClock::setSpeed_keepsThePosition()
{
    ReplayClock clock = makeClock();
    clock.getWaitUs(start);
    QCOMPARE(clock.getWaitUs(start + 10 * second), 10 * second);
    nowUs += 2 * second;
    clock.setSpeed(4.0);
    QCOMPARE(clock.getWaitUs(start + 10 * second), 2 * second);
    nowUs += second;
    clock.setSpeed(1.0);
    QCOMPARE(clock.getWaitUs(start + 10 * second), 4 * second);
}

void TestReplayClock::setSpeed_fromAsFastAsPossible_goesOnFromThere()
{
    ReplayClock clock = makeClock();
    clock.setAsFastAsPossible();
    clock.getWaitUs(start);
    clock.getWaitUs(start + 50 * second);
    clock.setSpeed(1.0);
    QCOMPARE(clock.getWaitUs(start + 51 * second), second);
}

void TestReplayClock::setSpeed_ofNoSpeed_isIgnored()
{
    ReplayClock clock = makeClock();
    clock.setSpeed(2.0);
    for (const double speed : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN(),
                               std::numeric_limits<double>::infinity()})
        clock.setSpeed(speed);
    QCOMPARE(clock.getSpeed(), 2.0);
}

void TestReplayClock::timeSource_byDefault_isTheSteadyClock()
{
    ReplayClock clock;
    QCOMPARE(clock.getWaitUs(start), 0);
    const qint64 first = clock.getWaitUs(start + second);
    QVERIFY(first > 0 && first <= second);
    QTest::qSleep(5);
    QVERIFY(clock.getWaitUs(start + second) <= first - 4000);
}

CORVANE_TEST_MAIN(TestReplayClock)

#include "tst_replayclock.moc"
