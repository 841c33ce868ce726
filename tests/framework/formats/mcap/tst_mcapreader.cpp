#include "mcaplistener.h"
#include "testcase.h"

using namespace corvane;
using namespace corvane::test;

class TestMcapReader : public TestCase
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
    addMethods();
}

void TestMcapReader::read_emptyChunk()
{
    QFETCH(QByteArray, method);
    QCOMPARE(readContent(mcapChunk(method, QByteArray())).lines, QStringList());
    QCOMPARE(readContent(mcapChunk(method, QByteArray(), 0, 0)).lines, QStringList());
}

void TestMcapReader::read_framesOneBehindTheOther_data()
{
    addCompressions();
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

CORVANE_TEST_MAIN(TestMcapReader)
#include "tst_mcapreader.moc"
