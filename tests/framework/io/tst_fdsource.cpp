#include "fdsource.h"
#include "sourcereader.h"
#include "testcase.h"

#include <QTemporaryFile>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

using namespace corvane;

class TestFdSource : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void read_ofPipe_followsTheWriter();
    void read_ofBlockingPipe_neverWaits();
    void read_whilePaused_leavesBytesInThePipe();
    void read_ofRegularFile_startsWhereTheDescriptorIs();
    void read_ofSocket();
    void read_ofTerminal_endsWhenItIsClosed();
    void readyRead_comesOncePerEmptyRead();
    void open_ofClosedDescriptor_fails();
    void open_twice_fails();
    void destruction_closesTheDescriptor();
};

namespace {

/** A pipe whose ends are closed at the end, unless somebody else does. */
struct Pipe
{
    Pipe() { isGood = ::pipe2(ends.data(), O_CLOEXEC) == 0; }

    ~Pipe() { closeWriter(); }

    int getReader() const { return ends[0]; }

    void write(const QByteArray &bytes) const
    {
        QCOMPARE(::write(ends[1], bytes.constData(), size_t(bytes.size())), bytes.size());
    }

    void closeWriter()
    {
        if (ends[1] >= 0)
            ::close(std::exchange(ends[1], -1));
    }

    std::array<int, 2> ends = {-1, -1};
    bool isGood = false;
};

} // namespace

void TestFdSource::read_ofPipe_followsTheWriter()
{
    Pipe pipe;
    FdSource source(pipe.getReader(), QStringLiteral("a pipe"));
    test::SourceReader reader(source);
    source.open();
    QVERIFY(source.isLive());
    QCOMPARE(source.getName(), "a pipe");
    QVERIFY(!source.getSize());
    QVERIFY(!source.getPosition());
    pipe.write("one");
    QTRY_COMPARE(reader.bytes, "one");
    pipe.write("two");
    QTRY_COMPARE(reader.bytes, "onetwo");
    pipe.closeWriter();
    QTRY_COMPARE(reader.events, QStringList({"opened", "finished"}));
}

void TestFdSource::read_ofBlockingPipe_neverWaits()
{
    Pipe pipe;
    QVERIFY(!(::fcntl(pipe.getReader(), F_GETFL) & O_NONBLOCK));
    FdSource source(pipe.getReader(), QStringLiteral("a pipe"));
    source.open();
    char data[4];
    QCOMPARE(source.read(data, sizeof data), 0);
    QVERIFY(!(::fcntl(pipe.getReader(), F_GETFL) & O_NONBLOCK));
}

void TestFdSource::read_whilePaused_leavesBytesInThePipe()
{
    Pipe pipe;
    ::fcntl(pipe.ends[1], F_SETFL, O_NONBLOCK);
    FdSource source(pipe.getReader(), QStringLiteral("a pipe"));
    test::SourceReader reader(source);
    source.open();
    reader.setPaused(true);
    const QByteArray block(4096, 'x');
    qint64 written = 0;
    for (int i = 0; i < 1000; ++i) {
        const ssize_t count = ::write(pipe.ends[1], block.constData(), size_t(block.size()));
        written += std::max<ssize_t>(count, 0);
        QCoreApplication::processEvents();
    }
    QVERIFY2(written <= 1024 * 1024, qPrintable(QString::number(written)));
    QCOMPARE(reader.bytes.size(), 0);
    reader.setPaused(false);
    pipe.closeWriter();
    QTRY_COMPARE(reader.events, QStringList({"opened", "finished"}));
    QCOMPARE(reader.bytes.size(), written);
}

void TestFdSource::read_ofRegularFile_startsWhereTheDescriptorIs()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("0123456789");
    file.flush();
    const int descriptor = ::dup(file.handle());
    QCOMPARE(::lseek(descriptor, 3, SEEK_SET), 3);
    FdSource source(descriptor, QStringLiteral("a file"));
    test::SourceReader reader(source);
    reader.setReadSize(4);
    source.open();
    QCOMPARE(reader.bytes, "3456789");
    QCOMPARE(reader.events, QStringList({"opened", "finished"}));
    QVERIFY(!source.isLive());
    QCOMPARE(source.getSize(), 10);
}

void TestFdSource::read_ofSocket()
{
    std::array<int, 2> ends = {-1, -1};
    QCOMPARE(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()), 0);
    FdSource source(ends[0], QStringLiteral("a socket"));
    test::SourceReader reader(source);
    source.open();
    QCOMPARE(::write(ends[1], "abc", 3), 3);
    QTRY_COMPARE(reader.bytes, "abc");
    ::close(ends[1]);
    QTRY_COMPARE(reader.events, QStringList({"opened", "finished"}));
}

void TestFdSource::read_ofTerminal_endsWhenItIsClosed()
{
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    QVERIFY(terminal >= 0);
    QCOMPARE(::grantpt(terminal), 0);
    QCOMPARE(::unlockpt(terminal), 0);
    const int user = ::open(::ptsname(terminal), O_RDWR | O_NOCTTY | O_CLOEXEC);
    FdSource source(user, QStringLiteral("a terminal"));
    test::SourceReader reader(source);
    source.open();
    QVERIFY(source.isLive());
    QCOMPARE(::write(terminal, "typed\n", 6), 6);
    QTRY_COMPARE(reader.bytes, "typed\n");
    ::close(terminal);
    QTRY_COMPARE(reader.events, QStringList({"opened", "finished"}));
}

void TestFdSource::readyRead_comesOncePerEmptyRead()
{
    Pipe pipe;
    FdSource source(pipe.getReader(), QStringLiteral("a pipe"));
    int readyCount = 0;
    connect(&source, &ByteSource::readyRead, this, [&readyCount] { ++readyCount; });
    source.open();
    char data[4];
    QCOMPARE(source.read(data, sizeof data), 0);
    pipe.write("abc");
    QTRY_COMPARE(readyCount, 1);
    pipe.write("def");
    QTest::qWait(20);
    QCOMPARE(readyCount, 1);
    QCOMPARE(source.read(data, sizeof data), 4);
    QCOMPARE(source.read(data, sizeof data), 2);
    QTest::qWait(20);
    QCOMPARE(readyCount, 1);
}

void TestFdSource::open_ofClosedDescriptor_fails()
{
    Pipe pipe;
    ::close(pipe.getReader());
    FdSource source(pipe.getReader(), QStringLiteral("a pipe"));
    test::SourceReader reader(source);
    source.open();
    QCOMPARE(reader.events, QStringList({"failed"}));
    QCOMPARE(reader.failure, "Cannot read a pipe: Bad file descriptor.");
}

void TestFdSource::open_twice_fails()
{
    Pipe pipe;
    FdSource source(pipe.getReader(), QStringLiteral("a pipe"));
    test::SourceReader reader(source);
    source.open();
    source.open();
    QCOMPARE(reader.events, QStringList({"opened", "failed"}));
}

void TestFdSource::destruction_closesTheDescriptor()
{
    Pipe pipe;
    {
        FdSource source(pipe.getReader(), QStringLiteral("a pipe"));
        source.open();
    }
    QCOMPARE(::fcntl(pipe.getReader(), F_GETFD), -1);
}

CORVANE_TEST_MAIN(TestFdSource)

#include "tst_fdsource.moc"
