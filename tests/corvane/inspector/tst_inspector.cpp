#include "testcase.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtEndian>

#include <csignal>

using namespace corvane::test;

class tst_inspector : public TestCase
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
    void mistake_exitsWith1AndSaysWhere_data();
    void mistake_exitsWith1AndSaysWhere();
    void failingProgram_keepsTheReport();
    void screenshot_showsTheWindow();
    void screenshot_atEveryScale_data();
    void screenshot_atEveryScale();
    void screenshot_unwritable_exitsWith1();
    void optionsOfQt_areTakenByQt();
    void withoutDefinitions_theWindowAsks();
    void brokenSettings_arePutAside();
    void crash_leavesItsTrace_data();
    void crash_leavesItsTrace();
    void version_isPrinted();
};

namespace {

struct Outcome
{
    int exitCode = -1;
    QByteArray output;
    QByteArray errors;

    QJsonObject json() const { return QJsonDocument::fromJson(output).object(); }
};

QString example(const QString &name)
{
    return sourceFile(QStringLiteral("examples/recording/") + name);
}

Outcome run(const QStringList &arguments, const QByteArray &input = {})
{
    QProcess process;
    process.start(QStringLiteral(CORVANE_INSPECTOR), arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, {}, "crashed or hung: " + process.readAllStandardError()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QStringList onExample(const QStringList &arguments)
{
    return QStringList{QStringLiteral("--definitions"), example(QStringLiteral("rover.xml"))}
           + arguments;
}

Outcome reportOn(const QString &source, const QByteArray &input = {})
{
    return run(onExample({QStringLiteral("--report"), QStringLiteral("json"), source}), input);
}

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

void tst_inspector::jsonReport_ofRecording_hasEveryKey()
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

void tst_inspector::jsonReport_ofCaptures_data()
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

void tst_inspector::jsonReport_ofCaptures()
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

void tst_inspector::jsonReport_manyEvents_saysHowManyAreOmitted()
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

void tst_inspector::jsonReport_tellsTheRhythm()
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

void tst_inspector::textReport_listsMessagesSendersAndEvents()
{
    const Outcome outcome
        = run(onExample({"--report", "text", example(QStringLiteral("rover.tlog"))}));
    QCOMPARE(outcome.exitCode, 0);
    for (const char *part : {"Good frames:     1737", "597            0", "8  1/1",
                             "CRC error: MOTION", "longest event round"})
        QVERIFY2(outcome.output.contains(part), part);
}

void tst_inspector::report_fromStandardInput()
{
    const Outcome outcome = reportOn(QStringLiteral("-"), recordedBytes());
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.json().value("frames").toInteger(), 1737);
}

void tst_inspector::report_fromProgram()
{
    const Outcome outcome
        = reportOn(QStringLiteral("exec:cat '%1'").arg(example(QStringLiteral("rover.tlog"))));
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.json().value("frames").toInteger(), 1737);
}

void tst_inspector::report_fromListenedSocket_endsWithDuration()
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

void tst_inspector::report_ofTheHostFeed_hasItsMessages()
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

void tst_inspector::report_confidentialValues_areNowhere()
{
    const Outcome outcome
        = run(onExample({"--overlay", example(QStringLiteral("rover.overlay.json")), "--report",
                         "json", example(QStringLiteral("rover.tlog"))}));
    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(!outcome.output.contains("-77"));
}

void tst_inspector::mistake_exitsWith1AndSaysWhere_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("part");
    const QString recording = example(QStringLiteral("rover.tlog"));
    QTest::newRow("no definitions")
        << QStringList{"--report", "json", recording} << QByteArray("--definitions FILE");
    QTest::newRow("missing definitions")
        << QStringList{"--definitions", "gone.xml", "--report", "json", recording}
        << QByteArray("gone.xml");
    QTest::newRow("definitions that are none")
        << QStringList{"--definitions", recording, "--report", "json", recording}
        << QByteArray("rover.tlog:1:");
    QTest::newRow("overlay that is none") << onExample(
        {"--overlay", example(QStringLiteral("rover.xml")), "--report", "json", recording})
                                          << QByteArray("rover.xml:1:1");
    QTest::newRow("missing source")
        << onExample({"--report", "json", "gone.tlog"}) << QByteArray("gone.tlog");
    QTest::newRow("folder as source") << onExample({"--report", "json", "."}) << QByteArray(".");
    QTest::newRow("unknown scheme")
        << onExample({"--report", "json", "gopher://x"}) << QByteArray("gopher");
    QTest::newRow("refused connection")
        << onExample({"--report", "json", "tcp://127.0.0.1:1"}) << QByteArray("127.0.0.1:1");
    QTest::newRow("unknown option") << QStringList{"--wrong"} << QByteArray("wrong");
}

void tst_inspector::mistake_exitsWith1AndSaysWhere()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, part);
    const Outcome outcome = run(arguments);
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.errors.startsWith("corvane-inspector: "), outcome.errors.constData());
    QVERIFY2(outcome.errors.contains(part), outcome.errors.constData());
    QCOMPARE(outcome.output, QByteArray());
}

