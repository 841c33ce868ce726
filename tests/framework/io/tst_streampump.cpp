#include "processsource.h"
#include "pumpscene.h"
#include "testcase.h"

#include <QElapsedTimer>
#include <QEventLoop>

#include <chrono>
#include <new>

using namespace corvane;
using namespace corvane::test;
using namespace std::chrono_literals;

namespace {

/** Keeps the processor busy, as decoding and showing would. */
void work(std::chrono::microseconds duration)
{
    const auto end = std::chrono::steady_clock::now() + duration;
    while (std::chrono::steady_clock::now() < end) {
    }
}

/** Counts the rounds of a timer that is always due, and the frames that came between two. */
class RoundWatch : public QObject
{
public:
    explicit RoundWatch(const test::LineDecoder &decoder)
    {
        connect(&timer, &QTimer::timeout, this, [this, &decoder] {
            mostFrames = std::max(mostFrames, decoder.frameCount - framesBefore);
            framesBefore = decoder.frameCount;
            ++rounds;
        });
        timer.start(0);
    }

    qint64 mostFrames = 0;
    int rounds = 0;

private:
    QTimer timer;
    qint64 framesBefore = 0;
};

} // namespace

class TestStreamPump : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void bytes_becomeFrames();
    void end_comesAfterTheLastFrame();
    void failure_comesAfterTheLastFrame();
    void failure_ofOpening();
    void failure_ofMemory();
    void arrival_isKnownOfLiveSourcesOnly();
    void slices_letOthersWork();
    void slice_canBeSet();
    void reading_waitsForDecoding();
    void idle_costsNothing();
    void pause_stopsReading();
    void pause_withinASlice();
    void pause_ofAProgram_holdsItBack();
    void stop_withinASlice();
    void stop_byAFollowerOfTheSource();
    void nestedEventLoop_doesNotReenter();
    void start_again();
};

void TestStreamPump::bytes_becomeFrames()
{
    Fixture f;
    f.pump.start();
    f.source.add("one\ntw");
    QTRY_COMPARE(f.decoder.frames, QStringList({"one"}));
    f.source.add("o\n");
    QTRY_COMPARE(f.decoder.frames, QStringList({"one", "two"}));
    QCOMPARE(f.pump.getBytesRead(), quint64(8));
    QCOMPARE(f.finished.size(), 0);
}

void TestStreamPump::end_comesAfterTheLastFrame()
{
    Fixture f;
    f.pump.setSlice(0ms);
    QStringList framesAtEnd;
    connect(&f.pump, &StreamPump::finished, this, [&] { framesAtEnd = f.decoder.frames; });
    f.source.add("one\ntwo\nrest");
    f.source.end();
    f.pump.start();
    QCOMPARE(f.decoder.frames, QStringList());
    QTRY_COMPARE(f.finished.size(), 1);
    QCOMPARE(framesAtEnd, QStringList({"one", "two", "(cut) rest"}));
    QTest::qWait(10);
    QCOMPARE(f.finished.size(), 1);
    QCOMPARE(f.failed.size(), 0);
}

void TestStreamPump::failure_comesAfterTheLastFrame()
{
    Fixture f;
    QStringList framesAtEnd;
    connect(&f.pump, &StreamPump::failed, this, [&] { framesAtEnd = f.decoder.frames; });
    f.source.add("one\nrest");
    f.source.breakDown(QStringLiteral("it broke"));
    f.pump.start();
    QTRY_COMPARE(f.failed.size(), 1);
    QCOMPARE(f.failed.first().first().toString(), "it broke");
    QCOMPARE(framesAtEnd, QStringList({"one", "(cut) rest"}));
    QCOMPARE(f.finished.size(), 0);
}

void TestStreamPump::failure_ofMemory()
{
    Fixture f;
    f.decoder.onFrame = [](const QString &frame) {
        if (frame == QLatin1String("huge"))
            throw std::bad_alloc();
    };
    f.source.add("one\nhuge\ntwo\n");
    f.pump.start();
    QTRY_COMPARE(f.failed.size(), 1);
    QVERIFY(f.failed.first().first().toString().contains("not enough memory"));
    QVERIFY(f.source.isAtEnd());
    QCOMPARE(f.decoder.frames, QStringList({"one", "huge"}));
    QCOMPARE(f.finished.size(), 0);

    f.source.add("three\n");
    f.pump.start();
    QTRY_COMPARE(f.decoder.frames.last(), "three");
}

