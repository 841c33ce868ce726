// A day with the inspector, with the keys and the mouse of an X server: from the start page to a
// window that is closed and comes back as it was. scripts/drive-inspector runs it.

#include "findbar.h"
#include "inspectortree.h"
#include "latestmessages.h"
#include "mainwindow.h"
#include "openpanel.h"
#include "testcase.h"
#include "workbench.h"

#include <QApplication>
#include <QDialog>
#include <QDockWidget>
#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QSettings>
#include <QStatusBar>
#include <QTableWidget>
#include <QTemporaryDir>

using namespace corvane;
using namespace corvane::test;

namespace {

constexpr int patienceMs = 10'000;

/** Lets the X server act as a person would; events go on meanwhile. */
void act(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    QVERIFY(process.waitForStarted());
    QTRY_COMPARE_WITH_TIMEOUT(process.state(), QProcess::NotRunning, patienceMs);
    QCOMPARE(process.exitCode(), 0);
    QTest::qWait(50);
}

void press(const char *keys)
{
    act({QStringLiteral("key"), QLatin1String(keys)});
}

void type(const QString &text)
{
    act({QStringLiteral("type"), text});
}

void click(const QWidget *widget, const QPoint &place, int times = 1)
{
    const QPoint point = widget->mapToGlobal(place);
    act({QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y()),
         QStringLiteral("click"), QStringLiteral("--repeat"), QString::number(times),
         QStringLiteral("--delay"), QStringLiteral("60"), QStringLiteral("1")});
}

void click(const QWidget *widget)
{
    click(widget, widget->rect().center());
}

/** The part of \a window that people hear called \a name. */
template <typename Widget>
Widget *named(const QWidget *window, const QString &name)
{
    for (Widget *widget : window->findChildren<Widget *>())
        if (widget->accessibleName() == name)
            return widget;
    return nullptr;
}

} // namespace

class Journey : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void fromTheStartPageAndBack();

private:
    MainWindow *mainWindow() const { return qobject_cast<MainWindow *>(workbench->getWindow()); }

    InspectorTree *tree() const { return mainWindow()->findChild<InspectorTree *>(); }

    void startProgram();
    void openFile();
    void find();
    void watchAndPlot();
    void pauseAndResume();
    void exportMessages();
    void leave();
    void comeBack();
    void checkThatAllIsAsItWas();

    QTemporaryDir folder;
    std::unique_ptr<QSettings> settings;
    std::unique_ptr<Workbench> workbench;
    int columnWidth = 0;
    QSize windowSize;
};

void Journey::initTestCase()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        QSKIP("this needs an X server");
    settings = std::make_unique<QSettings>(folder.filePath(QStringLiteral("settings.ini")),
                                           QSettings::IniFormat);
}

void Journey::fromTheStartPageAndBack()
{
    startProgram();
    openFile();
    find();
    watchAndPlot();
    pauseAndResume();
    exportMessages();
    leave();
    comeBack();
    checkThatAllIsAsItWas();
    leave();
}

void Journey::startProgram()
{
    Options options;
    options.definitions = {sourceFile(QStringLiteral("examples/recording/rover.xml"))};
    workbench = std::make_unique<Workbench>(options, *settings);
    workbench->showOpenPanel();
    QVERIFY(QTest::qWaitForWindowActive(workbench->getWindow()));
}

void Journey::openFile()
{
    auto *address
        = named<QLineEdit>(workbench->getWindow(), QStringLiteral("Address of the source"));
    QVERIFY(address != nullptr);
    click(address);
    type(sourceFile(QStringLiteral("examples/recording/rover.tlog")));
    press("Return");
    QTRY_VERIFY_WITH_TIMEOUT(mainWindow() != nullptr, patienceMs);
    QVERIFY(QTest::qWaitForWindowActive(mainWindow()));
    QTRY_VERIFY_WITH_TIMEOUT(tree()->topLevelItemCount() > 3, patienceMs);
}

