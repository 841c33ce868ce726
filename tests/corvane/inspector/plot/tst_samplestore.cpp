#include "samplestore.h"
#include "testcase.h"

#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <random>

using namespace corvane;
using namespace corvane::test;

class tst_samplestore : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void append_keepsTheOrderOfTime();
    void append_ofTheSameTime_keepsAll();
    void late_isPutWhereItBelongs();
    void farBack_beginsANewRun();
    void farBack_beforeEverything_startsAnew();
    void gaps_areKeptOnce();
    void unshowableValues_areGaps();
    void full_staysWithinItsBounds();
    void growing_movesNothing();
    void runs_lieInPagesOfTheirOwn();
    void full_isThinnedLittleByLittle();
    void lateOnesInAFullRun_areKeptInOrder();
    void full_ofGaps_staysWithinItsBounds();
    void thinning_keepsTheExtremes();
    void thinning_keepsGaps();
    void getAt_isTheNewestNotAfter();
    void decimate_equalsBruteForce_data();
    void decimate_equalsBruteForce();
    void decimate_afterThinningAndLateSamples_equalsBruteForce();
    void decimate_fewSamples_areAsTheyAre();
    void decimate_reachesOverTheEdges();
    void decimate_gapBetweenColumns_breaksTheLine();
    void decimate_columnOfGaps_hasNoValues();
    void decimate_lastBlockOfGaps_addsNothing();
};

namespace {

/** The samples as "time:value", gaps as "time:-". */
QString textOf(const std::vector<Sample> &samples)
{
    QStringList texts;
    for (const Sample &sample : samples)
        texts += QStringLiteral("%1:%2")
                     .arg(sample.timeUs)
                     .arg(sample.isGap() ? QStringLiteral("-") : QString::number(sample.value));
    return texts.join(QLatin1Char(' '));
}

/** Now and then a gap. */
double valueFrom(std::mt19937 &random)
{
    const auto value = static_cast<double>(random() % 1000);
    return random() % 20 == 0 ? Sample::gap : value;
}

std::vector<Sample> samplesOf(const SampleStore &store)
{
    return {store.begin(), store.end()};
}

struct Range
{
    double smallest = std::numeric_limits<double>::infinity();
    double largest = -std::numeric_limits<double>::infinity();

    friend bool operator==(const Range &a, const Range &b)
    {
        return a.smallest == b.smallest && a.largest == b.largest;
    }
};

/** The extremes of each column, found by looking at every sample. */
std::map<qint64, Range>
rangesOf(const std::vector<Sample> &samples, qint64 fromUs, qint64 columnUs, int columns)
{
    std::map<qint64, Range> ranges;
    for (const Sample &sample : samples) {
        const bool inside = sample.timeUs >= fromUs && sample.timeUs < fromUs + columns * columnUs;
        if (!inside || sample.isGap())
            continue;
        Range &range = ranges[(sample.timeUs - fromUs) / columnUs];
        range.smallest = std::min(range.smallest, sample.value);
        range.largest = std::max(range.largest, sample.value);
    }
    return ranges;
}

void compareWithBruteForce(const SampleStore &store, qint64 fromUs, qint64 columnUs, int columns)
{
    std::vector<Sample> line;
    store.decimate(fromUs, columnUs, columns, line);
    QVERIFY(line.size() <= static_cast<size_t>(columns) * 4 + 2);
    QVERIFY(std::is_sorted(line.begin(), line.end(),
                           [](const Sample &a, const Sample &b) { return a.timeUs < b.timeUs; }));
    QVERIFY(rangesOf(line, fromUs, columnUs, columns)
            == rangesOf(samplesOf(store), fromUs, columnUs, columns));
}

} // namespace

void tst_samplestore::append_keepsTheOrderOfTime()
{
    SampleStore store;
    for (const qint64 time : {5, 6, 9})
        store.append(time, static_cast<double>(time) / 2);
    QCOMPARE(textOf(samplesOf(store)), "5:2.5 6:3 9:4.5");
    store.clear();
    QVERIFY(store.isEmpty());
}

void tst_samplestore::append_ofTheSameTime_keepsAll()
{
    SampleStore store;
    store.append(5, 1);
    store.append(5, 2);
    store.append(6, 3);
    store.append(5, 4);
    QCOMPARE(textOf(samplesOf(store)), "5:1 5:2 5:4 6:3");
}

