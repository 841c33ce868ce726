#include "sourcereader.h"
#include "stdinsource.h"
#include "testcase.h"

#include <QTemporaryFile>

#include <fcntl.h>
#include <unistd.h>

#include <array>

using namespace corvane;

namespace {

/** Makes another descriptor the standard input for a while; -1 closes it. */
class StandardInput
{
public:
    explicit StandardInput(int descriptor)
    {
        if (descriptor < 0)
            ::close(STDIN_FILENO);
        else
            ::dup2(descriptor, STDIN_FILENO);
    }

    ~StandardInput()
    {
        if (original >= 0)
            ::dup2(original, STDIN_FILENO);
        ::close(original);
    }

private:
    int original = ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
};

} // namespace

class TestStdinSource : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void read_ofPipe();
    void read_ofRedirectedFile();
    void close_leavesStandardInputOpen();
    void open_ofFolder_fails();
    void open_whenClosed_fails();
};

void TestStdinSource::read_ofPipe()
{
    std::array<int, 2> ends = {-1, -1};
    QCOMPARE(::pipe2(ends.data(), O_CLOEXEC), 0);
    const StandardInput input(ends[0]);
    ::close(ends[0]);
    StdinSource source;
    test::SourceReader reader(source);
    source.open();
    QVERIFY(source.isLive());
    QCOMPARE(source.getName(), "standard input");
    QCOMPARE(::write(ends[1], "abc", 3), 3);
    QTRY_COMPARE(reader.bytes, "abc");
    ::close(ends[1]);
    QTRY_COMPARE(reader.events, QStringList({"opened", "finished"}));
    QVERIFY(!(::fcntl(STDIN_FILENO, F_GETFL) & O_NONBLOCK));
}

void TestStdinSource::read_ofRedirectedFile()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("from a file");
    file.seek(0);
    const StandardInput input(file.handle());
    StdinSource source;
    test::SourceReader reader(source);
    source.open();
    QCOMPARE(reader.bytes, "from a file");
    QCOMPARE(reader.events, QStringList({"opened", "finished"}));
    QVERIFY(!source.isLive());
}

void TestStdinSource::close_leavesStandardInputOpen()
{
    const int nothing = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    const StandardInput input(nothing);
    ::close(nothing);
    {
        StdinSource source;
        source.open();
        source.close();
    }
    QVERIFY(::fcntl(STDIN_FILENO, F_GETFD) >= 0);
}

void TestStdinSource::open_ofFolder_fails()
{
    const int folder = ::open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const StandardInput input(folder);
    ::close(folder);
    StdinSource source;
    test::SourceReader reader(source);
    source.open();
    QCOMPARE(reader.failure, "Cannot read standard input: it is a folder. Name a file.");
}

void TestStdinSource::open_whenClosed_fails()
{
    const StandardInput input(-1);
    StdinSource source;
    test::SourceReader reader(source);
    source.open();
    QCOMPARE(reader.events, QStringList({"failed"}));
    QCOMPARE(reader.failure,
             "Cannot read standard input: it is closed. Redirect a file or a pipe to it.");
}

CORVANE_TEST_MAIN(TestStdinSource)

#include "tst_stdinsource.moc"
