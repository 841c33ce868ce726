#include "networkprobe.h"
#include "sourcereader.h"
#include "testcase.h"
#include "udpsource.h"

#include <QHostAddress>
#include <QUdpSocket>

using namespace corvane;

namespace {

quint16 getPort(const ByteSource &source)
{
    return source.getName().section(QLatin1Char(':'), -1).toUShort();
}

const QString loopback = QStringLiteral("127.0.0.1");

} // namespace

class TestUdpSource : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void read_givesWholeDatagramsInOrder();
    void read_inSmallPieces_losesNothing();
    void read_passesEmptyDatagrams();
    void read_ofLargestDatagram();
    void read_ofIpv6();
    void read_ofAnyAddress_takesBothFamilies();
    void open_ofMulticastGroup_joinsIt();
    void name_tellsTheRealPort();
    void waitingBytes_untilTheyAreRead();
    void droppedCount_whenTheBufferOverflows();
    void open_ofUsedPort_fails();
    void open_ofForeignAddress_fails();
    void open_again_receives();
};

void TestUdpSource::read_givesWholeDatagramsInOrder()
{
    UdpSource source(loopback, 0);
    test::SourceReader reader(source);
    source.open();
    QVERIFY(source.isLive());
    QUdpSocket sender;
    QList<QByteArray> sent;
    for (int i = 0; i < 50; ++i) {
        sent.append(QByteArray(i + 1, char('A' + i % 26)));
        sender.writeDatagram(sent.last(), QHostAddress(loopback), getPort(source));
    }
    QTRY_COMPARE(reader.pieces, sent);
    QCOMPARE(reader.events, QStringList({"opened"}));
}

void TestUdpSource::read_inSmallPieces_losesNothing()
{
    UdpSource source(loopback, 0);
    test::SourceReader reader(source);
    reader.setReadSize(4);
    source.open();
    QUdpSocket sender;
    sender.writeDatagram("0123456789", QHostAddress(loopback), getPort(source));
    sender.writeDatagram("abc", QHostAddress(loopback), getPort(source));
    QTRY_COMPARE(reader.pieces, QList<QByteArray>({"0123", "4567", "89", "abc"}));
}

void TestUdpSource::read_passesEmptyDatagrams()
{
    UdpSource source(loopback, 0);
    test::SourceReader reader(source);
    source.open();
    QUdpSocket sender;
    sender.writeDatagram("", 0, QHostAddress(loopback), getPort(source));
    sender.writeDatagram("after", QHostAddress(loopback), getPort(source));
    QTRY_COMPARE(reader.pieces, QList<QByteArray>({"after"}));
    QCOMPARE(reader.events, QStringList({"opened"}));
}

