#include "intervalstatistics.h"
#include "testcase.h"

using namespace corvane::test;
using corvane::IntervalStatistics;

class TestIntervalStatistics : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void classes_areLimited();
    void gaps_areLimitedButCounted();
    void lateMessage_takesAGapBack();
};

void TestIntervalStatistics::classes_areLimited()
{
    IntervalStatistics statistics;
    for (int i = 0; i < 64; ++i)
        statistics.add(statistics.getClass(100 + i));
    QCOMPARE(statistics.getClasses().size(), 64);
    statistics.add(statistics.getClass(5000)); // there is no room: the nearest one
    statistics.add(statistics.getClass(7));
    statistics.add(statistics.getClass(110));
    const auto classes = statistics.getClasses();
    QCOMPARE(classes.size(), 64);
    QList<qint64> twice;
    for (const auto &known : classes)
        if (known.count == 2)
            twice.append(known.ms);
    QCOMPARE(twice, (QList<qint64>{100, 110, 163}));
}

void TestIntervalStatistics::gaps_areLimitedButCounted()
{
    IntervalStatistics statistics;
    for (quint64 i = 0; i < 1500; ++i)
        statistics.addGap({i, 2, 10});
    QCOMPARE(statistics.gaps.size(), 64);
    QCOMPARE(statistics.gaps.constLast().start, 63U);
    QCOMPARE(statistics.gapCount, 1500U);
    QCOMPARE(statistics.missingEpochs, 3000U);
}

void TestIntervalStatistics::lateMessage_takesAGapBack()
{
    IntervalStatistics statistics;
    statistics.addGap({1, 2, 10});
    statistics.addGap({5, 1, 10});
    statistics.fillGap({1, 2, 10});
    QCOMPARE(statistics.gapCount, 2U);
    QCOMPARE(statistics.missingEpochs, 2U);
    QCOMPARE(statistics.gaps.constFirst().missingEpochs, 1U);
    statistics.fillGap({5, 1, 10});
    QCOMPARE(statistics.gapCount, 1U);
    QCOMPARE(statistics.gaps.size(), 1);
    QCOMPARE(statistics.gaps.constFirst().start, 1U);
    statistics.fillGap({9, 0, 10}); // none at all
    QCOMPARE(statistics.gapCount, 1U);
    QCOMPARE(statistics.missingEpochs, 1U);
    statistics.addGap({20, 100, 10});
    statistics.removeGap({20, 100, 10});
    QCOMPARE(statistics.gapCount, 1U);
    QCOMPARE(statistics.missingEpochs, 1U);
    QCOMPARE(statistics.gaps.size(), 1);
}

CORVANE_TEST_MAIN(TestIntervalStatistics)
#include "tst_intervalstatistics.moc"
