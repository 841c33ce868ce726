#include "mcapreader.h"
#include "mcapwriter.h"
#include "testcase.h"

#include <limits>

using namespace corvane;
using namespace corvane::test;

namespace {

/** Writes down what it is told. */
class Listener : public McapListener
{
public:
    void readSchema(const McapSchema &schema) override
    {
        lines.append(QStringLiteral("schema %1 %2 %3 %4")
                         .arg(schema.id)
                         .arg(schema.name, schema.encoding, QString::fromUtf8(schema.data)));
    }

    void readChannel(const McapChannel &channel, const McapSchema *schema) override
    {
        lastChannel = channel;
        lines.append(QStringLiteral("channel %1 %2 %3")
                         .arg(channel.id)
                         .arg(channel.topic, schema == nullptr ? "-" : schema->name));
    }

    void readMessage(const McapMessage &message, const McapChannel &channel, qint64 offset) override
    {
        ++messages;
        lastOffset = offset;
        bytes += message.data.size();
        lines.append(QStringLiteral("message %1 %2 %3 %4")
                         .arg(channel.topic)
                         .arg(message.sequence)
                         .arg(message.logTimeNs)
                         .arg(QString::fromUtf8(
                             message.data.first(qMin<qsizetype>(message.data.size(), 20)))));
    }

    void reportProblem(const McapProblem &problem) override
    {
        problems.append(problem);
        lines.append("problem: " + problem.text);
    }

    QStringList lines;
    QList<McapProblem> problems;
    int messages = 0;
    McapChannel lastChannel;
    qint64 lastOffset = -1;
    qint64 bytes = 0;
};

void stepOn(McapReader &reader)
{
    while (reader.step() == McapReader::Step::Advanced) {
    }
}

Listener
readAll(const QByteArray &file, qsizetype pieceSize = 1 << 30, const McapLimits &limits = {})
{
    Listener listener;
    McapReader reader(listener, limits);
    for (qsizetype i = 0; i < file.size(); i += pieceSize) {
        reader.append(QByteArrayView(file).sliced(i, qMin(pieceSize, file.size() - i)));
        stepOn(reader);
    }
    reader.finish();
    stepOn(reader);
    if (reader.getOffset() != file.size())
        listener.lines.append("not all was read");
    return listener;
}

QByteArray definitions()
{
    return mcapSchema(1, "a.B") + mcapSchema(2, "c.D") + mcapChannel(10, 1, "/one")
           + mcapChannel(20, 2, "/two") + mcapChannel(30, 0, "/none");
}

QByteArray threeMessages()
{
    return mcapMessage(10, 1, "first") + mcapMessage(20, 2, "") + mcapMessage(30, 3, "third");
}

/** A file with all kinds of records; the messages stand in a chunk, or alone. */
QByteArray makeFile(const QByteArray &method, bool chunked = true)
{
    const QByteArray records = definitions() + threeMessages();
    const QByteArray attachment = mcapRecord(9, QByteArray(50, 'a'));
    const QByteArray index = mcapRecord(7, QByteArray(6, '\0'));
    return mcapMagic() + mcapHeader() + attachment
           + (chunked ? mcapChunk(method, records) : records) + index
           + mcapRecord(0x80, "an extension") + mcapMessage(10, 4, "last")
           + mcapEnd(definitions() + mcapRecord(8, QByteArray(9, 'i')));
}

const QStringList expectedLines{
    "schema 1 a.B protobuf xyz", "schema 2 c.D protobuf xyz",  "channel 10 /one a.B",
    "channel 20 /two c.D",       "channel 30 /none -",         "message /one 1 1000 first",
    "message /two 2 2000 ",      "message /none 3 3000 third", "message /one 4 4000 last",
};

/** \a content between the definitions and the end. */
Listener readContent(const QByteArray &content, const McapLimits &limits = {})
{
    return readAll(mcapMagic() + mcapHeader() + content + mcapEnd(), 1 << 30, limits);
}

} // namespace

class TestMcapReader : public corvane::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void read_data();
    void read();
    void read_withoutChunks();
    void read_emptyChunk_data();
    void read_emptyChunk();
    void read_framesOneBehindTheOther_data();
    void read_framesOneBehindTheOther();
    void offsets();
    void metadata();
    void nextLogTime();
    void cutAtEveryByte_data();
    void cutAtEveryByte();
    void cutCompressedChunk_givesWhatIsThere_data();
    void cutCompressedChunk_givesWhatIsThere();
    void withoutSummaryAndFooter();
    void notMcap_data();
    void notMcap();
    void bytesBehindTheEnd();
    void zerosInsteadOfAnEnd();
    void damagedChunk_data();
    void damagedChunk();
    void badRecords_data();
    void badRecords();
    void limits_data();
    void limits();
    void enormousRecord_isPassedOver();
    void singleBitFlips_data();
    void singleBitFlips();
};

