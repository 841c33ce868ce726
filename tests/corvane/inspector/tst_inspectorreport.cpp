#include "inspectorprogram.h"

#include <QFile>
#include <QJsonArray>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtEndian>

using namespace corvane::test;

namespace {

QByteArray recordedBytes()
{
    QFile file(example(QStringLiteral("rover.tlog")));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Lines "id frames gaps lost", sorted. */
QStringList sendersOf(const QJsonObject &report)
{
    QStringList lines;
    for (const QJsonValue &sender : report.value(QStringLiteral("senders")).toArray())
        lines += QStringLiteral("%1 %2 %3 %4")
                     .arg(sender[QStringLiteral("id")].toString())
                     .arg(sender[QStringLiteral("frames")].toInteger())
                     .arg(sender[QStringLiteral("sequenceGaps")].toInteger())
                     .arg(sender[QStringLiteral("lost")].toInteger());
    lines.sort();
    return lines;
}

/** Lines "name crcErrors" of the types with damage, sorted. */
QStringList damageOf(const QJsonObject &report)
{
    QStringList lines;
    for (const QJsonValue &message : report.value(QStringLiteral("messages")).toArray())
        if (message[QStringLiteral("crcErrors")].toInteger() > 0)
            lines += QStringLiteral("%1 %2")
                         .arg(message[QStringLiteral("name")].toString())
                         .arg(message[QStringLiteral("crcErrors")].toInteger());
    lines.sort();
    return lines;
}

int countSeenTypes(const QJsonObject &report)
{
    int types = 0;
    for (const QJsonValue &message : report.value(QStringLiteral("messages")).toArray())
        types += message[QStringLiteral("count")].toInteger() > 0 ? 1 : 0;
    return types;
}

} // namespace

class tst_inspectorreport : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void jsonReport_ofRecording_hasEveryKey();
    void jsonReport_ofCaptures_data();
    void jsonReport_ofCaptures();
    void jsonReport_manyEvents_saysHowManyAreOmitted();
    void jsonReport_tellsTheRhythm();
    void textReport_listsMessagesSendersAndEvents();
    void report_fromStandardInput();
    void report_fromProgram();
    void report_fromListenedSocket_endsWithDuration();
    void report_ofTheHostFeed_hasItsMessages();
    void report_confidentialValues_areNowhere();
};

void tst_inspectorreport::jsonReport_ofRecording_hasEveryKey()
{
    const Outcome outcome = reportOn(example(QStringLiteral("rover.tlog")));
    QCOMPARE(outcome.errors, QByteArray());
    QCOMPARE(outcome.exitCode, 0);
    const QJsonObject report = outcome.json();
    QCOMPARE(report.keys(), (QStringList{"bytes", "crcErrors", "eventCount", "events",
                                         "eventsOmitted", "frames", "messages", "performance",
                                         "senders", "skippedBytes", "source", "unknownFrames"}));
    QCOMPARE(report.value("source").toString(), example(QStringLiteral("rover.tlog")));
    QCOMPARE(report.value("bytes").toInteger(), recordedBytes().size());
    QCOMPARE(report.value("frames").toInteger(), 1737);
    QCOMPARE(report.value("crcErrors").toInteger(), 1);
    QCOMPARE(report.value("skippedBytes").toInteger(), 0);
    QCOMPARE(report.value("unknownFrames").toInteger(), 0);
    QCOMPARE(report.value("eventsOmitted").toInteger(), 0);
    const QJsonObject performance = report.value("performance").toObject();
    QCOMPARE(performance.keys(),
             (QStringList{"backlogBytes", "longestRoundMs", "messagesPerSecond", "seconds"}));
    QVERIFY(performance.value("backlogBytes").isNull()); // a file waits for nobody
    QVERIFY(performance.value("longestRoundMs").toDouble() > 0);
    QVERIFY(performance.value("seconds").toDouble() > 0);
    QVERIFY(performance.value("messagesPerSecond").toInteger() > 0);
    QCOMPARE(sendersOf(report), (QStringList{"1/1 1677 2 8", "255/190 60 0 0"}));
    QCOMPARE(damageOf(report), QStringList{"MOTION 1"});
    const QJsonObject first = report.value("messages").toArray().at(0).toObject();
    QCOMPARE(first.keys(),
             (QStringList{"count", "crcErrors", "format", "gaps", "intervals", "lastIntervalMs",
                          "missingEpochs", "name", "regular", "unknownInterval", "unknownTime"}));
    QCOMPARE(first.value("format").toString(), QStringLiteral("MAVLink"));
    const QJsonArray events = report.value("events").toArray();
    QVERIFY(events.first()["text"].toString().startsWith("Opened "));
    QVERIFY(events.last()["text"].toString().endsWith(" has ended."));
    const QJsonObject event = events.at(1).toObject();
    QCOMPARE(event.value("time").toString(), QStringLiteral("2026-01-01T12:00:22.200Z"));
    QVERIFY(event.value("text").toString().startsWith(
        QStringLiteral("CRC error: MOTION from sender 1/1")));
}

