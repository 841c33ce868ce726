#include "mavlinkframes.h"
#include "mavlinkscanner.h"
#include "testcase.h"

#include <QFile>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace corvane;
using namespace corvane::test;

namespace {

constexpr qint64 someTimeUs = 1'700'000'000'000'000;

constexpr const char *dialect = R"(
<messages>
  <message id="1" name="SMALL"><field type="uint32_t" name="f"/></message>
  <message id="70000" name="FAR"><field type="uint32_t" name="f"/></message>
</messages>)";

/** The offsets of all places, when the bytes come in pieces. */
QList<qint64> findAll(MavlinkScanner &scanner, const QByteArray &bytes, qsizetype pieceSize = 0)
{
    QList<qint64> offsets;
    const qsizetype size = pieceSize > 0 ? pieceSize : bytes.size();
    for (qsizetype begin = 0; begin < bytes.size(); begin += size) {
        scanner.append(QByteArrayView(bytes).sliced(begin, std::min(size, bytes.size() - begin)));
        while (const auto place = scanner.find(offsets.isEmpty() ? 0 : offsets.last() + 1))
            offsets.append(place->offset);
    }
    return offsets;
}

} // namespace

class tst_MavlinkScanner : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void places_areTheGoodFrames_data();
    void places_areTheGoodFrames();
    void places_fromAnOffsetOn();
    void times_areThoseBeforeTheFrames();
    void times_ofRawStreams_areUnknown();
    void damage_anyFlippedByte();
    void framing_isFoundInTheHead();

private:
    QByteArray small(quint8 sequence) const
    {
        return frameVersion2({1, format->findType(1)->checksumExtra, "abcd", sequence});
    }

    DialectFolder folder;
    std::unique_ptr<MavlinkFormat> format;
};

void tst_MavlinkScanner::initTestCase()
{
    format = std::make_unique<MavlinkFormat>();
    QVERIFY(format->load(folder.writeDialect("scanner.xml", dialect)).isOk());
}

void tst_MavlinkScanner::places_areTheGoodFrames_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QList<qint64>>("expected");
    const QByteArray frame = small(0);
    const qint64 size = frame.size();
    QByteArray damaged = frame;
    damaged[size - 1] = char(damaged[size - 1] ^ 1);
    const QByteArray far
        = frameVersion2({70'000, format->findType(70'000)->checksumExtra, "abcd", 1});
    const QByteArray old = frameVersion1({1, format->findType(1)->checksumExtra, "abcd", 1});
    const QByteArray unknown = frameVersion2({5, 9, "abcd", 1});
    QTest::newRow("nothing") << QByteArray() << QList<qint64>();
    QTest::newRow("frames") << frame + frame << QList<qint64>{0, size};
    QTest::newRow("high id") << frame + far + frame << QList<qint64>{0, size, 2 * size};
    QTest::newRow("version 1") << old + frame << QList<qint64>{0, old.size()};
    QTest::newRow("damaged") << frame + damaged + frame << QList<qint64>{0, 2 * size};
    QTest::newRow("unknown") << frame + unknown + frame << QList<qint64>{0, 2 * size};
    QTest::newRow("garbage first") << "abc\xFD" + frame << QList<qint64>{4};
    QTest::newRow("garbage between") << frame + "abc" + frame << QList<qint64>{0, size + 3};
    QTest::newRow("cut") << frame + frame.chopped(1) << QList<qint64>{0};
}

void tst_MavlinkScanner::places_areTheGoodFrames()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QList<qint64>, expected);
    for (const qsizetype pieceSize : {0, 1, 7}) {
        MavlinkScanner scanner(*format, MavlinkFraming::Raw);
        QCOMPARE(findAll(scanner, bytes, pieceSize), expected);
    }
}

void tst_MavlinkScanner::places_fromAnOffsetOn()
{
    const qint64 size = small(0).size();
    MavlinkScanner scanner(*format, MavlinkFraming::Raw);
    scanner.append(small(0) + small(1) + small(2) + small(3));
    QCOMPARE(scanner.find(1)->offset, size);
    QCOMPARE(scanner.find(2 * size)->offset, 2 * size);
    QCOMPARE(scanner.find(2 * size + 1)->offset, 3 * size);
    QVERIFY(!scanner.find(3 * size + 1));
}

void tst_MavlinkScanner::times_areThoseBeforeTheFrames()
{
    MavlinkScanner scanner(*format, MavlinkFraming::TimeStamped);
    scanner.append(stamped(small(0), someTimeUs) + stamped(small(1), someTimeUs + 5)
                   + stamped(small(2), ~quint64(0)));
    QCOMPARE(scanner.find(0)->timeUs, std::optional(someTimeUs));
    const auto second = scanner.find(1);
    QCOMPARE(second->offset, small(0).size() + 8);
    QCOMPARE(second->timeUs, std::optional(someTimeUs + 5));
    QCOMPARE(scanner.getLatestTimeUs(), std::optional(someTimeUs));
    QVERIFY(!scanner.find(second->offset + 1)->timeUs);
    QCOMPARE(scanner.getLatestTimeUs(), std::optional(someTimeUs + 5));
}

void tst_MavlinkScanner::times_ofRawStreams_areUnknown()
{
    MavlinkScanner scanner(*format, MavlinkFraming::Raw);
    scanner.append(small(0) + small(1));
    QVERIFY(!scanner.find(1)->timeUs);
    QVERIFY(!scanner.getLatestTimeUs());
}

void tst_MavlinkScanner::damage_anyFlippedByte()
{
    QByteArray bytes;
    QList<qint64> offsets;
    for (quint8 i = 0; i < 20; ++i) {
        offsets.append(bytes.size());
        bytes += stamped(small(i), quint64(someTimeUs + i));
    }
    const qsizetype frameSize = small(0).size() + 8;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        QByteArray damaged = bytes;
        damaged[i] = char(damaged[i] ^ 0x55);
        MavlinkScanner scanner(*format, MavlinkFraming::TimeStamped);
        const QList<qint64> found = findAll(scanner, damaged);
        // Each place is where a frame begins, and not many are missed.
        for (const qint64 offset : found)
            QVERIFY2(offsets.contains(offset), qPrintable(QString::number(i)));
        const bool isTime = i % frameSize < 8;
        QVERIFY2(found.size() >= (isTime ? 20 : 8), qPrintable(QString::number(i)));
    }
}

void tst_MavlinkScanner::framing_isFoundInTheHead()
{
    const auto find
        = [&](const QByteArray &head) { return MavlinkDecoder::findFraming(*format, head); };
    QCOMPARE(find(small(0) + small(1)), MavlinkFraming::Raw);
    QCOMPARE(find(stamped(small(0), someTimeUs) + stamped(small(1), someTimeUs)),
             MavlinkFraming::TimeStamped);
    QCOMPARE(find(stamped(small(0), someTimeUs) + "cut off"), MavlinkFraming::TimeStamped);
    QCOMPARE(find({}), MavlinkFraming::Raw);
}

CORVANE_TEST_MAIN(tst_MavlinkScanner)
#include "tst_mavlinkscanner.moc"
