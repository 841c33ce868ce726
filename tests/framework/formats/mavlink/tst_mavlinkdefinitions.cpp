#include "catalogue.h"
#include "descriptions.h"
#include "enumeration.h"
#include "fieldinfo.h"
#include "formatinfo.h"
#include "mavlinkdescriptions.h"
#include "mavlinkframes.h"
#include "mavlinktext.h"
#include "messageinfo.h"
#include "testcase.h"

#include <QSignalSpy>
#include <QTest>

using namespace corvane;
using namespace corvane::test;

namespace {

QString errorsOf(const MavlinkFormat::LoadResult &result)
{
    QStringList texts;
    for (const LoadError &error : result.errors)
        texts.append(error.toString());
    return texts.join(QLatin1Char('\n'));
}

QStringList messageNames(const MavlinkFormat &format)
{
    QStringList names;
    for (const auto &message : format.getInfo()->getData()->messages)
        names.append(message->getName());
    return names;
}

/** The names of the values as "NAME=value", in their order. */
QStringList symbolsOf(const FieldInfo *field)
{
    QStringList texts;
    if (field->getData()->symbols != nullptr)
        for (const Enumeration::Entry &entry : field->getData()->symbols->getEntries())
            texts.append(
                QStringLiteral("%1=%2").arg(entry.name).arg(static_cast<qint64>(entry.value)));
    return texts;
}

QStringList namesOf(const QList<const FieldInfo *> &fields)
{
    QStringList names;
    for (const FieldInfo *field : fields)
        names.append(field->getName());
    return names;
}

} // namespace

/** What dialect files become: types, fields, symbols, checksum extras. */
class tst_MavlinkDefinitions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void include_nestedAndDiamond();
    void include_inSubFolder();
    void enumeration_mergedAcrossFiles();
    void enumeration_takenNameOrValueWarns();
    void number_data();
    void number();
    void enumeration_missingValuesCountOn();
    void field_texts();
    void field_kinds();
    void bitMask_givesSubFields();
    void message_fieldsKeepTheirOrder();
    void firstSentence_data();
    void firstSentence();
    void checksumExtra_data();
    void checksumExtra();
    void load_furtherFilesLater();
    void load_sameAgainChangesNothing();
    void load_contradictionChangesNothing();
    void load_announcesChange();
    void catalogue_knowsTheFormat();
};

void tst_MavlinkDefinitions::include_nestedAndDiamond()
{
    const DialectFolder folder;
    folder.writeDialect("base.xml", "<messages><message id='1' name='BASE'/></messages>");
    folder.writeDialect("left.xml", "<include>base.xml</include>"
                                    "<messages><message id='2' name='LEFT'/></messages>");
    folder.writeDialect("right.xml", "<include> base.xml </include>"
                                     "<messages><message id='3' name='RIGHT'/></messages>");
    const QString top
        = folder.writeDialect("top.xml", "<include>left.xml</include><include>right.xml</include>"
                                         "<messages><message id='4' name='TOP'/></messages>");
    MavlinkFormat format;
    QCOMPARE(errorsOf(format.load(top)), QString());
    QCOMPARE(messageNames(format), (QStringList{"BASE", "LEFT", "RIGHT", "TOP"}));
}

void tst_MavlinkDefinitions::include_inSubFolder()
{
    const DialectFolder folder;
    QVERIFY(QDir(folder.getPath(".")).mkdir("sub"));
    folder.writeDialect("sub/inner.xml", "<include>second.xml</include>");
    folder.writeDialect("sub/second.xml", "<messages><message id='1' name='INNER'/></messages>");
    const QString top = folder.writeDialect("top.xml", "<include>sub/inner.xml</include>");
    MavlinkFormat format;
    QCOMPARE(errorsOf(format.load(top)), QString());
    QCOMPARE(messageNames(format), QStringList("INNER"));
}

