#include "corvane.h"
#include "messageneedmanager.h"
#include "plotlegend.h"
#include "plotpanel.h"
#include "plotview.h"
#include "testcase.h"
#include "testformat.h"
#include "testsource.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCompleter>
#include <QDateTime>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolBar>
#include <QToolButton>

using namespace corvane;
using namespace corvane::test;

class tst_plotpanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void typedPath_isPlottedOnReturn();
    void typing_offersWhatMatches();
    void everyMessage_isSampledWithItsTime();
    void messageWithoutTime_hasThatOfItsArrival();
    void wildCards_addNumericFieldsOnce();
    void elements_areAddedByTheirRange();
    void pathOfNothing_isExplained();
    void pathOfTooMuch_isExplained();
    void onlyPlottedTypes_areNeeded();
    void units_areSpreadOverTheSides();
    void legend_showsNamesValuesAndStates();
    void legend_showsTheValuesAtTheCursor();
    void legend_isUsedByKeyboard();
    void legend_removeButtonRemoves();
    void removedNumber_isUsedAgain();
    void paused_picturesStandStillAndSamplesGoOn();
    void confidentialSwitch_isFollowed();
    void settings_rememberTheSeries();
    void settings_ofNonsense_areLeftOut();
    void format_comesAndGoes();
    void copy_putsThePictureIntoTheClipboard();
    void everything_hasAnAccessibleNameAndCanBeReached();
};

namespace {

const char types[] = R"(
    Position
      height  double optional unit "m"
      speed   float unit "m/s"
      note    text
      samples int16[]
      secret  int32 confidential
    Attitude
      roll    float unit "rad"
)";

class Shown
{
public:
    Shown()
    {
        panel.resize(900, 300);
        panel.show();
    }

    PlotLegend *legend() const { return panel.findChild<PlotLegend *>(); }

    QLineEdit *edit() const { return panel.findChild<QLineEdit *>(); }

    /** The rows as "name | value | at cursor | unit | axis | state". */
    QStringList rows() const
    {
        QStringList all;
        for (int row = 0; row < legend()->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < PlotLegend::RemoveColumn; ++column)
                cells += legend()->item(row, column)->text();
            all += cells.join(" | ");
        }
        return all;
    }

    QStringList paths() const
    {
        QStringList all;
        for (const auto &one : panel.getSeries())
            all += one->getPath();
        return all;
    }

    bool says(const QString &text) const
    {
        for (auto *label : panel.findChildren<QLabel *>())
            if (label->text().contains(text))
                return true;
        return false;
    }

    std::vector<Sample> samples(size_t number) const
    {
        const SampleStore &store = panel.getSeries().at(number)->getStore();
        return {store.begin(), store.end()};
    }

    TestFormat format{QStringLiteral("Demo"), QLatin1String(types)};
    TestSource source{format};
    PlotPanel panel{source};
};

} // namespace

void tst_plotpanel::typedPath_isPlottedOnReturn()
{
    Shown shown;
    expectWarning("This plugin does not support raise()");
    expectWarning("This plugin does not support grabbing the keyboard");
    expectWarning("This plugin does not support grabbing the keyboard");
    QTest::keyClicks(shown.edit(), "Demo.Position.height");
    QTest::keyClick(shown.edit(), Qt::Key_Return);
    QCOMPARE(shown.rows(), QStringList("Position.height |  |  | m | Left | Not received yet"));
    shown.source.send("Position{height: 4.5}");
    QTRY_COMPARE(shown.rows(), QStringList("Position.height | 4.5 |  | m | Left | Received"));
}

void tst_plotpanel::typing_offersWhatMatches()
{
    Shown shown;
    expectWarning("This plugin does not support raise()");
    expectWarning("This plugin does not support grabbing the keyboard");
    expectWarning("This plugin does not support grabbing the keyboard");
    QTest::keyClicks(shown.edit(), "Demo.Position.s");
    const auto *model = shown.edit()->completer()->model();
    QCOMPARE(model->rowCount(), 3);
    QCOMPARE(model->index(0, 0).data(), "Demo.Position.samples");
}

void tst_plotpanel::everyMessage_isSampledWithItsTime()
{
    Shown shown;
    shown.panel.addSeries("Demo.Position.speed");
    shown.source.send("Position @1000 {speed: 1} Position @2000 {speed: 2} Attitude @2500 {} "
                      "Position @3000 {}");
    QCOMPARE(shown.samples(0).size(), 3U);
    QCOMPARE(shown.samples(0)[1].timeUs, 2000);
    QCOMPARE(shown.samples(0)[1].value, 2.0);
    QVERIFY(shown.samples(0)[2].isGap());
}

