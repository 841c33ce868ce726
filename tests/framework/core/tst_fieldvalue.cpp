#include "corvane.h"
#include "fieldvalue.h"
#include "testcase.h"
#include "testformat.h"

#include <cmath>
#include <limits>
#include <utility>

using namespace corvane::test;

namespace {

constexpr auto plainMode = FieldValue::DefaultRepresentation;
constexpr auto hexMode = FieldValue::HexadecimalRepresentation;
constexpr auto binaryMode = FieldValue::BinaryRepresentation;
constexpr auto scientificMode = FieldValue::ScientificRepresentation;

template <typename T>
using Limits = std::numeric_limits<T>;

QString textOf(const FieldValue &value)
{
    return value.toString(false, -1, plainMode, false);
}

} // namespace

Q_DECLARE_METATYPE(FieldValue)

class TestFieldValue : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void toString_byDefault_data();
    void toString_byDefault();
    void toString_ofFloat_readsBack_data();
    void toString_ofFloat_readsBack();
    void toString_withPrecision_data();
    void toString_withPrecision();
    void toString_inMode_data();
    void toString_inMode();
    void toString_grouped_data();
    void toString_grouped();
    void toString_quoted_data();
    void toString_quoted();
    void numbers_ofEveryKind_data();
    void numbers_ofEveryKind();
    void subMessage_isGivenBack();
    void invalid_isDefault();
    void copies_areIndependent();
    void moves_takeTheContent();
    void equality_ofKindAndContent_data();
    void equality_ofKindAndContent();
    void confidential_givesNothingAway();
    void confidential_isCopied();
};

void TestFieldValue::toString_byDefault_data()
{
    QTest::addColumn<FieldValue>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("invalid") << FieldValue::invalid() << "";
    QTest::newRow("int64 minimum")
        << FieldValue::fromSigned(Limits<qint64>::min()) << "-9223372036854775808";
    QTest::newRow("int64 maximum")
        << FieldValue::fromSigned(Limits<qint64>::max()) << "9223372036854775807";
    QTest::newRow("uint64 maximum")
        << FieldValue::fromUnsigned(Limits<quint64>::max()) << "18446744073709551615";
    QTest::newRow("beyond the exact doubles")
        << FieldValue::fromUnsigned((1ULL << 53) + 1) << "9007199254740993";
    QTest::newRow("zero") << FieldValue::fromUnsigned(0, 8) << "0";
    QTest::newRow("negative of 8 bits") << FieldValue::fromSigned(-128, 8) << "-128";
    QTest::newRow("float 0.1") << FieldValue::fromFloat(0.1F) << "0.1";
    QTest::newRow("double 0.1") << FieldValue::fromDouble(0.1) << "0.1";
    QTest::newRow("float 0.1 as double")
        << FieldValue::fromDouble(static_cast<double>(0.1F)) << "0.10000000149011612";
    QTest::newRow("sum") << FieldValue::fromDouble(0.1 + 0.2) << "0.30000000000000004";
    QTest::newRow("whole double") << FieldValue::fromDouble(4.0) << "4";
    QTest::newRow("largest plain")
        << FieldValue::fromDouble(9999999999999998.0) << "9999999999999998";
    QTest::newRow("smallest large") << FieldValue::fromDouble(1e16) << "1e+16";
    QTest::newRow("negative large") << FieldValue::fromDouble(-1.5e21) << "-1.5e+21";
    QTest::newRow("smallest plain") << FieldValue::fromDouble(1e-6) << "0.000001";
    QTest::newRow("largest small") << FieldValue::fromDouble(1e-7) << "1e-07";
    QTest::newRow("float smallest plain") << FieldValue::fromFloat(1e-6F) << "0.000001";
    QTest::newRow("float largest small") << FieldValue::fromFloat(1e-7F) << "1e-07";
    QTest::newRow("float largest plain") << FieldValue::fromFloat(99999992.0F) << "99999992";
    QTest::newRow("float smallest large") << FieldValue::fromFloat(1e8F) << "1e+08";
    QTest::newRow("double maximum")
        << FieldValue::fromDouble(Limits<double>::max()) << "1.7976931348623157e+308";
    QTest::newRow("float maximum")
        << FieldValue::fromFloat(Limits<float>::max()) << "3.4028235e+38";
    QTest::newRow("least double") << FieldValue::fromDouble(Limits<double>::denorm_min())
                                  << "5e-324";
    QTest::newRow("zero double") << FieldValue::fromDouble(0.0) << "0";
    QTest::newRow("negative zero") << FieldValue::fromDouble(-0.0) << "-0";
    QTest::newRow("negative zero float") << FieldValue::fromFloat(-0.0F) << "-0";
    QTest::newRow("nan") << FieldValue::fromDouble(Limits<double>::quiet_NaN()) << "NaN";
    QTest::newRow("negative nan") << FieldValue::fromFloat(-Limits<float>::quiet_NaN()) << "NaN";
    QTest::newRow("infinity") << FieldValue::fromFloat(Limits<float>::infinity()) << "Infinity";
    QTest::newRow("-infinity") << FieldValue::fromDouble(-Limits<double>::infinity())
                               << "-Infinity";
    QTest::newRow("true") << FieldValue::fromBoolean(true) << "true";
    QTest::newRow("false") << FieldValue::fromBoolean(false) << "false";
    QTest::newRow("character") << FieldValue::fromCharacter('x') << "x";
    QTest::newRow("latin character") << FieldValue::fromCharacter(0xE4) << "ä";
    QTest::newRow("wide character") << FieldValue::fromCharacter(0x1F600) << "😀";
    QTest::newRow("text") << FieldValue::fromText("a \"b\"") << "a \"b\"";
    QTest::newRow("empty text") << FieldValue::fromText("") << "";
    QTest::newRow("bytes") << FieldValue::fromBytes(QByteArray("\x00\xAB", 2)) << "0x00AB";
    QTest::newRow("no bytes") << FieldValue::fromBytes({}) << "0x";
}

