#include "plotscene.h"
#include "testcase.h"

#include <QApplication>
#include <QWheelEvent>

#include <cmath>

using namespace corvane;
using namespace corvane::test;

class tst_plotview : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void empty_saysHowToFillIt();
    void withoutValues_saysWhatItWaitsFor();
    void follows_theNewestValue();
    void refresh_isOncePerFrame();
    void hiddenView_doesNotDraw();
    void lines_haveFewPointsPerPixel();
    void gap_breaksTheLine();
    void symbols_areSteps();
    void units_haveTheirOwnAxes();
    void oneAxisPerSide_onDemand();
    void valueAxis_fitsWhatIsShown();
    void constantValue_liesInTheMiddle();
    void keys_moveAndZoom();
    void keys_ofTheValueAxes();
    void keys_ofTheValueAxes_comeBeforeShortcuts();
    void keys_moveTheCursor();
    void wheel_zoomsAroundThePointer();
    void drag_pans();
    void pointer_isTheCursor();
    void paused_standsStill();
    void palette_isFollowed();
};

void tst_plotview::empty_saysHowToFillIt()
{
    const Shown shown(QStringList{});
    QVERIFY(shown.placeholder().contains("Type the path of a numeric field"));
}

void tst_plotview::withoutValues_saysWhatItWaitsFor()
{
    Shown shown;
    QVERIFY(shown.placeholder().startsWith("No values yet."));
    shown.sendRamp(1);
    QCOMPARE(shown.placeholder(), "");
}

void tst_plotview::follows_theNewestValue()
{
    Shown shown;
    shown.sendRamp(50);
    QCOMPARE(shown.window(), "19 49");
    shown.send("Position{height: 1}", 60);
    shown.draw();
    QCOMPARE(shown.window(), "30 60");
    QVERIFY(shown.view.getStateText().startsWith("Following the newest value, 30 s"));
}

void tst_plotview::refresh_isOncePerFrame()
{
    Shown shown;
    const QSignalSpy refreshed(&shown.view, &PlotView::refreshed);
    QElapsedTimer clock;
    clock.start();
    int sent = 0;
    while (clock.elapsed() < 200) {
        shown.send("Position{height: 1}", ++sent);
        QApplication::processEvents();
    }
    QVERIFY(sent > 100);
    QVERIFY(refreshed.count() >= 1);
    QVERIFY(refreshed.count() <= 200 / PlotView::frameMs + 1);
}

void tst_plotview::hiddenView_doesNotDraw()
{
    Shown shown;
    shown.view.hide();
    QTest::qWait(3 * PlotView::frameMs);
    const QSignalSpy refreshed(&shown.view, &PlotView::refreshed);
    shown.send("Position{height: 1}", 1);
    QTest::qWait(5 * PlotView::frameMs);
    QCOMPARE(refreshed.count(), 0);
    shown.view.show();
    QTRY_VERIFY(refreshed.count() > 0);
}

