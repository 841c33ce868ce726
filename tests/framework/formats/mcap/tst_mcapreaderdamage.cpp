#include "mcaplistener.h"
#include "testcase.h"

#include <limits>

using namespace corvane;
using namespace corvane::test;

class TestMcapReaderDamage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
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

void TestMcapReaderDamage::cutAtEveryByte_data()
{
    addMethods();
}

void TestMcapReaderDamage::cutAtEveryByte()
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

void TestMcapReaderDamage::cutCompressedChunk_givesWhatIsThere_data()
{
    addCompressions();
}

void TestMcapReaderDamage::cutCompressedChunk_givesWhatIsThere()
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

void TestMcapReaderDamage::withoutSummaryAndFooter()
{
    const Listener listener = readAll(mcapMagic() + mcapHeader() + definitions() + threeMessages());
    QCOMPARE(listener.messages, 3);
    QCOMPARE(listener.problems.size(), 1);
    QCOMPARE(listener.problems[0].kind, McapProblem::Kind::Cut);
    QCOMPARE(readAll(mcapMagic() + mcapRecord(2, QByteArray(20, '\0')) + mcapMagic()).lines,
             QStringList());
}

void TestMcapReaderDamage::notMcap_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("text") << QByteArray("hello, this is a text");
    QTest::newRow("one byte") << QByteArray("x");
    QTest::newRow("other version") << makeFile("").replace(5, 1, "1");
}

void TestMcapReaderDamage::notMcap()
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

void TestMcapReaderDamage::bytesBehindTheEnd()
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

void TestMcapReaderDamage::zerosInsteadOfAnEnd()
{
    const QByteArray good = mcapMagic() + mcapHeader() + definitions() + threeMessages();
    const Listener listener = readAll(good + QByteArray(5000, '\0'), 100);
    QCOMPARE(listener.messages, 3);
    QCOMPARE(listener.problems.size(), 1);
    QCOMPARE(listener.problems[0].offset, good.size());
    QCOMPARE(listener.problems[0].text, "There is no record where one must be.");
}

void TestMcapReaderDamage::damagedChunk_data()
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

void TestMcapReaderDamage::damagedChunk()
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

void TestMcapReaderDamage::badRecords_data()
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

void TestMcapReaderDamage::badRecords()
{
    QFETCH(QByteArray, records);
    QFETCH(QString, problem);
    const Listener listener = readContent(definitions() + records + threeMessages());
    QCOMPARE(listener.problems.size(), 1);
    QCOMPARE(listener.problems[0].text, problem);
    QCOMPARE(listener.messages, 3);
}

void TestMcapReaderDamage::limits_data()
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

void TestMcapReaderDamage::limits()
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

void TestMcapReaderDamage::enormousRecord_isPassedOver()
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

void TestMcapReaderDamage::singleBitFlips_data()
{
    addMethods();
}

void TestMcapReaderDamage::singleBitFlips()
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

CORVANE_TEST_MAIN(TestMcapReaderDamage)
#include "tst_mcapreaderdamage.moc"