void tst_samplestore::late_isPutWhereItBelongs()
{
    SampleStore store;
    for (int i = 0; i < 200; ++i)
        store.append(i * 1000, i);
    store.append(100'500, -7);
    store.append(199'000 - SampleStore::reorderUs, -9);
    QCOMPARE(store.size(), 202U);
    QCOMPARE(store.front().value, -9.0);
    QCOMPARE(samplesOf(store).at(102).value, -7.0);
    compareWithBruteForce(store, 0, 50'000, 4);
}

void tst_samplestore::lateOnesInAFullRun_areKeptInOrder()
{
    SampleStore store(1000);
    for (int i = 0; i < 300; ++i)
        store.append(1000 + i, i);
    for (int i = 0; i < 300; ++i)
        store.append(1100, 1000 + i);
    QCOMPARE(store.size(), 600U);
    const std::vector<Sample> all = samplesOf(store);
    QCOMPARE(all.size(), 600U);
    for (size_t i = 0; i < 300; ++i)
        QCOMPARE(all.at(101 + i).value, 1000.0 + static_cast<double>(i));
    compareWithBruteForce(store, 1000, 7, 50);
}

void tst_samplestore::farBack_beginsANewRun()
{
    SampleStore store;
    for (int i = 0; i <= 200; ++i)
        store.append(i * 100'000, i);
    store.append(150'001, -1);
    QCOMPARE(textOf(samplesOf(store)), "0:0 100000:1 150001:-1");
    compareWithBruteForce(store, 0, 100'000, 200);
}

void tst_samplestore::farBack_beforeEverything_startsAnew()
{
    SampleStore store;
    store.append(5'000'000, 1);
    store.append(1'000'000, 2);
    QCOMPARE(textOf(samplesOf(store)), "1000000:2");
}

void tst_samplestore::gaps_areKeptOnce()
{
    SampleStore store;
    store.append(1, 1);
    store.append(2, Sample::gap);
    store.append(3, Sample::gap);
    store.append(4, 4);
    QCOMPARE(textOf(samplesOf(store)), "1:1 2:- 4:4");
}

void tst_samplestore::unshowableValues_areGaps()
{
    SampleStore store;
    store.append(1, std::numeric_limits<double>::infinity());
    store.append(2, 2);
    store.append(3, -1e300);
    QCOMPARE(textOf(samplesOf(store)), "1:- 2:2 3:-");
}

void tst_samplestore::full_staysWithinItsBounds()
{
    SampleStore store(1000);
    for (int i = 0; i < 100'000; ++i) {
        store.append(i, i % 7);
        QVERIFY(store.size() <= 1000);
    }
    QVERIFY(store.size() > 500);
    QVERIFY(store.front().timeUs < 10); // the beginning is still there
    QCOMPARE(store.back().timeUs, 99'999);
}

void tst_samplestore::growing_movesNothing()
{
    constexpr size_t capacity = 10'000;
    SampleStore store(capacity);
    QCOMPARE(store.getBytes(), size_t(0));
    store.append(0, 0.0);
    const Sample *first = &store.front();
    for (size_t i = 1; i < capacity; ++i) {
        store.append(static_cast<qint64>(i), 1.0);
        QCOMPARE(&store.front(), first);
    }
    QVERIFY(store.getBytes() >= store.size() * sizeof(Sample));
    QVERIFY(store.getBytes() < capacity * 17 * 9 / 8); // memory is taken in eighths
}

void tst_samplestore::runs_lieInPagesOfTheirOwn()
{
    const auto pageSize = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
    SampleStore store;
    for (int i = 0; i < 20'000; ++i)
        store.append(i, i);
    int runs = 0;
    const Sample *last = nullptr;
    for (const Sample &sample : store) {
        if (last == nullptr || &sample != last + 1) {
            QCOMPARE(reinterpret_cast<std::uintptr_t>(&sample) % pageSize, std::uintptr_t{0});
            ++runs;
        }
        last = &sample;
    }
    QVERIFY(runs > 1);
}

void tst_samplestore::full_isThinnedLittleByLittle()
{
    constexpr size_t capacity = 10'000;
    SampleStore store(capacity);
    for (qint64 i = 0; i < 100'000; ++i) {
        const size_t before = store.size();
        store.append(i, static_cast<double>(i % 10));
        QVERIFY(store.size() + capacity / 10 > before);
    }
    QVERIFY(store.size() > capacity * 9 / 10);
}

void tst_samplestore::full_ofGaps_staysWithinItsBounds()
{
    SampleStore store(0);
    for (int i = 0; i < 1000; ++i) {
        store.append(i, i % 2 == 0 ? i : Sample::gap);
        QVERIFY(store.size() <= SampleStore::minimumCapacity);
    }
}

void tst_samplestore::thinning_keepsTheExtremes()
{
    SampleStore store(100);
    for (int i = 0; i < 5000; ++i)
        store.append(i, i == 1234 ? 99.0 : i == 2345 ? -99.0 : std::sin(i));
    const std::vector<Sample> samples = samplesOf(store);
    const auto find = [&](qint64 time, double value) {
        return std::any_of(samples.begin(), samples.end(), [&](const Sample &sample) {
            return sample.timeUs == time && sample.value == value;
        });
    };
    QVERIFY(find(1234, 99.0));
    QVERIFY(find(2345, -99.0));
    compareWithBruteForce(store, 0, 100, 50);
}

void tst_samplestore::thinning_keepsGaps()
{
    SampleStore store(24);
    for (int i = 0; i < 30; ++i)
        store.append(i, i == 3 ? Sample::gap : i);
    QVERIFY(textOf(samplesOf(store)).startsWith("0:0 3:- 5:5 6:6 11:11 12:12"));
}

void tst_samplestore::getAt_isTheNewestNotAfter()
{
    SampleStore store;
    QVERIFY(!store.getAt(7));
    store.append(10, 1);
    store.append(20, Sample::gap);
    store.append(30, 3);
    QVERIFY(!store.getAt(9));
    QCOMPARE(store.getAt(10)->value, 1.0);
    QCOMPARE(store.getAt(19)->value, 1.0);
    QVERIFY(store.getAt(20)->isGap());
    QCOMPARE(store.getAt(99)->value, 3.0);
}

void tst_samplestore::decimate_equalsBruteForce_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<qint64>("fromUs");
    QTest::addColumn<qint64>("columnUs");
    QTest::addColumn<int>("columns");
    QTest::newRow("all") << 20'000 << qint64(0) << qint64(20'000) << 500;
    QTest::newRow("odd width") << 20'000 << qint64(12'345) << qint64(7919) << 321;
    QTest::newRow("one column") << 20'000 << qint64(0) << qint64(20'000'000) << 1;
    QTest::newRow("narrow") << 20'000 << qint64(5'000'000) << qint64(1) << 2000;
    QTest::newRow("before all") << 20'000 << qint64(-9'000'000) << qint64(100) << 10;
    QTest::newRow("behind all") << 20'000 << qint64(99'000'000) << qint64(100) << 10;
    QTest::newRow("nothing") << 0 << qint64(0) << qint64(100) << 10;
}

void tst_samplestore::decimate_equalsBruteForce()
{
    QFETCH(int, count);
    QFETCH(qint64, fromUs);
    QFETCH(qint64, columnUs);
    QFETCH(int, columns);
    std::mt19937 random(7); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same in each run
    SampleStore store;
    qint64 timeUs = 0;
    for (int i = 0; i < count; ++i) {
        timeUs += static_cast<qint64>(random() % 1000);
        store.append(timeUs, valueFrom(random));
    }
    compareWithBruteForce(store, fromUs, columnUs, columns);
}

void tst_samplestore::decimate_afterThinningAndLateSamples_equalsBruteForce()
{
    std::mt19937 random(8); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same in each run
    SampleStore store(3000);
    for (int i = 0; i < 20'000; ++i) {
        const auto late = random() % 10 == 0 ? static_cast<qint64>(random() % 900'000) : 0;
        store.append(i * 1000 - late, valueFrom(random));
        if (i % 997 == 0)
            compareWithBruteForce(store, 0, 33'333, 600);
    }
    QVERIFY(store.size() <= 3000);
}

void tst_samplestore::decimate_fewSamples_areAsTheyAre()
{
    SampleStore store;
    for (const qint64 time : {1, 2, 4, 8, 16, 32})
        store.append(time, static_cast<double>(time));
    std::vector<Sample> line;
    store.decimate(0, 10, 10, line);
    QCOMPARE(textOf(line), textOf(samplesOf(store)));
}

void tst_samplestore::decimate_reachesOverTheEdges()
{
    SampleStore store;
    for (const qint64 time : {0, 10, 20, 30, 40})
        store.append(time, static_cast<double>(time));
    std::vector<Sample> line;
    store.decimate(15, 5, 2, line);
    QCOMPARE(textOf(line), "10:10 20:20 30:30");
}

void tst_samplestore::decimate_gapBetweenColumns_breaksTheLine()
{
    SampleStore store;
    for (int i = 0; i < 10; ++i)
        store.append(i, i);
    store.append(10, Sample::gap);
    for (int i = 100; i < 110; ++i)
        store.append(i, i);
    std::vector<Sample> line;
    store.decimate(0, 50, 4, line);
    QCOMPARE(textOf(line), "0:0 5:0 5:9 10:- 100:100 104:100 104:109 109:109");
}

void tst_samplestore::decimate_columnOfGaps_hasNoValues()
{
    SampleStore store;
    store.append(0, 1);
    store.append(100, 2);
    for (int i = 0; i < 8; ++i)
        store.append(50 + i, Sample::gap);
    std::vector<Sample> line;
    store.decimate(0, 25, 5, line);
    QCOMPARE(textOf(line), "0:1 50:- 57:- 100:2");
}

void tst_samplestore::decimate_lastBlockOfGaps_addsNothing()
{
    SampleStore store;
    for (int i = 0; i < 32; ++i)
        store.append(i, i);
    store.append(32, Sample::gap);
    std::vector<Sample> line;
    store.decimate(0, 100, 1, line);
    QCOMPARE(textOf(line), "0:0 16:0 16:31 32:-");
}

CORVANE_TEST_MAIN(tst_samplestore)
#include "tst_samplestore.moc"
