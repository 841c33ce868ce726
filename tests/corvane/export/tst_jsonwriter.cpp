#include "corvane.h"
#include "jsonwriter.h"
#include "testcase.h"
#include "testformat.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace corvane;
using namespace corvane::test;

class tst_jsonwriter : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void field_isWritten_data();
    void field_isWritten();
    void toJson_wholeMessage();
    void toJson_unknownTime_isNull();
    void toJson_everyMessage_isJson();
    void rawNames_giveNumbers();
    void moreSymbolsThanAreRemembered_areAllRight();
    void confidential_isHidden_untilItMayBeShown();
    void virtualFields_areNumbers();

private:
    QString fieldsOf(const QString &literal, ValueNames names = ValueNames::Symbolic) const;

    const TestFormat format{QStringLiteral("Demo"), QStringLiteral(R"(
        All
          i8 int8 optional
          i64 int64 optional
          u64 uint64 optional
          f float optional
          d double optional
          b bool optional
          c char optional
          s char[] optional
          t text optional
          by bytes optional
          mode uint8 {Manual=0, Auto=2} optional
          onOff bool {Off=0, On=1} optional
          mask uint8 mask {Armed=1, Moving=2} optional
            armed bits 0 bool
          word uint8 optional
            low bits 0..3 signed
          'odd "name"' uint8 optional
          list int16[] optional
          always int16[]
          part Part optional
          parts Part[] optional
        Part part
          x uint8 optional
          inner Inner optional
        Inner part
          y double[] optional
        Secret
          position double confidential
          name char[] confidential
          samples int16[] confidential
          mode uint8 {Manual=0, Auto=2} confidential
          whole Part confidential
          shown uint8
          doubled double virtual confidential
        Shown as "Display name"
          value uint8 as "Display value"
          computed double virtual
    )")};
};

QString tst_jsonwriter::fieldsOf(const QString &literal, ValueNames names) const
{
    const MessageHolder message = format.message(literal);
    JsonWriter writer(names);
    auto fields = writer.makeFields(getExportedFields(message->getInfo()));
    std::string out;
    writer.appendMessage(out, message, {}, fields);
    const QString line = QString::fromStdString(out);
    return line.mid(line.indexOf(QStringLiteral("\"fields\":")) + 9).chopped(1);
}

void tst_jsonwriter::cleanup()
{
    Corvane::setConfidentialInformationDisplayEnabled(false);
    TestCase::cleanup();
}

void tst_jsonwriter::field_isWritten_data()
{
    QTest::addColumn<QString>("literal");
    QTest::addColumn<QString>("json");
    const auto row
        = [](const char *literal, const char *json) { QTest::newRow(literal) << literal << json; };
    row("i8: -128", "\"i8\":-128,");
    row("i64: -9223372036854775808", "\"i64\":-9223372036854775808,");
    row("i64: 9007199254740993", "\"i64\":9007199254740993,");
    row("u64: 18446744073709551615", "\"u64\":18446744073709551615,");
    row("f: 0.1", "\"f\":0.1,");
    row("f: -0.0", "\"f\":-0,");
    row("d: 0.1", "\"d\":0.1,");
    row("d: 1e300", "\"d\":1e+300,");
    row("d: 5e-324", "\"d\":5e-324,");
    row("d: nan", "\"d\":\"NaN\",");
    row("f: inf", "\"f\":\"Infinity\",");
    row("d: -inf", "\"d\":\"-Infinity\",");
    row("b: true", "\"b\":true,");
    row("c: 'x'", "\"c\":\"x\",");
    row("s: 'a\\nb'", "\"s\":\"a\\nb\",");
    row("t: 'say \"hi\"'", "\"t\":\"say \\\"hi\\\"\",");
    row("t: ''", "\"t\":\"\",");
    row("by: '00ff'", "\"by\":\"0x00FF\",");
    row("mode: Auto", "\"mode\":\"Auto\",");
    row("mode: 7", "\"mode\":7,");
    row("onOff: true", "\"onOff\":\"On\",");
    row("mask: 3", "\"mask\":\"Armed | Moving\",");
    row("mask: 0", "\"mask\":0,");
    row("word: 0x1F", "\"word\":31,\"word.low\":-1,");
    row("'odd \"name\"': 1", "\"odd \\\"name\\\"\":1,");
    row("list: [1, -2]", "\"list\":[1,-2],");
    row("d: invalid", "\"d\":null,");
    row("list: [1, invalid, 3]", "\"list\":[1,null,3],");
}

