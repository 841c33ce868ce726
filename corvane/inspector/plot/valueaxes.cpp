#include "valueaxes.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane {

namespace {

constexpr double valueMargin = 0.05;

QCPAxis::AxisType axisTypeOf(PlotSeries::Side side)
{
    return side == PlotSeries::Side::Left ? QCPAxis::atLeft : QCPAxis::atRight;
}

QCPRange withMargin(const QCPRange &range)
{
    const double size = range.size();
    // A constant value lies in the middle of a range that it can be read in.
    const double margin
        = size > 0 ? size * valueMargin : std::max(std::abs(range.lower) * valueMargin, 0.5);
    return {range.lower - margin, range.upper + margin};
}

} // namespace

ValueAxes::ValueAxes(QCustomPlot &plot, const PlotSeriesList &series)
    : plot(plot)
    , series(series)
{
}

void ValueAxes::rebuild()
{
    removeAxes();
    axisOfSeries.clear();
    for (const auto &one : series)
        axisOfSeries.push_back(axisFor(*one));
}

void ValueAxes::removeAxes()
{
    for (const ValueAxis &axis : axes)
        if (axis.axis != plot.yAxis && axis.axis != plot.yAxis2)
            plot.axisRect()->removeAxis(axis.axis);
    axes.clear();
    plot.yAxis2->setVisible(false);
}

size_t ValueAxes::axisFor(const PlotSeries &one)
{
    const QString unit = perUnit ? one.getUnit() : QString();
    for (size_t i = 0; i < axes.size(); ++i)
        if (axes[i].side == one.getSide() && axes[i].unit == unit)
            return i;
    axes.push_back({takeAxis(one.getSide()), one.getSide(), unit, {}, false});
    return axes.size() - 1;
}

/** The axis of the plot at that side, or a new one if it is in use. */
QCPAxis *ValueAxes::takeAxis(PlotSeries::Side side)
{
    QCPAxis *first = side == PlotSeries::Side::Left ? plot.yAxis : plot.yAxis2;
    const bool isTaken = std::any_of(axes.begin(), axes.end(),
                                     [first](const ValueAxis &axis) { return axis.axis == first; });
    QCPAxis *axis = isTaken ? plot.axisRect()->addAxis(axisTypeOf(side)) : first;
    axis->setVisible(true);
    axis->setTickLabels(true);
    return axis;
}

void ValueAxes::label()
{
    plot.yAxis->setLabel({});
    for (size_t i = 0; i < axes.size(); ++i) {
        QStringList texts;
        std::vector<const PlotSeries *> users;
        for (size_t number = 0; number < axisOfSeries.size(); ++number) {
            const PlotSeries &one = *series[number];
            if (axisOfSeries[number] != i || one.getType() == nullptr)
                continue;
            users.push_back(&one);
            texts += one.getUnit().isEmpty() ? one.getName() : one.getUnit();
        }
        texts.removeDuplicates();
        const QString label = texts.join(QStringLiteral(", "));
        axes[i].axis->setLabel(
            plot.fontMetrics().elidedText(label, Qt::ElideLeft, plot.height() * 2 / 3));
        if (users.size() == 1)
            axes[i].axis->setBasePen(users.front()->getPen());
    }
}

void ValueAxes::beginValues()
{
    for (ValueAxis &axis : axes)
        axis.hasValues = false;
}

void ValueAxes::addValue(size_t seriesNumber, double value)
{
    ValueAxis &axis = axes[axisOfSeries[seriesNumber]];
    if (!std::exchange(axis.hasValues, true))
        axis.shown = {value, value};
    axis.shown.expand(value);
}

void ValueAxes::endValues()
{
    for (const ValueAxis &axis : axes)
        if (fitting && axis.hasValues)
            axis.axis->setRange(withMargin(axis.shown));
}

void ValueAxes::move(double ranges)
{
    fitting = false;
    for (const ValueAxis &axis : axes)
        axis.axis->moveRange(axis.axis->range().size() * ranges);
}

void ValueAxes::scale(double factor)
{
    fitting = false;
    for (const ValueAxis &axis : axes)
        axis.axis->scaleRange(factor);
}

} // namespace corvane