void tst_MavlinkDefinitions::enumeration_mergedAcrossFiles()
{
    const DialectFolder folder;
    folder.writeDialect("base.xml",
                        "<enums><enum name='E'><entry value='1' name='ONE'/></enum></enums>"
                        "<messages><message id='1' name='M'><field type='uint8_t' name='f' "
                        "enum='E'>x</field></message></messages>");
    const QString top = folder.writeDialect(
        "top.xml", "<include>base.xml</include><enums><enum name='E'>"
                   "<entry value='1' name='ONE'/><entry value='7' name='SEVEN'/></enum></enums>");
    MavlinkFormat format;
    const auto result = format.load(top);
    QCOMPARE(errorsOf(result), QString());
    QVERIFY(result.warnings.isEmpty());
    const FieldInfo *field = findField(format, "M", "f");
    QCOMPARE(symbolsOf(field), (QStringList{"ONE=1", "SEVEN=7"}));
    QVERIFY(field->isSymbolicRepresentation("SEVEN"));
    QVERIFY(!field->isSymbolicRepresentation("EIGHT"));
}

void tst_MavlinkDefinitions::enumeration_takenNameOrValueWarns()
{
    const DialectFolder folder;
    const QString file = folder.writeDialect(
        "a.xml", "<enums><enum name='E'><entry value='1' name='ONE'/>\n<entry value='1' name='UN'/>"
                 "\n<entry value='-2' name='ONE'/></enum></enums>");
    MavlinkFormat format;
    const auto result = format.load(file);
    QVERIFY(result.isOk());
    QCOMPARE(result.warnings.size(), 2);
    QCOMPARE(result.warnings[0].line, 4);
    QVERIFY(result.warnings[0].message.startsWith("UN = 1 of E "));
    QVERIFY(result.warnings[1].message.startsWith("ONE = -2 of E "));
}

void tst_MavlinkDefinitions::number_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("good");
    QTest::addColumn<quint64>("value");
    const auto minusTwo = static_cast<quint64>(-2);
    QTest::newRow("decimal") << "12" << true << quint64(12);
    QTest::newRow("negative") << "-2" << true << minusTwo;
    QTest::newRow("hexadecimal") << "0x1F" << true << quint64(31);
    QTest::newRow("hexadecimal, large X") << "0Xff" << true << quint64(255);
    QTest::newRow("binary") << "0b101" << true << quint64(5);
    QTest::newRow("power") << "2**5" << true << quint64(32);
    QTest::newRow("power of 0") << "2**0" << true << quint64(1);
    QTest::newRow("largest power") << "2**63" << true << (quint64(1) << 63);
    QTest::newRow("leading zero") << "010" << true << quint64(10);
    QTest::newRow("largest") << "18446744073709551615" << true << ~quint64(0);
    QTest::newRow("power too large") << "2**64" << false << quint64(0);
    QTest::newRow("negative power") << "2**-1" << false << quint64(0);
    QTest::newRow("too large") << "18446744073709551616" << false << quint64(0);
    QTest::newRow("too small") << "-9223372036854775809" << false << quint64(0);
    QTest::newRow("fraction") << "1.5" << false << quint64(0);
    QTest::newRow("word") << "one" << false << quint64(0);
    QTest::newRow("empty") << "" << false << quint64(0);
    QTest::newRow("prefix alone") << "0x" << false << quint64(0);
}

void tst_MavlinkDefinitions::number()
{
    QFETCH(const QString, text);
    QFETCH(const bool, good);
    QFETCH(const quint64, value);
    const auto number = parseMavlinkNumber(text);
    QCOMPARE(number.has_value(), good);
    QCOMPARE(number.value_or(0), value);
}

void tst_MavlinkDefinitions::enumeration_missingValuesCountOn()
{
    const DialectFolder folder;
    const QString file = folder.writeDialect(
        "a.xml", "<enums><enum name='E'><entry name='FIRST'/><entry value='9' name='NINE'/>"
                 "<entry value='4' name='FOUR'/><entry name='TEN'/></enum></enums>"
                 "<messages><message id='1' name='M'><field type='int8_t' name='f' enum='E'/>"
                 "</message></messages>");
    MavlinkFormat format;
    QCOMPARE(errorsOf(format.load(file)), QString());
    QCOMPARE(symbolsOf(findField(format, "M", "f")),
             (QStringList{"FIRST=1", "NINE=9", "FOUR=4", "TEN=10"}));
}

