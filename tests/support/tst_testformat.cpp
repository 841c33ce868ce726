#include "catalogue.h"
#include "corvane.h"
#include "descriptions.h"
#include "formatinfo.h"
#include "messageinfo.h"
#include "messageprinter.h"
#include "testcase.h"
#include "testformat.h"
#include "testmessage.h"
#include "testsource.h"

#include <QSignalSpy>

using namespace corvane::test;
using corvane::Catalogue;

namespace {

const char vehicleTypes[] = R"(
    Position 'Where the vehicle is'
      lat     double primary unit "deg" 'Latitude'
      mode    uint8 {Manual, Auto=2, Hold} secondary
      status  uint16 mask {Armed=1, Moving=2}
        armed bits 0 bool
        gear  bits 4..7 signed {Reverse=-1, Neutral=0}
      name    char[]
      samples int16[] optional        // none, or some
      sats    Satellite[]
      best    Satellite optional technical
      total   double virtual
    Satellite part as "One satellite"
      id      uint8
      inner   Satellite optional
    Attitude
      yaw     float role 7
      mode    from Position
      status  from Position
)";

QStringList namesOf(const QList<const FieldInfo *> &fields)
{
    QStringList names;
    for (const FieldInfo *field : fields)
        names += field->getName();
    return names;
}

} // namespace

class TestTestFormat : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void types_describeThemselves();
    void fields_haveTheirAttributes();
    void subFields_followTheirParents();
    void sharedField_isOneObject();
    void names_mayBeOdd();
    void values_ofEveryType_data();
    void values_ofEveryType();
    void values_notNamed_areAbsent();
    void subMessages_anyDepth();
    void subMessages_areMadeOnceAndKeepTheMain();
    void subMessages_inheritConfidentiality();
    void subFields_withValuesOfTheirOwn();
    void virtualField_isComputed();
    void timeAndSender_areRead();
    void catalogue_holdsFormatWhileItLives();
    void formats_standSideBySide();
    void source_sendsInOrderAndLetsGo();
    void printer_printsTypes();
};

void TestTestFormat::types_describeThemselves()
{
    const TestFormat format("Demo", vehicleTypes);
    const auto *position = format.type("Position");

    QCOMPARE(format.getInfo()->getName(), "Demo");
    QCOMPARE(position->getName(), "Position");
    QCOMPARE(position->getShortDescriptiveText(), "Where the vehicle is");
    QVERIFY(position->isMain());
    QVERIFY(!format.type("Satellite")->isMain());
    QCOMPARE(format.type("Satellite")->getName(), "One satellite");
    QCOMPARE(position->getData()->format, format.getInfo());
}

void TestTestFormat::fields_haveTheirAttributes()
{
    const TestFormat format("Demo", vehicleTypes);

    QCOMPARE(format.field("Position.lat")->getRole(), FieldInfo::Primary);
    QCOMPARE(format.field("Position.lat")->getData()->unit, "deg");
    QCOMPARE(format.field("Position.lat")->getData()->description, "Latitude");
    QCOMPARE(format.field("Position.mode")->getRole(), FieldInfo::Secondary);
    QCOMPARE(static_cast<int>(format.field("Attitude.yaw")->getRole()), 7);
    QVERIFY(format.field("Position.mode")->isSymbolicRepresentation("Hold"));
    QVERIFY(format.field("Position.name")->isStringField());
    QVERIFY(format.field("Position.samples")->isRepeated());
    QVERIFY(!format.field("Position.samples")->isStringField());
    QVERIFY(format.field("Position.samples")->isOptional());
    QVERIFY(format.field("Position.total")->isVirtual());
    QCOMPARE(format.field("Position.sats")->getType().getSubMessageInfo(),
             format.type("Satellite"));
}

