#include "sourceaddress.h"
#include "testcase.h"

using namespace corvane;

namespace {

/** An address as one line of text. */
QString print(const SourceAddress &address)
{
    using Kind = SourceAddress::Kind;
    const QString end = QStringLiteral("[%1] %2").arg(address.host).arg(address.port);
    switch (address.kind) {
    case Kind::File:
        return "file " + address.text;
    case Kind::StandardInput:
        return QStringLiteral("standard input");
    case Kind::TcpClient:
        return "tcp " + end;
    case Kind::TcpListener:
        return "tcp-listen " + end;
    case Kind::Udp:
        return "udp " + end;
    case Kind::Serial:
        return QStringLiteral("serial %1 %2").arg(address.device).arg(address.baud);
    case Kind::Program:
        return "exec " + address.command;
    }
    return {};
}

} // namespace

class TestSourceAddress : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data();
    void parse();
    void parse_ofBadText_data();
    void parse_ofBadText();
    void createSource_data();
    void createSource();
};

void TestSourceAddress::parse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("address");
    const auto row = [](const char *text, const char *address) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(address);
    };
    row("flight.tlog", "file flight.tlog");
    row("/data/flight 1.tlog", "file /data/flight 1.tlog");
    row("./tcp://odd", "file ./tcp://odd");
    row("./-", "file ./-");
    row("a:b", "file a:b");
    row("12:30.tlog", "file 12:30.tlog");
    row("dir/udp://x", "file dir/udp://x");
    row("-", "standard input");
    row("tcp://localhost:5760", "tcp [localhost] 5760");
    row("TCP://Localhost:5760", "tcp [Localhost] 5760");
    row("tcp://10.0.0.1:1", "tcp [10.0.0.1] 1");
    row("tcp://[::1]:65535", "tcp [::1] 65535");
    row("tcp-listen://:5760", "tcp-listen [] 5760");
    row("tcp-listen://127.0.0.1:0", "tcp-listen [127.0.0.1] 0");
    row("tcp-listen://[::]:5760", "tcp-listen [::] 5760");
    row("udp://:14550", "udp [] 14550");
    row("udp://0.0.0.0:14550", "udp [0.0.0.0] 14550");
    row("udp://[fe80::1%lo]:14550", "udp [fe80::1%lo] 14550");
    row("udp://239.1.2.3:14550", "udp [239.1.2.3] 14550");
    row("serial:/dev/ttyUSB0", "serial /dev/ttyUSB0 57600");
    row("serial:ttyACM0?baud=115200", "serial ttyACM0 115200");
    row("exec:cat file | grep x", "exec cat file | grep x");
    row("exec:echo 'exec:x?baud=1'", "exec echo 'exec:x?baud=1'");
}

void TestSourceAddress::parse()
{
    QFETCH(QString, text);
    QFETCH(QString, address);
    const SourceAddressResult result = SourceAddress::parse(text);
    QCOMPARE(result.error, "");
    QVERIFY(result.address);
    QCOMPARE(print(*result.address), address);
    QCOMPARE(result.address->text, text);
}

