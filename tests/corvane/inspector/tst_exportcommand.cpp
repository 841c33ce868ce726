#include "csvparser.h"
#include "inspectorprogram.h"

#include <QFile>
#include <QJsonArray>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#include <csignal>

using namespace corvane::test;

class tst_exportcommand : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void jsonLines_haveEveryMessage();
    void csv_ofAll_hasTheTypesThatOccur();
    void csv_ofAStream_hasAllTypes();
    void captures_areExportedWhole_data();
    void captures_areExportedWhole();
    void selection_isWrittenToTheFile();
    void raw_givesNumbers();
    void confidentialValues_areNowhere();
    void standardInput_isRead();
    void failingProgram_keepsWhatCame();
    void interrupted_writesWhatCame();
    void duration_endsTheExport();
    void reader_thatGoesAway_endsTheProgram();
    void nothingSelectedCame_isSaid();
    void mistake_exitsWith1AndWritesNothing_data();
    void mistake_exitsWith1AndWritesNothing();
    void fullDisk_isTold();
    void missingSource_leavesTheFileAlone();
    void source_isNotOverwritten();
};

namespace {

/** Nothing where the output is no CSV. */
QList<QStringList> rowsOf(const Outcome &outcome)
{
    return CsvParser::parse(outcome.output).value_or(QList<QStringList>());
}

QString recording()
{
    return example(QStringLiteral("rover.tlog"));
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray firstLines(const QByteArray &text, int count)
{
    qsizetype end = 0;
    for (; count > 0 && end < text.size(); --count)
        end = text.indexOf("\r\n", end) + 2;
    return text.first(end);
}

QStringList exportArguments(const QString &form, const QStringList &further)
{
    return onExample(QStringList{QStringLiteral("--export"), form} + further);
}

Outcome exportAs(const QString &form, const QStringList &further, const QByteArray &input = {})
{
    return run(exportArguments(form, further), input);
}

} // namespace

void tst_exportcommand::jsonLines_haveEveryMessage()
{
    const Outcome outcome = exportAs(QStringLiteral("jsonl"), {recording()});
    QCOMPARE(outcome.errors, QByteArray());
    QCOMPARE(outcome.exitCode, 0);
    const auto objects = outcome.objects();
    QCOMPARE(objects.size(), 1737);
    const QJsonObject &wheels = objects.at(1);
    QCOMPARE(wheels.keys(), (QStringList{"fields", "sender", "sequence", "time", "type"}));
    QCOMPARE(wheels.value("time").toString(), QStringLiteral("2026-01-01T12:00:00.000900Z"));
    QCOMPARE(wheels.value("type").toString(), QStringLiteral("WHEELS"));
    QCOMPARE(wheels.value("sender").toString(), QStringLiteral("1/1"));
    QCOMPARE(wheels.value("sequence").toInteger(-1), 1);
    QCOMPARE(wheels.value("fields")["current"].toArray(), (QJsonArray{0, 75, 81, 12}));
    QCOMPARE(objects.at(3).value("fields")["mode"].toString(),
             QStringLiteral("ROVER_MODE_STANDBY"));
    QCOMPARE(objects.at(2).value("fields")["time_usec"].toInteger(), 1'767'268'800'000'000);
    // The second battery does not say what it draws.
    QCOMPARE(objects.at(5).value("fields").toObject().keys(), (QStringList{"id", "voltage"}));
}

void tst_exportcommand::csv_ofAll_hasTheTypesThatOccur()
{
    // The first second, in which there is one text and no heartbeat of the ground station.
    QTemporaryDir folder;
    const QString part = folder.filePath(QStringLiteral("part.tlog"));
    QFile file(part);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(contentOf(recording()).left(36 + 8 + 12 + 24));
    file.close();
    const auto rows = rowsOf(exportAs(QStringLiteral("csv"), {part}));
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows.at(0), (QStringList{"time", "type", "sender", "sequence", "heading", "vx", "vy",
                                      "turn_rate"}));
}

void tst_exportcommand::csv_ofAStream_hasAllTypes()
{
    const Outcome outcome
        = exportAs(QStringLiteral("csv"), {QStringLiteral("-")}, contentOf(recording()));
    const auto rows = rowsOf(outcome);
    QCOMPARE(rows.size(), 1738);
    QCOMPARE(rows.at(0).size(), 4 + 21);
    QVERIFY(rows.at(0).contains(QStringLiteral("TEXT.text")));
    // For a file that holds all types, the same.
    QCOMPARE(exportAs(QStringLiteral("csv"), {recording()}).output, outcome.output);
}

void tst_exportcommand::captures_areExportedWhole_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("frames");
    QTest::newRow("ardusub") << "captures/ardusub-small.tlog" << 35912;
    QTest::newRow("vtol") << "captures/vtol.tlog" << 23894;
    QTest::newRow("raw") << "captures/node-mavlink-data.mavlink" << 1476;
    QTest::newRow("cut short") << "malformed/pymavlink-capture.mavlink" << 0;
}

