#include "decodedmessage.h"
#include "descriptions.h"
#include "fileindex.h"
#include "mcapdecoder.h"
#include "mcapformat.h"
#include "mcapscanner.h"
#include "mcapwriter.h"
#include "message.h"
#include "messageinfo.h"
#include "protobufmessages.h"
#include "protobufschema.h"
#include "testcase.h"

#include <QFile>
#include <QTemporaryDir>

#include <google/protobuf/descriptor.pb.h>

#include <limits>

using namespace corvane;
using namespace corvane::test;

namespace {

/** What a definition file says, as a file of the format carries it. */
QByteArray descriptorSetOf(const ProtobufDefinitions &definitions)
{
    google::protobuf::FileDescriptorSet set;
    const auto *schema = definitions.getFormat().getSchema().get();
    for (const auto *file : schema->getFiles())
        file->CopyTo(set.add_file());
    return QByteArray::fromStdString(set.SerializeAsString());
}

QByteArray schema(quint16 id, const QByteArray &name, const QByteArray &set)
{
    return mcapSchema(id, name, set);
}

/** The message texts of a run, without the name of the message in the first line. */
QStringList lines(const ProtobufRun &run)
{
    QStringList result;
    for (const QString &message : run.getMessages())
        result.append(QString(message).trimmed().replace(QLatin1Char('\n'), QLatin1Char(';')));
    return result;
}

} // namespace

class tst_McapFormat : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void messages_ofTwoChannels_data();
    void messages_ofTwoChannels();
    void senders_areTopics();
    void gaps_areToldPerChannel();
    void types_areNamedWithoutTheCommonPackage();
    void schemaInTwoVersions_isTwoTypes();
    void otherEncodings_areUnknownMessages();
    void badFiles_areRefused_data();
    void badFiles_areRefused();
    void onlyOneFile_isLoaded();
    void badMessage_isToldAndPassedOver();
    void damagedChunk_isSkipped();
    void cutFile_givesAllBefore();
    void reading_fromAnyPlace();
    void scanner_findsEveryPlaceInAnyPieces();
    void scanner_survivesWhatIsNoMcap();
    void isMcapFile_looksAtTheBeginning();

private:
    /** A schema "pos.Position" as 1 and "sys.Load" as 2, with topics "/a" (10) and "/b" (11). */
    QByteArray definitionRecords() const
    {
        return schema(1, "pos.Position", descriptorSetOf(position))
               + schema(2, "sys.Load", descriptorSetOf(load)) + mcapChannel(10, 1, "/a")
               + mcapChannel(11, 2, "/b");
    }

    QByteArray positionMessage(quint32 sequence, int x) const
    {
        return mcapMessage(10, sequence, position.encode(QStringLiteral("x: %1").arg(x)));
    }

    QByteArray loadMessage(quint32 sequence, int percent) const
    {
        return mcapMessage(11, sequence, load.encode(QStringLiteral("percent: %1").arg(percent)));
    }

    QString write(const QByteArray &content)
    {
        QFile file(folder.filePath(QStringLiteral("%1.mcap").arg(++files)));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }

    QTemporaryDir folder;
    int files = 0;
    ProtobufDefinitions position{
        {{"a.proto", "syntax = \"proto3\"; package pos; message Position { int32 x = 1; }"}}};
    ProtobufDefinitions load{
        {{"a.proto", "syntax = \"proto3\"; package sys; message Load { uint32 percent = 1; }"}}};
};

void tst_McapFormat::messages_ofTwoChannels_data()
{
    QTest::addColumn<QByteArray>("compression");
    QTest::addColumn<bool>("hasSummary");
    QTest::addColumn<bool>("isChunked");
    QTest::newRow("no chunks") << QByteArray() << true << false;
    QTest::newRow("no chunks, no summary") << QByteArray() << false << false;
    for (const QByteArray compression : {"", "zstd", "lz4"}) {
        QTest::addRow("%s", compression.constData()) << compression << true << true;
        QTest::addRow("%s, no summary", compression.constData()) << compression << false << true;
    }
}

void tst_McapFormat::messages_ofTwoChannels()
{
    QFETCH(QByteArray, compression);
    QFETCH(bool, hasSummary);
    QFETCH(bool, isChunked);
    const QByteArray first = definitionRecords() + positionMessage(1, -5) + loadMessage(1, 40);
    const QByteArray second = positionMessage(2, 6);
    QByteArray content = mcapMagic() + mcapHeader();
    content += isChunked ? mcapChunk(compression, first) + mcapChunk(compression, second)
                         : first + second;
    constexpr qsizetype dataEndSize = 13;
    if (hasSummary)
        content += mcapEnd(definitionRecords(), content.size() + dataEndSize);
    McapFormat format;
    QVERIFY(format.loadFiles({write(content)}).isOk());
    for (const qsizetype pieceSize : {0, 1, 7}) {
        ProtobufRun run(format);
        run.append(content, pieceSize);
        if (hasSummary)
            run.finish();
        QCOMPARE(lines(run), QStringList({"pos.Position;  x: -5", "sys.Load;  percent: 40",
                                          "pos.Position;  x: 6"}));
        QCOMPARE(run.getEvents(), QStringList());
        QCOMPARE(run.getTotals().skippedBytes, 0U);
        QCOMPARE(run.getTotals().bytes, static_cast<quint64>(content.size()));
        QVERIFY(!run.getTotals().crcErrors);
    }
}