void tst_jsonwriter::field_isWritten()
{
    QFETCH(QString, literal);
    QFETCH(QString, json);
    QCOMPARE(fieldsOf(QStringLiteral("All{%1}").arg(literal)),
             QStringLiteral("{%1\"always\":[]}").arg(json));
}

void tst_jsonwriter::toJson_wholeMessage()
{
    const auto message = format.message(QStringLiteral(
        "All @1500000 #3 {part: {x: 1, inner: {y: [0.5, nan]}}, parts: [{}, {x: 2}]}"));
    QCOMPARE(toJson(message),
             QByteArray("{\"time\":\"1970-01-01T00:00:01.500000Z\",\"type\":\"All\",\"fields\":{"
                        "\"always\":[],\"part\":{\"x\":1,\"inner\":{\"y\":[0.5,\"NaN\"]}},"
                        "\"parts\":[{},{\"x\":2}]}}"));
}

void tst_jsonwriter::toJson_unknownTime_isNull()
{
    // Definitions' names, not those that people see.
    QCOMPARE(toJson(format.message(QStringLiteral("Shown{value: 4}"))),
             QByteArray("{\"time\":null,\"type\":\"Shown\",\"fields\":{\"value\":4}}"));
}

void tst_jsonwriter::toJson_everyMessage_isJson()
{
    const auto message = format.message(QStringLiteral(
        "All{i8: 1, f: nan, c: 0, s: '\\x01\"', t: '\\\\', by: '', mask: 255, list: [],"
        " parts: [{inner: {}}]}"));
    QJsonParseError error;
    const auto fields = QJsonDocument::fromJson(toJson(message), &error)
                            .object()
                            .value(QStringLiteral("fields"))
                            .toObject();
    QCOMPARE(error.error, QJsonParseError::NoError);
    QCOMPARE(fields.value(QStringLiteral("s")).toString(), QStringLiteral("\x01\""));
    QCOMPARE(fields.value(QStringLiteral("t")).toString(), QStringLiteral("\\"));
    QCOMPARE(fields.value(QStringLiteral("mask")).toString(),
             QStringLiteral("Armed | Moving | 0xFC"));
}

void tst_jsonwriter::rawNames_giveNumbers()
{
    QCOMPARE(fieldsOf(QStringLiteral("All{mode: Auto, onOff: true, mask: 3}"), ValueNames::Raw),
             QStringLiteral("{\"mode\":2,\"onOff\":true,\"mask\":3,\"always\":[]}"));
}

void tst_jsonwriter::moreSymbolsThanAreRemembered_areAllRight()
{
    const TestFormat wide(QStringLiteral("Wide"),
                          QStringLiteral("M\n  mode uint16 {Zero=0, Last=2999}\n"));
    FieldText text(wide.field(QStringLiteral("M.mode")), ValueNames::Symbolic);
    for (int round = 0; round < 2; ++round) {
        for (quint64 value = 0; value < 3000; ++value) {
            std::string out;
            const auto token = text.append(out, FieldValue::fromUnsigned(value, 16));
            const bool isNamed = value == 0 || value == 2999;
            QCOMPARE(token, isNamed ? FieldText::Token::Text : FieldText::Token::Literal);
            QCOMPARE(out, value == 0      ? std::string("Zero")
                          : value == 2999 ? std::string("Last")
                                          : std::to_string(value));
        }
    }
}

void tst_jsonwriter::confidential_isHidden_untilItMayBeShown()
{
    const QString literal = QStringLiteral("Secret{position: 4.5, name: 'me', samples: [1, 2], "
                                           "mode: Auto, whole: {x: 6}, shown: 7, doubled: 9}");
    const QString hidden = QStringLiteral("\"(confidential)\"");
    QCOMPARE(fieldsOf(literal),
             QStringLiteral("{\"position\":%1,\"name\":%1,\"samples\":[%1,%1],\"mode\":%1,"
                            "\"whole\":{\"x\":%1},\"shown\":7,\"doubled\":%1}")
                 .arg(hidden));
    Corvane::setConfidentialInformationDisplayEnabled(true);
    QCOMPARE(fieldsOf(literal),
             QStringLiteral("{\"position\":4.5,\"name\":\"me\",\"samples\":[1,2],\"mode\":\"Auto\","
                            "\"whole\":{\"x\":6},\"shown\":7,\"doubled\":9}"));
}

void tst_jsonwriter::virtualFields_areNumbers()
{
    QCOMPARE(fieldsOf(QStringLiteral("Shown{value: 4, computed: 0.25}")),
             QStringLiteral("{\"value\":4,\"computed\":0.25}"));
}

CORVANE_TEST_MAIN(tst_jsonwriter)
#include "tst_jsonwriter.moc"
