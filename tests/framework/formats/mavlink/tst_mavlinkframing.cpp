#include "decodedmessage.h"
#include "mavlinkframes.h"
#include "testcase.h"

#include <QTest>

#include <memory>

using namespace corvane;
using namespace corvane::test;

namespace {

constexpr quint64 someTimeUs = 1'700'000'000'000'000;

} // namespace

/** Frames one behind the other, or each behind its time: which it is, and the time. */
class tst_MavlinkFraming : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void framing_data();
    void framing();
    void framing_horizonIsIndependentOfPieces();
    void timeStamp_mayContainStartBytes();
    void timeStamp_isTheMessagesTime();
    void arrivalTime_isTheRawMessagesTime();

private:
    QByteArray small(quint8 sequence) const;

    DialectFolder folder;
    std::unique_ptr<MavlinkFormat> format;
};

void tst_MavlinkFraming::initTestCase()
{
    format = std::make_unique<MavlinkFormat>();
    const QString file = folder.writeDialect(
        "framing.xml", "<messages><message id='1' name='SMALL'><field type='uint32_t' name='f'/>"
                       "</message></messages>");
    QVERIFY(format->load(file).isOk());
}

QByteArray tst_MavlinkFraming::small(quint8 sequence) const
{
    return frameVersion2({1, format->findType(1)->checksumExtra, QByteArray("\4\3\2\1"), sequence});
}

void tst_MavlinkFraming::framing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<MavlinkFraming>("framing");
    QTest::addColumn<int>("frames");
    const auto raw = MavlinkFraming::Raw;
    const auto timeStamped = MavlinkFraming::TimeStamped;
    const QByteArray frame = small(0);
    const QByteArray unknown = frameVersion2({999, 0, QByteArray("abc")});
    QTest::newRow("nothing") << QByteArray() << raw << 0;
    QTest::newRow("one byte") << QByteArray("\xFD") << raw << 0;
    QTest::newRow("one frame") << frame << raw << 1;
    QTest::newRow("one stamped frame") << stamped(frame, someTimeUs) << timeStamped << 1;
    QTest::newRow("8 bytes and a frame") << QByteArray(8, '\1') + frame << raw << 1;
    QTest::newRow("3 bytes and frames") << QByteArray("abc") + frame + frame << raw << 2;
    QTest::newRow("cut time and frames")
        << stamped(frame, someTimeUs).mid(3) + stamped(frame, someTimeUs) << timeStamped << 1;
    QTest::newRow("garbage and stamped frames")
        << QByteArray(20, 'x') + stamped(frame, someTimeUs) + stamped(frame, someTimeUs)
        << timeStamped << 2;
    QTest::newRow("garbage and one stamped frame")
        << QByteArray(20, 'x') + stamped(frame, someTimeUs) << timeStamped << 1;
    QTest::newRow("time of 1970") << QByteArray(20, 'x') + stamped(frame, 1) + stamped(frame, 2)
                                  << raw << 2;
    QTest::newRow("unknown frames") << unknown + unknown << raw << 0;
    QTest::newRow("unknown stamped frames")
        << stamped(unknown, someTimeUs) + stamped(unknown, someTimeUs) << timeStamped << 0;
}

void tst_MavlinkFraming::framing()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const MavlinkFraming, framing);
    QFETCH(const int, frames);
    for (const int pieceSize : {0, 1, 7}) {
        DecoderRun run(*format);
        run.append(bytes, pieceSize);
        run.finish();
        QCOMPARE(run.getDecoder().getFraming(), framing);
        QCOMPARE(run.getFrames().size(), frames);
        QCOMPARE(run.getTotals().bytes, quint64(bytes.size()));
        QVERIFY(run.getTotals().unknownFrames > 0 || run.getDoubtfulBytes() == 0);
    }
}

void tst_MavlinkFraming::framing_horizonIsIndependentOfPieces()
{
    // Start bytes by the thousands, no frame; then frames with time, beyond the horizon.
    const QByteArray frame = stamped(small(0), someTimeUs);
    const QByteArray bytes = QByteArray(70'000, '\xFE') + frame + frame;
    QStringList summaries;
    for (const int pieceSize : {0, 1, 1000}) {
        DecoderRun run(*format);
        run.append(bytes, pieceSize);
        run.finish();
        summaries.append(run.getSummary());
    }
    QCOMPARE(summaries[1], summaries[0]);
    QCOMPARE(summaries[2], summaries[0]);
}

void tst_MavlinkFraming::timeStamp_mayContainStartBytes()
{
    // 0x0005FDFE.. lies in the year 2023: start bytes in the time are no frames.
    const quint64 timeUs = 0x0005FDFE'FDFE0000;
    QByteArray bytes;
    for (quint8 i = 0; i < 10; ++i)
        bytes += stamped(small(i), timeUs + i * 0xFD);
    DecoderRun run(*format);
    run.append(bytes, 1);
    run.finish();
    QCOMPARE(run.getFrames().size(), 10);
    QCOMPARE(run.getEvents(), QStringList());
}

void tst_MavlinkFraming::timeStamp_isTheMessagesTime()
{
    DecoderRun run(*format, MavlinkFraming::TimeStamped);
    QList<qint64> times;
    connect(&run.getReception(), &MessageSource::newMessage, this, [&](const Message *message) {
        times.append(static_cast<const DecodedMessage *>(message)->getTimeUs());
    });
    run.append(stamped(small(0), someTimeUs) + stamped(small(1), ~quint64(0))
               + stamped(small(2), someTimeUs + 1));
    run.finish();
    QCOMPARE(times, (QList<qint64>{qint64(someTimeUs), DecodedMessage::unknownTime,
                                   qint64(someTimeUs + 1)}));
}

void tst_MavlinkFraming::arrivalTime_isTheRawMessagesTime()
{
    DecoderRun run(*format, MavlinkFraming::Raw);
    QList<qint64> times;
    connect(&run.getReception(), &MessageSource::newMessage, this, [&](const Message *message) {
        times.append(static_cast<const DecodedMessage *>(message)->getTimeUs());
    });
    run.getDecoder().append(small(0), 42);
    while (run.getDecoder().step() == StreamDecoder::Step::Advanced) {
    }
    run.append(small(1));
    QCOMPARE(times, (QList<qint64>{42, DecodedMessage::unknownTime}));
    QVERIFY(!run.getDecoder().getNextTimeUs().has_value());
}

CORVANE_TEST_MAIN(tst_MavlinkFraming)
#include "tst_mavlinkframing.moc"
