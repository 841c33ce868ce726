#include "msgbuffermodel.h"
#include "testcase.h"

#include <random>

using corvane::test::MsgBufferExercise;

namespace {

using Random = std::mt19937_64;

uint64_t upTo(Random &random, uint64_t most)
{
    return std::uniform_int_distribution<uint64_t>(0, most)(random);
}

std::string randomText(Random &random)
{
    // Mostly trace lines; sometimes one that is cut.
    const uint64_t longest = upTo(random, 9) == 0 ? 2500 : 120;
    return std::string(upTo(random, longest), static_cast<char>('a' + upTo(random, 25)));
}

std::string randomArea(MsgBufferExercise &exercise, Random &random)
{
    // From one node to 64 KiB, each magnitude as often as the others; a few are too small.
    const uint64_t magnitude = upTo(random, 11);
    const uint64_t size = 24 + upTo(random, (uint64_t(32) << magnitude) - 24);
    const uint64_t usedSize = upTo(random, 19) == 0 ? upTo(random, 40) : size;
    const uint64_t misalignment = upTo(random, 1) == 0 ? 0 : upTo(random, 7);
    return exercise.setArea(usedSize, misalignment, upTo(random, 1) * 64);
}

std::string randomStep(MsgBufferExercise &exercise, Random &random)
{
    const uint64_t choice = upTo(random, 9999);
    const bool backwards = upTo(random, 1) == 1;
    if (choice < 9000)
        return exercise.push(randomText(random));
    if (choice < 9900)
        return exercise.read(backwards, 5);
    if (choice < 9950)
        return exercise.reset();
    if (choice < 9965)
        return exercise.read(backwards, ~uint64_t(0));
    if (choice < 9980)
        return exercise.dump(backwards, 2 + upTo(random, 200));
    return randomArea(exercise, random);
}

} // namespace

class TestDbgMsgBufferModel : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void randomSteps_agreeWithTheModel_data();
    void randomSteps_agreeWithTheModel();
    void fixedAreas_agreeWithTheModel_data();
    void fixedAreas_agreeWithTheModel();
};

void TestDbgMsgBufferModel::randomSteps_agreeWithTheModel_data()
{
    QTest::addColumn<quint64>("seed");

    for (quint64 seed = 1; seed <= 10; ++seed)
        QTest::addRow("seed %llu", seed) << seed;
}

void TestDbgMsgBufferModel::randomSteps_agreeWithTheModel()
{
    QFETCH(quint64, seed);
    Random random(seed);
    MsgBufferExercise exercise;
    for (int step = 0; step < 100000; ++step) {
        const std::string wrong = randomStep(exercise, random);
        QVERIFY2(wrong.empty(), qPrintable(QString("step %1: %2").arg(step).arg(wrong.c_str())));
    }
    QCOMPARE(exercise.checkMargins(), std::string());
}

void TestDbgMsgBufferModel::fixedAreas_agreeWithTheModel_data()
{
    QTest::addColumn<int>("size");

    for (int size = 0; size <= 200; ++size)
        QTest::addRow("%d", size) << size;
    for (const int size : {2071, 2072, 2073, 4143, 4144, 4145, 6216, 65536})
        QTest::addRow("%d", size) << size;
}

void TestDbgMsgBufferModel::fixedAreas_agreeWithTheModel()
{
    QFETCH(int, size);
    MsgBufferExercise exercise;
    Random random(static_cast<uint64_t>(size));
    for (uint64_t misalignment = 0; misalignment < 8; ++misalignment) {
        exercise.setArea(static_cast<uint64_t>(size), misalignment, 64);
        for (int step = 0; step < 60; ++step) {
            const std::string text(upTo(random, static_cast<uint64_t>(size)), 'x');
            QCOMPARE(exercise.push(text), std::string());
            QCOMPARE(exercise.read(step % 2 == 0, ~uint64_t(0)), std::string());
        }
        QCOMPARE(exercise.checkMargins(), std::string());
    }
}

CORVANE_TEST_MAIN(TestDbgMsgBufferModel)
#include "tst_dbgmsgbuffermodel.moc"
