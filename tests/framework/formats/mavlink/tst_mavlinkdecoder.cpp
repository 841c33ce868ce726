#include "mavlinkframes.h"
#include "messagestatistics.h"
#include "messagestatisticsdata.h"
#include "testcase.h"

#include <QTest>

#include <cstring>
#include <memory>

using namespace corvane;
using namespace corvane::test;

namespace {

constexpr quint64 someTimeUs = 1'700'000'000'000'000;

constexpr const char *dialect = R"(
<messages>
  <message id="1" name="SMALL"><field type="uint32_t" name="f"/></message>
  <message id="2" name="WIDE"><field type="uint8_t[40]" name="f"/></message>
  <message id="70000" name="FAR"><field type="uint32_t" name="f"/></message>
</messages>)";

} // namespace

/** The way from bytes to messages, and what is told of bytes that are none. */
class tst_MavlinkDecoder : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void versions_data();
    void versions();
    void unknownId_isToldAndPassed();
    void unknownFlags_areSkipped();
    void damage_isToldWithChecksums();
    void damage_hintsAtCutZeros();
    void damage_withoutFrameBehindIsSkipped();
    void damage_inTransportingFrameKeepsItWhole();
    void wrongLength_losesOnlyItsOwnFrame();
    void garbage_betweenFrames_data();
    void garbage_betweenFrames();
    void garbage_alone_isToldInPieces();
    void pieces_giveTheSame_data();
    void pieces_giveTheSame();
    void sequence_data();
    void sequence();
    void sequence_countsPerSender();
    void needs_decideWhatIsDelivered();
    void incompleteFrame_waitsForItsRest();
    void longerPayload_isAccepted();
    void position_isThatOfTheNextFrame();
    void reset_forgetsWhatWasNotRead();
    void reset_keepsTheFraming();

private:
    QByteArray small(quint8 sequence, quint32 value = 0x01020304) const;
    QByteArray wide(quint8 sequence, const QByteArray &content) const;
    QByteArray damaged(QByteArray frame, qsizetype index = -1) const;

    DialectFolder folder;
    std::unique_ptr<MavlinkFormat> format;
};

void tst_MavlinkDecoder::initTestCase()
{
    format = std::make_unique<MavlinkFormat>();
    QVERIFY(format->load(folder.writeDialect("decoder.xml", dialect)).isOk());
}

QByteArray tst_MavlinkDecoder::small(quint8 sequence, quint32 value) const
{
    QByteArray payload(4, '\0');
    std::memcpy(payload.data(), &value, 4);
    return frameVersion2({1, format->findType(1)->checksumExtra, payload, sequence});
}

QByteArray tst_MavlinkDecoder::wide(quint8 sequence, const QByteArray &content) const
{
    return frameVersion2(
        {2, format->findType(2)->checksumExtra, content.leftJustified(40, '.', true), sequence});
}

/** The frame with one byte changed, by default the first of its checksum. */
QByteArray tst_MavlinkDecoder::damaged(QByteArray frame, qsizetype index) const
{
    const qsizetype at = index < 0 ? frame.size() - 2 : index;
    frame[at] = static_cast<char>(frame[at] ^ 0x10);
    return frame;
}

void tst_MavlinkDecoder::versions_data()
{
    QTest::addColumn<QByteArray>("frame");
    const quint8 extra = format->findType(1)->checksumExtra;
    const quint8 extraFar = format->findType(70000)->checksumExtra;
    QTest::newRow("version 1") << frameVersion1({1, extra, QByteArray("abcd")});
    QTest::newRow("version 2") << frameVersion2({1, extra, QByteArray("abcd")});
    QTest::newRow("version 2, trimmed") << frameVersion2({1, extra, QByteArray("a\0\0\0", 4)});
    QTest::newRow("version 2, large id") << frameVersion2({70000, extraFar, QByteArray("abcd")});
    QTest::newRow("signed") << signedFrame({1, extra, QByteArray("abcd")});
    QTest::newRow("version 1, no payload") << frameVersion1({1, extra, QByteArray()});
}

