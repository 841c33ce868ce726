#include "catalogue.h"
#include "descriptions.h"
#include "enumeration.h"
#include "messageinfo.h"
#include "overlaytestformat.h"
#include "testcase.h"

#include <QSignalSpy>
#include <QTemporaryDir>

using namespace corvane::test;
using corvane::Catalogue;
using corvane::OverlayResult;

#define VERIFY_LOADED(result)                                                                      \
    do {                                                                                           \
        const OverlayResult loaded = result;                                                       \
        QVERIFY2(loaded.isOk(), qPrintable(loaded.toString()));                                    \
    } while (false)

namespace {

/** The lines of \a after that are not in \a before. */
QStringList newLines(const QString &before, const QString &after)
{
    const QStringList known = before.split(QLatin1Char('\n'));
    QStringList lines;
    for (const QString &line : after.split(QLatin1Char('\n')))
        if (!known.contains(line))
            lines += line.trimmed();
    return lines;
}

} // namespace

class TestOverlayLoader : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void key_changesDescription_data();
    void key_changesDescription();
    void subFields_readTheirBits_data();
    void subFields_readTheirBits();
    void subFields_ofRepeatedField();
    void subFields_standBehindTheirParent();
    void subFields_areAsConfidentialAsTheWord();
    void symbols_areShown();
    void timeField_mayBeNewSubField();
    void severalMessages_oneOverlay();
    void sameOverlayTwice_changesNothing();
    void laterOverlay_wins();
    void format_isChosenByName();
    void catalogue_isTold();
    void file_isLoaded();
};

void TestOverlayLoader::key_changesDescription_data()
{
    QTest::addColumn<QString>("members");
    QTest::addColumn<QStringList>("changed");

    const auto row = [](const char *name, const char *members, const QStringList &changed) {
        QTest::newRow(name) << QString::fromUtf8(members) << changed;
    };
    row("nothing", "", {});
    row("comments", R"("$comment": "x", "fields": {"lat": {"$comment": "y"}})", {});
    row("message displayName", R"("displayName": "Fix")", {"Position as 'Fix' 'Where it is'"});
    row("message description", R"("description": "What")", {"Position as '' 'What'"});
    row("timeField us", R"("timeField": {"field": "time", "unit": "us"})", {"time time * 1"});
    row("timeField ms", R"("timeField": {"field": "time", "unit": "ms"})", {"time time * 1000"});
    row("timeField s", R"("timeField": {"field": "lat", "unit": "s"})", {"time lat * 1000000"});
    row("field displayName", R"("fields": {"lat": {"displayName": "Breite \u00b0"}})",
        {QString::fromUtf8("lat double as 'Breite °' unit 'deg' role 0 ''")});
    row("field description", R"("fields": {"lat": {"description": "North"}})",
        {"lat double as '' unit 'deg' role 0 'North'"});
    row("field unit", R"("fields": {"lat": {"unit": "rad"}})",
        {"lat double as '' unit 'rad' role 0 ''"});
    row("ordinary", R"("fields": {"lat": {"role": "ordinary"}})", {});
    row("primary", R"("fields": {"lat": {"role": "primary"}})",
        {"lat double as '' unit 'deg' role 1 ''"});
    row("secondary", R"("fields": {"lat": {"role": "secondary"}})",
        {"lat double as '' unit 'deg' role 2 ''"});
    row("technical", R"("fields": {"lat": {"role": "technical"}})",
        {"lat double as '' unit 'deg' role 3 ''"});
    row("confidential", R"("fields": {"lat": {"confidential": true}})",
        {"lat double as '' unit 'deg' role 0 '' confidential"});
    row("no longer confidential", R"("fields": {"secret": {"confidential": false}})",
        {"secret double as '' unit '' role 0 ''"});
    row("symbols",
        R"("fields": {"offset": {"symbols": {"-1": "Less", "0x10": {"$comment": "", "name": "More",
            "description": "Much"}}}})",
        {"offset int8 as '' unit '' role 0 '' {Less=-1 '', More=16 'Much'}"});
    row("symbols of bits",
        R"("fields": {"status": {"bitMask": true, "symbols": {"1": "A", "32768": "B"}}})",
        {"status uint16 as '' unit '' role 0 '' {A=1 '', B=32768 ''} mask"});
    row("field of a path", R"("fields": {"status.armed": {"displayName": "Armed"}})",
        {"armed bool as 'Armed' unit '' role 0 ''"});
    row("field of an odd name", R"("fields": {"odd name": {"unit": "m"}, "a.b": {"unit": "s"}})",
        {"odd name int32 as '' unit 'm' role 0 ''", "a.b int32 as '' unit 's' role 0 ''"});
    row("sub-field",
        R"("fields": {"status": {"subFields": [{"$comment": "", "name": "gear", "firstBit": 4,
            "bits": 4, "signed": true, "displayName": "Gear", "description": "In use", "unit": "u",
            "role": "primary", "confidential": true, "bitMask": false,
            "symbols": {"-1": "Reverse"}}]}})",
        {"gear int4 as 'Gear' unit 'u' role 1 'In use' confidential {Reverse=-1 ''}"});
    row("sub-field of one bit",
        R"("fields": {"status": {"subFields": [{"name": "x", "bit": 15}]}})",
        {"x bool as '' unit '' role 0 ''"});
    row("virtual field",
        R"("virtualFields": [{"$comment": "", "name": "v", "expression": "lat", "displayName": "V",
            "description": "Twice", "unit": "u", "role": "technical", "confidential": true}])",
        {"v double as 'V' unit 'u' role 3 'Twice' confidential virtual"});
    row("virtual field of an optional one",
        R"("virtualFields": [{"name": "v", "expression": "lon"}])",
        {"v double as '' unit '' role 0 '' optional virtual"});
}

