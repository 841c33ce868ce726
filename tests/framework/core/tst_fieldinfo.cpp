#include "fieldinfo.h"
#include "testcase.h"
#include "testformat.h"

#include <cstring>

using namespace corvane::test;

namespace {

const char types[] = R"(
    Position
      lat     double primary as "Latitude"
      mode    int8 {Off=-1, On=1}
      flags   uint8 mask {A=1, B=4}
        low   bits 0..3 secondary
      name    char[]
      raw     uchar[]
      codes   uint8[] optional
      best    Satellite
      total   double virtual
      key     text confidential
    Satellite part
      id      uint8
)";

// The place of a virtual operation in the table, as the x86-64 ABI writes it into a pointer.
template <typename Operation>
qsizetype placeInTable(Operation operation)
{
    qsizetype words[2];
    static_assert(sizeof operation == sizeof words);
    std::memcpy(words, &operation, sizeof words);
    return (words[0] - 1) / static_cast<qsizetype>(sizeof(void *));
}

} // namespace

class FieldInfoTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void virtualOperations_keepTheirOrder();
    void flags_areThoseOfTheField_data();
    void flags_areThoseOfTheField();
    void name_isWhatPeopleSee();
    void typeCodes_areFixed_data();
    void typeCodes_areFixed();
    void getValueText_data();
    void getValueText();
    void interpretedString_withoutSymbols_isRaw();
    void symbolicRepresentation_isKnown();
    void getString_ofStringField();
    void getValue_beyondTheCount_isInvalid();
    void getByteRange_withoutPlace_leavesOutputAlone();

private:
    const TestFormat format{"Demo", types};
};

void FieldInfoTest::virtualOperations_keepTheirOrder()
{
#if !defined(__x86_64__) || !defined(__GNUC__)
    QSKIP("knows the tables of virtual functions of x86-64 alone");
#endif
    QCOMPARE(placeInTable(&FieldInfo::getNumberOfValues), 0);
    QCOMPARE(placeInTable(&FieldInfo::getValue), 1);
    QCOMPARE(placeInTable(&FieldInfo::getByteRange), 2);
    QCOMPARE(placeInTable(&FieldInfo::getString), 3);
    QCOMPARE(placeInTable(&FieldInfo::getValueText), 4);
}

void FieldInfoTest::flags_areThoseOfTheField_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("flags");

    QTest::newRow("single") << "lat"
                            << "";
    QTest::newRow("string") << "name"
                            << "repeated string ";
    QTest::newRow("unsigned string") << "raw"
                                     << "repeated string ";
    QTest::newRow("repeated") << "codes"
                              << "repeated optional ";
    QTest::newRow("virtual") << "total"
                             << "virtual ";
    QTest::newRow("confidential") << "key"
                                  << "confidential ";
}

void FieldInfoTest::flags_areThoseOfTheField()
{
    QFETCH(QString, field);
    QFETCH(QString, flags);

    const FieldInfo *info = format.field("Position." + field);
    QString found;
    found += info->isRepeated() ? "repeated " : "";
    found += info->isOptional() ? "optional " : "";
    found += info->isStringField() ? "string " : "";
    found += info->isVirtual() ? "virtual " : "";
    found += info->isConfidential() ? "confidential " : "";
    QCOMPARE(found, flags);
}

void FieldInfoTest::name_isWhatPeopleSee()
{
    QCOMPARE(format.field("Position.lat")->getName(), "Latitude");
    QCOMPARE(format.field("Position.mode")->getName(), "mode");
}

void FieldInfoTest::typeCodes_areFixed_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("name");

    QTest::newRow("character") << "name" << 3 << "char";
    QTest::newRow("unsigned character") << "raw" << 4 << "uchar";
    QTest::newRow("sub-message") << "best" << 6 << "Satellite";
    QTest::newRow("signed") << "mode" << int(FieldType::SignedInteger) << "int8";
    QTest::newRow("bits") << "flags.low" << int(FieldType::UnsignedInteger) << "uint4";
    QTest::newRow("double") << "lat" << int(FieldType::Float) << "double";
    QTest::newRow("text") << "key" << int(FieldType::Text) << "text";
}

void FieldInfoTest::typeCodes_areFixed()
{
    QFETCH(QString, field);
    QFETCH(int, code);
    QFETCH(QString, name);

    const FieldType &type = format.field("Position." + field)->getType();
    QCOMPARE(type.getCode(), code);
    QCOMPARE(type.toShortString(), name);
    QCOMPARE(type.getSubMessageInfo() != nullptr, code == 6);
}

