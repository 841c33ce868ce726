#include "fieldinfo.h"
#include "fieldplace.h"
#include "messageinfo.h"
#include "testcase.h"
#include "testformat.h"

using namespace corvane;
using namespace corvane::test;

class tst_fieldplace : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void read_data();
    void read();
    void find_withoutOneField_isNothing_data();
    void find_withoutOneField_isNothing();
    void kinds_areKnown();
    void numbers_areReadAsTheFieldsValues();
    void sharedField_belongsToTheNamedType();
};

namespace {

const char types[] = R"(
    Position
      height  double unit "m"
      status  uint16
        armed bits 0 bool
      samples int16[]
      mode    uint8 {Manual=0, Auto=2}
      note    text
      big     uint64
      wide    int64
      sats    Satellite[]
      best    Satellite
      "odd.name" int8
    Satellite part
      id      uint8
      place   Place
      levels  float[]
    Place part
      x       double
      secret  int32 confidential
    Attitude
      mode    from Position
)";

} // namespace

void tst_fieldplace::read_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("fullPath");
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("value");
    const auto add = [](const char *path, const char *fullPath, const char *name, double value) {
        QTest::newRow(path) << path << fullPath << name << value;
    };
    add("Demo.Position.height", "Demo.Position.height", "Position.height", 4.5);
    add("Demo.Position.status.armed", "Demo.Position.status.armed", "Position.status.armed", 1);
    add("Demo.Position.samples[1]", "Demo.Position.samples[1]", "Position.samples[1]", 8);
    add("Demo.Position.samples", "Demo.Position.samples[0]", "Position.samples[0]", 7);
    add("Demo.Position.height[0]", "Demo.Position.height", "Position.height", 4.5);
    add("Demo.Position.sats[1].id", "Demo.Position.sats[1].id", "Position.sats[1].id", 22);
    add("Demo.Position.sats.id", "Demo.Position.sats[0].id", "Position.sats[0].id", 11);
    add("Demo.Position.best.place.x", "Demo.Position.best.place.x", "Position.best.place.x", 1.5);
    add("Demo.Position.sats[1].levels[2]", "Demo.Position.sats[1].levels[2]",
        "Position.sats[1].levels[2]", 9);
    add("Demo.Position.\"odd.name\"", "Demo.Position.\"odd.name\"", "Position.odd.name", 3);
    add("*.*.height", "Demo.Position.height", "Position.height", 4.5);
}

void tst_fieldplace::read()
{
    QFETCH(QString, path);
    QFETCH(QString, fullPath);
    QFETCH(QString, name);
    QFETCH(double, value);
    const TestFormat format(QStringLiteral("Demo"), QLatin1String(types));
    const auto full = format.message(R"(Position{height: 4.5, status: 1, samples: [7, 8],
        sats: [{id: 11}, {id: 22, levels: [1, 2, 9]}], best: {place: {x: 1.5}}, "odd.name": 3})");
    const auto empty = format.message("Position{}");
    const auto place = FieldPlace::find(path);
    QVERIFY(place);
    QCOMPARE(place->getPath(), fullPath);
    QCOMPARE(FieldPlace::find(fullPath)->getPath(), fullPath);
    QCOMPARE(place->getName(), name);
    QCOMPARE(place->getType(), format.type("Position"));
    QCOMPARE(place->read(full).toDouble(), value);
    QVERIFY(!place->read(empty).isValid());
}

void tst_fieldplace::find_withoutOneField_isNothing_data()
{
    QTest::addColumn<QString>("path");
    for (const char *path :
         {"", ".", "[1]", "Demo", "Demo.Position", "Demo.Position.depth", "Demo.Position.*",
          "Demo.Position.height[1]", "Demo.Position.samples[x]", "Demo.Position.samples[-1]",
          "Demo.Position.samples[99999999999]", "Demo.Position.sats[0].depth", "Demo.Satellite.id",
          "Demo.*.mode", "Demo.Position.height.x", "Demo.Position.sats[0]..id"})
        QTest::newRow(path) << path;
}

void tst_fieldplace::find_withoutOneField_isNothing()
{
    QFETCH(QString, path);
    const TestFormat format(QStringLiteral("Demo"), QLatin1String(types));
    QVERIFY(!FieldPlace::find(path));
}

void tst_fieldplace::kinds_areKnown()
{
    const TestFormat format(QStringLiteral("Demo"), QLatin1String(types));
    const auto place = [](const char *path) { return FieldPlace::find(path).value(); };
    QVERIFY(place("Demo.Position.height").isNumeric());
    QVERIFY(!place("Demo.Position.height").isStepped());
    QVERIFY(place("Demo.Position.status.armed").isStepped());
    QVERIFY(place("Demo.Position.mode").isStepped());
    QVERIFY(!place("Demo.Position.note").isNumeric());
    QVERIFY(!place("Demo.Position.sats").isNumeric());
    QVERIFY(!place("Demo.Position.best.place.x").isConfidential());
    QVERIFY(place("Demo.Position.best.place.secret").isConfidential());
}

void tst_fieldplace::numbers_areReadAsTheFieldsValues()
{
    const TestFormat format(QStringLiteral("Demo"), QLatin1String(types));
    const auto text = [](const char *path, double number) {
        return FieldPlace::find(path).value().textOf(number);
    };
    QCOMPARE(text("Demo.Position.height", 0.1), "0.1");
    QCOMPARE(text("Demo.Position.best.levels", static_cast<double>(0.1F)), "0.1");
    QCOMPARE(text("Demo.Position.mode", 2), "Auto");
    QCOMPARE(text("Demo.Position.status.armed", 1), "true");
    QCOMPARE(text("Demo.Position.samples", -3), "-3");
    QCOMPARE(text("Demo.Position.big", 0x1p64), "18446744073709551615");
    QCOMPARE(text("Demo.Position.wide", 0x1p63), "9223372036854775807");
    QCOMPARE(text("Demo.Position.wide", -0x1p63), "-9223372036854775808");
}

void tst_fieldplace::sharedField_belongsToTheNamedType()
{
    const TestFormat format(QStringLiteral("Demo"), QLatin1String(types));
    const auto place = FieldPlace::find("Demo.Attitude.mode");
    QCOMPARE(place->getType(), format.type("Attitude"));
    QCOMPARE(place->getPath(), "Demo.Attitude.mode");
}

CORVANE_TEST_MAIN(tst_fieldplace)
#include "tst_fieldplace.moc"
