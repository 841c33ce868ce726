#include "corvane.h"
#include "descriptions.h"
#include "everyfeature.h"
#include "message.h"
#include "messageinfo.h"
#include "messageprinter.h"
#include "protobuffieldinfo.h"
#include "protobufmessages.h"
#include "protobuftextform.h"
#include "testcase.h"

using namespace corvane;
using namespace corvane::test;

class tst_ProtobufFields : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void value_isRead_data();
    void value_isRead();
    void bytes_beyondTheLimit_areCut();
    void text_beyondTheLimit_isCut();
    void text_countsCharacters();
    void emptyText_isPresent();
    void unknownNumber_ofClosedEnumeration_isShown();
    void unknownNumber_ofOpenEnumeration_isShown();
    void recursion_endsWithAText();
    void subMessage_isMadeOnceAndKeepsTheMessage();
    void values_inAnyOrder_areTheSame();
    void any_isResolvedWhenItsTypeIsKnown();
    void any_ofAnotherShape_isAnOrdinaryMessage();
    void confidential_hidesPartsAtEveryDepth();
    void fieldOfAnotherType_hasNoValue();
};

namespace {

QString textOf(const ProtobufDefinitions &definitions, const Message *message, const QString &path)
{
    const FieldInfo *field = definitions.findField(message->getInfo()->getName(), path);
    const unsigned int count = field->getNumberOfValues(message);
    if (field->isStringField())
        return count == 0 ? QStringLiteral("-") : field->getString(message);
    QStringList texts;
    for (unsigned int index = 0; index < count; ++index) {
        const Message *part = field->getValue(message, index).getSubMessage();
        texts.append(part != nullptr ? textForm(part).join(QLatin1Char(' '))
                                     : field->getValueText(message, index, true));
    }
    return count == 0 ? QStringLiteral("-") : texts.join(QLatin1Char('|'));
}

} // namespace

void tst_ProtobufFields::value_isRead_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *content, const char *path, const char *text) {
        QTest::addRow("%s -> %s", content, path) << content << path << QString::fromUtf8(text);
    };
    row("", "int32_field", "-");
    row("int32_field: -2147483648", "int32_field", "-2147483648");
    row("int64_field: -9223372036854775808", "int64_field", "-9223372036854775808");
    row("uint32_field: 4294967295", "uint32_field", "4294967295");
    row("uint64_field: 18446744073709551615", "uint64_field", "18446744073709551615");
    row("sint32_field: -1", "sint32_field", "-1");
    row("sint64_field: 9223372036854775807", "sint64_field", "9223372036854775807");
    row("fixed32_field: 7", "fixed32_field", "7");
    row("fixed64_field: 18446744073709551615", "fixed64_field", "18446744073709551615");
    row("sfixed32_field: -7", "sfixed32_field", "-7");
    row("sfixed64_field: -9", "sfixed64_field", "-9");
    row("float_field: 0.1", "float_field", "0.1");
    row("double_field: 0.1", "double_field", "0.1");
    row("", "double_field", "-");
    row("bool_field: false", "bool_field", "false");
    row("string_field: 'abc'", "string_field", "abc");
    row("", "string_field", "-");
    row("bytes_field: '\\001\\xFF'", "bytes_field", "0x01FF");
    row("color: GREEN", "color", "GREEN");
    row("color: DARK", "color", "DARK");
    row("unpacked: 1 unpacked: -2", "unpacked", "1|-2");
    row("packed: [1, -2, 3]", "packed", "1|-2|3");
    row("strings: 'a' strings: '' strings: 'ü'", "strings", "a||ü");
    row("chunks: 'a' chunks: ''", "chunks", "0x61|0x");
    row("colors: [RED, GREEN]", "colors", "RED|GREEN");
    row("bools: [true, false]", "bools", "true|false");
    row("", "part", "-");
    row("part { }", "part", "");
    row("part { value: 4 }", "part", "value: 4");
    row("parts { value: 1 } parts { label: 'x' }", "parts", "value: 1|label: \"x\"");
    row("number: 4", "number", "4");
    row("text: 'x'", "number", "-");
    row("piece { value: 2 }", "piece", "value: 2");
    row("counts { key: 'a' value: 5 }", "counts", "key: \"a\" value: 5");
    row("parts_by_number { key: 3 value { value: 4 } }", "parts_by_number",
        "key: 3 value {   value: 4 }");
    row("Pair { left: 1 right: 2 }", "pair", "left: 1 right: 2");
    row("Item { name: 'a' } Item { }", "item", "name: \"a\"|");
    row("inner { id: 6 }", "inner", "id: 6");
    row("[test.extra]: 11", "[test.extra]", "11");
    row("[test.more] { value: 3 }", "[test.more]", "value: 3");
    row("modern { plain: 3 states: ON states: OFF maybe: 0 }", "modern",
        "plain: 3 maybe: 0 states: ON states: OFF");
    row("time { seconds: 5 nanos: 6 }", "time", "seconds: 5 nanos: 6");
}