void TestFieldValue::toString_byDefault()
{
    QFETCH(FieldValue, value);
    QFETCH(QString, text);
    QCOMPARE(textOf(value), text);
}

void TestFieldValue::toString_ofFloat_readsBack_data()
{
    QTest::addColumn<double>("number");

    for (const double number : {1.0 / 3, 1e20 / 3, 123456789012345680000.0, 2.5e-6, 9.999999e20,
                                1e-300 / 7, -2.0 / 3, 16777217.0})
        QTest::addRow("%.17g", number) << number;
}

void TestFieldValue::toString_ofFloat_readsBack()
{
    QFETCH(double, number);
    const auto single = static_cast<float>(number);

    QCOMPARE(textOf(FieldValue::fromDouble(number)).toDouble(), number);
    QCOMPARE(std::strtof(qPrintable(textOf(FieldValue::fromFloat(single))), nullptr), single);
}

void TestFieldValue::toString_withPrecision_data()
{
    QTest::addColumn<FieldValue>("value");
    QTest::addColumn<int>("precision");
    QTest::addColumn<QString>("text");

    const auto third = FieldValue::fromDouble(1.0 / 3);
    QTest::newRow("0") << third << 0 << "0";
    QTest::newRow("2") << third << 2 << "0.33";
    QTest::newRow("17") << third << 17 << "0.33333333333333331";
    QTest::newRow("more than 17") << third << 100 << "0.33333333333333331";
    QTest::newRow("rounded up") << FieldValue::fromDouble(0.996) << 2 << "1.00";
    QTest::newRow("negative") << FieldValue::fromDouble(-0.996) << 1 << "-1.0";
    QTest::newRow("float") << FieldValue::fromFloat(0.1F) << 10 << "0.1000000015";
    QTest::newRow("large") << FieldValue::fromDouble(1e21) << 1 << "1000000000000000000000.0";
    QTest::newRow("nan") << FieldValue::fromDouble(std::nan("")) << 3 << "NaN";
    QTest::newRow("infinity") << FieldValue::fromFloat(-INFINITY) << 3 << "-Infinity";
    QTest::newRow("integer") << FieldValue::fromSigned(5) << 3 << "5";
    QTest::newRow("text") << FieldValue::fromText("5") << 3 << "5";
}

