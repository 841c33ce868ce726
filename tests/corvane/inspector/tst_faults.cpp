#include "protobufmessages.h"
#include "testcase.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

using namespace corvane::test;

/** What the world does to the program beside sending nonsense. */
class tst_faults : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void bytesOneByOne_giveTheSame();
    void bursts_giveTheSame();
    void timeThatStepsBack_isNoGap();
    void slowConsumer_getsEverything();
    void memoryThatIsTooSmall_keepsWhatCame_data();
    void memoryThatIsTooSmall_keepsWhatCame();

private:
    QTemporaryDir folder;
};

namespace {

struct Outcome
{
    int exitCode = -1;
    QByteArray output;
    QByteArray errors;
};

QString example(const QString &name)
{
    return sourceFile(QStringLiteral("examples/recording/") + name);
}

/** Runs a command line of the shell in which INSPECTOR stands for the program. */
Outcome shell(const QString &line)
{
    QProcess process;
    process.start(
        QStringLiteral("sh"),
        {QStringLiteral("-c"), QString(line).replace(QLatin1String("INSPECTOR"),
                                                     QStringLiteral("'" CORVANE_INSPECTOR "'"))});
    process.closeWriteChannel();
    if (!process.waitForFinished(120'000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, {}, "crashed or hung: " + process.readAllStandardError()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

/** The JSON report on what \a program writes to its output. */
QJsonObject reportOn(const QString &program)
{
    const Outcome outcome = shell(
        QStringLiteral("INSPECTOR --definitions '%1' --framing tlog --report json \"exec:%2\"")
            .arg(example(QStringLiteral("rover.xml")), program));
    if (outcome.exitCode != 0)
        qWarning("%s", outcome.errors.constData());
    return QJsonDocument::fromJson(outcome.output).object();
}

qint64 count(const QJsonObject &report, const char *key)
{
    return report.value(QLatin1String(key)).toInteger(-1);
}

/** "name count" of each type. */
QStringList typesOf(const QJsonObject &report)
{
    QStringList lines;
    for (const QJsonValue &type : report.value(QLatin1String("messages")).toArray())
        lines += type["name"].toString() + QLatin1Char(' ')
                 + QString::number(type["count"].toInteger());
    return lines;
}

QString recording()
{
    return example(QStringLiteral("rover.tlog"));
}

} // namespace

void tst_faults::bytesOneByOne_giveTheSame()
{
    const QJsonObject whole = reportOn(QStringLiteral("cat '%1'").arg(recording()));
    const QJsonObject oneByOne
        = reportOn(QStringLiteral("dd bs=1 status=none if='%1'").arg(recording()));
    QVERIFY(count(whole, "frames") > 1000);
    QCOMPARE(typesOf(oneByOne), typesOf(whole));
    for (const char *key : {"bytes", "skippedBytes", "frames", "unknownFrames", "crcErrors"})
        QCOMPARE(count(oneByOne, key), count(whole, key));
}

void tst_faults::bursts_giveTheSame()
{
    const QJsonObject once = reportOn(QStringLiteral("cat '%1'").arg(recording()));
    const QJsonObject bursts = reportOn(
        QStringLiteral("for i in 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 "
                       "26 27 28 29 30; do cat '%1'; done | dd obs=1M status=none")
            .arg(recording()));
    for (const char *key : {"bytes", "skippedBytes", "frames", "unknownFrames", "crcErrors"})
        QCOMPARE(count(bursts, key), 30 * count(once, key));
}

void tst_faults::timeThatStepsBack_isNoGap()
{
    const QJsonObject once = reportOn(QStringLiteral("cat '%1'").arg(recording()));
    const QJsonObject twice = reportOn(QStringLiteral("cat '%1' '%1'").arg(recording()));
    const auto gapsOf = [](const QJsonObject &report) {
        qint64 gaps = 0;
        for (const QJsonValue &type : report.value(QLatin1String("messages")).toArray())
            gaps += type["gaps"].toInteger();
        return gaps;
    };
    QCOMPARE(count(twice, "frames"), 2 * count(once, "frames"));
    QCOMPARE(gapsOf(twice), 2 * gapsOf(once));
}

void tst_faults::slowConsumer_getsEverything()
{
    const QString exporting = QStringLiteral("INSPECTOR --definitions '%1' --export jsonl '%2'")
                                  .arg(example(QStringLiteral("rover.xml")), recording());
    const Outcome fast = shell(exporting);
    QCOMPARE(fast.exitCode, 0);
    // A pipe holds 64 KiB, of which the reader takes some now and then.
    const Outcome slow = shell(
        exporting
        + QStringLiteral(" | { sleep 1; dd bs=4k count=1 status=none; sleep 1; exec cat; }"));
    QVERIFY(fast.output.size() > 200'000);
    QCOMPARE(slow.output, fast.output);
}

void tst_faults::memoryThatIsTooSmall_keepsWhatCame_data()
{
    QTest::addColumn<int>("kilobytes");
    QTest::addColumn<bool>("suffices");
    QTest::newRow("enough") << 2'000'000 << true;
    QTest::newRow("not enough") << 200'000 << false;
}

void tst_faults::memoryThatIsTooSmall_keepsWhatCame()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("a sanitizer needs more address space than the limit of this case");
#endif
    QFETCH(int, kilobytes);
    QFETCH(bool, suffices);
    const ProtobufDefinitions definitions(
        {{"a.proto", "syntax = \"proto3\"; message A { int32 n = 1; bytes b = 2; }"}});
    QFile stream(folder.filePath(QStringLiteral("huge.bin")));
    QVERIFY(stream.open(QIODevice::WriteOnly));
    stream.write(framedVarint(definitions.encode(QStringLiteral("n: 1"))));
    const QByteArray huge(60'000'000, '\0');
    stream.write(framedVarint("\x12" + framedVarint(huge)));
    stream.write(framedVarint(definitions.encode(QStringLiteral("n: 3"))));
    stream.close();

    const Outcome outcome
        = shell(QStringLiteral("ulimit -c 0; ulimit -v %1; INSPECTOR --definitions '%2' "
                               "--export jsonl --select 'Protocol Buffers.A.n' '%3'")
                    .arg(kilobytes)
                    .arg(definitions.path(QStringLiteral("a.proto")), stream.fileName()));
    QCOMPARE(outcome.exitCode, suffices ? 0 : 1);
    QCOMPARE(outcome.output.count('\n'), suffices ? 3 : 1);
    QVERIFY(outcome.output.contains("\"n\":1"));
    QCOMPARE(outcome.errors.contains("not enough memory"), !suffices);
}

CORVANE_TEST_MAIN(tst_faults)
#include "tst_faults.moc"
