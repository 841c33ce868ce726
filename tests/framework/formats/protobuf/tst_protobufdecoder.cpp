#include "everyfeature.h"
#include "message.h"
#include "protobufdecoder.h"
#include "protobufframing.h"
#include "protobufmessages.h"
#include "protobuftextform.h"
#include "testcase.h"

#include <QtEndian>

using namespace corvane;
using namespace corvane::test;

class tst_ProtobufDecoder : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void length_isRead_data();
    void length_isRead();
    void stream_isReadInAnyPieces_data();
    void stream_isReadInAnyPieces();
    void emptyMessage_isAMessage();
    void badMessage_isPassedOver_data();
    void badMessage_isPassedOver();
    void longestMessage_isRead();
    void tooLongMessage_isPassedOverWithoutBeingKept_data();
    void tooLongMessage_isPassedOverWithoutBeingKept();
    void noLength_isPassedOver();
    void streamWithoutDefinitions_isPassedOver();
    void cutEnd_isTold_data();
    void cutEnd_isTold();
    void expandingMessage_isRefused();
    void manySmallParts_areRead();
    void largeMessage_withALengthBeyondItsEnd_isNone();
    void everyTruncation_isHandled();
    void everyFlippedBit_isHandled();
    void messages_outliveTheFormat();

private:
    std::unique_ptr<ProtobufDefinitions> small;

    QByteArray frame(const char *text, bool isVarint) const
    {
        const QByteArray message = small->encode(QString::fromLatin1(text));
        return isVarint ? framedVarint(message) : framedLittleEndian(message);
    }

public:
    tst_ProtobufDecoder();
};

tst_ProtobufDecoder::tst_ProtobufDecoder()
    : small(std::make_unique<ProtobufDefinitions>(QMap<QString, QString>{
        {QStringLiteral("a.proto"),
         QStringLiteral("syntax = \"proto3\"; message A { int32 x = 1; string s = 2; "
                        "repeated A parts = 3; bytes b = 4; }")}}))
{
}

void tst_ProtobufDecoder::length_isRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("result");
    const auto row = [](const char *name, const char *hex, const char *result) {
        QTest::newRow(name) << QByteArray::fromHex(hex) << QString::fromLatin1(result);
    };
    row("nothing", "", "incomplete");
    row("zero", "00", "0 after 1");
    row("one byte", "7f", "127 after 1");
    row("two bytes", "8001", "128 after 2");
    row("two bytes, one there", "80", "incomplete");
    row("longer than needed", "8000", "0 after 2");
    row("32 bits", "ffffffff0f", "4294967295 after 5");
    row("64 bits", "ffffffffffffffffff01", "18446744073709551615 after 10");
    row("beyond 64 bits", "ffffffffffffffffff02", "none");
    row("no end", "ffffffffffffffffffff", "none");
    row("nine of ten", "ffffffffffffffffff", "incomplete");
}

void tst_ProtobufDecoder::length_isRead()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, result);
    ProtobufLength length;
    switch (ProtobufLength::read(bytes, ProtobufFraming::Varint, length)) {
    case ProtobufLength::Result::Length:
        QCOMPARE(QStringLiteral("%1 after %2").arg(length.size).arg(length.prefixSize), result);
        break;
    case ProtobufLength::Result::Incomplete:
        QCOMPARE(QStringLiteral("incomplete"), result);
        break;
    case ProtobufLength::Result::None:
        QCOMPARE(QStringLiteral("none"), result);
        break;
    }
}

void tst_ProtobufDecoder::stream_isReadInAnyPieces_data()
{
    QTest::addColumn<bool>("isVarint");
    QTest::newRow("varint") << true;
    QTest::newRow("le32") << false;
}

void tst_ProtobufDecoder::stream_isReadInAnyPieces()
{
    QFETCH(bool, isVarint);
    const QString text(200, QLatin1Char('z'));
    const QByteArray stream = frame("x: 1", isVarint)
                              + frame(qPrintable("s: '" + text + '\''), isVarint)
                              + frame("x: 3", isVarint);
    QStringList whole;
    for (const qsizetype pieceSize : {0, 1, 2, 3, 7, 100}) {
        ProtobufRun run(small->getFormat(), isVarint ? "varint" : "le32");
        run.append(stream, pieceSize);
        run.finish();
        QCOMPARE(run.getTotals().frames, 3U);
        QCOMPARE(run.getTotals().skippedBytes, 0U);
        QCOMPARE(run.getEvents(), QStringList());
        if (whole.isEmpty())
            whole = run.getMessages();
        QCOMPARE(run.getMessages(), whole);
    }
    QVERIFY(whole.at(1).contains(text));
}

void tst_ProtobufDecoder::emptyMessage_isAMessage()
{
    ProtobufRun run(small->getFormat());
    run.append(QByteArray(2, '\0'));
    run.finish();
    QCOMPARE(run.getTotals().frames, 2U);
    QCOMPARE(run.getMessages().at(1), QStringLiteral("A\n  x: 0\n  s: -\n  parts: -\n  b: 0x"));
}

