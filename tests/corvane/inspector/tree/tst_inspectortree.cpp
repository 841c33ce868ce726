#include "corvane.h"
#include "expansion.h"
#include "inspectortree.h"
#include "messagetreefilter.h"
#include "messagetreewidgetitem.h"
#include "plainmarkup.h"
#include "rowdescription.h"
#include "testcase.h"
#include "testformat.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QImage>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolTip>

using namespace corvane;
using namespace corvane::test;

class tst_inspectortree : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void annotation_isUnitAndHexadecimal_data();
    void annotation_isUnitAndHexadecimal();
    void annotation_leavesTextsAlone();
    void annotation_isPaintedBesideTheValue();
    void confidentialValues_haveNoAnnotation();
    void emptyTree_saysWhatWouldFillIt();
    void toolTip_describesTheRow();
    void description_saysWhatIsMissing_data();
    void description_saysWhatIsMissing();
    void description_beforeTheFirstMessage();
    void description_countsWhatTheFilterHides();
    void menuKey_asksForAMenuAtTheCurrentRow();
    void goTo_bringsRowsIntoSight();
    void expandBelow_isRemembered();
    void expandAll_isRemembered();
};

namespace {

const char types[] = R"(
    Position 'Where it is'
      height   double unit "m" 'Above the ground'
      mode     uint8 unit "x" {Manual=0, Auto=2}
      spare    int32 optional
      code     int8
      name     text unit "m"
      where    Place optional
      sats     Satellite[]
      notes    int8[]
      twice    double virtual
      secret   int32 confidential
    Place part
      lat      double unit "deg"
    Satellite part
      state    uint8 {Lost=0, Good=1}
)";

class Shown
{
public:
    explicit Shown(const QString &message
                   = QStringLiteral("Position{height: 12, mode: Auto, code: -1, name: \"a\", sats: "
                                    "[{state: Good}, {state: Lost}]}"))
        : received(format.message(message))
    {
        row = new MessageTreeWidgetItem(&tree, format.type("Position"));
        tree.addTopLevelItem(row);
        row->configureInTreeWidget();
        tree.processMessage(received.get());
        tree.resize(600, 400);
        tree.setColumnWidth(0, 200);
    }

    QTreeWidgetItem *at(const QString &name) const
    {
        const auto found = tree.findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
        return found.value(0);
    }

    TestFormat format{QStringLiteral("Demo"), QLatin1String(types)};
    MessageHolder received;
    InspectorTree tree;
    MessageTreeWidgetItem *row = nullptr;
};

QImage imageOf(QWidget &widget)
{
    return widget.grab().toImage();
}

} // namespace

void tst_inspectortree::cleanup()
{
    Corvane::setConfidentialInformationDisplayEnabled(false);
    forgetExpansion();
    TestCase::cleanup();
}

void tst_inspectortree::annotation_isUnitAndHexadecimal_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("units");
    QTest::addColumn<QString>("hexadecimal");
    QTest::newRow("float") << "height"
                           << "m"
                           << "";
    QTest::newRow("named") << "mode"
                           << "x"
                           << "0x02";
    QTest::newRow("absent") << "spare"
                            << ""
                            << "";
    QTest::newRow("negative") << "code"
                              << ""
                              << "0xFF";
    QTest::newRow("text") << "name"
                          << ""
                          << "";
    QTest::newRow("list") << "sats"
                          << ""
                          << "";
    QTest::newRow("message") << "Position"
                             << ""
                             << "";
}

void tst_inspectortree::annotation_isUnitAndHexadecimal()
{
    QFETCH(QString, row);
    Shown shown;
    QTEST(shown.tree.getAnnotation(shown.at(row)), "units");
    shown.tree.setUnitsShown(false);
    QCOMPARE(shown.tree.getAnnotation(shown.at(row)), "");
    shown.tree.setHexadecimalShown(true);
    QTEST(shown.tree.getAnnotation(shown.at(row)), "hexadecimal");
}

void tst_inspectortree::annotation_leavesTextsAlone()
{
    Shown shown;
    shown.tree.setHexadecimalShown(true);
    QCOMPARE(shown.at("height")->text(2), "12");
    QCOMPARE(shown.tree.getAnnotation(shown.at("mode")), "x  0x02");
}

