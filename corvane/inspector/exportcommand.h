#pragma once

#include <QString>

namespace corvane {

struct Options;

/**
 * Exports the messages of a source without a window, until the source ends, the time asked for is
 * over, or the program is interrupted (SIGINT, SIGTERM). Tells its progress on standard error where
 * that is a terminal. Returns what went wrong, or nothing.
 */
QString runExport(const Options &options);

} // namespace corvane