void tst_plotview::lines_haveFewPointsPerPixel()
{
    Shown shown;
    for (int i = 0; i < 30'000; ++i)
        shown.send(QStringLiteral("Position{height: %1}").arg(std::sin(i)), i * 0.001);
    shown.draw();
    const int points = shown.view.graph(0)->dataCount();
    QVERIFY(points > shown.view.axisRect()->width());
    QVERIFY(points <= 4 * (shown.view.axisRect()->width() + 5));
}

void tst_plotview::gap_breaksTheLine()
{
    Shown shown;
    shown.send("Position{height: 1}", 1);
    shown.send("Position{}", 2);
    shown.send("Position{height: 3}", 3);
    shown.draw();
    const auto data = shown.view.graph(0)->data();
    QCOMPARE(data->size(), 3);
    QVERIFY(std::isnan(data->at(1)->value));
}

void tst_plotview::symbols_areSteps()
{
    const Shown shown({"height", "mode"});
    QCOMPARE(shown.view.graph(0)->lineStyle(), QCPGraph::lsLine);
    QCOMPARE(shown.view.graph(1)->lineStyle(), QCPGraph::lsStepLeft);
}

void tst_plotview::units_haveTheirOwnAxes()
{
    Shown shown({"height", "speed", "depth"});
    shown.series[1]->setSide(PlotSeries::Side::Right);
    shown.view.rebuild();
    const auto axis = [&](int number) { return shown.view.graph(number)->valueAxis(); };
    QCOMPARE(axis(0), axis(2));
    QVERIFY(axis(0) != axis(1));
    QCOMPARE(axis(0)->label(), "m");
    QCOMPARE(axis(1)->label(), "m/s");
    QCOMPARE(axis(1)->axisType(), QCPAxis::atRight);
    shown.series[1]->setSide(PlotSeries::Side::Left);
    shown.view.rebuild();
    QCOMPARE(axis(1)->axisType(), QCPAxis::atLeft);
    QVERIFY(axis(0) != axis(1));
    QCOMPARE(shown.view.axisRect()->axisCount(QCPAxis::atLeft), 2);
    shown.series.pop_back();
    shown.series.pop_back();
    shown.view.rebuild();
    QCOMPARE(shown.view.axisRect()->axisCount(QCPAxis::atLeft), 1);
}

void tst_plotview::oneAxisPerSide_onDemand()
{
    Shown shown({"height", "speed"});
    shown.view.setAxisPerUnit(false);
    QCOMPARE(shown.view.graph(0)->valueAxis(), shown.view.graph(1)->valueAxis());
    QCOMPARE(shown.view.graph(0)->valueAxis()->label(), "m, m/s");
    shown.view.setAxisPerUnit(true);
    QVERIFY(shown.view.graph(0)->valueAxis() != shown.view.graph(1)->valueAxis());
}

void tst_plotview::valueAxis_fitsWhatIsShown()
{
    Shown shown;
    shown.sendRamp(11);
    QCOMPARE(shown.view.yAxis->range().lower, -0.5);
    QCOMPARE(shown.view.yAxis->range().upper, 10.5);
}

void tst_plotview::constantValue_liesInTheMiddle()
{
    Shown shown;
    shown.send("Position{height: 7}", 1);
    shown.draw();
    QCOMPARE(shown.view.yAxis->range().center(), 7.0);
    QVERIFY(shown.view.yAxis->range().size() > 0.5);
}

void tst_plotview::keys_moveAndZoom()
{
    Shown shown;
    QSignalSpy following(&shown.view, &PlotView::followingChanged);
    shown.sendRamp(101);
    shown.press(Qt::Key_Left);
    QCOMPARE(shown.window(), "67 97");
    QCOMPARE(following.takeFirst().at(0), false);
    QVERIFY(shown.view.getStateText().startsWith("Standing still"));
    shown.press(Qt::Key_Right);
    QCOMPARE(shown.window(), "70 100");
    shown.press(Qt::Key_Plus);
    QCOMPARE(shown.window(), "73 97");
    shown.press(Qt::Key_Minus);
    QCOMPARE(shown.window(), "70 100");
    shown.press(Qt::Key_Home);
    QCOMPARE(shown.window(), "0 100");
    shown.send("Position{height: 1}", 200);
    shown.draw();
    QCOMPARE(shown.window(), "0 100");
    shown.press(Qt::Key_End);
    QCOMPARE(shown.window(), "100 200");
    QCOMPARE(following.takeLast().at(0), true);
}

void tst_plotview::keys_ofTheValueAxes()
{
    Shown shown;
    shown.sendRamp(11);
    const auto range = [&] { return shown.view.yAxis->range(); };
    shown.press(Qt::Key_Up);
    QCOMPARE(range().lower, -0.5 + 1.1);
    QVERIFY(shown.view.getStateText().contains("value axes as set by hand"));
    shown.press(Qt::Key_Down);
    QCOMPARE(range().lower, -0.5);
    shown.press(Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(range().size(), 11 * 0.8);
    shown.press(Qt::Key_V);
    QCOMPARE(range().size(), 11.0);
    QVERIFY(!shown.view.getStateText().contains("by hand"));
}

void tst_plotview::keys_ofTheValueAxes_comeBeforeShortcuts()
{
    Shown plot;
    const auto isTaken = [&plot](int key, Qt::KeyboardModifiers modifiers) {
        QKeyEvent event(QEvent::ShortcutOverride, key, modifiers);
        event.ignore();
        QCoreApplication::sendEvent(&plot.view, &event);
        return event.isAccepted();
    };
    QVERIFY(isTaken(Qt::Key_Plus, Qt::ControlModifier));
    QVERIFY(isTaken(Qt::Key_Minus, Qt::ControlModifier));
    QVERIFY(!isTaken(Qt::Key_R, Qt::ControlModifier));
}

void tst_plotview::keys_moveTheCursor()
{
    Shown shown;
    shown.sendRamp(101);
    shown.press(Qt::Key_Right, Qt::ShiftModifier);
    const qint64 first = shown.view.getCursorUs().value();
    QVERIFY(std::abs(first - startUs - 85 * secondUs) < secondUs);
    shown.press(Qt::Key_Left, Qt::ShiftModifier);
    QVERIFY(shown.view.getCursorUs().value() < first);
    QVERIFY(shown.view.getStateText().contains("cursor at "));
    shown.press(Qt::Key_Escape);
    QVERIFY(!shown.view.getCursorUs());
}

void tst_plotview::wheel_zoomsAroundThePointer()
{
    Shown shown;
    shown.sendRamp(101);
    shown.press(Qt::Key_Home);
    const auto turn = [&](int angle, Qt::KeyboardModifiers modifiers) {
        const QPointF place(shown.view.axisRect()->left(), 100);
        QWheelEvent event(place, shown.view.mapToGlobal(place), {}, {0, angle}, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&shown.view, &event);
        shown.draw();
    };
    turn(120, Qt::NoModifier);
    QCOMPARE(shown.window(), "0 80");
    turn(-120, Qt::NoModifier);
    QCOMPARE(shown.window(), "0 100");
    const double before = shown.view.yAxis->range().size();
    turn(120, Qt::ControlModifier);
    QCOMPARE(shown.window(), "0 100");
    QCOMPARE(shown.view.yAxis->range().size(), before * 0.8);
}

void tst_plotview::drag_pans()
{
    Shown shown;
    shown.sendRamp(101);
    const int width = shown.view.axisRect()->width();
    const double from = shown.view.yAxis->range().lower;
    QTest::mousePress(&shown.view, Qt::LeftButton, {}, {200, 100});
    QTest::mouseMove(&shown.view, {200 + width / 2, 120});
    QTest::mouseRelease(&shown.view, Qt::LeftButton, {}, {200 + width / 2, 120});
    shown.draw();
    QVERIFY(!shown.view.getWindow().isFollowing());
    const qint64 movedUs = startUs + 100 * secondUs - shown.view.getWindow().getToUs();
    QVERIFY(std::abs(movedUs - 15 * secondUs) < secondUs / 5);
    QVERIFY(shown.view.yAxis->range().lower != from); // which fits what is shown now
    QTest::mouseMove(&shown.view, {100, 100}); // the button is up
    QCOMPARE(startUs + 100 * secondUs - shown.view.getWindow().getToUs(), movedUs);
}

void tst_plotview::pointer_isTheCursor()
{
    Shown shown;
    shown.sendRamp(101);
    QTest::mouseMove(&shown.view, {shown.view.axisRect()->left(), 100});
    shown.draw();
    QCOMPARE(shown.view.getCursorUs(), shown.view.getWindow().getFromUs());
    shown.send("Position{height: 1}", 200);
    shown.draw();
    QCOMPARE(shown.view.getCursorUs(), startUs + 170 * secondUs); // still under the pointer
}

void tst_plotview::paused_standsStill()
{
    Shown shown;
    shown.sendRamp(50);
    shown.view.setPaused(true);
    shown.send("Position{height: 1}", 100);
    shown.draw();
    QCOMPARE(shown.window(), "19 49");
    QVERIFY(shown.view.getStateText().startsWith("Paused, values are kept"));
    shown.view.setPaused(false);
    shown.draw();
    QCOMPARE(shown.window(), "70 100");
    QCOMPARE(shown.series[0]->getStore().size(), 51U);
}

void tst_plotview::palette_isFollowed()
{
    Shown shown;
    shown.sendRamp(20);
    const auto corner = [&] { return shown.view.grab().toImage().pixelColor(2, 2); };
    QVERIFY(corner().lightness() > 200);
    shown.view.setPalette(QPalette(QColor(40, 40, 40), QColor(30, 30, 30)));
    shown.draw();
    QVERIFY(corner().lightness() < 60);
    QVERIFY(shown.view.xAxis->tickLabelColor().lightness() > 150);
}

CORVANE_GUI_TEST_MAIN(tst_plotview)
#include "tst_plotview.moc"
