#include "descriptions.h"
#include "fieldinfo.h"
#include "fieldvalue.h"
#include "mavlinkframes.h"
#include "mavlinkmessage.h"
#include "messageinfo.h"
#include "testcase.h"

#include <QTest>

#include <malloc.h>

#include <limits>

using namespace corvane;
using namespace corvane::test;

namespace {

constexpr const char *dialect = R"(
<enums>
  <enum name="MODE">
    <entry value="0" name="OFF"/><entry value="5" name="FIVE"/><entry value="-1" name="NEGATIVE"/>
  </enum>
  <enum name="FLAGS" bitmask="true">
    <entry value="1" name="A"/><entry value="2" name="B"/><entry value="128" name="TOP"/>
  </enum>
  <enum name="WIDE" bitmask="true"><entry value="2**63" name="LAST"/></enum>
</enums>
<messages>
  <message id="1" name="U8"><field type="uint8_t" name="f"/></message>
  <message id="2" name="I8"><field type="int8_t" name="f"/></message>
  <message id="3" name="U16"><field type="uint16_t" name="f"/></message>
  <message id="4" name="I16"><field type="int16_t" name="f"/></message>
  <message id="5" name="U32"><field type="uint32_t" name="f"/></message>
  <message id="6" name="I32"><field type="int32_t" name="f"/></message>
  <message id="7" name="U64"><field type="uint64_t" name="f"/></message>
  <message id="8" name="I64"><field type="int64_t" name="f"/></message>
  <message id="9" name="FLOAT"><field type="float" name="f"/></message>
  <message id="10" name="DOUBLE"><field type="double" name="f"/></message>
  <message id="11" name="CHAR"><field type="char" name="f"/></message>
  <message id="12" name="STRING"><field type="char[6]" name="f"/></message>
  <message id="13" name="LIST"><field type="uint16_t[3]" name="f"/></message>
  <message id="14" name="SYMBOL"><field type="int8_t" name="f" enum="MODE"/></message>
  <message id="15" name="BITS"><field type="uint8_t" name="f" enum="FLAGS"/></message>
  <message id="16" name="WORDS"><field type="uint8_t[2]" name="f" enum="FLAGS"/></message>
  <message id="17" name="WIDE"><field type="uint64_t" name="f" enum="WIDE"/></message>
  <message id="18" name="LATE">
    <field type="uint8_t" name="a"/><extensions/><field type="uint16_t" name="f"/>
    <field type="char[4]" name="text"/>
  </message>
  <message id="19" name="BIG"><field type="uint8_t[255]" name="f"/></message>
  <message id="20" name="PLAIN"><field type="uint8_t" name="f"/><field type="uint8_t" name="g"/></message>
</messages>)";

/** A dialect of one message type, N1, whose field f has a value that means "none". */
QByteArray dialectWithInvalid(const QByteArray &type, const QByteArray &invalid)
{
    return "<enums><enum name='MODE'><entry value='0' name='OFF'/><entry value='5' name='FIVE'/>"
           "<entry value='255' name='NEGATIVE'/></enum></enums><messages><message id='1' name='N1'>"
           "<field type='"
           + type + "' name='f' enum='MODE' invalid='" + invalid + "'/></message></messages>";
}

QByteArray frameOf(const MavlinkFormat &format, quint32 id, const QByteArray &payload)
{
    return frameVersion2({id, format.findType(id)->checksumExtra, payload});
}

} // namespace

/** The values of fields, read from frames made by hand. */
class tst_MavlinkFields : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void value_data();
    void value();
    void integers_areExact();
    void trimmedPayload_readsAsZeros();
    void string_data();
    void string();
    void subFields_readBits();
    void subFields_ofArrayReadEachElement();
    void extension_absentInVersion1();
    void extension_zeroInTrimmedVersion2();
    void invalid_data();
    void invalid();
    void message_ofOtherTypeHasNoValues();
    void index_beyondCountIsInvalid();
    void byteRange_data();
    void byteRange();
    void byteRange_withoutValue();
    void memory_isBytesAndLittleMore();

private:
    DialectFolder folder;
    std::unique_ptr<MavlinkFormat> format;
};

void tst_MavlinkFields::initTestCase()
{
    format = std::make_unique<MavlinkFormat>();
    const auto result = format->load(folder.writeDialect("fields.xml", dialect));
    QVERIFY2(result.isOk(), qPrintable(result.isOk() ? QString() : result.errors[0].toString()));
}