void TestOverlayLoader::key_changesDescription()
{
    QFETCH(QString, members);
    QFETCH(QStringList, changed);
    const OverlayTestFormat format;
    const QString before = format.described();
    VERIFY_LOADED(format.loadPosition(members));
    QCOMPARE(newLines(before, format.described()), changed);
}

void TestOverlayLoader::subFields_readTheirBits_data()
{
    QTest::addColumn<QString>("bits");
    QTest::addColumn<QString>("text");

    QTest::newRow("unsigned") << R"("firstBit": 4, "bits": 4)"
                              << "12";
    QTest::newRow("signed") << R"("firstBit": 4, "bits": 4, "signed": true)"
                            << "-4";
    QTest::newRow("whole word") << R"("firstBit": 0, "bits": 16)"
                                << "33217";
    QTest::newRow("top bit") << R"("firstBit": 15, "bits": 1)"
                             << "1";
    QTest::newRow("set") << R"("bit": 7)"
                         << "true";
    QTest::newRow("clear") << R"("bit": 1)"
                           << "false";
}

void TestOverlayLoader::subFields_readTheirBits()
{
    QFETCH(QString, bits);
    QFETCH(QString, text);
    const OverlayTestFormat format;
    VERIFY_LOADED(format.loadPosition(
        QStringLiteral(R"("fields": {"status": {"subFields": [{"name": "x", %1}]}})").arg(bits)));
    QCOMPARE(format.text("status.x", "Position{status: 0x81C1}"), text);
    QCOMPARE(format.text("status.x", "Position{}"), "-");
}

void TestOverlayLoader::subFields_ofRepeatedField()
{
    const OverlayTestFormat format;
    VERIFY_LOADED(format.loadPosition(
        R"("fields": {"flags": {"subFields": [{"name": "low", "firstBit": 0, "bits": 4}]}})"));
    const FieldInfo *low = format.field("Position.flags.low");
    QVERIFY(low->isRepeated());
    const auto message = format.message("Position{flags: [0x12, 0x34]}");
    QCOMPARE(low->getNumberOfValues(message), 2U);
    QCOMPARE(low->getValueText(message, 1, true), "4");
}

