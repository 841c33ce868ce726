#pragma once

// QCustomPlot's header needs words that this project switches off; it gets them here only.

#define signals Q_SIGNALS
#define slots Q_SLOTS
#define foreach(variable, container)                                                               \
    for (variable : container) // NOLINT(bugprone-macro-parentheses)
#include <qcustomplot.h>
#undef foreach
#undef slots
#undef signals
