#include "testcase.h"
#include "timewindow.h"

using namespace corvane;
using namespace corvane::test;

class tst_timewindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void follow_movesTheEnd();
    void pan_stopsFollowing();
    void zoom_whileFollowing_keepsTheEnd();
    void zoom_keepsTheAnchorInItsPlace();
    void span_staysWithinItsLimits();
    void show_isFromFirstToLast();
};

void tst_timewindow::follow_movesTheEnd()
{
    TimeWindow window;
    window.follow(100'000'000);
    QCOMPARE(window.getToUs(), 100'000'000);
    QCOMPARE(window.getFromUs(), 100'000'000 - TimeWindow::initialSpanUs);
}

void tst_timewindow::pan_stopsFollowing()
{
    TimeWindow window;
    window.follow(100'000'000);
    window.pan(-0.5);
    QVERIFY(!window.isFollowing());
    window.follow(200'000'000);
    QCOMPARE(window.getToUs(), 85'000'000);
    window.setFollowing(true);
    window.follow(200'000'000);
    QCOMPARE(window.getToUs(), 200'000'000);
}

void tst_timewindow::zoom_whileFollowing_keepsTheEnd()
{
    TimeWindow window;
    window.follow(100'000'000);
    window.zoom(0.5, 80'000'000);
    QCOMPARE(window.getToUs(), 100'000'000);
    QCOMPARE(window.getSpanUs(), TimeWindow::initialSpanUs / 2);
    QVERIFY(window.isFollowing());
}

void tst_timewindow::zoom_keepsTheAnchorInItsPlace()
{
    TimeWindow window;
    window.show(0, 100'000'000);
    window.zoom(0.5, 25'000'000);
    QCOMPARE(window.getFromUs(), 12'500'000);
    QCOMPARE(window.getToUs(), 62'500'000);
    window.zoom(2.0, 25'000'000);
    QCOMPARE(window.getFromUs(), 0);
}

void tst_timewindow::span_staysWithinItsLimits()
{
    TimeWindow window;
    window.zoom(1e-12, 0);
    QCOMPARE(window.getSpanUs(), TimeWindow::minimumSpanUs);
    for (int i = 0; i < 100; ++i)
        window.zoom(1000.0, 0);
    QCOMPARE(window.getSpanUs(), TimeWindow::maximumSpanUs);
    window.setSpanUs(-5);
    QCOMPARE(window.getSpanUs(), TimeWindow::minimumSpanUs);
}

void tst_timewindow::show_isFromFirstToLast()
{
    TimeWindow window;
    window.show(5'000'000, 7'000'000);
    QCOMPARE(window.getFromUs(), 5'000'000);
    QCOMPARE(window.getToUs(), 7'000'000);
    QVERIFY(!window.isFollowing());
    window.show(5, 5); // one value
    QCOMPARE(window.getSpanUs(), TimeWindow::minimumSpanUs);
}

CORVANE_TEST_MAIN(tst_timewindow)
#include "tst_timewindow.moc"
