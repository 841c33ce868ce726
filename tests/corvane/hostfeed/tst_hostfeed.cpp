#include "framesplitter.h"
#include "testcase.h"

#include <QFile>
#include <QProcess>
#include <QTcpSocket>

#include <unistd.h>

#include <algorithm>
#include <memory>

using namespace corvane;

namespace {

struct Result
{
    int exitCode = -1;
    QByteArray output;
    QByteArray errors;
};

Result run(const QStringList &arguments)
{
    QProcess process;
    process.start(CORVANE_HOSTFEED, arguments);
    Result result;
    if (process.waitForFinished(10000) && process.exitStatus() == QProcess::NormalExit)
        result.exitCode = process.exitCode();
    result.output = process.readAllStandardOutput();
    result.errors = process.readAllStandardError();
    return result;
}

/** The program as a server, until destruction. */
class Server
{
public:
    Server()
    {
        process.start(CORVANE_HOSTFEED, {"--interval", "50", "--listen", "0"});
        process.setReadChannel(QProcess::StandardError);
        while (!process.canReadLine() && process.waitForReadyRead(5000)) {
        }
        greeting = process.readLine();
        const qsizetype colon = greeting.lastIndexOf(':');
        port = greeting.sliced(colon + 1).chopped(2).toUShort();
    }

    ~Server()
    {
        process.kill();
        process.waitForFinished();
    }

    std::unique_ptr<QTcpSocket> connectTo() const
    {
        auto socket = std::make_unique<QTcpSocket>();
        socket->connectToHost("127.0.0.1", port);
        return socket->waitForConnected(5000) ? std::move(socket) : nullptr;
    }

    qint64 getResidentKilobytes() const
    {
        QFile file(QStringLiteral("/proc/%1/statm").arg(process.processId()));
        if (!file.open(QIODevice::ReadOnly))
            return -1;
        return file.readAll().split(' ').value(1).toLongLong() * ::sysconf(_SC_PAGESIZE) / 1024;
    }

    QProcess process;
    QByteArray greeting;
    quint16 port = 0;
};

void readInto(QTcpSocket &socket, QByteArray &bytes, std::vector<host::Envelope> &envelopes)
{
    bytes += socket.readAll();
    for (const host::Envelope &envelope : test::takeEnvelopes(bytes))
        envelopes.push_back(envelope);
}

} // namespace

class TestHostFeed : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void helpAndVersion();
    void mistakes_data();
    void mistakes();
    void output_decodesWhole();
    void output_toASlowReader_dropsRounds();
    void output_closed_endsQuietly();
    void listen_servesSeveral();
    void listen_slowReader_doesNotHoldTheOthers();
    void listen_portInUse();
};

void TestHostFeed::helpAndVersion()
{
    const Result help = run({"--help"});
    QCOMPARE(help.exitCode, 0);
    QVERIFY(help.output.startsWith("Usage: corvane-hostfeed [--interval MS]"));
    const Result version = run({"--version"});
    QCOMPARE(version.exitCode, 0);
    QVERIFY(version.output.startsWith("corvane-hostfeed "));
}

void TestHostFeed::mistakes_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");

    QTest::newRow("option") << QStringList("--loud") << QByteArray("Unknown option 'loud'.\n");
    QTest::newRow("word") << QStringList("x") << QByteArray("\"x\" is not known; see --help.\n");
    QTest::newRow("interval") << QStringList(
        {"--interval",
         "1"}) << QByteArray("--interval takes a whole number from 50 to 3600000, not \"1\".\n");
}

void TestHostFeed::mistakes()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    const Result result = run(arguments);
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.errors, "corvane-hostfeed: " + message);
    QCOMPARE(result.output, QByteArray());
}

void TestHostFeed::output_decodesWhole()
{
    QProcess process;
    process.start(CORVANE_HOSTFEED, {"--interval", "50"});
    QByteArray bytes;
    std::vector<host::Envelope> envelopes;
    while (envelopes.size() < 45 && process.waitForReadyRead(5000)) {
        bytes += process.readAllStandardOutput();
        for (const host::Envelope &envelope : test::takeEnvelopes(bytes))
            envelopes.push_back(envelope);
    }
    process.kill();
    process.waitForFinished();
    QVERIFY(envelopes.size() >= 45);
    for (size_t i = 0; i < envelopes.size(); ++i) {
        // Each round brings all kinds, in the order of the definitions.
        QCOMPARE(envelopes[i].content_case(), static_cast<int>(i % 9 + 10));
        QCOMPARE(envelopes[i].sequence(), i);
        QCOMPARE(envelopes[i].time_us(), envelopes[i - i % 9].time_us());
    }
    QVERIFY(!envelopes[0].cpu().has_total());
    QVERIFY(envelopes[36].cpu().has_total());
    const quint64 elapsedUs = envelopes[36].time_us() - envelopes[0].time_us();
    QVERIFY2(elapsedUs > 150000, qPrintable(QString::number(elapsedUs)));
    QCOMPARE(envelopes[44].feed().rounds(), 5);
    QCOMPARE(envelopes[44].feed().interval_ms(), 50);
    QCOMPARE(envelopes[44].feed().receivers(), 1);
}

