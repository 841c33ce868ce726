#include "latestmessages.h"
#include "message.h"
#include "messageinfo.h"
#include "testcase.h"
#include "testformat.h"
#include "testsource.h"

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

CORVANE_TEST_MAIN(tst_latestmessages)
#include "tst_latestmessages.moc"