void tst_ProtobufFields::value_isRead()
{
    QFETCH(QString, content);
    QFETCH(QString, path);
    QFETCH(QString, text);
    const ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    QCOMPARE(definitions.getErrors(), QStringList());
    ProtobufDefinitions &loaded = const_cast<ProtobufDefinitions &>(definitions);
    const DecodedProtobuf message(loaded.getFormat(),
                                  definitions.encode(QStringLiteral("id: 1 ") + content));
    QCOMPARE(textOf(definitions, message.get(), path), text);
}

void tst_ProtobufFields::bytes_beyondTheLimit_areCut()
{
    ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    const QString most(ProtobufFieldInfo::maximumBytes, QLatin1Char('a'));
    const DecodedProtobuf whole(definitions.getFormat(),
                                definitions.encode("id: 1 bytes_field: '" + most + '\''));
    QCOMPARE(textOf(definitions, whole.get(), QStringLiteral("bytes_field")),
             QStringLiteral("0x") + QStringLiteral("61").repeated(most.size()));
    const DecodedProtobuf cut(definitions.getFormat(),
                              definitions.encode("id: 1 bytes_field: '" + most + "b'"));
    QCOMPARE(textOf(definitions, cut.get(), QStringLiteral("bytes_field")),
             QStringLiteral("0x") + QStringLiteral("61").repeated(most.size())
                 + QStringLiteral("… (cut, 257 bytes)"));
}

void tst_ProtobufFields::text_beyondTheLimit_isCut()
{
    ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    const QString most(ProtobufFieldInfo::maximumCharacters, QLatin1Char('a'));
    const DecodedProtobuf message(
        definitions.getFormat(),
        definitions.encode("id: 1 string_field: '" + most + "' strings: '" + most + "b'"));
    QCOMPARE(textOf(definitions, message.get(), QStringLiteral("string_field")), most);
    QCOMPARE(textOf(definitions, message.get(), QStringLiteral("strings")),
             most + QStringLiteral("… (cut, 100001 characters)"));
}

void tst_ProtobufFields::text_countsCharacters()
{
    ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    const DecodedProtobuf message(definitions.getFormat(),
                                  definitions.encode(QStringLiteral("id: 1 string_field: 'aü😀'")));
    const FieldInfo *field
        = definitions.findField(QStringLiteral("Every"), QStringLiteral("string_field"));
    QVERIFY(field->isStringField());
    QVERIFY(field->isRepeated());
    QVERIFY(field->isOptional());
    QCOMPARE(field->getType().getCode(), qint32(FieldType::Character));
    QCOMPARE(field->getNumberOfValues(message.get()), 3U);
    QCOMPARE(field->getValueText(message.get(), 2, true), QStringLiteral("😀"));
    QVERIFY(!field->getValue(message.get(), 3).isValid());
}

void tst_ProtobufFields::emptyText_isPresent()
{
    ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    const auto *field = static_cast<const ProtobufFieldInfo *>(
        definitions.findField(QStringLiteral("Every"), QStringLiteral("string_field")));
    const DecodedProtobuf empty(definitions.getFormat(),
                                definitions.encode(QStringLiteral("id: 1 string_field: ''")));
    QVERIFY(field->isPresent(empty.get()));
    QCOMPARE(field->getNumberOfValues(empty.get()), 0U);
    const DecodedProtobuf absent(definitions.getFormat(),
                                 definitions.encode(QStringLiteral("id: 1")));
    QVERIFY(!field->isPresent(absent.get()));
}

void tst_ProtobufFields::unknownNumber_ofClosedEnumeration_isShown()
{
    ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    // Field 17 (color) = 77; field 23 (colors) = 1, 78, 79.
    const DecodedProtobuf message(definitions.getFormat(), QByteArray::fromHex("88014d"
                                                                               "b80101"
                                                                               "b8014e"
                                                                               "b8014f"));
    QVERIFY(message.get() != nullptr);
    QCOMPARE(textOf(definitions, message.get(), QStringLiteral("color")), QStringLiteral("77"));
    QCOMPARE(textOf(definitions, message.get(), QStringLiteral("colors")),
             QStringLiteral("RED|78|79"));
}

