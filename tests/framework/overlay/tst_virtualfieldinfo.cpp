#include "corvane.h"
#include "descriptions.h"
#include "overlaytestformat.h"
#include "testcase.h"
#include "virtualfieldinfo.h"

#include <QScopeGuard>

#include <thread>

using namespace corvane::test;
using corvane::OverlayResult;

#define VERIFY_LOADED(result)                                                                      \
    do {                                                                                           \
        const OverlayResult loaded = result;                                                       \
        QVERIFY2(loaded.isOk(), qPrintable(loaded.toString()));                                    \
    } while (false)

namespace {

const char message[] = R"(Position{lat: 3, height: -7, mode: 2, status: 0x8001, temps: [10, 20],
    flags: [1, 2, 255], offset: -5, "odd name": 6, "a.b": 9, time: 18446744073709551615,
    best: {id: 4, inner: {id: 5}}, sats: [{id: 1, snr: 2.5}, {id: 2, snr: 3.5}], secret: 40,
    code: 41, hidden: {id: 42}})";

/** Expressions and their values in the message above. */
constexpr std::pair<const char *, const char *> calculations[] = {
    {"1", "1"},
    {" 1.5e1 ", "15"},
    {".5", "0.5"},
    {"2.", "2"},
    {"0x1F", "31"},
    {"0xFFFFFFFFFFFFFFFF == 2^64", "1"},
    {"lat", "3"},
    {"lat*2+1", "7"},
    {"2 + 3 * 4", "14"},
    {"(2 + 3) * 4", "20"},
    {"2 ^ 3 ^ 2", "512"},
    {"-2 ^ 2", "-4"},
    {"2 ^ -1", "0.5"},
    {"7 - -lat", "10"},
    {"10 - 4 - 3", "3"},
    {"100 / 10 / 5", "2"},
    {"height", "-7"},
    {"mode == 2", "1"},
    {"mode != 2", "0"},
    {"lat >= 3 && lat <= 3", "1"},
    {"lat > 3 || lat < 3", "0"},
    {"lat > 1 ? 10 : 20", "10"},
    {"lat > 5 ? 10 : lat > 2 ? 20 : 30", "20"},
    {"lat > 2 ? lat > 5 ? 1 : 2 : 3", "2"},
    {"(lat > 2 ? 1 : 0) + 5", "6"},
    {"max(lat, lat > 2 ? 8 : 9, 1)", "8"},
    {"status", "32769"},
    {"status.armed", "1"},
    {"temps[1]", "20"},
    {"temps[0] + temps[1]", "30"},
    {"flags[2]", "255"},
    {"offset", "-5"},
    {"'odd name' * 2", "12"},
    {"'a.b' * 2", "18"},
    {"time == 2^64", "1"},
    {"best.id", "4"},
    {"best.inner.id", "5"},
    {"sats[1].snr - sats[0].snr", "1"},
    {"abs(-1.5)", "1.5"},
    {"sqrt(16)", "4"},
    {"sin(0) + cos(0) + tan(0)", "1"},
    {"asin(1) == pi / 2", "1"},
    {"acos(1)", "0"},
    {"atan2(1, -1) == pi * 3 / 4", "1"},
    {"atan(0) + sinh(0) + tanh(0) + asinh(0) + atanh(0) + acosh(1)", "0"},
    {"cosh(0)", "1"},
    {"exp(0)", "1"},
    {"ln(exp(2))", "2"},
    {"log2(8)", "3"},
    {"log10(1000)", "3"},
    {"floor(-1.5)", "-2"},
    {"ceil(-1.5)", "-1"},
    {"round(2.5)", "3"},
    {"trunc(-2.7)", "-2"},
    {"mod(-7, 4)", "-3"},
    {"hypot(lat, 4)", "5"},
    {"sign(height)", "-1"},
    {"min(3, 1, 2)", "1"},
    {"sum(1, 2, 3)", "6"},
    {"avg (1, 2, 6)", "3"},
    {"1 / 0", "Infinity"},
    {"-1 / 0", "-Infinity"},
    {"lat / (lat - 3)", "Infinity"},
    {"0 / 0", "NaN"},
    {"sqrt(-1)", "NaN"},
    {"ln(0)", "-Infinity"},
};

} // namespace

class TestVirtualFieldInfo : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void expression_isCalculated_data();
    void expression_isCalculated();
    void value_isAbsent_data();
    void value_isAbsent();
    void field_describesItself();
    void newFields_useEachOther();
    void laterOverlay_usesEarlierFields();
    void confidential_isInherited_data();
    void confidential_isInherited();
    void confidential_followsLaterOverlays();
    void hiddenValue_neverLeaks();
    void hiddenMessage_hidesItsVirtualFields();
    void values_areReadOnSeveralThreads();
};