void tst_MavlinkDecoder::versions()
{
    QFETCH(const QByteArray, frame);
    for (const bool hasTime : {false, true}) {
        const QByteArray one = hasTime ? stamped(frame, someTimeUs) : frame;
        DecoderRun run(*format);
        run.append(one + one);
        run.finish();
        QCOMPARE(run.getFrames(), (QList<QByteArray>{frame, frame}));
        QCOMPARE(run.getDecoder().getFraming(),
                 hasTime ? MavlinkFraming::TimeStamped : MavlinkFraming::Raw);
        QCOMPARE(run.getDoubtfulBytes(), 0);
        QCOMPARE(run.getTotals().skippedBytes, quint64(0));
    }
}

void tst_MavlinkDecoder::unknownId_isToldAndPassed()
{
    const QByteArray unknown = frameVersion2({999, 0, QByteArray("abc"), 1, 7, 8});
    for (const int pieceSize : {0, 1}) {
        DecoderRun run(*format);
        run.append(small(0) + unknown + small(1) + unknown, pieceSize);
        run.finish();
        QCOMPARE(run.getFrames().size(), 2);
        QCOMPARE(run.getTotals().unknownFrames, quint64(2));
        QCOMPARE(*run.getTotals().crcErrors, quint64(0));
        QCOMPARE(run.getDoubtfulBytes(), 2 * unknown.size());
        const QStringList events = run.getEvents();
        QCOMPARE(events.size(), 2);
        QVERIFY(events[0].contains("id 999 from sender 7/8"));
        QVERIFY(events[1].endsWith("id 999 from sender 7/8: 1 more in the same second"));
    }
}

void tst_MavlinkDecoder::unknownFlags_areSkipped()
{
    for (const int flags : {0x02, 0x03, 0x80, 0xFF}) {
        const FrameParts parts{1, format->findType(1)->checksumExtra, QByteArray("abcd")};
        const QByteArray frame = frameVersion2(parts, static_cast<quint8>(flags));
        DecoderRun run(*format);
        run.append(small(0) + frame + small(1));
        run.finish();
        QCOMPARE(run.getFrames(), (QList<QByteArray>{small(0), small(1)}));
        QCOMPARE(run.getTotals().skippedBytes, quint64(frame.size()));
        QCOMPARE(run.getEvents(),
                 QStringList(QStringLiteral("%1 bytes from offset %2 belong to no frame.")
                                 .arg(frame.size())
                                 .arg(small(0).size())));
    }
}

void tst_MavlinkDecoder::damage_isToldWithChecksums()
{
    const QByteArray bad = damaged(small(1));
    DecoderRun run(*format);
    run.append(small(0) + bad + small(2));
    run.finish();
    QCOMPARE(run.getFrames(), (QList<QByteArray>{small(0), small(2)}));
    QCOMPARE(*run.getTotals().crcErrors, quint64(1));
    QCOMPARE(run.getDoubtfulBytes(), bad.size());
    const auto checksum = [](const QByteArray &frame) {
        return QStringLiteral("0x%1%2")
            .arg(static_cast<quint8>(frame.back()), 2, 16, QLatin1Char('0'))
            .arg(static_cast<quint8>(frame[frame.size() - 2]), 2, 16, QLatin1Char('0'));
    };
    QCOMPARE(run.getEvents(CorvaneEvent::CrcError),
             QStringList(QStringLiteral("CRC error: SMALL from sender 1/1: checksum %1 received, "
                                        "%2 computed")
                             .arg(checksum(bad), checksum(small(1)))));
    QCOMPARE(run.getEvents(CorvaneEvent::SequenceGap).size(), 1);
    const auto statistics = run.getReception().getStatistics()->getAllMessageStatistics();
    QCOMPARE(statistics.size(), 1);
    QCOMPARE(statistics[0]->getCount(), 2u);
    QCOMPARE(statistics[0]->getData()->crcErrors, 1u);
    QCOMPARE(run.getReception().getSenders().getAll()[0]->crcErrors, quint64(1));
}

