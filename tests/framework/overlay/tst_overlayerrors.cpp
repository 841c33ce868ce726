#include "overlaytestformat.h"
#include "testcase.h"

using namespace corvane::test;
using corvane::LoadError;
using corvane::OverlayResult;

namespace {

struct Expected
{
    QString overlay;
    QStringList places; ///< "line:column"
};

/** Takes the marks "@@" out of \a text; each stands in front of the place of an error. */
Expected takeMarks(const QString &text)
{
    Expected expected;
    const QStringList pieces = text.split(QStringLiteral("@@"));
    for (const QString &piece : pieces) {
        expected.overlay += piece;
        const auto line = expected.overlay.count(QLatin1Char('\n')) + 1;
        const auto column
            = expected.overlay.size() - (expected.overlay.lastIndexOf(QLatin1Char('\n')) + 1) + 1;
        expected.places += QStringLiteral("%1:%2").arg(line).arg(column);
    }
    expected.places.removeLast();
    return expected;
}

QStringList placesOf(const OverlayResult &result)
{
    QStringList places;
    for (const LoadError &error : result.errors)
        places += QStringLiteral("%1:%2").arg(error.line).arg(error.column);
    return places;
}

QString messagesOf(const OverlayResult &result)
{
    QStringList messages;
    for (const LoadError &error : result.errors)
        messages += error.message;
    return messages.join(QLatin1Char('\n'));
}

} // namespace

class TestOverlayErrors : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void root_isChecked_data();
    void root_isChecked();
    void member_isChecked_data();
    void member_isChecked();
    void expression_isChecked_data();
    void expression_isChecked();
    void column_countsCharacters_data();
    void column_countsCharacters();
    void existingField_mustBeMadeOfTheSame();
    void severalErrors_areAllTold();
    void manyErrors_areCut();
    void text_namesFileAndPlace();
    void unknownFormat_namesTheLoadedOnes();

private:
    void check(const OverlayTestFormat &format, const QString &marked, const QString &messages);
};