void tst_plotpanel::messageWithoutTime_hasThatOfItsArrival()
{
    Shown shown;
    shown.panel.addSeries("Demo.Position.speed");
    const qint64 before = QDateTime::currentMSecsSinceEpoch() * 1000;
    shown.source.send("Position{speed: 1}");
    const qint64 after = (QDateTime::currentMSecsSinceEpoch() + 1) * 1000;
    QVERIFY(shown.samples(0)[0].timeUs >= before);
    QVERIFY(shown.samples(0)[0].timeUs <= after);
}

void tst_plotpanel::wildCards_addNumericFieldsOnce()
{
    Shown shown;
    shown.panel.addSeries("Demo.Position.speed");
    shown.panel.addSeries("Demo.*.*");
    QCOMPARE(shown.paths(),
             QStringList({"Demo.Position.speed", "Demo.Attitude.roll", "Demo.Position.height",
                          "Demo.Position.samples[0]", "Demo.Position.secret"}));
}

void tst_plotpanel::elements_areAddedByTheirRange()
{
    Shown shown;
    shown.panel.addSeries("Demo.Position.samples[1..3]");
    QCOMPARE(shown.paths(), QStringList({"Demo.Position.samples[1]", "Demo.Position.samples[2]",
                                         "Demo.Position.samples[3]"}));
    shown.source.send("Position{samples: [5, 6, 7]}");
    QCOMPARE(shown.samples(1)[0].value, 7.0);
    QVERIFY(shown.samples(2)[0].isGap());
    shown.panel.addSeries("Demo.Position.samples[0..999999999]");
    QVERIFY(shown.says("names more than 20 fields"));
    shown.panel.addSeries("Demo.Position.samples[3..1]");
    QVERIFY(shown.says("No numeric field is named"));
    QCOMPARE(shown.paths().size(), 3);
}

void tst_plotpanel::pathOfNothing_isExplained()
{
    Shown shown;
    for (const char *path : {"Demo.Position.depth", "Demo.Position.note", "", "[", "[0..3]"}) {
        shown.panel.addSeries(path);
        QVERIFY(shown.rows().isEmpty());
        QVERIFY(shown.says(QStringLiteral("No numeric field is named \"%1\"").arg(path)));
    }
}

void tst_plotpanel::pathOfTooMuch_isExplained()
{
    QString text = "Many\n";
    for (int i = 0; i < 50; ++i)
        text += QStringLiteral("  f%1 int8\n").arg(i);
    const TestFormat many("Many", text);
    Shown shown;
    shown.panel.addSeries("Many");
    QVERIFY(shown.rows().isEmpty());
    QVERIFY(shown.says("names more than 20 fields"));
    for (const char *path : {"Many.Many.f?", "Many.Many.f1?", "Many.Many.f2?", "Many.Many.f3?"})
        shown.panel.addSeries(path);
    QCOMPARE(shown.paths().size(), 40);
    shown.panel.addSeries("Many.Many.f40");
    QVERIFY(shown.says("More than 40 series are not plotted"));
    QCOMPARE(shown.paths().size(), 40);
}

void tst_plotpanel::onlyPlottedTypes_areNeeded()
{
    Shown shown;
    const auto isNeeded = [&](const char *type) {
        return MessageNeedManager::getDefault()->isNeeded(shown.format.type(type));
    };
    QVERIFY(!isNeeded("Position"));
    shown.panel.addSeries("Demo.Position.speed");
    QVERIFY(isNeeded("Position"));
    QVERIFY(!isNeeded("Attitude"));
    shown.panel.removeSeries(0);
    QVERIFY(!isNeeded("Position"));
}

void tst_plotpanel::units_areSpreadOverTheSides()
{
    Shown shown;
    shown.panel.addSeries("Demo.Position.height");
    shown.panel.addSeries("Demo.Position.speed");
    shown.panel.addSeries("Demo.Attitude.roll");
    const auto side = [&](size_t number) { return shown.panel.getSeries().at(number)->getSide(); };
    QCOMPARE(side(0), PlotSeries::Side::Left);
    QCOMPARE(side(1), PlotSeries::Side::Right);
    QCOMPARE(side(2), PlotSeries::Side::Left);
}

void tst_plotpanel::legend_showsNamesValuesAndStates()
{
    Shown shown;
    shown.panel.addSeries("Demo.Position.height");
    shown.panel.addSeries("Demo.Position.secret");
    shown.source.send("Position{secret: 5}");
    QTRY_COMPARE(shown.rows(),
                 QStringList({"Position.height |  |  | m | Left | Absent in the last message",
                              "Position.secret |  |  |  | Right | Confidential, not shown"}));
    QCOMPARE(shown.legend()->item(0, 0)->toolTip(), "Demo.Position.height");
    QVERIFY(!shown.legend()->item(0, 0)->icon().isNull());
}