void tst_MavlinkDecoder::damage_hintsAtCutZeros()
{
    // A relay cuts two zeros off a payload of 4 bytes and keeps the checksum, which is that of a
    // frame of version 1, whose payload is sent as a whole.
    const FrameParts parts{1, format->findType(1)->checksumExtra, QByteArray("ab\0\0", 4)};
    QByteArray cut = frameVersion1(parts);
    cut.remove(8, 2);
    cut[1] = 2;
    DecoderRun run(*format);
    run.append(small(0) + cut + small(1));
    run.finish();
    const QStringList events = run.getEvents(CorvaneEvent::CrcError);
    QCOMPARE(events.size(), 1);
    QVERIFY2(events[0].contains("extended with zeros to 4 bytes"), qPrintable(events[0]));
}

void tst_MavlinkDecoder::damage_withoutFrameBehindIsSkipped()
{
    const QByteArray bad = damaged(small(1));
    DecoderRun run(*format);
    run.append(small(0) + bad + "garbage" + small(2));
    run.finish();
    QCOMPARE(run.getFrames(), (QList<QByteArray>{small(0), small(2)}));
    QCOMPARE(*run.getTotals().crcErrors, quint64(0));
    QCOMPARE(run.getTotals().skippedBytes, quint64(bad.size() + 7));
    QCOMPARE(run.getDoubtfulBytes(), 0);
}

void tst_MavlinkDecoder::damage_inTransportingFrameKeepsItWhole()
{
    // A message whose payload holds a whole frame: damage does not make that frame a message.
    const QByteArray transporting = damaged(wide(1, "x" + small(77) + "y"));
    DecoderRun run(*format);
    run.append(small(0) + transporting + small(2));
    run.finish();
    QCOMPARE(run.getFrames(), (QList<QByteArray>{small(0), small(2)}));
    QCOMPARE(*run.getTotals().crcErrors, quint64(1));
}

void tst_MavlinkDecoder::wrongLength_losesOnlyItsOwnFrame()
{
    // The length says that the frame ends where the frame behind the next one begins.
    const QByteArray next = small(2);
    QByteArray bad = small(1);
    bad[1] = static_cast<char>(bad[1] + next.size());
    for (const int pieceSize : {0, 1}) {
        DecoderRun run(*format);
        run.append(small(0) + bad + next + small(3), pieceSize);
        run.finish();
        QCOMPARE(run.getFrames(), (QList<QByteArray>{small(0), next, small(3)}));
        QCOMPARE(run.getTotals().skippedBytes, quint64(bad.size()));
    }
}

void tst_MavlinkDecoder::garbage_betweenFrames_data()
{
    QTest::addColumn<QByteArray>("garbage");
    QTest::newRow("text") << QByteArray("hello");
    QTest::newRow("start bytes") << QByteArray(30, '\xFD');
    QTest::newRow("other start bytes") << QByteArray(30, '\xFE');
    QTest::newRow("half a frame") << small(9).left(9);
    QTest::newRow("a frame's tail") << small(9).mid(3);
    QTest::newRow("one zero") << QByteArray(1, '\0');
    QByteArray noise;
    quint32 state = 12345;
    for (int i = 0; i < 3000; ++i) {
        state = state * 1664525 + 1013904223;
        noise.append(static_cast<char>(state >> 24));
    }
    QTest::newRow("noise") << noise;
}

void tst_MavlinkDecoder::garbage_betweenFrames()
{
    QFETCH(const QByteArray, garbage);
    for (const int pieceSize : {0, 1}) {
        DecoderRun run(*format, MavlinkFraming::Raw);
        run.append(small(0) + garbage + small(1) + small(2) + garbage, pieceSize);
        run.finish();
        QCOMPARE(run.getFrames(), (QList<QByteArray>{small(0), small(1), small(2)}));
        if (run.getTotals().unknownFrames + *run.getTotals().crcErrors == 0)
            QCOMPARE(run.getTotals().skippedBytes, quint64(2 * garbage.size()));
        QVERIFY(run.getDoubtfulBytes() >= 0);
    }
}

