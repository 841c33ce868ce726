#include "eventroundprobe.h"
#include "testcase.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <ctime>

using namespace corvane;
using namespace corvane::test;

class tst_eventroundprobe : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void busyRound_isMeasured();
    void waiting_isNoRound();
    void severalEventsOfOneRound_areAdded();
    void longAgo_isForgotten();
    void longestEver_isKept();
    void work_isWithoutWaiting();
};

namespace {

constexpr int busyMs = 80;
constexpr qint64 busyUs = busyMs * 1000;

void beBusySoon(int times = 1)
{
    for (int i = 0; i < times; ++i)
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [] { QThread::msleep(busyMs); }, Qt::QueuedConnection);
}

} // namespace

void tst_eventroundprobe::busyRound_isMeasured()
{
    EventRoundProbe probe(10'000);
    beBusySoon();
    QTRY_VERIFY(probe.getLongestUs() >= busyUs);
    QVERIFY(probe.getLongestUs() < 10 * busyUs);
}

void tst_eventroundprobe::waiting_isNoRound()
{
    EventRoundProbe probe(10'000);
    QEventLoop loop;
    QTimer::singleShot(400, &loop, &QEventLoop::quit);
    loop.exec();
    QTest::qWait(50);
    QVERIFY2(probe.getLongestUs() < 200'000, qPrintable(QString::number(probe.getLongestUs())));
}

void tst_eventroundprobe::severalEventsOfOneRound_areAdded()
{
    EventRoundProbe probe(10'000);
    beBusySoon(3);
    QTRY_VERIFY(probe.getLongestUs() >= 3 * busyUs);
}

void tst_eventroundprobe::longAgo_isForgotten()
{
    EventRoundProbe probe(100);
    beBusySoon();
    QTRY_VERIFY(probe.getLongestUs() >= busyUs);
    QTRY_VERIFY(probe.getLongestUs() < busyUs / 2);
}

void tst_eventroundprobe::longestEver_isKept()
{
    EventRoundProbe probe(20);
    beBusySoon();
    QTRY_VERIFY(probe.getLongestEverUs() >= busyUs);
    QTest::qWait(300);
    QVERIFY(probe.getLongestEverUs() >= busyUs);
}

void tst_eventroundprobe::work_isWithoutWaiting()
{
    EventRoundProbe probe(10'000);
    beBusySoon();
    QTRY_VERIFY(probe.getLongestUs() >= busyUs);
    QVERIFY(probe.getMostWorkUs() < busyUs / 2);
    QMetaObject::invokeMethod(
        this,
        [] {
            const std::clock_t start = std::clock();
            while (std::clock() - start < CLOCKS_PER_SEC / 20)
                ;
        },
        Qt::QueuedConnection);
    QTRY_VERIFY(probe.getMostWorkUs() >= 40'000);
}

CORVANE_TEST_MAIN(tst_eventroundprobe)
#include "tst_eventroundprobe.moc"
