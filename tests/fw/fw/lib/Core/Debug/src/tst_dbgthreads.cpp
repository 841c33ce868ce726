#include "callbackfunctions.h"
#include "DbgMsgBuffer.h"
#include "DbgTrace.h"
#include "testcase.h"
#include "tracehost.h"

#include <QFile>
#include <QTemporaryDir>

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <vector>

using corvane::test::resetTracing;

namespace {

constexpr int threadCount = 8;
constexpr int linesPerThread = 500;

QByteArray logFileName;
std::atomic<int> listenerCalls = 0;

// Lines of all lengths, on the stack and on the heap, each of one letter.
std::string textOf(int thread, int number)
{
    return std::string(static_cast<size_t>((number * 37 + thread) % 1500 + 1),
                       static_cast<char>('a' + thread));
}

void traceLines(int thread)
{
    for (int number = 0; number < linesPerThread; ++number) {
        const std::string text = textOf(thread, number);
        DBG_TRACE(DbgLevelError, "threads", "test", "%d %d %s|", thread, number, text.c_str());
        if (dbg_IsBusy() && number % 100 == 0)
            dbg_SetTime(static_cast<uint64_t>(number));
        if (thread == 0)
            dbg_TraceEnable();
    }
}

void runThreads(const std::function<void(int)> &work)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i)
        threads.emplace_back(work, i);
    for (std::thread &thread : threads)
        thread.join();
}

QByteArray readLogFile()
{
    QFile file(logFileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestDbgThreads : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void cleanupTestCase() { resetTracing(); }

    void trace_eightThreads_noTornLine();

private:
    QTemporaryDir directory;
    DbgCallbackFunctions table = *getCallBackFunctions();
};

void TestDbgThreads::initTestCase()
{
    logFileName = directory.filePath("trace.log").toUtf8();
    resetTracing();
    table.getenv = [](const char *name) -> const char * {
        if (qstrcmp(name, "TAV_LOGFILE") == 0)
            return logFileName.constData();
        return qstrcmp(name, "TAV_TRACEINFO") == 0 ? "none" : nullptr;
    };
    dbg_SetCallbackFunctions(&table);
    dbg_Init(nullptr, 1, 0, 3072);
    dbg_TraceSetListener([](int) { listenerCalls.fetch_add(1, std::memory_order_relaxed); });
}

void TestDbgThreads::trace_eightThreads_noTornLine()
{
    alignas(8) static char area[8192];
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    runThreads(traceLines);
    QVERIFY(!dbg_IsBusy());
    fflush(gv_lhstdout);

    const QByteArrayList lines = readLogFile().split('\n');
    QCOMPARE(lines.size(), threadCount * linesPerThread + 1);
    QCOMPARE(listenerCalls.load(), threadCount * linesPerThread);
    std::vector<int> next(threadCount, 0);
    for (int i = 0; i < threadCount * linesPerThread; ++i) {
        const size_t thread = static_cast<size_t>(lines.at(i).mid(1, 1).toInt());
        const int number = next.at(thread)++;
        const std::string text = textOf(static_cast<int>(thread), number);
        QCOMPARE(lines.at(i), QByteArray(" %1 %2 %3|")
                                  .replace("%1", QByteArray::number(static_cast<int>(thread)))
                                  .replace("%2", QByteArray::number(number))
                                  .replace("%3", text.c_str()));
    }

    // The buffer holds the end of what was output, in the same order.
    uint64_t cursor = 0;
    for (int i = threadCount * linesPerThread - 1;
         const char *text = Tav::dbgMsgBufferPeekNext(cursor, true); --i)
        QCOMPARE(QByteArray(text), lines.at(i) + '\n');
    QVERIFY(cursor != 0);
}

CORVANE_TEST_MAIN(TestDbgThreads)
#include "tst_dbgthreads.moc"
