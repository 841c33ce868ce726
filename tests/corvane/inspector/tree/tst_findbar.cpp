#include "expansion.h"
#include "findbar.h"
#include "inspectortree.h"
#include "latestmessages.h"
#include "messagetreepanel.h"
#include "testcase.h"
#include "testformat.h"
#include "testsource.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <ctime>

using namespace corvane;
using namespace corvane::test;

class tst_findbar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void controlF_opensABarToTypeIn();
    void names_areFoundWhileTyping();
    void next_goesOnByFunctionKeyAndEnter();
    void previous_goesBack();
    void overTheEnd_isSaid();
    void nothing_isSaid();
    void values_areFound();
    void rawValues_areFoundWhereTheyAreShown();
    void paths_areFound_data();
    void paths_areFound();
    void search_beginsAtTheCurrentRow();
    void elements_areFoundOnceByName();
    void collapsedRows_areExpandedTo();
    void escape_restoresExpansionAndMemory();
    void settingsWrittenMeanwhile_knowNothingOfIt();
    void escapeInTheTree_closesToo();
    void whatPeopleExpandThemselves_stays();
    void absentSubMessages_areFoundByWhatTheyWouldHold();
    void emptyLists_areFoundByWhatTheyWouldHold();
    void typesWithoutRow_getOneForAsLong();
    void hiddenKinds_areNotFound();
    void changedValue_isNoHitAnyMore();
    void removedElements_areSkipped();
    void functionKey_opensTheClosedBarAgain();
    void buttons_doTheSame();
    void manyRows_neverStopTheEventLoop();
};

namespace {

const char types[] = R"(
    Position
      height  double
      mode    uint8 {Manual=0, Auto=2}
      spare   int32 secondary
      where   Place
      volt    int16[]
      sats    Satellite[]
      maybe   Around optional
    Around part
      where   Place
    Place part
      lat     double
      lon     double
    Satellite part
      state   uint8 {Lost=0, Good=1}
    Attitude
      roll    float
      heading float
)";

const char position[]
    = "Position{height: 12, mode: Auto, where: {lat: 4, lon: 5}, volt: [100, 200, 300], "
      "sats: [{state: Good}, {state: Lost}, {state: Good}]}";

class Shown
{
public:
    explicit Shown(const QString &messages = QLatin1String(position))
    {
        source.send(messages);
        panel.resize(700, 500);
        panel.show();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        tree()->setFocus();
        tree()->setCurrentItem(nullptr);
        QTRY_VERIFY(tree()->topLevelItemCount() > 0);
        QTest::qWait(2 * LatestMessages::frameMs);
    }

    InspectorTree *tree() const { return panel.getTree(); }

    FindBar *bar() const { return panel.findChild<FindBar *>(); }

    QLineEdit *edit() const { return bar()->findChild<QLineEdit *>(); }

    QString state() const { return bar()->findChild<QLabel *>()->text(); }

    /** Opens the bar and types, as people do. */
    void find(const QString &text)
    {
        QTest::keyClick(&panel, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(edit()->hasFocus());
        edit()->clear();
        QTest::keyClicks(edit(), text);
        wait();
    }

    void wait() const
    {
        QTRY_VERIFY(!state().contains("so far") && !state().startsWith("Searching"));
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        wait();
    }

    /** The names from the top to the current row. */
    QString current() const
    {
        QStringList names;
        for (const QTreeWidgetItem *row = tree()->currentItem(); row != nullptr;
             row = row->parent())
            names.prepend(row->text(0));
        return names.join(">");
    }

    QTreeWidgetItem *row(int i) const { return tree()->topLevelItem(0)->child(i); }

    TestFormat format{QStringLiteral("Demo"), QLatin1String(types)};
    TestSource source{format};
    LatestMessages latest{source};
    MessageTreePanel panel{latest, *format.getInfo()};
};

} // namespace

void tst_findbar::cleanup()
{
    forgetExpansion();
    TestCase::cleanup();
}

