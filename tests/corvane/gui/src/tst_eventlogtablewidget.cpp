#include "echotranslator.h"
#include "eventlogtablewidget.h"
#include "metaobjects.h"
#include "testcase.h"

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>

#include <memory>

using namespace corvane::test;

namespace {

enum Column {
    TimeColumn,
    MessageColumn
};

EventLog::Entry entry(const QString &message, const QDateTime &time = {})
{
    return {time, CorvaneEvent(CorvaneEvent::Other, message)};
}

QStringList messages(const QTableWidget &table)
{
    QStringList texts;
    for (int row = 0; row < table.rowCount(); ++row)
        texts += table.item(row, MessageColumn)->text();
    return texts;
}

} // namespace

class TestEventLogTableWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresTwoSlots();
    void showsTimeAndMessage();
    void cellsAreThoseOfAnyTable();
    void showsTheEntriesThatAreThere();
    void followsTheLog();
    void keepsItsColumnsWhenTheLogIsCleared();
    void showsNothingOfANullLog();
    void addsASecondLogBelow();
    void letsNothingBeSelectedOrEdited();
    void translatesInItsContext();
};

void TestEventLogTableWidget::declaresTwoSlots()
{
    const QMetaObject &metaObject = EventLogTableWidget::staticMetaObject;
    QCOMPARE(ownMethods(metaObject),
             (QStringList{"slot addEntry(EventLog::Entry)", "slot clear()"}));
    QCOMPARE(metaObject.superClass(), &QTableWidget::staticMetaObject);
    QCOMPARE(metaObject.method(metaObject.methodOffset()).parameterMetaType(0),
             QMetaType::fromType<EventLog::Entry>());
}

void TestEventLogTableWidget::showsTimeAndMessage()
{
    EventLogTableWidget table(nullptr);
    QCOMPARE(table.columnCount(), 2);
    QCOMPARE(table.horizontalHeaderItem(0)->text(), "Time");
    QCOMPARE(table.horizontalHeaderItem(1)->text(), "Message");
    const QDateTime time({2026, 3, 4}, {5, 6, 7, 890}, Qt::UTC);
    table.addEntry(entry("It rains.", time));
    table.addEntry(entry("It still rains."));
    QCOMPARE(table.item(0, TimeColumn)->text(), "2026-03-04T05:06:07Z");
    QCOMPARE(table.item(0, MessageColumn)->text(), "It rains.");
    QCOMPARE(table.item(1, TimeColumn)->text(), "N/A");
    for (int row = 0; row < 2; ++row)
        for (int column = 0; column < 2; ++column)
            QCOMPARE(table.item(row, column)->flags(), Qt::ItemIsEnabled);
}

void TestEventLogTableWidget::cellsAreThoseOfAnyTable()
{
    EventLogTableWidget table(nullptr);
    table.addEntry(entry("B"));
    table.addEntry(entry("A"));
    QTableWidgetItem *cell = table.item(0, MessageColumn);
    const std::unique_ptr<QTableWidgetItem> copy(cell->clone());
    QCOMPARE(copy->text(), "B");
    QCOMPARE(copy->flags(), Qt::ItemIsEnabled);
    table.sortItems(MessageColumn);
    QCOMPARE(messages(table), QStringList({"A", "B"}));
    cell->setText("Seen");
    cell->setToolTip("By the night watch");
    QCOMPARE(messages(table), QStringList({"A", "Seen"}));
    QCOMPARE(cell->toolTip(), "By the night watch");
    QCOMPARE(copy->toolTip(), QString());
}

void TestEventLogTableWidget::showsTheEntriesThatAreThere()
{
    EventLog log;
    log.addEntry(entry("one"));
    log.addEntry(entry("two"));
    EventLogTableWidget table(&log);
    log.addEntry(entry("three"));
    QCOMPARE(messages(table), (QStringList{"one", "two", "three"}));
}

void TestEventLogTableWidget::followsTheLog()
{
    EventLog log;
    EventLogTableWidget table(&log);
    for (int i = 0; i < 300; ++i)
        log.addEntry(entry(QString::number(i)));
    QCOMPARE(table.rowCount(), 300);
    QCOMPARE(table.item(299, MessageColumn)->text(), "299");
    QCOMPARE(table.verticalScrollBar()->value(), 0);
}

void TestEventLogTableWidget::keepsItsColumnsWhenTheLogIsCleared()
{
    EventLog log;
    EventLogTableWidget table(&log);
    log.addEntry(entry("one"));
    log.addEntry(entry("two"));
    log.clear();
    QCOMPARE(table.rowCount(), 0);
    QCOMPARE(table.columnCount(), 2);
    QCOMPARE(table.horizontalHeaderItem(1)->text(), "Message");
    log.addEntry(entry("three"));
    QCOMPARE(messages(table), QStringList{"three"});
}

void TestEventLogTableWidget::showsNothingOfANullLog()
{
    EventLog log;
    log.addEntry(entry("one"));
    EventLogTableWidget table(nullptr);
    QCOMPARE(table.rowCount(), 0);
    table.setEventLog(&log);
    table.setEventLog(nullptr);
    QCOMPARE(messages(table), QStringList{"one"});
}

void TestEventLogTableWidget::addsASecondLogBelow()
{
    EventLog first;
    EventLog second;
    first.addEntry(entry("first"));
    second.addEntry(entry("second"));
    EventLogTableWidget table(&first);
    table.setEventLog(&second);
    first.addEntry(entry("first again"));
    QCOMPARE(messages(table), (QStringList{"first", "second", "first again"}));
    first.clear();
    QCOMPARE(table.rowCount(), 0);
    // The same log a second time is connected twice.
    table.setEventLog(&second);
    second.addEntry(entry("twice"));
    QCOMPARE(messages(table), (QStringList{"second", "twice", "twice"}));
}

void TestEventLogTableWidget::letsNothingBeSelectedOrEdited()
{
    EventLogTableWidget table(nullptr);
    table.addEntry(entry("one"));
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    const QPoint cell = table.visualItemRect(table.item(0, MessageColumn)).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, cell);
    QTest::keyClick(&table, Qt::Key_F2);
    QTest::keyClicks(&table, "text");
    QVERIFY(table.selectedItems().isEmpty());
    QVERIFY(table.findChildren<QLineEdit *>().isEmpty());
    QCOMPARE(messages(table), QStringList{"one"});
}

void TestEventLogTableWidget::translatesInItsContext()
{
    const EchoTranslator translator;
    EventLogTableWidget table(nullptr);
    table.addEntry(entry("one"));
    QCOMPARE(table.horizontalHeaderItem(0)->text(), "EventLogTableWidget|Time");
    QCOMPARE(table.horizontalHeaderItem(1)->text(), "EventLogTableWidget|Message");
    QCOMPARE(table.item(0, TimeColumn)->text(), "EventLogTableWidget|N/A");
}

CORVANE_GUI_TEST_MAIN(TestEventLogTableWidget)
#include "tst_eventlogtablewidget.moc"