void tst_McapFormat::senders_areTopics()
{
    const QByteArray content
        = mcapMagic() + definitionRecords() + positionMessage(7, 1) + loadMessage(3, 2);
    McapFormat format;
    QVERIFY(format.loadFiles({write(content)}).isOk());
    ProtobufRun run(format);
    std::vector<qint64> times;
    QObject::connect(&run.getReception(), &MessageSource::newMessage, &run.getReception(),
                     [&](const Message *message) {
                         times.push_back(static_cast<const DecodedMessage *>(message)->getTimeUs());
                     });
    run.append(content);
    QStringList senders;
    for (const auto &sender : run.getReception().getSenders().getAll())
        senders.append(sender->id);
    QCOMPARE(senders, QStringList({"/a", "/b"}));
    // The time of logging, which the writer makes of the sequence number, is that of the message.
    QCOMPARE(times, std::vector<qint64>({7, 3}));
    QCOMPARE(format.getSenderNamer()(99), QStringLiteral("channel 99"));
}

void tst_McapFormat::gaps_areToldPerChannel()
{
    const QByteArray content = mcapMagic() + definitionRecords() + positionMessage(7, 1)
                               + loadMessage(100, 2) + positionMessage(10, 3) + loadMessage(101, 2);
    McapFormat format;
    QVERIFY(format.loadFiles({write(content)}).isOk());
    ProtobufRun run(format);
    run.append(content);
    const auto &senders = run.getReception().getSenders().getAll();
    QCOMPARE(senders.at(0)->lost, 2U);
    QCOMPARE(senders.at(1)->lost, 0U);
}

void tst_McapFormat::types_areNamedWithoutTheCommonPackage()
{
    const ProtobufDefinitions other{
        {{"a.proto", "syntax = \"proto3\"; package pos; message Speed { float v = 1; }"}}};
    McapFormat format;
    QVERIFY(format
                .loadFiles({write(mcapMagic() + schema(1, "pos.Position", descriptorSetOf(position))
                                  + schema(2, "pos.Speed", descriptorSetOf(other))
                                  + mcapChannel(1, 1, "/a") + mcapChannel(2, 2, "/b"))})
                .isOk());
    QStringList names;
    for (const auto &message : format.getInfo()->getData()->messages)
        names.append(message->getData()->name);
    QCOMPARE(names, QStringList({"Position", "Speed"}));
    QVERIFY(format.getInfo()->getData()->findMessage("Speed")->getData()->main);
}

void tst_McapFormat::schemaInTwoVersions_isTwoTypes()
{
    const ProtobufDefinitions newer{
        {{"a.proto", "syntax = \"proto3\"; package pos; message Position { int32 y = 1; }"}}};
    const QByteArray content
        = mcapMagic() + schema(1, "pos.Position", descriptorSetOf(position))
          + schema(2, "pos.Position", descriptorSetOf(newer))
          + schema(3, "pos.Position", descriptorSetOf(position)) + mcapChannel(10, 1, "/a")
          + mcapChannel(11, 2, "/b") + mcapChannel(12, 3, "/c") + positionMessage(1, 1)
          + mcapMessage(11, 1, newer.encode("y: 2")) + mcapMessage(12, 1, position.encode("x: 3"));
    McapFormat format;
    QVERIFY(format.loadFiles({write(content)}).isOk());
    ProtobufRun run(format);
    run.append(content);
    QCOMPARE(run.getEvents(), QStringList());
    QStringList fields;
    for (const QString &message : run.getMessages())
        fields.append(message.section(QLatin1Char('\n'), 1, 1).trimmed());
    QCOMPARE(fields, QStringList({"x: 1", "y: 2", "x: 3"}));
    QCOMPARE(format.getInfo()->getData()->messages.size(), size_t(2));
}