void tst_plotpanel::legend_showsTheValuesAtTheCursor()
{
    Shown shown;
    shown.panel.addSeries("Demo.Position.speed");
    shown.source.send("Position @1000000 {speed: 1} Position @31000000 {speed: 2}");
    QSignalSpy refreshed(shown.panel.getView(), &PlotView::refreshed);
    QVERIFY(refreshed.wait());
    shown.panel.getView()->moveCursor(0);
    QTRY_COMPARE(shown.rows(), QStringList("Position.speed | 2 | 1 | m/s | Left | Received"));
    QVERIFY(shown.says("cursor at"));
}

void tst_plotpanel::legend_isUsedByKeyboard()
{
    Shown shown;
    for (const char *path : {"Demo.Position.height", "Demo.Position.speed", "Demo.Attitude.roll"})
        shown.panel.addSeries(path);
    QCOMPARE(shown.legend()->currentRow(), 2); // what was added
    QApplication::setActiveWindow(&shown.panel);
    shown.legend()->setFocus();
    QTest::keyClick(shown.legend(), Qt::Key_Up);
    QTest::keyClick(shown.legend(), Qt::Key_T, Qt::ControlModifier);
    QCOMPARE(shown.panel.getSeries().at(1)->getSide(), PlotSeries::Side::Left);
    QTest::keyClick(shown.legend(), Qt::Key_Delete);
    QCOMPARE(shown.paths(), QStringList({"Demo.Position.height", "Demo.Attitude.roll"}));
    QCOMPARE(shown.legend()->currentRow(), 1);
    QTest::keyClick(shown.legend(), Qt::Key_Delete);
    QTest::keyClick(shown.legend(), Qt::Key_Delete);
    QTest::keyClick(shown.legend(), Qt::Key_Delete);
    QVERIFY(shown.paths().isEmpty());
}

void tst_plotpanel::legend_removeButtonRemoves()
{
    Shown shown;
    shown.panel.addSeries("Demo.Position.height");
    shown.panel.addSeries("Demo.Position.speed");
    auto *button
        = qobject_cast<QToolButton *>(shown.legend()->cellWidget(0, PlotLegend::RemoveColumn));
    QCOMPARE(button->accessibleName(), "Remove Demo.Position.height");
    button->click();
    QTRY_COMPARE(shown.paths(), QStringList("Demo.Position.speed"));
    shown.source.send("Position{speed: 3}");
    QTRY_COMPARE(shown.rows(), QStringList("Position.speed | 3 |  | m/s | Right | Received"));
}

void tst_plotpanel::removedNumber_isUsedAgain()
{
    Shown shown;
    for (const char *path : {"Demo.Position.height", "Demo.Position.speed"})
        shown.panel.addSeries(path);
    shown.panel.removeSeries(0);
    shown.panel.removeSeries(7); // there is none
    shown.panel.addSeries("Demo.Attitude.roll");
    QCOMPARE(shown.panel.getSeries().at(0)->getNumber(), 1);
    QCOMPARE(shown.panel.getSeries().at(1)->getNumber(), 0);
}

void tst_plotpanel::paused_picturesStandStillAndSamplesGoOn()
{
    Shown shown;
    shown.panel.addSeries("Demo.Position.speed");
    shown.source.send("Position @1000000 {speed: 1}");
    QTRY_COMPARE(shown.rows(), QStringList("Position.speed | 1 |  | m/s | Left | Received"));
    shown.panel.setPaused(true);
    QTest::qWait(200);
    shown.source.send("Position @2000000 {speed: 2}");
    QTest::qWait(200);
    QCOMPARE(shown.rows(), QStringList("Position.speed | 1 |  | m/s | Left | Received"));
    QVERIFY(shown.says("Paused, values are kept"));
    QCOMPARE(shown.samples(0).size(), 2U);
    shown.panel.setPaused(false);
    QTRY_COMPARE(shown.rows(), QStringList("Position.speed | 2 |  | m/s | Left | Received"));
}

