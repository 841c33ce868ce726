#include "corvane.h"
#include "messageprinter.h"
#include "testcase.h"
#include "testformat.h"

#include <QScopeGuard>
#include <QSignalSpy>

using namespace corvane::test;

namespace {

const char types[] = R"(
    Person
      name    char[] confidential
      age     uint8 confidential {Newborn=0}
      notes   text[] confidential
      height  double confidential
      photo   bytes confidential
      flags   uint16 confidential mask {Driver=1}
        driver bits 0 bool
        level  bits 4..7 {High=8}
      date    uint32 confidential
        year  uint16
      home    Address confidential
      work    Address optional
    Address part
      street  char[]
      number  uint16 {First=1}
        odd   bits 0 bool
      lines   text[]
      owner   Address optional
)";

const char message[] = R"(Person{
    name: "Ann", age: Newborn, notes: ["n1", "n2"], height: 1.7, photo: "AB", flags: 0x81,
    date: 20000101, date.year: 2000,
    home: {street: "High Street", number: First, lines: ["l1"], owner: {street: "Low Street"}},
    work: {street: "Main Street", number: First}
})";

/** Every text that anybody can get of the values of \a field in \a message. */
QStringList textsOf(const FieldInfo *field, const Message *message)
{
    QStringList texts;
    if (field->isStringField())
        texts += field->getString(message);
    for (unsigned int i = 0; i < field->getNumberOfValues(message); ++i) {
        const FieldValue value = field->getValue(message, i);
        for (const bool flag : {false, true}) {
            texts += field->getValueText(message, i, flag);
            texts += field->getInterpretedString(value, flag);
            for (const auto mode :
                 {FieldValue::DefaultRepresentation, FieldValue::HexadecimalRepresentation,
                  FieldValue::BinaryRepresentation, FieldValue::ScientificRepresentation})
                texts += value.toString(flag, 3, mode, flag);
        }
        texts += field->getRawString(value);
    }
    return texts;
}

} // namespace

class TestCorvane : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void display_isInitiallyOff();
    void display_tellsChangesAlone();
    void everyText_ofConfidentialField_isHidden_data();
    void everyText_ofConfidentialField_isHidden();
    void everyText_insideConfidentialSubMessage_isHidden_data();
    void everyText_insideConfidentialSubMessage_isHidden();
    void otherTexts_areShown();
    void enabled_showsEverything();
};

void TestCorvane::display_isInitiallyOff()
{
    QVERIFY(!Corvane::confidentialInformationDisplayEnabled());
}

void TestCorvane::display_tellsChangesAlone()
{
    QSignalSpy changes(Corvane::getInstance(), &Corvane::confidentialInformationDisplayChanged);

    Corvane::setConfidentialInformationDisplayEnabled(false);
    QCOMPARE(changes.size(), 0);
    Corvane::setConfidentialInformationDisplayEnabled(true);
    Corvane::setConfidentialInformationDisplayEnabled(true);
    QVERIFY(Corvane::confidentialInformationDisplayEnabled());
    QCOMPARE(changes, QList<QVariantList>({{true}}));
    Corvane::setConfidentialInformationDisplayEnabled(false);
    QCOMPARE(changes, QList<QVariantList>({{true}, {false}}));
}

void TestCorvane::everyText_ofConfidentialField_isHidden_data()
{
    QTest::addColumn<QString>("path");

    for (const char *path : {"name", "age", "notes", "height", "photo", "flags", "flags.driver",
                             "flags.level", "date", "date.year", "home"})
        QTest::newRow(path) << path;
}

void TestCorvane::everyText_ofConfidentialField_isHidden()
{
    QFETCH(QString, path);

    const TestFormat format("Demo", types);
    const auto person = format.message(message);
    const FieldInfo *field = format.field("Person." + path);
    QVERIFY(field->isConfidential());
    const QStringList texts = textsOf(field, person);
    QVERIFY(texts.size() >= 10);
    for (const QString &text : texts)
        QCOMPARE(text, "(confidential)");
}

void TestCorvane::everyText_insideConfidentialSubMessage_isHidden_data()
{
    QTest::addColumn<QString>("path");

    for (const char *path : {"street", "number", "number.odd", "lines", "owner"})
        QTest::newRow(path) << path;
}

void TestCorvane::everyText_insideConfidentialSubMessage_isHidden()
{
    QFETCH(QString, path);

    const TestFormat format("Demo", types);
    const auto person = format.message(message);
    const Message *home = format.field("Person.home")->getValue(person, 0).getSubMessage();
    const FieldInfo *field = format.field("Address." + path);
    QVERIFY(!field->isConfidential());
    const QStringList texts = textsOf(field, home);
    QVERIFY(texts.size() >= 10);
    for (const QString &text : texts)
        QCOMPARE(text, "(confidential)");

    const Message *owner = format.field("Address.owner")->getValue(home, 0).getSubMessage();
    QCOMPARE(format.field("Address.street")->getString(owner), "(confidential)");
}

void TestCorvane::otherTexts_areShown()
{
    const TestFormat format("Demo", types);
    const auto person = format.message(message);
    const Message *work = format.field("Person.work")->getValue(person, 0).getSubMessage();

    QCOMPARE(format.field("Address.street")->getString(work), "Main Street");
    QCOMPARE(format.field("Address.number")->getValueText(work, 0, true), "First");
}

void TestCorvane::enabled_showsEverything()
{
    const TestFormat format("Demo", types);
    Corvane::setConfidentialInformationDisplayEnabled(true);
    const auto restore
        = qScopeGuard([] { Corvane::setConfidentialInformationDisplayEnabled(false); });

    QCOMPARE(printed(format.message(message)), R"(Person
  name: Ann
  age: Newborn
  notes: [n1, n2]
  height: 1.7
  photo: 0xAB
  flags: Driver | 0x80
    driver: true
    level: High
  date: 20000101
    year: 2000
  home
    street: High Street
    number: First
      odd: true
    lines: [l1]
    owner
      street: Low Street
      number: -
        odd: -
      lines: -
      owner: -
  work
    street: Main Street
    number: First
      odd: true
    lines: -
    owner: -)");
}

CORVANE_TEST_MAIN(TestCorvane)

#include "tst_corvane.moc"