void TestHostFeed::output_toASlowReader_dropsRounds()
{
    QProcess process;
    // The pipe fills while the shell sleeps.
    process.start(
        "sh",
        {"-c",
         QStringLiteral("'%1' --interval 50 | (sleep 2; head -c 120000)").arg(CORVANE_HOSTFEED)});
    QVERIFY(process.waitForFinished(60000));
    QByteArray bytes = process.readAllStandardOutput();
    QCOMPARE(process.readAllStandardError(), QByteArray());
    quint64 dropped = 0;
    quint32 next = 0;
    for (const host::Envelope &envelope : test::takeEnvelopes(bytes)) {
        QVERIFY(envelope.content_case() != host::Envelope::CONTENT_NOT_SET);
        // What is missing is whole rounds.
        QVERIFY(envelope.sequence() >= next);
        QCOMPARE((envelope.sequence() - next) % 9, 0);
        next = envelope.sequence() + 1;
        if (envelope.has_feed())
            dropped = envelope.feed().dropped_rounds();
    }
    QVERIFY(dropped > 0);
}

void TestHostFeed::output_closed_endsQuietly()
{
    QProcess process;
    process.start("bash", {"-c", QStringLiteral("'%1' --interval 50 | head -c 1 > /dev/null; "
                                                "exit ${PIPESTATUS[0]}")
                                     .arg(CORVANE_HOSTFEED)});
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardError(), QByteArray());
}

void TestHostFeed::listen_servesSeveral()
{
    const Server server;
    QVERIFY2(server.greeting.startsWith("corvane-hostfeed: Listening on 127.0.0.1:"),
             server.greeting.constData());
    const auto first = server.connectTo();
    const auto second = server.connectTo();
    QVERIFY(first && second);
    QByteArray firstBytes;
    QByteArray secondBytes;
    std::vector<host::Envelope> ofFirst;
    std::vector<host::Envelope> ofSecond;
    QTRY_VERIFY((readInto(*first, firstBytes, ofFirst), ofFirst.size() >= 27));
    QTRY_VERIFY((readInto(*second, secondBytes, ofSecond), ofSecond.size() >= 27));
    QCOMPARE(ofFirst[0].content_case(), host::Envelope::kCpu);
    QCOMPARE(ofSecond[0].content_case(), host::Envelope::kCpu);
    QCOMPARE(ofSecond[26].feed().receivers(), 2);

    // One goes, the other is served on, and a new one, too.
    first->disconnectFromHost();
    const auto third = server.connectTo();
    QVERIFY(third);
    QByteArray thirdBytes;
    std::vector<host::Envelope> ofThird;
    QTRY_VERIFY((readInto(*third, thirdBytes, ofThird), ofThird.size() >= 27));
    const size_t before = ofSecond.size();
    QTRY_VERIFY((readInto(*second, secondBytes, ofSecond), ofSecond.size() >= before + 9));
    QTRY_VERIFY((readInto(*second, secondBytes, ofSecond),
                 ofSecond.back().has_feed() && ofSecond.back().feed().receivers() == 2));
}

void TestHostFeed::listen_slowReader_doesNotHoldTheOthers()
{
    const Server server;
    const auto slow = server.connectTo();
    QVERIFY(slow);
    slow->setReadBufferSize(1);
    slow->setSocketOption(QAbstractSocket::ReceiveBufferSizeSocketOption, 32768);
    const auto quick = server.connectTo();
    QVERIFY(quick);
    QByteArray bytes;
    std::vector<host::Envelope> envelopes;
    QTRY_VERIFY((readInto(*quick, bytes, envelopes), envelopes.size() >= 90));
    [[maybe_unused]] const qint64 before = server.getResidentKilobytes();
    QVERIFY(before > 0);
    QTRY_VERIFY_WITH_TIMEOUT((readInto(*quick, bytes, envelopes), envelopes.size() >= 630), 20000);
    QCOMPARE(envelopes.back().feed().dropped_rounds(), 0);
#ifndef __SANITIZE_ADDRESS__ // which keeps what was freed for some time
    QVERIFY(server.getResidentKilobytes() < before + 2000);
#endif
    for (size_t i = 1; i < envelopes.size(); ++i)
        QCOMPARE(envelopes[i].sequence(), envelopes[i - 1].sequence() + 1);

    slow->setReadBufferSize(0);
    QByteArray slowBytes;
    std::vector<host::Envelope> ofSlow;
    QTRY_VERIFY((readInto(*slow, slowBytes, ofSlow),
                 std::any_of(ofSlow.begin(), ofSlow.end(), [](const host::Envelope &envelope) {
                     return envelope.has_feed() && envelope.feed().dropped_rounds() > 0;
                 })));
}

void TestHostFeed::listen_portInUse()
{
    const Server server;
    const Result result = run({"--listen", QString::number(server.port)});
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.startsWith("corvane-hostfeed: Cannot listen on 127.0.0.1:"),
             result.errors.constData());
}

CORVANE_TEST_MAIN(TestHostFeed)
#include "tst_hostfeed.moc"
