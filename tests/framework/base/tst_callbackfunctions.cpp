#include "callbackfunctions.h"
#include "testcase.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QProcess>
#include <QScopeGuard>

#include <pthread.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <thread>

using namespace corvane::test;

namespace {

constexpr char abortArgument[] = "--abort-after-severity";

// Read by the static initialisation of this program, before main().
const DbgCallbackFunctions *const askedForBeforeMain = getCallBackFunctions();

QByteArray contentOf(FILE *file)
{
    QByteArray content(1000, '\0');
    std::rewind(file);
    content.resize(static_cast<qsizetype>(std::fread(content.data(), 1, 1000, file)));
    return content;
}

} // namespace

class TestCallbackFunctions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void record_isOneAndComplete();
    void lock_keepsOthersOut();
    void threadName_isThatOfTheCaller();
    void threadName_isCutToSize();
    void time_isInMilliseconds();
    void sleep_lastsAsLongAsAsked();
    void output_goesToTheStream();
    void output_severity1_isFlushed();
    void output_severity1_survivesAbortOnPipe_data();
    void output_severity1_survivesAbortOnPipe();
    void getenv_readsTheEnvironment();

private:
    DbgCallbackFunctions *callbacks = getCallBackFunctions();
};

void TestCallbackFunctions::record_isOneAndComplete()
{
    QCOMPARE(getCallBackFunctions(), callbacks);
    QCOMPARE(askedForBeforeMain, callbacks);
    QVERIFY(callbacks->lock != nullptr && callbacks->unlock != nullptr);
    QVERIFY(callbacks->getThreadName != nullptr);
    QVERIFY(callbacks->getTime != nullptr && callbacks->sleep != nullptr);
    QVERIFY(callbacks->setOutputStream != nullptr && callbacks->output != nullptr);
}

void TestCallbackFunctions::lock_keepsOthersOut()
{
    std::atomic<bool> entered = false;
    callbacks->lock(callbacks->lockContext);
    std::thread other([&] {
        callbacks->lock(callbacks->lockContext);
        entered = true;
        callbacks->unlock(callbacks->lockContext);
    });
    QTest::qSleep(30);
    const bool enteredWhileLocked = entered;
    callbacks->unlock(callbacks->lockContext);
    other.join();
    QVERIFY(!enteredWhileLocked);
    QVERIFY(entered);
}

void TestCallbackFunctions::threadName_isThatOfTheCaller()
{
    char name[32] = "";
    std::thread([&] {
        pthread_setname_np(pthread_self(), "fifteen letters");
        callbacks->getThreadName(name, sizeof name);
    }).join();
    QCOMPARE(name, "fifteen letters");
}

void TestCallbackFunctions::threadName_isCutToSize()
{
    char name[8] = "xxxxxxx";
    std::thread([&] {
        pthread_setname_np(pthread_self(), "reader");
        callbacks->getThreadName(name, 4);
        callbacks->getThreadName(nullptr, 4);
        callbacks->getThreadName(name + 5, 0);
    }).join();
    QCOMPARE(name, "rea");
    QCOMPARE(name[5], 'x');
}

void TestCallbackFunctions::time_isInMilliseconds()
{
    const auto before = static_cast<quint64>(QDateTime::currentMSecsSinceEpoch());
    const quint64 time = callbacks->getTime();
    const auto after = static_cast<quint64>(QDateTime::currentMSecsSinceEpoch());
    QVERIFY(before <= time && time <= after);
}

void TestCallbackFunctions::sleep_lastsAsLongAsAsked()
{
    QElapsedTimer timer;
    timer.start();
    callbacks->sleep(20);
    QVERIFY(timer.elapsed() >= 20);
}

void TestCallbackFunctions::output_goesToTheStream()
{
    FILE *file = std::tmpfile();
    callbacks->setOutputStream(file);
    const auto restore = qScopeGuard([&] {
        callbacks->setOutputStream(nullptr);
        std::fclose(file);
    });
    callbacks->output("one\n", 2);
    callbacks->output(nullptr, 2);
    callbacks->output("two\n", 1);
    QCOMPARE(contentOf(file), "one\ntwo\n");
}

void TestCallbackFunctions::output_severity1_isFlushed()
{
    FILE *file = std::tmpfile();
    FILE *reader = fdopen(dup(fileno(file)), "r");
    callbacks->setOutputStream(file);
    const auto restore = qScopeGuard([&] {
        callbacks->setOutputStream(nullptr);
        std::fclose(file);
        std::fclose(reader);
    });
    callbacks->output("waits\n", 2);
    QCOMPARE(contentOf(reader), QByteArray());
    callbacks->output("error\n", 1);
    QCOMPARE(contentOf(reader), "waits\nerror\n");
}

void TestCallbackFunctions::output_severity1_survivesAbortOnPipe_data()
{
    QTest::addColumn<QString>("severity");
    QTest::addColumn<QByteArray>("arrives");

    QTest::newRow("error") << "1" << QByteArray("last words\n");
    // The thread sanitizer flushes all streams when a process aborts.
#ifndef __SANITIZE_THREAD__
    QTest::newRow("trace") << "2" << QByteArray();
#endif
}

void TestCallbackFunctions::output_severity1_survivesAbortOnPipe()
{
    QFETCH(QString, severity);
    QFETCH(QByteArray, arrives);

    QProcess process;
    process.start(QCoreApplication::applicationFilePath(),
                  {QLatin1String(abortArgument), severity});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(process.readAllStandardOutput(), arrives);
}

void TestCallbackFunctions::getenv_readsTheEnvironment()
{
    qputenv("CORVANE_TEST_VARIABLE", "value");
    QCOMPARE(callbacks->getenv("CORVANE_TEST_VARIABLE"), "value");
    qunsetenv("CORVANE_TEST_VARIABLE");
    QCOMPARE(callbacks->getenv("CORVANE_TEST_VARIABLE"), nullptr);
    QCOMPARE(callbacks->getenv(nullptr), nullptr);
}

int main(int argc, char *argv[])
{
    if (argc == 3 && qstrcmp(argv[1], abortArgument) == 0) {
        getCallBackFunctions()->output("last words\n", std::atoi(argv[2]));
        std::abort();
    }
    QCoreApplication application(argc, argv);
    TestCallbackFunctions testObject;
    return runTests(testObject, argc, argv);
}

#include "tst_callbackfunctions.moc"