void TestStreamPump::failure_ofOpening()
{
    Fixture f;
    f.source.refuseToOpen(QStringLiteral("not there"));
    f.pump.start();
    QTRY_COMPARE(f.failed.size(), 1);
    QCOMPARE(f.failed.first().first().toString(), "not there");
    QTest::qWait(10);
    QCOMPARE(f.failed.size(), 1);
    QCOMPARE(f.finished.size(), 0);
}

void TestStreamPump::arrival_isKnownOfLiveSourcesOnly()
{
    Fixture live;
    const qint64 beforeUs = QDateTime::currentMSecsSinceEpoch() * 1000;
    live.source.add("x\n");
    live.pump.start();
    QTRY_COMPARE(live.decoder.arrivals.size(), 1);
    const std::optional<qint64> arrivalUs = live.decoder.arrivals.first();
    QVERIFY(arrivalUs);
    QVERIFY(*arrivalUs >= beforeUs && *arrivalUs <= beforeUs + 10'000'000);

    Fixture file;
    file.source.setLive(false);
    file.source.add("x\n");
    file.pump.start();
    QTRY_COMPARE(file.decoder.arrivals.size(), 1);
    QVERIFY(!file.decoder.arrivals.first());
}

void TestStreamPump::slices_letOthersWork()
{
    Fixture f;
    f.decoder.onFrame = [](const QString &) { work(500us); };
    f.source.add(lines(800));
    f.source.end();
    const RoundWatch watch(f.decoder);
    f.pump.start();
    QTRY_COMPARE(f.finished.size(), 1);
    QCOMPARE(f.decoder.frameCount, 800);
    // Frames of at least half a millisecond in slices of ten, whatever else the machine does.
    QVERIFY2(watch.mostFrames <= 21, qPrintable(QString::number(watch.mostFrames)));
    QVERIFY2(watch.rounds >= 38, qPrintable(QString::number(watch.rounds)));
}

void TestStreamPump::slice_canBeSet()
{
    Fixture f;
    f.pump.setSlice(1ms);
    f.decoder.onFrame = [](const QString &) { work(2ms); };
    f.source.add(lines(20));
    f.source.end();
    f.pump.start();
    int framesInRound = 0;
    while (f.finished.isEmpty()) {
        const qint64 before = f.decoder.frameCount;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        framesInRound = std::max(framesInRound, int(f.decoder.frameCount - before));
    }
    QCOMPARE(framesInRound, 1);
}

