#include "testcase.h"
#include "testformat.h"

#include <QProcess>

using namespace corvane::test;

namespace {

constexpr char literalArgument[] = "--literal";

} // namespace

class TestTestFormatMistakes : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void mistake_isShownWithItsPlace_data();
    void mistake_isShownWithItsPlace();
};

void TestTestFormatMistakes::mistake_isShownWithItsPlace_data()
{
    QTest::addColumn<QString>("types");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("problem");

    const QString x = "A\n x uint8 {On=1}\n y float\n z int8[]\n";
    QTest::newRow("unknown type") << x << "B{}"
                                  << "line 1, column 1: no message type B";
    QTest::newRow("unknown field") << x << "A{x: 1, w: 2}"
                                   << "line 1, column 9: no field w in A";
    QTest::newRow("field twice") << x << "A{x: 1, x: 2}"
                                 << "column 9: the field has its values";
    QTest::newRow("out of range") << x << "A{x:\n 256}"
                                  << "line 2, column 2: out of range";
    QTest::newRow("negative") << x << "A{x: -1}"
                              << "column 6: out of range for 8 bits";
    QTest::newRow("unknown symbol") << x << "A{x: Off}"
                                    << "column 6: no symbol Off in x";
    QTest::newRow("text for float") << x << "A{y: 'a'}"
                                    << "column 6: expected a number";
    QTest::newRow("single for list") << x << "A{z: 1}"
                                     << "column 6: expected '['";
    QTest::newRow("list for single") << x << "A{x: [1]}"
                                     << "column 6: expected an integer";
    QTest::newRow("not closed") << x << "A{x: 1"
                                << "column 7: expected '}'";
    QTest::newRow("text not closed") << x << "A{x: 'a"
                                     << "a text without closing quote";
    QTest::newRow("two messages") << x << "A{} A{}"
                                  << "expected one message";
    QTest::newRow("no such field type") << "A\n x uint65"
                                        << ""
                                        << "line 2, column 4: no type";
    QTest::newRow("type twice") << "A\nA\n"
                                << ""
                                << "line 2, column 1: there is a type";
    QTest::newRow("field of that name") << "A\n x bool\n x bool"
                                        << ""
                                        << "line 3, column 2: there";
    QTest::newRow("bits of nothing") << "A\n x bits 0"
                                     << ""
                                     << "bits are part of an integer";
    QTest::newRow("bits beyond") << "A\n x int8\n  b bits 8"
                                 << ""
                                 << "a number from 0 to 7";
    QTest::newRow("unknown attribute") << "A\n x int8 odd"
                                       << ""
                                       << "unknown attribute";
    QTest::newRow("symbol twice") << "A\n x int8 {B, B=0}"
                                  << ""
                                  << "column 13: the symbol";
    QTest::newRow("from nowhere") << "A\n x from B"
                                  << ""
                                  << "no type above has a field x";
    QTest::newRow("bits have no value") << "A\n x int8\n  b bits 0"
                                        << "A{x.b: 1}"
                                        << "no values of its own";
}

void TestTestFormatMistakes::mistake_isShownWithItsPlace()
{
    QFETCH(QString, types);
    QFETCH(QString, message);
    QFETCH(QString, problem);

    QProcess process;
    process.start(QCoreApplication::applicationFilePath(),
                  {QLatin1String(literalArgument), types, message});
    QVERIFY(process.waitForFinished());

    const QString printed = QString::fromLocal8Bit(process.readAllStandardError());
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QVERIFY2(printed.contains(problem), qPrintable(printed));
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 4 && qstrcmp(argv[1], literalArgument) == 0) {
        const TestFormat format("Demo", QString::fromLocal8Bit(argv[2]));
        return format.message(QString::fromLocal8Bit(argv[3])).get() == nullptr ? 1 : 0;
    }
    TestTestFormatMistakes testObject;
    return runTests(testObject, argc, argv);
}

#include "tst_testformatmistakes.moc"