void tst_McapFormat::otherEncodings_areUnknownMessages()
{
    const QByteArray json = mcapRecord(4, McapBytes()
                                              .number(quint16(12))
                                              .number(quint16(0))
                                              .sized("/text")
                                              .sized("json")
                                              .sized(QByteArray())
                                              .bytes);
    const QByteArray content = mcapMagic() + definitionRecords() + json + mcapMessage(12, 1, "{}")
                               + positionMessage(1, 1);
    McapFormat format;
    QVERIFY(format.loadFiles({write(content)}).isOk());
    ProtobufRun run(format);
    run.append(content);
    QCOMPARE(run.getTotals().unknownFrames, 1U);
    QCOMPARE(run.getTotals().frames, 1U);
    QVERIFY(run.getEvents().constFirst().contains("/text"));
}

void tst_McapFormat::badFiles_areRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("message");
    const QByteArray set = descriptorSetOf(position);
    const auto row = [](const char *name, const QByteArray &content, const char *message) {
        QTest::newRow(name) << content << QString::fromLatin1(message);
    };
    row("empty", "", "This is no MCAP file, or one of another version.");
    row("text", "<mavlink>", "This is no MCAP file, or one of another version.");
    row("no channels", mcapMagic() + mcapHeader() + mcapEnd(), "The file contains no channels.");
    row("no schema", mcapMagic() + mcapChannel(1, 0, "/a"),
        "None of the channels has messages of Protocol Buffers.");
    row("broken schema", mcapMagic() + mcapSchema(1, "pos.Position") + mcapChannel(1, 1, "/a"),
        "This is no descriptor set");
    row("wrong name", mcapMagic() + mcapSchema(1, "pos.Other", set) + mcapChannel(1, 1, "/a"),
        "The schema pos.Other does not define the message type of that name.");
}

void tst_McapFormat::badFiles_areRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, message);
    const QString path = write(content);
    McapFormat format;
    const auto result = format.loadFiles({path});
    QCOMPARE(result.errors.size(), 1);
    QVERIFY2(result.errors.constFirst().toString().contains(message),
             qPrintable(result.errors.constFirst().toString()));
    QCOMPARE(result.errors.constFirst().file, path);
    QVERIFY(format.getInfo()->getData()->messages.empty());
    // Nothing of it stays in the way of a better one.
    QVERIFY(format.loadFiles({write(mcapMagic() + definitionRecords())}).isOk());
}

void tst_McapFormat::onlyOneFile_isLoaded()
{
    const QString path = write(mcapMagic() + definitionRecords());
    McapFormat format;
    QVERIFY(!format.loadFiles({path, path}).isOk());
    QVERIFY(format.loadFiles({path}).isOk());
    QVERIFY(format.loadFiles({}).isOk());
}

void tst_McapFormat::badMessage_isToldAndPassedOver()
{
    const QByteArray before = mcapMagic() + definitionRecords();
    const QByteArray content
        = before + mcapMessage(10, 1, QByteArray(3, '\xff')) + positionMessage(2, 8);
    McapFormat format;
    QVERIFY(format.loadFiles({write(content)}).isOk());
    ProtobufRun run(format);
    run.append(content);
    QCOMPARE(run.getEvents(),
             QStringList(QStringLiteral("3 bytes of channel /a, at offset %1 of the file, are no "
                                        "message of type pos.Position.")
                             .arg(before.size())));
    QCOMPARE(lines(run), QStringList("pos.Position;  x: 8"));
}

void tst_McapFormat::damagedChunk_isSkipped()
{
    const QByteArray records = positionMessage(2, 2);
    const QByteArray damaged
        = mcapChunk("", records, static_cast<quint64>(records.size()), mcapCrc(records) + 1);
    const QByteArray content = mcapMagic() + definitionRecords()
                               + mcapChunk("zstd", positionMessage(1, 1)) + damaged
                               + mcapChunk("lz4", positionMessage(3, 3));
    McapFormat format;
    QVERIFY(format.loadFiles({write(content)}).isOk());
    ProtobufRun run(format);
    run.append(content);
    QCOMPARE(lines(run), QStringList({"pos.Position;  x: 1", "pos.Position;  x: 3"}));
    QCOMPARE(run.getTotals().skippedBytes, static_cast<quint64>(damaged.size()));
    QVERIFY(
        run.getEvents().constFirst().startsWith("The checksum of a chunk is wrong. (at offset"));
    // What follows a step that made no sense is lost as well, and is counted.
    ProtobufRun zeros(format);
    zeros.append(content.first(content.size() - damaged.size()) + QByteArray(100, '\0'));
    zeros.append(QByteArray(50, '\0'));
    QVERIFY(zeros.getTotals().skippedBytes >= 150);
}

