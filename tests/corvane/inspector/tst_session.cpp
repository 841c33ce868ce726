#include "fileindex.h"
#include "message.h"
#include "messageinfo.h"
#include "playback.h"
#include "recordingoptions.h"
#include "session.h"
#include "testcase.h"

#include <QFileInfo>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#include <unistd.h>

#include <algorithm>
#include <memory>

using namespace corvane;
using namespace corvane::test;

class tst_session : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void start_asFastAsPossible_deliversEveryGoodFrame();
    void start_atOwnPace_waitsForTheFrames();
    void start_missingFile_failsAndSaysSo();
    void getSourceName_withoutSource_isEmpty();
    void reconnect_beginsAfreshAndIsInTheLog();
    void reconnect_notWithoutWindow();
    void program_isStartedAgainIfAskedFor();
    void playback_isThereForFilesInAWindow();
    void start_again_forgetsTheFormerSource();
    void followedFile_isWatchedWhileItGrows();
    void followedFile_mayBeEmptyAtFirst();
    void redirectedFile_hasNoPlayback();
    void recording_hasTheBytesOfTheSource();
    void recording_toTheSourceItself_isRefused();
    void recording_failure_isInTheLog();
};

void tst_session::start_asFastAsPossible_deliversEveryGoodFrame()
{
    Options options = recordingOptions();
    options.speed.reset();
    Session session;
    session.load(options);
    QSignalSpy messages(&session.getReception(), &MessageSource::newMessage);
    QSignalSpy finished(&session, &Session::finished);
    session.start(options);
    QVERIFY(finished.wait());
    QCOMPARE(messages.size(), 1737);
    QCOMPARE(session.getReception().getTotals().frames, 1737U);
    QCOMPARE(session.getReception().getTotals().skippedBytes, 0U);
}

void tst_session::start_atOwnPace_waitsForTheFrames()
{
    Options options = recordingOptions();
    options.speed = 4.0;
    Session session;
    session.load(options);
    session.start(options);
    QTest::qWait(500);
    // A minute with 29 frames a second, four times as fast: about 60 in half a second.
    const quint64 frames = session.getReception().getTotals().frames;
    QVERIFY2(frames > 5 && frames < 600, qPrintable(QString::number(frames)));
    session.stop();
}

void tst_session::start_missingFile_failsAndSaysSo()
{
    Options options = recordingOptions();
    options.source = SourceAddress::parse(QStringLiteral("no/such/file.tlog")).address;
    Session session;
    session.load(options);
    QSignalSpy failed(&session, &Session::failed);
    session.start(options);
    QTRY_COMPARE(failed.size(), 1);
    QVERIFY(failed.at(0).at(0).toString().contains(QStringLiteral("no/such/file.tlog")));
    const auto entries = session.getReception().getEventLog()->getEntries();
    QCOMPARE(entries.constLast().event.getType(), CorvaneEvent::SourceFailed);
}

void tst_session::getSourceName_withoutSource_isEmpty()
{
    Session session;
    QCOMPARE(session.load({}), QStringList());
    session.start({});
    QCOMPARE(session.getSourceName(), QString());
}