void tst_ProtobufFields::unknownNumber_ofOpenEnumeration_isShown()
{
    ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    const DecodedProtobuf message(
        definitions.getFormat(),
        definitions.encode(QStringLiteral("id: 1 modern { state: 9 states: [1, 9] }")));
    QCOMPARE(textOf(definitions, message.get(), QStringLiteral("modern")),
             QStringLiteral("state: 9 states: ON states: 9"));
}

void tst_ProtobufFields::recursion_endsWithAText()
{
    ProtobufDefinitions definitions(
        {{QStringLiteral("node.proto"),
          QStringLiteral(
              "syntax = \"proto3\"; message Node { int32 depth = 1; Node next = 2; }")}});
    QCOMPARE(definitions.getErrors(), QStringList());
    QString text = QStringLiteral("depth: 40");
    for (int depth = 39; depth >= 0; --depth)
        text = QStringLiteral("depth: %1 next { %2 }").arg(depth).arg(text);
    const DecodedProtobuf root(definitions.getFormat(), definitions.encode(text));

    const Message *message = root.get();
    int levels = 0;
    while (true) {
        const auto fields = message->getInfo()->getFieldInfos();
        QCOMPARE(fields.at(0)->getValueText(message, 0, true), QString::number(levels));
        const FieldValue next = fields.at(1)->getValue(message, 0);
        if (next.getSubMessage() == nullptr) {
            QVERIFY(fields.at(1)->getType().getSubMessageInfo() == nullptr);
            QCOMPARE(fields.at(1)->getValueText(message, 0, true),
                     QStringLiteral("(nested too deeply to be shown)"));
            break;
        }
        QCOMPARE(next.getSubMessage()->getInfo(), fields.at(1)->getType().getSubMessageInfo());
        QCOMPARE(next.getSubMessage()->getInfo()->getName(), QStringLiteral("Node"));
        message = next.getSubMessage();
        ++levels;
    }
    QCOMPARE(levels, 32);
}

void tst_ProtobufFields::subMessage_isMadeOnceAndKeepsTheMessage()
{
    ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    const FieldInfo *field
        = definitions.findField(QStringLiteral("Every"), QStringLiteral("inner"));
    const Message *part = nullptr;
    {
        const DecodedProtobuf message(
            definitions.getFormat(),
            definitions.encode(QStringLiteral("id: 1 inner { id: 2 string_field: 'kept' }")));
        part = field->getValue(message.get(), 0).getSubMessage();
        QCOMPARE(field->getValue(message.get(), 0).getSubMessage(), part);
        part->addReference();
    }
    QCOMPARE(part->getReferenceCount(), 1);
    QCOMPARE(textForm(part).join(QLatin1Char(' ')), QStringLiteral("id: 2 string_field: \"kept\""));
    part->removeReference();
}

void tst_ProtobufFields::values_inAnyOrder_areTheSame()
{
    ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    const QByteArray bytes = definitions.encode(QStringLiteral(
        "id: 1 packed: [1, 2, 3] doubles: [0.5, 1.5] strings: 'a' strings: 'b' "
        "colors: [RED, GREEN] parts { value: 1 } parts { value: 2 } parts { value: 3 } "
        "parts_by_number { key: 7 value { value: 8 } } parts_by_number { key: 2 } "));
    const DecodedProtobuf inOrder(definitions.getFormat(), bytes);
    const DecodedProtobuf message(definitions.getFormat(), bytes);
    const QList<const FieldInfo *> fields = message.get()->getInfo()->getFieldInfos();
    const auto textAt = [](const FieldInfo *field, const Message *of, unsigned int index) {
        const Message *part = field->getValue(of, index).getSubMessage();
        return part != nullptr ? textForm(part).join(QLatin1Char(' '))
                               : field->getValueText(of, index, true);
    };

    QHash<const FieldInfo *, QStringList> expected;
    for (const FieldInfo *field : fields)
        for (unsigned int index = 0; index < field->getNumberOfValues(inOrder.get()); ++index)
            expected[field].append(textAt(field, inOrder.get(), index));
    QHash<const FieldInfo *, QStringList> crosswise;
    for (unsigned int index = 0; index < 3; ++index)
        for (const FieldInfo *field : fields)
            if (field->getValue(message.get(), index).isValid())
                crosswise[field].append(textAt(field, message.get(), index));
    QCOMPARE(crosswise, expected);

    const FieldInfo *parts
        = definitions.findField(QStringLiteral("Every"), QStringLiteral("parts"));
    QVERIFY(parts->getValue(message.get(), 0).getSubMessage()
            != parts->getValue(message.get(), 1).getSubMessage());
    QCOMPARE(expected.value(parts), QStringList({"value: 1", "value: 2", "value: 3"}));
}

