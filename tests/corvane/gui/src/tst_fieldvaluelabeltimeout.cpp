#include "fieldvaluelabel.h"
#include "testcase.h"
#include "testformat.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>

using namespace corvane::test;

namespace {

const char types[] = "Position\n lat double\nClock\n time uint32\n";

/** Tells the timer that a label made, which nobody else can reach. */
class TimerFinder : public QObject
{
public:
    /** The label's timer, which runs with an interval of 0 afterwards. */
    QTimer *findTimerOf(FieldValueLabel &label)
    {
        qApp->installEventFilter(this);
        label.setTimeOut(0);
        const bool seen = QTest::qWaitFor([this] { return found != nullptr; }, 1000);
        qApp->removeEventFilter(this);
        return seen ? found : nullptr;
    }

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        if (event->type() == QEvent::Timer && found == nullptr)
            found = qobject_cast<QTimer *>(receiver);
        return false;
    }

private:
    QTimer *found = nullptr;
};

} // namespace

class TestFieldValueLabelTimeOut : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void timeOut_ofConstructor_data();
    void timeOut_ofConstructor();
    void timeOut_countsFromTheCall();
    void timeOut_restartsWithEachValue();
    void timeOut_notRestartedWithoutValue_data();
    void timeOut_notRestartedWithoutValue();
    void timeOut_firesOnce();
    void timeOut_zeroWithdrawsWithNextEvents();
    void timeOut_negativeRemovesTheTimer();
    void timeOut_changesTheInterval();
    void destructor_leavesTheTimerBehind();
};

void TestFieldValueLabelTimeOut::timeOut_ofConstructor_data()
{
    QTest::addColumn<int>("timeOut");
    QTest::addColumn<QString>("later");

    QTest::newRow("negative") << -1 << "4.5";
    QTest::newRow("zero") << 0 << "4.5";
    QTest::newRow("shortest") << 1 << "N/A";
}

void TestFieldValueLabelTimeOut::timeOut_ofConstructor()
{
    QFETCH(int, timeOut);
    QFETCH(QString, later);

    const TestFormat format("Demo", types);
    FieldValueLabel label(format.field("Position.lat"), nullptr, true, timeOut);
    label.processMessage(format.message("Position{lat: 4.5}"));
    QCOMPARE(label.text(), "4.5");
    QTest::qWait(30);
    QCOMPARE(label.text(), later);
    label.setTimeOut(-1);
}

void TestFieldValueLabelTimeOut::timeOut_countsFromTheCall()
{
    FieldValueLabel label;
    QTimer *timer = TimerFinder().findTimerOf(label);
    QVERIFY(timer != nullptr);

    QCOMPARE(timer->parent(), nullptr);
    QVERIFY(timer->isSingleShot());
    label.setTimeOut(20);
    QVERIFY(timer->isActive());
    label.setText("shown");
    QTRY_COMPARE(label.text(), "N/A");
    label.setTimeOut(-1);
}

void TestFieldValueLabelTimeOut::timeOut_restartsWithEachValue()
{
    const TestFormat format("Demo", types);
    FieldValueLabel label(format.field("Position.lat"));
    QTimer *timer = TimerFinder().findTimerOf(label);
    QVERIFY(timer != nullptr);
    // The timer is as coarse as a twentieth of its interval.
    label.setTimeOut(1000);

    QTest::qWait(200);
    const int before = timer->remainingTime();
    label.processMessage(format.message("Position{lat: 4.5}"));
    QVERIFY(timer->remainingTime() > before);
    QCOMPARE(timer->interval(), 1000);
    label.setTimeOut(-1);
}

void TestFieldValueLabelTimeOut::timeOut_notRestartedWithoutValue_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("text");

    QTest::newRow("other type") << "Clock{time: 1}"
                                << "4.5";
    QTest::newRow("no value") << "Position{}"
                              << "N/A";
}

