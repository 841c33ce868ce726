#include "sourcereader.h"
#include "tcpclientsource.h"
#include "testcase.h"

#include <QTcpServer>
#include <QTcpSocket>

#include <sys/socket.h>

#include <memory>

using namespace corvane;

namespace {

/** Listens on loopback and holds the one peer that has connected. */
class Server
{
public:
    Server() { server.listen(QHostAddress::LocalHost); }

    quint16 getPort() const { return server.serverPort(); }

    bool accept()
    {
        if (!peer)
            peer.reset(server.nextPendingConnection());
        return peer != nullptr;
    }

    /** Everything that the system takes, at most \a maximum bytes. */
    qint64 writeWhatFits(qint64 maximum)
    {
        const QByteArray block(64 * 1024, 'x');
        qint64 written = 0;
        while (written < maximum) {
            const ssize_t count
                = ::send(static_cast<int>(peer->socketDescriptor()), block.constData(),
                         size_t(block.size()), MSG_DONTWAIT | MSG_NOSIGNAL);
            if (count <= 0)
                break;
            written += count;
        }
        return written;
    }

    QTcpServer server;
    std::unique_ptr<QTcpSocket> peer;
};

const QString loopback = QStringLiteral("127.0.0.1");

} // namespace

class TestTcpClientSource : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void read_followsThePeer();
    void read_afterPeerClosed_givesTheRest();
    void read_whilePaused_holdsThePeerBack();
    void waitingBytes_untilTheyAreRead();
    void read_afterReset_ends();
    void read_beforeConnected_givesNothing();
    void close_disconnects();
    void close_whileConnecting_emitsNothing();
    void close_inASlot();
    void open_withoutListener_fails();
    void open_ofUnknownHost_fails();
    void name_ofIpv6();
};

void TestTcpClientSource::read_followsThePeer()
{
    Server server;
    TcpClientSource source(loopback, server.getPort());
    test::SourceReader reader(source);
    source.open();
    QTRY_COMPARE(reader.events, QStringList({"opened"}));
    QTRY_VERIFY(server.accept());
    server.peer->write("one");
    QTRY_COMPARE(reader.bytes, "one");
    server.peer->write("two");
    QTRY_COMPARE(reader.bytes, "onetwo");
    server.peer->disconnectFromHost();
    QTRY_COMPARE(reader.events, QStringList({"opened", "finished"}));
    QVERIFY(source.isLive());
    QCOMPARE(source.getName(), QStringLiteral("tcp://127.0.0.1:%1").arg(server.getPort()));
}

