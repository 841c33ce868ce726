#include "decodedmessage.h"
#include "messageinfo.h"
#include "messageneed.h"
#include "messageneedmanager.h"
#include "messagestatistics.h"
#include "messagestatisticsdata.h"
#include "reception.h"
#include "testcase.h"
#include "testformat.h"
#include "testmessage.h"

#include <QSignalSpy>

using namespace corvane::test;
using corvane::FrameHeader;
using corvane::Reception;

namespace {

constexpr qint64 noTime = corvane::DecodedMessage::unknownTime;

QString nameOf(quint32 senderId)
{
    return QStringLiteral("%1/1").arg(senderId);
}

} // namespace

class TestReception : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void goodFrames_areCounted();
    void need_isTold_butEverythingCounted();
    void needs_ofOtherManager();
    void deliver_handsOnAndLetsGo();
    void deliver_keptMessageStays();
    void unknownFrames_areCountedAndLogged();
    void unknownFrames_useUpSequenceNumbers();
    void unknownFrames_ofTooManyIds_shareStatistics();
    void unknownFrames_ofTooManySenders_haveNoIntervals();
    void damagedFrames_areCountedAndLogged();
    void formatWithoutChecksum_hasNoErrorCount();
    void losses_areLoggedPerSender();
    void discontinuity_isNeitherLossNorInterval();
    void skippedBytes_areCountedAndLogged();
    void events_carryTheirTime();
    void damage_isCountedBySenderAndClaimedType();
    void damage_makesFewSenders();
    void equalEvents_areGatheredBySecond();
    void gathering_endsByItself();
    void gathering_ofTooManyKinds_isOfOne();
    void gathering_withoutTimes_goesByTheClockOnTheWall();

private:
    FrameHeader frame(const char *type, quint8 sequence = 0, quint32 senderId = 1) const
    {
        return {format.type(QLatin1String(type)), 7, senderId, sequence, 1'500'000};
    }

    /** A message with its creator's reference. */
    const Message *newMessage(const char *type) const
    {
        const auto content = std::make_shared<MessageContent>();
        content->info = format.type(QLatin1String(type));
        return new TestMessage(content);
    }

    static QStringList logOf(Reception &reception)
    {
        reception.flushEvents();
        QStringList lines;
        for (const auto &entry : reception.getEventLog()->getEntries())
            lines += entry.event.getMessage();
        return lines;
    }

    const TestFormat format{"Demo", "A as \"Type A\"\n x int8\nB\n x int8\n"};
};

void TestReception::goodFrames_areCounted()
{
    Reception reception(format.getInfo(), nameOf, true);
    reception.countBytes(20);
    reception.receiveFrame(frame("A", 0));
    reception.receiveFrame(frame("B", 1));
    reception.receiveFrame(frame("A", 2));

    QCOMPARE(reception.getFormat(), format.getInfo());
    QCOMPARE(reception.getTotals().bytes, 20U);
    QCOMPARE(reception.getTotals().frames, 3U);
    QCOMPARE(reception.getTotals().crcErrors, std::optional<quint64>(0));
    const auto all = reception.getStatistics()->getAllMessageStatistics();
    QCOMPARE(all.size(), 2);
    QCOMPARE(all.at(0)->getMessageName(), "Type A");
    QCOMPARE(all.at(0)->getCount(), 2U);
    QCOMPARE(all.at(1)->getCount(), 1U);
    QVERIFY(logOf(reception).isEmpty());
}

void TestReception::need_isTold_butEverythingCounted()
{
    Reception reception(format.getInfo(), nameOf, true);
    MessageNeed need(nullptr);
    QVERIFY(!reception.receiveFrame(frame("A", 0)));
    need.setMessageNeeded(format.type("A"));
    QVERIFY(reception.receiveFrame(frame("A", 1)));
    QVERIFY(!reception.receiveFrame(frame("B", 2)));
    need.clearMessagesNeeded(true);
    QVERIFY(!reception.receiveFrame(frame("A", 3)));
    QCOMPARE(reception.getTotals().frames, 4U);
}

void TestReception::needs_ofOtherManager()
{
    MessageNeedManager manager;
    Reception reception(format.getInfo(), nameOf, true, &manager);
    MessageNeed processWide(nullptr);
    processWide.setMessageNeeded(format.type("A"));
    MessageNeed own(&manager);
    own.setMessageNeeded(format.type("B"));
    QVERIFY(!reception.receiveFrame(frame("A", 0)));
    QVERIFY(reception.receiveFrame(frame("B", 1)));
}

void TestReception::deliver_handsOnAndLetsGo()
{
    Reception reception(format.getInfo(), nameOf, true);
    const Message *seen = nullptr;
    int references = 0;
    connect(&reception, &MessageSource::newMessage, this, [&](const Message *message) {
        seen = message;
        references = message->getReferenceCount();
    });

    const Message *message = newMessage("A");
    reception.deliver(message);
    QCOMPARE(seen, message);
    QCOMPARE(references, 1);
}

