#include "eventlogpanel.h"
#include "messagetreewidget.h"
#include "shownwindow.h"
#include "viewsettings.h"

#include <QApplication>
#include <QStyledItemDelegate>
#include <QTableWidget>

using namespace corvane;
using namespace corvane::test;

class tst_viewsettings : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void changes_areRemembered();
    void zoom_staysWithinItsRange();
    void brokenSettings_areDefaults_data();
    void brokenSettings_areDefaults();
    void window_zoomsItsViewsByKey();
    void window_growsRowsWithTheText();
    void window_remembersTheZoom();
    void window_showsTimesInUtc();
    void window_remembersWhatTheTreeShows();

private:
    QTemporaryDir folder;
    int settingsCount = 0;

    std::unique_ptr<QSettings> newSettings()
    {
        return std::make_unique<QSettings>(
            folder.filePath(QStringLiteral("%1.ini").arg(++settingsCount)), QSettings::IniFormat);
    }
};

namespace {

void trigger(ViewSettings &view, const QString &text)
{
    for (QAction *action : view.findChildren<QAction *>())
        if (action->text() == text)
            action->trigger();
}

/** The first time that the event log shows. */
QString shownTime(const ShownWindow &shown)
{
    const auto *table = shown.window->findChild<EventLogPanel *>()->findChild<QTableWidget *>();
    for (int row = 0; row < table->rowCount(); ++row) {
        const QVariant time = table->item(row, 0)->data(Qt::DisplayRole);
        if (time.toString().contains(QLatin1Char(':')))
            return qobject_cast<QStyledItemDelegate *>(table->itemDelegateForColumn(0))
                ->displayText(time, QLocale());
    }
    return {};
}

} // namespace

void tst_viewsettings::defaults()
{
    const auto settings = newSettings();
    const ViewSettings view(*settings);
    QCOMPARE(view.getZoom(), 100);
    QCOMPARE(view.getRefreshMs(), 250);
    QVERIFY(!view.isUtc());
}

void tst_viewsettings::changes_areRemembered()
{
    const auto settings = newSettings();
    ViewSettings view(*settings);
    const QSignalSpy changed(&view, &ViewSettings::changed);
    trigger(view, "Times in &UTC");
    trigger(view, "Zoom &In");
    trigger(view, "Once a Second");
    QCOMPARE(changed.size(), 3);
    const ViewSettings next(*settings);
    QVERIFY(next.isUtc());
    QCOMPARE(next.getZoom(), 110);
    QCOMPARE(next.getRefreshMs(), 1000);
    trigger(view, "&Normal Size");
    QCOMPARE(view.getZoom(), 100);
}

void tst_viewsettings::zoom_staysWithinItsRange()
{
    const auto settings = newSettings();
    ViewSettings view(*settings);
    for (int i = 0; i < 30; ++i)
        trigger(view, "Zoom &In");
    QCOMPARE(view.getZoom(), 300);
    for (int i = 0; i < 30; ++i)
        trigger(view, "Zoom &Out");
    QCOMPARE(view.getZoom(), 50);
}

void tst_viewsettings::brokenSettings_areDefaults_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text") << QVariant("large");
    QTest::newRow("zero") << QVariant(0);
    QTest::newRow("negative") << QVariant(-100);
    QTest::newRow("huge") << QVariant(2'000'000'000);
    QTest::newRow("bytes") << QVariant(QByteArray("\xff\x00\x01", 3));
}

void tst_viewsettings::brokenSettings_areDefaults()
{
    QFETCH(QVariant, value);
    const auto settings = newSettings();
    settings->setValue("view/zoom", value);
    settings->setValue("view/refreshMs", value);
    const ViewSettings view(*settings);
    QCOMPARE(view.getZoom(), 100);
    QCOMPARE(view.getRefreshMs(), 250);
}

void tst_viewsettings::window_zoomsItsViewsByKey()
{
    const ShownWindow shown;
    const auto *tree = shown.window->findChild<MessageTreeWidget *>();
    const double before = tree->font().pointSizeF();
    QTest::keyClick(shown.window.get(), Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(tree->font().pointSizeF(), before * 1.1);
    QCOMPARE(shown.types()->font().pointSizeF(), before * 1.1);
    QCOMPARE(shown.window->font().pointSizeF(), before); // menus and bars stay
    QTest::keyClick(shown.window.get(), Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(shown.window.get(), Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(tree->font().pointSizeF(), before * 0.9);
    QTest::keyClick(shown.window.get(), Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(tree->font().pointSizeF(), before);
}

void tst_viewsettings::window_growsRowsWithTheText()
{
    const ShownWindow shown;
    const auto *table = shown.window->findChild<EventLogPanel *>()->findChild<QTableWidget *>();
    for (int i = 0; i < 10; ++i)
        QTest::keyClick(shown.window.get(), Qt::Key_Plus, Qt::ControlModifier);
    QVERIFY(table->fontMetrics().height() > 2 * shown.window->fontMetrics().height());
    QVERIFY(table->rowHeight(0) >= table->fontMetrics().height());
}

void tst_viewsettings::window_remembersTheZoom()
{
    ShownWindow shown;
    QTest::keyClick(shown.window.get(), Qt::Key_Plus, Qt::ControlModifier);
    const MainWindow next(shown.session, shown.settings);
    QVERIFY(next.findChild<MessageTreeWidget *>()->font().pointSizeF()
            > next.font().pointSizeF() * 1.05);
}

void tst_viewsettings::window_showsTimesInUtc()
{
    qputenv("TZ", "ABC-02");
    const ShownWindow shown;
    QTRY_COMPARE(shownTime(shown), QStringLiteral("2026-01-01 14:00:22"));
    shown.action("Times in &UTC")->trigger();
    QCOMPARE(shownTime(shown), QStringLiteral("2026-01-01 12:00:22 UTC"));
    qunsetenv("TZ");
}

void tst_viewsettings::window_remembersWhatTheTreeShows()
{
    ShownWindow shown;
    shown.action("&Secondary Fields")->trigger();
    shown.action("&Computed Fields")->trigger();
    shown.window->close();
    const MainWindow next(shown.session, shown.settings);
    for (const QAction *action : next.findChildren<QAction *>()) {
        if (action->text() == "&Secondary Fields" || action->text() == "&Computed Fields")
            QVERIFY(!action->isChecked());
    }
    QVERIFY(!next.findChild<MessageTreeWidget *>()->mustShowVirtualFields());
}

CORVANE_GUI_TEST_MAIN(tst_viewsettings)
#include "tst_viewsettings.moc"
