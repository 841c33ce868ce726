#include "memleaktracer.h"
#include "testcase.h"

#include <thread>
#include <vector>

using namespace corvane::test;

class TestMemLeakTracer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void getInstance_isOne();
    void count_followsObjects();
    void count_keepsClassesApart();
    void count_goesBelowZero();
    void report_isSortedByName();
    void report_ofNothing_isEmpty();
    void threads_countExactly();

private:
    MemLeakTracer *tracer = MemLeakTracer::getInstance();
};

void TestMemLeakTracer::getInstance_isOne()
{
    QVERIFY(tracer != nullptr);
    QCOMPARE(MemLeakTracer::getInstance(), tracer);
}

void TestMemLeakTracer::count_followsObjects()
{
    tracer->doAllocateObject("A");
    tracer->doAllocateObject("A");
    QCOMPARE(tracer->getLiveObjects().value("A"), 2);
    tracer->doDeallocateObject("A");
    QCOMPARE(tracer->getLiveObjects().value("A"), 1);
    tracer->doDeallocateObject("A");
    QVERIFY(!tracer->getLiveObjects().contains("A"));
}

void TestMemLeakTracer::count_keepsClassesApart()
{
    tracer->doAllocateObject("A");
    tracer->doAllocateObject("a");
    QCOMPARE(tracer->getLiveObjects(), (QMap<QString, qint64>{{"A", 1}, {"a", 1}}));
    tracer->doDeallocateObject("A");
    QCOMPARE(tracer->getLiveObjects(), (QMap<QString, qint64>{{"a", 1}}));
    tracer->doDeallocateObject("a");
}

void TestMemLeakTracer::count_goesBelowZero()
{
    tracer->doDeallocateObject("A");
    QCOMPARE(tracer->getLiveObjects().value("A"), -1);
    tracer->doAllocateObject("A");
    QVERIFY(tracer->getLiveObjects().isEmpty());
}

void TestMemLeakTracer::report_isSortedByName()
{
    tracer->doAllocateObject("Tree");
    tracer->doAllocateObject("Label");
    tracer->doAllocateObject("Label");
    QCOMPARE(tracer->getReport(), "Label: 2\nTree: 1");
    tracer->doDeallocateObject("Tree");
    tracer->doDeallocateObject("Label");
    tracer->doDeallocateObject("Label");
}

void TestMemLeakTracer::report_ofNothing_isEmpty()
{
    QCOMPARE(tracer->getReport(), QString());
}

void TestMemLeakTracer::threads_countExactly()
{
    constexpr int rounds = 10'000;
    const auto work = [this] {
        for (int i = 0; i < rounds; ++i) {
            tracer->doAllocateObject("Both");
            tracer->doAllocateObject("Kept");
            tracer->doDeallocateObject("Both");
        }
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back(work);
    for (std::thread &thread : threads)
        thread.join();

    QCOMPARE(tracer->getLiveObjects(), (QMap<QString, qint64>{{"Kept", 4 * rounds}}));
    for (int i = 0; i < 4 * rounds; ++i)
        tracer->doDeallocateObject("Kept");
}

CORVANE_TEST_MAIN(TestMemLeakTracer)

#include "tst_memleaktracer.moc"
