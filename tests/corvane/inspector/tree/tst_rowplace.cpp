#include "expansion.h"
#include "fieldinfo.h"
#include "inspectortree.h"
#include "messagetreewidgetitem.h"
#include "rowplace.h"
#include "testcase.h"
#include "testformat.h"

#include <QApplication>

using namespace corvane;
using namespace corvane::test;

class tst_rowplace : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void paths_areThoseOfPathExpressions_data();
    void paths_areThoseOfPathExpressions();
    void everyRow_isFoundByItsPlace();
    void places_outliveRowsThatAreBuiltAnew();
    void holder_isTheSubMessageAroundTheField();
    void otherRows_haveNoPlace();
};

namespace {

const char types[] = R"(
    Position
      height   double
      "odd.name" int8
      status   uint16 mask {Armed=1, Moving=2}
        armed  bits 0 bool
      words    uint8[]
        low    bits 0..3
      where    Place optional
      sats     Satellite[]
      secret   int32 confidential
    Place part
      lat      double
    Satellite part
      id       uint8
      seen     Place
)";

const char message[] = "Position{height: 1, 'odd.name': 2, status: Armed, words: [1, 2], "
                       "where: {lat: 3}, sats: [{id: 1, seen: {lat: 8}}, {id: 2, seen: {lat: 9}}]}";

class Shown
{
public:
    Shown()
        : received(format.message(QString(message).replace('\'', '"')))
    {
        row = new MessageTreeWidgetItem(&tree, format.type("Position"));
        tree.addTopLevelItem(row);
        row->configureInTreeWidget();
        tree.processMessage(received.get());
    }

    QTreeWidgetItem *at(const QList<int> &way) const
    {
        QTreeWidgetItem *found = tree.topLevelItem(0);
        for (const int i : way)
            found = found->child(i);
        return found;
    }

    TestFormat format{QStringLiteral("Demo"), QLatin1String(types)};
    MessageHolder received;
    InspectorTree tree;
    MessageTreeWidgetItem *row = nullptr;
};

} // namespace

void tst_rowplace::cleanup()
{
    forgetExpansion();
    TestCase::cleanup();
}

void tst_rowplace::paths_areThoseOfPathExpressions_data()
{
    // The first row below the message says that something is hidden.
    QTest::addColumn<QList<int>>("way");
    QTest::addColumn<QString>("path");
    QTest::newRow("type") << QList<int>{} << "Demo.Position";
    QTest::newRow("field") << QList<int>{1} << "Demo.Position.height";
    QTest::newRow("quoted") << QList<int>{2} << "Demo.Position.\"odd.name\"";
    QTest::newRow("bits") << QList<int>{3, 0} << "Demo.Position.status.armed";
    QTest::newRow("list") << QList<int>{4} << "Demo.Position.words";
    QTest::newRow("element") << QList<int>{4, 1} << "Demo.Position.words[1]";
    QTest::newRow("bits of an element") << QList<int>{4, 1, 0} << "Demo.Position.words.low[1]";
    QTest::newRow("sub-message") << QList<int>{5} << "Demo.Position.where";
    QTest::newRow("inside") << QList<int>{5, 0} << "Demo.Position.where.lat";
    QTest::newRow("inside twice") << QList<int>{6, 1, 1, 0} << "Demo.Position.sats[1].seen.lat";
}

void tst_rowplace::paths_areThoseOfPathExpressions()
{
    QFETCH(QList<int>, way);
    const Shown shown;
    QTEST(RowPlace::of(shown.at(way))->getPath(), "path");
}

void tst_rowplace::everyRow_isFoundByItsPlace()
{
    Shown shown;
    int count = 0;
    for (QTreeWidgetItemIterator row(&shown.tree); *row != nullptr; ++row) {
        const auto place = RowPlace::of(*row);
        if (!place)
            continue;
        ++count;
        QCOMPARE(place->findRow(shown.tree), *row);
    }
    QCOMPARE(count, 21);
}

void tst_rowplace::places_outliveRowsThatAreBuiltAnew()
{
    Shown shown;
    const auto place = RowPlace::of(shown.at({6, 1, 1, 0}));
    shown.tree.setShowVirtualFields(false); // builds all rows anew
    QCOMPARE(place->findRow(shown.tree)->text(2), "9");
    shown.tree.clear();
    QCOMPARE(place->findRow(shown.tree), nullptr);
}

void tst_rowplace::holder_isTheSubMessageAroundTheField()
{
    const Shown shown;
    const auto place = RowPlace::of(shown.at({6, 1, 1, 0}));
    const Message *holder = place->getHolder(shown.received.get());
    QCOMPARE(holder->getInfo(), shown.format.type("Place"));
    QCOMPARE(place->getField()->getValueText(holder, 0, true), "9");
    QCOMPARE(RowPlace::of(shown.at({1}))->getHolder(shown.received.get()), shown.received.get());
    const auto other = shown.format.message("Position{}");
    QCOMPARE(place->getHolder(other.get()), nullptr);
}

void tst_rowplace::otherRows_haveNoPlace()
{
    const Shown shown;
    QCOMPARE(shown.at({0})->text(0), "Hidden data");
    QVERIFY(!RowPlace::of(shown.at({0})));
    QVERIFY(!RowPlace::of(nullptr));
}

CORVANE_GUI_TEST_MAIN(tst_rowplace)
#include "tst_rowplace.moc"
