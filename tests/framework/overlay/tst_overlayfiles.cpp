#include "overlaytestformat.h"
#include "testcase.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <unistd.h>

using namespace corvane::test;
using corvane::OverlayResult;

namespace {

const char validMembers[]
    = R"("displayName": "Fix \u00b0 °", "timeField": {"field": "time", "unit": "ms"},
    "fields": {"lat": {"role": "primary", "confidential": true, "unit": "rad"},
               "status": {"subFields": [{"name": "x", "firstBit": 4, "bits": 4, "signed": true,
                                         "symbols": {"-1": "Less"}}]}},
    "virtualFields": [{"name": "v", "expression": "sqrt(lat^2 + status.x) > 1.5e1 ? 1 : temps[0]"}])";

} // namespace

class TestOverlayFiles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void unusableFile_isRefused_data();
    void unusableFile_isRefused();
    void unreadableFile_isRefused();
    void hugeFile_isRefusedAtOnce();
    void endlessDevice_isRefused();
    void content_isRefused_data();
    void content_isRefused();
    void truncated_atEveryLength();
    void changed_atEveryByte();
    void deepNesting_isRefused_data();
    void deepNesting_isRefused();
    void manyValues_areRefused();
    void manyFields_areRefused();
    void hostileExpression_isRefused_data();
    void hostileExpression_isRefused();
    void explosiveFields_areRefused();
    void longChain_hasItsLimit();

private:
    QString write(const QString &name, const QByteArray &content) const;

    QTemporaryDir folder;
};

void TestOverlayFiles::initTestCase()
{
    QVERIFY(folder.isValid());
}

QString TestOverlayFiles::write(const QString &name, const QByteArray &content) const
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write(content);
    return file.fileName();
}

void TestOverlayFiles::unusableFile_isRefused_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("text");

    const QString missing = folder.filePath("missing.json");
    QTest::newRow("missing") << missing << missing + ": there is no such file";
    QTest::newRow("folder") << folder.path() << folder.path() + ": a folder; expected a file";
    QTest::newRow("no name") << ""
                             << "there is no such file";
    const QString empty = write("empty.json", "");
    QTest::newRow("empty") << empty << empty + ":1:1: not valid JSON: there is nothing in it";
}

void TestOverlayFiles::unusableFile_isRefused()
{
    QFETCH(QString, file);
    QFETCH(QString, text);
    const OverlayTestFormat format;
    QCOMPARE(corvane::loadOverlay(file, {format.getInfo()}).toString(), text);
}

void TestOverlayFiles::unreadableFile_isRefused()
{
    const QString file = write("closed.json", "{}");
    QVERIFY(QFile::setPermissions(file, {}));
    if (::geteuid() == 0)
        QSKIP("the superuser may read every file");
    QCOMPARE(corvane::loadOverlay(file).toString(), file + ": cannot be read: Permission denied");
}

void TestOverlayFiles::hugeFile_isRefusedAtOnce()
{
    const QString file = write("huge.json", "");
    QCOMPARE(::truncate(qPrintable(file), 100'000'000), 0);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(corvane::loadOverlay(file).toString(),
             file + ": too large for an overlay: more than 16777216 bytes");
    QVERIFY(timer.elapsed() < 200);
}

void TestOverlayFiles::endlessDevice_isRefused()
{
    QCOMPARE(corvane::loadOverlay("/dev/zero").toString(),
             "/dev/zero: too large for an overlay: more than 16777216 bytes");
}

