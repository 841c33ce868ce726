#include "catalogue.h"
#include "descriptions.h"
#include "enumeration.h"
#include "everyfeature.h"
#include "message.h"
#include "messageinfo.h"
#include "messageprinter.h"
#include "protobufcomment.h"
#include "protobufmessages.h"
#include "testcase.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <google/protobuf/descriptor.pb.h>

using namespace corvane;
using namespace corvane::test;

class tst_ProtobufDefinitions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void format_isInTheCatalogueWhileItLives();
    void types_areDescribed();
    void comments_becomeTextsAndUnits();
    void comment_isParsed_data();
    void comment_isParsed();
    void enumeration_hasItsNames();
    void root_isTheOuterType();
    void root_isNamed();
    void recursion_isAsDeepAsItsRowsAllow();
    void fileWithMistake_isExplained_data();
    void fileWithMistake_isExplained();
    void import_outsideOfThePath_isNotRead_data();
    void import_outsideOfThePath_isNotRead();
    void import_isFoundInGivenFolders();
    void descriptorSet_isLoaded();
    void descriptorSet_thatIsNone_isRefused();
    void loadFiles_worksOnce();
    void loadFiles_withErrors_addsNothing();
};

void tst_ProtobufDefinitions::format_isInTheCatalogueWhileItLives()
{
    const FormatInfo *info = nullptr;
    {
        const ProtobufFormat format;
        info = format.getInfo();
        QCOMPARE(info->getName(), QStringLiteral("Protocol Buffers"));
        QVERIFY(Catalogue::getInstance()->getFormats().contains(info));
    }
    QVERIFY(!Catalogue::getInstance()->getFormats().contains(info));
}