void TestFieldValue::toString_withPrecision()
{
    QFETCH(FieldValue, value);
    QFETCH(int, precision);
    QFETCH(QString, text);
    QCOMPARE(value.toString(false, static_cast<signed char>(precision), plainMode, false), text);
}

void TestFieldValue::toString_inMode_data()
{
    QTest::addColumn<FieldValue>("value");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("precision");
    QTest::addColumn<QString>("text");

    QTest::newRow("hex 8") << FieldValue::fromUnsigned(42, 8) << int(hexMode) << -1 << "0x2A";
    QTest::newRow("hex 12") << FieldValue::fromUnsigned(1, 12) << int(hexMode) << -1 << "0x001";
    QTest::newRow("hex -1 of 8") << FieldValue::fromSigned(-1, 8) << int(hexMode) << -1 << "0xFF";
    QTest::newRow("hex -1 of 64") << FieldValue::fromSigned(-1) << int(hexMode) << -1
                                  << "0xFFFFFFFFFFFFFFFF";
    QTest::newRow("hex minimum") << FieldValue::fromSigned(Limits<qint64>::min()) << int(hexMode)
                                 << -1 << "0x8000000000000000";
    QTest::newRow("binary 6") << FieldValue::fromUnsigned(42, 6) << int(binaryMode) << -1
                              << "0b101010";
    QTest::newRow("binary 8") << FieldValue::fromUnsigned(5, 8) << int(binaryMode) << -1
                              << "0b00000101";
    QTest::newRow("binary -2 of 4")
        << FieldValue::fromSigned(-2, 4) << int(binaryMode) << -1 << "0b1110";
    QTest::newRow("binary 64") << FieldValue::fromUnsigned(1) << int(binaryMode) << -1
                               << "0b" + QString(63, '0') + "1";
    QTest::newRow("scientific") << FieldValue::fromDouble(42) << int(scientificMode) << -1
                                << "4.2e+01";
    QTest::newRow("scientific float")
        << FieldValue::fromFloat(0.1F) << int(scientificMode) << -1 << "1e-01";
    QTest::newRow("scientific 2") << FieldValue::fromDouble(42) << int(scientificMode) << 2
                                  << "4.20e+01";
    QTest::newRow("scientific nan")
        << FieldValue::fromDouble(std::nan("")) << int(scientificMode) << 2 << "NaN";
    QTest::newRow("scientific integer")
        << FieldValue::fromSigned(42) << int(scientificMode) << -1 << "42";
    QTest::newRow("hex float") << FieldValue::fromDouble(42.5) << int(hexMode) << -1 << "42.5";
    QTest::newRow("hex bytes") << FieldValue::fromBytes("*") << int(hexMode) << -1 << "0x2A";
    QTest::newRow("hex boolean") << FieldValue::fromBoolean(true) << int(hexMode) << -1 << "true";
    QTest::newRow("binary text") << FieldValue::fromText("x") << int(binaryMode) << -1 << "x";
}

void TestFieldValue::toString_inMode()
{
    QFETCH(FieldValue, value);
    QFETCH(int, mode);
    QFETCH(int, precision);
    QFETCH(QString, text);
    QCOMPARE(value.toString(false, static_cast<signed char>(precision),
                            static_cast<FieldValue::RepresentationMode>(mode), false),
             text);
}

void TestFieldValue::toString_grouped_data()
{
    QTest::addColumn<FieldValue>("value");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("text"); // With "_" for the narrow space.

    QTest::newRow("3 digits") << FieldValue::fromSigned(-999) << int(plainMode) << "-999";
    QTest::newRow("4 digits") << FieldValue::fromSigned(-1000) << int(plainMode) << "-1_000";
    QTest::newRow("6 digits") << FieldValue::fromUnsigned(123456) << int(plainMode) << "123_456";
    QTest::newRow("7 digits") << FieldValue::fromUnsigned(1234567) << int(plainMode) << "1_234_567";
    QTest::newRow("uint64 maximum") << FieldValue::fromUnsigned(Limits<quint64>::max())
                                    << int(plainMode) << "18_446_744_073_709_551_615";
    QTest::newRow("hexadecimal") << FieldValue::fromUnsigned(0x12345678, 32) << int(hexMode)
                                 << "0x12345678";
    QTest::newRow("text") << FieldValue::fromText("1234567") << int(plainMode) << "1234567";
}

