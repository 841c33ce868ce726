#include "fileindex.h"
#include "nothreads.h"
#include "testcase.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>
#include <new>

using namespace corvane;

namespace {

/** Every line is a frame; a number at its beginning is its time. "-" begins a bad line. */
class LineScanner : public StreamScanner
{
public:
    void append(QByteArrayView bytes) override
    {
        buffer.remove(0, position);
        bufferOffset += position;
        position = 0;
        buffer.append(bytes);
    }

    std::optional<Place> find(qint64 offset) override
    {
        while (true) {
            const qsizetype end = buffer.indexOf('\n', position);
            if (end < 0)
                return std::nullopt;
            const QByteArray line = buffer.mid(position, end - position);
            bool hasTime = false;
            const qint64 timeUs = line.split(' ').first().toLongLong(&hasTime);
            const auto time = hasTime ? std::optional(timeUs) : std::nullopt;
            if (bufferOffset + position >= offset && !line.startsWith('-'))
                return Place{bufferOffset + position, time};
            latestTimeUs = time;
            position = end + 1;
        }
    }

    std::optional<qint64> getLatestTimeUs() const override { return latestTimeUs; }

private:
    QByteArray buffer;
    qsizetype position = 0;
    qint64 bufferOffset = 0;
    std::optional<qint64> latestTimeUs;
};

/** Lines of 10 bytes with the times \a first, \a first + 1, ... */
QByteArray timedLines(int first, int count)
{
    QByteArray lines;
    for (int i = 0; i < count; ++i)
        lines += QByteArray::number(first + i).leftJustified(9, ' ') + '\n';
    return lines;
}

} // namespace

class TestFileIndex : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:

    void init()
    {
        TestCase::init();
        folder = std::make_unique<QTemporaryDir>();
        path = folder->filePath(QStringLiteral("recording"));
    }

    void places_standAtTheirDistance();
    void places_areThinnedOut();
    void offset_betweenPlaces();
    void time_betweenPlaces();
    void time_thatGoesBack();
    void recording_withoutTimes();
    void recording_withoutFrames();
    void emptyFile_grows();
    void file_growsAfterItsEnd();
    void file_thatBecomesShorter();
    void missingFile_fails();
    void noThread_fails();
    void noMemory_fails();
    void cancel_keepsWhatWasFound();
    void destructor_endsTheWork();
    void start_again();

private:
    void write(const QByteArray &bytes, QIODevice::OpenMode mode = QIODevice::WriteOnly) const
    {
        QFile file(path);
        QVERIFY(file.open(mode));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    void run(FileIndex &index) const
    {
        QSignalSpy finished(&index, &FileIndex::finished);
        index.start(path, std::make_unique<LineScanner>());
        QTRY_COMPARE(finished.size(), 1);
        QVERIFY(!index.isRunning());
    }

    std::unique_ptr<QTemporaryDir> folder;
    QString path;
};