void tst_exportcommand::captures_areExportedWhole()
{
    CORVANE_SAMPLE_FILE(definitions, "mavlink/definitions/all.xml");
    QFETCH(QString, file);
    QFETCH(int, frames);
    const QString capture = sampleFile(QStringLiteral("mavlink/") + file);
    const auto exportCapture = [&](const char *form) {
        return run({"--definitions", definitions, "--export", form, capture});
    };
    const Outcome json = exportCapture("jsonl");
    QCOMPARE(json.exitCode, 0);
    const auto objects = json.objects();
    QCOMPARE(objects.size(), frames);
    const Outcome csv = exportCapture("csv");
    QCOMPARE(csv.exitCode, 0);
    QCOMPARE(csv.output.count("\r\n"), frames + 1);
    // Both forms tell the same; the first rows have to do, for the sake of time.
    const auto rows = CsvParser::parse(firstLines(csv.output, 1000)).value_or(QList<QStringList>());
    QCOMPARE(rows.size(), std::min<qsizetype>(frames + 1, 1000));
    for (qsizetype i = 0; i + 1 < rows.size(); ++i) {
        const QJsonObject &object = objects.at(i);
        const QJsonObject fields = object.value("fields").toObject();
        const QStringList &row = rows.at(i + 1);
        QCOMPARE(row.at(0), object.value("time").toString());
        QCOMPARE(row.at(1), object.value("type").toString());
        QCOMPARE(row.at(2), object.value("sender").toString());
        qsizetype cells = 0;
        for (const QString &cell : row.mid(4))
            cells += cell.isNull() ? 0 : 1;
        QCOMPARE(cells, fields.size());
    }
}

void tst_exportcommand::selection_isWrittenToTheFile()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("out.csv"));
    const Outcome outcome = exportAs(QStringLiteral("csv"),
                                     {"--select", "MAVLink.HEARTBEAT.health.*_GYRO", "--select",
                                      "MAVLink.HEARTBEAT.mode", "-o", path, recording()});
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.output, QByteArray());
    QCOMPARE(outcome.errors, QByteArray());
    const auto rows = CsvParser::parse(contentOf(path));
    QVERIFY(rows);
    QCOMPARE(rows->at(0).mid(4), (QStringList{"health.ROVER_HEALTH_GYRO", "mode"}));
    QCOMPARE(rows->at(1).mid(4), (QStringList{"true", "ROVER_MODE_STANDBY"}));
}

void tst_exportcommand::raw_givesNumbers()
{
    const auto rows = rowsOf(
        exportAs(QStringLiteral("csv"), {"--raw", "--select", "MAVLink.HEARTBEAT", recording()}));
    QCOMPARE(rows.at(1).mid(4), (QStringList{"0", "0", "15"}));
}

void tst_exportcommand::confidentialValues_areNowhere()
{
    for (const char *form : {"csv", "jsonl"}) {
        const Outcome outcome = exportAs(
            QLatin1String(form), {"--overlay", example(QStringLiteral("rover.overlay.json")),
                                  "--select", "MAVLink.POSITION", recording()});
        QCOMPARE(outcome.exitCode, 0);
        QVERIFY(outcome.output.contains("(confidential)"));
        QVERIFY(!outcome.output.contains("-77"));
    }
}

void tst_exportcommand::standardInput_isRead()
{
    const Outcome outcome
        = exportAs(QStringLiteral("jsonl"), {QStringLiteral("-")}, contentOf(recording()));
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.objects().size(), 1737);
}

void tst_exportcommand::failingProgram_keepsWhatCame()
{
    const Outcome outcome = exportAs(QStringLiteral("jsonl"),
                                     {QStringLiteral("exec:cat '%1'; exit 3").arg(recording())});
    QCOMPARE(outcome.exitCode, 1);
    QCOMPARE(outcome.objects().size(), 1737);
    QVERIFY2(outcome.errors.contains("3"), outcome.errors.constData());
}