void tst_session::reconnect_beginsAfreshAndIsInTheLog()
{
    Options options = recordingOptions();
    const QByteArray recording = readFile(options.source->text);
    const qsizetype cut = 20'000;
    auto server = std::make_unique<QTcpServer>();
    QVERIFY(server->listen(QHostAddress::LocalHost));
    const quint16 port = server->serverPort();
    options.source = SourceAddress::parse(QStringLiteral("tcp://127.0.0.1:%1").arg(port)).address;
    options.speed.reset();
    Session session;
    session.load(options);
    const Reception::Totals &totals = session.getReception().getTotals();
    QSignalSpy states(&session, &Session::stateChanged);
    QSignalSpy ended(&session, &Session::finished);
    session.start(options);
    QTRY_VERIFY(server->hasPendingConnections());
    QTcpSocket *peer = server->nextPendingConnection();
    peer->write(recording.first(cut));
    QTRY_COMPARE(totals.bytes, quint64(cut));
    server.reset();
    QTRY_VERIFY(!states.isEmpty()
                && states.last().first().toString().contains(QStringLiteral("trying again")));

    server = std::make_unique<QTcpServer>();
    QVERIFY(server->listen(QHostAddress::LocalHost, port));
    QTRY_VERIFY(server->hasPendingConnections());
    // Many frames later in the recording: what was missed is not told of as lost.
    const qsizetype later = recording.indexOf(QByteArray("\xFD"), 60'000) - 8;
    server->nextPendingConnection()->write(recording.sliced(later));
    QTRY_COMPARE(totals.bytes, quint64(cut + recording.size() - later));

    QCOMPARE(ended.size(), 0);
    QList<CorvaneEvent::Type> types;
    for (const auto &entry : session.getReception().getEventLog()->getEntries())
        types += entry.event.getType();
    // Only the frame that was cut by the break.
    QVERIFY(totals.skippedBytes < 300);
    QCOMPARE(types, (QList{CorvaneEvent::SourceOpened, CorvaneEvent::LostBytes,
                           CorvaneEvent::SourceClosed, CorvaneEvent::SourceOpened}));
    QVERIFY(session.getReception().getEventLog()->getEntries().first().time.isValid());
}

void tst_session::reconnect_notWithoutWindow()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    Options options = recordingOptions();
    options.report = Options::Report::Text;
    options.source
        = SourceAddress::parse(QStringLiteral("tcp://127.0.0.1:%1").arg(server.serverPort()))
              .address;
    Session session;
    session.load(options);
    QSignalSpy finished(&session, &Session::finished);
    session.start(options);
    QTRY_VERIFY(server.hasPendingConnections());
    server.nextPendingConnection()->close();
    QTRY_COMPARE(finished.size(), 1);
}

void tst_session::program_isStartedAgainIfAskedFor()
{
    Options options = recordingOptions();
    const auto bytes = quint64(QFileInfo(options.source->text).size());
    options.source
        = SourceAddress::parse(QStringLiteral("exec:cat '%1'").arg(options.source->text)).address;
    options.speed.reset();
    Session once;
    once.load(options);
    QSignalSpy finished(&once, &Session::finished);
    once.start(options);
    QTRY_COMPARE(finished.size(), 1);

    options.restartsProgram = true;
    Session again;
    again.load(options);
    QSignalSpy never(&again, &Session::finished);
    again.start(options);
    QTRY_COMPARE(again.getReception().getTotals().bytes, 2 * bytes);
    QCOMPARE(again.getReception().getTotals().frames, 2 * 1737U);
    QCOMPARE(never.size(), 0);
    again.stop();
}

void tst_session::playback_isThereForFilesInAWindow()
{
    Options options = recordingOptions();
    options.speed = 2.0;
    Session session;
    session.load(options);
    QSignalSpy changed(&session, &Session::playbackChanged);
    QVERIFY(!session.getPlayback());
    session.start(options);
    QCOMPARE(changed.size(), 1);
    QVERIFY(session.getPlayback());
    QCOMPARE(session.getPlayback()->getSpeed(), std::optional(2.0));
    QTRY_VERIFY(session.getPlayback()->getIndex().getLastTimeUs());
    session.stop();

    options.speed.reset();
    Session fast;
    fast.load(options);
    fast.start(options);
    QVERIFY(!fast.getPlayback()->getSpeed());

    options.report = Options::Report::Text;
    Session report;
    report.load(options);
    report.start(options);
    QVERIFY(!report.getPlayback());

    options = recordingOptions();
    options.source->text = QStringLiteral("missing");
    Session missing;
    missing.load(options);
    missing.start(options);
    QVERIFY(!missing.getPlayback());
}

void tst_session::start_again_forgetsTheFormerSource()
{
    Options refused = recordingOptions();
    refused.source = SourceAddress::parse(QStringLiteral("tcp://127.0.0.1:1")).address;
    Session session;
    session.load(refused);
    QSignalSpy states(&session, &Session::stateChanged);
    session.start(refused);
    QTRY_VERIFY(!states.isEmpty());

    session.start(recordingOptions());
    session.getPlayback()->pause();
    Options fast = recordingOptions();
    fast.speed.reset();
    QSignalSpy finished(&session, &Session::finished);
    session.start(fast);
    QTRY_COMPARE(finished.size(), 1);
    states.clear();
    QTest::qWait(600);
    QCOMPARE(states.size(), 0);
}