void TestFileIndex::places_standAtTheirDistance()
{
    write(timedLines(1000, 100'000));
    FileIndex index;
    run(index);
    // Every 64 KiB, on to the next line.
    QCOMPARE(index.getPlaceCount(), size_t(16));
    QCOMPARE(index.findOffset(65'539).offset, 0);
    QCOMPARE(index.findOffset(65'540).offset, 65'540);
    QCOMPARE(index.findOffset(65'540).timeUs, std::optional<qint64>(1000 + 6554));
    QCOMPARE(index.getIndexedBytes(), 1'000'000);
    QCOMPARE(index.getFileSize(), 1'000'000);
    QCOMPARE(index.getFirstTimeUs(), std::optional<qint64>(1000));
    QCOMPARE(index.getLastTimeUs(), std::optional<qint64>(100'999));
}

void TestFileIndex::places_areThinnedOut()
{
    write(timedLines(0, 100'000));
    FileIndex index({100, 1000});
    run(index);
    QVERIFY(index.getPlaceCount() <= 1000);
    QVERIFY(index.getPlaceCount() >= 500);
    // 100 bytes have become 1600, from one end to the other.
    for (const qint64 offset : {0, 300'000, 600'000, 998'000}) {
        const FileIndex::Place place = index.findOffset(offset);
        QVERIFY(offset - place.offset < 1700);
        QCOMPARE(place.timeUs, std::optional(place.offset / 10));
    }
}

void TestFileIndex::offset_betweenPlaces()
{
    write("-bad\n" + timedLines(7, 3) + "-bad\n");
    FileIndex index({1, 100});
    run(index);
    QCOMPARE(index.getPlaceCount(), size_t(3));
    QCOMPARE(index.findOffset(-5).offset, 0);
    QCOMPARE(index.findOffset(4).offset, 0);
    QVERIFY(!index.findOffset(4).timeUs);
    QCOMPARE(index.findOffset(5).offset, 5);
    QCOMPARE(index.findOffset(14).offset, 5);
    QCOMPARE(index.findOffset(15).offset, 15);
    QCOMPARE(index.findOffset(1'000'000).offset, 25);
}

void TestFileIndex::time_betweenPlaces()
{
    write("10\n20\n20\n30\n");
    FileIndex index({1, 100});
    run(index);
    QCOMPARE(index.findTime(9)->offset, 0);
    QCOMPARE(index.findTime(10)->offset, 0);
    QCOMPARE(index.findTime(19)->offset, 0);
    QCOMPARE(index.findTime(20)->offset, 6);
    QCOMPARE(index.findTime(29)->offset, 6);
    QCOMPARE(index.findTime(99)->offset, 9);
}

void TestFileIndex::time_thatGoesBack()
{
    write("10\n20\n5\n15\n25\n");
    FileIndex index({1, 100});
    run(index);
    QCOMPARE(index.findTime(12)->offset, 0);
    QCOMPARE(index.findTime(22)->offset, 8);
}

void TestFileIndex::recording_withoutTimes()
{
    write("a\nb\n");
    FileIndex index({1, 100});
    run(index);
    QCOMPARE(index.getPlaceCount(), size_t(2));
    QVERIFY(!index.findTime(0));
    QVERIFY(!index.getFirstTimeUs());
    QVERIFY(!index.getLastTimeUs());
    QCOMPARE(index.findOffset(3).offset, 2);
}

void TestFileIndex::recording_withoutFrames()
{
    write(QByteArray(100'000, '-'));
    FileIndex index;
    run(index);
    QCOMPARE(index.getPlaceCount(), size_t(0));
    QCOMPARE(index.findOffset(50'000).offset, 0);
    QVERIFY(!index.findTime(0));
    QCOMPARE(index.getIndexedBytes(), 100'000);
}

void TestFileIndex::emptyFile_grows()
{
    write({});
    FileIndex index({1, 100});
    run(index);
    QCOMPARE(index.getFileSize(), 0);
    write("1\n2\n", QIODevice::Append);
    QTRY_COMPARE(index.getPlaceCount(), size_t(2));
}

void TestFileIndex::file_growsAfterItsEnd()
{
    write("1\n2");
    FileIndex index({1, 100});
    run(index);
    QCOMPARE(index.getPlaceCount(), size_t(1));
    QSignalSpy finished(&index, &FileIndex::finished);
    write("0\n30\n", QIODevice::Append);
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(index.getPlaceCount(), size_t(3));
    QCOMPARE(index.getLastTimeUs(), std::optional<qint64>(30));
    QCOMPARE(index.getFileSize(), 8);
}

void TestFileIndex::file_thatBecomesShorter()
{
    write(timedLines(0, 10));
    FileIndex index({1, 100});
    run(index);
    write("1\n");
    QTest::qWait(600);
    QVERIFY(!index.isRunning());
    QCOMPARE(index.getPlaceCount(), size_t(10));
}

void TestFileIndex::missingFile_fails()
{
    FileIndex index;
    QSignalSpy failed(&index, &FileIndex::failed);
    index.start(path, std::make_unique<LineScanner>());
    QTRY_COMPARE(failed.size(), 1);
    QVERIFY(failed.first().first().toString().contains(path));
    QVERIFY(!index.isRunning());
}

void TestFileIndex::noThread_fails()
{
    write(timedLines(0, 10));
    FileIndex index;
    QSignalSpy failed(&index, &FileIndex::failed);
    {
        const test::NoThreads noThreads;
        index.start(path, std::make_unique<LineScanner>());
    }
    QVERIFY(!index.isRunning());
    QTRY_COMPARE(failed.size(), 1);
    QVERIFY(failed.first().first().toString().contains(path));
}

void TestFileIndex::noMemory_fails()
{
    class GreedyScanner : public LineScanner
    {
    public:
        void append(QByteArrayView) override { throw std::bad_alloc(); }
    };

    write(timedLines(0, 10));
    FileIndex index;
    QSignalSpy failed(&index, &FileIndex::failed);
    index.start(path, std::make_unique<GreedyScanner>());
    QTRY_COMPARE(failed.size(), 1);
    QVERIFY(failed.first().first().toString().contains(path));
    QVERIFY(!index.isRunning());
}

void TestFileIndex::cancel_keepsWhatWasFound()
{
    write(timedLines(0, 400'000));
    FileIndex index({1, 1'000'000});
    QSignalSpy finished(&index, &FileIndex::finished);
    QSignalSpy progressed(&index, &FileIndex::progressed);
    index.start(path, std::make_unique<LineScanner>());
    QVERIFY(index.isRunning());
    QTRY_VERIFY(index.getPlaceCount() > 0);
    index.cancel();
    QVERIFY(!index.isRunning());
    const qint64 bytes = index.getIndexedBytes();
    QVERIFY(bytes > 0);
    QTest::qWait(20);
    QCOMPARE(index.getIndexedBytes(), bytes);
    QVERIFY(index.getPlaceCount() <= size_t(bytes / 10));
}

void TestFileIndex::destructor_endsTheWork()
{
    write(timedLines(0, 400'000));
    FileIndex index;
    index.start(path, std::make_unique<LineScanner>());
}

void TestFileIndex::start_again()
{
    write("1\n2\n3\n");
    FileIndex index({1, 100});
    run(index);
    write("7\n");
    run(index);
    QCOMPARE(index.getPlaceCount(), size_t(1));
    QCOMPARE(index.getFirstTimeUs(), std::optional<qint64>(7));
}

CORVANE_TEST_MAIN(TestFileIndex)

#include "tst_fileindex.moc"