void TestTestFormat::subFields_followTheirParents()
{
    const TestFormat format("Demo", vehicleTypes);
    const FieldInfo *status = format.field("Position.status");

    QCOMPARE(namesOf(status->getSubFieldInfos()), QStringList({"armed", "gear"}));
    QCOMPARE(format.field("Position.status.gear")->getParentFieldInfo(), status);
    QCOMPARE(namesOf(format.type("Position")->getFieldInfos()),
             QStringList({"lat", "mode", "status", "armed", "gear", "name", "samples", "sats",
                          "best", "total"}));
    QCOMPARE(format.field("Position.status.gear")->getType().toShortString(), "int4");
}

void TestTestFormat::sharedField_isOneObject()
{
    const TestFormat format("Demo", vehicleTypes);
    const FieldInfo *mode = format.field("Attitude.mode");

    QCOMPARE(mode, format.field("Position.mode"));
    QCOMPARE(mode->getMessageInfos(),
             QList<const MessageInfo *>({format.type("Position"), format.type("Attitude")}));
    QVERIFY(format.field("Position.status.armed")->occursIn(format.type("Attitude")));
    QVERIFY(!mode->occursIn(format.type("Satellite")));
    QCOMPARE(namesOf(format.type("Attitude")->getFieldInfos()),
             QStringList({"yaw", "mode", "status", "armed", "gear"}));
}

void TestTestFormat::names_mayBeOdd()
{
    const TestFormat format("Demo", "\"a.b *\"\n \"c.d\" int8\n höhe int8 as \"Höhe\"\n");

    QCOMPARE(format.type("a.b *")->getName(), "a.b *");
    QCOMPARE(printed(format.message("\"a.b *\"{\"c.d\": 1, höhe: -2}")),
             "a.b *\n  c.d: 1\n  Höhe: -2");
}

void TestTestFormat::values_ofEveryType_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("literal");
    QTest::addColumn<QString>("text");

    QTest::newRow("int8 minimum") << "int8"
                                  << "-128"
                                  << "-128";
    QTest::newRow("int64 minimum") << "int64"
                                   << "-9223372036854775808"
                                   << "-9223372036854775808";
    QTest::newRow("uint64 maximum") << "uint64"
                                    << "18446744073709551615"
                                    << "18446744073709551615";
    QTest::newRow("int1") << "int1"
                          << "-1"
                          << "-1";
    QTest::newRow("hexadecimal") << "uint16"
                                 << "0xfF"
                                 << "255";
    QTest::newRow("binary") << "uint16"
                            << "0b101"
                            << "5";
    QTest::newRow("symbol") << "uint8 {A, B=7}"
                            << "B"
                            << "B";
    QTest::newRow("negative symbol") << "int8 {A=-2, B}"
                                     << "-1"
                                     << "B";
    QTest::newRow("quoted symbol") << "uint8 {\"no fix\"}"
                                   << "\"no fix\""
                                   << "no fix";
    QTest::newRow("bits") << "uint8 mask {A=1, B=4}"
                          << "A|B"
                          << "A | B";
    QTest::newRow("number in place of bits") << "uint8 mask {A=1, B=4}"
                                             << "6"
                                             << "B | 0x2";
    QTest::newRow("double") << "double"
                            << "-1.5e-3"
                            << "-0.0015";
    QTest::newRow("float") << "float"
                           << "0.1"
                           << "0.1";
    QTest::newRow("whole float") << "float"
                                 << "3"
                                 << "3";
    QTest::newRow("not a number") << "float"
                                  << "nan"
                                  << "NaN";
    QTest::newRow("infinity") << "double"
                              << "-inf"
                              << "-Infinity";
    QTest::newRow("true") << "bool"
                          << "true"
                          << "true";
    QTest::newRow("false") << "bool"
                           << "false"
                           << "false";
    QTest::newRow("character") << "char"
                               << "'x'"
                               << "x";
    QTest::newRow("character by code") << "uchar"
                                       << "65"
                                       << "A";
    QTest::newRow("text") << "text"
                          << R"("say \"hi\" \\ ü")"
                          << "say \"hi\" \\ ü";
    QTest::newRow("control characters") << "text"
                                        << R"('\n\x07')"
                                        << "\n\a";
    QTest::newRow("bytes") << "bytes"
                           << "'00 fF'"
                           << "0x00FF";
    QTest::newRow("string") << "char[]"
                            << "'ab😀'"
                            << "ab😀";
    QTest::newRow("string by characters") << "uchar[]"
                                          << "['a', 98]"
                                          << "ab";
    QTest::newRow("empty string") << "char[]"
                                  << "''"
                                  << "-";
    QTest::newRow("list") << "int16[]"
                          << "[1, -2,]"
                          << "[1, -2]";
    QTest::newRow("empty list") << "int16[]"
                                << "[]"
                                << "-";
    QTest::newRow("invalid") << "int16[]"
                             << "[1, invalid]"
                             << "[1, ]";
}

