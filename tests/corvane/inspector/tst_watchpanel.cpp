#include "fieldvaluelabel.h"
#include "latestmessages.h"
#include "pathexpressioncombobox.h"
#include "pathexpressionlineedit.h"
#include "pathexpressionlistwidget.h"
#include "testcase.h"
#include "testformat.h"
#include "testsource.h"
#include "watchpanel.h"

#include <QApplication>
#include <QCompleter>
#include <QLabel>
#include <QSettings>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QToolButton>

using namespace corvane;
using namespace corvane::test;

class tst_watchpanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void typedPath_isWatchedOnReturn();
    void pickedField_isWatched();
    void typing_offersWhatMatches();
    void states_tellWhyThereIsNoValue();
    void state_afterTheTimeOut();
    void pathOfNothing_isExplained();
    void pathOfTooMuch_isExplained();
    void wildCards_addSeveralOnce();
    void rows_canBeRemovedAndMoved();
    void currentRow_hasOneColour();
    void settings_rememberTheRows();
    void format_comesAndGoes();
};

namespace {

const char types[] = R"(
    Position
      height double unit "m"
      speed  float optional unit "m/s"
      speed2 float
    Attitude
      roll   float
)";

class Shown
{
public:
    QTableWidget *table() const { return panel.findChild<QTableWidget *>(); }

    PathExpressionLineEdit *edit() const { return panel.findChild<PathExpressionLineEdit *>(); }

    /** The rows as "path | value | unit | state". */
    QStringList rows() const
    {
        QStringList all;
        for (int row = 0; row < table()->rowCount(); ++row)
            all += QStringList{table()->item(row, 0)->text(),
                               qobject_cast<FieldValueLabel *>(table()->cellWidget(row, 1))->text(),
                               table()->item(row, 2)->text(), table()->item(row, 3)->text()}
                       .join(" | ");
        return all;
    }

    void press(const QString &button) const
    {
        for (auto *found : panel.findChildren<QToolButton *>())
            if (found->text() == button)
                found->click();
    }

    bool says(const QString &text) const
    {
        for (auto *label : panel.findChildren<QLabel *>())
            if (label->text().contains(text))
                return true;
        return false;
    }

    TestFormat format{QStringLiteral("Demo"), QLatin1String(types)};
    TestSource source{format};
    LatestMessages latest{source};
    WatchPanel panel{latest};
};

} // namespace

void tst_watchpanel::typedPath_isWatchedOnReturn()
{
    Shown shown;
    shown.edit()->clear();
    expectWarning("This plugin does not support raise()");
    expectWarning("This plugin does not support grabbing the keyboard");
    QTest::keyClicks(shown.edit(), "Demo.Position.height");
    QTest::keyClick(shown.edit(), Qt::Key_Return);
    QCOMPARE(shown.rows(), QStringList("Demo.Position.height | N/A | m | Not received yet"));
    shown.source.send("Position{height: 4.5}");
    QTRY_COMPARE(shown.rows(), QStringList("Demo.Position.height | 4.5 | m | Current"));
}

void tst_watchpanel::pickedField_isWatched()
{
    Shown shown;
    const auto boxes = shown.panel.findChildren<PathExpressionComboBox *>();
    boxes.at(0)->setCurrentText("Demo");
    boxes.at(1)->setCurrentText("Attitude");
    auto *fields = shown.panel.findChild<PathExpressionListWidget *>();
    QCOMPARE(fields->count(), 1);
    fields->setCurrentRow(0);
    QCOMPARE(shown.edit()->text(), "Demo.Attitude.roll");
    shown.press("Watch");
    QCOMPARE(shown.rows(), QStringList("Demo.Attitude.roll | N/A |  | Not received yet"));
}

void tst_watchpanel::typing_offersWhatMatches()
{
    Shown shown;
    shown.edit()->clear();
    expectWarning("This plugin does not support raise()");
    expectWarning("This plugin does not support grabbing the keyboard");
    QTest::keyClicks(shown.edit(), "Demo.Pos");
    auto *completer = shown.edit()->completer();
    QStringList offered;
    for (int row = 0; row < completer->model()->rowCount(); ++row)
        offered += completer->model()->index(row, 0).data().toString();
    QCOMPARE(offered,
             QStringList({"Demo.Position.height", "Demo.Position.speed", "Demo.Position.speed2"}));
    QTest::keyClicks(shown.edit(), "ition.speed");
    QCOMPARE(completer->model()->rowCount(), 2);
}

void tst_watchpanel::states_tellWhyThereIsNoValue()
{
    Shown shown;
    shown.panel.watch("Demo.Position.speed");
    shown.source.send("Position{height: 1}");
    QTRY_COMPARE(shown.rows(),
                 QStringList("Demo.Position.speed | N/A | m/s | Absent in the last message"));
    shown.source.send("Position{speed: 2}");
    QTRY_COMPARE(shown.rows(), QStringList("Demo.Position.speed | 2 | m/s | Current"));
}

