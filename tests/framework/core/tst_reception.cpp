#include "decodedmessage.h"
#include "messageinfo.h"
#include "messageneed.h"
#include "messageneedmanager.h"
#include "messagestatistics.h"
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
    void damagedFrames_areCountedAndLogged();
    void formatWithoutChecksum_hasNoErrorCount();
    void losses_areLoggedPerSender();
    void discontinuity_isNeitherLossNorInterval();
    void skippedBytes_areCountedAndLogged();
    void events_carryTheirTime();

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
    QCOMPARE(all.size(), 4097);
    QCOMPARE(all.constLast()->getMessageName(), "Demo, other unknown ids");
    QCOMPARE(all.constLast()->getCount(), ids - 4096);
}

void TestReception::damagedFrames_areCountedAndLogged()
{
    Reception reception(format.getInfo(), nameOf, true);
    reception.receiveDamagedFrame(frame("A", 5, 3), "checksum 1, expected 2");

    QCOMPARE(reception.getTotals().crcErrors, std::optional<quint64>(1));
    QCOMPARE(reception.getTotals().frames, 0U);
    QCOMPARE(reception.getStatistics()->getEventCount(CorvaneEvent::CrcError), 1U);
    QCOMPARE(reception.getStatistics()->getAllMessageStatistics().constFirst()->getCount(), 0U);
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
    // The first one ever, and the first one behind the break.
    QCOMPARE(statistics->getCountWithKnownTimeButUnknownInterval(), 2U);
    QCOMPARE(statistics->getLastInterval(), 500ULL);
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

CORVANE_TEST_MAIN(TestReception)

#include "tst_reception.moc"
