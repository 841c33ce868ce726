#include "latestmessages.h"
#include "message.h"
#include "messageinfo.h"
#include "testcase.h"
#include "testformat.h"
#include "testsource.h"

#include <QSignalSpy>

using namespace corvane::test;

class tst_latestmessages : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void get_ofEachType_isTheNewest();
    void get_ofUnseenType_isNull();
    void typeSeen_isEmittedOncePerType();
    void references_oneIsHeldOnTheNewestOnly();
    void newMessage_ofManyInAFrame_isTheNewestOfEachType();
    void newMessage_whilePaused_waits();
    void sender_chosen_isTheOnlyOne();
    void sender_changed_showsWhatCameBefore();
    void sender_changedWhilePaused_isShown();
    void sender_ofTypesNotSent_hasNoMessage();
    void sender_beyondTheMost_isKeptOnceChosen();
    void sender_newTypesOfOthers_areNotSeen();
};

namespace {

TestFormat makeFormat()
{
    return TestFormat(QStringLiteral("Demo"),
                      QStringLiteral("Speed\n  value int32\nMode\n  value int32\n"));
}

} // namespace

void tst_latestmessages::get_ofEachType_isTheNewest()
{
    const TestFormat format = makeFormat();
    TestSource source(format);
    const corvane::LatestMessages latest(source);
    const auto sent
        = format.messages(QStringLiteral("Speed{value: 1} Mode{value: 2} Speed{value: 3}"));
    for (const MessageHolder &message : sent)
        source.send(message.get());
    QCOMPARE(latest.get(format.type(QStringLiteral("Speed"))), sent.at(2).get());
    QCOMPARE(latest.get(format.type(QStringLiteral("Mode"))), sent.at(1).get());
}

void tst_latestmessages::get_ofUnseenType_isNull()
{
    const TestFormat format = makeFormat();
    TestSource source(format);
    const corvane::LatestMessages latest(source);
    QVERIFY(latest.get(format.type(QStringLiteral("Mode"))) == nullptr);
}

void tst_latestmessages::typeSeen_isEmittedOncePerType()
{
    const TestFormat format = makeFormat();
    TestSource source(format);
    const corvane::LatestMessages latest(source);
    QList<const MessageInfo *> seen;
    connect(&latest, &corvane::LatestMessages::typeSeen, this,
            [&](const MessageInfo *type) { seen.append(type); });
    source.send(QStringLiteral("Speed{value: 1} Mode{value: 2} Speed{value: 3}"));
    QCOMPARE(seen, (QList<const MessageInfo *>{format.type(QStringLiteral("Speed")),
                                               format.type(QStringLiteral("Mode"))}));
}

void tst_latestmessages::references_oneIsHeldOnTheNewestOnly()
{
    const TestFormat format = makeFormat();
    TestSource source(format);
    const auto sent = format.messages(QStringLiteral("Speed{value: 1} Speed{value: 2}"));
    {
        const corvane::LatestMessages latest(source);
        source.send(sent.at(0).get());
        QCOMPARE(sent.at(0)->getReferenceCount(), 2);
        source.send(sent.at(1).get());
        QCOMPARE(sent.at(0)->getReferenceCount(), 1);
        QCOMPARE(sent.at(1)->getReferenceCount(), 2);
    }
    QCOMPARE(sent.at(1)->getReferenceCount(), 1);
}

void tst_latestmessages::newMessage_ofManyInAFrame_isTheNewestOfEachType()
{
    const TestFormat format = makeFormat();
    TestSource source(format);
    const corvane::LatestMessages latest(source);
    QList<const Message *> handedOn;
    connect(&latest, &MessageSource::newMessage, this,
            [&](const Message *message) { handedOn.append(message); });
    const auto sent
        = format.messages(QStringLiteral("Speed{value: 1} Mode{value: 2} Speed{value: 3}"));
    for (const MessageHolder &message : sent)
        source.send(message.get());
    QVERIFY(handedOn.isEmpty());
    QTRY_COMPARE(handedOn, (QList<const Message *>{sent.at(2).get(), sent.at(1).get()}));
    source.send(sent.at(0).get());
    QTRY_COMPARE(handedOn.size(), 3);
    QCOMPARE(handedOn.constLast(), sent.at(0).get());
}

void tst_latestmessages::newMessage_whilePaused_waits()
{
    const TestFormat format = makeFormat();
    TestSource source(format);
    corvane::LatestMessages latest(source);
    QList<const Message *> handedOn;
    connect(&latest, &MessageSource::newMessage, this,
            [&](const Message *message) { handedOn.append(message); });
    latest.setPaused(true);
    const auto sent = format.messages(QStringLiteral("Speed{value: 1} Speed{value: 3}"));
    source.send(sent.at(0).get());
    source.send(sent.at(1).get());
    QTest::qWait(3 * corvane::LatestMessages::frameMs);
    QVERIFY(handedOn.isEmpty());
    latest.setPaused(false);
    QCOMPARE(handedOn, (QList<const Message *>{sent.at(1).get()}));
}

