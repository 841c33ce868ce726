#include "everyfeature.h"
#include "protobuflibrary.h"
#include "protobufmessages.h"
#include "protobuftextform.h"
#include "testcase.h"

#include <QRandomGenerator>

using namespace corvane;
using namespace corvane::test;

namespace {

enum WireType : quint32 {
    Varint,
    Fixed64,
    LengthDelimited,
    StartGroup,
    EndGroup,
    Fixed32
};

QByteArray varint(quint64 value)
{
    QByteArray bytes;
    for (; value >= 0x80; value >>= 7)
        bytes.append(static_cast<char>((value & 0x7F) | 0x80));
    return bytes + static_cast<char>(value);
}

/** \a value as a varint that is longer than it need be. */
QByteArray longVarint(quint64 value, qsizetype size)
{
    QByteArray bytes = varint(value);
    while (bytes.size() < size) {
        bytes.back() = static_cast<char>(bytes.back() | '\x80');
        bytes.append('\0');
    }
    return bytes;
}

QByteArray tag(quint32 number, WireType type)
{
    return varint((quint64{number} << 3) | type);
}

QByteArray number(quint32 field, quint64 value)
{
    return tag(field, Varint) + varint(value);
}

QByteArray content(quint32 field, const QByteArray &bytes)
{
    return tag(field, LengthDelimited) + varint(static_cast<quint64>(bytes.size())) + bytes;
}

QByteArray group(quint32 field, const QByteArray &bytes)
{
    return tag(field, StartGroup) + bytes + tag(field, EndGroup);
}

template <typename Wrap>
QByteArray nested(int depth, Wrap wrap)
{
    QByteArray bytes;
    for (int i = 0; i < depth; ++i)
        bytes = wrap(bytes);
    return bytes;
}

QByteArray nestedMessages(int depth)
{
    return nested(depth, [](const QByteArray &inner) { return content(37, inner); });
}

QByteArray nestedUnknownGroups(int depth)
{
    return nested(depth, [](const QByteArray &inner) { return group(999, inner); });
}

QByteArray inModern(const QByteArray &bytes)
{
    return content(38, bytes);
}

} // namespace

class tst_ProtobufParser : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void message_isTaken_data();
    void message_isTaken();
    void damage_isRefused_data();
    void damage_isRefused();
    void nesting_isTakenUpToItsLimit();
    void everyTruncation_isAsInLibprotobuf();
    void everyFlippedBit_isAsInLibprotobuf();
    void randomDamage_isAsInLibprotobuf();
    void parts_areOneMessage();
    void oneof_lastOneCounts();
    void lastNumberOfAnEnumeration_counts();
    void mapEntries_areSortedByTheirKeys();
    void numbersOfFields_canBeAnything();
    void messageSet_isRead();

private:
    QStringList decode(const QByteArray &bytes) const
    {
        const DecodedProtobuf message(definitions->getFormat(), bytes);
        return message.get() != nullptr ? textForm(message.get()) : QStringList("no message");
    }

    std::unique_ptr<ProtobufDefinitions> definitions;
    std::unique_ptr<ProtobufLibrary> library;
};

void tst_ProtobufParser::initTestCase()
{
    definitions = std::make_unique<ProtobufDefinitions>(everyFeature(), "test.Every");
    library = std::make_unique<ProtobufLibrary>(definitions->getFormat());
}

