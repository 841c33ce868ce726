#include "exportselection.h"
#include "fieldinfo.h"
#include "messageinfo.h"
#include "testcase.h"
#include "testformat.h"

using namespace corvane;
using namespace corvane::test;

class tst_exportselection : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void paths_select_data();
    void paths_select();
    void mismatch_namesSimilarPaths_data();
    void mismatch_namesSimilarPaths();
    void mismatch_ofOne_winsOverMatchesOfOthers();
    void unlikeAnything_explainsPaths();

private:
    const TestFormat format{QStringLiteral("Demo"), QStringLiteral(R"(
        Position
          lat double
          status uint16 mask {Armed=1, Moving=2}
            armed bits 0 bool
          word uint8
            low bits 0..3
        Attitude
          roll float
          pitch float
        Empty
        Part part
          x uint8
    )")};
};

void tst_exportselection::paths_select_data()
{
    QTest::addColumn<QStringList>("paths");
    QTest::addColumn<QString>("selected");
    QTest::newRow("nothing said") << QStringList()
                                  << "Position(lat,status,word,low) Attitude(roll,pitch) Empty()";
    QTest::newRow("everything") << QStringList{"*"}
                                << "Position(lat,status,word,low) Attitude(roll,pitch) Empty()";
    QTest::newRow("a type") << QStringList{"Demo.Attitude"} << "Attitude(roll,pitch)";
    QTest::newRow("a type without fields") << QStringList{"Demo.Empty"} << "Empty()";
    QTest::newRow("a field") << QStringList{"Demo.Attitude.pitch"} << "Attitude(pitch)";
    QTest::newRow("order as written")
        << QStringList{"Demo.Attitude.pitch", "Demo.Position.lat", "Demo.Attitude.roll"}
        << "Attitude(pitch,roll) Position(lat)";
    QTest::newRow("twice") << QStringList{"Demo.Attitude", "Demo.*.pitch"}
                           << "Attitude(roll,pitch)";
    QTest::newRow("bits of a mask") << QStringList{"Demo.Position.status.*"} << "Position(armed)";
    QTest::newRow("fields of any type")
        << QStringList{"*.*.?o*"} << "Position(word) Attitude(roll)";
}

void tst_exportselection::paths_select()
{
    QFETCH(QStringList, paths);
    QFETCH(QString, selected);
    const auto result = selectForExport(paths);
    QCOMPARE(result.error, QString());
    QStringList types;
    for (const auto &type : result.selection.types) {
        QStringList fields;
        for (const FieldInfo *field : type.fields)
            fields += field->getName();
        types += QStringLiteral("%1(%2)").arg(type.info->getName(), fields.join(','));
    }
    QCOMPARE(types.join(' '), selected);
    QCOMPARE(result.selection.getTypes().size(), types.size());
}

void tst_exportselection::mismatch_namesSimilarPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("similar");
    QTest::newRow("format forgotten") << "Attitude"
                                      << "Similar: Demo.Attitude";
    QTest::newRow("format and case") << "attitude.Roll"
                                     << "Similar: Demo.Attitude.roll";
    QTest::newRow("case") << "demo.position.LAT"
                          << "Demo.Position.lat";
    QTest::newRow("letter") << "Demo.Atitude.roll"
                            << "Demo.Attitude.roll";
}

void tst_exportselection::mismatch_namesSimilarPaths()
{
    QFETCH(QString, path);
    QFETCH(QString, similar);
    const auto result = selectForExport({path});
    QVERIFY2(result.error.contains(path) && result.error.contains(similar),
             qPrintable(result.error));
}

void tst_exportselection::mismatch_ofOne_winsOverMatchesOfOthers()
{
    const auto result = selectForExport({QStringLiteral("Demo.Empty"), QStringLiteral("Demo..x")});
    QVERIFY2(result.error.contains(QStringLiteral("\"Demo..x\"")), qPrintable(result.error));
}

void tst_exportselection::unlikeAnything_explainsPaths()
{
    for (const QString &path : {QStringLiteral("zzzzzzzzzz"), QString(5000, QLatin1Char('a'))})
        QVERIFY(selectForExport({path}).error.contains(QStringLiteral("FORMAT.MESSAGE.FIELD")));
}

CORVANE_TEST_MAIN(tst_exportselection)
#include "tst_exportselection.moc"
