#include "abstractplotpanel.h"
#include "latestmessages.h"
#include "messagetreewidget.h"
#include "senderchooser.h"
#include "senderspanel.h"
#include "shownwindow.h"
#include "steadytreewidget.h"
#include "watchpanel.h"

#include <QApplication>
#include <QDockWidget>
#include <QTableWidget>

using namespace corvane;
using namespace corvane::test;

class tst_senderchooser : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void oneSender_isNoChoice();
    void severalSenders_areOffered();
    void chosen_treeShowsOnlyItsMessages();
    void chosen_formShowsOnlyItsMessages();
    void chosen_watchForgetsTheOthers();
    void chosen_everythingIsCountedOn();
    void chosen_plotBeginsAnew();
    void chosen_bytesOfTheOthersAreGone();
    void panel_choosesTheSender();
};

namespace {

/** A window on a recording of a rover, 1/1, and the station that watches it, 255/190. */
class Scene : public ShownWindow
{
public:
    Scene()
    {
        [[maybe_unused]] const bool isRead = QTest::qWaitFor([this] {
            return chooser()->count() == 3 && chooser()->isVisible()
                   && session.getReception().getTotals().frames == 1737;
        });
        QTest::qWait(3 * LatestMessages::frameMs); // the views have the last ones, too
    }

    SenderChooser *chooser() const { return window->findChild<SenderChooser *>(); }

    /** As people do it. */
    void chooseRow(int row) const
    {
        QTest::keyClick(chooser(), Qt::Key_Home);
        for (int i = 0; i < row; ++i)
            QTest::keyClick(chooser(), Qt::Key_Down);
    }

    /** The text of the field's value in the tree. */
    QString inTree(const QString &type, const QString &field) const
    {
        const auto *tree = window->findChild<MessageTreeWidget *>();
        const auto rows = tree->findItems(type, Qt::MatchExactly);
        for (int i = 0; !rows.isEmpty() && i < rows.constFirst()->childCount(); ++i)
            if (rows.constFirst()->child(i)->text(0) == field)
                return rows.constFirst()->child(i)->text(2);
        return QStringLiteral("(no row)");
    }
};

} // namespace

void tst_senderchooser::oneSender_isNoChoice()
{
    SenderTable table([](quint32 id) { return QString::number(id); });
    SenderChooser chooser(table);
    QVERIFY(!chooser.hasChoice());
    table.get(5).receive(0);
    chooser.refresh();
    QVERIFY(!chooser.hasChoice());
    table.getDoubtful(7)->countCrcError(nullptr);
    chooser.refresh();
    QVERIFY(!chooser.hasChoice());
    table.get(6).receive(0);
    chooser.refresh();
    QVERIFY(chooser.hasChoice());
    QCOMPARE(chooser.itemText(0), QStringLiteral("All 2 senders: the last one wins"));
}

void tst_senderchooser::severalSenders_areOffered()
{
    const Scene scene;
    QVERIFY(scene.chooser()->isVisible());
    QCOMPARE(scene.chooser()->currentText(), QStringLiteral("All 2 senders: the last one wins"));
    QCOMPARE(scene.chooser()->itemText(1), QStringLiteral("Only sender 1/1"));
    QCOMPARE(scene.chooser()->itemText(2), QStringLiteral("Only sender 255/190"));
}

void tst_senderchooser::chosen_treeShowsOnlyItsMessages()
{
    const Scene scene;
    QTRY_VERIFY(!scene.inTree("MOTION", "heading").isEmpty());
    const QString before = scene.inTree("MOTION", "heading");
    scene.chooseRow(2);
    QVERIFY(scene.inTree("MOTION", "heading") != before);
    QVERIFY(!scene.inTree("HEARTBEAT", "uptime").isEmpty());
    scene.chooseRow(1);
    QCOMPARE(scene.inTree("MOTION", "heading"), before);
    scene.chooseRow(0);
    QCOMPARE(scene.inTree("MOTION", "heading"), before);
}

void tst_senderchooser::chosen_formShowsOnlyItsMessages()
{
    const Scene scene;
    scene.choose("MOTION");
    const QStringList before = scene.form();
    QVERIFY(!before.constFirst().endsWith("N/A"));
    scene.chooseRow(2);
    QVERIFY(scene.form().constFirst().endsWith("N/A"));
    scene.chooseRow(1);
    QCOMPARE(scene.form(), before);
}