void tst_inspector::failingProgram_keepsTheReport()
{
    const Outcome outcome = reportOn(
        QStringLiteral("exec:cat '%1'; exit 3").arg(example(QStringLiteral("rover.tlog"))));
    QCOMPARE(outcome.exitCode, 1);
    QCOMPARE(outcome.json().value("frames").toInteger(), 1737);
    QVERIFY2(outcome.errors.contains("3"), outcome.errors.constData());
}

void tst_inspector::screenshot_showsTheWindow()
{
    const QTemporaryDir folder;
    const QString picture = folder.filePath(QStringLiteral("window.png"));
    const Outcome outcome = run(onExample({"--speed", "max", "--screenshot", picture, "--after",
                                           "1", example(QStringLiteral("rover.tlog"))}));
    QCOMPARE(outcome.exitCode, 0);
    const QImage image(picture);
    QVERIFY(image.width() > 300 && image.height() > 200);
    QVERIFY(image.convertToFormat(QImage::Format_Indexed8).colorCount() > 2);
}

void tst_inspector::screenshot_atEveryScale_data()
{
    QTest::addColumn<QByteArray>("scale");
    QTest::addColumn<QSize>("size");
    QTest::newRow("1") << QByteArray("1") << QSize(800, 500);
    QTest::newRow("1.5") << QByteArray("1.5") << QSize(1200, 750);
    QTest::newRow("2") << QByteArray("2") << QSize(1600, 1000);
}

void tst_inspector::screenshot_atEveryScale()
{
    QFETCH(QByteArray, scale);
    QFETCH(QSize, size);
    const QTemporaryDir folder;
    const QString file = folder.filePath("window.png");
    qputenv("QT_SCALE_FACTOR", scale);
    const Outcome outcome
        = run(QStringList{"-qwindowgeometry", "800x500"}
              + onExample({"--screenshot", file, "--after", "0.5", example("rover.tlog")}));
    qunsetenv("QT_SCALE_FACTOR");
    QVERIFY2(outcome.exitCode == 0, outcome.errors.constData());
    QCOMPARE(QImage(file).size(), size);
}

void tst_inspector::screenshot_unwritable_exitsWith1()
{
    const Outcome outcome = run({"--screenshot", "no/such/folder/window.png", "--after", "0"});
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY(outcome.errors.contains("no/such/folder/window.png"));
}

void tst_inspector::optionsOfQt_areTakenByQt()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("window.png");
    const Outcome outcome
        = run(QStringList{"-style", "windows", "-platform", "offscreen"}
              + onExample({"--screenshot", file, "--after", "0.2", example("rover.tlog")}));
    QVERIFY2(outcome.exitCode == 0, outcome.errors.constData());
    QVERIFY(!QImage(file).isNull());
    const Outcome wrong = run({"-style", "windows", "--wrong"});
    QCOMPARE(wrong.exitCode, 1);
    QVERIFY2(wrong.errors.contains("corvane-inspector: Unknown option 'wrong'"),
             wrong.errors.constData());
}

void tst_inspector::withoutDefinitions_theWindowAsks()
{
    QProcess process;
    process.start(QStringLiteral(CORVANE_INSPECTOR), {example("rover.tlog")});
    QVERIFY(process.waitForStarted());
    QVERIFY(!process.waitForFinished(1000)); // it shows a window instead of giving up
    process.terminate();
    QVERIFY(process.waitForFinished());
}

void tst_inspector::brokenSettings_arePutAside()
{
    const QTemporaryDir home;
    const QDir folder(home.filePath("corvane"));
    QVERIFY(QDir().mkpath(folder.path()));
    QFile broken(folder.filePath("corvane-inspector.ini"));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("\x7f\0\xff no settings", 15);
    broken.close();
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    const Outcome outcome = run(onExample(
        {"--screenshot", home.filePath("window.png"), "--after", "0.2", example("rover.tlog")}));
    qputenv("XDG_CONFIG_HOME", before);
    QVERIFY2(outcome.exitCode == 0, outcome.errors.constData());
    QCOMPARE(folder.entryList({"corvane-inspector.ini.broken-*"}).size(), 1);
}

void tst_inspector::crash_leavesItsTrace_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("memory fault") << SIGSEGV << QByteArray("SIGSEGV");
    QTest::newRow("assertion") << SIGABRT << QByteArray("SIGABRT");
}

void tst_inspector::crash_leavesItsTrace()
{
    QFETCH(int, signal);
    QFETCH(QByteArray, name);
    const QTemporaryDir home;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_DATA_HOME", home.path());
    environment.insert("XDG_CONFIG_HOME", home.path());
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(CORVANE_INSPECTOR), onExample({example("rover.tlog")}));
    QVERIFY(process.waitForStarted());
    QVERIFY(!process.waitForFinished(1500)); // it is reading by then
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), signal), 0);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    const QDir folder(home.filePath("corvane/crashes"));
    const QStringList files = folder.entryList({"crash-*.txt"});
    QCOMPARE(files.size(), 1);
    QFile file(folder.filePath(files.constFirst()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray trace = file.readAll();
    QVERIFY2(trace.startsWith("corvane-inspector ended by " + name), trace.constData());
    QVERIFY2(trace.contains("Opened "), trace.constData());
}

void tst_inspector::version_isPrinted()
{
    const Outcome outcome = run({"--version"});
    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(outcome.output.startsWith("corvane-inspector "));
}

CORVANE_TEST_MAIN(tst_inspector)
#include "tst_inspector.moc"