void Journey::find()
{
    click(tree()->viewport(), QPoint(40, tree()->viewport()->height() - 5));
    press("ctrl+f");
    auto *bar = mainWindow()->findChild<FindBar *>();
    QTRY_VERIFY(bar->isVisible());
    type(QStringLiteral("heading"));
    press("Return");
    QTRY_VERIFY_WITH_TIMEOUT(tree()->currentItem() != nullptr
                                 && tree()->currentItem()->text(0).contains(
                                     QLatin1String("heading"), Qt::CaseInsensitive),
                             patienceMs);
}

void Journey::watchAndPlot()
{
    const QRect row = tree()->visualItemRect(tree()->currentItem());
    QVERIFY(row.isValid());
    click(tree()->viewport(), row.center());
    press("ctrl+shift+w");
    auto *watched = named<QTableWidget>(mainWindow(), QStringLiteral("Watched fields"));
    QTRY_COMPARE(watched->rowCount(), 1);
    QVERIFY(watched->isVisible());
    click(tree()->viewport(), tree()->visualItemRect(tree()->currentItem()).center());
    press("ctrl+shift+p");
    auto *plot = mainWindow()->findChild<QDockWidget *>(QStringLiteral("plot"));
    QTRY_VERIFY(plot->widget()->isVisible());
}

void Journey::pauseAndResume()
{
    press("ctrl+p");
    QTest::qWait(300);
    auto *latest = mainWindow()->findChild<LatestMessages *>();
    QVERIFY(latest->isPaused());
    press("ctrl+p");
    QTRY_VERIFY(!latest->isPaused());
}

void Journey::exportMessages()
{
    const QString path = folder.filePath(QStringLiteral("messages.csv"));
    press("ctrl+e");
    QTRY_VERIFY(mainWindow()->findChild<QDialog *>() != nullptr);
    auto *dialog = mainWindow()->findChild<QDialog *>();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    QLineEdit *file = nullptr;
    for (QLineEdit *edit : dialog->findChildren<QLineEdit *>())
        if (edit->text().endsWith(QLatin1String(".csv")))
            file = edit;
    QVERIFY(file != nullptr);
    click(file);
    press("ctrl+a");
    type(path);
    press("Return");
    QTRY_VERIFY_WITH_TIMEOUT(QFile(path).size() > 100'000, patienceMs);
}

void Journey::leave()
{
    columnWidth = 333;
    tree()->header()->resizeSection(0, columnWidth);
    windowSize = mainWindow()->size();
    QMainWindow *window = mainWindow();
    click(window->statusBar(), QPoint(5, 5));
    press("ctrl+q");
    QTRY_VERIFY(!window->isVisible());
    workbench.reset();
}

void Journey::comeBack()
{
    startProgram();
    auto *recent = named<QListWidget>(workbench->getWindow(), QStringLiteral("Recent sources"));
    QTRY_COMPARE(recent->count(), 1);
    click(recent->viewport(), recent->visualItemRect(recent->item(0)).center(), 2);
    QTRY_VERIFY_WITH_TIMEOUT(mainWindow() != nullptr, patienceMs);
    QVERIFY(QTest::qWaitForWindowActive(mainWindow()));
}

void Journey::checkThatAllIsAsItWas()
{
    QTRY_VERIFY_WITH_TIMEOUT(tree()->topLevelItemCount() > 3, patienceMs);
    QCOMPARE(tree()->header()->sectionSize(0), columnWidth);
    QCOMPARE(mainWindow()->size(), windowSize);
    QCOMPARE(named<QTableWidget>(mainWindow(), QStringLiteral("Watched fields"))->rowCount(), 1);
    QVERIFY(mainWindow()->findChild<QDockWidget *>(QStringLiteral("plot"))->widget()->isVisible());
}

CORVANE_TEST_MAIN(Journey)
#include "journey.moc"
