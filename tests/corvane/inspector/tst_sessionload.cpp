#include "mcapwriter.h"
#include "message.h"
#include "messageinfo.h"
#include "playback.h"
#include "recordingoptions.h"
#include "session.h"
#include "testcase.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <google/protobuf/descriptor.pb.h>

using namespace corvane;
using namespace corvane::test;

class tst_sessionload : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void load_recordingsDefinitions_needsEveryType();
    void load_brokenFiles_areNamedWithTheirPlaces();
    void load_protobufDefinitions_choosesTheFormat();
    void load_mcapFile_bringsItsDefinitions();
    void load_whatDoesNotGoTogether_isExplained_data();
    void load_whatDoesNotGoTogether_isExplained();
};

void tst_sessionload::load_recordingsDefinitions_needsEveryType()
{
    Session session;
    QCOMPARE(session.load(recordingOptions()), QStringList());
    Options options = recordingOptions();
    options.speed.reset();
    QStringList names;
    connect(&session.getReception(), &MessageSource::newMessage, this, [&](const Message *message) {
        if (!names.contains(message->getInfo()->getName()))
            names.append(message->getInfo()->getName());
    });
    QSignalSpy finished(&session, &Session::finished);
    session.start(options);
    QVERIFY(finished.wait());
    names.sort();
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral("BATTERY HEARTBEAT MOTION POSITION TEXT WHEELS"));
}

void tst_sessionload::load_brokenFiles_areNamedWithTheirPlaces()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("broken.xml"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<mavlink>\n<messages>\n<message id=\"x\" name=\"A\"/>\n</messages></mavlink>");
    file.close();

    Options options = recordingOptions();
    options.definitions = {path};
    Session session;
    const QStringList errors = session.load(options);
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors.at(0).contains(QStringLiteral("broken.xml:3:")), qPrintable(errors.at(0)));

    options = recordingOptions();
    options.overlays = {path};
    Session other;
    const QStringList overlayErrors = other.load(options);
    QCOMPARE(overlayErrors.size(), 1);
    QVERIFY2(overlayErrors.at(0).contains(QStringLiteral("broken.xml:1:1:")),
             qPrintable(overlayErrors.at(0)));
}

void tst_sessionload::load_protobufDefinitions_choosesTheFormat()
{
    const QTemporaryDir folder;
    const auto write = [&folder](const char *name, const QByteArray &content) {
        QFile file(folder.filePath(QLatin1String(name)));
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
        return file.fileName();
    };
    Options options;
    options.definitions
        = {write("a.proto", "syntax = \"proto3\"; package p; message A { int32 x = 1; }")};
    options.root = QStringLiteral("p.A");
    options.framing = QStringLiteral("le32");
    options.speed.reset();
    options.source = SourceAddress::parse(write("a.bin", QByteArray::fromHex("02000000"
                                                                             "0807"
                                                                             "00000000")))
                         .address;
    Session session;
    QCOMPARE(session.load(options), QStringList());
    QSignalSpy finished(&session, &Session::finished);
    session.start(options);
    QVERIFY(finished.wait());
    QCOMPARE(session.getReception().getTotals().frames, 2U);
    QCOMPARE(session.getReception().getTotals().skippedBytes, 0U);
    QVERIFY(!session.getReception().getTotals().crcErrors);
}

void tst_sessionload::load_mcapFile_bringsItsDefinitions()
{
    google::protobuf::FileDescriptorSet set;
    auto *definition = set.add_file();
    definition->set_name("a.proto");
    definition->set_package("p");
    definition->add_message_type()->set_name("A");
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.log")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(mcapMagic()
               + mcapSchema(1, "p.A", QByteArray::fromStdString(set.SerializeAsString()))
               + mcapChannel(2, 1, "/a") + mcapChunk("zstd", mcapMessage(2, 1, QByteArray()))
               + mcapMessage(2, 2, QByteArray()) + mcapEnd());
    file.close();
    Options options;
    options.source = SourceAddress::parse(file.fileName()).address;
    options.speed.reset();
    Session session;
    QCOMPARE(session.load(options), QStringList());
    QSignalSpy finished(&session, &Session::finished);
    session.start(options);
    QVERIFY(session.getPlayback() != nullptr);
    QVERIFY(finished.wait());
    QCOMPARE(session.getReception().getTotals().frames, 2U);
    session.getPlayback()->seek(0);
    session.getPlayback()->play();
    QVERIFY(finished.wait());
    QCOMPARE(session.getReception().getTotals().frames, 4U);

    options.definitions = {QStringLiteral("a.proto")};
    const QStringList errors = session.load(options);
    QCOMPARE(errors.size(), 1);
    QVERIFY(errors.constFirst().contains("brings its own definitions"));
}

void tst_sessionload::load_whatDoesNotGoTogether_isExplained_data()
{
    QTest::addColumn<QStringList>("definitions");
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("framing");
    QTest::addColumn<QString>("part");
    const QString rover = sourceFile(QStringLiteral("examples/recording/rover.xml"));
    QTest::newRow("two formats") << QStringList{rover, QStringLiteral("a.proto")} << QString()
                                 << QString() << "cannot be mixed";
    QTest::newRow("root of MAVLink")
        << QStringList{rover} << "p.A" << QString() << "--root and --import-path go with";
    QTest::newRow("framing of MAVLink")
        << QStringList{rover} << QString() << "varint"
        << "--framing varint does not go with MAVLink; expected one of: auto, raw, tlog";
    QTest::newRow("no such file") << QStringList{QStringLiteral("no/such.proto")} << QString()
                                  << QString() << "no/such.proto";
}

void tst_sessionload::load_whatDoesNotGoTogether_isExplained()
{
    QFETCH(QStringList, definitions);
    QFETCH(QString, root);
    QFETCH(QString, framing);
    QFETCH(QString, part);
    Options options;
    options.definitions = definitions;
    options.root = root;
    options.framing = framing;
    Session session;
    const QStringList errors = session.load(options);
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors.at(0).contains(part), qPrintable(errors.at(0)));
}

CORVANE_TEST_MAIN(tst_sessionload)
#include "tst_sessionload.moc"
