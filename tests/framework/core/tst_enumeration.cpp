#include "enumeration.h"
#include "testcase.h"

using namespace corvane::test;
using corvane::Enumeration;

class TestEnumeration : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void getText_ofValue_data();
    void getText_ofValue();
    void getText_ofBits_data();
    void getText_ofBits();
    void add_taken_changesNothing();
    void entries_keepTheirOrder();
};

void TestEnumeration::getText_ofValue_data()
{
    QTest::addColumn<quint64>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("zero") << quint64(0) << "Zero";
    QTest::newRow("one") << quint64(1) << "One";
    QTest::newRow("negative") << quint64(-1) << "Minus";
    QTest::newRow("largest") << (quint64(1) << 63) << "Top";
    QTest::newRow("no name") << quint64(3) << "";
}

void TestEnumeration::getText_ofValue()
{
    QFETCH(quint64, value);
    QFETCH(QString, text);

    Enumeration names("Names");
    names.add({0, "Zero", {}});
    names.add({1, "One", {}});
    names.add({quint64(-1), "Minus", {}});
    names.add({quint64(1) << 63, "Top", {}});
    QCOMPARE(names.getText(value), text);
}

void TestEnumeration::getText_ofBits_data()
{
    QTest::addColumn<quint64>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("none, with name") << quint64(0) << "Nothing";
    QTest::newRow("one") << quint64(1) << "A";
    QTest::newRow("two") << quint64(3) << "A | B";
    QTest::newRow("top") << ((quint64(1) << 63) | 1) << "A | Top";
    QTest::newRow("several bits of one name") << quint64(12) << "Pair";
    QTest::newRow("part of a name") << quint64(4) << "";
    QTest::newRow("rest") << quint64(0x35) << "A | 0x34";
    QTest::newRow("rest alone") << quint64(0x30) << "";
    QTest::newRow("name for all of it") << quint64(0xFF) << "All";
}

void TestEnumeration::getText_ofBits()
{
    QFETCH(quint64, value);
    QFETCH(QString, text);

    Enumeration names("Bits", true);
    names.add({0, "Nothing", {}});
    names.add({1, "A", {}});
    names.add({2, "B", {}});
    names.add({12, "Pair", {}});
    names.add({0xFF, "All", {}});
    names.add({quint64(1) << 63, "Top", {}});
    QCOMPARE(names.getText(value), text);
}

void TestEnumeration::add_taken_changesNothing()
{
    Enumeration names("Names");
    QVERIFY(names.add({1, "One", "the first"}));
    QVERIFY(!names.add({1, "Uno", {}}));
    QVERIFY(!names.add({2, "One", {}}));

    QCOMPARE(names.getEntries().size(), 1U);
    QVERIFY(names.hasName("One"));
    QVERIFY(!names.hasName("Uno"));
    QCOMPARE(names.getText(1), "One");
    QCOMPARE(names.getText(2), QString());
}

void TestEnumeration::entries_keepTheirOrder()
{
    Enumeration names("Names");
    names.add({5, "Five", {}});
    names.add({1, "One", "the first"});

    QCOMPARE(names.getName(), "Names");
    QVERIFY(!names.isBitMask());
    QCOMPARE(names.getEntries().front().name, "Five");
    QCOMPARE(names.getEntries().back().description, "the first");
    names.setBitMask(true);
    QVERIFY(names.isBitMask());
}

CORVANE_TEST_MAIN(TestEnumeration)

#include "tst_enumeration.moc"
