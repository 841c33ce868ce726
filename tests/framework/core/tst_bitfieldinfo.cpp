#include "bitfieldinfo.h"
#include "descriptions.h"
#include "testcase.h"
#include "testformat.h"

using namespace corvane::test;

class TestBitFieldInfo : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void value_ofBits_data();
    void value_ofBits();
    void symbols_areThoseOfTheBits();
    void repeatedWord_hasBitsOfEachValue();
    void absentWord_hasNoBits();
    void invalidWord_hasInvalidBits();
    void bitsOfBits_countFromTheirParent();
    void attributes_followTheParent();
};

void TestBitFieldInfo::value_ofBits_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("bits");
    QTest::addColumn<QString>("literal");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("text");

    QTest::newRow("lowest") << "uint8"
                            << "0"
                            << "0b00000001"
                            << "uint1"
                            << "1";
    QTest::newRow("lowest, unset") << "uint8"
                                   << "0"
                                   << "0b11111110"
                                   << "uint1"
                                   << "0";
    QTest::newRow("highest") << "uint8"
                             << "7"
                             << "0b10000000"
                             << "uint1"
                             << "1";
    QTest::newRow("middle") << "uint8"
                            << "2..4"
                            << "0b11010111"
                            << "uint3"
                            << "5";
    QTest::newRow("all") << "uint8"
                         << "0..7"
                         << "0xA5"
                         << "uint8"
                         << "165";
    QTest::newRow("true") << "uint8"
                          << "1 bool"
                          << "0b10"
                          << "bool"
                          << "true";
    QTest::newRow("false") << "uint8"
                           << "1 bool"
                           << "0b01"
                           << "bool"
                           << "false";
    QTest::newRow("bool of two") << "uint8"
                                 << "0..1 bool"
                                 << "0b11"
                                 << "uint2"
                                 << "3";
    QTest::newRow("signed, negative") << "uint8"
                                      << "4..7 signed"
                                      << "0xF0"
                                      << "int4"
                                      << "-1";
    QTest::newRow("signed, least") << "uint8"
                                   << "4..7 signed"
                                   << "0x8F"
                                   << "int4"
                                   << "-8";
    QTest::newRow("signed, positive") << "uint8"
                                      << "4..7 signed"
                                      << "0x7F"
                                      << "int4"
                                      << "7";
    QTest::newRow("signed, one bit") << "uint8"
                                     << "0 signed"
                                     << "1"
                                     << "int1"
                                     << "-1";
    QTest::newRow("of signed word") << "int8"
                                    << "4..7"
                                    << "-1"
                                    << "uint4"
                                    << "15";
    QTest::newRow("highest of 64") << "uint64"
                                   << "63"
                                   << "0x8000000000000000"
                                   << "uint1"
                                   << "1";
    QTest::newRow("all of 64") << "uint64"
                               << "0..63"
                               << "0xFFFFFFFFFFFFFFFF"
                               << "uint64"
                               << "18446744073709551615";
    QTest::newRow("all of 64, signed") << "uint64"
                                       << "0..63 signed"
                                       << "0x8000000000000000"
                                       << "int64"
                                       << "-9223372036854775808";
    QTest::newRow("63 of 64") << "uint64"
                              << "1..63"
                              << "0xFFFFFFFFFFFFFFFE"
                              << "uint63"
                              << "9223372036854775807";
    QTest::newRow("upper half") << "uint64"
                                << "32..63"
                                << "0x123456789ABCDEF0"
                                << "uint32"
                                << "305419896";
    QTest::newRow("upper half, signed") << "int64"
                                        << "32..63 signed"
                                        << "-4294967296"
                                        << "int32"
                                        << "-1";
}

void TestBitFieldInfo::value_ofBits()
{
    QFETCH(QString, word);
    QFETCH(QString, bits);
    QFETCH(QString, literal);
    QFETCH(QString, type);
    QFETCH(QString, text);

    const TestFormat format("Demo", "A\n w " + word + "\n  b bits " + bits);
    const auto message = format.message("A{w: " + literal + "}");
    const FieldInfo *field = format.field("A.w.b");
    QCOMPARE(field->getType().toShortString(), type);
    QCOMPARE(field->getNumberOfValues(message), 1U);
    QCOMPARE(field->getValueText(message, 0, true), text);
}

void TestBitFieldInfo::symbols_areThoseOfTheBits()
{
    const TestFormat format("Demo", "A\n w uint8 {All=255}\n  b bits 4..7 signed {Back=-1, Up=1}");
    const FieldInfo *field = format.field("A.w.b");

    QCOMPARE(field->getValueText(format.message("A{w: 0xF0}"), 0, true), "Back");
    QCOMPARE(field->getValueText(format.message("A{w: 0xF0}"), 0, false), "-1");
    QCOMPARE(field->getValueText(format.message("A{w: 0x1F}"), 0, true), "Up");
    QCOMPARE(field->getValueText(format.message("A{w: All}"), 0, true), "Back");
}

void TestBitFieldInfo::repeatedWord_hasBitsOfEachValue()
{
    const TestFormat format("Demo", "A\n w uint8[]\n  b bits 0 bool\n");
    const auto message = format.message("A{w: [1, 2, 3]}");
    const FieldInfo *field = format.field("A.w.b");

    QVERIFY(field->isRepeated());
    QCOMPARE(field->getNumberOfValues(message), 3U);
    QCOMPARE(field->getValueText(message, 0, true), "true");
    QCOMPARE(field->getValueText(message, 1, true), "false");
    QCOMPARE(field->getValueText(message, 2, true), "true");
    QVERIFY(!field->getValue(message, 3).isValid());
}

void TestBitFieldInfo::absentWord_hasNoBits()
{
    const TestFormat format("Demo", "A\n w uint8 optional\n  b bits 0\n");
    const FieldInfo *field = format.field("A.w.b");

    QVERIFY(field->isOptional());
    QCOMPARE(field->getNumberOfValues(format.message("A{}")), 0U);
    QVERIFY(!field->getValue(format.message("A{}"), 0).isValid());
}

void TestBitFieldInfo::invalidWord_hasInvalidBits()
{
    const TestFormat format("Demo", "A\n w uint8\n  b bits 0 signed\n");
    const auto message = format.message("A{w: invalid}");

    QCOMPARE(format.field("A.w.b")->getNumberOfValues(message), 1U);
    QVERIFY(!format.field("A.w.b")->getValue(message, 0).isValid());
}

void TestBitFieldInfo::bitsOfBits_countFromTheirParent()
{
    const TestFormat format("Demo", "A\n w uint16\n  high bits 8..15\n   b bits 1..2\n");
    const auto message = format.message("A{w: 0x0500}");

    QCOMPARE(format.field("A.w.high")->getValueText(message, 0, true), "5");
    QCOMPARE(format.field("A.w.high.b")->getValueText(message, 0, true), "2");
}

void TestBitFieldInfo::attributes_followTheParent()
{
    const TestFormat format("Demo", "A\n w uint8 confidential\n  b bits 0 technical\n");
    const FieldInfo *field = format.field("A.w.b");

    QCOMPARE(field->getParentFieldInfo(), format.field("A.w"));
    QVERIFY(field->isConfidential());
    QCOMPARE(field->getRole(), FieldInfo::Technical);
    QVERIFY(!field->isRepeated() && !field->isOptional() && !field->isStringField());
    QVERIFY(field->occursIn(format.type("A")));
}

CORVANE_TEST_MAIN(TestBitFieldInfo)

#include "tst_bitfieldinfo.moc"
