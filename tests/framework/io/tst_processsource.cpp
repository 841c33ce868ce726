#include "processsource.h"
#include "sourcereader.h"
#include "testcase.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <sys/wait.h>

using namespace corvane;

namespace {

/** Whether a process of the group runs; one that has ended waits for its parent to notice. */
bool groupExists(qint64 group)
{
    const QStringList processes = QDir(QStringLiteral("/proc")).entryList({"[1-9]*"}, QDir::Dirs);
    for (const QString &process : processes) {
        QFile file(QStringLiteral("/proc/%1/stat").arg(process));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray status = file.readAll();
        // State, parent and group follow the name, which may contain anything.
        const QList<QByteArray> fields
            = status.mid(status.lastIndexOf(')') + 1).simplified().split(' ');
        if (fields.value(2).toLongLong() == group && fields.value(0) != "Z")
            return true;
    }
    return false;
}

/** Whether this process has a child that has ended and was not waited for. */
bool hasZombie()
{
    siginfo_t info{};
    return ::waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0 && info.si_pid != 0;
}

} // namespace

class TestProcessSource : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void read_givesTheOutput();
    void read_ofALot();
    void end_data();
    void end();
    void failure_keepsTheLastLinesOnly();
    void input_isEmpty();
    void read_waitsForBackgroundWriters();
    void read_whilePaused_holdsTheCommandBack();
    void close_endsTheWholeGroup();
    void close_endsTheStubborn();
    void destruction_endsTheCommand();
    void open_again_runsAgain();
};

void TestProcessSource::read_givesTheOutput()
{
    ProcessSource source(QStringLiteral("echo one; sleep 0.05; echo two; echo noise >&2"));
    test::SourceReader reader(source);
    source.open();
    QTRY_COMPARE(reader.events, QStringList({"opened", "finished"}));
    QCOMPARE(reader.bytes, "one\ntwo\n");
    QVERIFY(source.isLive());
    QVERIFY(source.getName().startsWith("exec:echo one;"));
    QCOMPARE(source.getProcessId(), 0);
    QVERIFY(!hasZombie());
}

void TestProcessSource::read_ofALot()
{
    ProcessSource source(QStringLiteral("head -c 5000000 /dev/zero"));
    test::SourceReader reader(source);
    source.open();
    QTRY_COMPARE(reader.events, QStringList({"opened", "finished"}));
    QCOMPARE(reader.bytes.size(), 5'000'000);
}

void TestProcessSource::end_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("failure");
    QTest::newRow("exit 0") << "true"
                            << "";
    QTest::newRow("exit 3") << "exit 3"
                            << "\"exit 3\" ended with exit code 3.";
    QTest::newRow("last words") << "echo 'no antenna' >&2; exit 1"
                                << "\"echo 'no antenna' >&2; exit 1\" ended with exit code 1. It "
                                   "said last:\nno antenna";
    QTest::newRow("signal") << "kill -KILL $$"
                            << "\"kill -KILL $$\" was ended by signal 9.";
    QTest::newRow("a pipe that breaks") << "yes | head -n 1 >/dev/null"
                                        << "";
}

void TestProcessSource::end()
{
    QFETCH(QString, command);
    QFETCH(QString, failure);
    ProcessSource source(command);
    test::SourceReader reader(source);
    source.open();
    QTRY_VERIFY(reader.hasEnded());
    QCOMPARE(reader.failure, failure);
    QCOMPARE(reader.events, QStringList({"opened", failure.isEmpty() ? "finished" : "failed"}));
}

void TestProcessSource::failure_keepsTheLastLinesOnly()
{
    ProcessSource source(QStringLiteral("seq 100000 >&2; echo out; exit 1"));
    test::SourceReader reader(source);
    source.open();
    QTRY_VERIFY(reader.hasEnded());
    QCOMPARE(reader.bytes, "out\n");
    QStringList lines = reader.failure.split(QLatin1Char('\n'));
    lines.removeFirst();
    QCOMPARE(lines.size(), 10);
    QCOMPARE(lines.first(), "99991");
    QCOMPARE(lines.last(), "100000");
}

void TestProcessSource::input_isEmpty()
{
    ProcessSource source(QStringLiteral("cat; echo end"));
    test::SourceReader reader(source);
    source.open();
    QTRY_VERIFY(reader.hasEnded());
    QCOMPARE(reader.bytes, "end\n");
}

void TestProcessSource::read_waitsForBackgroundWriters()
{
    ProcessSource source(QStringLiteral("(sleep 0.1; echo late) & echo early"));
    test::SourceReader reader(source);
    source.open();
    QTRY_VERIFY(reader.hasEnded());
    QCOMPARE(reader.bytes, "early\nlate\n");
}

void TestProcessSource::read_whilePaused_holdsTheCommandBack()
{
    const QTemporaryDir folder;
    const QString marker = folder.filePath(QStringLiteral("written"));
    ProcessSource source(QStringLiteral("yes | head -c 3000000; touch '%1'").arg(marker));
    test::SourceReader reader(source);
    reader.setPaused(true);
    source.open();
    QTest::qWait(200);
    QCOMPARE(reader.events, QStringList({"opened"}));
    QVERIFY(!QFile::exists(marker));
    reader.setPaused(false);
    QTRY_COMPARE(reader.events, QStringList({"opened", "finished"}));
    QVERIFY(QFile::exists(marker));
    QCOMPARE(reader.bytes.size(), 3'000'000);
}

void TestProcessSource::close_endsTheWholeGroup()
{
    ProcessSource source(QStringLiteral("sleep 60 & sleep 60 & yes"));
    test::SourceReader reader(source);
    source.open();
    QTRY_VERIFY(!reader.bytes.isEmpty());
    const qint64 group = source.getProcessId();
    QVERIFY(group > 0);
    QVERIFY(groupExists(group));
    source.close();
    QTRY_VERIFY(!groupExists(group));
    QVERIFY(!hasZombie());
    QCOMPARE(reader.events, QStringList({"opened"}));
}

void TestProcessSource::close_endsTheStubborn()
{
    ProcessSource source(QStringLiteral("trap '' TERM; echo ready; while :; do sleep 1; done"));
    test::SourceReader reader(source);
    source.open();
    QTRY_COMPARE(reader.bytes, "ready\n");
    const qint64 group = source.getProcessId();
    QElapsedTimer timer;
    timer.start();
    source.close();
    QVERIFY2(timer.elapsed() < 1500, qPrintable(QString::number(timer.elapsed())));
    QTRY_VERIFY(!groupExists(group));
    QVERIFY(!hasZombie());
}

void TestProcessSource::destruction_endsTheCommand()
{
    qint64 group = 0;
    {
        ProcessSource source(QStringLiteral("sleep 60"));
        source.open();
        group = source.getProcessId();
        QVERIFY(group > 0);
    }
    QTRY_VERIFY(!groupExists(group));
    QVERIFY(!hasZombie());
}

void TestProcessSource::open_again_runsAgain()
{
    ProcessSource source(QStringLiteral("echo run"));
    test::SourceReader reader(source);
    source.open();
    QTRY_COMPARE(reader.events, QStringList({"opened", "finished"}));
    source.open();
    QTRY_COMPARE(reader.events, QStringList({"opened", "finished", "opened", "finished"}));
    QCOMPARE(reader.bytes, "run\nrun\n");
}

CORVANE_TEST_MAIN(TestProcessSource)

#include "tst_processsource.moc"