void tst_ProtobufParser::message_isTaken_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const auto add = [](const char *name, const QByteArray &bytes, const char *text) {
        QTest::newRow(name) << bytes << QString::fromLatin1(text);
    };

    add("nothing", {}, "");
    add("number of 32 bits sent as 64", number(2, 0x1'0000'0005), "int32_field: 5");
    add("negative number of 32 bits", number(2, ~quint64{0}), "int32_field: -1");
    add("unsigned number beyond 32 bits", number(4, 0x1'0000'0005), "uint32_field: 5");
    add("number of 10 bytes", tag(5, Varint) + longVarint(5, 10), "uint64_field: 5");
    add("tag of 5 bytes", longVarint(2 << 3, 5) + varint(5), "int32_field: 5");
    add("length of 5 bytes", tag(15, LengthDelimited) + longVarint(2, 5) + "ab",
        "string_field: \"ab\"");
    add("true is what is not 0", number(14, 0x1'0000'0000), "bool_field: true");
    add("zigzag", number(6, 3) + number(7, ~quint64{0}),
        "sint32_field: -2 sint64_field: -9223372036854775808");
    add("fixed sizes",
        tag(10, Fixed32) + QByteArray::fromHex("feffffff") + tag(9, Fixed64)
            + QByteArray::fromHex("ffffffffffffffff") + tag(8, Fixed32)
            + QByteArray::fromHex("ffffffff"),
        "fixed32_field: 4294967295 fixed64_field: 18446744073709551615 sfixed32_field: -2");
    add("last one counts", number(2, 5) + number(2, 6), "int32_field: 6");
    add("list that should be packed", number(19, 1) + number(19, 2), "packed: -1 packed: 1");
    add("list that should not be packed", content(18, "\x01\x02"), "unpacked: 1 unpacked: 2");
    add("list in parts", number(18, 1) + content(18, "\x02\x03") + number(18, 4),
        "unpacked: 1 unpacked: 2 unpacked: 3 unpacked: 4");
    add("empty list", content(19, {}), "");
    add("other type than known", content(2, "ab") + number(15, 1) + tag(2, Fixed32) + "abcd", "");
    add("unknown fields",
        number(900, 1) + content(901, "ab") + group(902, number(1, 1)) + tag(903, Fixed64)
            + "abcdefgh" + tag(904, Fixed32) + "abcd",
        "");
    add("group", group(32, number(33, 1) + number(34, 2)), "Pair { left: 1 right: 2 }");
    add("group in parts", group(32, number(33, 1)) + group(32, number(34, 2)),
        "Pair { left: 1 right: 2 }");
    add("message in place of a group", content(32, number(33, 1)), "");
    add("map entry without key", content(30, number(2, 7)), "counts { value: 7 }");
    add("map entry without value", content(30, content(1, "k")), "counts { key: \"k\" }");
    add("text of proto2 that is no UTF-8", content(21, "\xff"), "strings: \"\\357\\277\\275\"");
    add("text of proto3", inModern(content(5, "\xc3\xa4")), "modern { text: \"\\303\\244\" }");
    add("extension", number(100, 4) + content(101, number(1, 5)),
        "[test.extra]: 4 [test.more] { value: 5 }");
}

void tst_ProtobufParser::message_isTaken()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QString joined = decode(bytes).join(QLatin1Char(' ')).simplified();
    QCOMPARE(joined, text);
    QCOMPARE(library->findDifference(bytes), QString());
}

void tst_ProtobufParser::damage_isRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("field number 0") << number(0, 1);
    QTest::newRow("wire type 6") << varint((2 << 3) | 6) + "ab";
    QTest::newRow("wire type 7") << varint((2 << 3) | 7) + "ab";
    QTest::newRow("tag of 6 bytes") << longVarint(2 << 3, 6) + varint(5);
    QTest::newRow("tag cut") << tag(100, Varint).first(1);
    QTest::newRow("number of 11 bytes") << tag(5, Varint) + longVarint(5, 11);
    QTest::newRow("number cut") << tag(5, Varint) + "\x80";
    QTest::newRow("number of 4 bytes cut") << tag(8, Fixed32) + "abc";
    QTest::newRow("number of 8 bytes cut") << tag(9, Fixed64) + "abcdefg";
    QTest::newRow("unknown number cut") << tag(900, Fixed64) + "abcdefg";
    QTest::newRow("length of 6 bytes") << tag(15, LengthDelimited) + longVarint(2, 6) + "ab";
    QTest::newRow("length beyond the end") << tag(15, LengthDelimited) + varint(3) + "ab";
    QTest::newRow("length beyond all") << tag(15, LengthDelimited) + varint(~quint64{0}) + "ab";
    QTest::newRow("length beyond the message around it")
        << content(25, tag(2, LengthDelimited) + varint(3)) + "abc";
    QTest::newRow("packed number cut") << content(19, "\x01\x80") + number(1, 1);
    QTest::newRow("packed numbers of 8 bytes cut") << content(20, "abcdefghijkl");
    QTest::newRow("end of no group") << tag(32, EndGroup);
    QTest::newRow("end of a group inside of a message") << content(25, tag(32, EndGroup));
    QTest::newRow("group without end") << tag(32, StartGroup) + number(33, 1);
    QTest::newRow("group with the end of another") << tag(32, StartGroup) + tag(35, EndGroup);
    QTest::newRow("unknown group without end") << tag(999, StartGroup) + number(33, 1);
    QTest::newRow("unknown group with the end of another")
        << tag(999, StartGroup) + tag(998, EndGroup);
    QTest::newRow("text of proto3 that is no UTF-8") << inModern(content(5, "\xff"));
    QTest::newRow("text of a proto3 oneof that is no UTF-8") << inModern(content(11, "\xc3"));
    QTest::newRow("messages nested beyond measure") << nestedMessages(101);
    QTest::newRow("unknown groups nested beyond measure") << nestedUnknownGroups(101);
    QTest::newRow("unknown groups nested beyond measure inside")
        << content(37, nestedUnknownGroups(100));
}

