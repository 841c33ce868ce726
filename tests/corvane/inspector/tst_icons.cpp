#include "icons.h"
#include "testcase.h"

#include <QApplication>
#include <QPalette>

using namespace corvane::test;

class tst_icons : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void own_areDrawnInTheColorOfText_data();
    void own_areDrawnInTheColorOfText();
    void disabled_differs();
    void unknown_isEmpty();
    void program_isDrawnAtEverySize();
};

namespace {

const QStringList names{"document-open",       "document-export",      "media-record",
                        "media-playback-stop", "media-playback-pause", "media-playback-start",
                        "media-skip-forward",  "view-confidential",    "help-contents"};

/** The colour of the most opaque pixel. */
QColor inkOf(const QIcon &icon, QIcon::Mode mode = QIcon::Normal)
{
    const QImage image = icon.pixmap(QSize(48, 48), 1.0, mode).toImage();
    QColor ink(Qt::transparent);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (const QColor color = image.pixelColor(x, y); color.alpha() > ink.alpha())
                ink = color;
    return ink;
}

} // namespace

void tst_icons::own_areDrawnInTheColorOfText_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void tst_icons::own_areDrawnInTheColorOfText()
{
    QFETCH(QString, name);
    const QIcon icon = corvane::makeIcon(name);
    const QPalette before = QApplication::palette();
    for (const QColor &color : {QColor(10, 20, 30), QColor(240, 230, 220)}) {
        QPalette palette = before;
        palette.setColor(QPalette::WindowText, color);
        QApplication::setPalette(palette);
        QCOMPARE(inkOf(icon), color);
    }
    QApplication::setPalette(before);
}

void tst_icons::disabled_differs()
{
    const QIcon icon = corvane::makeIcon("media-record");
    QVERIFY(inkOf(icon, QIcon::Disabled) != inkOf(icon));
}

void tst_icons::unknown_isEmpty()
{
    QVERIFY(corvane::makeIcon("no-such-icon").isNull());
}

void tst_icons::program_isDrawnAtEverySize()
{
    for (const int size : {16, 32, 128}) {
        const QImage image = corvane::makeProgramIcon().pixmap(size, size).toImage();
        QCOMPARE(image.size(), QSize(size, size));
        QVERIFY(image.pixelColor(size / 2, size / 8).alpha() == 255);
    }
}

CORVANE_GUI_TEST_MAIN(tst_icons)
#include "tst_icons.moc"