void tst_ProtobufDefinitions::types_areDescribed()
{
    const ProtobufDefinitions definitions({{QStringLiteral("a.proto"), QStringLiteral(R"(
syntax = "proto2";
package p;
message Root {
  required int32 number = 1;
  optional uint64 big = 2;
  repeated float ratios = 3;
  optional string text = 4;
  repeated string texts = 5;
  optional bytes raw = 6;
  optional Inner inner = 7;
  repeated Inner inners = 8;
  map<string, bool> flags = 9;
  enum Mode { A = 0; }
  optional Mode mode = 10;
}
message Inner { optional double x = 1; }
)")}});
    QCOMPARE(definitions.getErrors(), QStringList());
    QCOMPARE(printed(definitions.findMessage(QStringLiteral("Root"))),
             QStringLiteral("Root\n"
                            "  number: int32\n"
                            "  big: uint64 optional\n"
                            "  ratios: float[]\n"
                            "  text: char[] optional\n"
                            "  texts: text[]\n"
                            "  raw: bytes optional\n"
                            "  inner: Inner optional\n"
                            "  inners: Inner[]\n"
                            "  flags: Root.FlagsEntry[]\n"
                            "  mode: int32 optional"));
    QVERIFY(definitions.findMessage(QStringLiteral("Root"))->isMain());
    QVERIFY(!definitions.findMessage(QStringLiteral("Inner"))->isMain());
}

void tst_ProtobufDefinitions::comments_becomeTextsAndUnits()
{
    const ProtobufDefinitions definitions({{QStringLiteral("a.proto"), QStringLiteral(R"(
syntax = "proto3";
// Where it is. And more
// of that.
message Root {
  // How fast it
  // moves
  // Unit: m/s
  double speed = 1;
  double height = 2; // Above ground
}
)")}});
    const MessageInfo *root = definitions.findMessage(QStringLiteral("Root"));
    QCOMPARE(root->getShortDescriptiveText(), QStringLiteral("Where it is."));
    QCOMPARE(root->getData()->description, QStringLiteral("Where it is. And more of that."));
    const FieldInfo *speed = definitions.findField(QStringLiteral("Root"), QStringLiteral("speed"));
    QCOMPARE(speed->getData()->description, QStringLiteral("How fast it moves"));
    QCOMPARE(speed->getData()->unit, QStringLiteral("m/s"));
    const FieldInfo *height
        = definitions.findField(QStringLiteral("Root"), QStringLiteral("height"));
    QCOMPARE(height->getData()->description, QStringLiteral("Above ground"));
    QCOMPARE(height->getData()->unit, QString());
}

void tst_ProtobufDefinitions::comment_isParsed_data()
{
    QTest::addColumn<QString>("comment");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("unit");
    QTest::newRow("empty") << ""
                           << ""
                           << "";
    QTest::newRow("one line") << " A text.\n"
                              << "A text."
                              << "";
    QTest::newRow("paragraphs") << " One\n two\n\n\n three\n"
                                << "One two\n\nthree"
                                << "";
    QTest::newRow("unit alone") << " Unit: km\n"
                                << ""
                                << "km";
    QTest::newRow("unit inside") << " One\n Unit: [rad]\n two\n"
                                 << "One two"
                                 << "[rad]";
    QTest::newRow("first unit counts") << " Unit: a\n Unit: b\n"
                                       << ""
                                       << "a";
    QTest::newRow("brief") << " \\brief Says it\n"
                           << "Says it"
                           << "";
    QTest::newRow("no unit line") << " The Unit: is said\n"
                                  << "The Unit: is said"
                                  << "";
}

void tst_ProtobufDefinitions::comment_isParsed()
{
    QFETCH(QString, comment);
    QFETCH(QString, text);
    QFETCH(QString, unit);
    const ProtobufComment parsed = ProtobufComment::parse(comment.toStdString());
    QCOMPARE(parsed.text, text);
    QCOMPARE(parsed.unit, unit);
}

void tst_ProtobufDefinitions::enumeration_hasItsNames()
{
    const ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    const FieldInfo *color
        = definitions.findField(QStringLiteral("Every"), QStringLiteral("color"));
    QVERIFY(color->isSymbolicRepresentation(QStringLiteral("GREEN")));
    QVERIFY(!color->isSymbolicRepresentation(QStringLiteral("BLUE")));
    QCOMPARE(color->getData()->symbols->getName(), QStringLiteral("Color"));
}

void tst_ProtobufDefinitions::root_isTheOuterType()
{
    const ProtobufDefinitions one(
        {{QStringLiteral("a.proto"), QStringLiteral("syntax = \"proto3\"; package p; message Outer "
                                                    "{ Inner i = 1; } message Inner {}")}});
    QCOMPARE(one.getErrors(), QStringList());
    QVERIFY(one.findMessage(QStringLiteral("Outer"))->isMain());
    const ProtobufDefinitions two(
        {{QStringLiteral("a.proto"), QStringLiteral("syntax = \"proto3\"; package p; "
                                                    "message A {} message B {}")}});
    QCOMPARE(two.getErrors(),
             QStringList("a.proto: Which message type does the stream consist of? Name it with "
                         "--root, such as one of: p.A, p.B."));
}

void tst_ProtobufDefinitions::root_isNamed()
{
    const QMap<QString, QString> files{
        {QStringLiteral("a.proto"), QStringLiteral("syntax = \"proto3\"; package p; message A {} "
                                                   "message B { message C {} }")}};
    const ProtobufDefinitions named(files, QStringLiteral("p.B"));
    QCOMPARE(named.getErrors(), QStringList());
    QVERIFY(named.findMessage(QStringLiteral("B"))->isMain());
    const ProtobufDefinitions nested(files, QStringLiteral("p.B.C"));
    QVERIFY(nested.findMessage(QStringLiteral("B.C"))->isMain());
    const ProtobufDefinitions unknown(files, QStringLiteral("p.X"));
    QCOMPARE(unknown.getErrors(),
             QStringList("a.proto: There is no message type p.X; expected \"package.Type\", such "
                         "as one of: p.A, p.B."));
}

namespace {

int depthOf(const MessageInfo *type)
{
    int depth = 0;
    const auto fields = type->getFieldInfos();
    for (const FieldInfo *field : fields)
        if (field->getType().getSubMessageInfo() != nullptr)
            depth = std::max(depth, 1 + depthOf(field->getType().getSubMessageInfo()));
    return depth;
}

} // namespace

void tst_ProtobufDefinitions::recursion_isAsDeepAsItsRowsAllow()
{
    const auto depthWith = [](const char *fields) {
        const ProtobufDefinitions definitions(
            {{QStringLiteral("a.proto"),
              QStringLiteral("syntax = \"proto3\"; message A { %1 }").arg(QLatin1String(fields))}});
        return depthOf(definitions.findMessage(QStringLiteral("A")));
    };
    QCOMPARE(depthWith("A a = 1;"), 32);
    QCOMPARE(depthWith("repeated A a = 1;"), 32);
    QCOMPARE(depthWith("A a = 1; A b = 2;"), 8);
    QCOMPARE(depthWith("A a = 1; A b = 2; A c = 3; A d = 4; A e = 5; A f = 6; A g = 7;"), 4);
    // Rows of lists are made when there are values, so they cost nothing before.
    const ProtobufDefinitions circle(
        {{QStringLiteral("a.proto"), QStringLiteral("syntax = \"proto3\"; message A { B b = 1; } "
                                                    "message B { A a = 1; }")}},
        QStringLiteral("A"));
    QCOMPARE(depthOf(circle.findMessage(QStringLiteral("A"))), 32);
}

void tst_ProtobufDefinitions::fileWithMistake_isExplained_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("error");
    QTest::newRow("syntax") << "syntax = \"proto3\";\nmessage A {\n  int32 = 1;\n}"
                            << "a.proto:3:9: Expected field name.";
    QTest::newRow("type") << "syntax = \"proto3\";\nmessage A {\n  Nothing x = 1;\n}"
                          << "a.proto:3:3: \"Nothing\" is not defined.";
    QTest::newRow("nesting") << QStringLiteral("message A { ").repeated(300)
                             << "a.proto: Nests more than 200 blocks.";
    QTest::newRow("no message") << "syntax = \"proto3\";\nenum E { X = 0; }"
                                << "a.proto: Which message type does the stream consist of?";
}

void tst_ProtobufDefinitions::fileWithMistake_isExplained()
{
    QFETCH(QString, text);
    QFETCH(QString, error);
    const ProtobufDefinitions definitions({{QStringLiteral("a.proto"), text}});
    QVERIFY(!definitions.getErrors().isEmpty());
    const QString first = definitions.getErrors().constFirst();
    QVERIFY2(first.startsWith(error), qPrintable(first));
}

void tst_ProtobufDefinitions::import_outsideOfThePath_isNotRead_data()
{
    QTest::addColumn<QString>("import");
    QTest::newRow("parent") << "../outside.proto";
    QTest::newRow("parent of a folder") << "sub/../../outside.proto";
    QTest::newRow("link") << "link.proto";
    QTest::newRow("linked folder") << "linked/outside.proto";
    QTest::newRow("absolute") << "ABSOLUTE";
    QTest::newRow("folder") << "sub";
}

void tst_ProtobufDefinitions::import_outsideOfThePath_isNotRead()
{
    QFETCH(QString, import);
    const QTemporaryDir folder;
    const auto write = [&folder](const QString &name, const QString &text) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    };
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("in/sub")));
    write(QStringLiteral("outside.proto"),
          QStringLiteral("syntax = \"proto3\"; message Outside {}"));
    QVERIFY(QFile::link(folder.filePath(QStringLiteral("outside.proto")),
                        folder.filePath(QStringLiteral("in/link.proto"))));
    QVERIFY(QFile::link(folder.path(), folder.filePath(QStringLiteral("in/linked"))));
    if (import == QLatin1String("ABSOLUTE"))
        import = folder.filePath(QStringLiteral("outside.proto"));
    write(QStringLiteral("in/a.proto"),
          QStringLiteral("syntax = \"proto3\"; import \"%1\"; message A { Outside o = 1; }")
              .arg(import));
    ProtobufFormat format(QStringLiteral("A"));
    const auto result = format.loadFiles({folder.filePath(QStringLiteral("in/a.proto"))});
    QVERIFY(!result.isOk());
    QVERIFY(format.getInfo()->getData()->messages.empty());
}

void tst_ProtobufDefinitions::import_isFoundInGivenFolders()
{
    const ProtobufDefinitions parts(
        {{QStringLiteral("lib/part.proto"), QStringLiteral("syntax = \"proto3\"; message P {}")},
         {QStringLiteral("root/a.proto"),
          QStringLiteral("syntax = \"proto3\"; import \"part.proto\"; message A { P p = 1; }")}},
        QStringLiteral("P"));
    const QString file = parts.path(QStringLiteral("root/a.proto"));
    ProtobufFormat without(QStringLiteral("A"));
    QVERIFY(!without.loadFiles({file}).isOk());
    ProtobufFormat with(QStringLiteral("A"), {parts.path(QStringLiteral("lib"))});
    QVERIFY(with.loadFiles({file}).isOk());
    ProtobufFormat missing(QStringLiteral("A"), {parts.path(QStringLiteral("nothing"))});
    const auto result = missing.loadFiles({file});
    QVERIFY(!result.isOk());
    QVERIFY(result.errors.constFirst().message.contains(QStringLiteral("no such folder")));
}

void tst_ProtobufDefinitions::descriptorSet_isLoaded()
{
    ProtobufDefinitions text(everyFeature(), QStringLiteral("test.Every"));
    google::protobuf::FileDescriptorSet set;
    const auto &pool = text.getFormat().getSchema()->getPool();
    for (const char *name : {"parts/modern.proto", "every.proto"})
        pool.FindFileByName(name)->CopyTo(set.add_file());
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("every.desc")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(set.SerializeAsString()));
    file.close();

    ProtobufFormat format(QStringLiteral("test.Every"));
    const auto result = format.loadFiles({file.fileName()});
    QVERIFY2(result.isOk(), qPrintable(result.errors.value(0).toString()));
    const auto describe = [](const FormatInfo *info) {
        QStringList texts;
        for (const auto &message : info->getData()->messages)
            texts.append(printed(message.get()));
        texts.sort();
        return texts;
    };
    // The types that an Any can hold are those of the files; here both files were named.
    QVERIFY(describe(format.getInfo())
                .contains(printed(text.findMessage(QStringLiteral("Every.Part")))));
    QVERIFY(describe(format.getInfo())
                .contains(printed(text.findMessage(QStringLiteral("modern.Modern")))));
}

void tst_ProtobufDefinitions::descriptorSet_thatIsNone_isRefused()
{
    const QTemporaryDir folder;
    for (const QByteArray &content :
         {QByteArray(), QByteArray("\xFF\xFF\xFF"), QByteArray("no descriptor set at all")})
    {
        QFile file(folder.filePath(QStringLiteral("a.desc")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        ProtobufFormat format;
        const auto result = format.loadFiles({file.fileName()});
        QCOMPARE(result.errors.size(), 1);
        QVERIFY(result.errors.constFirst().message.startsWith(
            QStringLiteral("This is no descriptor set")));
    }
}

void tst_ProtobufDefinitions::loadFiles_worksOnce()
{
    ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    const auto count = definitions.getFormat().getInfo()->getData()->messages.size();
    const auto again
        = definitions.getFormat().loadFiles({definitions.path(QStringLiteral("every.proto"))});
    QCOMPARE(again.errors.size(), 1);
    QCOMPARE(definitions.getFormat().getInfo()->getData()->messages.size(), count);
}

void tst_ProtobufDefinitions::loadFiles_withErrors_addsNothing()
{
    ProtobufDefinitions definitions(
        {{QStringLiteral("a.proto"), QStringLiteral("syntax = \"proto3\"; message A { B b = 1; }")},
         {QStringLiteral("b.proto"), QStringLiteral("syntax = \"proto3\"; message B {}")}});
    QVERIFY(!definitions.getErrors().isEmpty());
    QVERIFY(definitions.getFormat().getInfo()->getData()->messages.empty());
    QVERIFY(definitions.getFormat().getSchema() == nullptr);
    // The mistake can be mended then.
    QVERIFY(
        definitions.getFormat().loadFiles({definitions.path(QStringLiteral("b.proto"))}).isOk());
}

CORVANE_TEST_MAIN(tst_ProtobufDefinitions)

#include "tst_protobufdefinitions.moc"
