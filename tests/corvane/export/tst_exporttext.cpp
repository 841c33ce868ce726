#include "csvparser.h"
#include "decodedmessage.h"
#include "exporttext.h"
#include "testcase.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <limits>

using namespace corvane;
using namespace corvane::test;

class tst_exporttext : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void appendTime_isIsoInUtc_data();
    void appendTime_isIsoInUtc();
    void appendTime_outOfRange_appendsNothing_data();
    void appendTime_outOfRange_appendsNothing();
    void quotes_oddText_isReadBackAsItWas_data();
    void quotes_oddText_isReadBackAsItWas();
    void quoteCsv_quotesOnlyWhereNeeded();
    void quotes_leaveWhatStandsBefore();
    void appendUtf8_halfSurrogate_isReplaced();
};

void tst_exporttext::appendTime_isIsoInUtc_data()
{
    QTest::addColumn<qint64>("timeUs");
    QTest::addColumn<QString>("text");
    QTest::newRow("epoch") << qint64(0) << "1970-01-01T00:00:00.000000Z";
    QTest::newRow("microseconds") << qint64(1'767'268'822'200'001) << "2026-01-01T12:00:22.200001Z";
    QTest::newRow("before the epoch") << qint64(-1) << "1969-12-31T23:59:59.999999Z";
    QTest::newRow("leap day") << qint64(951'782'400'000'000) << "2000-02-29T00:00:00.000000Z";
    QTest::newRow("first") << qint64(-62'167'219'200'000'000) << "0000-01-01T00:00:00.000000Z";
    QTest::newRow("last") << qint64(253'402'300'799'999'999) << "9999-12-31T23:59:59.999999Z";
}

void tst_exporttext::appendTime_isIsoInUtc()
{
    QFETCH(qint64, timeUs);
    QFETCH(QString, text);
    std::string out = "at ";
    QVERIFY(appendTime(out, timeUs));
    QCOMPARE(QString::fromStdString(out), QStringLiteral("at ") + text);
}

void tst_exporttext::appendTime_outOfRange_appendsNothing_data()
{
    QTest::addColumn<qint64>("timeUs");
    QTest::newRow("unknown") << DecodedMessage::unknownTime;
    QTest::newRow("smallest") << std::numeric_limits<qint64>::min() + 1;
    QTest::newRow("largest") << std::numeric_limits<qint64>::max();
    QTest::newRow("before the first") << qint64(-62'167'219'200'000'001);
    QTest::newRow("behind the last") << qint64(253'402'300'800'000'000);
}

void tst_exporttext::appendTime_outOfRange_appendsNothing()
{
    QFETCH(qint64, timeUs);
    std::string out;
    QVERIFY(!appendTime(out, timeUs));
    QVERIFY(out.empty());
}

void tst_exporttext::quotes_oddText_isReadBackAsItWas_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << "Ready";
    QTest::newRow("empty") << "";
    QTest::newRow("quotes") << "\"a\"\"b\"";
    QTest::newRow("only a quote") << "\"";
    QTest::newRow("comma") << "a,b";
    QTest::newRow("line breaks") << "a\r\nb\nc\rd";
    QTest::newRow("spaces") << " a ";
    QTest::newRow("backslash") << "C:\\new\\table";
    QTest::newRow("NUL") << QString::fromLatin1("a\0b", 3);
    QTest::newRow("controls") << QString::fromLatin1("\x01\t\x1b[31m\x1f\x7f");
    QTest::newRow("formula") << "=1+1";
    QTest::newRow("minus") << "-77.0000001";
    QTest::newRow("letters") << QString::fromUtf8(
        "\xc3\xa4\xe2\x82\xac\xf0\x9f\x98\x80\xe2\x80\xa8");
    QTest::newRow("replacement character") << QString::fromUtf8("a\xff\xfe");
}

void tst_exporttext::quotes_oddText_isReadBackAsItWas()
{
    QFETCH(QString, text);
    std::string json = "[";
    appendUtf8(json, text);
    quoteJson(json, 1);
    json += ']';
    QJsonParseError error;
    const auto array = QJsonDocument::fromJson(QByteArray::fromStdString(json), &error).array();
    QCOMPARE(error.error, QJsonParseError::NoError);
    QCOMPARE(array.at(0).toString(), text);

    std::string csv;
    appendUtf8(csv, text);
    quoteCsv(csv, 0);
    const auto rows = CsvParser::parse(QByteArray::fromStdString(csv + "\r\n"));
    QVERIFY2(rows, csv.c_str());
    QCOMPARE(*rows, QList<QStringList>{QStringList{text}});
}

void tst_exporttext::quoteCsv_quotesOnlyWhereNeeded()
{
    for (const char *plain : {"a", "a b", "=1", "-1", "a.b", "'", "1/1"}) {
        std::string out = plain;
        quoteCsv(out, 0);
        QCOMPARE(out.c_str(), plain);
    }
    std::string empty;
    quoteCsv(empty, 0);
    QCOMPARE(empty.c_str(), "\"\"");
}

void tst_exporttext::quotes_leaveWhatStandsBefore()
{
    std::string out = "\"x\",\n";
    out += "a\"b";
    std::string same = out;
    quoteCsv(out, 5);
    QCOMPARE(out.c_str(), "\"x\",\n\"a\"\"b\"");
    quoteJson(same, 5);
    QCOMPARE(same.c_str(), "\"x\",\n\"a\\\"b\"");
}

void tst_exporttext::appendUtf8_halfSurrogate_isReplaced()
{
    std::string out;
    appendUtf8(out, QString(QChar(0xD800)) + QLatin1Char('a'));
    QCOMPARE(out.c_str(), "?a");
}

CORVANE_TEST_MAIN(tst_exporttext)
#include "tst_exporttext.moc"