void TestReception::deliver_keptMessageStays()
{
    Reception reception(format.getInfo(), nameOf, true);
    MessageHolder kept;
    connect(&reception, &MessageSource::newMessage, this,
            [&](const Message *message) { kept = MessageHolder(message); });

    reception.deliver(newMessage("A"));
    QCOMPARE(kept->getReferenceCount(), 1);
    QCOMPARE(kept->getInfo(), format.type("A"));
}

void TestReception::unknownFrames_areCountedAndLogged()
{
    Reception reception(format.getInfo(), nameOf, true);
    reception.receiveUnknownFrame({nullptr, 99, 3, 0, noTime});
    reception.receiveUnknownFrame({nullptr, 99, 4, 0, noTime});
    reception.receiveUnknownFrame({nullptr, 98, 3, 0, noTime});

    QCOMPARE(reception.getTotals().unknownFrames, 3U);
    QCOMPARE(reception.getTotals().frames, 0U);
    QCOMPARE(reception.getStatistics()->getEventCount(CorvaneEvent::UnknownMessage), 3U);
    const auto all = reception.getStatistics()->getAllMessageStatistics();
    QCOMPARE(all.size(), 2);
    QCOMPARE(all.at(0)->getMessageName(), "Demo 99");
    QCOMPARE(all.at(0)->getMessageInfo(), nullptr);
    QCOMPARE(all.at(0)->getFormatInfo(), format.getInfo());
    QCOMPARE(all.at(0)->getCount(), 2U);
    QVERIFY(logOf(reception).constFirst().contains("id 99 from sender 3/1"));
}

void TestReception::unknownFrames_useUpSequenceNumbers()
{
    Reception reception(format.getInfo(), nameOf, true);
    reception.receiveFrame(frame("A", 5));
    reception.receiveUnknownFrame({nullptr, 99, 1, 6, noTime});
    reception.receiveFrame(frame("A", 7));
    reception.receiveUnknownFrame({nullptr, 99, 2, 200, noTime});

    const auto &senders = reception.getSenders().getAll();
    QCOMPARE(senders.size(), 1U); // one that only sent what cannot be checked is no sender
    QCOMPARE(senders.at(0)->frames, 2U);
    QCOMPARE(senders.at(0)->lost, 0U);

    reception.receiveUnknownFrame({nullptr, 99, 1, 10, noTime});
    QCOMPARE(senders.at(0)->sequenceGaps, 1U);
    QCOMPARE(senders.at(0)->lost, 2U);
}

void TestReception::unknownFrames_ofTooManyIds_shareStatistics()
{
    Reception reception(format.getInfo(), nameOf, true);
    constexpr quint32 ids = 5000;
    for (quint32 id = 0; id < ids; ++id)
        reception.receiveUnknownFrame({nullptr, id, 1, 0, noTime});
    const auto all = reception.getStatistics()->getAllMessageStatistics();
    QCOMPARE(all.size(), 257);
    QCOMPARE(all.constLast()->getMessageName(), "Demo, other unknown ids");
    QCOMPARE(all.constLast()->getCount(), ids - 256);
}

void TestReception::unknownFrames_ofTooManySenders_haveNoIntervals()
{
    Reception reception(format.getInfo(), nameOf, true);
    constexpr quint32 senders = 40;
    constexpr quint32 ids = 10;
    for (qint64 timeUs : {1'000'000, 2'000'000})
        for (quint32 id = 0; id < ids; ++id)
            for (quint32 sender = 0; sender < senders; ++sender)
                reception.receiveUnknownFrame({nullptr, id, sender, std::nullopt, timeUs});
    reception.receiveFrame({format.type("A"), 7, 1, 0, 3'000'000});
    reception.receiveFrame({format.type("A"), 7, 1, 1, 4'000'000});

    quint64 intervals = 0;
    const auto all = reception.getStatistics()->getAllMessageStatistics();
    for (const MessageStatistics *statistics : all) {
        const quint32 expected = statistics->getMessageInfo() != nullptr ? 2 : 2 * senders;
        QCOMPARE(statistics->getCount(), expected);
        for (const unsigned int count : statistics->getIntervalCountHash())
            intervals += count;
    }
    QCOMPARE(intervals, 64U + 1U); // a described type has room all the same
}

