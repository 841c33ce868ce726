#include "corvane.h"
#include "messagetreewidget.h"
#include "shownwindow.h"
#include "watchpanel.h"

#include <QApplication>
#include <QRegularExpression>
#include <QTableWidget>

using namespace corvane;
using namespace corvane::test;

class tst_confidentialswitch : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void newWindow_showsNothingConfidential();
    void firstTime_asksAndWaitsForTheAnswer();
    void answerNo_keepsThemHidden();
    void confirmed_asksNotAgain();
    void tree_showsAndHidesTheFields();
    void form_showsAndHidesTheValues();
    void watch_showsAndHidesTheValues();
    void closedWindow_hidesThemAgain();
};

namespace {

/** A window on a recording whose positions are confidential. */
class Scene : public ShownWindow
{
public:
    Scene()
        : ShownWindow(std::nullopt,
                      {sourceFile(QStringLiteral("examples/recording/rover.overlay.json"))})
    {
        [[maybe_unused]] const bool ready
            = QTest::qWaitFor([this] { return indexOf(QStringLiteral("POSITION")).isValid(); });
    }

    QAction *theSwitch() const { return action(QStringLiteral("Show &Confidential Fields")); }

    void show() const
    {
        theSwitch()->trigger();
        if (QPushButton *yes = button(QStringLiteral("&Show Them")))
            QTest::keyClick(yes, Qt::Key_Space);
    }

    /** The names of the rows below POSITION in the tree. */
    QStringList treeRows() const
    {
        QStringList names;
        const auto items = window->findChild<MessageTreeWidget *>()->findItems(
            QStringLiteral("POSITION"), Qt::MatchExactly);
        for (int i = 0; !items.isEmpty() && i < items.constFirst()->childCount(); ++i)
            names += items.constFirst()->child(i)->text(0);
        return names;
    }
};

} // namespace

void tst_confidentialswitch::newWindow_showsNothingConfidential()
{
    Corvane::setConfidentialInformationDisplayEnabled(true);
    const Scene scene;
    QVERIFY(!Corvane::confidentialInformationDisplayEnabled());
    QVERIFY(!scene.theSwitch()->isChecked());
}

void tst_confidentialswitch::firstTime_asksAndWaitsForTheAnswer()
{
    const Scene scene;
    scene.theSwitch()->trigger();
    QVERIFY(!Corvane::confidentialInformationDisplayEnabled());
    QVERIFY(!scene.theSwitch()->isChecked());
    QVERIFY(scene.says(QStringLiteral("Confidential fields become readable")));
    QTest::keyClick(scene.button(QStringLiteral("&Show Them")), Qt::Key_Space);
    QVERIFY(Corvane::confidentialInformationDisplayEnabled());
    QVERIFY(scene.theSwitch()->isChecked());
    QVERIFY(scene.button(QStringLiteral("&Show Them")) == nullptr);
}

void tst_confidentialswitch::answerNo_keepsThemHidden()
{
    const Scene scene;
    scene.theSwitch()->trigger();
    QTest::mouseClick(scene.button(QStringLiteral("Keep Them Hidden")), Qt::LeftButton);
    QVERIFY(!Corvane::confidentialInformationDisplayEnabled());
    QVERIFY(scene.button(QStringLiteral("&Show Them")) == nullptr);
    scene.theSwitch()->trigger();
    QVERIFY(scene.button(QStringLiteral("&Show Them")) != nullptr);
}

void tst_confidentialswitch::confirmed_asksNotAgain()
{
    const Scene scene;
    scene.show();
    scene.theSwitch()->trigger();
    QVERIFY(!Corvane::confidentialInformationDisplayEnabled());
    scene.theSwitch()->trigger();
    QVERIFY(Corvane::confidentialInformationDisplayEnabled());
    QVERIFY(scene.button(QStringLiteral("&Show Them")) == nullptr);
}

void tst_confidentialswitch::tree_showsAndHidesTheFields()
{
    const Scene scene;
    const QStringList hidden = scene.treeRows();
    QVERIFY(hidden.contains(QStringLiteral("Hidden data")));
    QVERIFY(!hidden.contains(QStringLiteral("latitude")));
    scene.show();
    QVERIFY(scene.treeRows().contains(QStringLiteral("latitude")));
    QVERIFY(!scene.treeRows().contains(QStringLiteral("Hidden data")));
    scene.show();
    QCOMPARE(scene.treeRows(), hidden);
}

void tst_confidentialswitch::form_showsAndHidesTheValues()
{
    const Scene scene;
    scene.choose(QStringLiteral("POSITION"));
    const QStringList hidden = scene.form();
    QVERIFY(hidden.contains(QStringLiteral("latitude: (confidential)")));
    scene.show();
    QVERIFY(scene.form() != hidden);
    QVERIFY(scene.form().filter(QStringLiteral("(confidential)")).isEmpty());
    scene.show();
    QCOMPARE(scene.form(), hidden);
}

void tst_confidentialswitch::watch_showsAndHidesTheValues()
{
    Scene scene;
    auto *panel = scene.window->findChild<WatchPanel *>();
    panel->watch(QStringLiteral("MAVLink.POSITION.latitude"));
    const auto text = [panel] {
        return qobject_cast<QLabel *>(panel->findChild<QTableWidget *>()->cellWidget(0, 1))->text();
    };
    // The panel shows what came last, but counts only what comes once it watches.
    scene.session.start(scene.options);
    QTRY_COMPARE(text(), QStringLiteral("(confidential)"));
    scene.show();
    QVERIFY(text() != QStringLiteral("(confidential)"));
    QVERIFY(text().contains(QRegularExpression(QStringLiteral("\\d"))));
    scene.show();
    QCOMPARE(text(), QStringLiteral("(confidential)"));
}

void tst_confidentialswitch::closedWindow_hidesThemAgain()
{
    {
        const Scene scene;
        scene.show();
        QVERIFY(Corvane::confidentialInformationDisplayEnabled());
    }
    QVERIFY(!Corvane::confidentialInformationDisplayEnabled());
}

CORVANE_GUI_TEST_MAIN(tst_confidentialswitch)
#include "tst_confidentialswitch.moc"
