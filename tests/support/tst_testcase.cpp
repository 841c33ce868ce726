#include "memleaktracer.h"
#include "testcase.h"

#include <QProcess>

using namespace corvane::test;

namespace {

constexpr char subjectArgument[] = "--subject";

} // namespace

/** Cases that are to pass or fail; run one at a time in a process of their own. */
class Subject : public TestCase
{
    Q_OBJECT

private Q_SLOTS:

    void quiet() { QVERIFY(true); }

    void warning() { qWarning("something odd"); }

    void critical() { qCritical("something bad"); }

    void announcedWarning()
    {
        expectWarning(QStringLiteral("odd"));
        qWarning("something odd");
    }

    void twoWarningsOneAnnounced()
    {
        expectWarning(QStringLiteral("odd"));
        qWarning("something odd");
        qWarning("something odd");
    }

    void announcedWarningThatDoesNotCome() { expectWarning(QStringLiteral("odd")); }

    void objectLeftAlive() { MemLeakTracer::getInstance()->doAllocateObject("Left"); }

    void objectDestroyedTwice() { MemLeakTracer::getInstance()->doDeallocateObject("Twice"); }

    void objectGone()
    {
        MemLeakTracer::getInstance()->doAllocateObject("Gone");
        MemLeakTracer::getInstance()->doDeallocateObject("Gone");
    }

    void objectDeletedLater()
    {
        MemLeakTracer::getInstance()->doAllocateObject("Later");
        auto *object = new QObject;
        connect(object, &QObject::destroyed,
                [] { MemLeakTracer::getInstance()->doDeallocateObject("Later"); });
        object->deleteLater();
    }
};

class TestTestCase : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void case_passesOrFails_data();
    void case_passesOrFails();
};

void TestTestCase::case_passesOrFails_data()
{
    QTest::addColumn<int>("failures");
    QTest::addColumn<QString>("output");

    QTest::newRow("quiet") << 0 << "PASS";
    QTest::newRow("warning") << 1 << "unexpected warning: something odd";
    QTest::newRow("critical") << 1 << "unexpected warning: something bad";
    QTest::newRow("announcedWarning") << 0 << "PASS";
    QTest::newRow("twoWarningsOneAnnounced") << 1 << "unexpected warning: something odd";
    QTest::newRow("announcedWarningThatDoesNotCome") << 1 << "no such warning: odd";
    QTest::newRow("objectLeftAlive") << 1 << "left alive: Left: 0 -> 1";
    QTest::newRow("objectDestroyedTwice") << 1 << "left alive: Twice: 0 -> -1";
    QTest::newRow("objectGone") << 0 << "PASS";
    QTest::newRow("objectDeletedLater") << 0 << "PASS";
}

void TestTestCase::case_passesOrFails()
{
    QFETCH(int, failures);
    QFETCH(QString, output);

    QProcess process;
    process.start(QCoreApplication::applicationFilePath(),
                  {QLatin1String(subjectArgument), QLatin1String(QTest::currentDataTag())});
    QVERIFY(process.waitForFinished());

    const QString printed = QString::fromUtf8(process.readAllStandardOutput());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QVERIFY2(printed.contains(output), qPrintable(printed));
    QCOMPARE(process.exitCode(), failures);
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], subjectArgument) == 0) {
        Subject subject;
        char *arguments[] = {argv[0], argv[2]};
        return runTests(subject, 2, arguments);
    }
    TestTestCase testObject;
    return runTests(testObject, argc, argv);
}

#include "tst_testcase.moc"