void tst_MavlinkDefinitions::field_texts()
{
    const DialectFolder folder;
    const QString file = folder.writeDialect(
        "a.xml", "<messages><message id='1' name='M'><description>First\n  line. Second.\n"
                 "</description><field type='int16_t' name='f' units='m/s' instance='true'>The <b>"
                 "speed</b> &amp; more</field></message></messages>");
    MavlinkFormat format;
    QCOMPARE(errorsOf(format.load(file)), QString());
    const FieldInfoData &field = *findField(format, "M", "f")->getData();
    QCOMPARE(field.unit, QStringLiteral("m/s"));
    QCOMPARE(field.description, QStringLiteral("The speed & more"));
    QVERIFY(field.instance);
    const MessageInfo *message = format.getInfo()->getData()->findMessage("M");
    QCOMPARE(message->getShortDescriptiveText(), QStringLiteral("First line."));
    QCOMPARE(message->getData()->description, QStringLiteral("First line. Second."));
    QVERIFY(message->isMain());
    QCOMPARE(message->getData()->format, format.getInfo());
}

void tst_MavlinkDefinitions::field_kinds()
{
    const DialectFolder folder;
    const QString file = folder.writeDialect(
        "a.xml", "<messages><message id='1' name='M'>"
                 "<field type='uint8_t_mavlink_version' name='version'/>"
                 "<field type='float[3]' name='list'/><field type='char[10]' name='text'/>"
                 "<field type='char' name='letter'/><field type='double' name='maybe' "
                 "invalid='NaN'/><extensions/><field type='int64_t' name='late'/>"
                 "</message></messages>");
    MavlinkFormat format;
    QCOMPARE(errorsOf(format.load(file)), QString());
    QStringList kinds;
    const auto fields = format.getInfo()->getData()->findMessage("M")->getFieldInfos();
    for (const FieldInfo *field : fields)
        kinds.append(field->getName() + QLatin1Char(' ') + field->getType().toShortString()
                     + (field->isRepeated() ? " repeated" : "")
                     + (field->isStringField() ? " string" : "")
                     + (field->isOptional() ? " optional" : ""));
    QCOMPARE(kinds,
             (QStringList{"version uint8", "list float repeated", "text char repeated string",
                          "letter char", "maybe double optional", "late int64 optional"}));
}

void tst_MavlinkDefinitions::bitMask_givesSubFields()
{
    const DialectFolder folder;
    const QString file = folder.writeDialect(
        "a.xml", "<enums><enum name='E' bitmask='true'><entry value='0' name='NONE'/>"
                 "<entry value='1' name='A'/><entry value='6' name='BOTH'/>"
                 "<entry value='0x80' name='TOP'/><entry value='256' name='BEYOND'/></enum>"
                 "<enum name='PLAIN'><entry value='2' name='TWO'/></enum></enums>"
                 "<messages><message id='1' name='M'><field type='uint8_t' name='mask' enum='E'/>"
                 "<field type='uint8_t' name='plain' enum='PLAIN'/><field type='uint8_t' "
                 "name='shown' enum='PLAIN' display='bitmask'/><field type='float' name='number' "
                 "enum='E'/></message></messages>");
    MavlinkFormat format;
    QCOMPARE(errorsOf(format.load(file)), QString());
    const MessageInfo *message = format.getInfo()->getData()->findMessage("M");
    QCOMPARE(namesOf(message->getFieldInfos()),
             (QStringList{"mask", "A", "TOP", "plain", "shown", "TWO", "number"}));
    const FieldInfo *bit = findField(format, "M", "mask.TOP");
    QCOMPARE(bit->getParentFieldInfo(), findField(format, "M", "mask"));
    QCOMPARE(bit->getType().getCode(), qint32(FieldType::Boolean));
    QVERIFY(findField(format, "M", "number")->getSubFieldInfos().isEmpty());
}