void tst_findbar::controlF_opensABarToTypeIn()
{
    Shown shown;
    QVERIFY(!shown.bar()->isVisible());
    QTest::keyClick(shown.tree(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(shown.bar()->isVisible());
    QVERIFY(shown.edit()->hasFocus());
    QTest::keyClick(shown.edit(), Qt::Key_Escape);
    QVERIFY(!shown.bar()->isVisible());
    QVERIFY(shown.tree()->hasFocus());
}

void tst_findbar::names_areFoundWhileTyping()
{
    Shown shown;
    shown.find("HEI");
    QCOMPARE(shown.current(), "Position>height");
    QCOMPARE(shown.state(), "1 of 1");
    shown.find("mo");
    QCOMPARE(shown.current(), "Position>mode");
}

void tst_findbar::next_goesOnByFunctionKeyAndEnter()
{
    Shown shown;
    shown.find("l");
    const QString first = shown.state();
    QVERIFY2(first.startsWith("1 of "), qPrintable(first));
    QCOMPARE(shown.current(), "Position>where>lat");
    shown.press(Qt::Key_F3);
    QCOMPARE(shown.current(), "Position>where>lon");
    shown.press(Qt::Key_Return);
    QCOMPARE(shown.current(), "Position>volt");
    QVERIFY(shown.state().startsWith("3 of "));
}

void tst_findbar::previous_goesBack()
{
    Shown shown;
    shown.find("l");
    shown.press(Qt::Key_F3);
    shown.press(Qt::Key_F3);
    shown.press(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(shown.current(), "Position>where>lon");
    shown.press(Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(shown.current(), "Position>where>lat");
}

void tst_findbar::overTheEnd_isSaid()
{
    Shown shown;
    shown.find("o"); // among them roll of a type without row
    QVERIFY(shown.state().startsWith("1 of "));
    const int count = shown.state().mid(5).toInt();
    QVERIFY(count > 2);
    shown.press(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(shown.state(), QString("%1 of %1, from the end again").arg(count));
    shown.press(Qt::Key_F3);
    QCOMPARE(shown.state(), QString("1 of %1, from the top again").arg(count));
    shown.press(Qt::Key_F3);
    QCOMPARE(shown.state(), QString("2 of %1").arg(count));
}

void tst_findbar::nothing_isSaid()
{
    Shown shown;
    shown.find("zebra");
    QCOMPARE(shown.state(), "Nothing found");
    shown.press(Qt::Key_F3);
    QCOMPARE(shown.state(), "Nothing found");
    shown.edit()->clear();
    QCOMPARE(shown.state(), "");
}

void tst_findbar::values_areFound()
{
    Shown shown;
    shown.find("auto");
    QCOMPARE(shown.current(), "Position>mode");
    shown.find("200");
    QCOMPARE(shown.current(), "Position>volt>volt [1]");
}

void tst_findbar::rawValues_areFoundWhereTheyAreShown()
{
    Shown shown("Position{mode: Auto}");
    shown.find("2");
    QCOMPARE(shown.state(), "Nothing found");
    shown.tree()->addColumn(MessageTreeWidget::RawValue, true);
    shown.find("2");
    QCOMPARE(shown.current(), "Position>mode");
}

void tst_findbar::paths_areFound_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("row");
    QTest::addColumn<int>("count");
    QTest::newRow("inside") << "where.la"
                            << "Position>where>lat" << 1;
    QTest::newRow("whole") << "Demo.Position.height"
                           << "Position>height" << 1;
    QTest::newRow("element") << "volt[2]"
                             << "Position>volt>volt [2]" << 1;
    QTest::newRow("in an element") << "sats[1].state"
                                   << "Position>sats>sats [1]>state" << 1;
    QTest::newRow("all below a type") << "Position.where."
                                      << "Position>where>lat" << 2;
    QTest::newRow("a type") << "demo.pos"
                            << "Position" << 1;
    QTest::newRow("without row") << "attitude.roll"
                                 << "Attitude>roll" << 1;
}

void tst_findbar::paths_areFound()
{
    QFETCH(QString, text);
    Shown shown;
    shown.find(text);
    QTEST(shown.current(), "row");
    QFETCH(int, count);
    QCOMPARE(shown.state(), QString("1 of %1").arg(count));
}

void tst_findbar::search_beginsAtTheCurrentRow()
{
    Shown shown;
    shown.tree()->setCurrentItem(shown.row(4));
    shown.find("o");
    QCOMPARE(shown.current(), "Position>volt");
    shown.press(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(shown.current(), "Position>where>lon");
}

void tst_findbar::elements_areFoundOnceByName()
{
    Shown shown;
    shown.find("volt");
    QCOMPARE(shown.state(), "1 of 1");
    QCOMPARE(shown.current(), "Position>volt");
}

void tst_findbar::collapsedRows_areExpandedTo()
{
    Shown shown;
    shown.tree()->collapseAll();
    shown.find("lost");
    QCOMPARE(shown.current(), "Position>sats>sats [1]>state");
    QVERIFY(shown.row(5)->child(1)->isExpanded());
    QVERIFY(!shown.row(5)->child(0)->isExpanded());
    const QRect area = shown.tree()->visualItemRect(shown.tree()->currentItem());
    QVERIFY(shown.tree()->viewport()->rect().contains(area.center()));
    QVERIFY(shown.tree()->currentItem()->isSelected());
}

void tst_findbar::escape_restoresExpansionAndMemory()
{
    Shown shown;
    const auto messages = MessageTreeWidget::sMessageInfoExpandedCollapsedMap;
    const auto fields = MessageTreeWidget::sFieldInfoExpandedCollapsedMap;
    const auto expansion = [&] {
        QStringList all;
        QTreeWidgetItemIterator row(shown.tree());
        for (; *row != nullptr; ++row)
            all += (*row)->text(0) + ((*row)->isExpanded() ? "+" : "-");
        return all;
    };
    const QStringList before = expansion();
    shown.find("lost");
    QVERIFY(expansion() != before);
    QCOMPARE(MessageTreeWidget::sFieldInfoExpandedCollapsedMap, fields);
    shown.press(Qt::Key_F3);
    QTest::keyClick(shown.edit(), Qt::Key_Escape);
    QCOMPARE(expansion(), before);
    QCOMPARE(MessageTreeWidget::sMessageInfoExpandedCollapsedMap, messages);
    QCOMPARE(MessageTreeWidget::sFieldInfoExpandedCollapsedMap, fields);
    QCOMPARE(shown.current(), "Position>sats"); // the row that can be seen
}

void tst_findbar::settingsWrittenMeanwhile_knowNothingOfIt()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("s.ini"), QSettings::IniFormat);
    Shown shown;
    shown.find("lost");
    shown.panel.saveSettings(settings);
    QCOMPARE(settings.value("tree/expandedFields").toStringList(), QStringList());
    // Elements that come meanwhile do not start expanded either.
    shown.source.send("Position{sats: [{state: Good}, {state: Lost}, {state: Good}, {}]}");
    QTRY_COMPARE(shown.row(5)->childCount(), 4);
    QVERIFY(shown.row(5)->isExpanded());
}

void tst_findbar::escapeInTheTree_closesToo()
{
    Shown shown;
    shown.find("lost");
    shown.tree()->setFocus();
    QTest::keyClick(shown.tree(), Qt::Key_Escape);
    QVERIFY(!shown.bar()->isVisible());
    QVERIFY(!shown.row(5)->isExpanded());
}

void tst_findbar::whatPeopleExpandThemselves_stays()
{
    Shown shown;
    shown.find("lost");
    shown.row(5)->setExpanded(false);
    shown.row(5)->setExpanded(true);
    QTest::keyClick(shown.edit(), Qt::Key_Escape);
    QVERIFY(shown.row(5)->isExpanded());
    QVERIFY(MessageTreeWidget::sFieldInfoExpandedCollapsedMap.value(
        shown.format.field("Position.sats")));
    shown.find("200");
    shown.tree()->setFocus();
    QTest::keyClick(shown.tree(), Qt::Key_Right, Qt::ControlModifier); // all
    QTest::keyClick(shown.tree(), Qt::Key_Escape);
    QVERIFY(shown.row(4)->isExpanded());
}

void tst_findbar::absentSubMessages_areFoundByWhatTheyWouldHold()
{
    Shown shown("Position{maybe: {where: {lat: 1}}} Position{height: 1}");
    QTRY_VERIFY(shown.row(6)->child(0)->isHidden());
    shown.find("maybe.where.lon");
    QCOMPARE(shown.current(), "Position>maybe");
    QCOMPARE(shown.state(), "1 of 1");
}

void tst_findbar::emptyLists_areFoundByWhatTheyWouldHold()
{
    Shown shown("Position{height: 1}");
    shown.find("state");
    QCOMPARE(shown.current(), "Position>sats");
    QCOMPARE(shown.state(), "1 of 1");
}

void tst_findbar::typesWithoutRow_getOneForAsLong()
{
    Shown shown;
    QCOMPARE(shown.tree()->topLevelItemCount(), 1);
    shown.find("roll");
    QCOMPARE(shown.current(), "Attitude>roll");
    QCOMPARE(shown.tree()->topLevelItemCount(), 2);
    QTest::keyClick(shown.edit(), Qt::Key_Escape);
    QCOMPARE(shown.tree()->topLevelItemCount(), 1);
    shown.find("roll");
    shown.source.send("Attitude{roll: 4}");
    QTest::keyClick(shown.edit(), Qt::Key_Escape);
    QCOMPARE(shown.tree()->topLevelItemCount(), 2);
}

void tst_findbar::hiddenKinds_areNotFound()
{
    Shown shown;
    shown.find("spare");
    QCOMPARE(shown.state(), "1 of 1");
    shown.tree()->setShowPrimaryFieldsOnly(true);
    shown.find("spare");
    QCOMPARE(shown.state(), "Nothing found");
}

void tst_findbar::changedValue_isNoHitAnyMore()
{
    Shown shown;
    shown.find("good");
    QCOMPARE(shown.state(), "1 of 2");
    shown.source.send("Position{sats: [{state: Good}, {state: Lost}, {state: Lost}]}");
    QTRY_COMPARE(shown.row(5)->child(2)->child(0)->text(2), "Lost");
    shown.press(Qt::Key_F3);
    QCOMPARE(shown.current(), "Position>sats>sats [0]>state");
    QCOMPARE(shown.state(), "1 of 1, from the top again");
}

void tst_findbar::removedElements_areSkipped()
{
    Shown shown;
    shown.find("good");
    QCOMPARE(shown.state(), "1 of 2");
    shown.source.send("Position{sats: [{state: Good}]}");
    QTRY_COMPARE(shown.row(5)->childCount(), 1);
    shown.press(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(shown.state(), "1 of 1, from the end again");
}

void tst_findbar::functionKey_opensTheClosedBarAgain()
{
    Shown shown;
    shown.find("volt");
    QTest::keyClick(shown.edit(), Qt::Key_Escape);
    QTest::keyClick(shown.tree(), Qt::Key_F3);
    QVERIFY(shown.bar()->isVisible());
    shown.wait();
    QCOMPARE(shown.edit()->text(), "volt");
    QVERIFY(shown.state().startsWith("1 of 1"));
}

void tst_findbar::buttons_doTheSame()
{
    Shown shown;
    shown.find("l");
    const auto buttons
        = shown.bar()->findChildren<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
    QStringList names;
    for (const QToolButton *button : buttons) {
        names += button->text();
        QVERIFY(!button->toolTip().isEmpty());
    }
    const auto click = [&](const char *name) {
        QTest::mouseClick(buttons.at(names.indexOf(name)), Qt::LeftButton);
    };
    click("Next");
    QCOMPARE(shown.current(), "Position>where>lon");
    click("Previous");
    QCOMPARE(shown.current(), "Position>where>lat");
    click("Close");
    QVERIFY(!shown.bar()->isVisible());
}

void tst_findbar::manyRows_neverStopTheEventLoop()
{
    constexpr int rows = 100'000;
    QStringList values;
    for (int i = 0; i < rows; ++i)
        values += QString::number(i % 1000);
    values[rows - 1] = "7777";
    Shown shown(QString("Position{volt: [%1]}").arg(values.join(',')));
    QCOMPARE(shown.row(4)->childCount(), rows);

    // Of this program alone, whatever else the machine does.
    double longestMs = 0;
    std::clock_t lastTick = 0;
    QTimer ticker;
    connect(&ticker, &QTimer::timeout, this, [&] {
        const std::clock_t now = std::clock();
        longestMs = std::max(longestMs, 1000.0 * double(now - lastTick) / CLOCKS_PER_SEC);
        lastTick = now;
    });
    QTest::keyClick(&shown.panel, Qt::Key_F, Qt::ControlModifier);
    lastTick = std::clock();
    ticker.start(0);
    shown.edit()->setText("777");
    QTRY_COMPARE(shown.state(), "1 of 101");
    QTest::keyClick(shown.edit(), Qt::Key_F3, Qt::ShiftModifier);
    QTRY_COMPARE(shown.state(), "101 of 101, from the end again");
    QCOMPARE(shown.current(), "Position>volt>volt [99999]");
    shown.edit()->setText("1");
    shown.wait();
    QTest::keyClick(shown.edit(), Qt::Key_Escape);
    QTest::qWait(1);
    ticker.stop();
    qInfo() << "longest stop of the event loop:" << longestMs << "ms";
    // People notice 50 ms; a build without optimisation, or with sanitizers, is slower.
    QVERIFY2(longestMs < 200, qPrintable(QString::number(longestMs)));
}

CORVANE_GUI_TEST_MAIN(tst_findbar)
#include "tst_findbar.moc"