void TestReception::damagedFrames_areCountedAndLogged()
{
    Reception reception(format.getInfo(), nameOf, true);
    reception.receiveDamagedFrame(frame("A", 5, 3), "checksum 1, expected 2");

    QCOMPARE(reception.getTotals().crcErrors, std::optional<quint64>(1));
    QCOMPARE(reception.getTotals().frames, 0U);
    QCOMPARE(reception.getStatistics()->getEventCount(CorvaneEvent::CrcError), 1U);
    QCOMPARE(reception.getStatistics()->getData()->all.front()->getCount(), 0U);
    QVERIFY(reception.getStatistics()->getAllMessageStatistics().isEmpty());
    QCOMPARE(reception.getSenders().getAll().front()->crcErrors, 1U);
    QCOMPARE(reception.getSenders().getAll().front()->frames, 0U);
    QCOMPARE(logOf(reception),
             QStringList({"CRC error: A from sender 3/1: checksum 1, expected 2"}));
}

void TestReception::formatWithoutChecksum_hasNoErrorCount()
{
    const Reception reception(format.getInfo(), nameOf, false);
    QVERIFY(!reception.getTotals().crcErrors.has_value());
}

void TestReception::losses_areLoggedPerSender()
{
    Reception reception(format.getInfo(), nameOf, true);
    reception.receiveFrame(frame("A", 10, 1));
    reception.receiveFrame(frame("A", 200, 2));
    reception.receiveFrame(frame("A", 13, 1));
    reception.receiveFrame(frame("A", 201, 2));

    QCOMPARE(reception.getStatistics()->getEventCount(CorvaneEvent::SequenceGap), 1U);
    QCOMPARE(logOf(reception),
             QStringList({"Sender 1/1: 2 messages lost before sequence number 13."}));
    QCOMPARE(reception.getSenders().getAll().at(0)->lost, 2U);
    QCOMPARE(reception.getSenders().getAll().at(1)->lost, 0U);
}

void TestReception::discontinuity_isNeitherLossNorInterval()
{
    Reception reception(format.getInfo(), nameOf, true);
    const auto receive = [&](quint8 sequence, quint32 sender, qint64 timeUs) {
        FrameHeader header = frame("A", sequence, sender);
        header.timeUs = timeUs;
        reception.receiveFrame(header);
    };
    receive(10, 1, 1'000'000);
    receive(11, 1, 2'000'000);
    receive(77, 2, 3'000'000);
    reception.noteDiscontinuity();
    receive(100, 1, 9'000'000);
    receive(7, 2, 9'500'000);

    QCOMPARE(logOf(reception), QStringList());
    const MessageStatistics *statistics
        = reception.getStatistics()->getAllMessageStatistics().at(0);
    QCOMPARE(statistics->getCount(), 5U);
    // Of each sender the first one ever, and the first one behind the break.
    QCOMPARE(statistics->getCountWithKnownTimeButUnknownInterval(), 4U);
    QCOMPARE(statistics->getIntervalCountHash(), (QHash<long long, unsigned int>{{1000, 1}}));
    receive(9, 2, 10'000'000);
    QCOMPARE(logOf(reception),
             QStringList({"Sender 2/1: 1 messages lost before sequence number 9."}));
}

void TestReception::skippedBytes_areCountedAndLogged()
{
    Reception reception(format.getInfo(), nameOf, true);
    reception.skipBytes(100, 7, noTime);
    reception.skipBytes(200, 3, noTime);
    QCOMPARE(reception.getTotals().skippedBytes, 10U);
    QCOMPARE(reception.getStatistics()->getEventCount(CorvaneEvent::LostBytes), 2U);
    QCOMPARE(logOf(reception).constFirst(), "7 bytes from offset 100 belong to no frame.");
}

void TestReception::events_carryTheirTime()
{
    Reception reception(format.getInfo(), nameOf, true);
    reception.addEvent(CorvaneEvent::SourceOpened, "opened", 1'500'000);
    reception.addEvent(CorvaneEvent::SourceClosed, "closed", noTime);
    const auto entries = reception.getEventLog()->getEntries();
    QCOMPARE(entries.at(0).time, QDateTime::fromMSecsSinceEpoch(1500, Qt::UTC));
    QVERIFY(!entries.at(1).time.isValid());
    QCOMPARE(entries.at(1).event.getType(), CorvaneEvent::SourceClosed);
}

void TestReception::damage_isCountedBySenderAndClaimedType()
{
    Reception reception(format.getInfo(), nameOf, true);
    reception.receiveDamagedFrame(frame("A", 0, 1), "one");
    reception.receiveDamagedFrame(frame("B", 0, 1), "two");
    reception.receiveDamagedFrame(frame("A", 0, 2), "three");
    reception.receiveDamagedFrame(frame("A", 0, 1), "four");
    const auto &senders = reception.getSenders().getAll();
    QCOMPARE(senders.at(0)->crcErrors, 3U);
    const QHash<const MessageInfo *, quint64> expected{{format.type("A"), 2},
                                                       {format.type("B"), 1}};
    QCOMPARE(senders.at(0)->crcErrorsByType, expected);
    QCOMPARE(senders.at(1)->crcErrorsByType.value(format.type("A")), 1U);
}

