#pragma once

#include "customplot.h"
#include "plotseries.h"
#include "timewindow.h"
#include "valueaxes.h"

#include <QTimer>

#include <functional>
#include <optional>
#include <vector>

namespace corvane {

/**
 * The picture of some series over time.
 *
 * It is drawn at most once per frame, and less often where drawing would take more than a third of
 * the time; and only what it shows of each series, in as many columns as it has pixels. The time
 * follows the newest value until people pan; the value axes fit what is shown until people pan or
 * zoom them. Mouse: drag pans the time (with Shift, the values too), the wheel zooms the time (with
 * Ctrl, the values), the pointer is the cursor. Keys: see the README.
 */
class PlotView : public QCustomPlot
{
    Q_OBJECT

public:
    /** At most 60 pictures a second. */
    static constexpr int frameMs = 16;

    /** \a series is not owned and must outlive the view. */
    explicit PlotView(const PlotSeriesList &series, QWidget *parent = nullptr);

    /** To be called when series were added or removed, or their axes changed. */
    void rebuild();
    /** Draws anew with the next frame. */
    void requestRefresh();
    /** Draws at once. */
    void refresh();
    /** While paused the window does not follow, and is told to draw only by people. */
    void setPaused(bool pause);
    /** Times of the axis and of the cursor; else in the time zone of this machine. */
    void setUtc(bool newUtc);
    /** Gives each unit a value axis of its own; else there is one on each side. */
    void setAxisPerUnit(bool perUnit);

    const TimeWindow &getWindow() const { return window; }

    void setSpanUs(qint64 spanUs);
    void setFollowing(bool following);
    void panTime(double spans);
    /** \a factor: below 1 shows less time. Around the cursor, where there is one. */
    void zoomTime(double factor);
    /** From the first value to the last. */
    void showAll();
    void panValues(double ranges);
    void zoomValues(double factor);
    void fitValues();

    /** The time that the cursor stands at. */
    std::optional<qint64> getCursorUs() const { return cursorUs; }

    /** Moves the cursor, from the middle where there is none, within the picture. */
    void moveCursor(int pixels);
    void removeCursor();

    /** What is shown, as a sentence. */
    QString getStateText() const;
    /** The picture with a legend, as it is shown. */
    QImage toImage();
    /**
     * Writes the picture with a legend (PNG, SVG), or the shown samples (CSV), as the end of the
     * file's name says. Returns what went wrong, or an empty text.
     */
    QString saveAs(const QString &fileName);

Q_SIGNALS:
    /** The picture has changed. */
    void refreshed();
    /** The window follows the newest value now, or no longer. */
    void followingChanged(bool following);

protected:
    void changeEvent(QEvent *event) override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void createTimeAxis();
    void createPlaceholder();
    void applyPalette();
    void styleAxis(QCPAxis *axis);
    int widthOfTime() const;
    void fillGraph(size_t seriesNumber);
    void chooseDrawing(size_t points);
    void placeCursor();
    void refreshPlaceholder();
    void changeWindow(const std::function<void()> &change);
    std::optional<qint64> getNewestUs() const;
    qint64 timeAt(double x) const;
    void withLegend(const std::function<void()> &draw);
    bool writeTo(QIODevice &device, const QString &suffix);

    const PlotSeriesList &series;
    TimeWindow window;
    bool paused = false;
    bool utc = false;
    ValueAxes axes;
    std::vector<Sample> line; ///< Kept, so that drawing allocates little.
    std::optional<qint64> cursorUs;
    std::optional<double> pointerX; ///< While the mouse is over the picture.
    std::optional<QPointF> dragFrom;
    QCPItemStraightLine *cursorLine; ///< Owned by the plot.
    QSharedPointer<QCPAxisTickerDateTime> timeTicker;
    QLabel *placeholder = nullptr; ///< Owned as a child.
    QTimer frameTimer;
};

} // namespace corvane