void TestFieldValueLabelTimeOut::timeOut_notRestartedWithoutValue()
{
    QFETCH(QString, message);
    QFETCH(QString, text);

    const TestFormat format("Demo", types);
    FieldValueLabel label(format.field("Position.lat"));
    QTimer *timer = TimerFinder().findTimerOf(label);
    QVERIFY(timer != nullptr);
    label.setTimeOut(1000);
    label.processMessage(format.message("Position{lat: 4.5}"));

    QTest::qWait(200);
    const int before = timer->remainingTime();
    label.processMessage(format.message(message));
    QCOMPARE(label.text(), text);
    QVERIFY(timer->remainingTime() <= before);
    label.clearValue();
    QVERIFY(timer->isActive());
    QVERIFY(timer->remainingTime() <= before);
    label.setTimeOut(-1);
}

void TestFieldValueLabelTimeOut::timeOut_firesOnce()
{
    const TestFormat format("Demo", types);
    FieldValueLabel label(format.field("Position.lat"));
    QTimer *timer = TimerFinder().findTimerOf(label);
    QVERIFY(timer != nullptr);
    label.setTimeOut(20);

    label.processMessage(format.message("Position{lat: 4.5}"));
    QTRY_COMPARE(label.text(), "N/A");
    QVERIFY(!timer->isActive());
    label.processMessage(format.message("Position{lat: 5.5}"));
    QCOMPARE(label.text(), "5.5");
    QTRY_COMPARE(label.text(), "N/A");
    label.setTimeOut(-1);
}

void TestFieldValueLabelTimeOut::timeOut_zeroWithdrawsWithNextEvents()
{
    const TestFormat format("Demo", types);
    FieldValueLabel label(format.field("Position.lat"), nullptr, true, 0);
    label.setTimeOut(0);

    label.processMessage(format.message("Position{lat: 4.5}"));
    QCOMPARE(label.text(), "4.5");
    QTRY_COMPARE(label.text(), "N/A");
    label.processMessage(format.message("Position{lat: 5.5}"));
    QCOMPARE(label.text(), "5.5");
    QTRY_COMPARE(label.text(), "N/A");
    label.setTimeOut(-1);
}

void TestFieldValueLabelTimeOut::timeOut_negativeRemovesTheTimer()
{
    const TestFormat format("Demo", types);
    FieldValueLabel label(format.field("Position.lat"));
    label.setTimeOut(-1);
    const QPointer<QTimer> timer = TimerFinder().findTimerOf(label);
    QVERIFY(!timer.isNull());

    label.setTimeOut(20);
    label.processMessage(format.message("Position{lat: 4.5}"));
    label.setTimeOut(-1);
    QVERIFY(timer.isNull());
    QTest::qWait(40);
    QCOMPARE(label.text(), "4.5");
}

void TestFieldValueLabelTimeOut::timeOut_changesTheInterval()
{
    FieldValueLabel label;
    QTimer *timer = TimerFinder().findTimerOf(label);
    QVERIFY(timer != nullptr);

    label.setTimeOut(60'000);
    QCOMPARE(timer->interval(), 60'000);
    label.setTimeOut(30'000);
    QCOMPARE(timer->interval(), 30'000);
    QVERIFY(timer->isActive());
    QVERIFY(timer->remainingTime() < 40'000);
    label.setTimeOut(-1);
}

void TestFieldValueLabelTimeOut::destructor_leavesTheTimerBehind()
{
    auto *label = new FieldValueLabel;
    const QPointer<QTimer> timer = TimerFinder().findTimerOf(*label);
    QVERIFY(!timer.isNull());
    label->setTimeOut(1);

    delete label;
    QVERIFY(!timer.isNull());
    QVERIFY(timer->isActive());
    QTRY_VERIFY(!timer->isActive());
    delete timer;
}

CORVANE_GUI_TEST_MAIN(TestFieldValueLabelTimeOut)

#include "tst_fieldvaluelabeltimeout.moc"
