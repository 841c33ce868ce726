#include "eventlog.h"
#include "noticearea.h"
#include "recordcontroller.h"
#include "shownwindow.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QToolBar>

using namespace corvane;
using namespace corvane::test;

class tst_recordcontroller : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutSource_saysSo();
    void key_asksForTheFile();
    void recording_hasTheBytesThatCome();
    void recording_saysHowMuch();
    void key_stopsTheRecording();
    void button_stopsTheRecording();
    void fullDisk_isToldAboveTheViewsAndInTheLog();
    void sourceItself_isNotOverwritten();
    void action_isInMenuAndToolBar();
};

namespace {

const QString noticeName = QStringLiteral("recordNotice");

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

/** A window on a recording that is played at twenty times its pace. */
class Scene : public ShownWindow
{
public:
    Scene()
        : ShownWindow(20.0)
    {
        [[maybe_unused]] const bool isActive = QTest::qWaitForWindowActive(window.get());
    }

    void press() const { QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier); }

    RecordController &controller() const { return *window->findChild<RecordController *>(); }

    QString notice() const { return window->getNotices()->getText(noticeName); }

    QString path() const { return folder.filePath(QStringLiteral("recorded.tlog")); }

    QFileDialog *dialog() const { return window->findChild<QFileDialog *>(); }
};

} // namespace

void tst_recordcontroller::withoutSource_saysSo()
{
    Session session;
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    MainWindow window(session, settings);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);
    QVERIFY(window.getNotices()->getText(noticeName).contains("no source is open"));
}

void tst_recordcontroller::key_asksForTheFile()
{
    Scene scene;
    scene.press();
    QVERIFY(scene.dialog() != nullptr && scene.dialog()->isVisible());
    QVERIFY(scene.dialog()->selectedFiles().value(0).endsWith(".tlog"));
    scene.dialog()->setDirectory(scene.folder.path());
    scene.dialog()->selectFile("recorded.tlog");
    static_cast<QDialog *>(scene.dialog())->accept();
    QVERIFY(scene.session.getRecorder().isRecording());
    QCOMPARE(scene.session.getRecorder().getPath(), scene.path());
}

void tst_recordcontroller::recording_hasTheBytesThatCome()
{
    Scene scene;
    QSignalSpy finished(&scene.session, &Session::finished);
    scene.controller().start(scene.path());
    QVERIFY(finished.wait(20'000));
    scene.press();
    const QByteArray recorded = contentOf(scene.path());
    QVERIFY(!recorded.isEmpty());
    QVERIFY(contentOf(scene.options.source->text).endsWith(recorded));
}

void tst_recordcontroller::recording_saysHowMuch()
{
    Scene scene;
    scene.controller().start(scene.path());
    QVERIFY(scene.notice().startsWith(QStringLiteral("Recording to \"%1\": ").arg(scene.path())));
    QTRY_VERIFY(scene.notice().contains("kB") || scene.notice().contains("KiB"));
}

void tst_recordcontroller::key_stopsTheRecording()
{
    Scene scene;
    scene.controller().start(scene.path());
    QCOMPARE(scene.controller().getAction()->text(), QStringLiteral("Stop &Recording"));
    scene.press();
    QVERIFY(!scene.session.getRecorder().isRecording());
    QVERIFY(scene.notice().startsWith("Recorded "));
    QVERIFY(scene.notice().contains(scene.path()));
    QCOMPARE(scene.controller().getAction()->text(), QStringLiteral("&Record…"));
    QVERIFY(scene.dialog() == nullptr);
}

void tst_recordcontroller::button_stopsTheRecording()
{
    Scene scene;
    scene.controller().start(scene.path());
    QTest::mouseClick(scene.button("&Stop"), Qt::LeftButton);
    QVERIFY(!scene.session.getRecorder().isRecording());
    QVERIFY(scene.notice().startsWith("Recorded "));
}

void tst_recordcontroller::fullDisk_isToldAboveTheViewsAndInTheLog()
{
    if (!QFile::exists("/dev/full"))
        QSKIP("no /dev/full here");
    Scene scene;
    scene.controller().start("/dev/full");
    QTRY_VERIFY(scene.notice().contains("the disk is full"));
    QVERIFY(!scene.session.getRecorder().isRecording());
    QCOMPARE(scene.controller().getAction()->text(), QStringLiteral("&Record…"));
    bool isInLog = false;
    for (const EventLog::Entry &entry : scene.session.getReception().getEventLog()->getEntries())
        isInLog = isInLog || entry.event.getMessage() == scene.notice();
    QVERIFY(isInLog);
}

void tst_recordcontroller::sourceItself_isNotOverwritten()
{
    Scene scene;
    const QByteArray before = contentOf(scene.options.source->text);
    scene.controller().start(scene.options.source->text);
    QVERIFY(scene.notice().contains("being read"));
    QVERIFY(contentOf(scene.options.source->text) == before);
}

void tst_recordcontroller::action_isInMenuAndToolBar()
{
    Scene scene;
    QAction *action = scene.controller().getAction();
    QCOMPARE(action->shortcut(), QKeySequence("Ctrl+R"));
    QVERIFY(!action->toolTip().isEmpty());
    QVERIFY(scene.window->findChild<QToolBar *>("tools")->actions().contains(action));
}

CORVANE_GUI_TEST_MAIN(tst_recordcontroller)
#include "tst_recordcontroller.moc"
