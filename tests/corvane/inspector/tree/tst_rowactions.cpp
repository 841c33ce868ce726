#include "expansion.h"
#include "inspectortree.h"
#include "latestmessages.h"
#include "messagetreepanel.h"
#include "rowactions.h"
#include "testcase.h"
#include "testformat.h"
#include "testsource.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>

using namespace corvane;
using namespace corvane::test;

class tst_rowactions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void keys_copy_data();
    void keys_copy();
    void copiedRow_isOneLineOfATable();
    void copiedMessage_isJson();
    void keys_sendPathsToWatchAndPlot_data();
    void keys_sendPathsToWatchAndPlot();
    void whatCannotBeDone_saysWhy_data();
    void whatCannotBeDone_saysWhy();
    void everyAction_hasKeyAndToolTip();
    void everyEntry_hasAMnemonicOfItsOwn();
    void filterByValue_hidesOtherElements();
    void formAndBytes_areAskedFor();
    void menu_opensByMouseAndKey();
    void expandAndCollapseBelow_byKey();
    void expandAndCollapseAll_byKey();
    void keysOutsideTheTree_doNothing();
};

namespace {

const char types[] = R"(
    Position
      height  double unit "m"
      mode    uint8 {Manual=0, Auto=2}
      status  uint16 mask {Armed=1, Moving=2}
        armed bits 0 bool
      label   text
      spare   int32 optional
      volt    int16[]
      where   Place
      sats    Satellite[]
    Place part
      lat     double
    Satellite part
      state   uint8 {Lost=0, Good=1}
)";

const char position[]
    = "Position @1500000 {height: 12, mode: Auto, status: Armed, label: \"a b\", volt: [100, 200], "
      "where: {lat: 4}, sats: [{state: Good}, {state: Lost}]}";

class Shown
{
public:
    Shown()
    {
        source.send(position);
        panel.resize(700, 500);
        panel.show();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        QTRY_VERIFY(at("sats [1]") != nullptr);
        tree()->setFocus();
        actions()->setPlotAvailable(true);
    }

    InspectorTree *tree() const { return panel.getTree(); }

    RowActions *actions() const { return panel.getRowActions(); }

    QTreeWidgetItem *at(const QString &name) const
    {
        return tree()->findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }

    void choose(const QString &name) const { tree()->setCurrentItem(at(name)); }

    void press(const QString &keys) const
    {
        const QKeyCombination key = QKeySequence(keys)[0];
        QTest::keyClick(tree(), key.key(), key.keyboardModifiers());
    }

    QAction *action(const QString &text) const
    {
        for (QAction *action : actions()->getActions())
            if (action->text().remove('&') == text)
                return action;
        return nullptr;
    }

    TestFormat format{QStringLiteral("Demo"), QLatin1String(types)};
    TestSource source{format};
    LatestMessages latest{source};
    MessageTreePanel panel{latest, *format.getInfo()};
};

} // namespace

void tst_rowactions::cleanup()
{
    QApplication::clipboard()->clear();
    forgetExpansion();
    TestCase::cleanup();
}

void tst_rowactions::keys_copy_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("value") << "mode"
                           << "Ctrl+C"
                           << "Auto";
    QTest::newRow("value of a list") << "sats"
                                     << "Ctrl+C"
                                     << "2 submessages";
    QTest::newRow("path") << "mode"
                          << "Ctrl+Shift+C"
                          << "Demo.Position.mode";
    QTest::newRow("path inside") << "lat"
                                 << "Ctrl+Shift+C"
                                 << "Demo.Position.where.lat";
    QTest::newRow("path of a type") << "Position"
                                    << "Ctrl+Shift+C"
                                    << "Demo.Position";
    QTest::newRow("row") << "volt [1]"
                         << "Ctrl+Shift+R"
                         << "volt [1]\tint16\t200";
}

void tst_rowactions::keys_copy()
{
    QFETCH(QString, row);
    QFETCH(QString, keys);
    const Shown shown;
    shown.choose(row);
    shown.press(keys);
    QTEST(QApplication::clipboard()->text(), "text");
}

void tst_rowactions::copiedRow_isOneLineOfATable()
{
    const Shown shown;
    shown.choose("label");
    shown.at("label")->setText(2, "a\tb\nc");
    shown.press("Ctrl+Shift+R");
    QCOMPARE(QApplication::clipboard()->text(), "label\ttext\ta b c");
}

