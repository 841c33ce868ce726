#include "linedecoder.h"
#include "memorysource.h"
#include "nothreads.h"
#include "recorder.h"
#include "streampump.h"
#include "testcase.h"

#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <csignal>

using namespace corvane;

namespace {

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

/** Bytes of every value, never the same twice in a row. */
QByteArray makeBytes(qsizetype count)
{
    QByteArray bytes(count, '\0');
    quint32 state = 1;
    for (char &byte : bytes) {
        state = state * 1664525 + 1013904223;
        byte = static_cast<char>(state >> 24);
    }
    return bytes;
}

/** While it lives, no file of the process can become longer than \a bytes. */
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limited{bytes, before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limited);
    }

    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before); }

private:
    rlimit before{};
};

} // namespace

class TestRecorder : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:

    void init()
    {
        TestCase::init();
        folder = std::make_unique<QTemporaryDir>();
        path = folder->filePath(QStringLiteral("recording.bin"));
    }

    void bytes_areThoseOfTheStream();
    void pump_isTapped();
    void secondRecording_overwritesTheFirst();
    void notRecording_takesNothing();
    void destructor_completesTheFile();
    void open_errors_data();
    void open_errors();
    void noThread_isTold();
    void fullDisk_endsTheRecordingAndSaysSo();
    void fullDisk_whileStopping_isTold();
    void fileLimit_saysHowMuchWasKept();
    void slowDisk_endsTheRecordingAndSaysSo();
    void failure_thenANewRecording();

private:
    std::unique_ptr<QTemporaryDir> folder;
    QString path;
};