void TestTestFormat::values_ofEveryType()
{
    QFETCH(QString, type);
    QFETCH(QString, literal);
    QFETCH(QString, text);

    const TestFormat format("Demo", "T\n f " + type);
    const auto message = format.message("T{f: " + literal + "}");
    QCOMPARE(printed(message), "T\n  f: " + text);
}

void TestTestFormat::values_notNamed_areAbsent()
{
    const TestFormat format("Demo", vehicleTypes);
    const auto message = format.message("Position{}");

    for (const FieldInfo *field : message->getInfo()->getFieldInfos())
        QCOMPARE(field->getNumberOfValues(message), 0U);
    QVERIFY(!format.field("Position.lat")->getValue(message, 0).isValid());
}

void TestTestFormat::subMessages_anyDepth()
{
    const TestFormat format("Demo", vehicleTypes);
    const auto message = format.message(R"(Position{
        status: 0xF1,
        name: "north",
        samples: [3, 4],
        sats: [{id: 1}, Satellite{id: 2, inner: {inner: {id: 9}}}, invalid],
        best: {id: 3}
    })");
    QCOMPARE(printed(message), R"(Position
  lat: -
  mode: -
  status: Armed | 0xF0
    armed: true
    gear: Reverse
  name: north
  samples: [3, 4]
  sats[0]
    id: 1
    inner: -
  sats[1]
    id: 2
    inner
      id: -
      inner
        id: 9
        inner: -
  sats[2]: -
  best
    id: 3
    inner: -
  total: -)");
}

void TestTestFormat::subMessages_areMadeOnceAndKeepTheMain()
{
    const TestFormat format("Demo", vehicleTypes);
    auto message = format.message("Position{sats: [{id: 1}, {inner: {id: 2}}]}");
    const FieldInfo *sats = format.field("Position.sats");
    const Message *second = sats->getValue(message, 1).getSubMessage();

    QCOMPARE(sats->getValue(message, 1).getSubMessage(), second);
    QVERIFY(sats->getValue(message, 0).getSubMessage() != second);
    const Message *inner = format.field("Satellite.inner")->getValue(second, 0).getSubMessage();
    const MessageHolder kept(inner);
    QCOMPARE(message->getReferenceCount(), 2);
    message = MessageHolder();
    QCOMPARE(format.field("Satellite.id")->getValueText(kept, 0, true), "2");
}

void TestTestFormat::subMessages_inheritConfidentiality()
{
    const TestFormat format("Demo",
                            "A\n open B\n secret B confidential\nB part\n c C\nC part\n x int8\n");
    const auto message = format.message("A{open: {c: {x: 1}}, secret: {c: {x: 2}}}");

    QCOMPARE(printed(message), "A\n  open\n    c\n      x: 1\n"
                               "  secret\n    c\n      x: (confidential)");
}