// Behind the class: moc reads no further than texts such as these.
namespace {

struct ErrorCase
{
    const char *name;
    const char *text; ///< With "@@" in front of the places of errors.
    const char *messages;
};

/** What is wrong in the outermost object. */
constexpr ErrorCase rootErrors[] = {
    {"no object", "\n @@[]", "expected an object, found a list"},
    {"no format", R"( @@{"messages": {}})", R"("format" is missing; expected a text)"},
    {"no messages", R"(@@{"format": "Demo"})", R"("messages" is missing; expected an object)"},
    {"unknown key", "{\"format\": \"Demo\",\n  @@\"mesages\": 1, \"messages\": {}}",
     R"(nothing is called "mesages" here; did you mean "messages"?)"},
    {"format no text", R"({"format": @@7, "messages": {}})",
     R"("format": expected a text, found a whole number)"},
    {"messages no object", R"({"format": "Demo", "messages": @@[]})",
     R"("messages": expected an object, found a list)"},
    {"unknown message", R"({"format": "Demo", "messages": {@@"position": {}}})",
     R"(format "Demo" has no message "position"; did you mean "Position"?)"},
    {"message like no other", R"({"format": "Demo", "messages": {@@"GPS_RAW": {}}})",
     R"(format "Demo" has no message "GPS_RAW"; expected one of "Position", "Satellite", "Empty")"},
    {"message no object", R"({"format": "Demo", "messages": {"Empty": @@null}})",
     R"("Empty": expected an object, found null)"},
    {"same key twice", R"({"format": "Demo", "messages": {}, @@"format": "Demo"})",
     R"("format" is there twice; give it once)"},
    {"same key twice, escaped",
     R"({"format": "Demo", "messages": {"Empty": {}, @@"\u0045mpty": {}}})",
     R"("Empty" is there twice; give it once)"},
    {"syntax", "{\"format\": \"Demo\",\n \"messages\": {} @@]",
     "not valid JSON: Missing a comma or '}' after an object member."},
    {"comma at the end", R"({"format": "Demo", "messages": {},@@})",
     "not valid JSON: Missing a name for object member."},
    {"two values", R"({"format": "Demo", "messages": {}} @@{})",
     "not valid JSON: The document root must not be followed by "
     "other values."},
    {"number too big", R"({"format": @@1e999, "messages": {}})",
     "not valid JSON: Number too big to be stored in double."},
};

/** What is wrong in the object of a message type. */
constexpr ErrorCase memberErrors[] = {
    {"unknown key of a message", R"(@@"displayname": "", @@"virtual": [])",
     R"(nothing is called "displayname" here; did you mean "displayName"?
nothing is called "virtual" here; expected one of "$comment", "displayName", "description", "timeField", "envelope", "fields", "virtualFields")"},
    {"displayName no text", R"("displayName": @@true)",
     R"("displayName": expected a text, found true or false)"},
    {"fields no object", R"("fields": @@"lat")", R"("fields": expected an object, found a text)"},
    {"unknown field", R"("fields": {@@"lst": {}})",
     R"(message "Position" has no field "lst"; did you mean "lat"?)"},
    {"unknown sub-field", R"("fields": {@@"status.armd": {}})",
     R"(message "Position" has no field "status.armd"; did you mean "status.armed"?)"},
    {"field of a sub-message", R"("fields": {@@"best.quality": {}})",
     R"(message "Position" has no field "best.quality"; the fields of "best" are those of the message type "Satellite")"},
    {"field no object", R"("fields": {"lat": @@1.5})",
     R"("lat": expected an object, found a number)"},
    {"unknown key of a field", R"("fields": {"lat": {@@"units": "m"}})",
     R"(nothing is called "units" here; did you mean "unit"?)"},
    {"unknown role", R"("fields": {"lat": {"role": @@"Primary"}})",
     R"(there is no role "Primary"; did you mean "primary"?)"},
    {"unheard-of role", R"("fields": {"lat": {"role": @@"main"}})",
     R"(there is no role "main"; expected one of "ordinary", "primary", "secondary", "technical")"},
    {"role no text", R"("fields": {"lat": {"role": @@1}})",
     R"("role": expected a text, found a whole number)"},
    {"confidential no truth value", R"("fields": {"lat": {"confidential": @@"yes"}})",
     R"("confidential": expected true or false, found a text)"},
    {"symbols of a float", R"("fields": {"lat": {@@"symbols": {}}})",
     R"(only integers have symbols; "lat" is of type double)"},
    {"symbols no object", R"("fields": {"mode": {"symbols": @@["A"]}})",
     R"("symbols": expected an object, found a list)"},
    {"symbol value no number", R"("fields": {"mode": {"symbols": {@@"one": "A"}}})",
     R"("one" is no value of type uint8; expected a number such as "7" or "0x80")"},
    {"symbol value with a blank", R"("fields": {"mode": {"symbols": {@@" 1": "A"}}})",
     R"(" 1" is no value of type uint8; expected a number such as "7" or "0x80")"},
    {"symbol value too large", R"("fields": {"mode": {"symbols": {@@"256": "A"}}})",
     R"("256" is no value of type uint8; expected a number such as "7" or "0x80")"},
    {"symbol value too small", R"("fields": {"offset": {"symbols": {@@"-129": "A"}}})",
     R"("-129" is no value of type int8; expected a number such as "7" or "0x80")"},
    {"symbol name empty", R"("fields": {"mode": {"symbols": {"1": @@""}}})",
     "the name of a symbol cannot be empty"},
    {"symbol no text", R"("fields": {"mode": {"symbols": {"1": @@2}}})",
     R"("1": expected an object, found a whole number)"},
    {"symbol without name", R"("fields": {"mode": {"symbols": {"1": @@{}}}})",
     R"("name" is missing; expected a text)"},
    {"symbol name twice", R"("fields": {"mode": {"symbols": {"1": "A", @@"2": "A"}}})",
     R"(the value "2" or the name "A" is there twice)"},
    {"symbol value twice", R"("fields": {"mode": {"symbols": {"1": "A", @@"0x1": "B"}}})",
     R"(the value "0x1" or the name "B" is there twice)"},
    {"bitMask alone", R"("fields": {"mode": {@@"bitMask": true}})",
     R"("bitMask" says how to read "symbols", which are missing)"},
    {"timeField no object", R"("timeField": @@"time")",
     R"("timeField": expected an object, found a text)"},
    {"timeField without unit", R"("timeField": @@{"field": "time"})",
     R"("unit" is missing; expected a text)"},
    {"timeField without field", R"("timeField": @@{"unit": "s"})",
     R"("field" is missing; expected a text)"},
    {"timeField unit", R"("timeField": {"field": "time", "unit": @@"minutes"})",
     R"(there is no unit "minutes"; expected one of "us", "ms", "s")"},
    {"timeField unknown", R"("timeField": {"field": @@"tim", "unit": "s"})",
     R"(message "Position" has no field "tim"; did you mean "time"?)"},
    {"timeField repeated", R"("timeField": {"field": @@"temps", "unit": "s"})",
     R"("temps" cannot carry the time; expected a field that is transmitted and holds one number)"},
    {"timeField text", R"("timeField": {"field": @@"name", "unit": "s"})",
     R"("name" cannot carry the time; expected a field that is transmitted and holds one number)"},
    {"timeField virtual",
     R"("timeField": {"field": @@"v", "unit": "s"}, "virtualFields": [{"name": "v", "expression": "1"}])",
     R"("v" cannot carry the time; expected a field that is transmitted and holds one number)"},
    {"subFields no list", R"("fields": {"status": {"subFields": @@{}}})",
     R"("subFields": expected a list, found an object)"},
    {"sub-fields of a float", R"("fields": {"lat": {@@"subFields": []}})",
     R"(only whole integer fields are split; "lat" is of type double)"},
    {"sub-fields of a sub-field", R"("fields": {"status.armed": {@@"subFields": []}})",
     R"(only whole integer fields are split; "status.armed" is of type bool)"},
    {"virtualFields no list", R"("virtualFields": @@null)",
     R"("virtualFields": expected a list, found null)"},
    {"virtual field without expression", R"("virtualFields": [@@{"name": "v"}])",
     R"("expression" is missing; expected a text)"},
    {"virtual field without name", R"("virtualFields": [@@{"expression": "1"}])",
     R"("name" is missing; expected a text)"},
    {"virtual field with symbols",
     R"("virtualFields": [{"name": "v", "expression": "1", @@"symbols": {}}])",
     R"(nothing is called "symbols" here; expected one of "$comment", "name", "expression", "displayName", "description", "unit", "role", "confidential")"},
    {"virtual field there", R"("virtualFields": [{"name": @@"lat", "expression": "1"}])",
     R"(there is a field "lat" already, made of something else)"},
    {"virtual field twice",
     R"("virtualFields": [{"name": "v", "expression": "1"}, {"name": @@"v", "expression": "1"}])",
     R"(the virtual field "v" is there twice)"},
    {"virtual field of itself", R"("virtualFields": [{"name": "v", "expression": @@"v + 1"}])",
     "virtual fields that need each other: v -> v"},
    {"virtual fields in a circle",
     R"("virtualFields": [{"name": "x", "expression": "1 + b"}, {"name": "a", "expression": "x + c"},
            {"name": "b", "expression": @@"c"}, {"name": "c", "expression": "lat + b"},
            {"name": "d", "expression": @@"d"}])",
     "virtual fields that need each other: b -> c -> b\n"
     "virtual fields that need each other: d -> d"},
};