void tst_MavlinkFields::value_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, int id, const char *payload, const char *text) {
        QTest::newRow(name) << id << fromHex(payload) << QString::fromUtf8(text);
    };
    row("uint8 least", 1, "00", "0");
    row("uint8 largest", 1, "FF", "255");
    row("int8 least", 2, "80", "-128");
    row("int8 largest", 2, "7F", "127");
    row("uint16 largest", 3, "FFFF", "65535");
    row("uint16 byte order", 3, "3412", "4660");
    row("int16 least", 4, "0080", "-32768");
    row("int16 largest", 4, "FF7F", "32767");
    row("uint32 largest", 5, "FFFFFFFF", "4294967295");
    row("int32 least", 6, "00000080", "-2147483648");
    row("int32 largest", 6, "FFFFFF7F", "2147483647");
    row("uint64 largest", 7, "FFFFFFFFFFFFFFFF", "18446744073709551615");
    row("uint64 beyond a double", 7, "0100000000002000", "9007199254740993");
    row("int64 least", 8, "0000000000000080", "-9223372036854775808");
    row("int64 largest", 8, "FFFFFFFFFFFFFF7F", "9223372036854775807");
    row("int64 minus one", 8, "FFFFFFFFFFFFFFFF", "-1");
    row("float", 9, "0000C03F", "1.5");
    row("float, shortest digits", 9, "CDCCCC3D", "0.1");
    row("float, negative zero", 9, "00000080", "-0");
    row("float, least", 9, "01000000", "1e-45");
    row("float, largest", 9, "FFFF7F7F", "3.4028235e+38");
    row("float NaN", 9, "0000C07F", "NaN");
    row("float infinity", 9, "0000807F", "Infinity");
    row("float negative infinity", 9, "000080FF", "-Infinity");
    row("double", 10, "9A9999999999B93F", "0.1");
    row("double, largest", 10, "FFFFFFFFFFFFEF7F", "1.7976931348623157e+308");
    row("double NaN", 10, "000000000000F87F", "NaN");
    row("char", 11, "41", "A");
    row("list", 13, "0100 FFFF 0300", "1 65535 3");
    row("symbol", 14, "05", "FIVE");
    row("symbol of zero", 14, "00", "OFF");
    row("symbol, negative", 14, "FF", "NEGATIVE");
    row("no symbol", 14, "07", "7");
    row("bits", 15, "83", "A | B | TOP");
    row("bits with a rest", 15, "11", "A | 0x10");
    row("bits without names", 15, "10", "16");
    row("no bits", 15, "00", "0");
    row("highest of 64 bits", 17, "0000000000000080", "LAST");
}

void tst_MavlinkFields::value()
{
    QFETCH(const int, id);
    QFETCH(const QByteArray, payload);
    QFETCH(const QString, text);
    const auto number = static_cast<quint32>(id);
    const quint8 extra = format->findType(number)->checksumExtra;
    for (const QByteArray &frame :
         {frameVersion1({number, extra, payload}), frameVersion2({number, extra, payload}),
          signedFrame({number, extra, payload})})
        QCOMPARE(FrameMessage(*format, frame).textOf("f"), text);
}

void tst_MavlinkFields::integers_areExact()
{
    const FrameMessage large(*format, frameOf(*format, 7, fromHex("FEFFFFFFFFFFFFFF")));
    const FieldValue value = findField(*format, "U64", "f")->getValue(large.get(), 0);
    QCOMPARE(value.toInteger().value(), std::numeric_limits<quint64>::max() - 1);

    const FrameMessage small(*format, frameOf(*format, 8, fromHex("0100000000000080")));
    const FieldValue negative = findField(*format, "I64", "f")->getValue(small.get(), 0);
    QCOMPARE(static_cast<qint64>(negative.toInteger().value()),
             std::numeric_limits<qint64>::min() + 1);
}

void tst_MavlinkFields::trimmedPayload_readsAsZeros()
{
    const FrameMessage all(*format, frameOf(*format, 13, fromHex("0100 0000 0000")));
    QCOMPARE(static_cast<const MavlinkMessage *>(all.get())->getPayload().size(), 1);
    QCOMPARE(all.textOf("f"), QStringLiteral("1 0 0"));
    const FrameMessage nothing(*format, frameOf(*format, 7, QByteArray(8, '\0')));
    QCOMPARE(nothing.textOf("f"), QStringLiteral("0"));
    // One of the two bytes of a number is cut off, too.
    const FrameMessage half(*format, frameOf(*format, 3, fromHex("3400")));
    QCOMPARE(half.textOf("f"), QStringLiteral("52"));
}