void tst_MavlinkDefinitions::message_fieldsKeepTheirOrder()
{
    const DialectFolder folder;
    const QString file = folder.writeDialect(
        "a.xml", "<messages><message id='1' name='M'><field type='uint8_t' name='a'/>"
                 "<field type='uint32_t' name='b'/><field type='uint8_t[4]' name='c'/>"
                 "<field type='uint16_t' name='d'/><extensions/><field type='uint8_t' name='e'/>"
                 "<field type='uint64_t' name='f'/></message></messages>");
    MavlinkFormat format;
    QCOMPARE(errorsOf(format.load(file)), QString());
    QCOMPARE(namesOf(format.getInfo()->getData()->findMessage("M")->getFieldInfos()),
             (QStringList{"a", "b", "c", "d", "e", "f"}));

    // On the wire: base fields by size, then the extensions as they are declared.
    const QByteArray payload = fromHex("04030201 2211 0A 0C0D0E0F 0E 0807060504030201");
    const FrameMessage message(format,
                               frameVersion2({1, format.findType(1)->checksumExtra, payload}));
    QCOMPARE(message.textOf("a"), QStringLiteral("10"));
    QCOMPARE(message.textOf("b"), QString::number(0x01020304));
    QCOMPARE(message.textOf("c"), QStringLiteral("12 13 14 15"));
    QCOMPARE(message.textOf("d"), QString::number(0x1122));
    QCOMPARE(message.textOf("e"), QStringLiteral("14"));
    QCOMPARE(message.textOf("f"), QString::number(0x0102030405060708));
}

void tst_MavlinkDefinitions::firstSentence_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("one") << "Only one."
                         << "Only one.";
    QTest::newRow("two") << "One. Two."
                         << "One.";
    QTest::newRow("number inside") << "Version 1.5 of it. More."
                                   << "Version 1.5 of it.";
    QTest::newRow("160") << QString(160, 'a') << QString(160, 'a');
    QTest::newRow("161") << QString(161, 'a') << QString(159, 'a') + QChar(0x2026);
}

void tst_MavlinkDefinitions::firstSentence()
{
    QFETCH(const QString, text);
    QFETCH(const QString, sentence);
    QCOMPARE(corvane::firstSentence(text), sentence);
}

void tst_MavlinkDefinitions::checksumExtra_data()
{
    // The constants that every implementation of the protocol shares.
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("extra");
    QTest::newRow("HEARTBEAT") << 0 << 50;
    QTest::newRow("SYS_STATUS") << 1 << 124;
    QTest::newRow("SYSTEM_TIME") << 2 << 137;
    QTest::newRow("PING") << 4 << 237;
    QTest::newRow("PARAM_VALUE") << 22 << 220;
    QTest::newRow("GPS_RAW_INT") << 24 << 24;
    QTest::newRow("ATTITUDE") << 30 << 39;
    QTest::newRow("GLOBAL_POSITION_INT") << 33 << 104;
    QTest::newRow("VFR_HUD") << 74 << 20;
    QTest::newRow("COMMAND_LONG") << 76 << 152;
    QTest::newRow("COMMAND_ACK") << 77 << 143;
    QTest::newRow("BATTERY_STATUS") << 147 << 154;
    QTest::newRow("STATUSTEXT") << 253 << 83;
}