/** What is wrong in a list of sub-fields. */
constexpr ErrorCase subFieldErrors[] = {
    {"sub-field no object", "@@1", "expected an object, found a whole number"},
    {"sub-field without name", R"(@@{"bit": 1})", R"("name" is missing; expected a text)"},
    {"sub-field without bits", R"(@@{"name": "x"})",
     R"(which bits? expected "firstBit" and "bits", or "bit" for a single truth value)"},
    {"sub-field without count", R"(@@{"name": "x", "firstBit": 0})",
     R"(which bits? expected "firstBit" and "bits", or "bit" for a single truth value)"},
    {"bit and bits", R"({"name": "x", "bit": 1, @@"bits": 1})",
     R"("bits" does not go with "bit"; expected "bit", or "firstBit" and "bits")"},
    {"bit outside", R"({"name": "x", "bit": @@16})", R"("bit": expected 0 to 15, found 16)"},
    {"bit negative", R"({"name": "x", "bit": @@-1})", R"("bit": expected 0 to 15, found -1)"},
    {"firstBit outside", R"({"name": "x", "firstBit": @@16, "bits": 1})",
     R"("firstBit": expected 0 to 15, found 16)"},
    {"bits outside", R"({"name": "x", "firstBit": 12, "bits": @@5})",
     R"("bits": expected 1 to 4, found 5)"},
    {"no bits", R"({"name": "x", "firstBit": 12, "bits": @@0})",
     R"("bits": expected 1 to 4, found 0)"},
    {"bits fraction", R"({"name": "x", "firstBit": 1, "bits": @@1.5})",
     R"("bits": expected a whole number, found a number)"},
    {"bits huge", R"({"name": "x", "firstBit": 1, "bits": @@99999999999999999999})",
     R"("bits": expected a whole number, found a number)"},
    {"sub-field name odd", R"({"name": @@"a b", "bit": 1})",
     R"(a new field cannot be called "a b"; use letters (A to Z, a to z), digits and "_", no digit first, at most 100 of them ("displayName" may be any text))"},
    {"sub-field there", R"({"name": @@"armed", "bit": 0})",
     R"(there is a field "status.armed" already, made of something else)"},
    {"sub-field twice", R"({"name": "x", "bit": 1}, {"name": @@"x", "bit": 1})",
     R"(the sub-field "status.x" is there twice)"},
    {"sub-field symbols", R"({"name": "x", "firstBit": 1, "bits": 2, "symbols": {@@"4": "A"}})",
     R"("4" is no value of type uint2; expected a number such as "7" or "0x80")"},
};

