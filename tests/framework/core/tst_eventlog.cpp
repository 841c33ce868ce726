#include "eventlog.h"
#include "testcase.h"

using namespace corvane::test;

namespace {

constexpr int limit = 20'000;

EventLog::Entry entry(int number)
{
    return {QDateTime::fromMSecsSinceEpoch(number, Qt::UTC),
            CorvaneEvent(CorvaneEvent::LostBytes, QString::number(number))};
}

QStringList textsOf(const QList<EventLog::Entry> &entries)
{
    QStringList texts;
    for (const EventLog::Entry &each : entries)
        texts += each.event.getMessage();
    return texts;
}

/** A table that shows a log as its signals tell it to, as a view does. */
class Follower : public QObject
{
    Q_OBJECT

public:
    explicit Follower(const EventLog &log)
    {
        // By name, as the widgets connect.
        connect(&log, SIGNAL(newEntry(EventLog::Entry)), SLOT(append(EventLog::Entry)));
        connect(&log, SIGNAL(cleared()), SLOT(clear()));
    }

    QStringList texts;
    int clearings = 0;

private Q_SLOTS:

    void append(EventLog::Entry added) { texts += added.event.getMessage(); }

    void clear()
    {
        texts.clear();
        ++clearings;
    }
};

} // namespace

class TestEventLog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void event_isAValue();
    void entries_areOldestFirst();
    void newEntry_comesWithTheEntryInTheLog();
    void clear_emptiesAndTells();
    void limit_isReached();
    void limit_dropsTheOlderHalfAndSaysSo();
    void limit_reachedAgain_dropsAgain();
};

void TestEventLog::event_isAValue()
{
    const CorvaneEvent event(CorvaneEvent::CrcError, "damaged");
    CorvaneEvent copy = event;
    QCOMPARE(copy.getMessage(), "damaged");
    QCOMPARE(static_cast<int>(copy.getType()), 2);
    copy = CorvaneEvent(CorvaneEvent::Other, QString());
    QCOMPARE(copy.getType(), CorvaneEvent::Other);
    QCOMPARE(copy.getMessage(), QString());
    QCOMPARE(event.getMessage(), "damaged");
}

void TestEventLog::entries_areOldestFirst()
{
    EventLog log;
    QVERIFY(log.getEntries().isEmpty());
    for (int i = 1; i <= 3; ++i)
        log.addEntry(entry(i));
    QCOMPARE(textsOf(log.getEntries()), QStringList({"1", "2", "3"}));
    QCOMPARE(log.getEntries().constLast().time.toMSecsSinceEpoch(), 3);
}

void TestEventLog::newEntry_comesWithTheEntryInTheLog()
{
    EventLog log;
    const Follower follower(log);
    QList<qsizetype> sizes;
    connect(&log, &EventLog::newEntry, this,
            [&](const EventLog::Entry &) { sizes += log.getEntries().size(); });
    log.addEntry(entry(1));
    log.addEntry(entry(2));
    QCOMPARE(follower.texts, QStringList({"1", "2"}));
    QCOMPARE(sizes, QList<qsizetype>({1, 2}));
}

void TestEventLog::clear_emptiesAndTells()
{
    EventLog log;
    const Follower follower(log);
    log.addEntry(entry(1));
    log.clear();
    QVERIFY(log.getEntries().isEmpty());
    QCOMPARE(follower.clearings, 1);
    log.addEntry(entry(2));
    QCOMPARE(follower.texts, QStringList({"2"}));
}

void TestEventLog::limit_isReached()
{
    EventLog log;
    const Follower follower(log);
    for (int i = 0; i < limit; ++i)
        log.addEntry(entry(i));
    QCOMPARE(log.getEntries().size(), limit);
    QCOMPARE(follower.clearings, 0);
    QCOMPARE(textsOf(log.getEntries()).constFirst(), "0");
}

void TestEventLog::limit_dropsTheOlderHalfAndSaysSo()
{
    EventLog log;
    const Follower follower(log);
    for (int i = 0; i < limit + 1; ++i)
        log.addEntry(entry(i));

    const QStringList texts = textsOf(log.getEntries());
    QCOMPARE(texts.size(), limit / 2 + 2);
    QCOMPARE(texts.at(0), "10000 older entries were dropped: the log is full.");
    QCOMPARE(texts.at(1), "10000");
    QCOMPARE(texts.constLast(), "20000");
    QCOMPARE(log.getEntries().constFirst().event.getType(), CorvaneEvent::Other);
    QCOMPARE(log.getEntries().constFirst().time.toMSecsSinceEpoch(), 10'000);
    QCOMPARE(follower.clearings, 1);
    QCOMPARE(follower.texts, texts);
}

void TestEventLog::limit_reachedAgain_dropsAgain()
{
    EventLog log;
    const Follower follower(log);
    for (int i = 0; i < 2 * limit; ++i)
        log.addEntry(entry(i));

    const QStringList texts = textsOf(log.getEntries());
    QVERIFY(texts.size() <= limit);
    QVERIFY(texts.at(0).contains("dropped"));
    QCOMPARE(texts.filter("dropped").size(), 1);
    QCOMPARE(texts.constLast(), QString::number(2 * limit - 1));
    QVERIFY(follower.clearings >= 2);
    QCOMPARE(follower.texts, texts);
}

CORVANE_TEST_MAIN(TestEventLog)

#include "tst_eventlog.moc"
