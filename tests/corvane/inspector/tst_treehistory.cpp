#include "corvane.h"
#include "latestmessages.h"
#include "messagetreepanel.h"
#include "messagetreewidget.h"
#include "testcase.h"
#include "testformat.h"
#include "testsource.h"
#include "treehistory.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QSettings>
#include <QTemporaryDir>

using namespace corvane;
using namespace corvane::test;

class tst_treehistory : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void off_leavesTheTreeAsItIs();
    void on_addsAColumnAndOffRemovesIt();
    void on_leavesTheWidthsOfTheOthers();
    void numericRows_haveALine();
    void otherColumns_keepTheTreesDelegate();
    void otherColumn_toggled_keepsTheHistory();
    void paused_standsStill();
    void confidentialValues_haveNone();
    void settings_rememberTheColumn();
};

namespace {

const char types[] = R"(
    Position
      height double
      note   text
      secret int32 confidential
)";

class Shown
{
public:
    Shown()
    {
        panel.resize(700, 300);
        panel.show();
        source.send("Position{height: 1, note: \"x\", secret: 1}");
        QTest::qWait(2 * LatestMessages::frameMs);
    }

    MessageTreeWidget *tree() const { return panel.findChild<MessageTreeWidget *>(); }

    QAction *action() const { return panel.findChild<TreeHistory *>()->getAction(); }

    int column() const { return tree()->getColumnIndex(MessageTreeWidget::Custom1); }

    QStringList headers() const
    {
        QStringList all;
        for (int i = 0; i < tree()->columnCount(); ++i)
            all += tree()->headerItem()->text(i);
        return all;
    }

    /** Sends different numbers for a while. */
    void sendSome()
    {
        for (int i = 0; i < 12; ++i) {
            source.send(QStringLiteral("Position{height: %1, note: \"x\", secret: %1}").arg(i % 4));
            QTest::qWait(TreeHistory::intervalMs);
        }
    }

    QImage cellOf(const QTreeWidgetItem *row) const
    {
        const QRect cell = tree()->visualRect(tree()->indexFromItem(row, column()));
        return tree()->viewport()->grab(cell.adjusted(3, 3, -3, -3)).toImage();
    }

    /** The names of the rows in whose cell of the history something is drawn. */
    QStringList rowsWithLine() const
    {
        QStringList names;
        for (int i = 0; i < tree()->topLevelItem(0)->childCount(); ++i) {
            const QTreeWidgetItem *row = tree()->topLevelItem(0)->child(i);
            const QImage cell = cellOf(row);
            QImage plain = cell;
            plain.fill(cell.pixelColor(0, 0));
            if (cell != plain)
                names += row->text(0);
        }
        return names;
    }

    TestFormat format{QStringLiteral("Demo"), QLatin1String(types)};
    TestSource source{format};
    LatestMessages latest{source};
    MessageTreePanel panel{latest, *format.getInfo()};
};

} // namespace

void tst_treehistory::off_leavesTheTreeAsItIs()
{
    const Shown shown;
    QVERIFY(!shown.action()->isChecked());
    QCOMPARE(shown.headers(), QStringList({"Name", "Type", "Value"}));
}

void tst_treehistory::on_addsAColumnAndOffRemovesIt()
{
    const Shown shown;
    shown.action()->trigger();
    QCOMPARE(shown.headers(), QStringList({"Name", "Type", "Value", "History"}));
    shown.action()->trigger();
    QCOMPARE(shown.headers(), QStringList({"Name", "Type", "Value"}));
    QVERIFY(!shown.action()->isChecked());
}

void tst_treehistory::on_leavesTheWidthsOfTheOthers()
{
    const Shown shown;
    shown.tree()->setColumnWidth(0, 234);
    shown.action()->trigger();
    QCOMPARE(shown.tree()->columnWidth(0), 234);
}

void tst_treehistory::numericRows_haveALine()
{
    Shown shown;
    shown.action()->trigger();
    QCOMPARE(shown.rowsWithLine(), QStringList()); // and the column's own text is not shown
    shown.sendSome();
    QCOMPARE(shown.rowsWithLine(), QStringList("height"));
}

void tst_treehistory::otherColumns_keepTheTreesDelegate()
{
    const Shown shown;
    shown.action()->trigger();
    for (int i = 0; i < shown.tree()->columnCount(); ++i)
        QCOMPARE(shown.tree()->itemDelegateForColumn(i) != nullptr, i == shown.column());
}

void tst_treehistory::otherColumn_toggled_keepsTheHistory()
{
    const Shown shown;
    shown.action()->trigger();
    shown.tree()->getToggleTypeColumnAction()->trigger();
    QVERIFY(shown.action()->isChecked());
    QVERIFY(shown.headers().contains("History"));
    for (int i = 0; i < shown.tree()->columnCount(); ++i)
        QCOMPARE(shown.tree()->itemDelegateForColumn(i) != nullptr, i == shown.column());
}

void tst_treehistory::paused_standsStill()
{
    Shown shown;
    shown.action()->trigger();
    shown.latest.setPaused(true);
    shown.sendSome();
    QCOMPARE(shown.rowsWithLine(), QStringList());
}

void tst_treehistory::confidentialValues_haveNone()
{
    Shown shown;
    shown.action()->trigger();
    shown.sendSome();
    QCOMPARE(shown.rowsWithLine(), QStringList("height"));
    Corvane::setConfidentialInformationDisplayEnabled(true);
    shown.tree()->reconfigureTopLevelAbstractMessageTreeWidgetItems();
    shown.sendSome();
    QCOMPARE(shown.rowsWithLine(), QStringList({"height", "secret"}));
    Corvane::setConfidentialInformationDisplayEnabled(false);
    QCOMPARE(shown.rowsWithLine(), QStringList());
}

void tst_treehistory::settings_rememberTheColumn()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("s.ini"), QSettings::IniFormat);
    {
        Shown shown;
        shown.action()->trigger();
        shown.panel.saveSettings(settings);
    }
    Shown shown;
    shown.panel.restoreSettings(settings);
    QVERIFY(shown.action()->isChecked());
    QCOMPARE(shown.headers(), QStringList({"Name", "Type", "Value", "History"}));
}

CORVANE_GUI_TEST_MAIN(tst_treehistory)
#include "tst_treehistory.moc"