void tst_ProtobufDecoder::badMessage_isPassedOver_data()
{
    QTest::addColumn<QByteArray>("bad");
    QTest::newRow("field number 0") << QByteArray::fromHex("0001");
    QTest::newRow("text cut") << QByteArray::fromHex("120561");
    QTest::newRow("no UTF-8") << QByteArray::fromHex("1201ff");
    QTest::newRow("wire type 7") << QByteArray::fromHex("0f");
    QTest::newRow("end of no group") << QByteArray::fromHex("0c");
    QByteArray nested;
    for (int depth = 0; depth < 200; ++depth)
        nested = '\x1A' + framedVarint(nested);
    QTest::newRow("nested beyond measure") << nested;
}

void tst_ProtobufDecoder::badMessage_isPassedOver()
{
    QFETCH(QByteArray, bad);
    for (const bool isVarint : {true, false}) {
        const QByteArray framed = isVarint ? framedVarint(bad) : framedLittleEndian(bad);
        const QByteArray before = frame("x: 1", isVarint);
        ProtobufRun run(small->getFormat(), isVarint ? "varint" : "le32");
        run.append(before + framed + frame("x: 2", isVarint), 5);
        run.finish();
        QCOMPARE(run.getTotals().frames, 2U);
        QCOMPARE(run.getTotals().skippedBytes, static_cast<quint64>(framed.size()));
        QCOMPARE(run.getEvents(),
                 QStringList(QStringLiteral("%1 bytes from offset %2 are lost: they are no message "
                                            "of type A.")
                                 .arg(framed.size())
                                 .arg(before.size())));
    }
}

void tst_ProtobufDecoder::longestMessage_isRead()
{
    // A length in 4 bytes, its tag in 1, the rest are bytes of one value.
    const auto size = static_cast<qsizetype>(ProtobufDecoder::maximumSize);
    const QByteArray message = '\x22' + framedVarint(QByteArray(size - 5, 'x'));
    QCOMPARE(message.size(), size);
    ProtobufRun run(small->getFormat(), QStringLiteral("le32"));
    run.append(framedLittleEndian(message), 8 * 1024 * 1024);
    run.finish();
    QCOMPARE(run.getTotals().frames, 1U);
    QCOMPARE(run.getEvents(), QStringList());
}

void tst_ProtobufDecoder::tooLongMessage_isPassedOverWithoutBeingKept_data()
{
    QTest::addColumn<QString>("framing");
    QTest::addColumn<QByteArray>("prefix");
    QTest::newRow("le32") << "le32" << QByteArray::fromHex("01000004");
    QTest::newRow("varint") << "varint" << QByteArray::fromHex("81808020");
}

void tst_ProtobufDecoder::tooLongMessage_isPassedOverWithoutBeingKept()
{
    QFETCH(QString, framing);
    QFETCH(QByteArray, prefix);
    const bool isVarint = framing == QLatin1String("varint");
    const QByteArray before = frame("x: 1", isVarint);
    ProtobufRun run(small->getFormat(), framing);
    run.append(before + prefix);
    QCOMPARE(run.getEvents(),
             QStringList(QStringLiteral("The message at offset %1 would be 67108865 bytes long, "
                                        "more than 67108864; it is passed over. Is the framing "
                                        "right?")
                             .arg(before.size())));
    const QByteArray piece(1024 * 1024, 'x');
    for (int i = 0; i < 64; ++i)
        run.append(piece);
    run.append("x" + frame("x: 2", isVarint));
    run.finish();
    QCOMPARE(run.getTotals().frames, 2U);
    QCOMPARE(run.getTotals().skippedBytes, quint64(67108865 + prefix.size()));
    QCOMPARE(run.getEvents().size(), 1);
}

void tst_ProtobufDecoder::noLength_isPassedOver()
{
    ProtobufRun run(small->getFormat());
    run.append(QByteArray(10, '\xFF') + frame("x: 2", true));
    run.finish();
    QCOMPARE(run.getTotals().frames, 1U);
    QCOMPARE(run.getTotals().skippedBytes, 10U);
    QCOMPARE(run.getEvents(), QStringList("10 bytes from offset 0 are lost: they should be the "
                                          "length of a message and are none."));
}

void tst_ProtobufDecoder::streamWithoutDefinitions_isPassedOver()
{
    const ProtobufFormat format;
    ProtobufRun run(format);
    run.append(frame("x: 2", true));
    QVERIFY(!run.getDecoder().getNextTimeUs());
    run.finish();
    QCOMPARE(run.getTotals().skippedBytes, 3U);
    QCOMPARE(run.getEvents(),
             QStringList("3 bytes from offset 0 are lost: no definitions are loaded."));
}

void tst_ProtobufDecoder::cutEnd_isTold_data()
{
    stream_isReadInAnyPieces_data();
}

