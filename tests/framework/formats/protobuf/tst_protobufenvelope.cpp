#include "corvane.h"
#include "decodedmessage.h"
#include "descriptions.h"
#include "message.h"
#include "messageinfo.h"
#include "overlayloader.h"
#include "protobufmessages.h"
#include "testcase.h"

#include <limits>

using namespace corvane;
using namespace corvane::test;

/** Messages wrapped in others, as an overlay says. */
class tst_ProtobufEnvelope : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cases_areTheMainTypes();
    void cases_areDelivered();
    void sequenceAndTime_areTaken();
    void unknownCase_isToldByItsNumber();
    void withoutCase_isUnknown();
    void confidentialCase_hidesItsMessage();
    void laterEnvelope_replacesTheFirst();
    void names_mayHaveTheirPackage();
    void framing_isTakenFromTheOverlay();
    void timeStamp_givesTheTime();
    void outOfRangeTime_isNone();
    void mistake_isExplained_data();
    void mistake_isExplained();
    void recursiveType_isChangedAtEveryLevel();
};

namespace {

QMap<QString, QString> feed()
{
    return {{QStringLiteral("feed.proto"), QStringLiteral(R"(
syntax = "proto3";
package feed;
message Envelope {
  uint64 time_us = 1;
  uint32 sequence = 2;
  Stamp stamp = 3;
  string name = 4;
  double seconds = 5;
  oneof content {
    Load load = 10;
    Processes processes = 11;
  }
  oneof other {
    Load other_load = 12;
    int32 number = 13;
  }
  oneof twice {
    Load first = 14;
    Load second = 15;
  }
}
message Stamp { int64 seconds = 1; int32 nanos = 2; }
message Load { optional double one = 1; }
message Processes { repeated Process busiest = 1; }
message Process { string name = 1; optional double celsius = 2; }
)")}};
}

const char *const usual = R"("timeField": {"field": "time_us", "unit": "us"},
         "envelope": {"oneof": "content", "sequenceField": "sequence"})";

QByteArray overlayOf(const char *members, const char *more = "")
{
    return QByteArray(R"({"format": "Protocol Buffers",)") + more + R"("messages": {"Envelope": {)"
           + members + "}}}";
}

QString load(ProtobufDefinitions &definitions, const QByteArray &overlay)
{
    return loadOverlayText(overlay, QStringLiteral("o.json"), {definitions.getFormat().getInfo()})
        .toString();
}

QStringList mainTypes(ProtobufDefinitions &definitions)
{
    QStringList names;
    for (const auto &message : definitions.getFormat().getInfo()->getData()->messages)
        if (message->isMain())
            names.append(message->getName());
    names.sort();
    return names;
}

} // namespace

void tst_ProtobufEnvelope::cases_areTheMainTypes()
{
    ProtobufDefinitions definitions(feed(), QStringLiteral("feed.Envelope"));
    QCOMPARE(mainTypes(definitions), QStringList{QStringLiteral("Envelope")});
    QCOMPARE(load(definitions, overlayOf(usual)), QString());
    QCOMPARE(mainTypes(definitions),
             (QStringList{QStringLiteral("Load"), QStringLiteral("Processes")}));
}

void tst_ProtobufEnvelope::cases_areDelivered()
{
    ProtobufDefinitions definitions(feed(), QStringLiteral("feed.Envelope"));
    QCOMPARE(load(definitions, overlayOf(usual)), QString());
    ProtobufRun run(definitions.getFormat());
    run.append(framedVarint(definitions.encode(QStringLiteral("load { one: 0.5 }")))
               + framedVarint(definitions.encode(QStringLiteral(
                   "processes { busiest { name: 'a' celsius: 40 } busiest { name: 'b' } }"))));
    run.finish();
    QCOMPARE(run.getMessages(),
             (QStringList{QStringLiteral("Load\n  one: 0.5"),
                          QStringLiteral("Processes\n"
                                         "  busiest[0]\n    name: a\n    celsius: 40\n"
                                         "  busiest[1]\n    name: b\n    celsius: -")}));
    QCOMPARE(run.getTotals().frames, 2U);
    QCOMPARE(run.getTotals().skippedBytes, 0U);
}

void tst_ProtobufEnvelope::sequenceAndTime_areTaken()
{
    ProtobufDefinitions definitions(feed(), QStringLiteral("feed.Envelope"));
    QCOMPARE(load(definitions, overlayOf(usual)), QString());
    ProtobufRun run(definitions.getFormat());
    QList<qint64> times;
    connect(&run.getReception(), &MessageSource::newMessage, this, [&](const Message *message) {
        times.append(static_cast<const DecodedMessage *>(message)->getTimeUs());
    });
    QByteArray stream;
    for (const char *text :
         {"time_us: 1000 sequence: 4294967295 load {}", "time_us: 2000 sequence: 0 load {}",
          "time_us: 3000 sequence: 300 load {}"})
        stream += framedVarint(definitions.encode(QString::fromLatin1(text)));
    run.getDecoder().append(stream, std::nullopt);
    QCOMPARE(run.getDecoder().getNextTimeUs(), std::optional<qint64>(1000));
    run.finish();
    QCOMPARE(times, (QList<qint64>{1000, 2000, 3000}));
    const auto &senders = run.getReception().getSenders().getAll();
    QCOMPARE(senders.size(), 1U);
    QCOMPARE(senders[0]->frames, 3U);
    QCOMPARE(senders[0]->lost, 299U);
    QCOMPARE(run.getEvents(),
             QStringList("Sender stream: 299 messages lost before sequence number 300."));
}

void tst_ProtobufEnvelope::unknownCase_isToldByItsNumber()
{
    ProtobufDefinitions definitions(feed(), QStringLiteral("feed.Envelope"));
    QCOMPARE(load(definitions, overlayOf(usual)), QString());
    ProtobufRun run(definitions.getFormat());
    // Field 99 with a message of two bytes.
    run.append(framedVarint(QByteArray::fromHex("9a06020801")));
    QCOMPARE(run.getTotals().unknownFrames, 1U);
    QCOMPARE(run.getTotals().frames, 0U);
    QCOMPARE(run.getEvents(), QStringList("Unknown message: id 99 from sender stream. Load the "
                                          "definitions that describe this id."));
}

void tst_ProtobufEnvelope::withoutCase_isUnknown()
{
    ProtobufDefinitions definitions(feed(), QStringLiteral("feed.Envelope"));
    QCOMPARE(load(definitions, overlayOf(usual)), QString());
    ProtobufRun run(definitions.getFormat());
    run.append(framedVarint(definitions.encode(QStringLiteral("number: 3"))));
    QCOMPARE(run.getTotals().unknownFrames, 1U);
    QCOMPARE(run.getMessages(), QStringList());
}

void tst_ProtobufEnvelope::confidentialCase_hidesItsMessage()
{
    ProtobufDefinitions definitions(feed(), QStringLiteral("feed.Envelope"));
    QCOMPARE(load(definitions, overlayOf(R"("envelope": {"oneof": "content"},
                                            "fields": {"load": {"confidential": true}})")),
             QString());
    QVERIFY(!Corvane::confidentialInformationDisplayEnabled());
    ProtobufRun run(definitions.getFormat());
    run.append(framedVarint(definitions.encode(QStringLiteral("load { one: 0.5 }"))));
    QCOMPARE(run.getMessages(), QStringList("Load\n  one: (confidential)"));
}

void tst_ProtobufEnvelope::laterEnvelope_replacesTheFirst()
{
    ProtobufDefinitions definitions(feed(), QStringLiteral("feed.Envelope"));
    QCOMPARE(load(definitions, overlayOf(usual)), QString());
    // One without mistakes changes nothing by being loaded again.
    QCOMPARE(load(definitions, overlayOf(usual)), QString());
    QCOMPARE(mainTypes(definitions),
             (QStringList{QStringLiteral("Load"), QStringLiteral("Processes")}));
    QVERIFY(load(definitions, overlayOf(R"("envelope": {"oneof": "other"})")) != QString());
    QCOMPARE(mainTypes(definitions),
             (QStringList{QStringLiteral("Load"), QStringLiteral("Processes")}));
}

void tst_ProtobufEnvelope::names_mayHaveTheirPackage()
{
    ProtobufDefinitions definitions(feed(), QStringLiteral("feed.Envelope"));
    QCOMPARE(load(definitions, QByteArray(R"({"format": "Protocol Buffers", "messages": {)")
                                   + R"("feed.Envelope": {"envelope": {"oneof": "content"}}}})"),
             QString());
    QCOMPARE(mainTypes(definitions),
             (QStringList{QStringLiteral("Load"), QStringLiteral("Processes")}));
}

void tst_ProtobufEnvelope::framing_isTakenFromTheOverlay()
{
    ProtobufDefinitions definitions(feed(), QStringLiteral("feed.Envelope"));
    QCOMPARE(load(definitions, overlayOf(usual, R"("framing": "le32",)")), QString());
    QCOMPARE(definitions.getFormat().getInfo()->getData()->framing, QStringLiteral("le32"));
}

void tst_ProtobufEnvelope::timeStamp_givesTheTime()
{
    ProtobufDefinitions definitions(feed(), QStringLiteral("feed.Envelope"));
    QCOMPARE(load(definitions, overlayOf(R"("timeField": {"field": "stamp", "unit": "s"})")),
             QString());
    ProtobufRun run(definitions.getFormat());
    run.getDecoder().append(
        framedVarint(definitions.encode(QStringLiteral("stamp { seconds: 5 nanos: 7000 }"))),
        std::nullopt);
    QCOMPARE(run.getDecoder().getNextTimeUs(), std::optional<qint64>(5'000'007));
}

void tst_ProtobufEnvelope::outOfRangeTime_isNone()
{
    ProtobufDefinitions definitions(feed(), QStringLiteral("feed.Envelope"));
    for (const char *field : {"time_us", "stamp", "seconds"}) {
        const QByteArray timeField
            = QByteArray(R"("timeField": {"field": ")") + field + R"(", "unit": "s"})";
        QCOMPARE(load(definitions, overlayOf(timeField.constData())), QString());
        ProtobufRun run(definitions.getFormat());
        run.getDecoder().append(
            framedVarint(definitions.encode(QStringLiteral(
                "time_us: 18446744073709551615 stamp { seconds: -9223372036854775808 } "
                "seconds: nan"))),
            std::nullopt);
        QCOMPARE(run.getDecoder().getNextTimeUs(), std::optional<qint64>());
    }
}

void tst_ProtobufEnvelope::mistake_isExplained_data()
{
    QTest::addColumn<QByteArray>("overlay");
    QTest::addColumn<QString>("part");
    QTest::newRow("no such oneof") << overlayOf(R"("envelope": {"oneof": "contents"})")
                                   << R"(has no oneof "contents"; did you mean "content"?)";
    QTest::newRow("oneof missing") << overlayOf(R"("envelope": {})") << R"("oneof" is missing)";
    QTest::newRow("case is no message") << overlayOf(R"("envelope": {"oneof": "other"})")
                                        << R"(the case "number" of "other" cannot be)";
    QTest::newRow("two cases of a type") << overlayOf(R"("envelope": {"oneof": "twice"})")
                                         << R"(the case "second" of "twice" cannot be)";
    QTest::newRow("no such sequence field")
        << overlayOf(R"("envelope": {"oneof": "content", "sequenceField": "count"})")
        << R"(has no field "count")";
    QTest::newRow("sequence field is no integer")
        << overlayOf(R"("envelope": {"oneof": "content", "sequenceField": "name"})")
        << R"("name" cannot count the messages)";
    QTest::newRow("framing") << overlayOf(usual, R"("framing": "le23",)")
                             << R"(there is no framing "le23"; expected one of "varint", "le32")";
    QTest::newRow("time in a sub-message without seconds")
        << overlayOf(R"("timeField": {"field": "load", "unit": "s"})")
        << R"("load" cannot carry the time)";
}

void tst_ProtobufEnvelope::mistake_isExplained()
{
    QFETCH(QByteArray, overlay);
    QFETCH(QString, part);
    ProtobufDefinitions definitions(feed(), QStringLiteral("feed.Envelope"));
    const QString errors = load(definitions, overlay);
    QVERIFY2(errors.contains(part), qPrintable(errors));
    QCOMPARE(mainTypes(definitions), QStringList{QStringLiteral("Envelope")});
}

void tst_ProtobufEnvelope::recursiveType_isChangedAtEveryLevel()
{
    ProtobufDefinitions definitions(
        {{QStringLiteral("a.proto"), QStringLiteral("syntax = \"proto3\"; package p; message A { "
                                                    "int32 secret = 1; A inner = 2; }")}});
    QCOMPARE(load(definitions, R"({"format": "Protocol Buffers", "messages":
                                   {"A": {"fields": {"secret": {"confidential": true}}}}})"),
             QString());
    const auto &messages = definitions.getFormat().getInfo()->getData()->messages;
    QVERIFY(messages.size() > 10);
    for (const auto &message : messages)
        QVERIFY(message->getFieldInfos().at(0)->isConfidential());
}

CORVANE_TEST_MAIN(tst_ProtobufEnvelope)

#include "tst_protobufenvelope.moc"
