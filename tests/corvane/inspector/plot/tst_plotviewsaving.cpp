#include "plotscene.h"
#include "testcase.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include <cmath>

using namespace corvane;
using namespace corvane::test;

namespace {

/** The number of points of \a image that have about the colour of the first series. */
int linePointsIn(const QImage &image)
{
    const QColor wanted = PlotSeries("x", 0).getPen().color();
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor found = image.pixelColor(x, y);
            if (std::abs(found.red() - wanted.red()) + std::abs(found.green() - wanted.green())
                    + std::abs(found.blue() - wanted.blue())
                < 30)
                ++count;
        }
    return count;
}

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_plotviewsaving : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void png_showsTheLine();
    void svg_showsTheLine();
    void csv_isReadBack();
    void csv_ofOneSecond_isWhatIsShown();
    void saving_tellsWhatGoesWrong();
};

void tst_plotviewsaving::png_showsTheLine()
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("plot.png");
    Shown shown;
    shown.sendRamp(20);
    QCOMPARE(shown.view.saveAs(fileName), "");
    const QImage image(fileName);
    QCOMPARE(image.size(), shown.view.size() * 2);
    QVERIFY(linePointsIn(image) > 300);
}

void tst_plotviewsaving::svg_showsTheLine()
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("plot.SVG");
    Shown shown;
    shown.sendRamp(20);
    QCOMPARE(shown.view.saveAs(fileName), "");
    QVERIFY(contentOf(fileName).contains("Position.height [m]")); // the legend
    QSvgRenderer renderer(fileName);
    QVERIFY(renderer.isValid());
    QImage image(shown.view.size(), QImage::Format_RGB32);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    QVERIFY(linePointsIn(image) > 100);
    QVERIFY(!shown.view.legend->visible());
}

void tst_plotviewsaving::csv_isReadBack()
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("plot.csv");
    Shown shown({"height", "speed", "secret"});
    shown.send("Position{height: 0.1, speed: 2, secret: 5}", 0.000001);
    shown.send("Position{speed: 3}", 1);
    shown.send("Position{height: -1e20}", 2.5);
    shown.draw();
    QCOMPARE(shown.view.saveAs(fileName), "");
    QCOMPARE(contentOf(fileName),
             "time,\"Demo.Position.height [m]\",\"Demo.Position.speed [m/s]\"\r\n"
             "2023-11-14T22:13:20.000001Z,0.1,2\r\n"
             "2023-11-14T22:13:21.000000Z,,3\r\n"
             "2023-11-14T22:13:22.500000Z,-1e+20,\r\n");
}

void tst_plotviewsaving::csv_ofOneSecond_isWhatIsShown()
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath("plot.csv");
    Shown shown;
    shown.view.setSpanUs(secondUs);
    shown.sendRamp(1001, 0.01);
    QCOMPARE(shown.view.saveAs(fileName), "");
    QCOMPARE(contentOf(fileName).count('\n'), 102);
    QVERIFY(contentOf(fileName).endsWith("22:13:30.000000Z,1000\r\n"));
}

void tst_plotviewsaving::saving_tellsWhatGoesWrong()
{
    Shown shown;
    QVERIFY(shown.view.saveAs("plot.txt").contains(".png, .svg or .csv"));
    QVERIFY(
        shown.view.saveAs("/nowhere/plot.csv").startsWith("Cannot write \"/nowhere/plot.csv\""));
}

CORVANE_GUI_TEST_MAIN(tst_plotviewsaving)
#include "tst_plotviewsaving.moc"
