#include "plotseries.h"

#include "corvane.h"
#include "descriptions.h"
#include "fieldinfo.h"

#include <QColor>

#include <array>
#include <cmath>
#include <utility>

namespace corvane {

namespace {

// Each has a contrast of at least 3 to white and to a dark grey of 12 %.
constexpr std::array<QRgb, PlotSeries::colorCount> colors
    = {0xff2f7ed8, 0xffd9720d, 0xff2a9a4c, 0xffe2453c, 0xff9a62d6,
       0xff129a9c, 0xffd94f9c, 0xff8c8a1a, 0xffa86b42, 0xff7a8694};
constexpr std::array penStyles = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine};

} // namespace

PlotSeries::PlotSeries(QString path, int number)
    : path(std::move(path))
    , number(number)
{
    resolve();
}

void PlotSeries::resolve()
{
    place = FieldPlace::find(path);
    if (place && !place->isNumeric())
        place.reset();
    confidential = confidential || (place && place->isConfidential());
}

void PlotSeries::process(const Message *message, qint64 timeUs)
{
    lastValue = place->read(message);
    received = true;
    confidential = confidential || lastValue.isConfidential();
    store.append(timeUs, lastValue.toDouble().value_or(Sample::gap));
}

void PlotSeries::forgetValues()
{
    store.clear();
    lastValue = FieldValue();
    received = false;
}

QString PlotSeries::getName() const
{
    return place ? place->getName() : path;
}

QString PlotSeries::getUnit() const
{
    return place ? place->getField()->getData()->unit : QString();
}

QPen PlotSeries::getPen() const
{
    const auto index = static_cast<size_t>(number);
    return {QColor::fromRgb(colors.at(index % colors.size())), 1.5,
            penStyles.at(index / colors.size() % penStyles.size())};
}

bool PlotSeries::isHidden() const
{
    return confidential && !Corvane::confidentialInformationDisplayEnabled();
}

QString PlotSeries::getStateText() const
{
    if (!place)
        return tr("Not described by the loaded definitions, or not a number");
    if (isHidden())
        return tr("Confidential, not shown");
    if (!received)
        return tr("Not received yet");
    if (!lastValue.isValid())
        return tr("Absent in the last message");
    return std::isfinite(lastValue.toDouble().value_or(Sample::gap)) ? tr("Received")
                                                                     : tr("No finite number");
}

QString PlotSeries::getLastValueText() const
{
    return place && !isHidden() ? place->getField()->getInterpretedString(lastValue, true)
                                : QString();
}

QString PlotSeries::getValueText(qint64 timeUs) const
{
    const std::optional<Sample> sample = store.getAt(timeUs);
    if (!sample || isHidden())
        return {};
    if (sample->isGap())
        return tr("none");
    return place ? place->textOf(sample->value) : QString::number(sample->value);
}

} // namespace corvane