void TestTestFormat::subFields_withValuesOfTheirOwn()
{
    const TestFormat format("Demo", "A\n date text\n  year uint16\n   leap bits 0..1\n");

    QCOMPARE(printed(format.message("A{date: 'today', date.year: 2026}")),
             "A\n  date: today\n    year: 2026\n      leap: 2");
}

void TestTestFormat::virtualField_isComputed()
{
    TestFormat format("Demo", "A\n x int8\n twice int8 virtual\n all int8[] virtual\n");
    const FieldInfo *x = format.field("A.x");
    format.setVirtual("A.twice", [x](const Message *message) {
        return FieldValue::fromDouble(2 * x->getValue(message, 0).toDouble().value_or(0));
    });
    format.setVirtual("A.all", [x](const Message *message) {
        return QList<FieldValue>(3, x->getValue(message, 0));
    });

    QCOMPARE(printed(format.message("A{x: 4, twice: 1}")),
             "A\n  x: 4\n  twice: 8\n  all: [4, 4, 4]");
}

void TestTestFormat::timeAndSender_areRead()
{
    const TestFormat format("Demo", vehicleTypes);
    const auto messages = format.messages("Position @1500000 #3 {best: {id: 1}} Attitude{}");
    const auto *first = static_cast<const TestMessage *>(messages[0].get());
    const auto *best = static_cast<const TestMessage *>(
        format.field("Position.best")->getValue(first, 0).getSubMessage());
    const auto *second = static_cast<const TestMessage *>(messages[1].get());

    QCOMPARE(first->getTimeUs(), 1'500'000);
    QCOMPARE(first->getSenderId(), 3U);
    QCOMPARE(best->getTimeUs(), 1'500'000);
    QCOMPARE(best->getSenderId(), 3U);
    QCOMPARE(second->getTimeUs(), corvane::DecodedMessage::unknownTime);
}

void TestTestFormat::catalogue_holdsFormatWhileItLives()
{
    const QSignalSpy changes(Catalogue::getInstance(), &Catalogue::changed);
    {
        const TestFormat format("Demo", vehicleTypes);
        QCOMPARE(Catalogue::getInstance()->getFormats(),
                 QList<const FormatInfo *>({format.getInfo()}));
        QCOMPARE(changes.size(), 1);
    }
    QVERIFY(Catalogue::getInstance()->getFormats().isEmpty());
    QCOMPARE(changes.size(), 2);
}

void TestTestFormat::formats_standSideBySide()
{
    const TestFormat one("One", "A\n x int8\n");
    const TestFormat two("Two", "A\n x int8\n");

    QCOMPARE(Catalogue::getInstance()->getFormats().size(), 2);
    QVERIFY(one.type("A") != two.type("A"));
    QVERIFY(!one.field("A.x")->occursIn(two.type("A")));
    QVERIFY(one.type("A")->getData()->slot != two.type("A")->getData()->slot);
}

void TestTestFormat::source_sendsInOrderAndLetsGo()
{
    const TestFormat format("Demo", vehicleTypes);
    TestSource source(format);
    QStringList seen;
    connect(&source, &MessageSource::newMessage, this,
            [&seen](const Message *message) { seen += printed(message); });

    source.send("Satellite{id: 1} Satellite{id: 2}");
    source.send(format.message("Satellite{id: 3}"));
    QCOMPARE(seen, QStringList({"One satellite\n  id: 1\n  inner: -",
                                "One satellite\n  id: 2\n  inner: -",
                                "One satellite\n  id: 3\n  inner: -"}));
}

void TestTestFormat::printer_printsTypes()
{
    const TestFormat format("Demo", vehicleTypes);

    QCOMPARE(printed(format.type("Position")), R"(Position
  lat: double role 1
  mode: uint8 role 2
  status: uint16
    armed: bool
    gear: int4
  name: char[]
  samples: int16[] optional
  sats: One satellite[]
  best: One satellite role 3 optional
  total: double virtual)");
}

CORVANE_TEST_MAIN(TestTestFormat)

#include "tst_testformat.moc"