void TestVirtualFieldInfo::expression_isCalculated_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("text");

    for (const auto &[expression, text] : calculations)
        QTest::newRow(expression) << expression << text;
}

void TestVirtualFieldInfo::expression_isCalculated()
{
    QFETCH(QString, expression);
    QFETCH(QString, text);
    const OverlayTestFormat format;
    VERIFY_LOADED(format.loadVirtual("v = " + expression));
    QCOMPARE(format.text("v", message), text);
    // The first evaluation and the later ones take different ways through the parser.
    QCOMPARE(format.text("v", message), text);
}

void TestVirtualFieldInfo::value_isAbsent_data()
{
    QTest::addColumn<QString>("expression");

    for (const char *expression : {"lon", "lat + lon", "temps[2]", "best.inner.inner.id",
                                   "sats[2].id", "lat > 0 ? 1 : lon", "best.snr"})
        QTest::newRow(expression) << expression;
}

void TestVirtualFieldInfo::value_isAbsent()
{
    QFETCH(QString, expression);
    const OverlayTestFormat format;
    VERIFY_LOADED(format.loadVirtual("v = " + expression + "; w = v + 1"));
    QCOMPARE(format.text("v", message), "-");
    QCOMPARE(format.text("w", message), "-");
    const auto holder = format.message(message);
    QVERIFY(!format.field("Position.v")->getValue(holder, 0).isValid());
    QCOMPARE(format.field("Position.v")->getValueText(holder, 0, true), "");
}

void TestVirtualFieldInfo::field_describesItself()
{
    const OverlayTestFormat format;
    VERIFY_LOADED(format.loadVirtual("v = lat; w = temps[0]; x = w"));
    const FieldInfo *v = format.field("Position.v");
    QVERIFY(v->isVirtual());
    QVERIFY(!v->isOptional());
    QVERIFY(!v->isRepeated());
    QVERIFY(!v->isStringField());
    QCOMPARE(v->getType().toShortString(), "double");
    QVERIFY(format.field("Position.w")->isOptional());
    QVERIFY(format.field("Position.x")->isOptional());

    const auto holder = format.message(message);
    quint32 offset = 0;
    quint32 length = 0;
    QVERIFY(!v->getByteRange(holder, 0, &offset, &length));
    QCOMPARE(v->getString(holder), "");
    QVERIFY(!v->getValue(holder, 1).isValid());
    QCOMPARE(dynamic_cast<const corvane::VirtualFieldInfo *>(v)->getExpression(), "lat");
}

void TestVirtualFieldInfo::newFields_useEachOther()
{
    const OverlayTestFormat format;
    VERIFY_LOADED(format.loadPosition(
        R"("virtualFields": [{"name": "c", "expression": "b + a + status.high"},
                             {"name": "b", "expression": "a * 10"},
                             {"name": "a", "expression": "lat"}],
           "fields": {"status": {"subFields": [{"name": "high", "firstBit": 8, "bits": 8}]}})"));
    QCOMPARE(format.text("c", message), "161");
}

void TestVirtualFieldInfo::laterOverlay_usesEarlierFields()
{
    const OverlayTestFormat format;
    VERIFY_LOADED(format.loadVirtual("a = lat"));
    VERIFY_LOADED(format.loadVirtual("b = a + 1"));
    QCOMPARE(format.text("b", message), "4");
}

void TestVirtualFieldInfo::confidential_isInherited_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<bool>("confidential");
    QTest::addColumn<QString>("shown");

    QTest::newRow("open") << "lat" << false << "3";
    QTest::newRow("confidential") << "secret + 1" << true << "41";
    QTest::newRow("integer") << "code + 1" << true << "42";
    QTest::newRow("one of two") << "lat + secret" << true << "43";
    QTest::newRow("not reached") << "lat > 0 ? 1 : secret" << true << "1";
    QTest::newRow("times zero") << "secret * 0" << true << "0";
    QTest::newRow("inside a confidential message") << "hidden.id" << true << "42";
}

