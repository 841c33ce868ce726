#include "timewindow.h"

#include <algorithm>

namespace corvane {

void TimeWindow::setSpanUs(qint64 newSpanUs)
{
    spanUs = std::clamp(newSpanUs, minimumSpanUs, maximumSpanUs);
}

void TimeWindow::follow(qint64 newestUs)
{
    if (following)
        toUs = newestUs;
}

void TimeWindow::show(qint64 firstUs, qint64 lastUs)
{
    following = false;
    setSpanUs(lastUs - firstUs);
    toUs = lastUs;
}

void TimeWindow::pan(double spans)
{
    following = false;
    toUs += qRound64(spans * static_cast<double>(spanUs));
}

void TimeWindow::zoom(double factor, qint64 anchorUs)
{
    const auto before = static_cast<double>(spanUs);
    setSpanUs(qRound64(before * factor));
    if (!following)
        toUs = anchorUs
               + qRound64(static_cast<double>(toUs - anchorUs) * static_cast<double>(spanUs)
                          / before);
}

} // namespace corvane