void TestOverlayLoader::subFields_standBehindTheirParent()
{
    const OverlayTestFormat format;
    VERIFY_LOADED(format.loadPosition(
        R"("virtualFields": [{"name": "v", "expression": "lat"}],
           "fields": {"status": {"subFields": [{"name": "x", "bit": 1}, {"name": "y", "bit": 2}]}})"));
    QStringList names;
    for (const FieldInfo *field : format.type("Position")->getFieldInfos())
        names += field->getName();
    QCOMPARE(names.mid(names.indexOf("status"), 5),
             QStringList({"status", "armed", "x", "y", "temps"}));
    QCOMPARE(names.constLast(), "v");
    QCOMPARE(format.field("Position.status")->getSubFieldInfos().size(), 3);
    QVERIFY(format.field("Position.v")->occursIn(format.type("Position")));
}

void TestOverlayLoader::subFields_areAsConfidentialAsTheWord()
{
    const OverlayTestFormat format;
    VERIFY_LOADED(format.loadPosition(
        R"("fields": {"code": {"subFields": [{"name": "x", "bit": 0, "confidential": false}]}})"));
    QVERIFY(format.field("Position.code.x")->isConfidential());
    QCOMPARE(format.text("code.x", "Position{code: 1}"), "(confidential)");
}

void TestOverlayLoader::symbols_areShown()
{
    const OverlayTestFormat format;
    VERIFY_LOADED(format.loadPosition(
        R"("fields": {"offset": {"symbols": {"-1": "Less"}},
                      "status": {"bitMask": true, "symbols": {"1": "On", "4": "Hot"}}})"));
    QCOMPARE(format.text("offset", "Position{offset: -1}"), "Less");
    QCOMPARE(format.text("offset", "Position{offset: 5}"), "5");
    QCOMPARE(format.text("status", "Position{status: 5}"), "On | Hot");
    QVERIFY(format.field("Position.offset")->isSymbolicRepresentation("Less"));
}

void TestOverlayLoader::timeField_mayBeNewSubField()
{
    const OverlayTestFormat format;
    VERIFY_LOADED(format.loadPosition(
        R"("timeField": {"$comment": "", "field": "time.low", "unit": "ms"},
           "fields": {"time": {"subFields": [{"name": "low", "firstBit": 0, "bits": 32}]}})"));
    const auto &data = *format.type("Position")->getData();
    QCOMPARE(data.timeField, format.field("Position.time.low"));
    QCOMPARE(data.timeFieldUnitUs, 1000);
}

void TestOverlayLoader::severalMessages_oneOverlay()
{
    const OverlayTestFormat format;
    const QString before = format.described();
    VERIFY_LOADED(format.load(
        R"({"$schema": "overlay.schema.json", "$comment": "All of them", "format": "Demo",
            "messages": {"Empty": {"displayName": "Void"}, "Satellite": {"displayName": "Sat"}}})"));
    QCOMPARE(newLines(before, format.described()).filter(" as '").filter("role"),
             QStringList({"best Sat as '' unit '' role 0 '' optional",
                          "hidden Sat as '' unit '' role 0 '' confidential optional",
                          "sats Sat as '' unit '' role 0 '' repeated",
                          "inner Sat as '' unit '' role 0 '' optional"}));
    QCOMPARE(format.type("Empty")->getName(), "Void");
}

void TestOverlayLoader::sameOverlayTwice_changesNothing()
{
    const OverlayTestFormat format;
    const QString members
        = R"("displayName": "Fix", "timeField": {"field": "status.x", "unit": "s"},
             "virtualFields": [{"name": "v", "expression": "status.x + 1", "unit": "m"}],
             "fields": {"lat": {"confidential": true}, "status": {"subFields": [
                 {"name": "x", "firstBit": 1, "bits": 3, "symbols": {"1": "A"}}]}})";
    VERIFY_LOADED(format.loadPosition(members));
    const QString before = format.described();
    VERIFY_LOADED(format.loadPosition(members));
    QCOMPARE(format.described(), before);
}

void TestOverlayLoader::laterOverlay_wins()
{
    const OverlayTestFormat format;
    VERIFY_LOADED(format.loadPosition(
        R"("virtualFields": [{"name": "v", "expression": "lat", "unit": "m", "role": "primary"}],
           "fields": {"lat": {"unit": "m", "displayName": "Lat"}})"));
    const QString before = format.described();
    VERIFY_LOADED(format.loadPosition(
        R"("virtualFields": [{"name": "v", "expression": "lat", "unit": "km"}],
           "fields": {"lat": {"unit": "km"}})"));
    QCOMPARE(newLines(before, format.described()),
             QStringList({"lat double as 'Lat' unit 'km' role 0 ''",
                          "v double as '' unit 'km' role 1 '' virtual"}));
}

void TestOverlayLoader::format_isChosenByName()
{
    const OverlayTestFormat demo;
    const TestFormat other("Other", "Thing\n  x int8");
    const QByteArray text
        = R"({"format": "Other", "messages": {"Thing": {"fields": {"x": {"unit": "m"}}}}})";
    VERIFY_LOADED(corvane::loadOverlayText(text, "x", {demo.getInfo(), other.getInfo()}));
    QCOMPARE(other.field("Thing.x")->getData()->unit, "m");
}

void TestOverlayLoader::catalogue_isTold()
{
    const OverlayTestFormat format;
    QSignalSpy changed(Catalogue::getInstance(), &Catalogue::changed);
    VERIFY_LOADED(format.loadPosition(""));
    QCOMPARE(changed.size(), 1);
    QVERIFY(!format.loadPosition(R"("x": 1)").isOk());
    QCOMPARE(changed.size(), 1);
    Catalogue::getInstance()->removeFormat(format.getInfo());
    changed.clear();
    VERIFY_LOADED(format.loadPosition(""));
    QCOMPARE(changed.size(), 0);
}

void TestOverlayLoader::file_isLoaded()
{
    const OverlayTestFormat format;
    const QTemporaryDir folder;
    QFile file(folder.filePath("a.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(positionOverlay(R"("displayName": "Fix")").toUtf8());
    file.close();
    VERIFY_LOADED(corvane::loadOverlay(file.fileName()));
    QCOMPARE(format.type("Position")->getName(), "Fix");
}

CORVANE_TEST_MAIN(TestOverlayLoader)
#include "tst_overlayloader.moc"
