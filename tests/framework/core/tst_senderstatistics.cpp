#include "senderstatistics.h"
#include "testcase.h"

using namespace corvane::test;
using corvane::SenderStatistics;
using corvane::SenderTable;

class TestSenderStatistics : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void losses_areCounted_data();
    void losses_areCounted();
    void wideNumbers_areCounted_data();
    void wideNumbers_areCounted();
    void table_keepsSendersApart();
    void table_keepsTheOrderOfFirstSight();
};

void TestSenderStatistics::losses_areCounted_data()
{
    QTest::addColumn<QList<int>>("sequence");
    QTest::addColumn<int>("gaps");
    QTest::addColumn<int>("lost");

    QTest::newRow("first of any number") << QList<int>{77} << 0 << 0;
    QTest::newRow("steady") << QList<int>{5, 6, 7} << 0 << 0;
    QTest::newRow("over the end") << QList<int>{254, 255, 0, 1} << 0 << 0;
    QTest::newRow("one lost") << QList<int>{5, 7} << 1 << 1;
    QTest::newRow("two gaps") << QList<int>{5, 7, 10} << 2 << 3;
    QTest::newRow("lost over the end") << QList<int>{254, 2} << 1 << 3;
    QTest::newRow("same number again") << QList<int>{5, 5, 6} << 0 << 0;
    QTest::newRow("one back") << QList<int>{5, 4} << 1 << 254;
}

void TestSenderStatistics::losses_areCounted()
{
    QFETCH(QList<int>, sequence);
    QFETCH(int, gaps);
    QFETCH(int, lost);

    SenderStatistics sender;
    quint64 told = 0;
    for (const int number : sequence)
        told += sender.receive(static_cast<quint8>(number));
    QCOMPARE(sender.frames, quint64(sequence.size()));
    QCOMPARE(sender.sequenceGaps, quint64(gaps));
    QCOMPARE(sender.lost, quint64(lost));
    QCOMPARE(told, quint64(lost));
}

void TestSenderStatistics::wideNumbers_areCounted_data()
{
    QTest::addColumn<QList<quint32>>("sequence");
    QTest::addColumn<quint64>("lost");

    QTest::newRow("beyond a byte") << QList<quint32>{254, 255, 256, 257} << quint64(0);
    QTest::newRow("many lost") << QList<quint32>{10, 100'011} << quint64(100'000);
    QTest::newRow("over the end") << QList<quint32>{0xFFFFFFFE, 0xFFFFFFFF, 0, 2} << quint64(1);
    QTest::newRow("a new start") << QList<quint32>{5'000, 0, 1} << quint64(0);
}

void TestSenderStatistics::wideNumbers_areCounted()
{
    QFETCH(QList<quint32>, sequence);
    QFETCH(quint64, lost);
    SenderStatistics sender(0xFFFFFFFF);
    for (const quint32 number : sequence)
        sender.receive(number);
    QCOMPARE(sender.lost, lost);
}

void TestSenderStatistics::table_keepsSendersApart()
{
    SenderTable table([](quint32 id) { return QStringLiteral("s%1").arg(id); });
    table.get(1).receive(5);
    table.get(2).receive(90);
    table.get(1).receive(6);
    QCOMPARE(table.get(1).frames, 2U);
    QCOMPARE(table.get(2).frames, 1U);
    QCOMPARE(table.get(1).lost, 0U);
    QCOMPARE(table.get(2).lost, 0U);
}

void TestSenderStatistics::table_keepsTheOrderOfFirstSight()
{
    SenderTable table([](quint32 id) { return QStringLiteral("s%1").arg(id); });
    for (const quint32 id : {9U, 1U, 9U, 5U, 1U})
        table.get(id);
    QStringList ids;
    for (const auto &sender : table.getAll())
        ids += sender->id;
    QCOMPARE(ids, QStringList({"s9", "s1", "s5"}));
    QCOMPARE(table.nameOf(4), "s4");
}

CORVANE_TEST_MAIN(TestSenderStatistics)

#include "tst_senderstatistics.moc"