void TestMcapReader::read_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<int>("pieceSize");

    for (const char *method : {"", "zstd", "lz4"}) {
        for (const int pieceSize : {1, 7, 1 << 20})
            QTest::addRow("\"%s\" in pieces of %d", method, pieceSize)
                << QByteArray(method) << pieceSize;
    }
}

void TestMcapReader::read()
{
    QFETCH(QByteArray, method);
    QFETCH(int, pieceSize);
    QCOMPARE(readAll(makeFile(method), pieceSize).lines, expectedLines);
}

void TestMcapReader::read_withoutChunks()
{
    QCOMPARE(readAll(makeFile("", false), 3).lines, expectedLines);
}

void TestMcapReader::read_emptyChunk_data()
{
    QTest::addColumn<QByteArray>("method");
    for (const char *method : {"", "zstd", "lz4"})
        QTest::addRow("\"%s\"", method) << QByteArray(method);
}

void TestMcapReader::read_emptyChunk()
{
    QFETCH(QByteArray, method);
    QCOMPARE(readContent(mcapChunk(method, QByteArray())).lines, QStringList());
    QCOMPARE(readContent(mcapChunk(method, QByteArray(), 0, 0)).lines, QStringList());
}

void TestMcapReader::read_framesOneBehindTheOther_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::newRow("zstd") << QByteArray("zstd");
    QTest::newRow("lz4") << QByteArray("lz4");
}

void TestMcapReader::read_framesOneBehindTheOther()
{
    QFETCH(QByteArray, method);
    const QByteArray records
        = definitions() + mcapMessage(10, 1, QByteArray(700000, 'x')) + threeMessages();
    const QByteArray compressed
        = mcapCompress(method, records.first(100)) + mcapCompress(method, records.sliced(100));
    const Listener listener = readContent(
        mcapChunk(method, compressed, static_cast<quint64>(records.size()), mcapCrc(records)));
    QVERIFY(listener.problems.isEmpty());
    QCOMPARE(listener.messages, 4);
    QCOMPARE(listener.bytes, 700010);
}

void TestMcapReader::offsets()
{
    const QByteArray before = mcapMagic() + mcapHeader() + definitions();
    QCOMPARE(readAll(before + mcapMessage(10, 1, "x") + mcapEnd()).lastOffset, before.size());
    QCOMPARE(readAll(before + mcapChunk("lz4", threeMessages()) + mcapEnd()).lastOffset,
             before.size());
}

void TestMcapReader::metadata()
{
    const Listener listener = readContent(definitions());
    QCOMPARE(listener.lastChannel.messageEncoding, "protobuf");
    QCOMPARE(listener.lastChannel.metadata, (QMap<QString, QString>{{"key", "value"}}));
}

void TestMcapReader::nextLogTime()
{
    Listener listener;
    McapReader reader(listener);
    reader.append(mcapMagic() + definitions() + mcapMessage(10, 5, "x"));
    for (int i = 0; i < 6; ++i) {
        QVERIFY(!reader.getNextLogTimeNs());
        reader.step();
    }
    QCOMPARE(reader.getNextLogTimeNs(), 5000);
    reader.step();
    QCOMPARE(listener.messages, 1);
    const QByteArray chunk = mcapChunk("zstd", mcapMessage(10, 6, "y"));
    reader.append(chunk.chopped(1));
    QVERIFY(!reader.getNextLogTimeNs());
    QCOMPARE(reader.step(), McapReader::Step::NeedsBytes);
    reader.append(chunk.last(1));
    reader.step();
    QCOMPARE(reader.getNextLogTimeNs(), 6000);
    reader.step();
    QVERIFY(!reader.getNextLogTimeNs());
    QCOMPARE(listener.messages, 2);
}

void TestMcapReader::cutAtEveryByte_data()
{
    read_emptyChunk_data();
}