void tst_MavlinkDecoder::garbage_alone_isToldInPieces()
{
    DecoderRun run(*format, MavlinkFraming::Raw);
    run.append(QByteArray(150'000, 'x'), 1000);
    // A person sees that bytes come which are no frames, before the stream ends.
    QCOMPARE(run.getTotals().skippedBytes, quint64(2 * 65536));
    run.finish();
    QCOMPARE(run.getTotals().skippedBytes, quint64(150'000));
    QCOMPARE(run.getReception().getStatistics()->getEventCount(CorvaneEvent::LostBytes), 3U);
    QVERIFY(run.getEvents()[0].startsWith("65536 bytes from offset 0 "));
}

void tst_MavlinkDecoder::pieces_giveTheSame_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray unknown = frameVersion2({999, 0, QByteArray("abc"), 1});
    // A start byte behind a damaged frame, with flags that no frame has.
    const QByteArray pretended = fromHex("FD 04 FF 00 00 01 01 01 00 00");
    QTest::newRow("damage and pretended frame")
        << small(0) + damaged(small(1)) + pretended + small(2);
    QTest::newRow("damage and damage")
        << small(0) + damaged(small(1)) + damaged(small(2)) + small(3);
    QTest::newRow("damage at the end") << small(0) + damaged(small(1));
    QTest::newRow("unknown and damage") << small(0) + unknown + damaged(small(1)) + unknown;
    QTest::newRow("frame cut off") << small(0) + small(1).left(7);
    QTest::newRow("damage and frame cut off") << small(0) + damaged(small(1)) + small(2).left(7);
    QTest::newRow("start bytes in the payload")
        << small(0) + damaged(wide(1, QByteArray(40, '\xFD'))) + small(2)
               + damaged(wide(3, QByteArray(40, '\xFE'))) + small(4);
}

void tst_MavlinkDecoder::pieces_giveTheSame()
{
    QFETCH(const QByteArray, bytes);
    DecoderRun whole(*format);
    whole.append(bytes);
    whole.finish();
    for (qsizetype pieceSize = 1; pieceSize < bytes.size(); ++pieceSize) {
        DecoderRun run(*format);
        run.append(bytes, pieceSize);
        run.finish();
        QCOMPARE(run.getSummary(), whole.getSummary());
    }
}

void tst_MavlinkDecoder::sequence_data()
{
    QTest::addColumn<QList<int>>("numbers");
    QTest::addColumn<QString>("sender");
    const auto row = [](const char *name, const QList<int> &numbers, int gaps, int lost) {
        QTest::newRow(name) << numbers
                            << QStringLiteral("1/1: %1 frames, %2 gaps, %3 lost")
                                   .arg(numbers.size())
                                   .arg(gaps)
                                   .arg(lost);
    };
    row("in order", {5, 6, 7}, 0, 0);
    row("begins anywhere", {200}, 0, 0);
    row("one lost", {5, 7}, 1, 1);
    row("two gaps", {5, 7, 8, 20}, 2, 12);
    row("wraps around", {254, 255, 0, 1}, 0, 0);
    row("lost around the end", {254, 1}, 1, 2);
    row("one behind", {5, 4}, 1, 254);
    row("the same again", {5, 5}, 0, 0);
}

void tst_MavlinkDecoder::sequence()
{
    QFETCH(const QList<int>, numbers);
    QFETCH(const QString, sender);
    QByteArray bytes;
    for (const int number : numbers)
        bytes += small(static_cast<quint8>(number));
    DecoderRun run(*format);
    run.append(bytes);
    run.finish();
    QCOMPARE(run.getSenders(), QStringList(sender));
}

void tst_MavlinkDecoder::sequence_countsPerSender()
{
    const quint8 extra = format->findType(1)->checksumExtra;
    const auto from = [extra](quint8 system, quint8 component, quint8 sequence) {
        return frameVersion2({1, extra, QByteArray("abcd"), sequence, system, component});
    };
    DecoderRun run(*format);
    run.append(from(1, 1, 0) + from(1, 2, 50) + from(2, 1, 100) + from(1, 1, 1) + from(1, 2, 53)
               + from(2, 1, 101));
    run.finish();
    QCOMPARE(run.getSenders(),
             (QStringList{"1/1: 2 frames, 0 gaps, 0 lost", "1/2: 2 frames, 1 gaps, 2 lost",
                          "2/1: 2 frames, 0 gaps, 0 lost"}));
    QCOMPARE(run.getEvents(CorvaneEvent::SequenceGap),
             QStringList("Sender 1/2: 2 messages lost before sequence number 53."));
}

void tst_MavlinkDecoder::needs_decideWhatIsDelivered()
{
    const QByteArray bytes = small(0) + wide(1, "abc") + small(2);
    DecoderRun none(*format, MavlinkFraming::Automatic, QStringList());
    none.append(bytes);
    none.finish();
    QVERIFY(none.getFrames().isEmpty());
    QCOMPARE(none.getTotals().frames, quint64(3));
    QCOMPARE(none.getSenders(), QStringList("1/1: 3 frames, 0 gaps, 0 lost"));

    DecoderRun one(*format, MavlinkFraming::Automatic, QStringList("WIDE"));
    one.append(bytes);
    one.finish();
    QCOMPARE(one.getFrames(), QList<QByteArray>{wide(1, "abc")});
    QCOMPARE(one.getTotals().frames, quint64(3));
    QCOMPARE(one.getReception().getStatistics()->getAllMessageStatistics().size(), 2);
}

void tst_MavlinkDecoder::incompleteFrame_waitsForItsRest()
{
    const QByteArray frame = small(1);
    DecoderRun run(*format);
    run.append(small(0) + frame.left(5));
    QCOMPARE(run.getFrames().size(), 1);
    run.append(frame.mid(5));
    QCOMPARE(run.getFrames().size(), 2);
    QCOMPARE(run.getEvents(), QStringList());
}

void tst_MavlinkDecoder::longerPayload_isAccepted()
{
    // A sender with newer definitions has extensions that these do not know.
    const QByteArray frame
        = frameVersion2({1, format->findType(1)->checksumExtra, QByteArray("abcdefghij"), 1});
    DecoderRun run(*format);
    run.append(small(0) + frame + damaged(small(2)) + frame);
    run.finish();
    QCOMPARE(run.getFrames(), (QList<QByteArray>{small(0), frame, frame}));
    QCOMPARE(*run.getTotals().crcErrors, quint64(1));
}

void tst_MavlinkDecoder::position_isThatOfTheNextFrame()
{
    DecoderRun run(*format, MavlinkFraming::Raw);
    QCOMPARE(run.getDecoder().getPosition(), quint64(0));
    run.append("junk" + small(0) + small(1).left(5));
    QCOMPARE(run.getDecoder().getPosition(), quint64(4 + small(0).size()));
}

void tst_MavlinkDecoder::reset_forgetsWhatWasNotRead()
{
    DecoderRun run(*format, MavlinkFraming::Raw);
    run.append(small(0) + small(1).left(5));
    run.getDecoder().reset(1000);
    QCOMPARE(run.getDecoder().getPosition(), quint64(1000));
    run.append(small(2) + "xyz");
    run.finish();
    run.getDecoder().reset(2000);
    run.append(small(3) + small(4).left(5));
    QCOMPARE(run.getFrames(), (QList<QByteArray>{small(0), small(2), small(3)}));
    const quint64 offset = 1000 + quint64(small(2).size());
    QCOMPARE(run.getEvents(CorvaneEvent::LostBytes),
             QStringList{QStringLiteral("3 bytes from offset %1 belong to no frame.").arg(offset)});
    // After finish() the rest would have been told of as belonging to no frame.
    QCOMPARE(run.getDecoder().step(), StreamDecoder::Step::NeedsBytes);
}

void tst_MavlinkDecoder::reset_keepsTheFraming()
{
    DecoderRun run(*format);
    run.append(stamped(small(0), someTimeUs) + stamped(small(1), someTimeUs));
    QCOMPARE(run.getDecoder().getFraming(), MavlinkFraming::TimeStamped);
    run.getDecoder().reset(0);
    // Without a frame behind it, and with a start byte in its time, it could be taken for others.
    run.append(stamped(small(5), 0xFD00'0000'0000'00FD >> 8));
    QCOMPARE(run.getFrames().size(), 3);
    QCOMPARE(run.getDecoder().getFraming(), MavlinkFraming::TimeStamped);
}

CORVANE_TEST_MAIN(tst_MavlinkDecoder)
#include "tst_mavlinkdecoder.moc"
