#include "helppanel.h"
#include "shownwindow.h"

#include <QApplication>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

using namespace corvane;
using namespace corvane::test;

class tst_helppanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void key_opensThePage();
    void page_hasAllKeysOfTheWindow();
    void about_hasTheVersions();
    void actions_haveToolTips();
    void keys_areUsedOnce();
};

void tst_helppanel::key_opensThePage()
{
    const ShownWindow shown;
    const auto *dock = shown.window->findChild<QDockWidget *>("help");
    QVERIFY(!dock->isVisible());
    QTest::keyClick(shown.window.get(), Qt::Key_F1);
    QVERIFY(dock->isVisible());
    QVERIFY(shown.window->findChild<HelpPanel *>()->getText().contains("Open a source"));
}

void tst_helppanel::page_hasAllKeysOfTheWindow()
{
    const ShownWindow shown;
    QTest::keyClick(shown.window.get(), Qt::Key_F1);
    const QString text = shown.window->findChild<HelpPanel *>()->getText();
    int keys = 0;
    for (const QAction *action : shown.window->findChildren<QAction *>())
        for (const QKeySequence &key : action->shortcuts()) {
            if (action->text().isEmpty())
                continue;
            ++keys;
            QVERIFY2(text.contains(key.toString(QKeySequence::NativeText)),
                     qPrintable(action->text()));
        }
    QVERIFY(keys > 10);
    QVERIFY(text.contains("Ctrl+R") && text.contains("Record"));
}

void tst_helppanel::about_hasTheVersions()
{
    const ShownWindow shown;
    shown.action("&About")->trigger();
    const auto *box = shown.window->findChild<QMessageBox *>();
    QVERIFY(box != nullptr && box->isVisible());
    QVERIFY(box->text().contains(QString::fromLatin1(qVersion())));
    for (const char *part : {"Corvane Inspector", "Framework", "Protocol Buffers 3."})
        QVERIFY2(box->text().contains(part), part);
}

void tst_helppanel::actions_haveToolTips()
{
    const ShownWindow shown;
    for (const QMenu *menu : shown.window->findChildren<QMenu *>()) {
        for (const QAction *action : menu->actions()) {
            if (action->isSeparator() || action->menu() != nullptr)
                continue;
            // Without one of its own an action gives its text.
            QVERIFY2(action->toolTip() != QAction(action->text()).toolTip(),
                     qPrintable(action->text()));
        }
    }
}

void tst_helppanel::keys_areUsedOnce()
{
    const ShownWindow shown;
    QHash<QString, QString> seen;
    for (const QAction *action : shown.window->findChildren<QAction *>()) {
        if (action->shortcutContext() != Qt::WindowShortcut)
            continue;
        for (const QKeySequence &key : action->shortcuts()) {
            const QString text = key.toString();
            QVERIFY2(!seen.contains(text), qPrintable(text + ": " + action->text()));
            seen.insert(text, action->text());
        }
    }
}

CORVANE_GUI_TEST_MAIN(tst_helppanel)
#include "tst_helppanel.moc"
