#include "filesource.h"
#include "sourcereader.h"
#include "testcase.h"

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace corvane;

namespace {

constexpr uid_t otherUser = 65534;

/** Root may read everything, so it becomes somebody else for a while. */
class OrdinaryUser
{
public:
    OrdinaryUser()
    {
        if (wasRoot)
            changed = ::seteuid(otherUser) == 0;
    }

    ~OrdinaryUser()
    {
        if (wasRoot && changed)
            changed = ::seteuid(0) != 0;
    }

private:
    bool wasRoot = ::geteuid() == 0;
    bool changed = false;
};

} // namespace

class TestFileSource : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void read_givesTheWholeFile();
    void read_afterGrowing_givesThePresentEnd();
    void sizeAndPosition_follow();
    void open_again_startsAtTheBeginning();
    void close_endsWithoutSignals();
    void open_withoutFile_fails_data();
    void open_withoutFile_fails();
    void open_withoutPermission_fails();
    void open_ofNamedPipe_waitsForAWriter();
    void followedFile_hasNoEnd();
    void followedFile_thatBecomesShorter_fails();
    void seek_goesAnywhere();
    void seek_afterTheEnd();
    void seek_isRefusedElsewhere();

private:
    QString write(const QString &name, const QByteArray &bytes, bool append = false)
    {
        QFile file(folder.filePath(name));
        if (!file.open(append ? QIODevice::Append : QIODevice::WriteOnly))
            return {};
        file.write(bytes);
        return file.fileName();
    }

    QTemporaryDir folder;
};

void TestFileSource::read_givesTheWholeFile()
{
    const QByteArray content(300'000, 'x');
    FileSource source(write(QStringLiteral("whole"), content));
    test::SourceReader reader(source);
    source.open();
    QCOMPARE(reader.events, QStringList({"opened", "finished"}));
    QCOMPARE(reader.bytes, content);
    QVERIFY(source.isAtEnd());
    QVERIFY(!source.isLive());
    QVERIFY(source.getName().endsWith("/whole"));
    QVERIFY(!source.getDroppedCount());
}

void TestFileSource::read_afterGrowing_givesThePresentEnd()
{
    FileSource source(write(QStringLiteral("growing"), "first "));
    test::SourceReader reader(source);
    reader.setPaused(true);
    source.open();
    char data[100];
    QCOMPARE(source.read(data, sizeof data), 6);
    write(QStringLiteral("growing"), "second", true);
    reader.setPaused(false);
    QCOMPARE(reader.bytes, "second");
    QCOMPARE(reader.events, QStringList({"opened", "finished"}));
}

void TestFileSource::sizeAndPosition_follow()
{
    FileSource source(write(QStringLiteral("sized"), "0123456789"));
    QVERIFY(!source.getSize());
    source.open();
    QCOMPARE(source.getSize(), 10);
    QCOMPARE(source.getPosition(), 0);
    char data[4];
    QCOMPARE(source.read(data, sizeof data), 4);
    QCOMPARE(source.getPosition(), 4);
    write(QStringLiteral("sized"), "ab", true);
    QCOMPARE(source.getSize(), 12);
    source.close();
    QVERIFY(!source.getPosition());
}

void TestFileSource::open_again_startsAtTheBeginning()
{
    FileSource source(write(QStringLiteral("again"), "abc"));
    test::SourceReader reader(source);
    source.open();
    source.open();
    QCOMPARE(reader.bytes, "abcabc");
    QCOMPARE(reader.events, QStringList({"opened", "finished", "opened", "finished"}));
}

void TestFileSource::close_endsWithoutSignals()
{
    FileSource source(write(QStringLiteral("closed"), "abc"));
    test::SourceReader reader(source);
    reader.setPaused(true);
    source.open();
    QVERIFY(!source.isAtEnd());
    source.close();
    QVERIFY(source.isAtEnd());
    char data[4];
    QCOMPARE(source.read(data, sizeof data), -1);
    QCOMPARE(reader.events, QStringList({"opened"}));
}

void TestFileSource::open_withoutFile_fails_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("message");
    const QString missing = folder.filePath(QStringLiteral("missing"));
    QTest::newRow("missing") << missing
                             << "Cannot open \"" + missing
                                    + "\": there is no such file. Check the path.";
    const QString below = write(QStringLiteral("file"), "x") + "/below";
    QTest::newRow("file as folder")
        << below << "Cannot open \"" + below + "\": there is no such file. Check the path.";
    QTest::newRow("folder") << folder.path()
                            << "Cannot open \"" + folder.path()
                                   + "\": it is a folder. Name a file in it.";
}

