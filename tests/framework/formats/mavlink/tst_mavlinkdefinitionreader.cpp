#include "descriptions.h"
#include "formatinfo.h"
#include "mavlinkdefinitionreader.h"
#include "mavlinkframes.h"
#include "messageinfo.h"
#include "testcase.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

using namespace corvane;
using namespace corvane::test;

namespace {

QByteArray message(const QByteArray &fields)
{
    return "<messages><message id='1' name='M'>\n" + fields + "\n</message></messages>";
}

QByteArray field(const QByteArray &type)
{
    return "<field type='" + type + "' name='f'/>";
}

/** Elements that stand inside one another. */
QByteArray nested(int depth)
{
    QByteArray text;
    for (int i = 0; i < depth; ++i)
        text += "<a>";
    for (int i = 0; i < depth; ++i)
        text += "</a>";
    return text;
}

/** A row whose content is a whole file. */
void addRow(const char *name, const QByteArray &content, const char *text, int line)
{
    QTest::newRow(name) << content << QString::fromUtf8(text) << line;
}

/** A row whose content begins on the third line of a file, inside <mavlink>. */
void addInside(const char *name, const QByteArray &body, const char *text, int line)
{
    addRow(name, "<?xml version=\"1.0\"?>\n<mavlink>\n" + body + "\n</mavlink>\n", text, line);
}

void addXmlRows()
{
    addRow("empty", "", "end of document", 1);
    addRow("no XML", "hello\nworld", "", 1);
    addRow("binary", QByteArray("\xFD\x09\0\0\0\1\1\0\0\0", 10), "", 1);
    addRow("bad UTF-8", "<mavlink>\n<version>\xC3\x28</version></mavlink>", "", 1);
    addRow("other root", "<?xml version=\"1.0\"?>\n<html></html>", "not with <html>", 2);
    addRow("cut off", "<mavlink>\n<messages>\n", "end of document", 3);
    addRow("tags crossed", "<mavlink>\n<messages></mavlink>", "", 2);
    addRow("text behind the root", "<mavlink>\n</mavlink>\nmore", "", 3);
    addRow("entity not declared", "<mavlink>\n<version>&x;</version></mavlink>", "", 2);
    addRow("external entity",
           "<!DOCTYPE mavlink [<!ENTITY x SYSTEM 'file:///etc/passwd'>]>\n"
           "<mavlink><include>&x;</include></mavlink>",
           "", 2);
}

void addNameRows()
{
    addInside("include out of the folder", "<include>../a.xml</include>", "cannot be included", 3);
    addInside("include by full path", "<include>/etc/passwd</include>", "cannot be included", 3);
    addInside("include by address", "<include>http://x/a.xml</include>", "cannot be included", 3);
    addInside("include of nothing", "<include> </include>", "cannot be included", 3);

    addInside("duplicate id",
              "<messages><message id='1' name='A'/>\n<message id='1' name='B'/></messages>",
              "B with id 1 is there already: A with id 1, line 3", 4);
    addInside("duplicate name",
              "<messages><message id='1' name='A'/>\n<message id='2' name='A'/></messages>",
              "A with id 2 is there already: A with id 1", 4);
    addInside("id too large", "<messages><message id='16777216' name='A'/></messages>",
              "not \"16777216\"", 3);
    addInside("negative id", "<messages><message id='-1' name='A'/></messages>", "not \"-1\"", 3);
    addInside("no id", "<messages><message name='A'/></messages>", "id from 0 to 16777215", 3);
    addInside("no name", "<messages><message id='1'/></messages>", "needs a name", 3);
    addInside("odd name", "<messages><message id='1' name='A.B*'/></messages>", "\"A.B*\"", 3);
    addInside("name in other letters", "<messages><message id='1' name='\xC3\x84'/></messages>",
              "needs a name", 3);
}

void addTypeRows()
{
    addInside("unknown type", message(field("uint24_t")), "unknown type \"uint24_t\"", 4);
    addInside("no type", message("<field name='f'/>"), "unknown type \"\"", 4);
    addInside("array of 65,536", message(field("uint8_t[65536]")), "\"uint8_t[65536]\"", 4);
    addInside("array of 0", message(field("uint8_t[0]")), "\"uint8_t[0]\"", 4);
    addInside("negative array", message(field("uint8_t[-1]")), "\"uint8_t[-1]\"", 4);
    addInside("array without length", message(field("uint8_t[]")), "\"uint8_t[]\"", 4);
    addInside("array not closed", message(field("uint8_t[4")), "\"uint8_t[4\"", 4);
    addInside("array with more behind", message(field("uint8_t[4]x")), "\"uint8_t[4]x\"", 4);
    addInside("payload of 256",
              message("<field type='uint8_t[255]' name='a'/>\n" + field("int8_t")),
              "more than the 255 bytes", 5);
    addInside("array over the payload", message(field("uint64_t[32]")), "more than the 255 bytes",
              4);
    addInside("odd field name", message("<field type='int8_t' name='a b'/>"), "\"a b\"", 4);
    addInside("no field name", message("<field type='int8_t'/>"), "no name for a field", 4);
    addInside("duplicate field", message(field("int8_t") + '\n' + field("int16_t")),
              "M has two fields named f", 5);

    addInside("odd enum name", "<enums><enum name='A-B'/></enums>", "\"A-B\"", 3);
    addInside("odd entry name",
              "<enums><enum name='E'><entry name='a b' value='1'/></enum></enums>", "\"a b\"", 3);
    addInside("odd entry value",
              "<enums><enum name='E'><entry name='A' value='1.5'/></enum></enums>", "not \"1.5\"",
              3);
    addInside("nested deeply", "<x>" + nested(200'000) + "</x>", "nested too deeply", 3);
    addInside("nested deeply in a description",
              message("<description>" + nested(200'000) + "</description>"), "nested too deeply",
              4);
}

/** A format that has loaded one file already, and the folder of it. */
class Loading
{
public:
    Loading()
    {
        const QString before = dialects.writeDialect(
            "before.xml", "<messages><message id='100' name='BEFORE'><field type='uint8_t' "
                          "name='f'/></message></messages>");
        if (!format.load(before).isOk())
            qFatal("cannot load %s", qPrintable(before));
    }

    /** Loads \a file and compares the first error; nothing may have been added. */
    void verifyFails(const QString &file,
                     const QString &text,
                     qint64 line,
                     const QString &blamed = QString())
    {
        const auto result = format.load(file);
        QVERIFY(!result.isOk());
        const LoadError &error = result.errors.constFirst();
        QVERIFY2(error.message.contains(text), qPrintable(error.toString()));
        QVERIFY(!error.message.isEmpty());
        QCOMPARE(error.file, blamed.isEmpty() ? file : blamed);
        QCOMPARE(error.line, line);
        QCOMPARE(error.column > 0, line > 0);
        verifyUntouched();
    }

    /** What was loaded before is there, alone, and decodes. */
    void verifyUntouched()
    {
        QCOMPARE(format.getInfo()->getData()->messages.size(), size_t(1));
        const FrameMessage message(
            format, frameVersion2({100, format.findType(100)->checksumExtra, QByteArray("\x07")}));
        QCOMPARE(message.textOf("f"), QStringLiteral("7"));
    }

    DialectFolder dialects;
    MavlinkFormat format;
};

} // namespace

/** Broken definitions: told with file, line and column, and what was loaded before stays. */
class tst_MavlinkDefinitionReader : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void broken_data();
    void broken();
    void brokenInclude_blamesTheIncludedFile();
    void missingInclude_blamesTheInclude();
    void circularInclude_blamesTheInclude_data();
    void circularInclude_blamesTheInclude();
    void missingFile();
    void folder();
    void unreadableFile();
    void hugeFile_isNotRead();
    void entityBomb_endsSoon();
    void manyFiles();
    void manyErrors_areLimited();
    void deepIncludes();
    void manyFields_endSoon();
    void hostileBits_areLimited();
    void manyMessages_areLimited();
    void longTexts_areCutInMessages();
};

void tst_MavlinkDefinitionReader::broken_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("line");
    addXmlRows();
    addNameRows();
    addTypeRows();
}

void tst_MavlinkDefinitionReader::broken()
{
    Loading loading;
    QFETCH(const QByteArray, content);
    QFETCH(const QString, text);
    QFETCH(const int, line);
    loading.verifyFails(loading.dialects.write("broken.xml", content), text, line);
}

void tst_MavlinkDefinitionReader::brokenInclude_blamesTheIncludedFile()
{
    Loading loading;
    const QString inner = loading.dialects.writeDialect("inner.xml", message(field("nonsense")));
    const QString outer = loading.dialects.writeDialect(
        "outer.xml",
        "<messages><message id='5' name='GOOD'/></messages>\n<include>inner.xml</include>");
    loading.verifyFails(outer, "nonsense", 4, inner);
}

void tst_MavlinkDefinitionReader::missingInclude_blamesTheInclude()
{
    Loading loading;
    const QString file = loading.dialects.writeDialect("a.xml", "\n<include>missing.xml</include>");
    loading.verifyFails(file, "missing.xml\" does not exist", 4);
}

void tst_MavlinkDefinitionReader::circularInclude_blamesTheInclude_data()
{
    QTest::addColumn<QString>("loaded");
    QTest::addColumn<QString>("blamed");
    QTest::newRow("itself") << "self.xml"
                            << "self.xml";
    QTest::newRow("each other") << "a.xml"
                                << "b.xml";
}

void tst_MavlinkDefinitionReader::circularInclude_blamesTheInclude()
{
    Loading loading;
    QFETCH(const QString, loaded);
    QFETCH(const QString, blamed);
    loading.dialects.writeDialect("self.xml", "<include>self.xml</include>");
    loading.dialects.writeDialect("a.xml", "<include>b.xml</include>");
    loading.dialects.writeDialect("b.xml", "<include>a.xml</include>");
    loading.verifyFails(loading.dialects.getPath(loaded), "includes itself", 3,
                        loading.dialects.getPath(blamed));
}

void tst_MavlinkDefinitionReader::missingFile()
{
    Loading loading;
    loading.verifyFails(loading.dialects.getPath("missing.xml"), "does not exist", 0);
}

void tst_MavlinkDefinitionReader::folder()
{
    Loading loading;
    QVERIFY(QDir(loading.dialects.getPath(".")).mkdir("folder.xml"));
    loading.verifyFails(loading.dialects.getPath("folder.xml"), "is not a file", 0);
}

void tst_MavlinkDefinitionReader::unreadableFile()
{
    Loading loading;
    const QString file = loading.dialects.writeDialect("a.xml", "");
    QVERIFY(QFile::setPermissions(file, {}));
    if (QFile probe(file); probe.open(QIODevice::ReadOnly))
        QSKIP("this user may read every file");
    loading.verifyFails(file, "Cannot read", 0);
}

void tst_MavlinkDefinitionReader::hugeFile_isNotRead()
{
    Loading loading;
    const QString path = loading.dialects.getPath("huge.xml");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(100 * 1024 * 1024));
    loading.verifyFails(path, "larger than a definition file", 0);
}

void tst_MavlinkDefinitionReader::entityBomb_endsSoon()
{
    Loading loading;
    QByteArray bomb = "<!DOCTYPE mavlink [<!ENTITY a0 'aaaaaaaaaa'>\n";
    for (int i = 1; i < 20; ++i) {
        const QByteArray before = "&a" + QByteArray::number(i - 1) + ';';
        bomb += "<!ENTITY a" + QByteArray::number(i) + " '" + before.repeated(10) + "'>\n";
    }
    bomb += "]><mavlink><messages><message id='1' name='M'><description>&a19;</description>"
            "</message></messages></mavlink>";
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!loading.format.load(loading.dialects.write("bomb.xml", bomb)).isOk());
    QVERIFY(timer.elapsed() < 20000);
    loading.verifyUntouched();
}

