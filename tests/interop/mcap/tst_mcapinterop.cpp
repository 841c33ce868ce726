#include "mcapreader.h"
#include "testcase.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

using namespace corvane;
using namespace corvane::test;

namespace {

/** Runs a program in the folder of the node package; what went wrong, or an empty text. */
QString run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setWorkingDirectory(QStringLiteral(INTEROP_BUILD_DIR));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("NODE_PATH", QStringLiteral(INTEROP_BUILD_DIR "/node_modules"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(120000)) {
        process.kill();
        process.waitForFinished();
        return QStringLiteral("%1: %2").arg(program, process.errorString());
    }
    return process.exitCode() == 0 ? QString() : QString::fromUtf8(process.readAll()).trimmed();
}

QString sourceOf(const QString &name)
{
    return sourceFile(QStringLiteral("tests/interop/mcap/") + name);
}

QByteArray readResult(const QString &name)
{
    QFile file(QStringLiteral(INTEROP_BUILD_DIR "/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Writes down messages as the generator does. */
class Listener : public McapListener
{
public:
    void readSchema(const McapSchema &schema) override
    {
        schemas.append(schema.name + ": " + QString::fromUtf8(schema.data));
    }

    void readChannel(const McapChannel &channel, const McapSchema *schema) override
    {
        channels.append(QStringLiteral("%1 %2 %3 %4")
                            .arg(channel.topic, channel.messageEncoding,
                                 channel.metadata.value("topic"), schema->name));
    }

    void readMessage(const McapMessage &message, const McapChannel &channel, qint64) override
    {
        messages.append(QStringLiteral("%1 %2 %3 %4")
                            .arg(channel.topic)
                            .arg(message.sequence)
                            .arg(message.logTimeNs)
                            .arg(QString::fromLatin1(message.data.toByteArray().toHex())));
    }

    void reportProblem(const McapProblem &problem) override { problems.append(problem.text); }

    QStringList schemas;
    QStringList channels;
    QStringList messages;
    QStringList problems;
};

void read(Listener &listener, const QByteArray &file)
{
    McapReader reader(listener);
    reader.append(file);
    reader.finish();
    while (reader.step() == McapReader::Step::Advanced) {
    }
}

} // namespace

class TestMcapInterop : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void whole_data();
    void whole();
    void cut_data();
    void cut();

private:
    QStringList expected;
};

void TestMcapInterop::initTestCase()
{
    for (const char *program : {"node", "npm", "zstd", "lz4"}) {
        if (QStandardPaths::findExecutable(program).isEmpty())
            QSKIP("node, npm, zstd and lz4 are not all installed");
    }
    const QDir folder(QStringLiteral(INTEROP_BUILD_DIR));
    folder.mkpath(".");
    for (const char *name : {"package.json", "package-lock.json"}) {
        QFile::remove(folder.filePath(name));
        QFile::copy(sourceOf(name), folder.filePath(name));
    }
    if (const QString error
        = run("npm", {"ci", "--ignore-scripts", "--no-audit", "--no-fund", "--prefer-offline"});
        !error.isEmpty())
        QSKIP(qPrintable(QStringLiteral("npm ci failed: ") + error));
    const QString error = run("node", {sourceOf("generate.cjs"), "."});
    QVERIFY2(error.isEmpty(), qPrintable(error));
    expected = QString::fromUtf8(readResult("expected.txt")).split('\n');
    QCOMPARE(expected.size(), 300);
}

void TestMcapInterop::whole_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"plain", "unchunked", "zstd", "lz4"})
        QTest::newRow(name) << QStringLiteral("%1.mcap").arg(name);
}

void TestMcapInterop::whole()
{
    QFETCH(QString, name);
    Listener listener;
    read(listener, readResult(name));
    QCOMPARE(listener.problems, QStringList());
    QCOMPARE(listener.messages, expected);
    listener.schemas.sort();
    QCOMPARE(listener.schemas,
             QStringList({"pkg.one: schema of /one", "pkg.three: schema of /three",
                          "pkg.two: schema of /two"}));
    listener.channels.sort();
    QCOMPARE(listener.channels,
             QStringList({"/one protobuf /one pkg.one", "/three protobuf /three pkg.three",
                          "/two protobuf /two pkg.two"}));
}

void TestMcapInterop::cut_data()
{
    whole_data();
}

void TestMcapInterop::cut()
{
    QFETCH(QString, name);
    const QByteArray file = readResult(name);
    QVERIFY(file.size() > 30000);
    qsizetype before = 0;
    for (qsizetype size = 0; size < file.size(); size += 1000) {
        Listener listener;
        read(listener, file.first(size));
        QCOMPARE(listener.problems, QStringList("The file is cut off here."));
        QVERIFY(listener.messages.size() >= before);
        before = listener.messages.size();
        QCOMPARE(listener.messages, expected.first(before));
    }
    QVERIFY(before > 250);
}

CORVANE_TEST_MAIN(TestMcapInterop)
#include "tst_mcapinterop.moc"