/** Expressions and what is wrong with them. */
constexpr std::pair<const char *, const char *> expressionErrors[] = {
    {"@@", "expected a number, a field or a function at the end"},
    {"1 +@@", "expected a number, a field or a function at the end"},
    {"1 + @@* 2", R"(expected a number, a field or a function, found "*")"},
    {"lat @@lon", R"(expected an operator, found "l")"},
    {"a@@=1", R"(nothing can be assigned here; "==" compares)"},
    {"lat @@= 1", R"(nothing can be assigned here; "==" compares)"},
    {"lat +@@= 1", R"(expected a number, a field or a function, found "=")"},
    {"1 @@| 2", R"(expected an operator, found "|")"},
    {"1 @@; 2", R"(expected an operator, found ";")"},
    {"1@@, 2", R"("," is for the arguments of a function)"},
    {"@@(1", R"x("(" without the ")" that belongs to it)x"},
    {"1@@)", R"x(")" without the "(" that belongs to it)x"},
    {"(@@)", R"x(expected a number, a field or a function, found ")")x"},
    {"1 @@? 2", R"("?" without the ":" that belongs to it)"},
    {"(1 @@? 2)", R"("?" without the ":" that belongs to it)"},
    {"1 @@: 2", R"(":" without the "?" that belongs to it)"},
    {"1 ? 2 : 3 @@: 4", R"(":" without the "?" that belongs to it)"},
    {"-@@-1", "two signs in a row; put parentheses around the second"},
    {"1.2@@.3", R"(expected an operator, found ".")"},
    {"@@12abc", "not a number that can be calculated with"},
    {"@@1e999", "not a number that can be calculated with"},
    {"@@1e", "not a number that can be calculated with"},
    {"@@0x", "not a hexadecimal number of at most 64 bits"},
    {"@@0x1g", "not a hexadecimal number of at most 64 bits"},
    {"1 + @@sqr(2)", R"(there is no function "sqr"; did you mean "sqrt"?)"},
    {"@@rnd(2)", R"(there is no function "rnd")"},
    {"@@system(2)", R"(there is no function "system")"},
    {"sqrt(@@)", R"x(expected a number, a field or a function, found ")")x"},
    {"@@sqrt(1, 2)", R"("sqrt" takes 1 arguments, not 2)"},
    {"1 + @@atan2 (1)", R"("atan2" takes 2 arguments, not 1)"},
    {"@@\\\"text\\\"", R"(expected a number, a field or a function, found """)"},
    {"lat + @@lst", R"(message "Position" has no field "lst"; did you mean "lat"?)"},
    {"@@lst + @@lsn", R"(message "Position" has no field "lst"; did you mean "lat"?
message "Position" has no field "lsn"; did you mean "lon"?)"},
    {"@@status.armd",
     R"(message "Position" has no field "status.armd"; did you mean "status.armed"?)"},
    {"status.@@", "expected the name of a field, found the end"},
    {"@@best.idd", R"(message "Satellite" has no field "idd"; did you mean "id"?)"},
    {"@@best", R"("best" is no number, its type is Satellite)"},
    {"@@name", R"("name" is no number, its type is char)"},
    {"@@temps", R"("temps" is a list; name one of its values, as in "temps[0]")"},
    {"@@sats.id", R"("sats" is a list; name one of its values, as in "sats[0]")"},
    {"@@lat[0]", R"("lat" is no list and takes no index)"},
    {"temps[@@-1]", R"(expected an index between 0 and 65535, then "]")"},
    {"temps[@@99999999999]", R"(expected an index between 0 and 65535, then "]")"},
    {"temps[@@lat]", R"(expected an index between 0 and 65535, then "]")"},
    {"temps[@@1", R"(expected an index between 0 and 65535, then "]")"},
    {"1 + @@'odd", "a quoted name without its closing '"},
    {"@@'odd'", R"(message "Position" has no field "odd")"},
    {"\\u0031 + \\t @@#", R"(expected a number, a field or a function, found "#")"},
};

} // namespace

