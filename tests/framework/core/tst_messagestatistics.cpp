#include "decodedmessage.h"
#include "messagestatistics.h"
#include "messagestatisticscoordinator.h"
#include "reception.h"
#include "testcase.h"
#include "testformat.h"

using namespace corvane::test;
using corvane::Reception;

namespace {

constexpr qint64 noTime = corvane::DecodedMessage::unknownTime;

} // namespace

class TestMessageStatistics : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void counts_byTime_data();
    void counts_byTime();
    void description_isThatOfTheType();
    void eventCount_ofTypeWithoutEvents();
    void timeString_isUtc_data();
    void timeString_isUtc();
    void intervalString_data();
    void intervalString();
};

void TestMessageStatistics::counts_byTime_data()
{
    QTest::addColumn<QList<qint64>>("timesUs");
    QTest::addColumn<unsigned int>("unknownTime");
    QTest::addColumn<unsigned int>("unknownInterval");
    QTest::addColumn<unsigned long long>("lastIntervalMs");

    QTest::newRow("steady") << QList<qint64>{1'000'000, 1'050'000, 1'100'000} << 0U << 1U << 50ULL;
    QTest::newRow("one") << QList<qint64>{1'000'000} << 0U << 1U << 0ULL;
    QTest::newRow("no times") << QList<qint64>{noTime, noTime} << 2U << 0U << 0ULL;
    QTest::newRow("some times") << QList<qint64>{0, noTime, 20'000} << 1U << 1U << 20ULL;
    QTest::newRow("back in time") << QList<qint64>{50'000, 10'000, 40'000} << 0U << 2U << 30ULL;
    QTest::newRow("same time") << QList<qint64>{50'000, 50'000} << 0U << 1U << 0ULL;
    QTest::newRow("long pause") << QList<qint64>{0, 86'400'000'000} << 0U << 1U << 86'400'000ULL;
}

void TestMessageStatistics::counts_byTime()
{
    QFETCH(QList<qint64>, timesUs);
    QFETCH(unsigned int, unknownTime);
    QFETCH(unsigned int, unknownInterval);
    QFETCH(unsigned long long, lastIntervalMs);

    const TestFormat format("Demo", "A\n");
    Reception reception(
        format.getInfo(), [](quint32) { return QString(); }, true);
    quint8 sequence = 0;
    for (const qint64 timeUs : timesUs)
        reception.receiveFrame({format.type("A"), 0, 1, sequence++, timeUs});

    const auto *statistics = reception.getStatistics()->getAllMessageStatistics().constFirst();
    QCOMPARE(statistics->getCount(), static_cast<unsigned int>(timesUs.size()));
    QCOMPARE(statistics->getCountWithUnknownTime(), unknownTime);
    QCOMPARE(statistics->getCountWithKnownTimeButUnknownInterval(), unknownInterval);
    QCOMPARE(statistics->getLastInterval(), lastIntervalMs);
}

void TestMessageStatistics::description_isThatOfTheType()
{
    const TestFormat format("Demo", "A as \"Type A\"\n");
    Reception reception(
        format.getInfo(), [](quint32) { return QString(); }, true);
    reception.receiveFrame({format.type("A"), 0, 1, 0, noTime});

    const auto *statistics = reception.getStatistics()->getAllMessageStatistics().constFirst();
    QCOMPARE(statistics->getFormatInfo(), format.getInfo());
    QCOMPARE(statistics->getMessageInfo(), format.type("A"));
    QCOMPARE(statistics->getMessageName(), "Type A");
}

void TestMessageStatistics::eventCount_ofTypeWithoutEvents()
{
    const MessageStatisticsCoordinator coordinator;
    QVERIFY(coordinator.getAllMessageStatistics().isEmpty());
    QCOMPARE(coordinator.getEventCount(CorvaneEvent::CrcError), 0U);
    QCOMPARE(coordinator.getEventCount(CorvaneEvent::SourceFailed), 0U);
}

void TestMessageStatistics::timeString_isUtc_data()
{
    QTest::addColumn<unsigned long long>("time");
    QTest::addColumn<QString>("text");

    QTest::newRow("beginning") << 0ULL << "1970-01-01T00:00:00.000Z";
    QTest::newRow("milliseconds") << 1'767'225'600'123ULL << "2026-01-01T00:00:00.123Z";
}

void TestMessageStatistics::timeString_isUtc()
{
    QFETCH(unsigned long long, time);
    QFETCH(QString, text);
    QCOMPARE(MessageStatistics::getTimeString(time), text);
}

void TestMessageStatistics::intervalString_data()
{
    QTest::addColumn<unsigned long long>("interval");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << 0ULL << "0 ms";
    QTest::newRow("1 ms") << 1ULL << "1 ms (1000 Hz)";
    QTest::newRow("50 ms") << 50ULL << "50 ms (20 Hz)";
    QTest::newRow("odd rate") << 30ULL << "30 ms (33.3 Hz)";
    QTest::newRow("999 ms") << 999ULL << "999 ms (1 Hz)";
    QTest::newRow("1 s") << 1000ULL << "1 s";
    QTest::newRow("5 s") << 5000ULL << "5 s";
    QTest::newRow("fraction") << 1500ULL << "1.5 s";
}

void TestMessageStatistics::intervalString()
{
    QFETCH(unsigned long long, interval);
    QFETCH(QString, text);
    QCOMPARE(MessageStatistics::getIntervalString(interval), text);
}

CORVANE_TEST_MAIN(TestMessageStatistics)

#include "tst_messagestatistics.moc"
