#include "csvparser.h"
#include "exportbar.h"
#include "exportcontroller.h"
#include "exportdialog.h"
#include "exportwriter.h"
#include "session.h"
#include "testcase.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace corvane;
using namespace corvane::test;

class tst_exportcontroller : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void file_isReadAgainFromItsStart();
    void file_cancelled_keepsWhatWasWritten();
    void file_isNotWrittenOverItself();
    void program_isExportedUntilItEnds();
    void program_stopped_keepsWhatCame();
    void windowClosed_writesWhatCame();
    void fullDisk_isTold();
    void unwritable_isTold();
    void withoutSource_saysSo();
    void action_asksAndExports();
    void statisticsAndEventLog_areWritten();
    void eventLog_hasWhatWasOnlyCountedSoFar();
    void table_unwritable_isTold();
    void result_isClosedByTheButton();
};

namespace {

QString recording()
{
    return sourceFile(QStringLiteral("examples/recording/rover.tlog"));
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** A session on a source, and a window that can export. */
class Shown
{
public:
    explicit Shown(const QString &source, std::optional<double> speed = std::nullopt)
    {
        options.speed = speed;
        options.definitions = {sourceFile(QStringLiteral("examples/recording/rover.xml"))};
        if (!source.isEmpty())
            options.source = SourceAddress::parse(source).address;
        session.load(options);
        exports = new ExportController(session, &window);
        window.show();
        session.start(options);
    }

    QString path() const { return folder.filePath(QStringLiteral("out.jsonl")); }

    QByteArray exported() const { return contentOf(path()); }

    ExportOrder order(const QStringList &paths = {}) const
    {
        return {selectForExport(paths).selection, ExportFormat::JsonLines, ValueNames::Symbolic,
                path()};
    }

    QString text() const { return exports->getBar()->findChild<QLabel *>()->text(); }

    QPushButton *button() const { return exports->getBar()->findChild<QPushButton *>(); }

    QTemporaryDir folder;
    Options options;
    Session session;
    QWidget window;
    ExportController *exports;
};

} // namespace

void tst_exportcontroller::file_isReadAgainFromItsStart()
{
    const Shown shown(recording(), 1.0); // at its own pace, which takes a minute
    QTRY_VERIFY(shown.session.getReception().getTotals().frames > 0);
    shown.exports->exportMessages(shown.order());
    QVERIFY(shown.exports->isRunning());
    QVERIFY(shown.exports->getBar()->isVisible());
    QVERIFY(!shown.exports->getActions().constFirst()->isEnabled());
    QTRY_VERIFY(!shown.exports->isRunning());
    QCOMPARE(shown.text(), QStringLiteral("1,737 messages exported to \"%1\".").arg(shown.path()));
    QCOMPARE(shown.exported().count('\n'), 1737);
    QVERIFY(shown.exports->getActions().constFirst()->isEnabled());
    QVERIFY(shown.session.getReception().getTotals().frames < 1737);
}

void tst_exportcontroller::file_cancelled_keepsWhatWasWritten()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("long.tlog"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QByteArray content = contentOf(recording());
    for (int i = 0; i < 300; ++i)
        file.write(content);
    file.close();
    const Shown shown(path);
    shown.exports->exportMessages(shown.order());
    auto *progress = shown.exports->getBar()->findChild<QProgressBar *>();
    QTRY_VERIFY(progress->isVisible() && progress->value() > 0);
    QCOMPARE(shown.button()->text(), QStringLiteral("Cancel"));
    QTest::mouseClick(shown.button(), Qt::LeftButton);
    QVERIFY(!shown.exports->isRunning());
    const qsizetype lines = shown.exported().count('\n');
    QVERIFY(lines > 0 && lines < 300 * 1737);
    QVERIFY(shown.exported().endsWith("}\n"));
    QVERIFY(shown.text().startsWith(QLocale().toString(lines)));
}

void tst_exportcontroller::file_isNotWrittenOverItself()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("copy.tlog"));
    QVERIFY(QFile::copy(recording(), path));
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
    const Shown shown(path);
    ExportOrder order = shown.order();
    order.file = path;
    shown.exports->exportMessages(order);
    QTRY_VERIFY(!shown.exports->isRunning());
    QVERIFY2(shown.text().contains(QStringLiteral("it is the source")), qPrintable(shown.text()));
    QCOMPARE(contentOf(path), contentOf(recording()));
}