void tst_MavlinkFields::string_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QString>("text");
    QTest::newRow("full") << QByteArray("abcdef") << "abcdef";
    QTest::newRow("terminated") << QByteArray("abc\0xy", 6) << "abc";
    QTest::newRow("trimmed") << QByteArray("abc\0\0\0", 6) << "abc";
    QTest::newRow("empty") << QByteArray(6, '\0') << "";
    QTest::newRow("UTF-8") << QByteArray("\xC3\xA4\xE2\x82\xAC\0", 6)
                           << QStringLiteral("\u00E4\u20AC");
    QTest::newRow("invalid UTF-8")
        << QByteArray("a\xFF\x62\0\0\0", 6) << QStringLiteral("a\uFFFDb");
    QTest::newRow("UTF-8 cut off")
        << QByteArray("abcd\xE2\x82") << QStringLiteral("abcd\uFFFD\uFFFD");
    QTest::newRow("control characters") << QByteArray("a\tb\x01\x7F\n", 6) << "a\tb\x01\x7F\n";
}

void tst_MavlinkFields::string()
{
    QFETCH(const QByteArray, payload);
    QFETCH(const QString, text);
    const FieldInfo *field = findField(*format, "STRING", "f");
    const FrameMessage version2(*format, frameOf(*format, 12, payload));
    QCOMPARE(field->getString(version2.get()), text);
    QCOMPARE(field->getNumberOfValues(version2.get()), 6u);
    const FrameMessage version1(*format,
                                frameVersion1({12, format->findType(12)->checksumExtra, payload}));
    QCOMPARE(field->getString(version1.get()), text);
    QCOMPARE(findField(*format, "LIST", "f")->getString(version1.get()), QString());
}

void tst_MavlinkFields::subFields_readBits()
{
    const FrameMessage message(*format, frameOf(*format, 15, fromHex("82")));
    QCOMPARE(message.textOf("f.A"), QStringLiteral("false"));
    QCOMPARE(message.textOf("f.B"), QStringLiteral("true"));
    QCOMPARE(message.textOf("f.TOP"), QStringLiteral("true"));
    const FrameMessage wide(*format, frameOf(*format, 17, fromHex("0000000000000080")));
    QCOMPARE(wide.textOf("f.LAST"), QStringLiteral("true"));
}

void tst_MavlinkFields::subFields_ofArrayReadEachElement()
{
    const FrameMessage message(*format, frameOf(*format, 16, fromHex("01 80")));
    QCOMPARE(message.textOf("f"), QStringLiteral("A TOP"));
    QCOMPARE(message.textOf("f.A"), QStringLiteral("true false"));
    QCOMPARE(message.textOf("f.TOP"), QStringLiteral("false true"));
}

void tst_MavlinkFields::extension_absentInVersion1()
{
    const quint8 extra = format->findType(18)->checksumExtra;
    const FieldInfo *text = findField(*format, "LATE", "text");
    // A frame of version 1 has no extensions, even when it is longer than the base fields.
    for (const QByteArray &payload : {QByteArray("\x07"), QByteArray("\x07\x01\x02"
                                                                     "abcd")})
    {
        const FrameMessage message(*format, frameVersion1({18, extra, payload}));
        QCOMPARE(message.textOf("a"), QStringLiteral("7"));
        QCOMPARE(message.textOf("f"), QStringLiteral("absent"));
        QVERIFY(!findField(*format, "LATE", "f")->getValue(message.get(), 0).isValid());
        QCOMPARE(text->getString(message.get()), QString());
    }
}

void tst_MavlinkFields::extension_zeroInTrimmedVersion2()
{
    const FrameMessage cut(*format, frameOf(*format, 18, QByteArray("\x07")));
    QCOMPARE(cut.textOf("f"), QStringLiteral("0"));
    const FrameMessage full(*format, frameOf(*format, 18,
                                             QByteArray("\x07\x01\x02"
                                                        "abcd")));
    QCOMPARE(full.textOf("f"), QStringLiteral("513"));
    QCOMPARE(findField(*format, "LATE", "text")->getString(full.get()), QStringLiteral("abcd"));
}