void TestOverlayErrors::check(const OverlayTestFormat &format,
                              const QString &marked,
                              const QString &messages)
{
    const Expected expected = takeMarks(marked);
    const QString before = format.described();
    const OverlayResult result = format.load(expected.overlay);
    QVERIFY(!result.isOk());
    QCOMPARE(messagesOf(result), messages);
    QCOMPARE(placesOf(result), expected.places);
    QCOMPARE(format.described(), before);
}

void TestOverlayErrors::root_isChecked_data()
{
    QTest::addColumn<QString>("overlay");
    QTest::addColumn<QString>("messages");

    for (const ErrorCase &error : rootErrors)
        QTest::newRow(error.name) << QString::fromUtf8(error.text)
                                  << QString::fromUtf8(error.messages);
}

void TestOverlayErrors::root_isChecked()
{
    QFETCH(QString, overlay);
    QFETCH(QString, messages);
    check(OverlayTestFormat(), overlay, messages);
}

void TestOverlayErrors::member_isChecked_data()
{
    QTest::addColumn<QString>("members");
    QTest::addColumn<QString>("messages");

    for (const ErrorCase &error : memberErrors)
        QTest::newRow(error.name) << QString::fromUtf8(error.text)
                                  << QString::fromUtf8(error.messages);
    const QString inSubFields = QStringLiteral(R"("fields": {"status": {"subFields": [%1]}})");
    for (const ErrorCase &error : subFieldErrors)
        QTest::newRow(error.name) << inSubFields.arg(QString::fromUtf8(error.text))
                                  << QString::fromUtf8(error.messages);
}

void TestOverlayErrors::member_isChecked()
{
    QFETCH(QString, members);
    QFETCH(QString, messages);
    check(OverlayTestFormat(), positionOverlay(members), messages);
}

void TestOverlayErrors::expression_isChecked_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("messages");

    for (const auto &[expression, messages] : expressionErrors)
        QTest::newRow(expression) << expression << messages;
}

void TestOverlayErrors::expression_isChecked()
{
    QFETCH(QString, expression);
    QFETCH(QString, messages);
    const QString member
        = QStringLiteral("\n\"virtualFields\": [\n  {\"name\": \"v\", \"expression\": \"%1\"}]");
    check(OverlayTestFormat(), positionOverlay(member.arg(expression)), messages);
}

void TestOverlayErrors::column_countsCharacters_data()
{
    QTest::addColumn<QByteArray>("overlay");
    QTest::addColumn<QString>("place");

    const auto row = [](const char *name, const QByteArray &overlay, const char *place) {
        QTest::newRow(name) << overlay << QString::fromLatin1(place);
    };
    row("first byte", "1", "1:1");
    row("letters of two bytes", "{\"$comment\": \"\xC3\xA9\xC3\xA9\", \"x\": 1}", "1:20");
    row("letters of four bytes", "{\"$comment\": \"\xF0\x9F\x9A\x80\", \"x\": 1}", "1:19");
    row("lines of another system", "{\r\n\"x\": 1}", "2:1");
    row("byte order mark", "\xEF\xBB\xBF{\"x\": 1}", "1:2");
    row("byte order mark alone", "\xEF\xBB\xBF", "1:1");
    row("tabulator", "{\t\"x\": 1}", "1:3");
    const QByteArray field = R"({"format": "Demo", "messages": {"Position": {"virtualFields": [)";
    row("expression after a letter of four bytes",
        field + "\n{\"name\": \"v\", \"expression\": \"'\xF0\x9F\x9A\x80' + #\"}]}}}", "2:36");
    row("expression after escapes",
        field + "\n{\"name\": \"v\", \"expression\": \"'\\ud83d\\ude80\\n' + #\"}]}}}", "2:49");
}

