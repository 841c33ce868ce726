#include "decodedmessage.h"
#include "messagestatistics.h"
#include "messagestatisticscoordinator.h"
#include "messagestatisticsdata.h"
#include "reception.h"
#include "testcase.h"
#include "testformat.h"

using namespace corvane::test;
using corvane::MessageStatisticsData;
using corvane::Reception;

namespace {

constexpr qint64 noTime = corvane::DecodedMessage::unknownTime;
constexpr qint64 ms = 1000;

/** A reception of types A and B. */
struct Scene
{
    void send(const char *type,
              quint32 sender,
              qint64 timeUs,
              std::optional<qint64> ownTimeUs = std::nullopt)
    {
        reception.receiveFrame(
            {format.type(QLatin1String(type)), 0, sender, sequence++, timeUs, ownTimeUs});
    }

    /** Those of the first type that came. */
    const MessageStatistics &statistics()
    {
        return *reception.getStatistics()->getAllMessageStatistics().constFirst();
    }

    const TestFormat format{"Demo", "A\nB\n"};
    Reception reception{format.getInfo(), [](quint32) { return QString(); }, true};
    quint8 sequence = 0;
};

} // namespace

class TestMessageStatistics : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void counts_byTime_data();
    void counts_byTime();
    void report_ofARegularType();
    void withoutTime_isNotRegularForLong();
    void counts_staySaturated();
    void list_isHandedOutWithoutACopy();
    void intervals_mostFrequentFirst();
    void senders_haveRhythmsOfTheirOwn();
    void senders_tooMany_areCountedOnly();
    void silentSender_isNotRegular();
    void ownClock_isNotComparedWithOthers();
    void discontinuity_inventsNothing();
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
    QTest::newRow("some times") << QList<qint64>{0, noTime, 20'000} << 1U << 2U << 0ULL;
    QTest::newRow("back in time") << QList<qint64>{50'000, 10'000, 40'000} << 0U << 2U << 30ULL;
    QTest::newRow("same time") << QList<qint64>{50'000, 50'000} << 0U << 1U << 0ULL;
    QTest::newRow("long pause") << QList<qint64>{0, 36'000'000'000} << 0U << 1U << 36'000'000ULL;
    QTest::newRow("clock was set") << QList<qint64>{0, 86'400'000'000} << 0U << 2U << 0ULL;
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

void TestMessageStatistics::report_ofARegularType()
{
    Scene scene;
    for (int i = 0; i < 100; ++i)
        if (i != 50)
            scene.send("A", 1, i * 50 * ms);
    const MessageStatistics &statistics = scene.statistics();
    QCOMPARE(statistics.getCount(), 99U);
    QVERIFY(statistics.isCurrentlyRegular());
    QCOMPARE(statistics.getLastInterval(), 50ULL);
    QCOMPARE(statistics.getNumberOfGaps(), 1U);
    QCOMPARE(statistics.getNumberOfMissingEpochs(), 1U);
    QVERIFY(!statistics.hasUnstoredGaps());
    QCOMPARE(statistics.getGaps().size(), 1);
    QCOMPARE(statistics.getGaps().constFirst().start, static_cast<quint64>(49 * 50));
    const QHash<long long, unsigned int> counts{{50, 98}, {100, 1}};
    QCOMPARE(statistics.getIntervalCountHash(), counts);
}

void TestMessageStatistics::withoutTime_isNotRegularForLong()
{
    Scene scene;
    for (int i = 0; i < 100; ++i)
        scene.send("A", 1, i == 50 ? noTime : i * 50 * ms);
    QVERIFY(scene.statistics().isCurrentlyRegular()); // one was no harm
    QCOMPARE(scene.statistics().getNumberOfGaps(), 0U);
    QCOMPARE(scene.statistics().getIntervalCountHash(), (QHash<long long, unsigned int>{{50, 99}}));
    for (int i = 0; i < 5; ++i)
        scene.send("A", 1, noTime);
    QVERIFY(!scene.statistics().isCurrentlyRegular());
    QCOMPARE(scene.statistics().getCountWithUnknownTime(), 6U);
}

void TestMessageStatistics::list_isHandedOutWithoutACopy()
{
    Scene scene;
    scene.send("A", 1, 1000);
    scene.send("B", 1, 2000);
    const auto first = scene.reception.getStatistics()->getAllMessageStatistics();
    const auto second = scene.reception.getStatistics()->getAllMessageStatistics();
    QCOMPARE(first.size(), 2);
    QCOMPARE(first.constData(), second.constData());
}

void TestMessageStatistics::counts_staySaturated()
{
    QCOMPARE(corvane::saturated<unsigned int>(0xffffffffULL), 0xffffffffU);
    QCOMPARE(corvane::saturated<unsigned int>(0x100000000ULL), 0xffffffffU);
    Scene scene;
    scene.send("A", 1, 0);
    MessageStatisticsData &data = *scene.statistics().getData();
    constexpr quint64 many = 1ULL << 40U;
    data.received = data.withUnknownTime = data.intervals.unknownIntervals = many;
    data.intervals.gapCount = data.intervals.missingEpochs = many;
    constexpr unsigned int most = 0xffffffffU;
    QCOMPARE(scene.statistics().getCount(), most);
    QCOMPARE(scene.statistics().getCountWithUnknownTime(), most);
    QCOMPARE(scene.statistics().getCountWithKnownTimeButUnknownInterval(), most);
    QCOMPARE(scene.statistics().getNumberOfMissingEpochs(), most);
    QCOMPARE(scene.statistics().getNumberOfGaps(), 0x7fffffffU);
    QVERIFY(scene.statistics().hasUnstoredGaps());
}

void TestMessageStatistics::intervals_mostFrequentFirst()
{
    Scene scene;
    qint64 time = 0;
    for (const int interval : {100, 20, 100, 2000, 20, 100, 500})
        scene.send("A", 1, (time += interval) * ms);
    scene.send("A", 1, time * ms);
    const MessageStatistics &statistics = scene.statistics();
    QCOMPARE(statistics.getIntervalsSortedOnFrequency(-1),
             (QList<long long>{20, 100, 0, 500, 2000}));
    QCOMPARE(statistics.getIntervalsSortedOnFrequency(2), (QList<long long>{20, 100}));
    QCOMPARE(statistics.getIntervalsSortedOnFrequency(0), QList<long long>());
    QCOMPARE(statistics.getIntervalCountHash().value(100), 2U);
}

void TestMessageStatistics::senders_haveRhythmsOfTheirOwn()
{
    Scene scene;
    // Two senders of the same type, each every 100 ms, one shortly after the other.
    for (int i = 0; i < 200; ++i) {
        scene.send("A", 1, i * 100 * ms);
        scene.send("A", 2, i * 100 * ms + 30 * ms);
    }
    const MessageStatistics &statistics = scene.statistics();
    QCOMPARE(statistics.getCount(), 400U);
    QCOMPARE(statistics.getIntervalCountHash(), (QHash<long long, unsigned int>{{100, 400}}));
    QCOMPARE(statistics.getNumberOfGaps(), 0U);
    QVERIFY(statistics.isCurrentlyRegular());
    // One that comes irregularly makes the type irregular.
    for (int i = 0; i < 20; ++i) {
        scene.send("A", 1, (20'000 + i * 100) * ms);
        scene.send("A", 3, (20'000 + i * i * 10) * ms);
    }
    QVERIFY(!statistics.isCurrentlyRegular());
}

void TestMessageStatistics::senders_tooMany_areCountedOnly()
{
    Scene scene;
    for (int i = 0; i < 10; ++i)
        for (quint32 sender = 0; sender < 65; ++sender)
            scene.send("A", sender, (i * 1000 + sender) * ms);
    QCOMPARE(scene.statistics().getCount(), 650U);
    QCOMPARE(scene.statistics().getIntervalCountHash(),
             (QHash<long long, unsigned int>{{1000, 640}}));
    QCOMPARE(scene.statistics().getCountWithKnownTimeButUnknownInterval(), 10U);
}

void TestMessageStatistics::silentSender_isNotRegular()
{
    Scene scene;
    for (int i = 0; i < 100; ++i)
        scene.send("A", 1, i * 500 * ms);
    scene.send("B", 1, (99 * 500 + 2500) * ms);
    QVERIFY(scene.statistics().isCurrentlyRegular());
    scene.send("B", 1, (99 * 500 + 2501) * ms);
    QVERIFY(!scene.statistics().isCurrentlyRegular());
    scene.send("A", 1, 100 * 500 * ms); // it goes on
    QVERIFY(scene.statistics().isCurrentlyRegular());
}

void TestMessageStatistics::ownClock_isNotComparedWithOthers()
{
    Scene scene;
    for (int i = 0; i < 100; ++i)
        scene.send("A", 1, noTime, i * 500 * ms); // counts from its own start
    scene.send("B", 1, 1'700'000'000'000 * ms);
    QVERIFY(scene.statistics().isCurrentlyRegular());
}

void TestMessageStatistics::discontinuity_inventsNothing()
{
    Scene scene;
    for (int i = 0; i < 100; ++i)
        scene.send("A", 1, i * 50 * ms);
    scene.reception.noteDiscontinuity();
    scene.sequence = 77;
    for (int i = 200; i < 300; ++i)
        scene.send("A", 1, i * 50 * ms);
    QCOMPARE(scene.statistics().getNumberOfGaps(), 0U);
    QCOMPARE(scene.statistics().getIntervalCountHash(),
             (QHash<long long, unsigned int>{{50, 200}}));
    QCOMPARE(scene.reception.getSenders().getAll().front()->lost, 0U);
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
