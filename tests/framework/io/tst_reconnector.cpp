#include "linedecoder.h"
#include "memorysource.h"
#include "processsource.h"
#include "reconnector.h"
#include "streampump.h"
#include "tcpclientsource.h"
#include "testcase.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>

#include <memory>

using namespace corvane;
using namespace std::chrono_literals;

namespace {

constexpr Reconnector::Delays shortDelays{20ms, 160ms};

/** Reads from a source that is opened again, and writes down what is told. */
struct Connection
{
    explicit Connection(ByteSource &source)
        : pump(source, decoder)
        , reconnector(pump, source, shortDelays)
    {
        QObject::connect(&reconnector, &Reconnector::opened, &reconnector,
                         [this] { log += QStringLiteral("opened"); });
        QObject::connect(&reconnector, &Reconnector::lost, &reconnector,
                         [this](const QString &reason) { log += "lost: " + reason; });
        QObject::connect(&reconnector, &Reconnector::aboutToReopen, &reconnector,
                         [this] { ++attempts; });
        QObject::connect(&reconnector, &Reconnector::stateChanged, &reconnector,
                         [this](const QString &text) { states += text; });
    }

    test::LineDecoder decoder;
    StreamPump pump;
    Reconnector reconnector;
    QStringList log;
    QStringList states;
    int attempts = 0;
};

} // namespace

class TestReconnector : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void server_killedAndRestarted();
    void server_thatComesLater();
    void delays_double();
    void delays_areShortAgainAfterBytes();
    void program_isStartedAgain();
    void brokenSource_isToldWithItsReason();
    void stop_triesNoMore();
    void stop_inASlot();
};

void TestReconnector::server_killedAndRestarted()
{
    auto server = std::make_unique<QTcpServer>();
    QVERIFY(server->listen(QHostAddress::LocalHost));
    const quint16 port = server->serverPort();
    TcpClientSource source(QStringLiteral("127.0.0.1"), port);
    Connection connection(source);
    connection.pump.start();
    QTRY_VERIFY(server->hasPendingConnections());
    QTcpSocket *peer = server->nextPendingConnection();
    peer->write("one\ncut");
    QTRY_COMPARE(connection.decoder.frames, QStringList({"one"}));
    peer->flush();
    server.reset();
    QTRY_VERIFY(connection.attempts >= 2);
    QCOMPARE(connection.decoder.frames, QStringList({"one", "(cut) cut"}));

    server = std::make_unique<QTcpServer>();
    QVERIFY(server->listen(QHostAddress::LocalHost, port));
    QTRY_VERIFY(server->hasPendingConnections());
    server->nextPendingConnection()->write("two\n");
    QTRY_COMPARE(connection.decoder.frames, QStringList({"one", "(cut) cut", "two"}));
    QCOMPARE(connection.log.size(), 4);
    QCOMPARE(connection.log.at(0), "opened");
    QCOMPARE(connection.log.at(1), "lost: ");
    // Once, however many attempts there were.
    QVERIFY2(connection.log.at(2).contains("nobody listens"), qPrintable(connection.log.at(2)));
    QCOMPARE(connection.log.at(3), "opened");
    QCOMPARE(connection.states.first(), source.getName());
    QCOMPARE(connection.states.at(1), "Connection lost, trying again in 0.02 s");
    QCOMPARE(connection.states.at(2), "Connection lost, trying again in 0.04 s");
    QCOMPARE(connection.states.last(), source.getName());
}

void TestReconnector::server_thatComesLater()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    const quint16 port = server.serverPort();
    server.close();
    TcpClientSource source(QStringLiteral("127.0.0.1"), port);
    Connection connection(source);
    connection.pump.start();
    QTRY_COMPARE(connection.log.size(), 1);
    QVERIFY(connection.log.first().contains("nobody listens"));
    QVERIFY2(connection.states.first().endsWith("Trying again in 0.02 s."),
             qPrintable(connection.states.first()));
    QVERIFY(server.listen(QHostAddress::LocalHost, port));
    QTRY_COMPARE(connection.log.last(), "opened");
}

void TestReconnector::delays_double()
{
    test::MemorySource source;
    Connection connection(source);
    source.refuseToOpen(QStringLiteral("Not there."));
    QElapsedTimer timer;
    timer.start();
    connection.pump.start();
    QTRY_COMPARE(connection.states.size(), 6);
    QVERIFY2(timer.elapsed() >= 20 + 40 + 80 + 160 + 160 - 5,
             qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(
        connection.states,
        QStringList({"Not there. Trying again in 0.02 s.", "Not there. Trying again in 0.04 s.",
                     "Not there. Trying again in 0.08 s.", "Not there. Trying again in 0.16 s.",
                     "Not there. Trying again in 0.16 s.", "Not there. Trying again in 0.16 s."}));
    QCOMPARE(connection.log, QStringList({"lost: Not there."}));
}

void TestReconnector::delays_areShortAgainAfterBytes()
{
    test::MemorySource source;
    Connection connection(source);
    source.end();
    connection.pump.start();
    QTRY_COMPARE(connection.attempts, 2);
    source.add("line\n");
    QTRY_VERIFY(connection.states.contains("Connection lost, trying again in 0.08 s"));
    const auto count = connection.states.size();
    QTRY_VERIFY(connection.states.size() > count + 1);
    QCOMPARE(connection.decoder.frames, QStringList({"line"}));
    QCOMPARE(connection.states.at(count + 1), "Connection lost, trying again in 0.02 s");
}

void TestReconnector::program_isStartedAgain()
{
    ProcessSource source(QStringLiteral("echo run"));
    Connection connection(source);
    connection.pump.start();
    QTRY_VERIFY(connection.decoder.frames.size() >= 3);
    QCOMPARE(connection.decoder.frames.first(), "run");
    connection.reconnector.stop();
    connection.pump.stop();
}

void TestReconnector::brokenSource_isToldWithItsReason()
{
    test::MemorySource source;
    Connection connection(source);
    connection.pump.start();
    source.breakDown(QStringLiteral("It broke."));
    QTRY_COMPARE(connection.log, QStringList({"opened", "lost: It broke."}));
    // Each time that it was open it was lost again.
    QTRY_COMPARE(connection.log,
                 QStringList({"opened", "lost: It broke.", "opened", "lost: It broke."}));
}

void TestReconnector::stop_triesNoMore()
{
    test::MemorySource source;
    Connection connection(source);
    source.end();
    connection.pump.start();
    QTRY_VERIFY(connection.reconnector.isWaiting());
    connection.reconnector.stop();
    QVERIFY(!connection.reconnector.isWaiting());
    QTest::qWait(60);
    QCOMPARE(connection.attempts, 0);
}

void TestReconnector::stop_inASlot()
{
    test::MemorySource source;
    Connection connection(source);
    connect(&connection.reconnector, &Reconnector::lost, &connection.reconnector,
            &Reconnector::stop);
    source.end();
    connection.pump.start();
    QTRY_COMPARE(connection.log, QStringList({"opened", "lost: "}));
    QTest::qWait(60);
    QCOMPARE(connection.attempts, 0);
    QCOMPARE(connection.states, QStringList({"memory"}));
}

CORVANE_TEST_MAIN(TestReconnector)

#include "tst_reconnector.moc"