void tst_ProtobufParser::damage_isRefused()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(decode(bytes), QStringList("no message"));
    QCOMPARE(library->findDifference(bytes), QString());
}

void tst_ProtobufParser::nesting_isTakenUpToItsLimit()
{
    for (const QByteArray &bytes :
         {nestedMessages(100), nestedUnknownGroups(100), content(37, nestedUnknownGroups(99))})
    {
        QVERIFY(decode(bytes) != QStringList("no message"));
        QCOMPARE(library->findDifference(bytes), QString());
    }
}

void tst_ProtobufParser::everyTruncation_isAsInLibprotobuf()
{
    const QByteArray rich = definitions->encode(everyFeatureMessage());
    QVERIFY(decode(rich).size() > 40);
    for (qsizetype size = 0; size <= rich.size(); ++size)
        QCOMPARE(library->findDifference(rich.first(size)), QString());
}

void tst_ProtobufParser::everyFlippedBit_isAsInLibprotobuf()
{
    const QByteArray rich = definitions->encode(everyFeatureMessage());
    for (qsizetype bit = 0; bit < rich.size() * 8; ++bit) {
        QByteArray flipped = rich;
        flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << (bit % 8)));
        QCOMPARE(library->findDifference(flipped), QString());
    }
}

void tst_ProtobufParser::randomDamage_isAsInLibprotobuf()
{
    const QByteArray rich = definitions->encode(everyFeatureMessage());
    QRandomGenerator random(1);
    int taken = 0;
    for (int round = 0; round < 3000; ++round) {
        QByteArray damaged = rich;
        const auto from = random.bounded(static_cast<int>(rich.size()));
        const auto size = random.bounded(static_cast<int>(rich.size()) - from);
        switch (random.bounded(3)) {
        case 0:
            damaged.remove(from, size);
            break;
        case 1:
            damaged.insert(from, rich.sliced(from, size));
            break;
        default:
            damaged[from] = static_cast<char>(random.bounded(256));
            break;
        }
        QCOMPARE(library->findDifference(damaged), QString());
        taken += decode(damaged) != QStringList("no message");
    }
    QVERIFY(taken > 100);
}

void tst_ProtobufParser::parts_areOneMessage()
{
    QCOMPARE(
        decode(content(25, number(1, 5)) + content(25, content(2, "l"))).join(' ').simplified(),
        "part { value: 5 label: \"l\" }");
    // Also where they stand in a oneof, unless another was there meanwhile.
    QCOMPARE(
        decode(content(29, number(1, 5)) + content(29, content(2, "l"))).join(' ').simplified(),
        "piece { value: 5 label: \"l\" }");
    const QByteArray interrupted
        = content(29, number(1, 5)) + number(27, 1) + content(29, content(2, "l"));
    QCOMPARE(decode(interrupted).join(' ').simplified(), "piece { label: \"l\" }");
    QCOMPARE(library->findDifference(interrupted), QString());
}

void tst_ProtobufParser::oneof_lastOneCounts()
{
    const QByteArray all = number(27, 1) + content(28, "t") + content(29, number(1, 2));
    QCOMPARE(decode(all).join(' ').simplified(), "piece { value: 2 }");
    QCOMPARE(decode(all + content(28, {})), QStringList("text: \"\""));
    QCOMPARE(decode(all + number(27, 0)), QStringList("number: 0"));
    for (const QByteArray &last : {content(28, {}), number(27, 0), QByteArray()})
        QCOMPARE(library->findDifference(all + last), QString());
}