void FieldInfoTest::getValueText_data()
{
    QTest::addColumn<QString>("literal");
    QTest::addColumn<QString>("field");
    QTest::addColumn<unsigned int>("index");
    QTest::addColumn<QString>("interpreted");
    QTest::addColumn<QString>("raw");

    QTest::newRow("symbol") << "mode: On"
                            << "mode" << 0U << "On"
                            << "1";
    QTest::newRow("negative symbol") << "mode: Off"
                                     << "mode" << 0U << "Off"
                                     << "-1";
    QTest::newRow("no symbol") << "mode: 5"
                               << "mode" << 0U << "5"
                               << "5";
    QTest::newRow("bits") << "flags: 5"
                          << "flags" << 0U << "A | B"
                          << "5";
    QTest::newRow("bits with rest") << "flags: 0x83"
                                    << "flags" << 0U << "A | 0x82"
                                    << "131";
    QTest::newRow("no bits") << "flags: 0"
                             << "flags" << 0U << "0"
                             << "0";
    QTest::newRow("second of list") << "codes: [1, 2]"
                                    << "codes" << 1U << "2"
                                    << "2";
    QTest::newRow("beyond") << "codes: [1, 2]"
                            << "codes" << 2U << ""
                            << "";
    QTest::newRow("absent") << "mode: On"
                            << "lat" << 0U << ""
                            << "";
    QTest::newRow("invalid") << "mode: invalid"
                             << "mode" << 0U << ""
                             << "";
    QTest::newRow("character") << "name: 'ab'"
                               << "name" << 1U << "b"
                               << "b";
    QTest::newRow("sub-message") << "best: {id: 1}"
                                 << "best" << 0U << ""
                                 << "";
}

void FieldInfoTest::getValueText()
{
    QFETCH(QString, literal);
    QFETCH(QString, field);
    QFETCH(unsigned int, index);
    QFETCH(QString, interpreted);
    QFETCH(QString, raw);

    const auto message = format.message("Position{" + literal + "}");
    const FieldInfo *info = format.field("Position." + field);
    QCOMPARE(info->getValueText(message, index, true), interpreted);
    QCOMPARE(info->getValueText(message, index, false), raw);
}

void FieldInfoTest::interpretedString_withoutSymbols_isRaw()
{
    const FieldInfo *mode = format.field("Position.mode");
    const auto on = FieldValue::fromSigned(1, 8);

    QCOMPARE(mode->getInterpretedString(on, true), "On");
    QCOMPARE(mode->getInterpretedString(on, false), "1");
    QCOMPARE(mode->getRawString(on), "1");
    QCOMPARE(mode->getInterpretedString(FieldValue::fromText("On"), true), "On");
    QCOMPARE(mode->getInterpretedString(FieldValue::invalid(), true), QString());
}

void FieldInfoTest::symbolicRepresentation_isKnown()
{
    const FieldInfo *mode = format.field("Position.mode");

    QVERIFY(mode->isSymbolicRepresentation("On"));
    QVERIFY(!mode->isSymbolicRepresentation("on"));
    QVERIFY(!mode->isSymbolicRepresentation("1"));
    QVERIFY(!mode->isSymbolicRepresentation(""));
    QVERIFY(!format.field("Position.lat")->isSymbolicRepresentation("On"));
}

void FieldInfoTest::getString_ofStringField()
{
    const auto message
        = format.message("Position{name: 'a b', raw: ['x', 121], codes: [65], mode: On}");

    QCOMPARE(format.field("Position.name")->getString(message), "a b");
    QCOMPARE(format.field("Position.raw")->getString(message), "xy");
    QCOMPARE(format.field("Position.codes")->getString(message), QString());
    QCOMPARE(format.field("Position.mode")->getString(message), QString());
    QCOMPARE(format.field("Position.name")->getString(format.message("Position{}")), QString());
}

void FieldInfoTest::getValue_beyondTheCount_isInvalid()
{
    const auto message = format.message("Position{codes: [1]}");
    const FieldInfo *codes = format.field("Position.codes");

    QVERIFY(codes->getValue(message, 0).isValid());
    QVERIFY(!codes->getValue(message, 1).isValid());
    QVERIFY(!codes->getValue(message, 0xFFFFFFFF).isValid());
}

void FieldInfoTest::getByteRange_withoutPlace_leavesOutputAlone()
{
    const auto message = format.message("Position{lat: 1}");
    quint32 offset = 7;
    quint32 length = 8;

    QVERIFY(!format.field("Position.lat")->getByteRange(message, 0, &offset, &length));
    QCOMPARE(offset, 7U);
    QCOMPARE(length, 8U);
}

CORVANE_TEST_MAIN(FieldInfoTest)

#include "tst_fieldinfo.moc"