void tst_senderchooser::chosen_watchForgetsTheOthers()
{
    Scene scene;
    auto *panel = scene.window->findChild<WatchPanel *>();
    panel->watch("MAVLink.MOTION.heading");
    scene.session.start(scene.options);
    const auto *table = panel->findChild<QTableWidget *>();
    QTRY_COMPARE(table->item(0, 3)->text(), QStringLiteral("Current"));
    scene.chooseRow(2);
    QCOMPARE(table->item(0, 3)->text(), QStringLiteral("Not received yet"));
    scene.chooseRow(1);
    QTRY_COMPARE(table->item(0, 3)->text(), QStringLiteral("Current"));
}

void tst_senderchooser::chosen_everythingIsCountedOn()
{
    Scene scene;
    scene.chooseRow(2);
    QTRY_COMPARE(scene.indexOf("MOTION").siblingAtColumn(1).data().toString(),
                 QStringLiteral("596"));
    scene.session.start(scene.options);
    QTRY_COMPARE(scene.session.getReception().getTotals().frames, quint64(2 * 1737));
    QTRY_COMPARE(scene.indexOf("MOTION").siblingAtColumn(1).data().toString(),
                 QString::number(2 * 596));
}

void tst_senderchooser::chosen_plotBeginsAnew()
{
    Scene scene;
    auto *dock = scene.window->findChild<QDockWidget *>("plot");
    if (dock == nullptr)
        QSKIP("built without plot");
    auto *plot = dynamic_cast<AbstractPlotPanel *>(dock->widget());
    plot->addSeries("MAVLink.MOTION.heading");
    const auto state = [plot] {
        const auto *model = plot->findChild<QAbstractItemView *>()->model();
        QStringList texts;
        for (int column = 0; column < model->columnCount(); ++column)
            texts += model->index(0, column).data().toString();
        return texts.join(QLatin1Char(';'));
    };
    scene.session.start(scene.options);
    dock->raise();
    QTRY_VERIFY2(state().contains("Received"), qPrintable(state()));
    scene.chooseRow(2);
    QVERIFY2(state().contains("Not received yet"), qPrintable(state()));
    QSignalSpy finished(&scene.session, &Session::finished);
    scene.session.start(scene.options);
    QVERIFY(finished.wait());
    QVERIFY2(state().contains("Not received yet"), qPrintable(state()));
    scene.chooseRow(1);
    scene.session.start(scene.options);
    QTRY_VERIFY2(state().contains("Received"), qPrintable(state()));
}

void tst_senderchooser::chosen_bytesOfTheOthersAreGone()
{
    const Scene scene;
    auto *dock = scene.window->findChild<QDockWidget *>("bytes");
    dock->raise();
    auto *tree = scene.window->findChild<MessageTreeWidget *>();
    tree->setCurrentItem(tree->findItems("MOTION", Qt::MatchExactly).value(0));
    const auto heading = [dock] { return dock->widget()->findChild<QLabel *>()->text(); };
    QTRY_VERIFY2(heading().contains(" bytes"), qPrintable(heading()));
    scene.chooseRow(2);
    QTRY_VERIFY2(heading().contains("no message of this type"), qPrintable(heading()));
    scene.chooseRow(1);
    QTRY_VERIFY2(heading().contains(" bytes"), qPrintable(heading()));
}

void tst_senderchooser::panel_choosesTheSender()
{
    const Scene scene;
    auto *panel = scene.window->findChild<SendersPanel *>();
    qobject_cast<QDockWidget *>(panel->parentWidget())->raise();
    auto *tree = panel->findChild<SteadyTreeWidget *>();
    QTRY_COMPARE(tree->topLevelItemCount(), 2);
    tree->setCurrentItem(tree->findItems("255/190", Qt::MatchExactly).constFirst());
    QTest::keyClick(tree, Qt::Key_Return);
    QCOMPARE(scene.chooser()->currentText(), QStringLiteral("Only sender 255/190"));
    QVERIFY(!scene.inTree("HEARTBEAT", "uptime").isEmpty());
}

CORVANE_GUI_TEST_MAIN(tst_senderchooser)
#include "tst_senderchooser.moc"
