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

/** Writes down what a reconnector tells. */
struct Listener
{
    explicit Listener(Reconnector &reconnector)
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
    test::LineDecoder decoder;
    StreamPump pump(source, decoder);
    Reconnector reconnector(pump, source, shortDelays);
    const Listener listener(reconnector);
    pump.start();
    QTRY_VERIFY(server->hasPendingConnections());
    QTcpSocket *peer = server->nextPendingConnection();
    peer->write("one\ncut");
    QTRY_COMPARE(decoder.frames, QStringList({"one"}));
    peer->flush();
    server.reset();
    QTRY_VERIFY(listener.attempts >= 2);
    QCOMPARE(decoder.frames, QStringList({"one", "(cut) cut"}));

    server = std::make_unique<QTcpServer>();
    QVERIFY(server->listen(QHostAddress::LocalHost, port));
    QTRY_VERIFY(server->hasPendingConnections());
    server->nextPendingConnection()->write("two\n");
    QTRY_COMPARE(decoder.frames, QStringList({"one", "(cut) cut", "two"}));
    QCOMPARE(listener.log.size(), 4);
    QCOMPARE(listener.log.at(0), "opened");
    QCOMPARE(listener.log.at(1), "lost: ");
    // Once, however many attempts there were.
    QVERIFY2(listener.log.at(2).contains("nobody listens"), qPrintable(listener.log.at(2)));
    QCOMPARE(listener.log.at(3), "opened");
    QCOMPARE(listener.states.first(), source.getName());
    QCOMPARE(listener.states.at(1), "Connection lost, trying again in 0.02 s");
    QCOMPARE(listener.states.at(2), "Connection lost, trying again in 0.04 s");
    QCOMPARE(listener.states.last(), source.getName());
}

void TestReconnector::server_thatComesLater()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    const quint16 port = server.serverPort();
    server.close();
    TcpClientSource source(QStringLiteral("127.0.0.1"), port);
    test::LineDecoder decoder;
    StreamPump pump(source, decoder);
    Reconnector reconnector(pump, source, shortDelays);
    const Listener listener(reconnector);
    pump.start();
    QTRY_COMPARE(listener.log.size(), 1);
    QVERIFY(listener.log.first().contains("nobody listens"));
    QVERIFY2(listener.states.first().endsWith("Trying again in 0.02 s."),
             qPrintable(listener.states.first()));
    QVERIFY(server.listen(QHostAddress::LocalHost, port));
    QTRY_COMPARE(listener.log.last(), "opened");
}

void TestReconnector::delays_double()
{
    test::MemorySource source;
    test::LineDecoder decoder;
    StreamPump pump(source, decoder);
    Reconnector reconnector(pump, source, shortDelays);
    const Listener listener(reconnector);
    source.refuseToOpen(QStringLiteral("Not there."));
    QElapsedTimer timer;
    timer.start();
    pump.start();
    QTRY_COMPARE(listener.states.size(), 6);
    QVERIFY2(timer.elapsed() >= 20 + 40 + 80 + 160 + 160 - 5,
             qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(
        listener.states,
        QStringList({"Not there. Trying again in 0.02 s.", "Not there. Trying again in 0.04 s.",
                     "Not there. Trying again in 0.08 s.", "Not there. Trying again in 0.16 s.",
                     "Not there. Trying again in 0.16 s.", "Not there. Trying again in 0.16 s."}));
    QCOMPARE(listener.log, QStringList({"lost: Not there."}));
}

void TestReconnector::delays_areShortAgainAfterBytes()
{
    test::MemorySource source;
    test::LineDecoder decoder;
    StreamPump pump(source, decoder);
    Reconnector reconnector(pump, source, shortDelays);
    const Listener listener(reconnector);
    source.end();
    pump.start();
    QTRY_COMPARE(listener.attempts, 2);
    source.add("line\n");
    QTRY_VERIFY(listener.states.contains("Connection lost, trying again in 0.08 s"));
    const auto count = listener.states.size();
    QTRY_VERIFY(listener.states.size() > count + 1);
    QCOMPARE(decoder.frames, QStringList({"line"}));
    QCOMPARE(listener.states.at(count + 1), "Connection lost, trying again in 0.02 s");
}

void TestReconnector::program_isStartedAgain()
{
    ProcessSource source(QStringLiteral("echo run"));
    test::LineDecoder decoder;
    StreamPump pump(source, decoder);
    Reconnector reconnector(pump, source, shortDelays);
    pump.start();
    QTRY_VERIFY(decoder.frames.size() >= 3);
    QCOMPARE(decoder.frames.first(), "run");
    reconnector.stop();
    pump.stop();
}

void TestReconnector::brokenSource_isToldWithItsReason()
{
    test::MemorySource source;
    test::LineDecoder decoder;
    StreamPump pump(source, decoder);
    Reconnector reconnector(pump, source, shortDelays);
    const Listener listener(reconnector);
    pump.start();
    source.breakDown(QStringLiteral("It broke."));
    QTRY_COMPARE(listener.log, QStringList({"opened", "lost: It broke."}));
    // Each time that it was open it was lost again.
    QTRY_COMPARE(listener.log,
                 QStringList({"opened", "lost: It broke.", "opened", "lost: It broke."}));
}

void TestReconnector::stop_triesNoMore()
{
    test::MemorySource source;
    test::LineDecoder decoder;
    StreamPump pump(source, decoder);
    Reconnector reconnector(pump, source, shortDelays);
    const Listener listener(reconnector);
    source.end();
    pump.start();
    QTRY_VERIFY(reconnector.isWaiting());
    reconnector.stop();
    QVERIFY(!reconnector.isWaiting());
    QTest::qWait(60);
    QCOMPARE(listener.attempts, 0);
}

void TestReconnector::stop_inASlot()
{
    test::MemorySource source;
    test::LineDecoder decoder;
    StreamPump pump(source, decoder);
    Reconnector reconnector(pump, source, shortDelays);
    const Listener listener(reconnector);
    connect(&reconnector, &Reconnector::lost, &reconnector, &Reconnector::stop);
    source.end();
    pump.start();
    QTRY_COMPARE(listener.log, QStringList({"opened", "lost: "}));
    QTest::qWait(60);
    QCOMPARE(listener.attempts, 0);
    QCOMPARE(listener.states, QStringList({"memory"}));
}

CORVANE_TEST_MAIN(TestReconnector)

#include "tst_reconnector.moc"