void TestReception::damage_makesFewSenders()
{
    Reception reception(format.getInfo(), nameOf, true);
    for (quint32 sender = 0; sender < 1000; ++sender)
        reception.receiveDamagedFrame(frame("A", 0, sender), "noise");
    QCOMPARE(reception.getTotals().crcErrors, std::optional<quint64>(1000));
    QCOMPARE(reception.getSenders().getAll().size(), 16U);
    reception.receiveFrame(frame("A", 0, 999));
    reception.receiveDamagedFrame(frame("A", 0, 999), "of one that is known");
    QCOMPARE(reception.getSenders().getAll().size(), 17U);
    QCOMPARE(reception.getSenders().getAll().back()->crcErrors, 1U);
}

void TestReception::equalEvents_areGatheredBySecond()
{
    Reception reception(format.getInfo(), nameOf, true);
    const QSignalSpy entries(reception.getEventLog(), &EventLog::newEntry);
    FrameHeader damaged = frame("A");
    for (int i = 0; i < 2000; ++i) {
        damaged.timeUs = 5'000'000 + i * 500; // all within one second
        reception.receiveDamagedFrame(damaged, QStringLiteral("number %1").arg(i));
    }
    QCOMPARE(entries.size(), 1);
    damaged.senderId = 2;
    reception.receiveDamagedFrame(damaged, "of another sender");
    QCOMPARE(entries.size(), 2);
    damaged.timeUs = 6'000'000;
    reception.receiveDamagedFrame(damaged, "a second later");
    QCOMPARE(logOf(reception),
             (QStringList{"CRC error: A from sender 1/1: number 0",
                          "CRC error: A from sender 2/1: of another sender",
                          "CRC error: A from sender 1/1: 1999 more in the same second",
                          "CRC error: A from sender 2/1: a second later"}));
    const auto summary = reception.getEventLog()->getEntries().at(2);
    QCOMPARE(summary.time, QDateTime::fromMSecsSinceEpoch(5999, Qt::UTC));
    QCOMPARE(summary.event.getType(), CorvaneEvent::CrcError);
    QCOMPARE(reception.getStatistics()->getEventCount(CorvaneEvent::CrcError), 2002U);
    // A clock that was set back begins a new second.
    damaged.timeUs = 1'000'000;
    reception.receiveDamagedFrame(damaged, "earlier");
    QCOMPARE(logOf(reception).constLast(), "CRC error: A from sender 2/1: earlier");
}

void TestReception::gathering_endsByItself()
{
    Reception reception(format.getInfo(), nameOf, true);
    reception.skipBytes(0, 1, 1'500'000);
    reception.skipBytes(5, 1, 1'600'000);
    QCOMPARE(reception.getEventLog()->getEntries().size(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(reception.getEventLog()->getEntries().size(), 2, 3000);
    QCOMPARE(reception.getEventLog()->getEntries().constLast().event.getMessage(),
             "Bytes that belong to no frame: 1 more in the same second");
}

void TestReception::gathering_ofTooManyKinds_isOfOne()
{
    Reception reception(format.getInfo(), nameOf, true);
    for (quint32 id = 0; id < 5000; ++id)
        reception.receiveUnknownFrame({nullptr, id, 1, 0, 1'500'000});
    reception.skipBytes(0, 1, 1'500'000); // another sort is not among them
    const QStringList log = logOf(reception);
    QCOMPARE(log.size(), 64 + 1 + 1 + 1);
    QVERIFY(log.at(64).contains("id 64 "));
    QCOMPARE(log.at(65), "1 bytes from offset 0 belong to no frame.");
    QCOMPARE(log.at(66), "Unknown messages of various ids: 4935 more in the same second");
    QCOMPARE(reception.getStatistics()->getEventCount(CorvaneEvent::UnknownMessage), 5000U);
}

void TestReception::gathering_withoutTimes_goesByTheClockOnTheWall()
{
    Reception reception(format.getInfo(), nameOf, true);
    reception.skipBytes(0, 1, noTime);
    reception.skipBytes(5, 1, noTime);
    QCOMPARE(reception.getEventLog()->getEntries().size(), 1);
    QTest::qSleep(1050);
    reception.skipBytes(9, 1, noTime);
    const auto entries = reception.getEventLog()->getEntries();
    QCOMPARE(entries.size(), 3);
    QVERIFY(!entries.at(1).time.isValid());
    QCOMPARE(entries.at(2).event.getMessage(), "1 bytes from offset 9 belong to no frame.");
}

CORVANE_TEST_MAIN(TestReception)

#include "tst_reception.moc"
