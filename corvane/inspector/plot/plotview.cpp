#include "plotview.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace corvane {

namespace {

constexpr double zoomStep = 0.8;
constexpr double panStep = 0.1;
constexpr double secondsPerUs = 1e-6;
// Smooth lines are slow; many points hide the steps of the others.
constexpr size_t maximumSmoothPoints = 6000;

double secondsOf(qint64 timeUs)
{
    return static_cast<double>(timeUs) * secondsPerUs;
}

QString timeFormatFor(qint64 spanUs)
{
    if (spanUs < 5'000'000)
        return QStringLiteral("HH:mm:ss.zzz");
    constexpr qint64 hourUs = 3'600'000'000;
    return spanUs < 24 * hourUs ? QStringLiteral("HH:mm:ss") : QStringLiteral("yyyy-MM-dd\nHH:mm");
}

} // namespace

PlotView::PlotView(const PlotSeriesList &series, QWidget *parent)
    : QCustomPlot(parent)
    , series(series)
    , axes(*this, series)
    , cursorLine(new QCPItemStraightLine(this))
    , timeTicker(new QCPAxisTickerDateTime)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(fontMetrics().averageCharWidth() * 20, fontMetrics().height() * 4);
    setAccessibleName(tr("Plot"));
    setPlottingHints(QCP::phCacheLabels);
    createTimeAxis();
    createPlaceholder();
    cursorLine->setVisible(false);
    frameTimer.setSingleShot(true);
    frameTimer.setInterval(frameMs);
    connect(&frameTimer, &QTimer::timeout, this, &PlotView::refresh);
    rebuild();
}

void PlotView::createTimeAxis()
{
    xAxis->setTicker(timeTicker);
    // Else the picture would jump sideways whenever a label grows by a digit.
    axisRect()->setMinimumMargins(QMargins(fontMetrics().averageCharWidth() * 10, 0,
                                           fontMetrics().averageCharWidth() * 3, 0));
}

void PlotView::createPlaceholder()
{
    placeholder = new QLabel(this);
    placeholder->setWordWrap(true);
    placeholder->setAlignment(Qt::AlignCenter);
    placeholder->setTextFormat(Qt::PlainText);
    placeholder->setAttribute(Qt::WA_TransparentForMouseEvents);
    placeholder->setForegroundRole(QPalette::Text);
    placeholder->setBackgroundRole(QPalette::Base);
    placeholder->setAutoFillBackground(true);
    placeholder->setMargin(fontMetrics().averageCharWidth() * 2);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(placeholder);
}

void PlotView::rebuild()
{
    clearGraphs();
    axes.rebuild();
    for (size_t i = 0; i < series.size(); ++i) {
        const auto &one = series[i];
        QCPGraph *graph = addGraph(xAxis, axes.getAxisOf(i));
        graph->setName(one->getUnit().isEmpty()
                           ? one->getName()
                           : tr("%1 [%2]").arg(one->getName(), one->getUnit()));
        graph->setPen(one->getPen());
        graph->setAdaptiveSampling(false); // the store knows better
        graph->setLineStyle(one->isStepped() ? QCPGraph::lsStepLeft : QCPGraph::lsLine);
    }
    applyPalette();
    requestRefresh();
}

void PlotView::applyPalette()
{
    setBackground(palette().brush(QPalette::Base));
    for (QCPAxis *axis : axisRect()->axes())
        styleAxis(axis);
    axes.label();
    cursorLine->setPen(QPen(palette().color(QPalette::Highlight), 1));
    legend->setBrush(palette().brush(QPalette::Base));
    legend->setBorderPen(QPen(palette().color(QPalette::Mid)));
    legend->setTextColor(palette().color(QPalette::Text));
    legend->setFont(font());
}

void PlotView::styleAxis(QCPAxis *axis)
{
    const QColor text = palette().color(QPalette::Text);
    QColor grid = text;
    grid.setAlphaF(0.15F);
    QColor axisColor = text;
    axisColor.setAlphaF(0.5F);
    axis->setBasePen(axisColor);
    axis->setTickPen(axisColor);
    axis->setSubTickPen(axisColor);
    axis->setTickLabelColor(text);
    axis->setLabelColor(text);
    axis->setTickLabelFont(font());
    axis->setLabelFont(font());
    axis->grid()->setPen(QPen(grid, 1));
    axis->grid()->setZeroLinePen(QPen(grid, 1));
}

void PlotView::requestRefresh()
{
    if (isVisible() && !frameTimer.isActive())
        frameTimer.start();
}

void PlotView::setPaused(bool pause)
{
    paused = pause;
    requestRefresh();
}

void PlotView::setAxisPerUnit(bool perUnit)
{
    axes.setPerUnit(perUnit);
    rebuild();
}