void tst_inspectorreport::jsonReport_ofCaptures_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("frames");
    QTest::addColumn<int>("types");
    QTest::addColumn<int>("skippedBytes");
    QTest::addColumn<QStringList>("senders");
    QTest::addColumn<QStringList>("damage");
    QTest::newRow("ardusub") << "captures/ardusub-small.tlog" << 35912 << 46 << 0
                             << QStringList{"1/1 32584 0 0", "1/100 286 4 4", "1/194 264 263 1009",
                                            "1/220 1011 263 263", "255/190 1767 356 6388"}
                             << QStringList{"CAMERA_CAPTURE_STATUS 1", "CAMERA_INFORMATION 1",
                                            "CAMERA_SETTINGS 1", "VIDEO_STREAM_INFORMATION 1"};
    QTest::newRow("vtol") << "captures/vtol.tlog" << 23894 << 41 << 0
                          << QStringList{"1/1 23894 22 1200"} << QStringList();
    QTest::newRow("raw") << "captures/node-mavlink-data.mavlink" << 1476 << 24 << 11
                         << QStringList{"1/1 1476 0 0"} << QStringList();
    QTest::newRow("cut short") << "malformed/pymavlink-capture.mavlink" << 0 << 0 << 36764
                               << QStringList() << QStringList();
}

void tst_inspectorreport::jsonReport_ofCaptures()
{
    CORVANE_SAMPLE_FILE(definitions, "mavlink/definitions/all.xml");
    QFETCH(QString, file);
    QFETCH(int, frames);
    QFETCH(int, types);
    QFETCH(int, skippedBytes);
    QFETCH(QStringList, senders);
    QFETCH(QStringList, damage);
    const QString capture = sampleFile(QStringLiteral("mavlink/") + file);
    const Outcome outcome = run({"--definitions", definitions, "--report", "json", capture});
    QCOMPARE(outcome.exitCode, 0);
    const QJsonObject report = outcome.json();
    QCOMPARE(report.value("frames").toInteger(), frames);
    QCOMPARE(countSeenTypes(report), types);
    QCOMPARE(report.value("skippedBytes").toInteger(), skippedBytes);
    QCOMPARE(report.value("unknownFrames").toInteger(), 0);
    QCOMPARE(report.value("crcErrors").toInteger(), damage.size());
    QCOMPARE(sendersOf(report), senders);
    QCOMPARE(damageOf(report), damage);
}

