// What becomes a file of a plot.

#include "plotcsv.h"
#include "plotview.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QSvgGenerator>

namespace corvane {

namespace {

constexpr double imageScale = 2.0;

} // namespace

void PlotView::withLegend(const std::function<void()> &draw)
{
    legend->setVisible(true);
    draw();
    legend->setVisible(false);
    requestRefresh();
}

QImage PlotView::toImage()
{
    QImage image;
    refresh();
    withLegend([&] { image = toPixmap(width(), height(), imageScale).toImage(); });
    return image;
}

QString PlotView::saveAs(const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    if (!QStringList{QStringLiteral("png"), QStringLiteral("svg"), QStringLiteral("csv")}.contains(
            suffix))
        return tr("The name of the file must end in .png, .svg or .csv.");
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || !writeTo(file, suffix) || !file.commit())
        return tr("Cannot write \"%1\": %2").arg(fileName, file.errorString());
    return {};
}

bool PlotView::writeTo(QIODevice &device, const QString &suffix)
{
    if (suffix == QStringLiteral("csv"))
        return writePlotCsv(device, series, window.getFromUs(), window.getToUs());
    if (suffix == QStringLiteral("png"))
        return toImage().save(&device, "PNG");
    refresh();
    QSvgGenerator generator;
    generator.setOutputDevice(&device);
    generator.setSize(size());
    generator.setViewBox(rect());
    generator.setTitle(tr("Plot"));
    QCPPainter painter;
    if (!painter.begin(&generator))
        return false;
    painter.setMode(QCPPainter::pmVectorized);
    withLegend([&] { toPainter(&painter, width(), height()); });
    return painter.end();
}

} // namespace corvane