void tst_inspectortree::annotation_isPaintedBesideTheValue()
{
    Shown shown;
    shown.tree.setUnitsShown(false);
    const QImage without = imageOf(shown.tree);
    shown.tree.setUnitsShown(true);
    const QImage with = imageOf(shown.tree);
    QVERIFY(with != without);
    // Only behind the text of the value.
    const QRect cell
        = shown.tree.visualItemRect(shown.at("height")).translated(shown.tree.viewport()->pos());
    const int end = shown.tree.columnViewportPosition(2) + shown.tree.viewport()->x()
                    + shown.tree.fontMetrics().horizontalAdvance("12");
    QCOMPARE(with.copy(QRect(0, cell.y(), end, cell.height())),
             without.copy(QRect(0, cell.y(), end, cell.height())));
    shown.tree.setColumnWidth(2, 4); // no room: nothing else is painted over
    imageOf(shown.tree);
}

void tst_inspectortree::confidentialValues_haveNoAnnotation()
{
    Corvane::setConfidentialInformationDisplayEnabled(true);
    const Shown shown("Position{secret: 42}");
    Corvane::setConfidentialInformationDisplayEnabled(false);
    QVERIFY(shown.at("secret") != nullptr); // until rows are built anew
    auto &tree = const_cast<InspectorTree &>(shown.tree);
    tree.setHexadecimalShown(true);
    QCOMPARE(tree.getAnnotation(shown.at("secret")), "");
    Corvane::setConfidentialInformationDisplayEnabled(true);
    QCOMPARE(tree.getAnnotation(shown.at("secret")), "0x0000002A");
}

void tst_inspectortree::emptyTree_saysWhatWouldFillIt()
{
    InspectorTree tree;
    tree.resize(400, 300);
    const QImage before = imageOf(tree);
    tree.setEmptyText("Nothing has come yet");
    QVERIFY(imageOf(tree) != before);
    QCOMPARE(tree.accessibleDescription(), "Nothing has come yet");
    auto *row = new QTreeWidgetItem({"a row"});
    tree.addTopLevelItem(row);
    const QImage withText = imageOf(tree);
    tree.setEmptyText({});
    QCOMPARE(imageOf(tree), withText);
}

void tst_inspectortree::toolTip_describesTheRow()
{
    expectWarning("This plugin does not support raise()");
    Shown shown;
    shown.tree.show();
    const QPoint place = shown.tree.visualItemRect(shown.at("height")).center();
    QHelpEvent help(QEvent::ToolTip, place, shown.tree.viewport()->mapToGlobal(place));
    QApplication::sendEvent(shown.tree.viewport(), &help);
    QCOMPARE(QToolTip::text(), plainMarkup("Demo.Position.height\ndouble in m\nAbove the ground"));
    QToolTip::hideText();
}

void tst_inspectortree::description_saysWhatIsMissing_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("last");
    QTest::newRow("there") << "mode"
                           << "uint8 in x";
    QTest::newRow("optional") << "spare"
                              << "Absent: the newest message came without this field.";
    QTest::newRow("list") << "notes"
                          << "Empty in the newest message.";
    QTest::newRow("computed") << "twice"
                              << "Absent: what it is computed from is not in the newest message.";
    QTest::newRow("around") << "lat"
                            << "Absent: the newest message came without the sub-message around it.";
    QTest::newRow("hidden") << "Hidden data"
                            << "Due to confidentiality, the data in this message has been (partly) "
                               "hidden.";
    QTest::newRow("bytes") << "name"
                           << "Cut: only the beginning of 312 bytes is shown.";
}

void tst_inspectortree::description_saysWhatIsMissing()
{
    QFETCH(QString, row);
    const Shown shown("Position{mode: Auto, name: \"0x00… (cut, 312 bytes)\"}");
    QVERIFY(shown.at(row) != nullptr);
    QTEST(describeRow(shown.at(row)).constLast(), "last");
}