void TestFileSource::open_withoutFile_fails()
{
    QFETCH(QString, path);
    QFETCH(QString, message);
    FileSource source(path);
    test::SourceReader reader(source);
    source.open();
    QCOMPARE(reader.events, QStringList({"failed"}));
    QCOMPARE(reader.failure, message);
    QCOMPARE(source.getErrorMessage(), message);
    char data[4];
    QCOMPARE(source.read(data, sizeof data), -1);
    QCOMPARE(reader.events.size(), 1);
}

void TestFileSource::open_withoutPermission_fails()
{
    const QString path = write(QStringLiteral("secret"), "x");
    QVERIFY(QFile::setPermissions(path, {}));
    FileSource source(path);
    test::SourceReader reader(source);
    {
        const OrdinaryUser user;
        source.open();
    }
    QCOMPARE(reader.events, QStringList({"failed"}));
    QVERIFY2(reader.failure.contains("no permission to read it"), qPrintable(reader.failure));
}

void TestFileSource::open_ofNamedPipe_waitsForAWriter()
{
    const QByteArray path = QFile::encodeName(folder.filePath(QStringLiteral("pipe")));
    QCOMPARE(::mkfifo(path.constData(), 0600), 0);
    FileSource source(QFile::decodeName(path));
    test::SourceReader reader(source);
    source.open();
    QTest::qWait(20);
    QCOMPARE(reader.events, QStringList({"opened"}));
    QVERIFY(source.isLive());
    const int writer = ::open(path.constData(), O_WRONLY);
    QCOMPARE(::write(writer, "hello", 5), 5);
    QTRY_COMPARE(reader.bytes, "hello");
    ::close(writer);
    QTRY_COMPARE(reader.events, QStringList({"opened", "finished"}));
}

void TestFileSource::followedFile_hasNoEnd()
{
    const QString path = write("grows", "one ");
    FileSource source(path);
    source.setFollowing(true);
    test::SourceReader reader(source);
    source.open();
    QTRY_COMPARE(reader.bytes, QByteArray("one "));
    QTest::qWait(50);
    write("grows", "two ", true);
    QTRY_COMPARE(reader.bytes, QByteArray("one two "));
    write("grows", "three", true);
    QTRY_COMPARE(reader.bytes, QByteArray("one two three"));
    QCOMPARE(reader.events, QStringList({"opened"}));
    source.close();
    write("grows", "four", true);
    QTest::qWait(150);
    QCOMPARE(reader.bytes, QByteArray("one two three"));
}

void TestFileSource::followedFile_thatBecomesShorter_fails()
{
    const QString path = write("shrinks", "a long text");
    FileSource source(path);
    source.setFollowing(true);
    test::SourceReader reader(source);
    source.open();
    QTRY_COMPARE(reader.bytes, QByteArray("a long text"));
    write("shrinks", "short");
    QTRY_COMPARE(reader.events, QStringList({"opened", "failed"}));
    QVERIFY(reader.failure.contains("shorter"));
}

void TestFileSource::seek_goesAnywhere()
{
    FileSource source(write("seek", "0123456789"));
    QVERIFY(!source.seek(1));
    source.open();
    char data[4];
    QVERIFY(source.seek(6));
    QCOMPARE(source.getPosition(), std::optional<qint64>(6));
    QCOMPARE(source.read(data, 3), 3);
    QCOMPARE(QByteArray(data, 3), QByteArray("678"));
    QVERIFY(source.seek(0));
    QCOMPARE(source.read(data, 3), 3);
    QCOMPARE(QByteArray(data, 3), QByteArray("012"));
    QVERIFY(source.seek(100));
    QCOMPARE(source.read(data, 3), -1);
    QVERIFY(!source.seek(-1));
}

void TestFileSource::seek_afterTheEnd()
{
    FileSource source(write("seek", "0123456789"));
    test::SourceReader reader(source);
    source.open();
    QTRY_COMPARE(reader.events, QStringList({"opened", "finished"}));
    QVERIFY(source.isAtEnd());
    QVERIFY(source.seek(8));
    QVERIFY(!source.isAtEnd());
    char data[4];
    QCOMPARE(source.read(data, 4), 2);
    QCOMPARE(source.read(data, 4), -1);
    QCOMPARE(reader.events, QStringList({"opened", "finished", "finished"}));
    source.close();
    QVERIFY(!source.seek(0));
}

void TestFileSource::seek_isRefusedElsewhere()
{
    const QString path = folder.filePath("seekpipe");
    QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    FileSource source(path);
    source.open();
    QVERIFY(!source.seek(0));
}

CORVANE_TEST_MAIN(TestFileSource)

#include "tst_filesource.moc"