void tst_ProtobufParser::lastNumberOfAnEnumeration_counts()
{
    // Also one that the definitions do not know.
    QCOMPARE(decode(number(17, 1) + number(17, 77)), QStringList("color: 77"));
    QCOMPARE(decode(number(17, 77) + number(17, 1)), QStringList("color: RED"));
    QCOMPARE(decode(number(23, 77) + number(23, 1) + number(23, 78)),
             QStringList({"colors: 77", "colors: RED", "colors: 78"}));
}

void tst_ProtobufParser::mapEntries_areSortedByTheirKeys()
{
    const auto entry = [](const char *key, quint64 value) {
        return content(30, content(1, key) + number(2, value));
    };
    QCOMPARE(decode(entry("b", 1) + entry("a", 2) + entry("", 3) + entry("b", 4))
                 .filter("value")
                 .join(' ')
                 .simplified(),
             "value: 3 value: 2 value: 1 value: 4");
    const auto numbered
        = [](qint64 key) { return content(31, number(1, static_cast<quint64>(key))); };
    QCOMPARE(decode(numbered(5) + numbered(-3) + numbered(0)).filter("key").join(' ').simplified(),
             "key: -3 key: 0 key: 5");
}

void tst_ProtobufParser::numbersOfFields_canBeAnything()
{
    const ProtobufDefinitions sparse(
        {{"a.proto", "syntax = \"proto3\"; message A { int32 a = 127; int32 b = 128; "
                     "int32 c = 536870911; int32 d = 1000; }"}});
    const QByteArray bytes
        = number(127, 1) + number(128, 2) + number(536870911, 3) + number(1000, 4) + number(129, 5);
    const DecodedProtobuf message(sparse.getFormat(), bytes);
    QVERIFY(message.get() != nullptr);
    QCOMPARE(textForm(message.get()).join(' '), "a: 1 b: 2 d: 4 c: 3");
    QCOMPARE(ProtobufLibrary(sparse.getFormat()).findDifference(bytes), QString());
}

void tst_ProtobufParser::messageSet_isRead()
{
    const ProtobufDefinitions sets(
        {{"a.proto",
          "syntax = \"proto2\"; message Outer { optional Set set = 1; "
          "extensions 100 to 200; } message Set { option message_set_wire_format = true; "
          "extensions 4 to max; } message Part { extend Set { optional Part part = 1234; } "
          "optional int32 value = 1; optional Set inner = 2; }"}},
        "Outer");
    QCOMPARE(sets.getErrors(), QStringList());
    const auto textOf = [&](const QByteArray &item) {
        const QByteArray bytes = content(1, item);
        const DecodedProtobuf message(sets.getFormat(), bytes);
        const QString difference = ProtobufLibrary(sets.getFormat()).findDifference(bytes);
        return message.get() != nullptr
                   ? textForm(message.get()).join(' ').simplified() + difference
                   : "no message" + difference;
    };
    const QByteArray part = content(3, number(1, 5));
    const QString read = "set { [Part.part] { value: 5 } }";
    QCOMPARE(textOf(group(1, number(2, 1234) + part)), read);
    QCOMPARE(textOf(group(1, part + number(2, 1234))), read);
    QCOMPARE(textOf(group(1, number(2, 99) + part)), "set { }");
    QCOMPARE(textOf(group(1, number(2, 1234) + number(7, 7) + part)), read);
    QCOMPARE(textOf(tag(1, StartGroup) + number(2, 1234) + part), "no message");
    QCOMPARE(textOf(group(1, number(2, 1234) + content(3, "\x08"))), "no message");
    // A level is the group, the message in it and the set in that.
    for (const int depth : {33, 34}) {
        const QByteArray deep = nested(depth, [](const QByteArray &inner) {
            return group(1, number(2, 1234) + content(3, content(2, inner)));
        });
        QCOMPARE(textOf(deep) == "no message", depth == 34);
    }
}

CORVANE_TEST_MAIN(tst_ProtobufParser)
#include "tst_protobufparser.moc"