void TestMcapReader::cutAtEveryByte()
{
    QFETCH(QByteArray, method);
    const QByteArray file = makeFile(method);
    const QByteArray plain = makeFile("");
    int messagesBefore = 0;
    for (qsizetype size = 0; size < file.size(); ++size) {
        const Listener listener = readAll(file.first(size));
        const int count = static_cast<int>(listener.lines.size());
        QVERIFY(count > 0);
        QCOMPARE(listener.problems.size(), 1);
        QCOMPARE(listener.problems[0].kind, McapProblem::Kind::Cut);
        QCOMPARE(listener.problems[0].offset, size);
        QCOMPARE(listener.lines.last(), "problem: The file is cut off here.");
        // All that is told stands in the whole file, too, and is told in the same order.
        QCOMPARE(listener.lines.first(count - 1), expectedLines.first(count - 1));
        QVERIFY(listener.messages >= messagesBefore);
        messagesBefore = listener.messages;
        if (method.isEmpty()) {
            // What is complete counts, also in a chunk that is not.
            const auto complete = [&](const QByteArray &record) {
                return plain.first(size).contains(record) ? 1 : 0;
            };
            QCOMPARE(listener.messages, complete(mcapMessage(10, 1, "first"))
                                            + complete(mcapMessage(20, 2, ""))
                                            + complete(mcapMessage(30, 3, "third"))
                                            + complete(mcapMessage(10, 4, "last")));
        }
    }
    QCOMPARE(messagesBefore, 4);
}

void TestMcapReader::cutCompressedChunk_givesWhatIsThere_data()
{
    read_framesOneBehindTheOther_data();
}

void TestMcapReader::cutCompressedChunk_givesWhatIsThere()
{
    QFETCH(QByteArray, method);
    QByteArray records = definitions();
    quint32 random = 1;
    for (quint32 i = 0; i < 1000; ++i) {
        QByteArray data;
        for (int k = 0; k < 1000; ++k)
            data.append(static_cast<char>((random = random * 1664525 + 1013904223) >> 24));
        records += mcapMessage(10, i, data);
    }
    const QByteArray file = mcapMagic() + mcapHeader() + mcapChunk(method, records);
    const Listener listener = readAll(file.first(file.size() / 2));
    QVERIFY2(listener.messages > 300 && listener.messages < 510,
             qPrintable(QString::number(listener.messages)));
    QCOMPARE(listener.problems.size(), 1);
    QCOMPARE(listener.problems[0].kind, McapProblem::Kind::Cut);
    QCOMPARE(readAll(file).messages, 1000);
}

void TestMcapReader::withoutSummaryAndFooter()
{
    const Listener listener = readAll(mcapMagic() + mcapHeader() + definitions() + threeMessages());
    QCOMPARE(listener.messages, 3);
    QCOMPARE(listener.problems.size(), 1);
    QCOMPARE(listener.problems[0].kind, McapProblem::Kind::Cut);
    QCOMPARE(readAll(mcapMagic() + mcapRecord(2, QByteArray(20, '\0')) + mcapMagic()).lines,
             QStringList());
}

void TestMcapReader::notMcap_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("text") << QByteArray("hello, this is a text");
    QTest::newRow("one byte") << QByteArray("x");
    QTest::newRow("other version") << makeFile("").replace(5, 1, "1");
}

void TestMcapReader::notMcap()
{
    QFETCH(QByteArray, file);
    for (const qsizetype pieceSize : {1, 1000}) {
        const Listener listener = readAll(file, pieceSize);
        QCOMPARE(listener.lines,
                 QStringList("problem: This is no MCAP file, or one of another version."));
        QCOMPARE(listener.problems[0].kind, McapProblem::Kind::NotMcap);
        QCOMPARE(listener.problems[0].offset, 0);
    }
}

void TestMcapReader::bytesBehindTheEnd()
{
    const QByteArray file = makeFile("");
    const Listener listener = readAll(file + "more", 1);
    QCOMPARE(listener.messages, 4);
    QCOMPARE(listener.problems.size(), 1);
    QCOMPARE(listener.problems[0].offset, file.size());
    QCOMPARE(listener.problems[0].text, "There are bytes behind the end of the file.");
    QCOMPARE(readAll(file.chopped(1) + "x").lines.last(),
             "problem: The mark at the end of the file is wrong.");
}

void TestMcapReader::zerosInsteadOfAnEnd()
{
    const QByteArray good = mcapMagic() + mcapHeader() + definitions() + threeMessages();
    const Listener listener = readAll(good + QByteArray(5000, '\0'), 100);
    QCOMPARE(listener.messages, 3);
    QCOMPARE(listener.problems.size(), 1);
    QCOMPARE(listener.problems[0].offset, good.size());
    QCOMPARE(listener.problems[0].text, "There is no record where one must be.");
}