void tst_MavlinkFields::invalid_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const char *type, const char *pattern,
                        const char *payload, const char *text) {
        QTest::newRow(name) << QString::fromLatin1(type) << QString::fromLatin1(pattern)
                            << fromHex(payload) << QString::fromLatin1(text);
    };
    row("value", "uint8_t", "9", "09", "absent");
    row("other value", "uint8_t", "9", "08", "8");
    row("negative", "int16_t", "-1", "FFFF", "absent");
    row("hexadecimal", "uint16_t", "0xFFFE", "FEFF", "absent");
    row("named limit, unsigned", "uint16_t", "UINT16_MAX", "FFFF", "absent");
    row("named limit, signed", "int32_t", "INT32_MAX", "FFFFFF7F", "absent");
    row("named limit, least", "int8_t", "INT8_MIN", "80", "absent");
    row("named limit of 64 bits", "uint64_t", "UINT64_MAX", "FFFFFFFFFFFFFFFF", "absent");
    row("64 bits in digits", "uint64_t", "18446744073709551615", "FFFFFFFFFFFFFFFF", "absent");
    row("name of an enum", "int8_t", "FIVE", "05", "absent");
    row("NaN", "float", "NaN", "0000C07F", "absent");
    row("NaN in capitals, other bits", "float", "NAN", "010080FF", "absent");
    row("NaN of 64 bits", "double", "NaN", "000000000000F87F", "absent");
    row("NaN expected, infinity", "float", "NaN", "0000807F", "Infinity");
    row("float of an integer's limit", "float", "UINT16_MAX", "00FF7F47", "absent");
    row("float in hexadecimal", "float", "0xFFFF", "00FF7F47", "absent");
    row("float zero", "float", "0", "00000000", "absent");
    row("float negative zero", "float", "0", "00000080", "absent");
    row("float", "float", "-1000", "00007AC4", "absent");

    row("[v], all", "uint8_t[3]", "[9]", "090909", "absent");
    row("[v], not all", "uint8_t[3]", "[9]", "090908", "9 9 8");
    row("v of an array", "uint8_t[3]", "9", "090909", "absent");
    row("[v:]", "uint8_t[3]", "[9:]", "090102", "absent");
    row("[v:], other first", "uint8_t[3]", "[9:]", "010909", "1 9 9");
    row("[NaN:]", "float[2]", "[NaN:]", "0000C07F 0000803F", "absent");
    row("[v,,w]", "uint8_t[3]", "[9,,8]", "090108", "absent");
    row("[v,,w], one differs", "uint8_t[3]", "[9,,8]", "090109", "9 1 9");
    row("[v, ,w] with blanks", "uint8_t[3]", "[9, , 8]", "090108", "absent");
    row("[v,]", "uint8_t[3]", "[0,]", "000108", "absent");
    row("[v] of a string", "char[3]", "[0]", "000000", "absent");

    row("no value at all", "uint8_t[3]", "[,]", "010203", "1 2 3");
    row("nothing in brackets", "uint8_t[3]", "[]", "010203", "1 2 3");
    row("nothing before the colon", "uint8_t[3]", "[:]", "010203", "1 2 3");
    row("more values than elements", "uint8_t[2]", "[1,2,3]", "0102", "1 2");
    row("not a value", "uint8_t", "unknown", "00", "OFF");
    row("not a limit", "uint8_t", "UINT9_MAX", "FF", "NEGATIVE");
    row("limit without digits", "uint8_t", "INT_MAX", "FF", "NEGATIVE");
}

void tst_MavlinkFields::invalid()
{
    QFETCH(const QString, type);
    QFETCH(const QString, pattern);
    QFETCH(const QByteArray, payload);
    QFETCH(const QString, text);
    MavlinkFormat own;
    QVERIFY(own.load(folder.writeDialect("invalid.xml",
                                         dialectWithInvalid(type.toLatin1(), pattern.toLatin1())))
                .isOk());
    const FrameMessage message(own, frameOf(own, 1, payload));
    if (type.startsWith(QLatin1String("uint8_t[")) && text != QLatin1String("absent")) {
        // Symbols would hide the numbers of the elements.
        QStringList numbers;
        const FieldInfo *field = findField(own, "N1", "f");
        for (unsigned int i = 0; i < field->getNumberOfValues(message.get()); ++i)
            numbers.append(field->getValueText(message.get(), i, false));
        QCOMPARE(numbers.join(QLatin1Char(' ')), text);
        return;
    }
    QCOMPARE(message.textOf("f"), text);
}

