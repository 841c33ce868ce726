#include "decodedmessage.h"
#include "formatinfo.h"
#include "mavlinkframes.h"
#include "mavlinkmessage.h"
#include "messageinfo.h"
#include "messagestatistics.h"
#include "overlayloader.h"
#include "testcase.h"

#include <QtEndian>

#include <cmath>
#include <limits>
#include <memory>
#include <optional>

using namespace corvane;
using namespace corvane::test;

namespace {

constexpr qint64 ms = 1000;
constexpr qint64 second = 1000 * ms;
constexpr qint64 arrival = 1'700'000'000 * second;

constexpr const char *dialect = R"(
<messages>
  <message id="1" name="U32"><field type="uint32_t" name="t"/></message>
  <message id="2" name="U64"><field type="uint64_t" name="t"/></message>
  <message id="3" name="I32"><field type="int32_t" name="t"/></message>
  <message id="4" name="FLOAT"><field type="float" name="t"/></message>
  <message id="5" name="DOUBLE"><field type="double" name="t"/></message>
  <message id="6" name="LATE"><field type="uint32_t" name="x"/>
    <extensions/><field type="uint32_t" name="t"/></message>
  <message id="7" name="NONE"><field type="uint32_t" name="x"/></message>
</messages>)";

template <typename Number>
QByteArray bytesOf(Number number)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

} // namespace

/** The time of messages that carry it in a field, as an overlay says. */
class tst_MavlinkTimeField : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void value_data();
    void value();
    void value_ofConfidentialField();
    void value_whereNoneIs();
    void stream_withoutTimes_hasThoseOfItsField();
    void stream_withArrivals_hasThoseOfItsField();
    void stream_withTimeStamps_ignoresTheField();
    void events_happenWhenTheyArrive();
    void silence_isToldByArrivals();

private:
    void load(const QString &message, const QString &unit, bool confidential = false) const;
    QByteArray frame(quint32 id, const QByteArray &payload, quint8 sequence = 0) const;

    DialectFolder folder;
    std::unique_ptr<MavlinkFormat> format;
};

namespace {

/** What a decoder makes of frames that arrive at times of the clock on the wall. */
class Stream
{
public:
    explicit Stream(const MavlinkFormat &format)
        : reception(format.getInfo(), mavlinkSenderName, true, &manager)
        , decoder(format, reception, MavlinkFraming::Automatic)
    {
        need.setMessagesNeeded({format.findType(1)->info});
        QObject::connect(&reception, &MessageSource::newMessage, &reception,
                         [this](const Message *message) {
                             times += static_cast<const DecodedMessage *>(message)->getTimeUs();
                         });
    }

    void append(const QByteArray &bytes, std::optional<qint64> arrivalUs = std::nullopt)
    {
        decoder.append(bytes, arrivalUs);
        while (decoder.step() == StreamDecoder::Step::Advanced) {
        }
    }

    const MessageStatistics &statistics()
    {
        return *reception.getStatistics()->getAllMessageStatistics().constFirst();
    }

    MessageNeedManager manager;
    MessageNeed need{&manager};
    Reception reception;
    MavlinkDecoder decoder;
    QList<qint64> times; ///< Of the messages of the first type.
};

} // namespace

void tst_MavlinkTimeField::init()
{
    format = std::make_unique<MavlinkFormat>();
    QVERIFY(format->load(folder.writeDialect("time.xml", dialect)).isOk());
}

void tst_MavlinkTimeField::load(const QString &message,
                                const QString &unit,
                                bool confidential) const
{
    const QString text
        = QStringLiteral(R"({"format": "MAVLink", "messages": {"%1": {)"
                         R"("timeField": {"field": "t", "unit": "%2"},)"
                         R"("fields": {"t": {"confidential": %3}}}}})")
              .arg(message, unit, confidential ? QStringLiteral("true") : QStringLiteral("false"));
    const auto result = loadOverlayText(text.toUtf8(), "time.json", {format->getInfo()});
    QVERIFY2(result.isOk(), qPrintable(result.toString()));
}