void TestMcapReader::damagedChunk_data()
{
    QTest::addColumn<QByteArray>("chunk");
    QTest::addColumn<QString>("problem");

    const QByteArray records = threeMessages();
    const auto size = static_cast<quint64>(records.size());
    const quint32 crc = mcapCrc(records);
    const QByteArray zstd = mcapCompress("zstd", records);
    const QByteArray lz4 = mcapCompress("lz4", records);
    const QString less = QStringLiteral("A chunk holds less than the %1 bytes it tells of.");
    const QString more = QStringLiteral("A chunk holds more than the %1 bytes it tells of.");
    const QString broken = QStringLiteral("A chunk cannot be decompressed.");
    QTest::newRow("crc") << mcapChunk("", records, size, crc + 1)
                         << "The checksum of a chunk is wrong.";
    QTest::newRow("crc, zstd") << mcapChunk("zstd", zstd, size, 1)
                               << "The checksum of a chunk is wrong.";
    QTest::newRow("less") << mcapChunk("", records, size + 1, 0) << less.arg(size + 1);
    QTest::newRow("less, zstd") << mcapChunk("zstd", zstd, size + 1, 0) << less.arg(size + 1);
    QTest::newRow("more") << mcapChunk("", records, size - 1, 0) << more.arg(size - 1);
    QTest::newRow("more, zstd") << mcapChunk("zstd", zstd, size - 1, 0) << more.arg(size - 1);
    QTest::newRow("more, lz4") << mcapChunk("lz4", lz4, 0, 0) << more.arg(0);
    QTest::newRow("no zstd") << mcapChunk("zstd", records, size, 0) << broken;
    QTest::newRow("no lz4") << mcapChunk("lz4", records, size, 0) << broken;
    QTest::newRow("cut zstd") << mcapChunk("zstd", zstd.chopped(1), size, 0) << less.arg(size);
    QTest::newRow("cut lz4") << mcapChunk("lz4", lz4.chopped(1), size, 0) << less.arg(size);
    QTest::newRow("method") << mcapChunk("brotli", records, size, 0)
                            << "A chunk is compressed with \"brotli\", which is not known.";
    QTest::newRow("too short") << mcapRecord(6, QByteArray(20, '\0')) << "A chunk is incomplete.";
    QTest::newRow("records too short") << mcapRecord(
        6,
        McapBytes().raw(QByteArray(28, '\0')).sized("").number(quint64(1) << 63).raw("abc").bytes)
                                       << "A chunk is incomplete.";
}

void TestMcapReader::damagedChunk()
{
    QFETCH(QByteArray, chunk);
    QFETCH(QString, problem);
    const Listener listener = readContent(definitions() + chunk + mcapMessage(10, 9, "behind"));
    QCOMPARE(listener.messages, 1);
    QCOMPARE(listener.lines.last(), "message /one 9 9000 behind");
    QCOMPARE(listener.problems.size(), 1);
    QCOMPARE(listener.problems[0].text, problem);
    QCOMPARE(listener.problems[0].kind, McapProblem::Kind::Damaged);
    QCOMPARE(listener.problems[0].offset, (mcapMagic() + mcapHeader() + definitions()).size());
}

void TestMcapReader::badRecords_data()
{
    QTest::addColumn<QByteArray>("records");
    QTest::addColumn<QString>("problem");

    QTest::newRow("schema cut") << mcapRecord(3, "ab") << "A schema is incomplete.";
    QTest::newRow("schema 0") << mcapSchema(0, "x") << "A schema is incomplete.";
    QTest::newRow("schema differs")
        << mcapSchema(1, "other") << "Schema 1 is not the one that had this number before.";
    QTest::newRow("channel cut") << mcapRecord(4, "abcdef") << "A channel is incomplete.";
    QTest::newRow("channel with bad metadata") << mcapRecord(
        4,
        McapBytes().number(quint16(5)).number(quint16(1)).sized("t").sized("e").sized("abc").bytes)
                                               << "A channel is incomplete.";
    QTest::newRow("channel differs")
        << mcapChannel(10, 1, "/other") << "Channel 10 is not the one that had this number before.";
    QTest::newRow("channel without schema")
        << mcapChannel(50, 77, "/x")
        << "Channel 50 names schema 77, which the file does not contain.";
    QTest::newRow("message cut") << mcapRecord(5, QByteArray(21, 'x'))
                                 << "A message is incomplete.";
    QTest::newRow("message without channel")
        << mcapMessage(99, 1, "x")
        << "A message names channel 99, which the file does not contain.";
    QTest::newRow("chunk in chunk")
        << mcapChunk("", mcapChunk("", threeMessages())) << "There is a chunk inside a chunk.";
    QTest::newRow("record beyond its chunk")
        << mcapChunk("", mcapMessage(10, 1, "abc").chopped(1))
        << "The records of a chunk do not end where the chunk does.";
    QTest::newRow("zeros in a chunk") << mcapChunk("", QByteArray(100, '\0'))
                                      << "The records of a chunk do not end where the chunk does.";
}

