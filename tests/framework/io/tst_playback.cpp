#include "descriptions.h"
#include "fileindex.h"
#include "filesource.h"
#include "formatinfo.h"
#include "mavlinkframes.h"
#include "mavlinkmessage.h"
#include "mavlinkscanner.h"
#include "playback.h"
#include "replayclock.h"
#include "streampump.h"
#include "testcase.h"

#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>

using namespace corvane;
using namespace corvane::test;
using namespace std::chrono_literals;

namespace {

/** A delivered message. */
struct Delivered
{
    qint64 offset = 0;
    qint64 timeUs = 0;
    QByteArray bytes;
    quint64 lostBefore = 0; ///< Of all senders, since the beginning of the reading.

    friend bool operator==(const Delivered &left, const Delivered &right)
    {
        return left.offset == right.offset && left.timeUs == right.timeUs
               && left.bytes == right.bytes;
    }
};

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Plays a file, and writes down what is delivered. */
struct Player
{
    Player(const MavlinkFormat &format, const QString &path, ReplayClock::TimeSource time = {})
        : need(&manager)
        , source(path)
        , clock(std::move(time))
        , reception(format.getInfo(), mavlinkSenderName, true, &manager)
        , decoder(format, reception)
        , pump(source, decoder, &clock)
        , index({4096, 32'768})
        , playback({pump, source, decoder, reception, clock, index})
        , finished(&pump, &StreamPump::finished)
        , arrived(&playback, &Playback::arrived)
    {
        QList<const MessageInfo *> types;
        for (const auto &type : format.getInfo()->getData()->messages)
            types.append(type.get());
        need.setMessagesNeeded(types);
        QObject::connect(&reception, &MessageSource::newMessage, &reception,
                         [this](const Message *message) {
                             const auto *frame = static_cast<const MavlinkMessage *>(message);
                             delivered.append({qint64(decoder.getPosition()), frame->getTimeUs(),
                                               frame->getBytes().toByteArray(), countLost()});
                         });
        const QByteArray head = readFile(path).left(64 * 1024);
        scanner
            = std::make_unique<MavlinkScanner>(format, MavlinkDecoder::findFraming(format, head));
        this->path = path;
    }

    /** Reads everything at once. */
    void readThrough()
    {
        clock.setAsFastAsPossible();
        pump.start();
        QTRY_COMPARE(finished.size(), 1);
        finished.clear();
    }

    /** Waits in the beginning of the indexed file. */
    void startPaused()
    {
        pump.setPaused(true);
        pump.start();
        QSignalSpy indexed(&index, &FileIndex::finished);
        index.start(path, std::move(scanner));
        QTRY_COMPARE(indexed.size(), 1);
    }

    QStringList getLosses()
    {
        QStringList texts;
        for (const auto &entry : reception.getEventLog()->getEntries())
            if (entry.event.getType() == CorvaneEvent::SequenceGap)
                texts += entry.event.getMessage();
        return texts;
    }

    quint64 countLost() const
    {
        quint64 lost = 0;
        for (const auto &sender : reception.getSenders().getAll())
            lost += sender->lost;
        return lost;
    }

    QString path;
    MessageNeedManager manager;
    MessageNeed need;
    FileSource source;
    ReplayClock clock;
    Reception reception;
    MavlinkDecoder decoder;
    StreamPump pump;
    FileIndex index;
    std::unique_ptr<MavlinkScanner> scanner;
    Playback playback;
    QSignalSpy finished;
    QSignalSpy arrived;
    QList<Delivered> delivered;
};

} // namespace

/** With the recording that lies in the tree, and with real ones where they are. */
class TestPlayback : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void seek_thenAsAStraightRead_data();
    void seek_thenAsAStraightRead();
    void seek_whilePlaying_goesOn();
    void seek_backFromTheEnd();
    void seek_inASlot();
    void seek_beforeTheIndex_goesToItsEnd();
    void seek_withoutIndex_goesToTheBeginning();
    void seekToTime_isTheFirstNotEarlier();
    void seekToTime_withoutTimes();
    void step_isOneMessage();
    void step_severalAtOnce();
    void step_whilePlaying_pauses();
    void step_atTheEnd();
    void step_isNotWaitedForAfterwards();
    void play_atTheEnd_beginsAgain();
    void speed_isLimited();
    void pause_stopsDelivery();
    void position_andTime();

private:
    QString recording(const QByteArray &bytes) const;

