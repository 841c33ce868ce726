#include "descriptions.h"
#include "formatinfo.h"
#include "mavlinkframes.h"
#include "messageinfo.h"
#include "messagestatistics.h"
#include "messagestatisticsdata.h"
#include "testcase.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <memory>

using namespace corvane;
using namespace corvane::test;

namespace {

/** What is to be found in a capture, counted by other means. */
struct Expected
{
    MavlinkFraming framing = MavlinkFraming::Raw;
    int frames = 0;
    int types = 0;
    qint64 skippedBytes = 0;
    QStringList damaged; ///< Type names.
    QStringList senders;
};

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/** Real captures with the definitions of all public dialects. */
class tst_MavlinkCaptures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void definitions_all();
    void capture_data();
    void capture();
    void damage_namesTypeSenderAndCause();
    void timeStamps_areMicroseconds();

private:
    static void addRow(const char *file, const Expected &expected);

    std::unique_ptr<MavlinkFormat> format;
};

Q_DECLARE_METATYPE(Expected)

void tst_MavlinkCaptures::initTestCase()
{
    CORVANE_SAMPLE_FILE(definitions, "mavlink/definitions/all.xml");
    format = std::make_unique<MavlinkFormat>();
    QElapsedTimer timer;
    timer.start();
    const auto result = format->load(definitions);
    qInfo("all.xml loaded in %lld ms", static_cast<long long>(timer.elapsed()));
    QVERIFY2(result.isOk(), qPrintable(result.isOk() ? QString() : result.errors[0].toString()));
    QVERIFY(result.warnings.isEmpty());
}

void tst_MavlinkCaptures::definitions_all()
{
    const auto &messages = format->getInfo()->getData()->messages;
    qsizetype fields = 0;
    for (const auto &message : messages)
        for (const FieldInfo *field : message->getFieldInfos())
            fields += field->getParentFieldInfo() == nullptr ? 1 : 0;
    QCOMPARE(messages.size(), size_t(391));
    QCOMPARE(fields, 3037);
}

void tst_MavlinkCaptures::addRow(const char *file, const Expected &expected)
{
    for (const int pieceSize : {1, 7, 4096, 0}) {
        const QString name = QStringLiteral("%1, pieces of %2").arg(QLatin1String(file));
        const QString pieces = pieceSize == 0 ? QStringLiteral("all") : QString::number(pieceSize);
        QTest::newRow(qPrintable(name.arg(pieces)))
            << QString::fromLatin1(file) << pieceSize << expected;
    }
}

void tst_MavlinkCaptures::capture_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("pieceSize");
    QTest::addColumn<Expected>("expected");

    addRow("captures/ardusub-small.tlog",
           {MavlinkFraming::TimeStamped,
            35912,
            46,
            0,
            {"CAMERA_INFORMATION", "VIDEO_STREAM_INFORMATION", "CAMERA_SETTINGS",
             "CAMERA_CAPTURE_STATUS"},
            {"1/1: 32584 frames, 0 gaps, 0 lost", "255/190: 1767 frames, 356 gaps, 6388 lost",
             "1/100: 286 frames, 4 gaps, 4 lost", "1/220: 1011 frames, 263 gaps, 263 lost",
             "1/194: 264 frames, 263 gaps, 1009 lost"}});
    addRow(
        "captures/vtol.tlog",
        {MavlinkFraming::TimeStamped, 23894, 41, 0, {}, {"1/1: 23894 frames, 22 gaps, 1200 lost"}});
    // Ends with a frame that is cut off after 11 bytes.
    addRow("captures/node-mavlink-data.mavlink",
           {MavlinkFraming::Raw, 1476, 24, 11, {}, {"1/1: 1476 frames, 0 gaps, 0 lost"}});
    // Every frame lacks bytes, so that none has a right checksum.
    addRow("malformed/pymavlink-capture.mavlink",
           {MavlinkFraming::TimeStamped, 0, 0, 36764, {}, {}});
}

void tst_MavlinkCaptures::capture()
{
    QFETCH(const QString, file);
    QFETCH(const int, pieceSize);
    QFETCH(const Expected, expected);
    const QString path = sampleFile(QStringLiteral("mavlink/") + file);
    if (path.isEmpty())
        QSKIP("sample data not found");

    DecoderRun run(*format);
    run.append(readAll(path), pieceSize);
    run.finish();

    QCOMPARE(run.getDecoder().getFraming(), expected.framing);
    QCOMPARE(run.getTotals().frames, quint64(expected.frames));
    QCOMPARE(run.getFrames().size(), expected.frames);
    QCOMPARE(run.getTotals().unknownFrames, quint64(0));
    QCOMPARE(run.getTotals().skippedBytes, quint64(expected.skippedBytes));
    QCOMPARE(run.getTotals().bytes, quint64(QFileInfo(path).size()));
    QCOMPARE(run.getSenders(), expected.senders);
    int types = 0;
    QStringList damaged;
    for (const auto &type : run.getReception().getStatistics()->getData()->all) {
        types += type->getCount() > 0 ? 1 : 0;
        for (quint32 i = 0; i < type->getData()->crcErrors; ++i)
            damaged.append(type->getMessageName());
    }
    QCOMPARE(types, expected.types);
    QCOMPARE(damaged, expected.damaged);
    QCOMPARE(*run.getTotals().crcErrors, quint64(expected.damaged.size()));
}

void tst_MavlinkCaptures::damage_namesTypeSenderAndCause()
{
    CORVANE_SAMPLE_FILE(path, "mavlink/captures/ardusub-small.tlog");
    DecoderRun run(*format);
    run.append(readAll(path));
    run.finish();

    const QStringList events = run.getEvents(CorvaneEvent::CrcError);
    const QStringList types{"CAMERA_INFORMATION", "VIDEO_STREAM_INFORMATION", "CAMERA_SETTINGS",
                            "CAMERA_CAPTURE_STATUS"};
    // Found by trying all sizes outside this program.
    const QStringList sizes{"140", "76", "13", "22"};
    QCOMPARE(events.size(), types.size());
    for (qsizetype i = 0; i < events.size(); ++i) {
        QVERIFY2(events[i].contains(types[i] + " from sender 1/100"), qPrintable(events[i]));
        QVERIFY2(events[i].contains("extended with zeros to " + sizes[i] + " bytes"),
                 qPrintable(events[i]));
    }
    QCOMPARE(run.getReception().getSenders().getAll()[2]->crcErrors, quint64(4));
    // The damaged frames are all that is neither a good frame nor skipped: 4 times 8 bytes of
    // time and 12 around payloads of 139, 75, 5 and 16.
    QCOMPARE(run.getDoubtfulBytes(), qint64(4 * 20 + 139 + 75 + 5 + 16));
}

void tst_MavlinkCaptures::timeStamps_areMicroseconds()
{
    CORVANE_SAMPLE_FILE(path, "mavlink/captures/ardusub-small.tlog");
    DecoderRun run(*format);
    const QByteArray bytes = readAll(path);
    run.getDecoder().append(bytes, std::nullopt);
    QCOMPARE(run.getDecoder().step(), StreamDecoder::Step::Advanced);
    const auto first = run.getDecoder().getNextTimeUs();
    qint64 last = 0;
    do {
        last = run.getDecoder().getNextTimeUs().value_or(last);
    } while (run.getDecoder().step() == StreamDecoder::Step::Advanced);
    QVERIFY(first.has_value());
    QCOMPARE(qRound(static_cast<double>(last - *first) / 1e5), 2634);
}

CORVANE_TEST_MAIN(tst_MavlinkCaptures)
#include "tst_mavlinkcaptures.moc"