void tst_rowactions::copiedMessage_isJson()
{
    const Shown shown;
    shown.choose("lat");
    shown.press("Ctrl+Shift+J");
    QCOMPARE(QApplication::clipboard()->text(),
             "{\"time\":\"1970-01-01T00:00:01.500000Z\",\"type\":\"Position\",\"fields\":{"
             "\"height\":12,\"mode\":\"Auto\",\"status\":\"Armed\",\"label\":\"a b\","
             "\"volt\":[100,200],\"where\":{\"lat\":4},"
             "\"sats\":[{\"state\":\"Good\"},{\"state\":\"Lost\"}]}}");
}

void tst_rowactions::keys_sendPathsToWatchAndPlot_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("watched");
    QTest::addColumn<QString>("plotted");
    QTest::newRow("field") << "height"
                           << "Demo.Position.height"
                           << "Demo.Position.height";
    QTest::newRow("bits") << "armed"
                          << "Demo.Position.status.armed"
                          << "Demo.Position.status.armed";
    QTest::newRow("element") << "volt [1]"
                             << "Demo.Position.volt"
                             << "Demo.Position.volt[1]";
    QTest::newRow("list") << "volt"
                          << "Demo.Position.volt"
                          << "Demo.Position.volt[0..1]";
    QTest::newRow("inside") << "lat"
                            << ""
                            << "Demo.Position.where.lat";
    QTest::newRow("in an element") << "state"
                                   << ""
                                   << "Demo.Position.sats[0].state";
    QTest::newRow("text") << "label"
                          << "Demo.Position.label"
                          << "";
    QTest::newRow("type") << "Position"
                          << ""
                          << "";
}

void tst_rowactions::keys_sendPathsToWatchAndPlot()
{
    QFETCH(QString, row);
    const Shown shown;
    QSignalSpy watched(shown.actions(), &RowActions::watchRequested);
    QSignalSpy plotted(shown.actions(), &RowActions::plotRequested);
    shown.choose(row);
    shown.press("Ctrl+Shift+W");
    shown.press("Ctrl+Shift+P");
    QTEST(watched.value(0).value(0).toString(), "watched");
    QTEST(plotted.value(0).value(0).toString(), "plotted");
}

void tst_rowactions::whatCannotBeDone_saysWhy_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no row") << ""
                            << "Copy Row"
                            << "No row is chosen";
    QTest::newRow("no value") << "where"
                              << "Copy Value"
                              << "This row has no value of its own";
    QTest::newRow("text") << "label"
                          << "Plot"
                          << "Only numeric fields can be plotted; this one is of type text";
    QTest::newRow("type") << "Position"
                          << "Plot"
                          << "A message type cannot be plotted; choose a numeric field";
    QTest::newRow("watched type") << "Position"
                                  << "Add to Watch"
                                  << "A message type cannot be watched; choose a field";
    QTest::newRow("watched inside") << "lat"
                                    << "Add to Watch"
                                    << "Fields inside sub-messages cannot be watched";
    QTest::newRow("filter") << "mode"
                            << "Filter by This Value"
                            << "Only values inside the elements of a list of sub-messages can be "
                               "filtered by";
    QTest::newRow("leaf") << "mode"
                          << "Expand Below"
                          << "There is nothing below this row";
}

void tst_rowactions::whatCannotBeDone_saysWhy()
{
    QFETCH(QString, row);
    QFETCH(QString, action);
    Shown shown;
    shown.choose(row);
    QVERIFY(!shown.action(action)->isEnabled());
    QTEST(shown.action(action)->toolTip(), "reason");
    shown.choose("state");
    if (action != "Add to Watch" && action != "Expand Below") {
        QVERIFY(shown.action(action)->isEnabled());
    }
    shown.actions()->setPlotAvailable(false);
    QCOMPARE(shown.action("Plot")->toolTip(), "This build has no plot");
}

void tst_rowactions::everyAction_hasKeyAndToolTip()
{
    const Shown shown;
    shown.choose("state");
    QSet<QString> keys;
    int count = 0;
    const QList<QAction *> all = shown.actions()->getActions() + shown.panel.getMenu()->actions();
    for (const QAction *action : all) {
        if (action->isSeparator() || action->menu() != nullptr)
            continue;
        QVERIFY(!action->toolTip().isEmpty());
        if (action->isCheckable())
            continue;
        ++count;
        const QString key = action->shortcut().toString();
        QVERIFY2(!key.isEmpty(), qPrintable(action->text()));
        QVERIFY2(!keys.contains(key), qPrintable(key));
        keys.insert(key);
    }
    QCOMPARE(count, 16);
}