void tst_watchpanel::state_afterTheTimeOut()
{
    Shown shown;
    shown.panel.watch("Demo.Position.height");
    shown.source.send("Position{height: 1}");
    QTest::qWait(WatchPanel::timeOutMs);
    QTRY_COMPARE(shown.rows(), QStringList("Demo.Position.height | N/A | m | Timed out"));
}

void tst_watchpanel::pathOfNothing_isExplained()
{
    Shown shown;
    shown.panel.watch("Demo.Position.depth");
    QVERIFY(shown.rows().isEmpty());
    QVERIFY(shown.says("No field is named \"Demo.Position.depth\""));
}

void tst_watchpanel::pathOfTooMuch_isExplained()
{
    QString text = "Many\n";
    for (int i = 0; i < 21; ++i)
        text += QStringLiteral("  f%1 int8\n").arg(i);
    const TestFormat many("Many", text);
    Shown shown;
    shown.panel.watch("Many");
    QVERIFY(shown.rows().isEmpty());
    QVERIFY(shown.says("names more than 20 fields"));
}

void tst_watchpanel::wildCards_addSeveralOnce()
{
    Shown shown;
    shown.panel.watch("Demo.Position.speed");
    shown.panel.watch("Demo.Position.*");
    QCOMPARE(shown.rows(), QStringList({"Demo.Position.speed | N/A | m/s | Not received yet",
                                        "Demo.Position.height | N/A | m | Not received yet",
                                        "Demo.Position.speed2 | N/A |  | Not received yet"}));
}

void tst_watchpanel::rows_canBeRemovedAndMoved()
{
    Shown shown;
    shown.panel.watch("Demo.*.height");
    shown.panel.watch("Demo.*.roll");
    shown.panel.watch("Demo.*.speed");
    shown.table()->setCurrentCell(0, 0);
    shown.press("Down");
    const auto paths = [&] {
        QStringList all;
        for (const QString &row : shown.rows())
            all += row.section(" | ", 0, 0).section(".", 2);
        return all.join(" ");
    };
    QCOMPARE(paths(), "roll height speed");
    shown.table()->setCurrentCell(0, 0);
    shown.press("Down");
    QCOMPARE(paths(), "height roll speed");
    QCOMPARE(shown.table()->currentRow(), 1);
    shown.press("Up");
    shown.press("Up");
    QCOMPARE(paths(), "roll height speed");
    shown.table()->setCurrentCell(1, 0);
    shown.press("Remove");
    QCOMPARE(paths(), "roll speed");
    shown.source.send("Position{speed: 3}");
    QTRY_COMPARE(shown.rows().constLast(), "Demo.Position.speed | 3 | m/s | Current");
    shown.table()->setCurrentCell(1, 0);
    shown.press("Up"); // and keeps its value
    QCOMPARE(shown.rows().constFirst(), "Demo.Position.speed | 3 | m/s | Current");
}

void tst_watchpanel::currentRow_hasOneColour()
{
    Shown shown;
    shown.panel.watch("Demo.Position.*");
    const auto roleOf
        = [&shown](int row) { return shown.table()->cellWidget(row, 1)->foregroundRole(); };
    for (const int current : {1, 0}) {
        shown.table()->setCurrentCell(current, 0);
        QCOMPARE(roleOf(current), QPalette::HighlightedText);
        QCOMPARE(roleOf(1 - current), QPalette::Text);
    }
    shown.panel.moveCurrent(1);
    QCOMPARE(roleOf(1), QPalette::HighlightedText);
}

void tst_watchpanel::settings_rememberTheRows()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("s.ini"), QSettings::IniFormat);
    {
        Shown shown;
        shown.panel.watch("Demo.Position.speed");
        shown.panel.watch("Demo.Attitude.roll");
        shown.panel.saveSettings(settings);
    }
    settings.setValue("watch/paths",
                      settings.value("watch/paths").toStringList() + QStringList("Demo.Gone.x"));
    Shown shown;
    shown.panel.restoreSettings(settings);
    QCOMPARE(shown.rows(),
             QStringList({"Demo.Position.speed | N/A | m/s | Not received yet",
                          "Demo.Attitude.roll | N/A |  | Not received yet",
                          "Demo.Gone.x | N/A |  | Not described by the loaded definitions"}));
}

void tst_watchpanel::format_comesAndGoes()
{
    Shown shown;
    {
        const TestFormat other("Other", "A\n  x int8\n");
        shown.panel.watch("Other.A.x");
        QCOMPARE(shown.rows(), QStringList("Other.A.x | N/A |  | Not received yet"));
    }
    QCOMPARE(shown.rows(),
             QStringList("Other.A.x | N/A |  | Not described by the loaded definitions"));
    const TestFormat again("Other", "A\n  x int8\n");
    QCOMPARE(shown.rows(), QStringList("Other.A.x | N/A |  | Not received yet"));
    shown.table()->setCurrentCell(0, 0);
    shown.panel.removeCurrent();
}

CORVANE_GUI_TEST_MAIN(tst_watchpanel)
#include "tst_watchpanel.moc"