    std::unique_ptr<MavlinkFormat> format;
    std::unique_ptr<MavlinkFormat> publicFormat; ///< Null without the sample data.
    QTemporaryDir folder;
    QString rover;
};

void TestPlayback::initTestCase()
{
    format = std::make_unique<MavlinkFormat>();
    QVERIFY(format->load(sourceFile(QStringLiteral("examples/recording/rover.xml"))).isOk());
    rover = sourceFile(QStringLiteral("examples/recording/rover.tlog"));
    const QString all = sampleFile(QStringLiteral("mavlink/definitions/all.xml"));
    if (all.isEmpty())
        return;
    publicFormat = std::make_unique<MavlinkFormat>();
    QVERIFY(publicFormat->load(all).isOk());
}

/** A file of these bytes. */
QString TestPlayback::recording(const QByteArray &bytes) const
{
    const QString path = folder.filePath(QStringLiteral("recording"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        return {};
    return path;
}

void TestPlayback::seek_thenAsAStraightRead_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isDamaged");
    const QStringList captures{QStringLiteral("ardusub-small.tlog"), QStringLiteral("vtol.tlog"),
                               QStringLiteral("node-mavlink-data.mavlink")};
    QTest::newRow("rover") << rover << false;
    QTest::newRow("rover, damaged") << rover << true;
    for (const QString &capture : captures) {
        const QString path = sampleFile(QStringLiteral("mavlink/captures/") + capture);
        QTest::newRow(qPrintable(capture)) << path << false;
        QTest::newRow(qPrintable(capture + QStringLiteral(", damaged"))) << path << true;
    }
}

void TestPlayback::seek_thenAsAStraightRead()
{
    QFETCH(QString, path);
    QFETCH(bool, isDamaged);
    if (path.isEmpty())
        QSKIP("sample data not found");
    const MavlinkFormat &chosen = path == rover ? *format : *publicFormat;
    if (isDamaged) {
        QByteArray bytes = readFile(path);
        for (qsizetype i = 997; i < bytes.size(); i += 9973)
            bytes[i] = char(bytes[i] ^ 0x11);
        path = recording(bytes.chopped(5));
    }
    Player straight(chosen, path);
    straight.readThrough();
    Player player(chosen, path);
    player.clock.setAsFastAsPossible();
    player.startPaused();
    const qint64 size = player.playback.getSize();
    for (int tenth = 0; tenth <= 10; ++tenth) {
        const qint64 target = size * tenth / 10;
        player.delivered.clear();
        player.arrived.clear();
        player.finished.clear();
        const quint64 lostBefore = player.countLost();
        player.playback.seek(target);
        QVERIFY(QTest::qWaitFor(
            [&] { return !player.arrived.isEmpty() || !player.finished.isEmpty(); }));
        const bool isBefore = player.delivered.isEmpty() || player.delivered.last().offset < target;
        QVERIFY(isBefore);
        QVERIFY(player.playback.getPosition() >= target || !player.finished.isEmpty());
        // Some more, and then compare from the beginning of the run-up on.
        const qsizetype enough = player.delivered.size() + 300;
        player.pump.runUntil([&] { return player.delivered.size() >= enough; });
        QVERIFY(QTest::qWaitFor([&] { return !player.pump.hasGoal(); }));
        if (player.delivered.isEmpty())
            continue;
        const auto first = std::find(straight.delivered.begin(), straight.delivered.end(),
                                     player.delivered.first());
        const auto left = straight.delivered.end() - first;
        QVERIFY(left >= player.delivered.size());
        QVERIFY(player.delivered.size() >= std::min<qsizetype>(enough, left));
        QVERIFY(std::equal(player.delivered.begin(), player.delivered.end(), first));
        QVERIFY(target - player.delivered.first().offset <= Playback::runUpBytes + 100'000);
        // A gap is not seen before the second frame of its sender; and the jump itself is none.
        const auto last = first + player.delivered.size() - 1;
        QVERIFY(player.delivered.last().lostBefore - lostBefore
                <= last->lostBefore - first->lostBefore);
    }
}

void TestPlayback::seek_whilePlaying_goesOn()
{
    Player straight(*format, rover);
    straight.readThrough();
    Player player(*format, rover);
    player.startPaused();
    player.clock.setAsFastAsPossible();
    player.playback.seek(player.playback.getSize() / 2);
    player.playback.play();
    QTRY_COMPARE(player.finished.size(), 1);
    QVERIFY(player.playback.isAtEnd());
    QVERIFY(!player.playback.isPlaying());
    QCOMPARE(player.delivered.last(), straight.delivered.last());
}

void TestPlayback::seek_backFromTheEnd()
{
    Player player(*format, rover);
    player.startPaused();
    player.clock.setAsFastAsPossible();
    player.playback.play();
    QTRY_COMPARE(player.finished.size(), 1);
    const QList<Delivered> all = player.delivered;
    player.delivered.clear();
    player.playback.pause();
    player.playback.seek(0);
    QTRY_COMPARE(player.arrived.size(), 1);
    QVERIFY(!player.playback.isAtEnd());
    QCOMPARE(player.playback.getPosition(), 0);
    player.playback.play();
    QTRY_COMPARE(player.finished.size(), 2);
    QVERIFY(player.delivered == all);
}

void TestPlayback::seek_inASlot()
{
    Player player(*format, rover);
    player.startPaused();
    player.clock.setAsFastAsPossible();
    bool isDone = false;
    connect(&player.reception, &MessageSource::newMessage, &player.playback, [&] {
        if (player.delivered.size() == 1000 && !std::exchange(isDone, true))
            player.playback.seek(0);
    });
    player.playback.play();
    QTRY_COMPARE(player.finished.size(), 1);
    QCOMPARE(player.delivered.size(), 1000 + 1737);
    QVERIFY(std::equal(player.delivered.begin(), player.delivered.begin() + 1000,
                       player.delivered.begin() + 1000));
}

void TestPlayback::seek_beforeTheIndex_goesToItsEnd()
{
    const QByteArray bytes = readFile(rover);
    const QString path = recording(bytes.first(30'000));
    Player player(*format, path);
    player.startPaused();
    player.index.cancel();
    QVERIFY(!recording(bytes).isEmpty());
    QCOMPARE(player.playback.getSize(), bytes.size());
    player.playback.seek(bytes.size());
    QTRY_COMPARE(player.arrived.size(), 1);
    QVERIFY(player.playback.getPosition() >= 30'000);
    QVERIFY(player.playback.getPosition() < 30'300);
}

void TestPlayback::seek_withoutIndex_goesToTheBeginning()
{
    Player player(*format, rover);
    player.pump.start();
    player.clock.setAsFastAsPossible();
    QTRY_VERIFY(player.delivered.size() > 100);
    player.playback.pause();
    player.playback.seek(10'000);
    QTRY_COMPARE(player.arrived.size(), 1);
    QCOMPARE(player.playback.getPosition(), 0);
    QVERIFY(!player.playback.isPlaying());
}

void TestPlayback::seekToTime_isTheFirstNotEarlier()
{
    Player straight(*format, rover);
    straight.readThrough();
    Player player(*format, rover);
    player.startPaused();
    for (const int number : {1, 600, 1736}) {
        const Delivered &wanted = straight.delivered.at(number);
        player.arrived.clear();
        player.delivered.clear();
        player.playback.seekToTime(wanted.timeUs - 1);
        QTRY_COMPARE(player.arrived.size(), 1);
        QVERIFY(player.delivered.last().timeUs < wanted.timeUs - 1);
        player.playback.step();
        QTRY_COMPARE(player.arrived.size(), 2);
        QVERIFY(player.delivered.last().timeUs >= wanted.timeUs - 1);
        QVERIFY(player.delivered.last().offset <= wanted.offset);
    }
}

void TestPlayback::seekToTime_withoutTimes()
{
    CORVANE_SAMPLE_FILE(path, "mavlink/captures/node-mavlink-data.mavlink");
    Player player(*publicFormat, path);
    player.startPaused();
    player.playback.seek(20'000);
    QTRY_COMPARE(player.arrived.size(), 1);
    QVERIFY(!player.playback.getTimeUs());
    player.playback.seekToTime(5);
    QTRY_COMPARE(player.arrived.size(), 2);
    QCOMPARE(player.playback.getPosition(), 0);
}

void TestPlayback::step_isOneMessage()
{
    Player straight(*format, rover);
    straight.readThrough();
    Player player(*format, rover);
    player.startPaused();
    QTest::qWait(10);
    QCOMPARE(player.delivered.size(), 0);
    for (int i = 1; i <= 20; ++i) {
        player.playback.step();
        QVERIFY(player.arrived.wait());
        QTest::qWait(1);
        QCOMPARE(player.delivered.size(), i);
        QCOMPARE(player.delivered.last(), straight.delivered.at(i - 1));
    }
    QVERIFY(!player.playback.isPlaying());
}

void TestPlayback::step_severalAtOnce()
{
    Player player(*format, rover);
    player.startPaused();
    player.playback.seek(20'000);
    for (int i = 0; i < 5; ++i)
        player.playback.step();
    QTRY_COMPARE(player.arrived.size(), 1);
    const auto steps = std::count_if(player.delivered.begin(), player.delivered.end(),
                                     [](const Delivered &d) { return d.offset >= 20'000; });
    QCOMPARE(steps, 5);
}

void TestPlayback::step_whilePlaying_pauses()
{
    Player player(*format, rover);
    player.startPaused();
    player.playback.play();
    QVERIFY(player.playback.isPlaying());
    QTRY_VERIFY(!player.delivered.isEmpty());
    const qsizetype before = player.delivered.size();
    player.playback.step();
    QVERIFY(!player.playback.isPlaying());
    QTRY_COMPARE(player.arrived.size(), 1);
    QTest::qWait(100);
    QCOMPARE(player.delivered.size(), before + 1);
}

void TestPlayback::step_atTheEnd()
{
    Player player(*format, rover);
    player.startPaused();
    player.playback.seek(player.playback.getSize() - 1);
    for (int i = 0; i < 3; ++i)
        player.playback.step();
    QTRY_VERIFY(player.playback.isAtEnd());
    const qsizetype count = player.delivered.size();
    player.playback.step();
    QTest::qWait(20);
    QCOMPARE(player.delivered.size(), count);
}

void TestPlayback::step_isNotWaitedForAfterwards()
{
    qint64 nowUs = 0;
    Player player(*format, rover, [&nowUs] { return nowUs; });
    player.startPaused();
    for (int i = 0; i < 300; ++i)
        player.playback.step();
    QTRY_COMPARE(player.arrived.size(), 1);
    QCOMPARE(player.delivered.size(), 300);
    // Ten seconds of recording have been passed; the next message is due all the same.
    player.playback.play();
    QTRY_VERIFY(player.delivered.size() > 300);
    QVERIFY(player.delivered.size() < 310);
}

void TestPlayback::play_atTheEnd_beginsAgain()
{
    Player player(*format, rover);
    player.startPaused();
    player.clock.setAsFastAsPossible();
    player.playback.play();
    QTRY_COMPARE(player.finished.size(), 1);
    player.playback.play();
    QVERIFY(player.playback.isPlaying());
    QTRY_COMPARE(player.finished.size(), 2);
    QCOMPARE(player.delivered.size(), 2 * 1737);
    // The recording's own ones, but none between its end and its beginning.
    Player straight(*format, rover);
    straight.readThrough();
    QCOMPARE(player.getLosses(), straight.getLosses() + straight.getLosses());
}

void TestPlayback::speed_isLimited()
{
    Player player(*format, rover);
    QSignalSpy changed(&player.playback, &Playback::stateChanged);
    QCOMPARE(player.playback.getSpeed(), std::optional(1.0));
    player.playback.setSpeed(2.5);
    QCOMPARE(player.playback.getSpeed(), std::optional(2.5));
    player.playback.setSpeed(0.001);
    QCOMPARE(player.playback.getSpeed(), std::optional(0.1));
    player.playback.setSpeed(5000);
    QCOMPARE(player.playback.getSpeed(), std::optional(100.0));
    player.playback.setSpeed(std::nullopt);
    QVERIFY(!player.playback.getSpeed());
    QCOMPARE(changed.size(), 4);
}

void TestPlayback::pause_stopsDelivery()
{
    Player player(*format, rover);
    player.startPaused();
    player.playback.setSpeed(50);
    player.playback.play();
    QTRY_VERIFY(player.delivered.size() > 5);
    player.playback.pause();
    const qsizetype count = player.delivered.size();
    QTest::qWait(100);
    QCOMPARE(player.delivered.size(), count);
    player.playback.play();
    QTRY_VERIFY(player.delivered.size() > count);
}

void TestPlayback::position_andTime()
{
    Player straight(*format, rover);
    straight.readThrough();
    Player player(*format, rover);
    player.startPaused();
    QCOMPARE(player.playback.getTimeUs(), std::optional(straight.delivered.first().timeUs));
    player.playback.step();
    QTRY_COMPARE(player.arrived.size(), 1);
    QCOMPARE(player.playback.getPosition(), straight.delivered.at(1).offset);
    QCOMPARE(player.playback.getTimeUs(), std::optional(straight.delivered.at(1).timeUs));
    player.clock.setAsFastAsPossible();
    player.playback.play();
    QTRY_COMPARE(player.finished.size(), 1);
    QCOMPARE(player.playback.getPosition(), player.playback.getSize());
    QCOMPARE(player.playback.getTimeUs(), std::optional(straight.delivered.last().timeUs));
}

CORVANE_TEST_MAIN(TestPlayback)

#include "tst_playback.moc"