void tst_inspectorreport::jsonReport_manyEvents_saysHowManyAreOmitted()
{
    // Bytes that are no frames, before each frame: one event each, in seconds of their own.
    QByteArray repeated;
    for (int i = 0; i < 1200; ++i) {
        QByteArray frame
            = recordedBytes().left(8 + 12 + static_cast<quint8>(recordedBytes().at(9)));
        qToBigEndian(1'700'000'000'000'000 + i * 2'000'000LL, frame.data());
        repeated += frame + (i == 0 ? QByteArray() : QByteArray("garbage"));
    }
    const QJsonObject report = reportOn(QStringLiteral("-"), repeated).json();
    QCOMPARE(report.value("events").toArray().size(), 1000);
    QVERIFY(report.value("eventsOmitted").toInteger() > 190);
    QVERIFY(report.value("eventCount").toInteger()
            >= report.value("eventsOmitted").toInteger() + 1000);
}

void tst_inspectorreport::jsonReport_tellsTheRhythm()
{
    CORVANE_SAMPLE_FILE(definitions, "mavlink/definitions/all.xml");
    const QString capture = sampleFile(QStringLiteral("mavlink/captures/ardusub-small.tlog"));
    const QJsonObject report
        = run({"--definitions", definitions, "--report", "json", capture}).json();
    QJsonObject attitude;
    for (const QJsonValue &message : report.value("messages").toArray()) {
        // Each message is in one class or in none.
        qint64 sum = message["unknownTime"].toInteger() + message["unknownInterval"].toInteger();
        for (const QJsonValue &interval : message["intervals"].toArray())
            sum += interval["count"].toInteger();
        QCOMPARE(sum, message["count"].toInteger());
        if (message["name"] == "ATTITUDE")
            attitude = message.toObject();
    }
    QCOMPARE(attitude.value("count").toInteger(), 5245);
    QCOMPARE(attitude.value("lastIntervalMs").toInteger(), 50);
    QVERIFY(attitude.value("regular").toBool());
    QCOMPARE(attitude.value("gaps").toInteger(), 1); // the hole of 1.012 s
    QVERIFY(attitude.value("missingEpochs").toInteger() >= 15);
    const QJsonObject dominant = attitude.value("intervals").toArray().first().toObject();
    QCOMPARE(dominant.value("ms").toInteger(), 50);
    QVERIFY(dominant.value("count").toInteger() > 5245 * 98 / 100);
    const QJsonObject camera = report.value("senders").toArray().at(2).toObject();
    QCOMPARE(camera.value("id").toString(), "1/100");
    QCOMPARE(camera.value("crcErrors").toInteger(), 4);
    QCOMPARE(camera.value("crcErrorsByMessage").toArray().first()["name"].toString(),
             "CAMERA_CAPTURE_STATUS");
    QCOMPARE(camera.value("crcErrorsByMessage").toArray().size(), 4);
}

void tst_inspectorreport::textReport_listsMessagesSendersAndEvents()
{
    const Outcome outcome
        = run(onExample({"--report", "text", example(QStringLiteral("rover.tlog"))}));
    QCOMPARE(outcome.exitCode, 0);
    for (const char *part : {"Good frames:     1737", "597            0", "8  1/1",
                             "CRC error: MOTION", "longest event round"})
        QVERIFY2(outcome.output.contains(part), part);
}

void tst_inspectorreport::report_fromStandardInput()
{
    const Outcome outcome = reportOn(QStringLiteral("-"), recordedBytes());
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.json().value("frames").toInteger(), 1737);
}

void tst_inspectorreport::report_fromProgram()
{
    const Outcome outcome
        = reportOn(QStringLiteral("exec:cat '%1'").arg(example(QStringLiteral("rover.tlog"))));
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.json().value("frames").toInteger(), 1737);
}

void tst_inspectorreport::report_fromListenedSocket_endsWithDuration()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    connect(&server, &QTcpServer::newConnection, this,
            [&] { server.nextPendingConnection()->write(recordedBytes().left(30'000)); });
    QProcess process;
    process.start(QStringLiteral(CORVANE_INSPECTOR),
                  onExample({"--report", "json", "--duration", "1.5",
                             QStringLiteral("tcp://127.0.0.1:%1").arg(server.serverPort())}));
    QTRY_COMPARE_WITH_TIMEOUT(process.state(), QProcess::NotRunning, 30'000);
    QCOMPARE(process.exitCode(), 0);
    const auto report = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    QCOMPARE(report.value("bytes").toInteger(), 30'000);
    QVERIFY(report.value("frames").toInteger() > 500);
    QCOMPARE(report.value("performance")["backlogBytes"].toInteger(-1), 0);
}

void tst_inspectorreport::report_ofTheHostFeed_hasItsMessages()
{
    const QString folder = sourceFile(QStringLiteral("corvane/hostfeed")) + QLatin1Char('/');
    const QJsonObject report
        = run({"--definitions", folder + "host.proto", "--overlay", folder + "host.overlay.json",
               "--report", "json", "--duration", "2",
               QStringLiteral("exec:'%1' --interval 100").arg(CORVANE_HOSTFEED)})
              .json();
    QVERIFY(report["frames"].toInt() >= 9);
    QCOMPARE(report["unknownFrames"].toInt(), 0);
    QCOMPARE(report["skippedBytes"].toInt(), 0);
    QVERIFY(report["crcErrors"].isNull());
    QStringList names;
    for (const QJsonValue message : report["messages"].toArray())
        names.append(message["name"].toString());
    names.sort();
    QCOMPARE(names, QStringList({"Disks", "Kernel", "Load averages", "Memory", "Network",
                                 "Processes", "Processor", "Temperatures", "This stream"}));
    QCOMPARE(report["senders"][0]["lost"].toInt(), 0);
}

void tst_inspectorreport::report_confidentialValues_areNowhere()
{
    const Outcome outcome
        = run(onExample({"--overlay", example(QStringLiteral("rover.overlay.json")), "--report",
                         "json", example(QStringLiteral("rover.tlog"))}));
    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(!outcome.output.contains("-77"));
}

CORVANE_TEST_MAIN(tst_inspectorreport)
#include "tst_inspectorreport.moc"