void TestFieldValue::toString_grouped()
{
    QFETCH(FieldValue, value);
    QFETCH(int, mode);
    QFETCH(QString, text);
    text.replace('_', QChar(0x202F));
    QCOMPARE(value.toString(false, -1, static_cast<FieldValue::RepresentationMode>(mode), true),
             text);
}

void TestFieldValue::toString_quoted_data()
{
    QTest::addColumn<FieldValue>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("text") << FieldValue::fromText("a b") << R"("a b")";
    QTest::newRow("empty") << FieldValue::fromText("") << R"("")";
    QTest::newRow("quote") << FieldValue::fromText("a\"\\") << R"("a\"\\")";
    QTest::newRow("control") << FieldValue::fromText("\n\x7F") << R"("\x0a\x7f")";
    QTest::newRow("character") << FieldValue::fromCharacter('x') << R"("x")";
    QTest::newRow("null character") << FieldValue::fromCharacter(0) << R"("\x00")";
    QTest::newRow("number") << FieldValue::fromSigned(5) << "5";
    QTest::newRow("boolean") << FieldValue::fromBoolean(true) << "true";
    QTest::newRow("invalid") << FieldValue::invalid() << "";
}

void TestFieldValue::toString_quoted()
{
    QFETCH(FieldValue, value);
    QFETCH(QString, text);
    QCOMPARE(value.toString(true, -1, plainMode, false), text);
}

