#pragma once

#include "customplot.h"
#include "plotseries.h"

#include <vector>

namespace corvane {

/**
 * The value axes of a plot: one for each unit on each side, or one on each side. They fit what is
 * shown until people move or scale them.
 */
class ValueAxes
{
public:
    /** \a plot and \a series are not owned and must outlive the axes. */
    ValueAxes(QCustomPlot &plot, const PlotSeriesList &series);

    /** Gives each unit an axis of its own, from the next rebuild() on. */
    void setPerUnit(bool newPerUnit) { perUnit = newPerUnit; }

    /** To be called when series were added or removed, or their units or sides changed. */
    void rebuild();

    /** The axis of the series with that number; owned by the plot. */
    QCPAxis *getAxisOf(size_t seriesNumber) const { return axes[axisOfSeries[seriesNumber]].axis; }

    /** Names each by unit, or by series where there is none; one of one series has its colour. */
    void label();

    /** From here on what is shown is told anew. */
    void beginValues();
    /** A value of the series with that number is shown. */
    void addValue(size_t seriesNumber, double value);
    /** Makes each axis as long as its values need, unless people have taken it over. */
    void endValues();

    bool isFitting() const { return fitting; }

    void fit() { fitting = true; }

    /** Moves all axes by so many of their lengths. */
    void move(double ranges);
    void scale(double factor);

private:
    struct ValueAxis
    {
        QCPAxis *axis; ///< Owned by the plot.
        PlotSeries::Side side;
        QString unit;
        QCPRange shown; ///< Of the values that are shown; empty while there are none.
        bool hasValues = false;
    };

    void removeAxes();
    size_t axisFor(const PlotSeries &one);
    QCPAxis *takeAxis(PlotSeries::Side side);

    QCustomPlot &plot;
    const PlotSeriesList &series;
    bool perUnit = true;
    bool fitting = true;
    std::vector<ValueAxis> axes;
    std::vector<size_t> axisOfSeries; ///< Of each series, its index in axes.
};

} // namespace corvane
