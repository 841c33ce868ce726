// In place of the plot's folder in a build that leaves it out.

#include "abstractplotpanel.h"

namespace corvane {

AbstractPlotPanel *createPlotPanel(MessageSource &)
{
    return nullptr;
}

} // namespace corvane
