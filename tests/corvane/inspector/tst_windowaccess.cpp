#include "noticearea.h"
#include "shownwindow.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QMenuBar>
#include <QSet>
#include <QToolBar>

using namespace corvane;
using namespace corvane::test;

/** The window for people who use no mouse, or hear it, or have little room. */
class tst_windowaccess : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void controls_haveNames();
    void tab_reachesEveryPanel_data();
    void tab_reachesEveryPanel();
    void tools_areInMenusAsWell();
    void smallWindow_holdsEverything_data();
    void smallWindow_holdsEverything();
};

namespace {

const QStringList panelNames{"types",  "form",    "watch", "bytes", "statistics",
                             "events", "senders", "plot",  "help"};

QDockWidget *raised(const ShownWindow &shown, const QString &name)
{
    auto *dock = shown.window->findChild<QDockWidget *>(name);
    if (dock != nullptr) {
        dock->show();
        dock->raise();
        QCoreApplication::processEvents();
    }
    return dock;
}

QString nameOf(QWidget *widget)
{
    const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
    return interface != nullptr ? interface->text(QAccessible::Name) : QString();
}

/** Not the buttons of a panel's title bar and of an edit, which are the style's. */
bool isControl(const QWidget *widget)
{
    if (qobject_cast<const QDockWidget *>(widget->parentWidget()) != nullptr
        || qobject_cast<const QLineEdit *>(widget->parentWidget()) != nullptr)
        return false;
    return qobject_cast<const QAbstractButton *>(widget) != nullptr
           || qobject_cast<const QComboBox *>(widget) != nullptr
           || qobject_cast<const QLineEdit *>(widget) != nullptr;
}

/** Whether it belongs to a panel behind another one, which counts as visible for Qt. */
bool isBehind(const QWidget *widget)
{
    while (widget != nullptr && qobject_cast<const QDockWidget *>(widget) == nullptr)
        widget = widget->parentWidget();
    return widget != nullptr && widget->visibleRegion().isEmpty();
}

/** Whether all of the widget is inside each widget that it is part of. */
bool isWhollyInside(const QWidget *widget, const QWidget *window)
{
    for (const QWidget *parent = widget->parentWidget(); parent != nullptr;
         parent = parent->parentWidget())
    {
        const QRect place(widget->mapTo(parent, QPoint()), widget->size());
        if (!parent->rect().contains(place))
            return false;
        if (parent == window)
            break;
    }
    return true;
}

QString describe(const QWidget *widget)
{
    return QStringLiteral("%1 in %2")
        .arg(QLatin1String(widget->metaObject()->className()),
             QLatin1String(widget->parentWidget()->metaObject()->className()));
}

} // namespace

void tst_windowaccess::controls_haveNames()
{
    const ShownWindow shown;
    for (const QString &name : panelNames) {
        raised(shown, name);
        for (QWidget *widget : shown.window->findChildren<QWidget *>())
            if (widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) != 0)
                QVERIFY2(!nameOf(widget).isEmpty(), qPrintable(describe(widget)));
    }
}

void tst_windowaccess::tab_reachesEveryPanel_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : panelNames)
        QTest::newRow(qPrintable(name)) << name;
}

void tst_windowaccess::tab_reachesEveryPanel()
{
    QFETCH(QString, name);
    const ShownWindow shown;
    QVERIFY(QTest::qWaitForWindowActive(shown.window.get()));
    const QDockWidget *dock = raised(shown, name);
    if (dock == nullptr)
        QSKIP("built without plot");
    shown.types()->setFocus();
    QSet<const QWidget *> reached;
    for (int i = 0; i < 100; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached.insert(QApplication::focusWidget());
    }
    QVERIFY(reached.contains(shown.types()));
    const auto isInPanel = [dock](const QWidget *widget) { return dock->isAncestorOf(widget); };
    QVERIFY(std::any_of(reached.begin(), reached.end(), isInPanel));
}

void tst_windowaccess::tools_areInMenusAsWell()
{
    // The buttons of a tool bar take no focus, so what they do is in a menu.
    const ShownWindow shown;
    QSet<const QAction *> inMenus;
    for (const QMenu *menu : shown.window->menuBar()->findChildren<QMenu *>())
        for (const QAction *action : menu->actions())
            inMenus.insert(action);
    const auto *bar = shown.window->findChild<QToolBar *>("tools");
    for (QAction *action : bar->actions())
        if (!action->isSeparator() && bar->widgetForAction(action)->focusPolicy() == Qt::NoFocus)
            QVERIFY2(inMenus.contains(action), qPrintable(action->text()));
}

void tst_windowaccess::smallWindow_holdsEverything_data()
{
    tab_reachesEveryPanel_data();
}

void tst_windowaccess::smallWindow_holdsEverything()
{
    QFETCH(QString, name);
    const ShownWindow shown;
    shown.window->showState(QString(500, QLatin1Char('m')));
    shown.window->getNotices()->say("a", "Something has happened that people should know of, and "
                                         "it takes more than a few words to tell.");
    if (raised(shown, name) == nullptr)
        QSKIP("built without plot");
    shown.window->resize(800, 500);
    QTest::qWait(20);
    QCOMPARE(shown.window->size(), QSize(800, 500));
    int controls = 0;
    for (const QWidget *widget : shown.window->findChildren<QWidget *>()) {
        if (!widget->isVisible() || !isControl(widget) || isBehind(widget))
            continue;
        ++controls;
        QVERIFY2(isWhollyInside(widget, shown.window.get()), qPrintable(describe(widget)));
        QVERIFY2(widget->width() >= widget->minimumSizeHint().width(),
                 qPrintable(describe(widget)));
    }
    QVERIFY(controls > 10);
}

CORVANE_GUI_TEST_MAIN(tst_windowaccess)
#include "tst_windowaccess.moc"