void TestSourceAddress::parse_ofBadText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *text, const char *problem) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(problem);
    };
    const char *const tcpPort
        = "is no port, which is a number from 1 to 65535. Expected tcp://HOST:PORT.";
    const char *const udpForm = "Expected udp://[ADDRESS]:PORT.";
    const char *const serialForm = "Expected serial:DEVICE[?baud=N].";
    row("", "it is empty; expected a file, or - for standard input.");
    row("foo://x", "the scheme \"foo\" is unknown; known are tcp://, tcp-listen://, udp://, "
                   "serial: and exec:.");
    row("http://host:80", "the scheme \"http\" is unknown");
    row("tcp:localhost:5760", "\"//\" is missing after \"tcp:\". Expected tcp://HOST:PORT.");
    row("udp:14550", "\"//\" is missing after \"udp:\"");
    row("tcp://", "the port is missing. Expected tcp://HOST:PORT.");
    row("tcp://localhost", "the port is missing.");
    row("tcp://localhost:", "the port is missing.");
    row("tcp://:5760", "the host is missing.");
    row("tcp://localhost:0", tcpPort);
    row("tcp://localhost:65536", tcpPort);
    row("tcp://localhost:99999999999", tcpPort);
    row("tcp://localhost:-1", tcpPort);
    row("tcp://localhost:+1", tcpPort);
    row("tcp://localhost:80/path", "\"80/path\" is no port");
    row("tcp://localhost:http", "\"http\" is no port");
    row("tcp://user@host:1", "\"user@host\" is no name of a host");
    row("tcp://a host:1", "\"a host\" is no name of a host");
    row("tcp://::1:5760", "an IPv6 address is written in brackets, such as [::1].");
    row("tcp://[localhost]:1", "\"localhost\" in brackets is no IPv6 address.");
    row("tcp://[]:1", "\"\" in brackets is no IPv6 address.");
    row("tcp://[::1:1", "the port is missing.");
    row("udp://14550", udpForm);
    row("udp://:65536", "\"65536\" is no port, which is a number from 0 to 65535. Expected udp://");
    row("udp://localhost:14550", "\"localhost\" is no IPv4 address of this machine.");
    row("udp://1.2.3:1", "\"1.2.3\" is no IPv4 address of this machine.");
    row("udp://[1.2.3.4]:1", "\"1.2.3.4\" in brackets is no IPv6 address.");
    row("tcp-listen://eth0:1", "Expected tcp-listen://[ADDRESS]:PORT.");
    row("serial:", "the device is missing.");
    row("serial:?baud=57600", "the device is missing.");
    row("serial:/dev/ttyS0?baud=", "\"\" is no baud rate, which is a number such as 57600");
    row("serial:/dev/ttyS0?baud=fast", serialForm);
    row("serial:/dev/ttyS0?baud=0", "\"0\" is no baud rate");
    row("serial:/dev/ttyS0?baud=-9600", "\"-9600\" is no baud rate");
    row("serial:/dev/ttyS0?baud=999999999999", "\"999999999999\" is no baud rate");
    row("serial:/dev/ttyS0?parity=even", "\"parity=even\" is unknown after the question mark.");
    row("exec:", "the command is missing. Expected exec:COMMAND.");
    row("exec:  ", "the command is missing.");
}

void TestSourceAddress::parse_ofBadText()
{
    QFETCH(QString, text);
    QFETCH(QString, problem);
    const SourceAddressResult result = SourceAddress::parse(text);
    QVERIFY(!result.address);
    QVERIFY2(result.error.startsWith('"' + text + "\" names no source: "),
             qPrintable(result.error));
    QVERIFY2(result.error.contains(problem), qPrintable(result.error));
}

void TestSourceAddress::createSource_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *text, const char *className, const char *name) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(className)
                            << QString::fromUtf8(name);
    };
    row("a/b.tlog", "corvane::FileSource", "a/b.tlog");
    row("-", "corvane::StdinSource", "standard input");
    row("tcp://[::1]:1", "corvane::TcpClientSource", "tcp://[::1]:1");
    row("tcp-listen://:0", "corvane::TcpListenerSource", "tcp-listen://:0");
    row("udp://127.0.0.1:14550", "corvane::UdpSource", "udp://127.0.0.1:14550");
    row("serial:/dev/ttyS0", "corvane::SerialSource", "serial:/dev/ttyS0?baud=57600");
    row("exec:true", "corvane::ProcessSource", "exec:true");
}

void TestSourceAddress::createSource()
{
    QFETCH(QString, text);
    QFETCH(QString, className);
    QFETCH(QString, name);
    const std::unique_ptr<ByteSource> source
        = corvane::createSource(SourceAddress::parse(text).address.value());
    QCOMPARE(QString::fromUtf8(source->metaObject()->className()), className);
    QCOMPARE(source->getName(), name);
    QVERIFY(source->isAtEnd());
}

CORVANE_TEST_MAIN(TestSourceAddress)

#include "tst_sourceaddress.moc"