void tst_exportcommand::interrupted_writesWhatCame()
{
    QProcess process;
    process.start(QStringLiteral(CORVANE_INSPECTOR),
                  exportArguments(QStringLiteral("csv"), {"--select", "MAVLink.MOTION", "-"}));
    process.write(contentOf(recording()));
    // What came is written soon, though more may follow.
    QTRY_VERIFY_WITH_TIMEOUT(process.bytesAvailable() > 1000, 20'000);
    QTRY_COMPARE(process.bytesToWrite(), 0);
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    QVERIFY(process.waitForFinished(20'000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    const auto rows = CsvParser::parse(process.readAllStandardOutput());
    QVERIFY(rows);
    QVERIFY(rows->size() > 500);
}

void tst_exportcommand::duration_endsTheExport()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    connect(&server, &QTcpServer::newConnection, this,
            [&] { server.nextPendingConnection()->write(contentOf(recording()).left(30'000)); });
    QProcess process;
    process.start(QStringLiteral(CORVANE_INSPECTOR),
                  exportArguments(QStringLiteral("jsonl"),
                                  {"--duration", "1.5",
                                   QStringLiteral("tcp://127.0.0.1:%1").arg(server.serverPort())}));
    QTRY_COMPARE_WITH_TIMEOUT(process.state(), QProcess::NotRunning, 30'000);
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(process.readAllStandardOutput().count('\n') > 500);
}

void tst_exportcommand::reader_thatGoesAway_endsTheProgram()
{
    // The source never ends; only the broken pipe does end the program.
    QProcess process;
    const QString command = QStringLiteral("'%1' --definitions '%2' --export jsonl "
                                           "\"exec:while cat '%3'; do :; done\" | head -n 1")
                                .arg(QStringLiteral(CORVANE_INSPECTOR),
                                     example(QStringLiteral("rover.xml")), recording());
    process.start(QStringLiteral("sh"), {QStringLiteral("-c"), command});
    QVERIFY(process.waitForFinished(20'000));
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardOutput().count('\n'), 1);
}

void tst_exportcommand::nothingSelectedCame_isSaid()
{
    const Outcome none = exportAs(QStringLiteral("csv"), {"--select", "MAVLink.POSITION", "-"},
                                  contentOf(recording()).left(36));
    QCOMPARE(none.exitCode, 0);
    QCOMPARE(rowsOf(none).size(), 1);
    const Outcome unselected = exportAs(QStringLiteral("jsonl"), {"--select", "MAVLink.TEXT", "-"},
                                        contentOf(recording()).left(36 + 8 + 12 + 24));
    QCOMPARE(unselected.exitCode, 0);
    QCOMPARE(unselected.output, QByteArray());
    QVERIFY(unselected.errors.contains("no message of the selected types came"));
    const Outcome noise = exportAs(QStringLiteral("jsonl"), {"-"}, QByteArray(5000, 'x'));
    QCOMPARE(noise.exitCode, 0);
    QVERIFY(noise.errors.contains("no good frame was found"));
}

void tst_exportcommand::mistake_exitsWith1AndWritesNothing_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("part");
    const auto row = [](const char *name, const QStringList &further, const char *part) {
        QTest::newRow(name) << exportArguments(QStringLiteral("csv"), further) << QByteArray(part);
    };
    row("unlike path", {"--select", "Zzzzzzzzz", recording()}, "\"Zzzzzzzzz\" matches no message");
    row("similar path", {"--select", "MAVLink.HEARTBEET", recording()}, "MAVLink.HEARTBEAT");
    row("missing source", {"gone.tlog"}, "gone.tlog");
    row("folder as file", {"-o", "/", recording()}, "cannot write \"/\"");
    row("missing folder", {"-o", "no/such/file.csv", recording()}, "no/such/file.csv");
    row("overlay", {"--overlay", example(QStringLiteral("rover.xml")), recording()},
        "rover.xml:1:1");
    row("no source", {}, "needs a SOURCE");
}

void tst_exportcommand::mistake_exitsWith1AndWritesNothing()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, part);
    const Outcome outcome = run(arguments);
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.errors.startsWith("corvane-inspector: "), outcome.errors.constData());
    QVERIFY2(outcome.errors.contains(part), outcome.errors.constData());
    QCOMPARE(outcome.output, QByteArray());
}

void tst_exportcommand::fullDisk_isTold()
{
    if (!QFile::exists(QStringLiteral("/dev/full")))
        QSKIP("there is no /dev/full");
    for (const char *form : {"csv", "jsonl"}) {
        const Outcome outcome = exportAs(QLatin1String(form), {"-o", "/dev/full", recording()});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY(outcome.errors.contains("cannot write \"/dev/full\": No space left"));
        // Also when a single line is too much, which is written at the end.
        const Outcome small = exportAs(
            QLatin1String(form), {"--select", "MAVLink.TEXT", "-o", "/dev/full", recording()});
        QCOMPARE(small.exitCode, 1);
        QVERIFY(small.errors.contains("No space left"));
    }
    QProcess process;
    process.start(QStringLiteral("sh"),
                  {QStringLiteral("-c"),
                   QStringLiteral("'%1' --definitions '%2' --export csv --select MAVLink.TEXT '%3' "
                                  "> /dev/full")
                       .arg(QStringLiteral(CORVANE_INSPECTOR), example(QStringLiteral("rover.xml")),
                            recording())});
    QVERIFY(process.waitForFinished(20'000));
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(process.readAllStandardError().contains("cannot write to standard output: No space"));
}

void tst_exportcommand::missingSource_leavesTheFileAlone()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("out.csv"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("kept");
    file.close();
    QCOMPARE(exportAs(QStringLiteral("csv"), {"-o", path, "gone.tlog"}).exitCode, 1);
    QCOMPARE(contentOf(path), QByteArray("kept"));
}

void tst_exportcommand::source_isNotOverwritten()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("copy.tlog"));
    const QString link = folder.filePath(QStringLiteral("link.tlog"));
    QVERIFY(QFile::copy(recording(), path));
    QVERIFY(QFile::link(path, link));
    const Outcome outcome = exportAs(QStringLiteral("csv"), {"-o", link, path});
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY(outcome.errors.contains("it is the source"));
    QCOMPARE(contentOf(path), contentOf(recording()));
}

CORVANE_TEST_MAIN(tst_exportcommand)
#include "tst_exportcommand.moc"