void tst_McapFormat::cutFile_givesAllBefore()
{
    QByteArray content = mcapMagic() + mcapHeader();
    std::vector<qsizetype> ends;
    QStringList expected;
    content += definitionRecords();
    for (int i = 0; i < 400; ++i) {
        content += i % 2 == 0 ? positionMessage(quint32(i / 2), i) : loadMessage(quint32(i / 2), i);
        ends.push_back(content.size());
    }
    McapFormat format;
    const QString path = write(content + mcapEnd());
    QVERIFY(format.loadFiles({path}).isOk());
    for (qsizetype size = 0; size < content.size(); size += 1000) {
        ProtobufRun run(format);
        run.append(content.first(size));
        run.finish();
        const auto complete = std::upper_bound(ends.begin(), ends.end(), size) - ends.begin();
        QCOMPARE(run.getMessages().size(), complete);
        QCOMPARE(run.getEvents().size(), 1);
        QVERIFY(run.getEvents().constFirst().startsWith("The file is cut off here."));
    }
}

void tst_McapFormat::reading_fromAnyPlace()
{
    QByteArray content
        = mcapMagic() + mcapChunk("zstd", definitionRecords() + positionMessage(1, 1));
    std::vector<qsizetype> places = {mcapMagic().size()};
    for (quint32 i = 1; i < 15; ++i) {
        places.push_back(content.size());
        content += mcapChunk("lz4", loadMessage(i, 50));
        places.push_back(content.size());
        content += positionMessage(i + 1, 3);
    }
    content += mcapEnd();
    McapFormat format;
    QVERIFY(format.loadFiles({write(content)}).isOk());
    ProtobufRun whole(format);
    whole.append(content);
    whole.finish();
    QCOMPARE(whole.getEvents(), QStringList());
    for (const qsizetype place : places) {
        ProtobufRun run(format);
        run.append(content.first(content.size() / 3));
        const qsizetype before = run.getMessages().size();
        run.getDecoder().reset(static_cast<quint64>(place));
        QCOMPARE(run.getDecoder().getPosition(), static_cast<quint64>(place));
        run.append(content.sliced(place));
        run.finish();
        const qsizetype index
            = std::lower_bound(places.begin(), places.end(), place) - places.begin();
        QCOMPARE(run.getMessages().sliced(before), whole.getMessages().sliced(index));
    }
}

void tst_McapFormat::scanner_findsEveryPlaceInAnyPieces()
{
    const QByteArray records = positionMessage(1, 1);
    const auto size = static_cast<quint64>(records.size());
    QByteArray content = mcapMagic() + mcapHeader() + definitionRecords();
    std::vector<qint64> expected = {content.size()};
    content += mcapChunk("", records, size, mcapCrc(records), 4000, 9000);
    expected.push_back(content.size());
    content += positionMessage(12, 1);
    content += mcapRecord(9, QByteArray(5000, 'x')); // an attachment
    expected.push_back(content.size());
    content += mcapChunk("", records, size, mcapCrc(records), 13000, 15000);
    content += mcapEnd(positionMessage(99, 1));
    for (const qsizetype pieceSize : {qsizetype(1), qsizetype(10), qsizetype(997), content.size()})
    {
        McapScanner scanner;
        std::vector<qint64> offsets;
        std::vector<qint64> times;
        qint64 from = 0;
        for (qsizetype begin = 0; begin < content.size(); begin += pieceSize) {
            scanner.append(
                QByteArrayView(content).sliced(begin, qMin(pieceSize, content.size() - begin)));
            while (const auto place = scanner.find(from)) {
                offsets.push_back(place->offset);
                times.push_back(place->timeUs.value());
                from = place->offset + 1;
            }
        }
        QCOMPARE(offsets, expected);
        QCOMPARE(times, std::vector<qint64>({4, 12, 13}));
        QCOMPARE(scanner.getLatestTimeUs(), std::optional<qint64>(15));
    }
}

void tst_McapFormat::scanner_survivesWhatIsNoMcap()
{
    McapScanner scanner;
    scanner.append(QByteArray(1000, '\0'));
    QVERIFY(!scanner.find(0));
    McapScanner huge;
    huge.append(mcapMagic()
                + McapBytes()
                      .number(quint8(9))
                      .number(std::numeric_limits<quint64>::max())
                      .raw(QByteArray(100, 'x'))
                      .bytes);
    QVERIFY(!huge.find(0));
    huge.append(QByteArray(100, 'x'));
    QVERIFY(!huge.find(0));
}

void tst_McapFormat::isMcapFile_looksAtTheBeginning()
{
    QVERIFY(McapFormat::isMcapFile(write(mcapMagic())));
    QVERIFY(!McapFormat::isMcapFile(write(mcapMagic().chopped(1))));
    QVERIFY(!McapFormat::isMcapFile(write("text")));
    QVERIFY(!McapFormat::isMcapFile(folder.path()));
    QVERIFY(!McapFormat::isMcapFile(folder.filePath("none.mcap")));
}

CORVANE_TEST_MAIN(tst_McapFormat)
#include "tst_mcapformat.moc"