void TestOverlayFiles::content_isRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const QByteArray &content, const char *text) {
        QTest::newRow(name) << content << QString::fromLatin1(text);
    };
    row("blanks", "  \n ", "x:2:2: not valid JSON: there is nothing in it");
    row("no JSON", "format: Demo", "x:1:2: not valid JSON: Invalid value.");
    row("XML", "<a/>", "x:1:1: not valid JSON: Invalid value.");
    row("comment", "// a\n{}", "x:1:1: not valid JSON: Invalid value.");
    row("16-bit characters", QByteArray("\xFF\xFE{\0}\0", 6),
        "x:1:1: not valid JSON: Invalid value.");
    row("not UTF-8", "{\"format\": \"De\xFFmo\"}",
        "x:1:15: not valid JSON: Invalid encoding in string.");
    row("cut character", "{\"format\": \"De\xC3\"}",
        "x:1:15: not valid JSON: Invalid encoding in string.");
    row("overlong character", "{\"format\": \"De\xC0\xAF\"}",
        "x:1:15: not valid JSON: Invalid encoding in string.");
    row("half a surrogate pair", R"({"format": "\ud800"})",
        "x:1:13: not valid JSON: The surrogate pair in string is invalid.");
    row("control character", QByteArray("{\"format\": \"a\nb\"}"),
        "x:1:14: not valid JSON: a text cannot go on in the next line, nor hold control "
        "characters; write them as \\n, \\t or \\u0001");
    row("zero byte behind", QByteArray("{}\0{}", 5),
        "x:1:3: not valid JSON: The document root must not be followed by other values.");
    row("zero byte within", QByteArray("{\0}", 3),
        "x:1:2: not valid JSON: Missing a name for object member.");
    row("number with many digits", "[" + QByteArray(100'000, '9') + "]",
        "x:1:2: not valid JSON: Number too big to be stored in double.");
    row("number too big", "[1e309]",
        "x:1:2: not valid JSON: Number too big to be stored in double.");
    row("infinity", "[Infinity]", "x:1:2: not valid JSON: Invalid value.");
}

void TestOverlayFiles::content_isRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, text);
    const OverlayTestFormat format;
    const QString before = format.described();
    QCOMPARE(corvane::loadOverlayText(content, "x", {format.getInfo()}).toString(), text);
    QCOMPARE(format.described(), before);
}

void TestOverlayFiles::truncated_atEveryLength()
{
    const OverlayTestFormat format;
    const QByteArray whole = positionOverlay(QString::fromUtf8(validMembers)).toUtf8();
    const QString before = format.described();
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const OverlayResult result
            = corvane::loadOverlayText(whole.left(length), "x", {format.getInfo()});
        QVERIFY2(!result.isOk(), qPrintable(QString::number(length)));
        QVERIFY(result.errors.constFirst().line > 0);
        QVERIFY(result.errors.constFirst().column > 0);
        QCOMPARE(format.described(), before);
    }
    const OverlayResult result = corvane::loadOverlayText(whole, "x", {format.getInfo()});
    QVERIFY2(result.isOk(), qPrintable(result.toString()));
    QVERIFY(format.described() != before);
}

void TestOverlayFiles::changed_atEveryByte()
{
    const QByteArray whole = positionOverlay(QString::fromUtf8(validMembers)).toUtf8();
    for (qsizetype position = 0; position < whole.size(); ++position) {
        const OverlayTestFormat format;
        const QString before = format.described();
        for (const char replacement : {'"', '{', '0', '\xFF'}) {
            QByteArray changed = whole;
            changed[position] = replacement;
            const OverlayResult result = corvane::loadOverlayText(changed, "x", {format.getInfo()});
            if (result.isOk())
                break;
            QCOMPARE(format.described(), before);
        }
    }
}

void TestOverlayFiles::deepNesting_isRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");

    QTest::newRow("lists") << QByteArray(100'000, '[') << "x:1:65: nested more than 64 levels deep";
    QTest::newRow("objects") << QByteArray("{\"a\":").repeated(100'000)
                             << "x:1:321: nested more than 64 levels deep";
    QTest::newRow("just not") << QByteArray(64, '[') + QByteArray(64, ']')
                              << "x:1:1: expected an object, found a list";
}

void TestOverlayFiles::deepNesting_isRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, text);
    QCOMPARE(corvane::loadOverlayText(content, "x", {}).toString(), text);
}