void TestTcpClientSource::read_afterPeerClosed_givesTheRest()
{
    Server server;
    TcpClientSource source(loopback, server.getPort());
    test::SourceReader reader(source);
    reader.setPaused(true);
    source.open();
    QTRY_VERIFY(server.accept());
    const QByteArray much(200'000, 'x');
    server.peer->write(much);
    server.peer->disconnectFromHost();
    QTest::qWait(50);
    QCOMPARE(reader.events, QStringList({"opened"}));
    reader.setPaused(false);
    QTRY_COMPARE(reader.events, QStringList({"opened", "finished"}));
    QCOMPARE(reader.bytes.size(), much.size());
}

void TestTcpClientSource::read_whilePaused_holdsThePeerBack()
{
    Server server;
    TcpClientSource source(loopback, server.getPort());
    test::SourceReader reader(source);
    reader.setPaused(true);
    source.open();
    QTRY_VERIFY(server.accept());
    constexpr qint64 muchMore = 256 * 1024 * 1024;
    qint64 written = 0;
    for (int round = 0; round < 50; ++round) {
        written += server.writeWhatFits(muchMore - written);
        QTest::qWait(2);
    }
    QVERIFY2(written < 32 * 1024 * 1024, qPrintable(QString::number(written)));
    QCOMPARE(reader.bytes.size(), 0);
    reader.setPaused(false);
    QTRY_COMPARE(reader.bytes.size(), written);
    QVERIFY(server.writeWhatFits(1) > 0);
}

void TestTcpClientSource::waitingBytes_untilTheyAreRead()
{
    Server server;
    TcpClientSource source(loopback, server.getPort());
    test::SourceReader reader(source);
    reader.setPaused(true);
    source.open();
    QVERIFY(!source.getWaitingBytes());
    QTRY_VERIFY(server.accept());
    server.peer->write(QByteArray(1'000'000, 'x'));
    // More than the source itself keeps, so that some of it is the system's.
    QTRY_VERIFY(source.getWaitingBytes().value_or(0) > 100'000);
    reader.setPaused(false);
    QTRY_COMPARE(reader.bytes.size(), 1'000'000);
    QCOMPARE(source.getWaitingBytes(), qint64(0));
}

void TestTcpClientSource::read_afterReset_ends()
{
    Server server;
    TcpClientSource source(loopback, server.getPort());
    test::SourceReader reader(source);
    source.open();
    QTRY_VERIFY(server.accept());
    const linger noLinger{1, 0};
    ::setsockopt(static_cast<int>(server.peer->socketDescriptor()), SOL_SOCKET, SO_LINGER,
                 &noLinger, sizeof noLinger);
    server.peer->write("last words");
    server.peer->flush();
    QTRY_COMPARE(reader.bytes, "last words");
    server.peer->abort();
    QTRY_VERIFY(reader.hasEnded());
    // Not told from a regular end: senders that are stopped often end so.
    QCOMPARE(reader.events, QStringList({"opened", "finished"}));
}

void TestTcpClientSource::read_beforeConnected_givesNothing()
{
    Server server;
    TcpClientSource source(loopback, server.getPort());
    source.open();
    char data[4];
    QCOMPARE(source.read(data, sizeof data), 0);
    QVERIFY(!source.isAtEnd());
}

void TestTcpClientSource::close_disconnects()
{
    Server server;
    TcpClientSource source(loopback, server.getPort());
    test::SourceReader reader(source);
    source.open();
    QTRY_VERIFY(server.accept());
    QTRY_COMPARE(reader.events, QStringList({"opened"}));
    source.close();
    QTRY_COMPARE(server.peer->state(), QAbstractSocket::UnconnectedState);
    QCOMPARE(reader.events, QStringList({"opened"}));
}

void TestTcpClientSource::close_whileConnecting_emitsNothing()
{
    Server server;
    TcpClientSource source(loopback, server.getPort());
    test::SourceReader reader(source);
    source.open();
    source.close();
    QTest::qWait(20);
    QCOMPARE(reader.events, QStringList());
}

void TestTcpClientSource::close_inASlot()
{
    Server server;
    TcpClientSource source(loopback, server.getPort());
    connect(&source, &ByteSource::opened, &source, &ByteSource::close);
    source.open();
    QTRY_VERIFY(source.isAtEnd());
    QTRY_VERIFY(server.accept());
    QTRY_COMPARE(server.peer->state(), QAbstractSocket::UnconnectedState);
}

void TestTcpClientSource::open_withoutListener_fails()
{
    quint16 port = 0;
    {
        const Server server;
        port = server.getPort();
    }
    TcpClientSource source(loopback, port);
    test::SourceReader reader(source);
    source.open();
    QTRY_COMPARE(reader.events, QStringList({"failed"}));
    QCOMPARE(reader.failure,
             "Cannot connect to " + source.getName()
                 + ": nobody listens there. Start the sender first, or check address and port.");
    QVERIFY(source.isAtEnd());
}

void TestTcpClientSource::open_ofUnknownHost_fails()
{
    // A label of more than 63 characters is no name, so nobody is asked for it.
    TcpClientSource source(QString(70, QLatin1Char('x')), 1);
    test::SourceReader reader(source);
    source.open();
    QTRY_COMPARE(reader.events, QStringList({"failed"}));
    QVERIFY2(reader.failure.contains("there is no machine of this name"),
             qPrintable(reader.failure));
}

void TestTcpClientSource::name_ofIpv6()
{
    const TcpClientSource source(QStringLiteral("::1"), 5760);
    QCOMPARE(source.getName(), "tcp://[::1]:5760");
}

CORVANE_TEST_MAIN(TestTcpClientSource)

#include "tst_tcpclientsource.moc"