void TestVirtualFieldInfo::confidential_isInherited()
{
    QFETCH(QString, expression);
    QFETCH(bool, confidential);
    QFETCH(QString, shown);
    const OverlayTestFormat format;
    VERIFY_LOADED(format.loadVirtual("w = v; v = " + expression));
    for (const char *name : {"v", "w"}) {
        QCOMPARE(format.field(QStringLiteral("Position.") + name)->isConfidential(), confidential);
        QCOMPARE(format.text(name, message), confidential ? "(confidential)" : shown);
        Corvane::setConfidentialInformationDisplayEnabled(true);
        const auto restore
            = qScopeGuard([] { Corvane::setConfidentialInformationDisplayEnabled(false); });
        QCOMPARE(format.text(name, message), shown);
    }
}

void TestVirtualFieldInfo::confidential_followsLaterOverlays()
{
    const OverlayTestFormat format;
    VERIFY_LOADED(format.loadVirtual("w = v; v = status.armed"));
    const auto areConfidential = [&](bool expected) {
        return format.field("Position.v")->isConfidential() == expected
               && format.field("Position.w")->isConfidential() == expected;
    };
    QVERIFY(areConfidential(false));
    VERIFY_LOADED(format.loadPosition(R"("fields": {"status": {"confidential": true}})"));
    QVERIFY(areConfidential(true));
    VERIFY_LOADED(format.loadPosition(R"("fields": {"v": {"confidential": false}})"));
    QVERIFY(areConfidential(true));
    VERIFY_LOADED(format.loadPosition(R"("fields": {"status": {"confidential": false}})"));
    QVERIFY(areConfidential(false));
    VERIFY_LOADED(format.loadPosition(R"("fields": {"v": {"confidential": true}})"));
    QVERIFY(areConfidential(true));
}

void TestVirtualFieldInfo::hiddenValue_neverLeaks()
{
    const OverlayTestFormat format;
    VERIFY_LOADED(format.loadVirtual("v = secret + 1"));
    const FieldInfo *v = format.field("Position.v");
    const auto holder = format.message(message);
    QCOMPARE(v->getNumberOfValues(holder), 1U);
    const FieldValue value = v->getValue(holder, 0);
    QVERIFY(value.isConfidential());
    QVERIFY(!value.toDouble());
    QVERIFY(!value.toInteger());
    QVERIFY(!value.bitsOfInteger());
    for (const auto mode :
         {FieldValue::DefaultRepresentation, FieldValue::HexadecimalRepresentation,
          FieldValue::BinaryRepresentation, FieldValue::ScientificRepresentation})
        QCOMPARE(value.toString(false, -1, mode, false), "(confidential)");
    QCOMPARE(v->getValueText(holder, 0, true), "(confidential)");
    QCOMPARE(v->getValueText(holder, 0, false), "(confidential)");
    QCOMPARE(v->getInterpretedString(value, true), "(confidential)");
    QCOMPARE(v->getRawString(value), "(confidential)");
}

void TestVirtualFieldInfo::hiddenMessage_hidesItsVirtualFields()
{
    const OverlayTestFormat format;
    VERIFY_LOADED(format.load(
        R"({"format": "Demo", "messages": {"Satellite": {"virtualFields": [
            {"name": "twice", "expression": "id * 2"}, {"name": "fixed", "expression": "7"}]}}})"));
    const auto holder = format.message(message);
    const auto textIn = [&](const char *outer, const char *name) {
        const Message *inner = format.field(QStringLiteral("Position.") + outer)
                                   ->getValue(holder, 0)
                                   .getSubMessage();
        return format.field(QStringLiteral("Satellite.") + name)->getValueText(inner, 0, true);
    };
    QCOMPARE(textIn("best", "twice"), "8");
    QCOMPARE(textIn("hidden", "twice"), "(confidential)");
    QCOMPARE(textIn("hidden", "fixed"), "(confidential)");
}

void TestVirtualFieldInfo::values_areReadOnSeveralThreads()
{
    const OverlayTestFormat format;
    VERIFY_LOADED(format.loadVirtual("v = w * 2; w = lat + 1"));
    const FieldInfo *v = format.field("Position.v");
    constexpr int rounds = 2000;
    const auto countRight = [&](int number, int *right) {
        const auto holder = format.message(QStringLiteral("Position{lat: %1}").arg(number));
        for (int i = 0; i < rounds; ++i)
            *right += v->getValue(holder, 0).toDouble() == 2.0 * (number + 1) ? 1 : 0;
    };
    int first = 0;
    int second = 0;
    std::thread other(countRight, 1, &first);
    countRight(2, &second);
    other.join();
    QCOMPARE(first, rounds);
    QCOMPARE(second, rounds);
}

CORVANE_TEST_MAIN(TestVirtualFieldInfo)
#include "tst_virtualfieldinfo.moc"