void tst_MavlinkDefinitions::checksumExtra()
{
    CORVANE_SAMPLE_FILE(file, "mavlink/definitions/common.xml");
    QFETCH(const int, id);
    QFETCH(const int, extra);
    static MavlinkFormat format;
    if (format.findType(0) == nullptr)
        QVERIFY(format.load(file).isOk());
    const MavlinkMessageType *type = format.findType(static_cast<quint32>(id));
    QVERIFY(type != nullptr);
    QCOMPARE(type->info->getName(), QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(int(type->checksumExtra), extra);
}

void tst_MavlinkDefinitions::load_furtherFilesLater()
{
    const DialectFolder folder;
    const QString first = folder.writeDialect(
        "a.xml", "<enums><enum name='E'><entry value='1' name='ONE'/></enum></enums><messages>"
                 "<message id='1' name='M'><field type='uint8_t' name='f' enum='E'/></message>"
                 "</messages>");
    const QString second = folder.writeDialect(
        "b.xml", "<include>a.xml</include><enums><enum name='E'><entry value='2' name='TWO'/>"
                 "</enum></enums><messages><message id='16777215' name='LAST'/></messages>");
    MavlinkFormat format;
    QCOMPARE(errorsOf(format.load(first)), QString());
    const MessageInfo *before = format.findType(1)->info;
    QCOMPARE(errorsOf(format.load(second)), QString());
    QCOMPARE(format.findType(1)->info, before);
    QCOMPARE(messageNames(format), (QStringList{"M", "LAST"}));
    QCOMPARE(format.findType(16777215)->info->getName(), QStringLiteral("LAST"));
    QCOMPARE(symbolsOf(findField(format, "M", "f")), (QStringList{"ONE=1", "TWO=2"}));
}

void tst_MavlinkDefinitions::load_sameAgainChangesNothing()
{
    const DialectFolder folder;
    const QString file = folder.writeDialect(
        "a.xml", "<messages><message id='1' name='M'><field type='uint8_t' name='f'/></message>"
                 "</messages>");
    MavlinkFormat format;
    QVERIFY(format.load(file).isOk());
    QVERIFY(format.load(file).isOk());
    QCOMPARE(messageNames(format), QStringList("M"));
}

void tst_MavlinkDefinitions::load_contradictionChangesNothing()
{
    const DialectFolder folder;
    const auto message = [](const char *id, const char *name, const char *type) {
        return QByteArray("<message id='") + id + "' name='" + name + "'><field type='" + type
               + "' name='f'/></message>";
    };
    const QString first
        = folder.writeDialect("a.xml", "<messages>" + message("1", "M", "uint8_t") + "</messages>");
    MavlinkFormat format;
    QVERIFY(format.load(first).isOk());
    const QByteArray contradictions[]
        = {message("1", "OTHER", "uint8_t"), message("2", "M", "uint8_t"),
           message("1", "M", "uint16_t")};
    for (const QByteArray &contradiction : contradictions) {
        const QString second
            = folder.writeDialect("b.xml", "<messages>" + message("9", "NEW", "uint8_t") + '\n'
                                               + contradiction + "</messages>");
        const auto result = format.load(second);
        QCOMPARE(result.errors.size(), 1);
        QCOMPARE(result.errors[0].file, second);
        QCOMPARE(result.errors[0].line, 4);
        QVERIFY(result.errors[0].message.contains("M with id 1"));
        QCOMPARE(messageNames(format), QStringList("M"));
    }
}

void tst_MavlinkDefinitions::load_announcesChange()
{
    const DialectFolder folder;
    const QString file
        = folder.writeDialect("a.xml", "<messages><message id='1' name='M'/></messages>");
    MavlinkFormat format;
    QSignalSpy spy(Catalogue::getInstance(), &Catalogue::changed);
    QVERIFY(!format.load(folder.getPath("missing.xml")).isOk());
    QCOMPARE(spy.count(), 0);
    QVERIFY(format.load(file).isOk());
    QCOMPARE(spy.count(), 1);
}

void tst_MavlinkDefinitions::catalogue_knowsTheFormat()
{
    const FormatInfo *info = nullptr;
    {
        const MavlinkFormat format;
        info = format.getInfo();
        QCOMPARE(info->getName(), QStringLiteral("MAVLink"));
        QVERIFY(Catalogue::getInstance()->getFormats().contains(info));
    }
    QVERIFY(!Catalogue::getInstance()->getFormats().contains(info));
}

CORVANE_TEST_MAIN(tst_MavlinkDefinitions)
#include "tst_mavlinkdefinitions.moc"