void tst_rowactions::everyEntry_hasAMnemonicOfItsOwn()
{
    const Shown shown;
    for (const auto &menu : {shown.actions()->getActions(), shown.panel.getMenu()->actions()}) {
        QSet<QChar> letters;
        for (const QAction *action : menu) {
            if (action->isSeparator())
                continue;
            const auto mark = action->text().indexOf('&');
            QVERIFY2(mark >= 0, qPrintable(action->text()));
            const QChar letter = action->text().at(mark + 1).toLower();
            QVERIFY2(!letters.contains(letter), qPrintable(action->text()));
            letters.insert(letter);
        }
    }
}

void tst_rowactions::filterByValue_hidesOtherElements()
{
    const Shown shown;
    shown.choose("state"); // of the first element
    shown.press("Ctrl+Shift+L");
    QVERIFY(!shown.at("sats [0]")->isHidden());
    QVERIFY(shown.at("sats [1]")->isHidden());
    auto *edit = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(edit != nullptr);
    QCOMPARE(edit->text(), "Good");
    edit->clear();
    QVERIFY(!shown.at("sats [1]")->isHidden());
}

void tst_rowactions::formAndBytes_areAskedFor()
{
    const Shown shown;
    QSignalSpy form(shown.actions(), &RowActions::formRequested);
    QSignalSpy bytes(shown.actions(), &RowActions::bytesRequested);
    shown.choose("height");
    shown.press("Ctrl+Shift+F");
    shown.press("Ctrl+Shift+B");
    QCOMPARE(form.count(), 1);
    QCOMPARE(bytes.count(), 1);
}

void tst_rowactions::menu_opensByMouseAndKey()
{
    const Shown shown;
    shown.choose("height");
    for (int i = 0; i < 2; ++i) { // once for each time that it opens
        expectWarning("This plugin does not support raise()");
        expectWarning("This plugin does not support grabbing the keyboard");
    }
    auto *menu = shown.tree()->findChild<QMenu *>();
    QVERIFY(menu->toolTipsVisible());
    const QPoint place = shown.tree()->visualItemRect(shown.at("mode")).center();
    QTest::mouseClick(shown.tree()->viewport(), Qt::RightButton, {}, place);
    QCOMPARE(shown.tree()->currentItem(), shown.at("mode"));
    QContextMenuEvent byMouse(QContextMenuEvent::Mouse, place,
                              shown.tree()->viewport()->mapToGlobal(place));
    QApplication::sendEvent(shown.tree()->viewport(), &byMouse);
    QVERIFY(menu->isVisible());
    QTest::keyClick(menu, Qt::Key_C); // its mnemonic
    QCOMPARE(QApplication::clipboard()->text(), "Auto");
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(shown.tree(), &byKey);
    QVERIFY(menu->isVisible());
    menu->close();
}

void tst_rowactions::expandAndCollapseBelow_byKey()
{
    const Shown shown;
    shown.choose("sats");
    shown.press("Alt+Right");
    QVERIFY(shown.at("sats")->isExpanded());
    QVERIFY(shown.at("sats [1]")->isExpanded());
    QVERIFY(!shown.at("volt")->isExpanded());
    shown.press("Alt+Left");
    QVERIFY(!shown.at("sats")->isExpanded());
    QVERIFY(!shown.at("sats [1]")->isExpanded());
}

void tst_rowactions::expandAndCollapseAll_byKey()
{
    const Shown shown;
    shown.press("Ctrl+Right");
    QVERIFY(shown.at("sats [1]")->isExpanded());
    QVERIFY(shown.at("volt")->isExpanded());
    shown.press("Ctrl+Left");
    QVERIFY(!shown.at("Position")->isExpanded());
}

void tst_rowactions::keysOutsideTheTree_doNothing()
{
    const Shown shown;
    shown.choose("mode");
    auto *edit = shown.panel.findChild<QLineEdit *>();
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(QApplication::clipboard()->text(), "");
}

CORVANE_GUI_TEST_MAIN(tst_rowactions)
#include "tst_rowactions.moc"