void TestMcapReader::badRecords()
{
    QFETCH(QByteArray, records);
    QFETCH(QString, problem);
    const Listener listener = readContent(definitions() + records + threeMessages());
    QCOMPARE(listener.problems.size(), 1);
    QCOMPARE(listener.problems[0].text, problem);
    QCOMPARE(listener.messages, 3);
}

void TestMcapReader::limits_data()
{
    QTest::addColumn<QByteArray>("records");
    QTest::addColumn<QString>("problem");

    QTest::newRow("record") << mcapMessage(10, 9, QByteArray(1000, 'x'))
                            << "A record of 1022 bytes is larger than the 1000 that are allowed.";
    QTest::newRow("stored chunk")
        << mcapChunk("", mcapMessage(10, 9, QByteArray(1000, 'x')))
        << "A record of 1071 bytes is larger than the 1000 that are allowed.";
    QTest::newRow("chunk") << mcapChunk("zstd", mcapCompress("zstd", QByteArray(5000, '\0')), 5000,
                                        0)
                           << "A chunk tells of 5000 bytes, more than the 2000 that are allowed.";
    QTest::newRow("enormous chunk")
        << mcapChunk("zstd", "", std::numeric_limits<quint64>::max(), 0)
        << "A chunk tells of 18446744073709551615 bytes, more than the 2000 that are allowed.";
    QTest::newRow("schema bytes") << mcapSchema(3, "x", QByteArray(900, 'x'))
                                  << "There are more or larger schemas than are allowed.";
    QTest::newRow("schemas") << mcapSchema(3, "x") + mcapSchema(4, "y")
                             << "There are more or larger schemas than are allowed.";
    QTest::newRow("channels") << mcapChannel(40, 1, "/x") + mcapChannel(50, 1, "/y")
                              << "There are more channels than are allowed.";
}

void TestMcapReader::limits()
{
    QFETCH(QByteArray, records);
    QFETCH(QString, problem);
    McapLimits limits;
    limits.recordBytes = 1000;
    limits.chunkBytes = 2000;
    limits.schemaBytes = 500;
    limits.schemas = 3;
    limits.channels = 4;
    const Listener listener = readContent(definitions() + records + threeMessages(), limits);
    QCOMPARE(listener.problems.size(), 1);
    QCOMPARE(listener.problems[0].text, problem);
    QCOMPARE(listener.problems[0].kind, McapProblem::Kind::TooLarge);
    QCOMPARE(listener.messages, 3);
}

void TestMcapReader::enormousRecord_isPassedOver()
{
    const QByteArray start
        = McapBytes().number(quint8(5)).number(std::numeric_limits<quint64>::max()).bytes;
    const Listener listener
        = readAll(mcapMagic() + mcapHeader() + definitions() + start + threeMessages());
    QCOMPARE(listener.messages, 0);
    QCOMPARE(listener.problems.size(), 2);
    QCOMPARE(listener.problems[0].kind, McapProblem::Kind::TooLarge);
    QCOMPARE(listener.problems[1].kind, McapProblem::Kind::Cut);
}

void TestMcapReader::singleBitFlips_data()
{
    read_emptyChunk_data();
}

void TestMcapReader::singleBitFlips()
{
    QFETCH(QByteArray, method);
    const QByteArray good = makeFile(method);
    for (qsizetype i = 0; i < good.size() * 8; ++i) {
        QByteArray bad = good;
        bad[i / 8] = static_cast<char>(bad[i / 8] ^ (1 << (i % 8)));
        const Listener listener = readAll(bad);
        QVERIFY(listener.messages <= 4);
        QVERIFY(listener.bytes <= good.size());
        QVERIFY(!listener.lines.contains("not all was read"));
    }
}

CORVANE_TEST_MAIN(TestMcapReader)
#include "tst_mcapreader.moc"
