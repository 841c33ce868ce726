#pragma once

#include "DbgState.h"

namespace corvane {

class DbgLine;

/** Holds dbg_IsBusy() true for the length of a block. */
class BusyMark
{
public:
    BusyMark() { traceState.busyCount.fetch_add(1, std::memory_order_relaxed); }

    BusyMark(const BusyMark &) = delete;
    BusyMark &operator=(const BusyMark &) = delete;

    ~BusyMark() { traceState.busyCount.fetch_sub(1, std::memory_order_relaxed); }
};

/** Outputs the text, keeps it in the debug message buffer and calls the listener. */
void emitText(const char *text, int level);
/** The same with the hook for error lines. */
void emitLine(const DbgLine &line, int level);

} // namespace corvane