void tst_MavlinkFields::message_ofOtherTypeHasNoValues()
{
    const FrameMessage message(*format, frameOf(*format, 13, fromHex("414243444546")));
    for (const char *type : {"U8", "STRING", "BITS", "LATE"}) {
        const FieldInfo *field
            = findField(*format, type, type == QByteArray("LATE") ? "text" : "f");
        QCOMPARE(field->getNumberOfValues(message.get()), 0u);
        QVERIFY(!field->getValue(message.get(), 0).isValid());
        QCOMPARE(field->getString(message.get()), QString());
        quint32 offset = 77;
        quint32 length = 78;
        QVERIFY(!field->getByteRange(message.get(), 0, &offset, &length));
        QCOMPARE(offset, 77u);
        QCOMPARE(length, 78u);
    }
}

void tst_MavlinkFields::index_beyondCountIsInvalid()
{
    const FrameMessage message(*format, frameOf(*format, 13, fromHex("010002000300")));
    const FieldInfo *field = findField(*format, "LIST", "f");
    QVERIFY(field->getValue(message.get(), 2).isValid());
    QVERIFY(!field->getValue(message.get(), 3).isValid());
    QVERIFY(!field->getValue(message.get(), std::numeric_limits<unsigned int>::max()).isValid());
    QCOMPARE(field->getValueText(message.get(), 3, true), QString());
}

void tst_MavlinkFields::byteRange_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("range");
    QTest::newRow("version 2, first") << 2 << fromHex("010002000300") << 0 << "10+2";
    QTest::newRow("version 2, last") << 2 << fromHex("010002000301") << 2 << "14+2";
    QTest::newRow("version 1") << 1 << fromHex("010002000300") << 1 << "8+2";
    QTest::newRow("half cut off") << 2 << fromHex("010002000300") << 2 << "14+1";
    QTest::newRow("cut off") << 2 << fromHex("010000000000") << 2 << "none";
    QTest::newRow("beyond the count") << 2 << fromHex("010002000301") << 3 << "none";
}

void tst_MavlinkFields::byteRange()
{
    QFETCH(const int, version);
    QFETCH(const QByteArray, payload);
    QFETCH(const int, index);
    QFETCH(const QString, range);
    const FrameParts parts{13, format->findType(13)->checksumExtra, payload};
    const FrameMessage message(*format, version == 1 ? frameVersion1(parts) : frameVersion2(parts));
    quint32 offset = 0;
    quint32 length = 0;
    const bool found
        = findField(*format, "LIST", "f")
              ->getByteRange(message.get(), static_cast<unsigned int>(index), &offset, &length);
    QCOMPARE(found ? QStringLiteral("%1+%2").arg(offset).arg(length) : QStringLiteral("none"),
             range);
}

void tst_MavlinkFields::byteRange_withoutValue()
{
    MavlinkFormat own;
    QVERIFY(
        own.load(folder.writeDialect("none.xml", dialectWithInvalid("uint16_t[2]", "[9]"))).isOk());
    const FrameMessage message(own, frameOf(own, 1, fromHex("09000901")));
    const FrameMessage absent(own, frameOf(own, 1, fromHex("09000900")));
    const FieldInfo *field = findField(own, "N1", "f");
    QCOMPARE(field->getNumberOfValues(message.get()), 2u);
    QCOMPARE(field->getNumberOfValues(absent.get()), 0u);
    quint32 offset = 0;
    quint32 length = 0;
    QVERIFY(field->getByteRange(absent.get(), 1, &offset, &length));
    QCOMPARE(offset, 12u);
    QCOMPARE(length, 1u); // a zero at the end is not sent
    QVERIFY(!field->getByteRange(absent.get(), 2, &offset, &length));
}

void tst_MavlinkFields::memory_isBytesAndLittleMore()
{
    for (int size = 1; size <= 255; ++size) {
        const QByteArray frame
            = signedFrame({19, format->findType(19)->checksumExtra, QByteArray(size, '\x55')});
        const FrameMessage message(*format, frame);
        const auto *block = static_cast<const MavlinkMessage *>(message.get());
        QCOMPARE(block->getBytes().toByteArray(), frame);
        QVERIFY(block->isSigned());
        QVERIFY(sizeof(MavlinkMessage) <= 64);
        // What the allocator takes beside the usable size is one word.
        const size_t taken
            = malloc_usable_size(const_cast<MavlinkMessage *>(block)) + sizeof(size_t);
        QVERIFY2(taken <= static_cast<size_t>(frame.size()) + 128,
                 qPrintable(QString::number(taken)));
    }
}

CORVANE_TEST_MAIN(tst_MavlinkFields)
#include "tst_mavlinkfields.moc"