void tst_inspectortree::description_beforeTheFirstMessage()
{
    const TestFormat format("Demo", QLatin1String(types));
    InspectorTree tree;
    auto *row = new MessageTreeWidgetItem(&tree, format.type("Position"));
    tree.addTopLevelItem(row);
    row->configureInTreeWidget();
    QCOMPARE(
        describeRow(row),
        QStringList({"Demo.Position", "No message of this type has come yet.", "Where it is"}));
    QCOMPARE(describeRow(nullptr), QStringList());
}

void tst_inspectortree::description_countsWhatTheFilterHides()
{
    Shown shown;
    MessageTreeFilter filter;
    shown.row->setFilter(&filter);
    filter.setSearchString("Good");
    QCOMPARE(describeRow(shown.at("sats")).constLast(), "1 of 2 elements do not pass the filter.");
    filter.setSearchString({});
    QCOMPARE(describeRow(shown.at("sats")).constLast(), "list of Satellite");
}

void tst_inspectortree::menuKey_asksForAMenuAtTheCurrentRow()
{
    Shown shown;
    shown.tree.show();
    shown.tree.setCurrentItem(shown.at("mode"));
    QSignalSpy spy(&shown.tree, &InspectorTree::menuRequested);
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
    QApplication::sendEvent(shown.tree.viewport(), &byKey);
    QCOMPARE(spy.count(), 1);
    const QPoint place = shown.tree.viewport()->mapFromGlobal(spy.at(0).at(0).toPoint());
    QCOMPARE(shown.tree.itemAt(place), shown.at("mode"));
}

void tst_inspectortree::goTo_bringsRowsIntoSight()
{
    InspectorTree tree;
    for (int i = 0; i < 1000; ++i)
        tree.addTopLevelItem(new QTreeWidgetItem({QString::number(i)}));
    tree.resize(300, 300);
    tree.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tree));
    const auto yOf
        = [&](int row) { return tree.visualItemRect(tree.topLevelItem(row)).center().y(); };
    const int height = tree.viewport()->height();
    tree.goTo(tree.topLevelItem(500));
    QVERIFY(tree.topLevelItem(500)->isSelected());
    QVERIFY(yOf(500) > height / 4 && yOf(500) < height * 3 / 4);
    tree.goTo(tree.topLevelItem(502));
    QVERIFY(yOf(500) > height / 4 && yOf(500) < height * 3 / 4); // nothing moves without need
    tree.goTo(tree.topLevelItem(3));
    QVERIFY(yOf(3) > 0 && yOf(3) < height);
    QVERIFY(!tree.topLevelItem(502)->isSelected());
    tree.verticalScrollBar()->setValue(900);
    tree.goTo(tree.topLevelItem(3)); // the current one already
    QVERIFY(yOf(3) > 0 && yOf(3) < height);
}

void tst_inspectortree::expandBelow_isRemembered()
{
    Shown shown;
    QTreeWidgetItem *sats = shown.at("sats");
    shown.tree.setExpandedBelow(sats, true);
    QVERIFY(sats->isExpanded());
    QVERIFY(sats->child(1)->isExpanded());
    shown.tree.setShowVirtualFields(false); // builds all rows anew
    QVERIFY(shown.at("sats")->isExpanded());
    QVERIFY(shown.at("sats")->child(0)->isExpanded());
    QVERIFY(!shown.at("notes")->isExpanded());
    shown.tree.setExpandedBelow(shown.at("sats"), false);
    QVERIFY(!shown.at("sats")->isExpanded());
    QVERIFY(!shown.at("sats")->child(1)->isExpanded());
    QVERIFY(shown.row->isExpanded());
}

void tst_inspectortree::expandAll_isRemembered()
{
    Shown shown;
    shown.tree.setAllExpanded(true);
    QVERIFY(shown.at("sats")->isExpanded());
    const auto more = shown.format.message("Position{sats: [{}, {}, {}]}");
    shown.tree.processMessage(more.get());
    QVERIFY(shown.at("sats")->child(2)->isExpanded()); // one that came afterwards
    shown.tree.setAllExpanded(false);
    shown.tree.setShowVirtualFields(false);
    QVERIFY(!shown.row->isExpanded());
    QVERIFY(!shown.at("sats")->isExpanded());
}

CORVANE_GUI_TEST_MAIN(tst_inspectortree)
#include "tst_inspectortree.moc"
