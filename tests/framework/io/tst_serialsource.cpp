#include "serialsource.h"
#include "sourcereader.h"
#include "testcase.h"

#include <QFile>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>

using namespace corvane;

namespace {

/** The far end of a serial line that has no wire. */
class Line
{
public:
    Line()
    {
        farEnd = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
        if (farEnd >= 0 && ::grantpt(farEnd) == 0 && ::unlockpt(farEnd) == 0)
            device = QFile::decodeName(::ptsname(farEnd));
    }

    ~Line() { unplug(); }

    bool exists() const { return !device.isEmpty(); }

    ssize_t write(const QByteArray &bytes) const
    {
        return ::write(farEnd, bytes.constData(), size_t(bytes.size()));
    }

    void unplug()
    {
        if (farEnd >= 0)
            ::close(std::exchange(farEnd, -1));
    }

    speed_t getSpeed() const
    {
        termios settings{};
        ::tcgetattr(farEnd, &settings);
        return ::cfgetispeed(&settings);
    }

    QString device;

private:
    int farEnd = -1;
};

} // namespace

#define CORVANE_LINE(line)                                                                         \
    Line line;                                                                                     \
    if (!(line).exists())                                                                          \
    QSKIP("this system has no pseudo terminals")

class TestSerialSource : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void read_givesBytesUnchanged();
    void read_whilePaused_keepsLittle();
    void open_setsTheBaudRate();
    void read_afterUnplugging_fails();
    void close_whileOpen_emitsNothing();
    void open_ofMissingDevice_fails();
};

void TestSerialSource::read_givesBytesUnchanged()
{
    CORVANE_LINE(line);
    SerialSource source(line.device, 57'600);
    test::SourceReader reader(source);
    source.open();
    QCOMPARE(reader.events, QStringList({"opened"}));
    QByteArray all;
    for (int i = 0; i < 256; ++i)
        all.append(char(i));
    QCOMPARE(line.write(all), all.size());
    QTRY_COMPARE(reader.bytes, all);
    QCOMPARE(line.write("\n\r\x03\x04"), 4);
    QTRY_COMPARE(reader.bytes, all + "\n\r\x03\x04");
    QVERIFY(source.isLive());
    QCOMPARE(source.getName(), "serial:" + line.device + "?baud=57600");
}

void TestSerialSource::read_whilePaused_keepsLittle()
{
    CORVANE_LINE(line);
    SerialSource source(line.device, 115'200);
    test::SourceReader reader(source);
    reader.setPaused(true);
    source.open();
    qint64 written = 0;
    for (int round = 0; round < 1000; ++round) {
        written += std::max<ssize_t>(line.write(QByteArray(1024, 'x')), 0);
        QCoreApplication::processEvents();
    }
    QVERIFY2(written <= 256 * 1024, qPrintable(QString::number(written)));
    QVERIFY(written > 0);
    reader.setPaused(false);
    QTRY_COMPARE(reader.bytes.size(), written);
}

void TestSerialSource::open_setsTheBaudRate()
{
    CORVANE_LINE(line);
    SerialSource source(line.device, 230'400);
    test::SourceReader reader(source);
    source.open();
    QCOMPARE(reader.events, QStringList({"opened"}));
    QCOMPARE(line.getSpeed(), speed_t(B230400));
}

void TestSerialSource::read_afterUnplugging_fails()
{
    CORVANE_LINE(line);
    SerialSource source(line.device, 57'600);
    test::SourceReader reader(source);
    source.open();
    line.write("last");
    QTRY_COMPARE(reader.bytes, "last");
    line.unplug();
    QTRY_COMPARE(reader.events, QStringList({"opened", "failed"}));
    QCOMPARE(reader.failure, "Reading " + source.getName()
                                 + " failed: the device is gone. Plug it in, and open it again.");
}

void TestSerialSource::close_whileOpen_emitsNothing()
{
    CORVANE_LINE(line);
    SerialSource source(line.device, 57'600);
    test::SourceReader reader(source);
    source.open();
    source.close();
    line.write("late");
    QTest::qWait(20);
    QCOMPARE(reader.events, QStringList({"opened"}));
    QCOMPARE(reader.bytes, "");
    source.open();
    line.write("again");
    QTRY_VERIFY(reader.bytes.endsWith("again"));
}

void TestSerialSource::open_ofMissingDevice_fails()
{
    SerialSource source(QStringLiteral("/dev/no-such-device"), 57'600);
    test::SourceReader reader(source);
    source.open();
    QCOMPARE(reader.events, QStringList({"failed"}));
    QCOMPARE(reader.failure,
             "Cannot open serial:/dev/no-such-device?baud=57600: there is no such device. Check "
             "the name, and whether it is plugged in.");
}

CORVANE_TEST_MAIN(TestSerialSource)

#include "tst_serialsource.moc"