void tst_plotpanel::confidentialSwitch_isFollowed()
{
    Shown shown;
    shown.panel.addSeries("Demo.Position.secret");
    Corvane::setConfidentialInformationDisplayEnabled(true);
    shown.source.send("Position @1 {secret: 7} Position @2 {secret: 8}");
    QTRY_COMPARE(shown.rows(), QStringList("Position.secret | 8 |  |  | Left | Received"));
    QTRY_COMPARE(shown.panel.getView()->graph(0)->dataCount(), 2);
    Corvane::setConfidentialInformationDisplayEnabled(false);
    QTRY_COMPARE(shown.rows(),
                 QStringList("Position.secret |  |  |  | Left | Confidential, not shown"));
    QTRY_COMPARE(shown.panel.getView()->graph(0)->dataCount(), 0);
}

void tst_plotpanel::settings_rememberTheSeries()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("s.ini"), QSettings::IniFormat);
    {
        Shown shown;
        shown.panel.addSeries("Demo.Position.height");
        shown.panel.addSeries("Demo.Position.speed");
        shown.panel.getView()->setSpanUs(5'000'000);
        shown.panel.saveSettings(settings);
    }
    settings.setValue("plot/paths",
                      settings.value("plot/paths").toStringList() + QStringList("Demo.Gone.x"));
    Shown shown;
    shown.panel.restoreSettings(settings);
    QCOMPARE(shown.paths(),
             QStringList({"Demo.Position.height", "Demo.Position.speed", "Demo.Gone.x"}));
    QCOMPARE(shown.panel.getSeries().at(1)->getSide(), PlotSeries::Side::Right);
    QVERIFY(shown.rows().constLast().endsWith("Not described by the loaded definitions, or not a "
                                              "number"));
    QCOMPARE(shown.panel.getView()->getWindow().getSpanUs(), 5'000'000);
}

void tst_plotpanel::settings_ofNonsense_areLeftOut()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("s.ini"), QSettings::IniFormat);
    QStringList paths{"", QString(5000, 'x'), "\x01\x02", "[[["};
    for (int i = 0; i < 100; ++i)
        paths += QString::number(i);
    settings.setValue("plot/paths", paths);
    settings.setValue("plot/right", 12);
    settings.setValue("plot/axisPerUnit", "perhaps");
    settings.setValue("plot/spanUs", "-17");
    Shown shown;
    shown.panel.restoreSettings(settings);
    QCOMPARE(shown.paths().size(), 40);
    QCOMPARE(shown.paths().constFirst(), "\x01\x02");
    QCOMPARE(shown.panel.getView()->getWindow().getSpanUs(), TimeWindow::minimumSpanUs);
}

void tst_plotpanel::format_comesAndGoes()
{
    Shown shown;
    {
        const TestFormat other("Other", "A\n  x int8\n");
        TestSource source(other);
        connect(&source, &MessageSource::newMessage, &shown.source, &MessageSource::newMessage);
        shown.panel.addSeries("Other.A.x");
        source.send("A{x: 5}");
        QTRY_COMPARE(shown.rows(), QStringList("A.x | 5 |  |  | Left | Received"));
    }
    QCOMPARE(shown.rows(), QStringList("Other.A.x |  |  |  | Left | Not described by the loaded "
                                       "definitions, or not a number"));
    QCOMPARE(shown.samples(0).size(), 1U);
    const TestFormat again("Other", "A\n  x int8\n");
    QVERIFY(shown.rows().constFirst().startsWith("A.x | "));
    shown.panel.removeSeries(0);
}

void tst_plotpanel::copy_putsThePictureIntoTheClipboard()
{
    Shown shown;
    shown.panel.addSeries("Demo.Position.speed");
    const QSize size = shown.panel.getView()->size();
    for (QAction *action : shown.panel.findChild<QToolBar *>()->actions())
        if (action->text() == "Copy")
            action->trigger();
    QCOMPARE(QApplication::clipboard()->image().size(), size * 2);
    QVERIFY(shown.says("in the clipboard"));
}

void tst_plotpanel::everything_hasAnAccessibleNameAndCanBeReached()
{
    const Shown shown;
    for (const QWidget *widget : shown.panel.findChildren<QWidget *>()) {
        const bool takesInput = qobject_cast<const QLineEdit *>(widget) != nullptr
                                || qobject_cast<const PlotLegend *>(widget) != nullptr
                                || qobject_cast<const PlotView *>(widget) != nullptr;
        if (!takesInput)
            continue;
        QVERIFY(!widget->accessibleName().isEmpty());
        QVERIFY(widget->focusPolicy() & Qt::TabFocus);
    }
    for (const QAction *action : shown.panel.findChild<QToolBar *>()->actions())
        QVERIFY(action->toolTip() != action->text());
}

CORVANE_GUI_TEST_MAIN(tst_plotpanel)
#include "tst_plotpanel.moc"
