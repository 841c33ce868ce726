#pragma once

#include "plotseries.h"

class QIODevice;

namespace corvane {

/** "2024-05-01T12:00:00.123456Z" */
QString timeText(qint64 timeUs);

/**
 * Writes the samples of \a series from \a fromUs to \a toUs as CSV (RFC 4180): a row for each time
 * at which one of them has a value, with the time and a column for each series. A cell is empty
 * where a series has no value of that time. Confidential series are left out while they are hidden.
 * Returns whether all could be written.
 */
bool writePlotCsv(QIODevice &device, const PlotSeriesList &series, qint64 fromUs, qint64 toUs);

} // namespace corvane