QByteArray tst_MavlinkTimeField::frame(quint32 id, const QByteArray &payload, quint8 sequence) const
{
    return frameVersion2({id, format->findType(id)->checksumExtra, payload, sequence});
}

void tst_MavlinkTimeField::value_data()
{
    QTest::addColumn<quint32>("id");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<std::optional<qint64>>("timeUs");
    const auto row = [](const char *name, quint32 id, const char *unit, const QByteArray &payload,
                        std::optional<qint64> timeUs) {
        QTest::newRow(name) << id << unit << payload << timeUs;
    };
    constexpr auto nothing = std::nullopt;
    constexpr qint64 most = 9'007'199'254'740'991; // 2^53 - 1
    row("us", 1, "us", bytesOf<quint32>(5'000'001), 5'000'001);
    row("ms", 1, "ms", bytesOf<quint32>(5'001), 5'001'000);
    row("s", 1, "s", bytesOf<quint32>(5), 5'000'000);
    row("0", 1, "ms", bytesOf<quint32>(0), 0);
    row("largest in ms", 1, "ms", bytesOf<quint32>(0xffffffff), 4'294'967'295'000);
    row("since 1970", 2, "us", bytesOf<quint64>(arrival), arrival);
    row("as late as there are times", 2, "us", bytesOf<quint64>(most), most);
    row("later", 2, "us", bytesOf<quint64>(most + 1), nothing);
    row("later, in seconds", 2, "s", bytesOf<quint64>(most / second + 1), nothing);
    row("all bits, for unknown", 2, "us", bytesOf<quint64>(~quint64(0)), nothing);
    row("topmost bit", 2, "us", bytesOf<quint64>(quint64(1) << 63U), nothing);
    row("before", 3, "ms", bytesOf<qint32>(-5), -5'000);
    row("float", 4, "s", bytesOf<float>(1.5F), 1'500'000);
    row("float, negative", 4, "ms", bytesOf<float>(-1.5F), -1'500);
    row("float, no number", 4, "s", bytesOf<float>(std::nanf("")), nothing);
    row("float, infinite", 4, "s", bytesOf<float>(std::numeric_limits<float>::infinity()), nothing);
    row("float, huge", 4, "us", bytesOf<float>(1e30F), nothing);
    row("double, rounded", 5, "ms", bytesOf<double>(0.0016), 2);
}

void tst_MavlinkTimeField::value()
{
    QFETCH(quint32, id);
    QFETCH(QString, unit);
    QFETCH(QByteArray, payload);
    QFETCH(std::optional<qint64>, timeUs);
    load(format->findType(id)->info->getName(), unit);
    const FrameMessage message(*format, frame(id, payload));
    QCOMPARE(readOwnTimeUs(message.get()), timeUs);
}

void tst_MavlinkTimeField::value_ofConfidentialField()
{
    load("U32", "ms", true);
    load("FLOAT", "ms", true);
    const FrameMessage integer(*format, frame(1, bytesOf<quint32>(7)));
    const FrameMessage real(*format, frame(4, bytesOf<float>(7.5F)));
    QCOMPARE(integer.textOf("t"), "(confidential)");
    QCOMPARE(readOwnTimeUs(integer.get()), std::optional<qint64>(7000));
    QCOMPARE(readOwnTimeUs(real.get()), std::optional<qint64>(7500));
}

void tst_MavlinkTimeField::value_whereNoneIs()
{
    const FrameMessage without(*format, frame(7, "abcd"));
    QCOMPARE(readOwnTimeUs(without.get()), std::optional<qint64>());
    load("LATE", "ms");
    const FrameMessage absent(
        *format, frameVersion1({6, format->findType(6)->checksumExtra, QByteArray("abcd")}));
    QCOMPARE(absent.textOf("t"), "absent");
    QCOMPARE(readOwnTimeUs(absent.get()), std::optional<qint64>());
}

void tst_MavlinkTimeField::stream_withoutTimes_hasThoseOfItsField()
{
    load("U32", "ms");
    Stream stream(*format);
    for (quint8 i = 0; i < 100; ++i)
        stream.append(frame(1, bytesOf<quint32>(1000 + i * 50U), i));
    QCOMPARE(stream.times.size(), 100);
    QCOMPARE(stream.times.at(2), 1100 * ms);
    QCOMPARE(stream.statistics().getIntervalCountHash(),
             (QHash<long long, unsigned int>{{50, 100}}));
    QVERIFY(stream.statistics().isCurrentlyRegular());
}

void tst_MavlinkTimeField::stream_withArrivals_hasThoseOfItsField()
{
    load("U32", "ms");
    Stream stream(*format);
    // They arrive in tens.
    for (quint8 i = 0; i < 100; ++i)
        stream.append(frame(1, bytesOf<quint32>(1000 + i * 50U), i), arrival + i / 10 * second / 2);
    QCOMPARE(stream.times.at(2), 1100 * ms);
    QCOMPARE(stream.statistics().getIntervalCountHash(),
             (QHash<long long, unsigned int>{{50, 100}}));
    // Where the field says nothing, the arrival does.
    load("U64", "us");
    Stream other(*format);
    other.need.setMessagesNeeded({format->findType(2)->info});
    other.append(frame(2, bytesOf<quint64>(~quint64(0))), arrival);
    QCOMPARE(other.times, QList<qint64>{arrival});
    QCOMPARE(other.statistics().getCountWithUnknownTime(), 0U);
}

void tst_MavlinkTimeField::stream_withTimeStamps_ignoresTheField()
{
    load("U32", "ms");
    Stream stream(*format);
    for (quint8 i = 0; i < 100; ++i)
        stream.append(stamped(frame(1, bytesOf<quint32>(i * 7777U), i),
                              static_cast<quint64>(arrival + i * 20 * ms)));
    QCOMPARE(stream.times.size(), 100);
    QCOMPARE(stream.times.constFirst(), arrival);
    QCOMPARE(stream.statistics().getIntervalCountHash(),
             (QHash<long long, unsigned int>{{20, 100}}));
}

void tst_MavlinkTimeField::events_happenWhenTheyArrive()
{
    load("U32", "ms");
    Stream stream(*format);
    // Each time, one message is lost, and none of the other type, which has no time of its own.
    for (quint8 i = 0; i < 20; ++i) {
        stream.append(frame(1, bytesOf<quint32>(i * 10U), static_cast<quint8>(2 * i)),
                      arrival + i * 10 * ms);
        stream.append(frame(7, "abcd", static_cast<quint8>(2 * i)), arrival + i * 10 * ms);
    }
    stream.reception.flushEvents();
    const auto entries = stream.reception.getEventLog()->getEntries();
    QCOMPARE(entries.size(), 2); // the first one, and the others of that second
    for (const EventLog::Entry &entry : entries)
        QCOMPARE(entry.time.toSecsSinceEpoch(), arrival / second);
    QVERIFY(entries.at(1).event.getMessage().endsWith("18 more in the same second"));
}

void tst_MavlinkTimeField::silence_isToldByArrivals()
{
    load("U32", "ms");
    Stream stream(*format);
    for (quint8 i = 0; i < 50; ++i)
        stream.append(frame(1, bytesOf<quint32>(i * 50U), i), arrival + i * 50 * ms);
    stream.append(frame(7, "abcd", 50), arrival + 4 * second);
    QVERIFY(stream.statistics().isCurrentlyRegular());
    stream.append(frame(7, "abcd", 51), arrival + 5 * second);
    QVERIFY(!stream.statistics().isCurrentlyRegular());
}

CORVANE_TEST_MAIN(tst_MavlinkTimeField)
#include "tst_mavlinktimefield.moc"