void TestUdpSource::read_ofLargestDatagram()
{
    UdpSource source(loopback, 0);
    test::SourceReader reader(source);
    source.open();
    QUdpSocket sender;
    const QByteArray largest(65'507, 'x');
    QCOMPARE(sender.writeDatagram(largest, QHostAddress(loopback), getPort(source)), 65'507);
    QTRY_COMPARE(reader.pieces, QList<QByteArray>({largest}));
}

void TestUdpSource::read_ofIpv6()
{
    UdpSource source(QStringLiteral("::1"), 0);
    test::SourceReader reader(source);
    if (!test::hasIpv6())
        QSKIP("this machine has no IPv6");
    source.open();
    QVERIFY2(source.getName().startsWith("udp://[::1]:"), qPrintable(source.getName()));
    QUdpSocket sender;
    sender.writeDatagram("six", QHostAddress(QHostAddress::LocalHostIPv6), getPort(source));
    QTRY_COMPARE(reader.bytes, "six");
}

void TestUdpSource::read_ofAnyAddress_takesBothFamilies()
{
    UdpSource source(QString(), 0);
    test::SourceReader reader(source);
    source.open();
    QUdpSocket four;
    four.writeDatagram("four", QHostAddress(loopback), getPort(source));
    QTRY_COMPARE(reader.bytes, "four");
    if (!test::hasIpv6())
        QSKIP("this machine has no IPv6");
    QVERIFY2(source.getName().startsWith("udp://[::]:"), qPrintable(source.getName()));
    QUdpSocket six;
    six.writeDatagram("six", QHostAddress(QHostAddress::LocalHostIPv6), getPort(source));
    QTRY_COMPARE(reader.bytes, "foursix");
}

void TestUdpSource::open_ofMulticastGroup_joinsIt()
{
    const QString group = QStringLiteral("239.255.77.77");
    UdpSource source(group, 0);
    test::SourceReader reader(source);
    if (!test::hasMulticast(group))
        QSKIP("this machine has no network that takes multicast");
    source.open();
    QVERIFY2(reader.failure.isEmpty(), qPrintable(reader.failure));
    QVERIFY(source.getName().startsWith("udp://239.255.77.77:"));
    QUdpSocket sender;
    sender.setSocketOption(QAbstractSocket::MulticastTtlOption, 0);
    sender.setSocketOption(QAbstractSocket::MulticastLoopbackOption, 1);
    QCOMPARE(sender.writeDatagram("to all", QHostAddress(group), getPort(source)), 6);
    QTRY_COMPARE(reader.bytes, "to all");
}

void TestUdpSource::name_tellsTheRealPort()
{
    UdpSource source(loopback, 0);
    QCOMPARE(source.getName(), "udp://127.0.0.1:0");
    source.open();
    QVERIFY(getPort(source) > 0);
    QCOMPARE(source.getName(), QStringLiteral("udp://127.0.0.1:%1").arg(getPort(source)));
}

void TestUdpSource::waitingBytes_untilTheyAreRead()
{
    UdpSource source(loopback, 0);
    QVERIFY(!source.getWaitingBytes());
    test::SourceReader reader(source);
    reader.setPaused(true);
    source.open();
    if (!source.getWaitingBytes())
        QSKIP("only Linux tells what waits");
    QCOMPARE(source.getWaitingBytes(), qint64(0));
    QUdpSocket sender;
    for (int i = 0; i < 10; ++i)
        sender.writeDatagram(QByteArray(500, 'x'), QHostAddress(loopback), getPort(source));
    QTRY_VERIFY(*source.getWaitingBytes() >= 5000);
    reader.setPaused(false);
    QTRY_COMPARE(source.getWaitingBytes(), qint64(0));
}

void TestUdpSource::droppedCount_whenTheBufferOverflows()
{
    UdpSource source(loopback, 0);
    source.setReceiveBufferSize(8192);
    test::SourceReader reader(source);
    reader.setPaused(true);
    source.open();
#ifdef Q_OS_LINUX
    QVERIFY(source.getDroppedCount());
#else
    if (!source.getDroppedCount())
        QSKIP("only Linux tells what it drops");
#endif
    QCOMPARE(source.getDroppedCount(), quint64(0));
    QUdpSocket sender;
    constexpr quint64 sent = 500;
    for (quint64 i = 0; i < sent; ++i)
        sender.writeDatagram(QByteArray(500, 'x'), QHostAddress(loopback), getPort(source));
    QTRY_VERIFY(*source.getDroppedCount() > 400);
    reader.setPaused(false);
    QTRY_COMPARE(quint64(reader.pieces.size()) + *source.getDroppedCount(), sent);
    const std::optional<quint64> dropped = source.getDroppedCount();
    source.close();
    QCOMPARE(source.getDroppedCount(), dropped);
    source.open();
    QCOMPARE(source.getDroppedCount(), quint64(0));
}

void TestUdpSource::open_ofUsedPort_fails()
{
    UdpSource first(loopback, 0);
    first.open();
    UdpSource second(loopback, getPort(first));
    test::SourceReader reader(second);
    second.open();
    QCOMPARE(reader.events, QStringList({"failed"}));
    QCOMPARE(reader.failure,
             "Cannot receive at " + first.getName()
                 + ": another program already uses this port. End it, or choose another port.");
}

void TestUdpSource::open_ofForeignAddress_fails()
{
    UdpSource source(QStringLiteral("192.0.2.1"), 0);
    test::SourceReader reader(source);
    source.open();
    QCOMPARE(reader.failure,
             "Cannot receive at udp://192.0.2.1:0: this machine does not have this address. Leave "
             "it empty to mean all.");
}

void TestUdpSource::open_again_receives()
{
    UdpSource source(loopback, 0);
    test::SourceReader reader(source);
    source.open();
    source.close();
    source.open();
    QUdpSocket sender;
    sender.writeDatagram("again", QHostAddress(loopback), getPort(source));
    QTRY_COMPARE(reader.bytes, "again");
}

CORVANE_TEST_MAIN(TestUdpSource)

#include "tst_udpsource.moc"