void TestFieldValue::numbers_ofEveryKind_data()
{
    using Double = std::optional<double>;
    using Integer = std::optional<quint64>;
    QTest::addColumn<FieldValue>("value");
    QTest::addColumn<Double>("asDouble");
    QTest::addColumn<Integer>("asInteger");

    QTest::newRow("signed") << FieldValue::fromSigned(-2, 8) << Double(-2.0)
                            << Integer(0xFFFF'FFFF'FFFF'FFFE);
    QTest::newRow("unsigned") << FieldValue::fromUnsigned(Limits<quint64>::max())
                              << Double(18446744073709551615.0) << Integer(Limits<quint64>::max());
    QTest::newRow("boolean") << FieldValue::fromBoolean(true) << Double(1.0) << Integer(1);
    QTest::newRow("character") << FieldValue::fromCharacter('A') << Double(65.0) << Integer(65);
    QTest::newRow("float") << FieldValue::fromFloat(0.5F) << Double(0.5) << Integer();
    QTest::newRow("double") << FieldValue::fromDouble(-0.1) << Double(-0.1) << Integer();
    QTest::newRow("text") << FieldValue::fromText("1") << Double() << Integer();
    QTest::newRow("bytes") << FieldValue::fromBytes("1") << Double() << Integer();
    QTest::newRow("invalid") << FieldValue::invalid() << Double() << Integer();
}

void TestFieldValue::numbers_ofEveryKind()
{
    QFETCH(FieldValue, value);
    QFETCH(std::optional<double>, asDouble);
    QFETCH(std::optional<quint64>, asInteger);
    QVERIFY(value.toDouble() == asDouble);
    QVERIFY(value.toInteger() == asInteger);
    QVERIFY(value.bitsOfInteger() == asInteger);
    QCOMPARE(value.getSubMessage(), nullptr);
}

void TestFieldValue::subMessage_isGivenBack()
{
    const TestFormat format("Demo", "A\n x int8\n");
    const auto message = format.message("A{}");
    const auto value = FieldValue::fromSubMessage(message);

    QCOMPARE(value.getSubMessage(), message.get());
    QVERIFY(value.isValid());
    QCOMPARE(textOf(value), QString());
    QVERIFY(!value.toDouble() && !value.toInteger());
    QCOMPARE(message->getReferenceCount(), 1);
}

void TestFieldValue::invalid_isDefault()
{
    QVERIFY(!FieldValue().isValid());
    QVERIFY(FieldValue() == FieldValue::invalid());
    QVERIFY(FieldValue::fromSigned(0).isValid());
    QVERIFY(FieldValue::fromText({}).isValid());
}

void TestFieldValue::copies_areIndependent()
{
    FieldValue original = FieldValue::fromText("text");
    const FieldValue copy = original;
    FieldValue assigned = FieldValue::fromBytes("bytes");
    assigned = original;
    original = FieldValue::fromSigned(1);
    QCOMPARE(textOf(copy), "text");
    QCOMPARE(textOf(assigned), "text");
    QCOMPARE(textOf(original), "1");

    FieldValue &same = assigned;
    assigned = same;
    QCOMPARE(textOf(assigned), "text");
}

void TestFieldValue::moves_takeTheContent()
{
    FieldValue first = FieldValue::fromBytes("a");
    FieldValue second = std::move(first);
    QCOMPARE(textOf(second), "0x61");

    FieldValue third = FieldValue::fromText("old");
    third = std::move(second);
    QCOMPARE(textOf(third), "0x61");
    third = FieldValue::invalid();
    QVERIFY(!third.isValid());
}

void TestFieldValue::equality_ofKindAndContent_data()
{
    QTest::addColumn<FieldValue>("left");
    QTest::addColumn<FieldValue>("right");
    QTest::addColumn<bool>("equal");

    const auto nan = FieldValue::fromDouble(Limits<double>::quiet_NaN());
    QTest::newRow("same") << FieldValue::fromSigned(1) << FieldValue::fromSigned(1) << true;
    QTest::newRow("kinds") << FieldValue::fromSigned(1) << FieldValue::fromUnsigned(1) << false;
    QTest::newRow("texts") << FieldValue::fromText("a") << FieldValue::fromText("a") << true;
    QTest::newRow("other texts") << FieldValue::fromText("a") << FieldValue::fromText("b") << false;
    QTest::newRow("bytes") << FieldValue::fromBytes("a") << FieldValue::fromBytes("a") << true;
    QTest::newRow("text and bytes")
        << FieldValue::fromText("a") << FieldValue::fromBytes("a") << false;
    QTest::newRow("nan") << nan << nan << true;
    QTest::newRow("zeros") << FieldValue::fromDouble(0.0) << FieldValue::fromDouble(-0.0) << false;
    QTest::newRow("floats") << FieldValue::fromFloat(1) << FieldValue::fromDouble(1) << false;
    QTest::newRow("last bit") << FieldValue::fromUnsigned(Limits<quint64>::max())
                              << FieldValue::fromUnsigned(Limits<quint64>::max() - 1) << false;
}

void TestFieldValue::equality_ofKindAndContent()
{
    QFETCH(FieldValue, left);
    QFETCH(FieldValue, right);
    QFETCH(bool, equal);
    QCOMPARE(left == right, equal);
    QCOMPARE(right == left, equal);
    QCOMPARE(left != right, !equal);
}

void TestFieldValue::confidential_givesNothingAway()
{
    for (FieldValue value : {FieldValue::fromSigned(42), FieldValue::fromDouble(4.2),
                             FieldValue::fromText("secret"), FieldValue::fromBytes("secret"),
                             FieldValue::fromBoolean(true), FieldValue::fromCharacter('s')})
    {
        value.setConfidential(true);
        for (const auto mode : {plainMode, hexMode, binaryMode, scientificMode})
            for (const bool flag : {false, true})
                QCOMPARE(value.toString(flag, 2, mode, flag), "(confidential)");
        QVERIFY(!value.toDouble());
        QVERIFY(!value.toInteger());
    }
}

void TestFieldValue::confidential_isCopied()
{
    FieldValue value = FieldValue::fromText("secret");
    value.setConfidential(true);
    FieldValue copy = value;
    QVERIFY(copy.isConfidential());
    copy = FieldValue::fromSigned(1);
    QVERIFY(!copy.isConfidential());
    const FieldValue moved = std::move(value);
    QVERIFY(moved.isConfidential());

    Corvane::setConfidentialInformationDisplayEnabled(true);
    const QString shown = textOf(moved);
    Corvane::setConfidentialInformationDisplayEnabled(false);
    QCOMPARE(shown, "secret");
}

CORVANE_TEST_MAIN(TestFieldValue)

#include "tst_fieldvalue.moc"