void PlotView::refresh()
{
    QElapsedTimer clock;
    clock.start();
    if (const auto newest = getNewestUs(); newest && !paused)
        window.follow(*newest);
    xAxis->setRange(secondsOf(window.getFromUs()), secondsOf(window.getToUs()));
    timeTicker->setDateTimeFormat(timeFormatFor(window.getSpanUs()));
    timeTicker->setTickCount(std::max(1, axisRect()->width() / widthOfTime()));
    if (pointerX)
        cursorUs = timeAt(*pointerX);
    axes.beginValues();
    size_t points = 0;
    for (size_t i = 0; i < series.size(); ++i) {
        fillGraph(i);
        points += line.size();
    }
    axes.endValues();
    chooseDrawing(points);
    placeCursor();
    refreshPlaceholder();
    replot(rpQueuedRefresh);
    frameTimer.setInterval(std::max(frameMs, static_cast<int>(2 * clock.elapsed())));
    Q_EMIT refreshed();
}

/** Room for the text of a tick of the time axis and what keeps it apart from the next. */
int PlotView::widthOfTime() const
{
    return fontMetrics().horizontalAdvance(QStringLiteral("00:00:00.000")) * 3 / 2;
}

void PlotView::fillGraph(size_t seriesNumber)
{
    const PlotSeries &one = *series[seriesNumber];
    line.clear();
    const int pixels = std::max(1, qRound(axisRect()->width() * devicePixelRatioF()));
    // Columns that begin at whole multiples of their width, or the line would flicker in motion.
    const qint64 columnUs = std::max<qint64>(1, window.getSpanUs() / pixels);
    const qint64 fromUs = window.getFromUs() / columnUs * columnUs - columnUs;
    const auto columns = static_cast<int>(window.getSpanUs() / columnUs) + 3;
    if (!one.isHidden())
        one.getStore().decimate(fromUs, columnUs, columns, line);

    QVector<QCPGraphData> data;
    data.reserve(static_cast<qsizetype>(line.size()));
    for (const Sample &sample : line) {
        data.append({secondsOf(sample.timeUs), sample.value});
        if (!sample.isGap())
            axes.addValue(seriesNumber, sample.value);
    }
    graph(static_cast<int>(seriesNumber))->data()->set(data, true);
}

void PlotView::chooseDrawing(size_t points)
{
    const bool smooth = points <= maximumSmoothPoints;
    setNotAntialiasedElements(smooth ? QCP::aeNone : QCP::aeAll);
    for (size_t i = 0; i < series.size(); ++i) {
        QPen pen = series[i]->getPen();
        if (!smooth)
            pen.setWidth(0);
        graph(static_cast<int>(i))->setPen(pen);
    }
}

void PlotView::placeCursor()
{
    cursorLine->setVisible(cursorUs.has_value());
    if (!cursorUs)
        return;
    cursorLine->point1->setCoords(secondsOf(*cursorUs), 0);
    cursorLine->point2->setCoords(secondsOf(*cursorUs), 1);
}

void PlotView::refreshPlaceholder()
{
    if (series.empty())
        placeholder->setText(tr("Nothing is plotted yet. Type the path of a numeric field above, "
                                "such as FORMAT.MESSAGE.FIELD, and press Enter; FIELD[2] is the "
                                "third element of a repeated field."));
    else
        placeholder->setText(tr("No values yet. They appear as soon as messages with the chosen "
                                "fields arrive."));
    placeholder->setVisible(!getNewestUs());
}

std::optional<qint64> PlotView::getNewestUs() const
{
    std::optional<qint64> newest;
    for (const auto &one : series)
        if (const SampleStore &samples = one->getStore(); !samples.isEmpty())
            newest = std::max(newest.value_or(samples.back().timeUs), samples.back().timeUs);
    return newest;
}

qint64 PlotView::timeAt(double x) const
{
    const double part = (x - axisRect()->left()) / std::max(1, axisRect()->width());
    return window.getFromUs()
           + qRound64(std::clamp(part, 0.0, 1.0) * static_cast<double>(window.getSpanUs()));
}

void PlotView::changeWindow(const std::function<void()> &change)
{
    const bool before = window.isFollowing();
    change();
    requestRefresh();
    if (before != window.isFollowing())
        Q_EMIT followingChanged(window.isFollowing());
}

void PlotView::setSpanUs(qint64 spanUs)
{
    changeWindow([&] { window.setSpanUs(spanUs); });
}

void PlotView::setFollowing(bool following)
{
    changeWindow([&] { window.setFollowing(following); });
}

void PlotView::panTime(double spans)
{
    changeWindow([&] { window.pan(spans); });
}

void PlotView::zoomTime(double factor)
{
    const qint64 middleUs = window.getToUs() - window.getSpanUs() / 2;
    changeWindow([&] { window.zoom(factor, cursorUs.value_or(middleUs)); });
}

void PlotView::showAll()
{
    std::optional<qint64> firstUs;
    for (const auto &one : series)
        if (const SampleStore &samples = one->getStore(); !samples.isEmpty())
            firstUs = std::min(firstUs.value_or(samples.front().timeUs), samples.front().timeUs);
    if (firstUs)
        changeWindow([&] { window.show(*firstUs, *getNewestUs()); });
}