void tst_ProtobufFields::any_isResolvedWhenItsTypeIsKnown()
{
    ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    const auto decode = [&](const QString &any) {
        const DecodedProtobuf message(
            definitions.getFormat(),
            definitions.encode(QStringLiteral("id: 1 any { ") + any + QStringLiteral(" }")));
        const FieldInfo *field
            = definitions.findField(QStringLiteral("Every"), QStringLiteral("any"));
        return printed(field->getValue(message.get(), 0).getSubMessage()).split(QLatin1Char('\n'));
    };
    const QStringList known
        = decode(QStringLiteral("type_url: 'type.example/test.Every' value: '\\010\\115'"));
    QVERIFY2(known.contains(QStringLiteral("  type_url: type.example/test.Every")),
             qPrintable(known.join(QLatin1Char('\n'))));
    QVERIFY2(known.contains(QStringLiteral("    id: 77")),
             qPrintable(known.join(QLatin1Char('\n'))));
    for (const char *unknown : {"type_url: 'x/no.Such' value: '\\010\\001'",
                                "type_url: 'x/test.Every' value: '\\377\\377'", ""})
    {
        const QStringList lines = decode(QString::fromLatin1(unknown));
        QVERIFY2(lines.contains(QStringLiteral("  [Every]: []"))
                     || lines.contains(QStringLiteral("  [Every]: -")),
                 qPrintable(lines.join(QLatin1Char('\n'))));
    }
}

void tst_ProtobufFields::any_ofAnotherShape_isAnOrdinaryMessage()
{
    ProtobufDefinitions definitions(
        {{QStringLiteral("a.proto"),
          QStringLiteral("syntax = \"proto3\"; import \"google/protobuf/any.proto\"; "
                         "message A { google.protobuf.Any any = 1; }")},
         {QStringLiteral("google/protobuf/any.proto"),
          QStringLiteral("syntax = \"proto3\"; package google.protobuf; "
                         "message Any { int32 type_url = 1; }")}});
    QCOMPARE(definitions.getErrors(), QStringList());
    const DecodedProtobuf message(definitions.getFormat(),
                                  definitions.encode(QStringLiteral("any { type_url: 5 }")));
    QCOMPARE(printed(message.get()), QStringLiteral("A\n  any\n    type_url: 5"));
}

void tst_ProtobufFields::confidential_hidesPartsAtEveryDepth()
{
    ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    definitions.findField(QStringLiteral("Every"), QStringLiteral("inner"))->getData()->confidential
        = true;
    const DecodedProtobuf message(
        definitions.getFormat(),
        definitions.encode(QStringLiteral("id: 1 inner { id: 2 part { label: 'secret' } }")));
    const FieldInfo *inner
        = definitions.findField(QStringLiteral("Every"), QStringLiteral("inner"));
    const Message *innerMessage = inner->getValue(message.get(), 0).getSubMessage();
    const FieldInfo *part = innerMessage->getInfo()->getData()->findField(QStringLiteral("part"));
    const Message *partMessage = part->getValue(innerMessage, 0).getSubMessage();
    const FieldInfo *label = partMessage->getInfo()->getData()->findField(QStringLiteral("label"));
    QVERIFY(!Corvane::confidentialInformationDisplayEnabled());
    QCOMPARE(label->getString(partMessage), QStringLiteral("(confidential)"));
}

void tst_ProtobufFields::fieldOfAnotherType_hasNoValue()
{
    ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    const DecodedProtobuf message(definitions.getFormat(),
                                  definitions.encode(QStringLiteral("id: 1")));
    for (const char *path : {"value", "label"}) {
        const FieldInfo *field
            = definitions.findField(QStringLiteral("Every.Part"), QLatin1String(path));
        QCOMPARE(field->getNumberOfValues(message.get()), 0U);
        QVERIFY(!field->getValue(message.get(), 0).isValid());
        QCOMPARE(field->getString(message.get()), QString());
    }
}

CORVANE_TEST_MAIN(tst_ProtobufFields)

#include "tst_protobuffields.moc"