void TestOverlayErrors::column_countsCharacters()
{
    QFETCH(QByteArray, overlay);
    QFETCH(QString, place);
    const OverlayTestFormat format;
    const OverlayResult result = corvane::loadOverlayText(overlay, "test.json", {format.getInfo()});
    QCOMPARE(placesOf(result).constLast(), place);
}

void TestOverlayErrors::existingField_mustBeMadeOfTheSame()
{
    const OverlayTestFormat format;
    QVERIFY(format.loadVirtual("v = lat").isOk());
    QVERIFY(
        format
            .loadPosition(
                R"("fields": {"status": {"subFields": [{"name": "x", "firstBit": 1, "bits": 2}]}})")
            .isOk());
    check(format, positionOverlay(R"("virtualFields": [{"name": @@"v", "expression": "lon"}])"),
          R"(there is a field "v" already, made of something else)");
    check(
        format,
        positionOverlay(
            R"("fields": {"status": {"subFields": [{"name": @@"x", "firstBit": 1, "bits": 3}]}})"),
        R"(there is a field "status.x" already, made of something else)");
    check(format, positionOverlay(R"("fields": {"status.x": {@@"subFields": []}})"),
          R"(only whole integer fields are split; "status.x" is a sub-field already)");
}

void TestOverlayErrors::severalErrors_areAllTold()
{
    check(OverlayTestFormat(),
          R"({"format": "Demo",
              "messages": {"Position": {"timeField": {"field": @@"tme", "unit": "s"},
                                        "virtualFields": [{"name": "v", "expression": "lat + @@lonn"}],
                                        "fields": {"lat": {"role": @@"primry"}}},
                           @@"Nowhere": {}}})",
          R"(message "Position" has no field "tme"; did you mean "time"?
message "Position" has no field "lonn"; did you mean "lon"?
there is no role "primry"; did you mean "primary"?
format "Demo" has no message "Nowhere"; expected one of "Position", "Satellite", "Empty")");
}

void TestOverlayErrors::manyErrors_areCut()
{
    QStringList members;
    for (int i = 0; i < 100; ++i)
        members += QStringLiteral("\"x%1\": 1").arg(i);
    const OverlayTestFormat format;
    QCOMPARE(format.loadPosition(members.join(",")).errors.size(), 20);
}

void TestOverlayErrors::text_namesFileAndPlace()
{
    const OverlayTestFormat format;
    QCOMPARE(
        format.load("{\"format\": \"Demo\",\n \"messages\": {}, \"a\": 1, \"b\": 2}").toString(),
        "test.json:2:18: nothing is called \"a\" here; expected one of \"$schema\", "
        "\"$comment\", \"format\", \"framing\", \"messages\"\n"
        "test.json:2:26: nothing is called \"b\" here; expected one of \"$schema\", "
        "\"$comment\", \"format\", \"framing\", \"messages\"");
}

void TestOverlayErrors::unknownFormat_namesTheLoadedOnes()
{
    const OverlayTestFormat demo;
    const TestFormat other("Other", "Thing\n  x int8");
    const QByteArray text = R"({"format": "Dmo", "messages": {}})";
    const auto messageFor = [&](const QList<const FormatInfo *> &formats) {
        return messagesOf(corvane::loadOverlayText(text, "x", formats));
    };
    QCOMPARE(messageFor({demo.getInfo(), other.getInfo()}),
             R"(the format "Dmo" is not loaded; loaded: "Demo", "Other")");
    QCOMPARE(messageFor({}), R"(the format "Dmo" is not loaded; no format is)");
}

CORVANE_TEST_MAIN(TestOverlayErrors)
#include "tst_overlayerrors.moc"