void TestStreamPump::reading_waitsForDecoding()
{
    Fixture f;
    const QByteArray all = lines(100'000, "0123456789");
    f.source.add(all);
    qsizetype longestLead = 0;
    f.decoder.onFrame = [&](const QString &) {
        longestLead
            = std::max<qsizetype>(longestLead, f.decoder.appendedBytes - f.decoder.frameCount * 11);
    };
    f.decoder.keepsFrames = false;
    f.pump.start();
    f.source.end();
    QTRY_COMPARE(f.finished.size(), 1);
    QCOMPARE(f.decoder.frameCount, 100'000);
    QCOMPARE(f.pump.getBytesRead(), quint64(all.size()));
    QVERIFY2(longestLead <= StreamPump::chunkBytes, qPrintable(QString::number(longestLead)));
}

void TestStreamPump::idle_costsNothing()
{
    Fixture f;
    f.pump.start();
    f.source.add("x\n");
    QTRY_COMPARE(f.decoder.frames.size(), 1);
    QTest::qWait(20);
    const int readsBefore = f.source.readCount;
    const double processorBefore = getProcessorMs();
    QTest::qWait(300);
    QCOMPARE(f.source.readCount, readsBefore);
    QVERIFY2(getProcessorMs() - processorBefore < 100.0,
             qPrintable(QString::number(getProcessorMs() - processorBefore)));
}

void TestStreamPump::pause_stopsReading()
{
    Fixture f;
    f.pump.start();
    f.pump.setPaused(true);
    QVERIFY(f.pump.isPaused());
    f.source.add("one\n");
    QTest::qWait(20);
    QCOMPARE(f.source.getWaitingBytes(), qint64(4));
    QCOMPARE(f.pump.getBytesRead(), quint64(0));
    f.pump.setPaused(false);
    QTRY_COMPARE(f.decoder.frames, QStringList({"one"}));
}

void TestStreamPump::pause_withinASlice()
{
    Fixture f;
    f.decoder.onFrame = [&](const QString &frame) {
        if (frame == "stop")
            f.pump.setPaused(true);
    };
    f.source.add("one\nstop\ntwo\n");
    f.source.end();
    f.pump.start();
    QTest::qWait(20);
    QCOMPARE(f.decoder.frames, QStringList({"one", "stop"}));
    QCOMPARE(f.finished.size(), 0);
    f.pump.setPaused(false);
    QTRY_COMPARE(f.finished.size(), 1);
    QCOMPARE(f.decoder.frames, QStringList({"one", "stop", "two"}));
}

void TestStreamPump::pause_ofAProgram_holdsItBack()
{
    ProcessSource source(QStringLiteral("yes"));
    test::LineDecoder decoder;
    decoder.keepsFrames = false;
    StreamPump pump(source, decoder);
    pump.start();
    QTRY_VERIFY(pump.getBytesRead() > 1'000'000);
    pump.setPaused(true);
    const quint64 bytes = pump.getBytesRead();
    QTest::qWait(100);
    QCOMPARE(pump.getBytesRead(), bytes);
    pump.setPaused(false);
    QTRY_VERIFY(pump.getBytesRead() > bytes);
    pump.stop();
    const quint64 atEnd = pump.getBytesRead();
    QTest::qWait(20);
    QCOMPARE(pump.getBytesRead(), atEnd);
}

void TestStreamPump::stop_withinASlice()
{
    Fixture f;
    f.decoder.onFrame = [&](const QString &) { f.pump.stop(); };
    f.source.add("one\ntwo\n");
    f.source.end();
    f.pump.start();
    QTest::qWait(20);
    QCOMPARE(f.decoder.frames, QStringList({"one"}));
    QVERIFY(f.source.isAtEnd());
    QCOMPARE(f.finished.size() + f.failed.size(), 0);
}

void TestStreamPump::stop_byAFollowerOfTheSource()
{
    Fixture f;
    connect(&f.source, &ByteSource::finished, &f.pump, &StreamPump::stop);
    f.source.add("one\nrest");
    f.source.end();
    f.pump.start();
    QTest::qWait(20);
    QCOMPARE(f.decoder.frames, QStringList({"one"}));
    QVERIFY(!f.decoder.finished);
    QCOMPARE(f.finished.size(), 0);
}

void TestStreamPump::nestedEventLoop_doesNotReenter()
{
    Fixture f;
    f.pump.setSlice(0ms);
    int depth = 0;
    int deepest = 0;
    f.decoder.onFrame = [&](const QString &) {
        deepest = std::max(deepest, ++depth);
        QTest::qWait(5);
        f.source.add("");
        --depth;
    };
    f.source.add("one\ntwo\nthree\n");
    f.source.end();
    f.pump.start();
    QTRY_COMPARE(f.finished.size(), 1);
    QCOMPARE(deepest, 1);
    QCOMPARE(f.decoder.frames, QStringList({"one", "two", "three"}));
}

void TestStreamPump::start_again()
{
    Fixture f;
    f.source.add("one\n");
    f.source.end();
    f.pump.start();
    QTRY_COMPARE(f.finished.size(), 1);
    f.source.add("two\n");
    f.pump.start();
    QTRY_COMPARE(f.finished.size(), 2);
    QCOMPARE(f.decoder.frames, QStringList({"one", "two"}));
    QCOMPARE(f.pump.getBytesRead(), quint64(4));
}

CORVANE_TEST_MAIN(TestStreamPump)

#include "tst_streampump.moc"