void tst_latestmessages::sender_chosen_isTheOnlyOne()
{
    const TestFormat format = makeFormat();
    TestSource source(format);
    corvane::LatestMessages latest(source);
    latest.setSender(7);
    const auto sent = format.messages(QStringLiteral("Speed #7 {value: 1} Speed #8 {value: 2}"));
    for (const MessageHolder &message : sent)
        source.send(message.get());
    QCOMPARE(latest.get(format.type(QStringLiteral("Speed"))), sent.at(0).get());
    QList<const Message *> handedOn;
    connect(&latest, &MessageSource::newMessage, this,
            [&](const Message *message) { handedOn.append(message); });
    QTRY_COMPARE(handedOn, (QList<const Message *>{sent.at(0).get()}));
}

void tst_latestmessages::sender_changed_showsWhatCameBefore()
{
    const TestFormat format = makeFormat();
    TestSource source(format);
    corvane::LatestMessages latest(source);
    const MessageInfo *speed = format.type(QStringLiteral("Speed"));
    const auto sent = format.messages(
        QStringLiteral("Speed #7 {value: 1} Speed #8 {value: 2} Speed #7 {value: 3}"));
    for (const MessageHolder &message : sent)
        source.send(message.get());
    QList<const Message *> handedOn;
    connect(&latest, &MessageSource::newMessage, this,
            [&](const Message *message) { handedOn.append(message); });
    const QSignalSpy changed(&latest, &corvane::LatestMessages::senderChanged);
    QCOMPARE(latest.get(speed), sent.at(2).get());
    latest.setSender(8);
    QCOMPARE(latest.get(speed), sent.at(1).get());
    latest.setSender(std::nullopt);
    QCOMPARE(latest.get(speed), sent.at(2).get());
    latest.setSender(std::nullopt);
    QCOMPARE(changed.size(), 2);
    QCOMPARE(handedOn, (QList<const Message *>{sent.at(1).get(), sent.at(2).get()}));
}

void tst_latestmessages::sender_changedWhilePaused_isShown()
{
    const TestFormat format = makeFormat();
    TestSource source(format);
    corvane::LatestMessages latest(source);
    source.send(QStringLiteral("Speed #7 {value: 1}"));
    latest.setPaused(true);
    const QSignalSpy handedOn(&latest, &MessageSource::newMessage);
    latest.setSender(7);
    QCOMPARE(handedOn.size(), 1);
}

void tst_latestmessages::sender_ofTypesNotSent_hasNoMessage()
{
    const TestFormat format = makeFormat();
    TestSource source(format);
    corvane::LatestMessages latest(source);
    source.send(QStringLiteral("Speed #7 {value: 1} Mode #8 {value: 2}"));
    latest.setSender(8);
    QVERIFY(latest.get(format.type(QStringLiteral("Speed"))) == nullptr);
    QVERIFY(latest.get(format.type(QStringLiteral("Mode"))) != nullptr);
    latest.setSender(9);
    QVERIFY(latest.get(format.type(QStringLiteral("Mode"))) == nullptr);
    QTest::qWait(2 * corvane::LatestMessages::frameMs); // nothing of what was new is there any more
}

void tst_latestmessages::sender_beyondTheMost_isKeptOnceChosen()
{
    const TestFormat format = makeFormat();
    TestSource source(format);
    corvane::LatestMessages latest(source);
    const MessageInfo *speed = format.type(QStringLiteral("Speed"));
    for (size_t i = 0; i < corvane::LatestMessages::maximumSenders + 10; ++i)
        source.send(QStringLiteral("Speed #%1 {value: 1}").arg(i));
    latest.setSender(corvane::LatestMessages::maximumSenders - 1);
    QVERIFY(latest.get(speed) != nullptr);
    const quint32 beyond = corvane::LatestMessages::maximumSenders + 5;
    latest.setSender(beyond);
    QVERIFY(latest.get(speed) == nullptr);
    const auto sent = format.messages(QStringLiteral("Speed #%1 {value: 2}").arg(beyond));
    source.send(sent.at(0).get());
    source.send(QStringLiteral("Speed #%1 {value: 3}").arg(beyond + 1));
    QCOMPARE(latest.get(speed), sent.at(0).get());
}

void tst_latestmessages::sender_newTypesOfOthers_areNotSeen()
{
    const TestFormat format = makeFormat();
    TestSource source(format);
    corvane::LatestMessages latest(source);
    int seen = 0;
    connect(&latest, &corvane::LatestMessages::typeSeen, this, [&seen] { ++seen; });
    latest.setSender(7);
    source.send(QStringLiteral("Mode #8 {value: 2}"));
    QCOMPARE(seen, 0);
    latest.setSender(std::nullopt);
    QCOMPARE(seen, 1);
}

CORVANE_TEST_MAIN(tst_latestmessages)
#include "tst_latestmessages.moc"
