#include "mavlinkframes.h"
#include "testcase.h"

#include <QTest>

#include <algorithm>
#include <memory>

using namespace corvane;
using namespace corvane::test;

namespace {

constexpr quint64 someTimeUs = 1'700'000'000'000'000;
constexpr qint64 timeSize = 8;
constexpr qint64 smallestFrame = 8;
constexpr qint64 largestFrame = 280;

constexpr const char *dialect = R"(
<messages>
  <message id="0" name="BEAT"><field type="uint32_t" name="a"/><field type="uint8_t[5]" name="b"/></message>
  <message id="30" name="POSE"><field type="float[6]" name="f"/></message>
  <message id="253" name="TEXT"><field type="char[50]" name="f"/></message>
  <message id="70000" name="FAR"><field type="uint64_t" name="f"/></message>
</messages>)";

} // namespace

/** Every way to cut a set of frames short and to flip one bit of it. */
class tst_MavlinkDamage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void prefix_data();
    void prefix();
    void bitFlip_data();
    void bitFlip();
    void missingByte_data();
    void missingByte();

private:
    void addRows();
    QByteArray makeFrame(int kind, quint8 sequence) const;
    static void verifyAccounting(DecoderRun &run, const QByteArray &bytes);

    DialectFolder folder;
    std::unique_ptr<MavlinkFormat> format;
    QList<QByteArray> frames;
};

void tst_MavlinkDamage::initTestCase()
{
    format = std::make_unique<MavlinkFormat>();
    QVERIFY(format->load(folder.writeDialect("damage.xml", dialect)).isOk());
    for (int i = 0; i < 12; ++i)
        frames.append(makeFrame(i % 6, static_cast<quint8>(250 + i)));
}

QByteArray tst_MavlinkDamage::makeFrame(int kind, quint8 sequence) const
{
    const auto parts = [&](quint32 id, const QByteArray &payload) {
        return FrameParts{id, format->findType(id)->checksumExtra, payload, sequence};
    };
    switch (kind) {
    case 0:
        return frameVersion1(parts(0, QByteArray("\x01\x02\x03\x04\xFD\xFE\0\x01\x03", 9)));
    case 1:
        return frameVersion2(parts(30, QByteArray(23, '\x3F') + QByteArray(1, '\0')));
    case 2:
        return signedFrame(parts(0, QByteArray("\0\0\0\0\x06\x07\xFD\x09\0", 9)));
    case 3:
        return frameVersion2(parts(253, QByteArray("text ") + QByteArray(45, '\0')));
    case 4:
        return frameVersion2(parts(70000, QByteArray(8, '\xFE')));
    default:
        return frameVersion2(parts(0, QByteArray(9, '\0')));
    }
}

void tst_MavlinkDamage::addRows()
{
    QTest::addColumn<bool>("hasTime");
    QTest::newRow("raw") << false;
    QTest::newRow("with time") << true;
}

/** Each byte is part of a good frame, of a doubtful frame, or skipped. */
void tst_MavlinkDamage::verifyAccounting(DecoderRun &run, const QByteArray &bytes)
{
    const Reception::Totals &totals = run.getTotals();
    QCOMPARE(totals.bytes, quint64(bytes.size()));
    QCOMPARE(totals.frames, quint64(run.getFrames().size()));
    const auto doubtful = static_cast<qint64>(totals.unknownFrames + *totals.crcErrors);
    QVERIFY(run.getDoubtfulBytes() >= doubtful * smallestFrame);
    QVERIFY(run.getDoubtfulBytes() <= doubtful * (largestFrame + timeSize));
}

void tst_MavlinkDamage::prefix_data()
{
    addRows();
}

void tst_MavlinkDamage::prefix()
{
    QFETCH(const bool, hasTime);
    QByteArray bytes;
    QList<qsizetype> ends;
    for (const QByteArray &frame : std::as_const(frames)) {
        bytes += hasTime ? stamped(frame, someTimeUs) : frame;
        ends.append(bytes.size());
    }
    for (qsizetype size = 0; size <= bytes.size(); ++size) {
        const auto whole = std::count_if(ends.begin(), ends.end(),
                                         [size](qsizetype end) { return end <= size; });
        DecoderRun run(*format);
        run.append(bytes.left(size), size % 5);
        run.finish();
        verifyAccounting(run, bytes.left(size));
        QCOMPARE(run.getFrames(), frames.first(whole));
        QCOMPARE(run.getTotals().skippedBytes, quint64(size - (whole == 0 ? 0 : ends[whole - 1])));
    }
}

void tst_MavlinkDamage::bitFlip_data()
{
    addRows();
}

void tst_MavlinkDamage::bitFlip()
{
    QFETCH(const bool, hasTime);
    const qsizetype prefix = hasTime ? timeSize : 0;
    QByteArray bytes;
    for (const QByteArray &frame : std::as_const(frames))
        bytes += hasTime ? stamped(frame, someTimeUs) : frame;
    qsizetype begin = 0;
    for (qsizetype number = 0; number < frames.size(); ++number) {
        const qsizetype size = prefix + frames[number].size();
        const qsizetype checked = frames[number].size() - (number % 6 == 2 ? 13 : 0);
        for (qsizetype bit = begin * 8; bit < (begin + size) * 8; ++bit) {
            QByteArray flipped = bytes;
            flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ (1 << (bit % 8)));
            DecoderRun run(*format, hasTime ? MavlinkFraming::TimeStamped : MavlinkFraming::Raw);
            run.append(flipped, bit % 3);
            run.finish();
            verifyAccounting(run, flipped);
            // Time and signature are not covered by the checksum.
            const qsizetype offset = bit / 8 - begin - prefix;
            QList<QByteArray> expected = frames;
            if (offset >= checked)
                expected[number] = flipped.mid(begin + prefix, frames[number].size());
            else if (offset >= 0)
                expected.removeAt(number);
            QVERIFY2(run.getFrames() == expected,
                     qPrintable(QStringLiteral("frame %1, byte %2, bit %3: %4")
                                    .arg(number)
                                    .arg(offset)
                                    .arg(bit % 8)
                                    .arg(run.getSummary())));
        }
        begin += size;
    }
}

void tst_MavlinkDamage::missingByte_data()
{
    addRows();
}

void tst_MavlinkDamage::missingByte()
{
    QFETCH(const bool, hasTime);
    const qsizetype prefix = hasTime ? timeSize : 0;
    QByteArray bytes;
    for (const QByteArray &frame : std::as_const(frames))
        bytes += hasTime ? stamped(frame, someTimeUs) : frame;
    qsizetype begin = 0;
    for (qsizetype number = 0; number < frames.size(); ++number) {
        for (qsizetype offset = 0; offset < prefix + frames[number].size(); ++offset) {
            QByteArray shortened = bytes;
            shortened.remove(begin + offset, 1);
            DecoderRun run(*format, hasTime ? MavlinkFraming::TimeStamped : MavlinkFraming::Raw);
            run.append(shortened, offset % 4);
            run.finish();
            verifyAccounting(run, shortened);
            // All frames behind the next good one are found.
            for (qsizetype other = 0; other < frames.size(); ++other)
                if (other != number && other != number + 1)
                    QVERIFY(run.getFrames().contains(frames[other]));
        }
        begin += prefix + frames[number].size();
    }
}

CORVANE_TEST_MAIN(tst_MavlinkDamage)
#include "tst_mavlinkdamage.moc"