void PlotView::panValues(double ranges)
{
    axes.move(ranges);
    requestRefresh();
}

void PlotView::zoomValues(double factor)
{
    axes.scale(factor);
    requestRefresh();
}

void PlotView::setUtc(bool newUtc)
{
    utc = newUtc;
    timeTicker->setDateTimeSpec(utc ? Qt::UTC : Qt::LocalTime);
    requestRefresh();
}

void PlotView::fitValues()
{
    axes.fit();
    requestRefresh();
}

void PlotView::moveCursor(int pixels)
{
    pointerX.reset();
    const qint64 fromUs = window.getFromUs();
    const qint64 stepUs = window.getSpanUs() / std::max(1, axisRect()->width());
    const qint64 middleUs = fromUs + window.getSpanUs() / 2;
    cursorUs = std::clamp(cursorUs.value_or(middleUs) + pixels * stepUs, fromUs, window.getToUs());
    requestRefresh();
}

void PlotView::removeCursor()
{
    pointerX.reset();
    cursorUs.reset();
    requestRefresh();
}

QString PlotView::getStateText() const
{
    const double seconds = secondsOf(window.getSpanUs());
    QString text = window.isFollowing() ? tr("Following the newest value, %1 s").arg(seconds)
                                        : tr("Standing still, %1 s").arg(seconds);
    if (paused)
        text = tr("Paused, values are kept; %1 s").arg(seconds);
    if (!axes.isFitting())
        text += tr("; value axes as set by hand");
    if (cursorUs) {
        const auto time
            = QDateTime::fromMSecsSinceEpoch(*cursorUs / 1000, utc ? Qt::UTC : Qt::LocalTime);
        text += tr("; cursor at %1").arg(time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")));
    }
    return text;
}

void PlotView::changeEvent(QEvent *event)
{
    QCustomPlot::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange)
        return;
    applyPalette();
    requestRefresh();
}

bool PlotView::event(QEvent *event)
{
    // The keys of the value axes are those of the window's zoom as well.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *press = static_cast<QKeyEvent *>(event);
        const int key = press->key();
        if (press->modifiers().testFlag(Qt::ControlModifier)
            && (key == Qt::Key_Plus || key == Qt::Key_Equal || key == Qt::Key_Minus))
            event->accept();
    }
    return QCustomPlot::event(event);
}

void PlotView::showEvent(QShowEvent *event)
{
    QCustomPlot::showEvent(event);
    requestRefresh();
}

void PlotView::resizeEvent(QResizeEvent *event)
{
    QCustomPlot::resizeEvent(event);
    axes.label();
    requestRefresh();
}

void PlotView::leaveEvent(QEvent *event)
{
    // The cursor stays, so that its values can be read.
    pointerX.reset();
    QCustomPlot::leaveEvent(event);
}

void PlotView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        dragFrom = event->position();
}

void PlotView::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF position = event->position();
    pointerX = position.x();
    if (dragFrom) {
        const QPointF moved = position - *dragFrom;
        dragFrom = position;
        if (moved.x() != 0)
            panTime(-moved.x() / std::max(1, axisRect()->width()));
        if (event->modifiers().testFlag(Qt::ShiftModifier))
            panValues(moved.y() / std::max(1, axisRect()->height()));
    }
    requestRefresh();
}

void PlotView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        dragFrom.reset();
}

void PlotView::wheelEvent(QWheelEvent *event)
{
    const double steps = event->angleDelta().y() / 120.0;
    const double factor = std::pow(zoomStep, steps);
    if (event->modifiers().testFlag(Qt::ControlModifier))
        zoomValues(factor);
    else
        changeWindow([&] { window.zoom(factor, timeAt(event->position().x())); });
    event->accept();
}

void PlotView::keyPressEvent(QKeyEvent *event)
{
    const bool control = event->modifiers().testFlag(Qt::ControlModifier);
    const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
    const auto zoom = [&](double factor) { control ? zoomValues(factor) : zoomTime(factor); };
    const auto moveSideways = [&](int direction) {
        if (shift)
            moveCursor(control ? direction * 10 : direction);
        else
            panTime(direction * panStep);
    };
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoom(zoomStep);
    case Qt::Key_Minus:
        return zoom(1 / zoomStep);
    case Qt::Key_Left:
        return moveSideways(-1);
    case Qt::Key_Right:
        return moveSideways(1);
    case Qt::Key_Up:
        return panValues(panStep);
    case Qt::Key_Down:
        return panValues(-panStep);
    case Qt::Key_Home:
        return showAll();
    case Qt::Key_End:
        return setFollowing(true);
    case Qt::Key_V:
        return fitValues();
    case Qt::Key_Escape:
        return removeCursor();
    default:
        QCustomPlot::keyPressEvent(event);
    }
}

} // namespace corvane