void tst_exportcontroller::program_isExportedUntilItEnds()
{
    const Shown shown(QStringLiteral("exec:cat '%1'").arg(recording()));
    shown.exports->exportMessages(shown.order({QStringLiteral("MAVLink.MOTION")}));
    QVERIFY(shown.exports->isRunning());
    QCOMPARE(shown.button()->text(), QStringLiteral("Stop"));
    QVERIFY(!shown.exports->getBar()->findChild<QProgressBar *>()->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(!shown.exports->isRunning(), 20'000);
    QCOMPARE(shown.exported().count('\n'), 596);
    QCOMPARE(shown.text(), QStringLiteral("596 messages exported to \"%1\".").arg(shown.path()));
}

void tst_exportcontroller::program_stopped_keepsWhatCame()
{
    Shown shown(QStringLiteral("exec:cat '%1'; sleep 100").arg(recording()));
    shown.exports->exportMessages(shown.order());
    // What came is written though more may follow.
    QTRY_VERIFY_WITH_TIMEOUT(shown.exported().count('\n') > 0, 20'000);
    QTest::mouseClick(shown.button(), Qt::LeftButton);
    QVERIFY(!shown.exports->isRunning());
    const QByteArray before = shown.exported();
    QVERIFY(before.endsWith("}\n"));
    QVERIFY(shown.text().startsWith(QLocale().toString(before.count('\n'))));
    QTest::qWait(300);
    QCOMPARE(shown.exported(), before);
    shown.session.stop();
}

void tst_exportcontroller::windowClosed_writesWhatCame()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("out.jsonl"));
    quint64 frames = 0;
    {
        Shown shown(QStringLiteral("exec:cat '%1'; sleep 100").arg(recording()));
        ExportOrder order = shown.order();
        order.file = path;
        shown.exports->exportMessages(order);
        QTRY_VERIFY(shown.session.getReception().getTotals().frames > 0);
        frames = shown.session.getReception().getTotals().frames;
        shown.session.stop();
    }
    QCOMPARE(contentOf(path).count('\n'), static_cast<qsizetype>(frames));
}

void tst_exportcontroller::fullDisk_isTold()
{
    if (!QFile::exists(QStringLiteral("/dev/full")))
        QSKIP("there is no /dev/full");
    for (const QString &source : {recording(), QStringLiteral("exec:cat '%1'").arg(recording())}) {
        const Shown shown(source);
        ExportOrder order = shown.order();
        order.file = QStringLiteral("/dev/full");
        shown.exports->exportMessages(order);
        QTRY_VERIFY(!shown.exports->isRunning());
        QVERIFY2(shown.text().contains(QStringLiteral("No space left")), qPrintable(shown.text()));
    }
}

void tst_exportcontroller::unwritable_isTold()
{
    for (const QString &source : {recording(), QStringLiteral("exec:cat '%1'").arg(recording())}) {
        const Shown shown(source);
        ExportOrder order = shown.order();
        order.file = QStringLiteral("/no/such/folder/out.csv");
        shown.exports->exportMessages(order);
        QTRY_VERIFY(!shown.exports->isRunning());
        QVERIFY(shown.text().contains(QStringLiteral("/no/such/folder/out.csv")));
        QVERIFY(shown.exports->getActions().constFirst()->isEnabled());
    }
}

void tst_exportcontroller::withoutSource_saysSo()
{
    const Shown shown{QString()};
    shown.exports->askForMessages();
    QVERIFY(shown.text().contains(QStringLiteral("no source is open")));
    QVERIFY(shown.window.findChild<ExportDialog *>() == nullptr);
}

void tst_exportcontroller::action_asksAndExports()
{
    Shown shown(recording());
    shown.exports->getActions().constFirst()->trigger();
    auto *dialog = shown.window.findChild<ExportDialog *>();
    QVERIFY(dialog != nullptr && dialog->isVisible());
    for (auto *edit : dialog->findChildren<QLineEdit *>())
        if (edit->accessibleName() == QStringLiteral("File"))
            edit->setText(shown.path());
    QTest::keyClick(dialog, Qt::Key_Return);
    QTRY_VERIFY(shown.text().contains(QStringLiteral("messages exported to")));
    const auto rows = CsvParser::parse(shown.exported());
    QVERIFY(rows);
    QCOMPARE(rows->size(), 1738);
}

void tst_exportcontroller::statisticsAndEventLog_areWritten()
{
    Shown shown(QStringLiteral("exec:cat '%1'").arg(recording()));
    QTRY_VERIFY(shown.session.getReception().getTotals().frames == 1737);
    shown.exports->exportStatistics(shown.path());
    const auto statistics = CsvParser::parse(shown.exported());
    QVERIFY(statistics);
    QCOMPARE(statistics->size(), 7);
    QVERIFY(shown.text().startsWith(QStringLiteral("Exported to")));
    shown.exports->exportEventLog(shown.path());
    const auto events = CsvParser::parse(shown.exported());
    QVERIFY(events);
    QCOMPARE(events->size(), shown.session.getReception().getEventLog()->getEntries().size() + 1);
}

void tst_exportcontroller::eventLog_hasWhatWasOnlyCountedSoFar()
{
    Shown shown(recording());
    Reception &reception = shown.session.getReception();
    constexpr qint64 timeUs = 1'800'000'000'000'000;
    for (quint64 i = 0; i < 100; ++i)
        reception.skipBytes(i, 1, timeUs);
    shown.exports->exportEventLog(shown.path());
    QVERIFY(shown.exported().contains("99 more in the same second"));
}

void tst_exportcontroller::table_unwritable_isTold()
{
    const Shown shown(recording());
    shown.exports->exportStatistics(QStringLiteral("/no/such/folder/s.csv"));
    QVERIFY(shown.text().startsWith(QStringLiteral("Cannot write \"/no/such/folder/s.csv\": No")));
    shown.exports->exportEventLog(QStringLiteral("/dev/full"));
    QVERIFY2(shown.text().contains(QStringLiteral("No space left")), qPrintable(shown.text()));
}

void tst_exportcontroller::result_isClosedByTheButton()
{
    const Shown shown(recording());
    shown.exports->exportStatistics(shown.path());
    QVERIFY(shown.exports->getBar()->isVisible());
    QCOMPARE(shown.button()->text(), QStringLiteral("Close"));
    QTest::mouseClick(shown.button(), Qt::LeftButton);
    QVERIFY(!shown.exports->getBar()->isVisible());
}

CORVANE_GUI_TEST_MAIN(tst_exportcontroller)
#include "tst_exportcontroller.moc"