void tst_MavlinkDefinitionReader::manyFiles()
{
    Loading loading;
    QByteArray includes;
    for (int i = 0; i < 300; ++i) {
        const QByteArray name = QByteArray::number(i) + ".xml";
        loading.dialects.writeDialect(QString::fromLatin1(name), "");
        includes += "<include>" + name + "</include>\n";
    }
    // The file itself is one of the 256, so that the 256th include is one too many.
    loading.verifyFails(loading.dialects.writeDialect("top.xml", includes), "More than 256 files",
                        258);
}

void tst_MavlinkDefinitionReader::manyErrors_areLimited()
{
    Loading loading;
    QByteArray includes;
    for (int i = 0; i < 300; ++i)
        includes += "<include>missing.xml</include>\n";
    const auto result = loading.format.load(loading.dialects.writeDialect("top.xml", includes));
    QCOMPARE(result.errors.size(), 100);
}

void tst_MavlinkDefinitionReader::deepIncludes()
{
    Loading loading;
    for (int i = 0; i < 250; ++i)
        loading.dialects.writeDialect(QString::number(i) + ".xml",
                                      "<include>" + QByteArray::number(i + 1) + ".xml</include>");
    loading.dialects.writeDialect("250.xml", "<messages><message id='1' name='DEEP'/></messages>");
    QVERIFY(loading.format.load(loading.dialects.getPath("0.xml")).isOk());
    QVERIFY(loading.format.findType(1) != nullptr);
}