void tst_ProtobufDecoder::cutEnd_isTold()
{
    QFETCH(bool, isVarint);
    const QByteArray whole = frame("x: 1", isVarint);
    const QByteArray last = frame("x: 2 s: 'some text'", isVarint);
    for (qsizetype cut = 1; cut < last.size(); ++cut) {
        ProtobufRun run(small->getFormat(), isVarint ? "varint" : "le32");
        run.append(whole + last.first(cut), 3);
        QCOMPARE(run.getEvents(), QStringList());
        run.finish();
        QCOMPARE(run.getTotals().frames, 1U);
        QCOMPARE(run.getTotals().skippedBytes, static_cast<quint64>(cut));
        QCOMPARE(run.getEvents(), QStringList(QStringLiteral("%1 bytes from offset %2 are lost: "
                                                             "the stream ends inside of a message.")
                                                  .arg(cut)
                                                  .arg(whole.size())));
    }
}

void tst_ProtobufDecoder::expandingMessage_isRefused()
{
    // Empty parts of two bytes each take hundreds of bytes of memory each.
    const QByteArray message = QByteArray("\x1A\x00", 2).repeated(20 * 1024 * 1024);
    ProtobufRun run(small->getFormat(), QStringLiteral("le32"));
    run.append(framedLittleEndian(message) + frame("x: 2", false), 8 * 1024 * 1024);
    run.finish();
    QCOMPARE(run.getTotals().frames, 1U);
    QCOMPARE(run.getTotals().skippedBytes, static_cast<quint64>(message.size() + 4));
    QCOMPARE(run.getEvents(), QStringList("41943044 bytes from offset 0 are lost: the message "
                                          "would take more than 536870912 bytes of memory."));
}

void tst_ProtobufDecoder::manySmallParts_areRead()
{
    const QByteArray message = QByteArray("\x1A\x02\x08\x05", 4).repeated(100'000);
    ProtobufRun run(small->getFormat(), QStringLiteral("le32"));
    run.append(framedLittleEndian(message));
    run.finish();
    QCOMPARE(run.getTotals().frames, 1U);
    QCOMPARE(run.getMessages().at(0).count(QLatin1String("x: 5")), 100'000);
}

void tst_ProtobufDecoder::largeMessage_withALengthBeyondItsEnd_isNone()
{
    // What is not there takes no memory.
    const QByteArray message
        = QByteArray("\x08\x05", 2).repeated(100'000) + QByteArray("\x12\xFF\xFF\xFF\xFF\x07", 6);
    ProtobufRun run(small->getFormat(), QStringLiteral("le32"));
    run.append(framedLittleEndian(message));
    run.finish();
    QCOMPARE(run.getEvents(), QStringList("200010 bytes from offset 0 are lost: they are no "
                                          "message of type A."));
}

void tst_ProtobufDecoder::everyTruncation_isHandled()
{
    ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    const QByteArray rich = definitions.encode(everyFeatureMessage());
    const QByteArray good = framedVarint(definitions.encode(QStringLiteral("id: 9")));
    for (qsizetype size = 0; size < rich.size(); ++size) {
        ProtobufRun run(definitions.getFormat());
        run.append(framedVarint(rich.first(size)) + good);
        run.finish();
        // What is cut may be a message all the same; what follows it is read in any case.
        const quint64 framedSize = static_cast<quint64>(framedVarint(rich.first(size)).size());
        const bool wasRead = run.getTotals().frames == 2 && run.getTotals().skippedBytes == 0;
        const bool wasPassedOver
            = run.getTotals().frames == 1 && run.getTotals().skippedBytes == framedSize;
        QVERIFY2(wasRead || wasPassedOver, qPrintable(QString::number(size)));
        QCOMPARE(run.getEvents().size(), wasRead ? 0 : 1);
        QVERIFY(run.getMessages().last().contains(QStringLiteral("id: 9")));
    }
}

void tst_ProtobufDecoder::everyFlippedBit_isHandled()
{
    ProtobufDefinitions definitions(everyFeature(), QStringLiteral("test.Every"));
    const QByteArray framed = framedVarint(definitions.encode(everyFeatureMessage()));
    for (qsizetype bit = 0; bit < framed.size() * 8; ++bit) {
        QByteArray flipped = framed;
        flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << (bit % 8)));
        ProtobufRun run(definitions.getFormat());
        run.append(flipped);
        run.finish();
        const Reception::Totals &totals = run.getTotals();
        QVERIFY(totals.frames > 0 || totals.skippedBytes > 0);
        QVERIFY(totals.skippedBytes <= totals.bytes);
        QCOMPARE(run.getEvents().isEmpty(), totals.skippedBytes == 0);
    }
}

void tst_ProtobufDecoder::messages_outliveTheFormat()
{
    auto definitions
        = std::make_unique<ProtobufDefinitions>(everyFeature(), QStringLiteral("test.Every"));
    const Message *kept = nullptr;
    {
        const DecodedProtobuf message(definitions->getFormat(),
                                      definitions->encode(everyFeatureMessage()));
        kept = message.get();
        textForm(kept);
        kept->addReference();
    }
    definitions.reset();
    QCOMPARE(kept->getReferenceCount(), 1);
    kept->removeReference();
}

CORVANE_TEST_MAIN(tst_ProtobufDecoder)

#include "tst_protobufdecoder.moc"