void TestOverlayFiles::manyValues_areRefused()
{
    const QByteArray content = "[" + QByteArray("1,").repeated(300'000) + "1]";
    QCOMPARE(corvane::loadOverlayText(content, "x", {}).toString(),
             "x:1:400000: more than 200000 values in one file");
}

void TestOverlayFiles::manyFields_areRefused()
{
    const OverlayTestFormat format;
    QStringList definitions;
    for (int i = 0; i < 257; ++i)
        definitions += QStringLiteral("v%1 = 1").arg(i);
    QCOMPARE(format.loadVirtual(definitions.join(';')).errors.value(0).message,
             R"("virtualFields": at most 256, found 257)");
    definitions.removeLast();
    QVERIFY(format.loadVirtual(definitions.join(';')).isOk());

    QStringList subFields;
    for (int i = 0; i < 65; ++i)
        subFields += QStringLiteral(R"({"name": "x%1", "bit": 0})").arg(i);
    QCOMPARE(format
                 .loadPosition(QStringLiteral(R"("fields": {"status": {"subFields": [%1]}})")
                                   .arg(subFields.join(',')))
                 .errors.value(0)
                 .message,
             R"("subFields": at most 64, found 65)");
}

void TestOverlayFiles::hostileExpression_isRefused_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("message");

    const QString many = QString("(").repeated(100'000);
    QTest::newRow("very long") << QString("1+").repeated(100'000) + "1"
                               << "an expression has at most 4096 characters";
    QTest::newRow("very deep") << many + "1" + QString(")").repeated(100'000)
                               << "an expression has at most 4096 characters";
    QTest::newRow("deep") << many.left(1000) + "1" + QString(")").repeated(1000)
                          << "nested more than 64 levels deep";
    QTest::newRow("deep calls") << QString("sin(").repeated(500) + "1"
                                << "nested more than 64 levels deep";
    QTest::newRow("deep choices") << QString("1?").repeated(500) + "1"
                                  << "nested more than 64 levels deep";
    QTest::newRow("many signs") << QString("-").repeated(4000) + "1"
                                << "two signs in a row; put parentheses around the second";
    QTest::newRow("long name") << QString("a").repeated(
        4000) << "message \"Position\" has no field \"" + QString("a").repeated(60) + "...\"";
}

void TestOverlayFiles::hostileExpression_isRefused()
{
    QFETCH(QString, expression);
    QFETCH(QString, message);
    const OverlayTestFormat format;
    const OverlayResult result = format.loadVirtual("v = " + expression);
    QCOMPARE(result.errors.size(), 1);
    QCOMPARE(result.errors.constFirst().message, message);
}

void TestOverlayFiles::explosiveFields_areRefused()
{
    // Each one reads the two before it: without a limit, the last would read 10^50 values.
    QStringList definitions = {"v0 = lat", "v1 = lat"};
    for (int i = 2; i < 250; ++i)
        definitions += QStringLiteral("v%1 = v%2 + v%3").arg(i).arg(i - 1).arg(i - 2);
    const OverlayTestFormat format;
    const QString before = format.described();
    const OverlayResult result = format.loadVirtual(definitions.join(';'));
    QVERIFY(result.errors.value(0).message.contains("takes too much: at most 1000 values"));
    QCOMPARE(format.described(), before);
}

void TestOverlayFiles::longChain_hasItsLimit()
{
    QStringList definitions = {"v1 = lat"};
    for (int i = 2; i <= 100; ++i)
        definitions += QStringLiteral("v%1 = v%2 + 1").arg(i).arg(i - 1);
    const OverlayTestFormat format;
    QVERIFY(format.loadVirtual(definitions.join(';')).isOk());
    QCOMPARE(format.text("v100", "Position{lat: 1}"), "100");
    QCOMPARE(format.loadVirtual("v101 = v100").errors.value(0).message,
             "\"v101\" takes too much: at most 1000 values, those behind other virtual fields "
             "included, and 100 virtual fields one behind the other");
}

CORVANE_TEST_MAIN(TestOverlayFiles)
#include "tst_overlayfiles.moc"