void tst_MavlinkDefinitionReader::manyFields_endSoon()
{
    Loading loading;
    QByteArray fields;
    for (int i = 0; i < 300'000; ++i)
        fields += "<field type='uint8_t' name='f" + QByteArray::number(i) + "'/>\n";
    QElapsedTimer timer;
    timer.start();
    loading.verifyFails(loading.dialects.writeDialect("many.xml", message(fields)),
                        "more than the 255 bytes", 259);
    QVERIFY(timer.elapsed() < 20000);
}

void tst_MavlinkDefinitionReader::hostileBits_areLimited()
{
    Loading loading;
    QByteArray text = "<enums><enum name='E' bitmask='true'>";
    for (int i = 0; i < 64; ++i)
        text += "<entry name='B" + QByteArray::number(i) + "' value='2**" + QByteArray::number(i)
                + "'/>";
    text += "</enum></enums><messages>\n";
    QByteArray fields;
    for (int i = 0; i < 31; ++i)
        fields += "<field type='uint64_t' name='f" + QByteArray::number(i) + "' enum='E'/>";
    for (int i = 0; i < 1000; ++i)
        text += "<message id='" + QByteArray::number(i) + "' name='M" + QByteArray::number(i) + "'>"
                + fields + "</message>\n";
    // 2,015 descriptions for each message: the 131st has no room.
    loading.verifyFails(loading.dialects.writeDialect("bits.xml", text + "</messages>"),
                        "more than 262144 fields", 134);
}

void tst_MavlinkDefinitionReader::manyMessages_areLimited()
{
    Loading loading;
    QByteArray text = "<messages>";
    for (int i = 0; i < 32'769; ++i)
        text += "\n<message id='" + QByteArray::number(i + 1000) + "' name='M"
                + QByteArray::number(i) + "'/>";
    loading.verifyFails(loading.dialects.writeDialect("many.xml", text + "</messages>"),
                        "more than 32768 messages", 32'769 + 3);
}

void tst_MavlinkDefinitionReader::longTexts_areCutInMessages()
{
    Loading loading;
    const QByteArray name(1'000'000, '-');
    const auto result = loading.format.load(loading.dialects.writeDialect(
        "long.xml", "<messages><message id='" + name + "' name='" + name + "'/></messages>"));
    QCOMPARE(result.errors.size(), 1);
    QVERIFY(result.errors[0].message.size() < 400);
}

CORVANE_TEST_MAIN(tst_MavlinkDefinitionReader)
#include "tst_mavlinkdefinitionreader.moc"