void tst_session::followedFile_isWatchedWhileItGrows()
{
    const QTemporaryDir folder;
    Options options = recordingOptions();
    const QByteArray recording = readFile(options.source->text);
    QFile growing(folder.filePath(QStringLiteral("growing.tlog")));
    QVERIFY(growing.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const qsizetype cut = 20'003;
    growing.write(recording.first(cut));
    options.source->text = growing.fileName();
    options.source->isFollowed = true;
    options.speed.reset();
    Session session;
    session.load(options);
    QSignalSpy finished(&session, &Session::finished);
    session.start(options);
    const Reception::Totals &totals = session.getReception().getTotals();
    QTRY_COMPARE(totals.bytes, quint64(cut));
    QVERIFY(session.getPlayback()->isPlaying());
    growing.write(recording.sliced(cut));
    QTRY_COMPARE(totals.frames, 1737U);
    QCOMPARE(totals.skippedBytes, 0U);
    QTRY_COMPARE(session.getPlayback()->getIndex().getIndexedBytes(), recording.size());
    QCOMPARE(session.getPlayback()->getPosition(), recording.size());
    QCOMPARE(finished.size(), 0);
    session.getPlayback()->seek(0);
    QTRY_COMPARE(totals.frames, 2 * 1737U);
}

void tst_session::followedFile_mayBeEmptyAtFirst()
{
    const QTemporaryDir folder;
    Options options = recordingOptions();
    const QByteArray recording = readFile(options.source->text);
    QFile growing(folder.filePath(QStringLiteral("growing.tlog")));
    QVERIFY(growing.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    options.source->text = growing.fileName();
    options.source->isFollowed = true;
    options.speed.reset();
    Session session;
    session.load(options);
    session.start(options);
    QTest::qWait(20);
    growing.write(recording);
    QTRY_COMPARE(session.getReception().getTotals().frames, 1737U);
    const FileIndex &index = session.getPlayback()->getIndex();
    QTRY_COMPARE(index.getIndexedBytes(), recording.size());
    QVERIFY(index.getFirstTimeUs());
    QCOMPARE(index.findOffset(0).offset, 0);
}

void tst_session::redirectedFile_hasNoPlayback()
{
    Options options = recordingOptions();
    options.source = SourceAddress::parse(QStringLiteral("-")).address;
    Session session;
    session.load(options);
    session.start(options);
    QVERIFY(!session.getPlayback());
    session.stop();
}

void tst_session::recording_hasTheBytesOfTheSource()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("recording"));
    Options options = recordingOptions();
    options.speed.reset();
    Session session;
    session.load(options);
    QCOMPARE(session.startRecording(path), QString());
    QSignalSpy finished(&session, &Session::finished);
    session.start(options);
    QVERIFY(finished.wait());
    QVERIFY(session.getRecorder().stop());
    QVERIFY(readFile(path) == readFile(options.source->text));
}

void tst_session::recording_toTheSourceItself_isRefused()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("copy.tlog"));
    Options options = recordingOptions();
    QVERIFY(QFile::copy(options.source->text, path));
    const QByteArray before = readFile(path);
    options.source->text = path;
    Session session;
    session.load(options);
    session.start(options);
    const QString same = folder.filePath(QStringLiteral("./copy.tlog"));
    QVERIFY(session.startRecording(same).contains(QStringLiteral("being read")));
    const QString link = folder.filePath(QStringLiteral("link.tlog"));
    QVERIFY(QFile::link(path, link));
    QVERIFY(session.startRecording(link).contains(QStringLiteral("being read")));
    const QString hardLink = folder.filePath(QStringLiteral("hard.tlog"));
    QCOMPARE(::link(qPrintable(path), qPrintable(hardLink)), 0);
    QVERIFY(session.startRecording(hardLink).contains(QStringLiteral("being read")));
    QVERIFY(!session.getRecorder().isRecording());
    QVERIFY(readFile(path) == before);
}

void tst_session::recording_failure_isInTheLog()
{
    const QString full = QStringLiteral("/dev/full");
    if (!QFile::exists(full))
        QSKIP("no /dev/full here");
    Options options = recordingOptions();
    options.speed.reset();
    Session session;
    session.load(options);
    QCOMPARE(session.startRecording(full), QString());
    QSignalSpy finished(&session, &Session::finished);
    session.start(options);
    QVERIFY(finished.wait());
    QTRY_VERIFY(!session.getRecorder().isRecording());
    QCOMPARE(session.getReception().getTotals().frames, 1737U);
    // The thread that writes tells of it before or after the end of the source.
    const auto entries = session.getReception().getEventLog()->getEntries();
    QVERIFY(std::any_of(entries.cbegin(), entries.cend(), [](const EventLog::Entry &entry) {
        return entry.event.getMessage().contains(QStringLiteral("the disk is full"));
    }));
}

CORVANE_TEST_MAIN(tst_session)
#include "tst_session.moc"
