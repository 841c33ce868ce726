#include "networkprobe.h"
#include "sourcereader.h"
#include "tcplistenersource.h"
#include "testcase.h"

#include <QHostAddress>
#include <QTcpSocket>

#include <sys/socket.h>

using namespace corvane;

namespace {

quint16 getPort(const ByteSource &source)
{
    return source.getName().section(QLatin1Char(':'), -1).toUShort();
}

const QString loopback = QStringLiteral("127.0.0.1");

/** A peer that connects to the source and sends \a text. */
class Peer : public QTcpSocket
{
public:
    explicit Peer(const ByteSource &source, const QByteArray &text = {})
    {
        connectToHost(QHostAddress(QHostAddress::LocalHost), getPort(source));
        write(text);
    }
};

} // namespace

class TestTcpListenerSource : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void name_tellsTheRealPort();
    void read_followsThePeer();
    void read_takesOnePeerAfterTheOther();
    void read_afterReset_takesTheNextPeer();
    void read_whilePaused_holdsThePeerBack();
    void read_ofIpv6();
    void close_leavesThePort();
    void close_disconnectsThePeer();
    void open_ofUsedPort_fails();
};

void TestTcpListenerSource::name_tellsTheRealPort()
{
    TcpListenerSource source(loopback, 0);
    QCOMPARE(source.getName(), "tcp-listen://127.0.0.1:0");
    source.open();
    QVERIFY(getPort(source) > 0);
    QCOMPARE(source.getName(), QStringLiteral("tcp-listen://127.0.0.1:%1").arg(getPort(source)));
}

void TestTcpListenerSource::read_followsThePeer()
{
    TcpListenerSource source(loopback, 0);
    test::SourceReader reader(source);
    source.open();
    QCOMPARE(reader.events, QStringList({"opened"}));
    Peer peer(source, "one");
    QTRY_COMPARE(reader.bytes, "one");
    peer.write("two");
    QTRY_COMPARE(reader.bytes, "onetwo");
    QVERIFY(source.isLive());
}

void TestTcpListenerSource::read_takesOnePeerAfterTheOther()
{
    TcpListenerSource source(loopback, 0);
    test::SourceReader reader(source);
    source.open();
    Peer first(source, "first ");
    QTRY_COMPARE(reader.bytes, "first ");
    Peer second(source, "second ");
    Peer third(source, "third ");
    QTest::qWait(30);
    QCOMPARE(reader.bytes, "first ");
    first.write("still first ");
    first.disconnectFromHost();
    QTRY_COMPARE(reader.bytes, "first still first second ");
    second.disconnectFromHost();
    QTRY_COMPARE(reader.bytes, "first still first second third ");
    third.disconnectFromHost();
    const Peer fourth(source, "fourth");
    QTRY_COMPARE(reader.bytes, "first still first second third fourth");
    QCOMPARE(reader.events, QStringList({"opened"}));
}

void TestTcpListenerSource::read_afterReset_takesTheNextPeer()
{
    TcpListenerSource source(loopback, 0);
    test::SourceReader reader(source);
    source.open();
    Peer first(source, "first ");
    QTRY_COMPARE(reader.bytes, "first ");
    const linger noLinger{1, 0};
    ::setsockopt(static_cast<int>(first.socketDescriptor()), SOL_SOCKET, SO_LINGER, &noLinger,
                 sizeof noLinger);
    first.abort();
    const Peer second(source, "second");
    QTRY_COMPARE(reader.bytes, "first second");
    QCOMPARE(reader.events, QStringList({"opened"}));
}

void TestTcpListenerSource::read_whilePaused_holdsThePeerBack()
{
    TcpListenerSource source(loopback, 0);
    test::SourceReader reader(source);
    source.open();
    Peer peer(source, "x");
    QTRY_COMPARE(reader.bytes, "x");
    reader.setPaused(true);
    const QByteArray block(64 * 1024, 'x');
    qint64 written = 1;
    for (int round = 0; round < 2000; ++round) {
        const ssize_t count = ::send(static_cast<int>(peer.socketDescriptor()), block.constData(),
                                     size_t(block.size()), MSG_DONTWAIT | MSG_NOSIGNAL);
        written += std::max<ssize_t>(count, 0);
        QCoreApplication::processEvents();
    }
    QVERIFY2(written < 32 * 1024 * 1024, qPrintable(QString::number(written)));
    QCOMPARE(reader.bytes, "x");
    reader.setPaused(false);
    QTRY_COMPARE(reader.bytes.size(), written);
}

void TestTcpListenerSource::read_ofIpv6()
{
    TcpListenerSource source(QStringLiteral("::1"), 0);
    test::SourceReader reader(source);
    if (!test::hasIpv6())
        QSKIP("this machine has no IPv6");
    source.open();
    QVERIFY2(source.getName().startsWith("tcp-listen://[::1]:"), qPrintable(source.getName()));
    QTcpSocket peer;
    peer.connectToHost(QHostAddress(QHostAddress::LocalHostIPv6), getPort(source));
    peer.write("six");
    QTRY_COMPARE(reader.bytes, "six");
}

void TestTcpListenerSource::close_leavesThePort()
{
    TcpListenerSource source(loopback, 0);
    source.open();
    const quint16 port = getPort(source);
    source.close();
    QTcpSocket peer;
    peer.connectToHost(loopback, port);
    QTRY_COMPARE(peer.error(), QAbstractSocket::ConnectionRefusedError);
    TcpListenerSource next(loopback, port);
    test::SourceReader reader(next);
    next.open();
    QCOMPARE(reader.events, QStringList({"opened"}));
}

void TestTcpListenerSource::close_disconnectsThePeer()
{
    TcpListenerSource source(loopback, 0);
    test::SourceReader reader(source);
    source.open();
    const Peer peer(source, "x");
    QTRY_COMPARE(reader.bytes, "x");
    source.close();
    QTRY_COMPARE(peer.state(), QAbstractSocket::UnconnectedState);
    QCOMPARE(reader.events, QStringList({"opened"}));
}

void TestTcpListenerSource::open_ofUsedPort_fails()
{
    TcpListenerSource first(loopback, 0);
    first.open();
    TcpListenerSource second(loopback, getPort(first));
    test::SourceReader reader(second);
    second.open();
    QCOMPARE(reader.events, QStringList({"failed"}));
    QCOMPARE(reader.failure,
             "Cannot receive at " + first.getName()
                 + ": another program already uses this port. End it, or choose another port.");
}

CORVANE_TEST_MAIN(TestTcpListenerSource)

#include "tst_tcplistenersource.moc"