void TestRecorder::bytes_areThoseOfTheStream()
{
    const QByteArray bytes = makeBytes(3'000'000);
    Recorder recorder;
    QVERIFY(recorder.start(path));
    QVERIFY(recorder.isRecording());
    QCOMPARE(recorder.getPath(), path);
    for (qsizetype at = 0, size = 1; at < bytes.size(); at += size, size = size * 2 % 65'537)
        recorder.write(QByteArrayView(bytes).sliced(at, std::min(size, bytes.size() - at)));
    QVERIFY(recorder.stop());
    QVERIFY(!recorder.isRecording());
    QVERIFY(readFile(path) == bytes);
    QCOMPARE(recorder.getBytesWritten(), quint64(bytes.size()));
}

void TestRecorder::pump_isTapped()
{
    test::MemorySource source;
    test::LineDecoder decoder;
    StreamPump pump(source, decoder);
    Recorder recorder;
    connect(&pump, &StreamPump::chunkRead, &recorder, &Recorder::write);
    QSignalSpy finished(&pump, &StreamPump::finished);
    pump.start();
    source.add("before\n");
    QTRY_COMPARE(decoder.frames.size(), 1);
    QVERIFY(recorder.start(path));
    const QByteArray bytes = makeBytes(200'000);
    source.add(bytes);
    source.end();
    QTRY_COMPARE(finished.size(), 1);
    QVERIFY(recorder.stop());
    QVERIFY(readFile(path) == bytes);
}

void TestRecorder::secondRecording_overwritesTheFirst()
{
    Recorder recorder;
    QVERIFY(recorder.start(path));
    recorder.write("a long one");
    QVERIFY(recorder.start(path));
    recorder.write("short");
    QVERIFY(recorder.stop());
    QCOMPARE(readFile(path), QByteArray("short"));
    QCOMPARE(recorder.getBytesWritten(), quint64(5));
}

void TestRecorder::notRecording_takesNothing()
{
    Recorder recorder;
    recorder.write("lost");
    QVERIFY(recorder.stop());
    QVERIFY(recorder.start(path));
    QVERIFY(recorder.stop());
    recorder.write("lost");
    QVERIFY(recorder.stop());
    QCOMPARE(readFile(path), QByteArray());
    QCOMPARE(recorder.getBytesWritten(), quint64(0));
}

void TestRecorder::destructor_completesTheFile()
{
    const QByteArray bytes = makeBytes(5'000'000);
    {
        Recorder recorder;
        QVERIFY(recorder.start(path));
        recorder.write(bytes);
    }
    QVERIFY(readFile(path) == bytes);
}

void TestRecorder::open_errors_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no folder") << "missing/file"
                               << "there is no such folder";
    QTest::newRow("folder") << "."
                            << "it is a folder";
    QTest::newRow("pipe") << "pipe"
                          << "it is no file";
}

void TestRecorder::open_errors()
{
    QFETCH(QString, name);
    QFETCH(QString, expected);
    ::mkfifo(QFile::encodeName(folder->filePath(QStringLiteral("pipe"))).constData(), 0600);
    Recorder recorder;
    QSignalSpy failed(&recorder, &Recorder::failed);
    QVERIFY(!recorder.start(folder->filePath(name)));
    QVERIFY(!recorder.isRecording());
    QVERIFY2(recorder.getErrorMessage().contains(expected), qPrintable(recorder.getErrorMessage()));
    recorder.write("lost");
    QCOMPARE(failed.size(), 0);
}

void TestRecorder::noThread_isTold()
{
    Recorder recorder;
    {
        const test::NoThreads noThreads;
        QVERIFY(!recorder.start(path));
    }
    QVERIFY(!recorder.isRecording());
    QVERIFY2(recorder.getErrorMessage().contains(path), qPrintable(recorder.getErrorMessage()));
    recorder.write("lost");
    QVERIFY(recorder.start(path));
    recorder.write("kept");
    QVERIFY(recorder.stop());
    QCOMPARE(readFile(path), QByteArray("kept"));
}

void TestRecorder::fullDisk_endsTheRecordingAndSaysSo()
{
    const QString full = QStringLiteral("/dev/full");
    if (!QFileInfo::exists(full))
        QSKIP("no /dev/full here");
    Recorder recorder;
    QSignalSpy failed(&recorder, &Recorder::failed);
    QVERIFY(recorder.start(full));
    recorder.write("bytes");
    QTRY_COMPARE(failed.size(), 1);
    QVERIFY(!recorder.isRecording());
    QCOMPARE(failed.first().first().toString(),
             QStringLiteral("Recording to \"/dev/full\" has stopped: the disk is full. The first "
                            "0 bytes were kept; watching goes on."));
    recorder.write("more");
    QVERIFY(!recorder.stop());
    QCOMPARE(failed.size(), 1);
}

void TestRecorder::fullDisk_whileStopping_isTold()
{
    const QString full = QStringLiteral("/dev/full");
    if (!QFileInfo::exists(full))
        QSKIP("no /dev/full here");
    Recorder recorder;
    QSignalSpy failed(&recorder, &Recorder::failed);
    QVERIFY(recorder.start(full));
    recorder.write("bytes");
    QVERIFY(!recorder.stop());
    QVERIFY(recorder.getErrorMessage().contains(QStringLiteral("the disk is full")));
    QCOMPARE(failed.size(), 1);
    QTest::qWait(10);
    QCOMPARE(failed.size(), 1);
}

void TestRecorder::fileLimit_saysHowMuchWasKept()
{
    const QByteArray bytes = makeBytes(300'000);
    Recorder recorder;
    QSignalSpy failed(&recorder, &Recorder::failed);
    {
        const FileSizeLimit limit(100'000);
        QVERIFY(recorder.start(path));
        recorder.write(bytes);
        QTRY_COMPARE(failed.size(), 1);
    }
    const QString message = failed.first().first().toString();
    QVERIFY2(message.contains(QLocale().toString(100'000)), qPrintable(message));
    QCOMPARE(recorder.getBytesWritten(), quint64(100'000));
    QVERIFY(readFile(path) == bytes.first(100'000));
}

void TestRecorder::slowDisk_endsTheRecordingAndSaysSo()
{
    Recorder recorder;
    QSignalSpy failed(&recorder, &Recorder::failed);
    QVERIFY(recorder.start(path));
    recorder.write("kept");
    recorder.write(QByteArray(Recorder::maximumWaitingBytes + 1, 'x'));
    recorder.write("lost");
    QTRY_COMPARE(failed.size(), 1);
    QVERIFY(recorder.getErrorMessage().contains(QStringLiteral("slower than the stream")));
    QCOMPARE(readFile(path), QByteArray("kept"));
}

void TestRecorder::failure_thenANewRecording()
{
    Recorder recorder;
    QSignalSpy failed(&recorder, &Recorder::failed);
    {
        const FileSizeLimit limit(4);
        QVERIFY(recorder.start(path));
        recorder.write("too long");
        QVERIFY(!recorder.stop());
    }
    QVERIFY(recorder.start(path));
    QCOMPARE(recorder.getErrorMessage(), QString());
    recorder.write("good");
    QTest::qWait(10);
    QVERIFY(recorder.stop());
    QCOMPARE(readFile(path), QByteArray("good"));
    QCOMPARE(failed.size(), 1);
}

CORVANE_TEST_MAIN(TestRecorder)

#include "tst_recorder.moc"
