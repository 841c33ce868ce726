// Traces from C++ through the library's own callbacks, keeps the latest lines in a ring and dumps
// them, newest first, when an error is told.
//
//     TAV_TRACELEVEL=all trace-cpp

#include "DbgMsgBuffer.h"
#include "DbgTrace.h"

#include <cstdint>
#include <cstdio>

namespace {

bool errorSeen = false;

void noteError(int level)
{
    if (level == DbgLevelError)
        errorSeen = true;
}

void dumpRing()
{
    std::puts("The latest lines, newest first:");
    // [dump]
    char line[256];
    uint64_t cursor = 0;
    // The ring has no lock of its own.
    dbg_lock();
    for (int number = 1; Tav::DbgDump_getNextLine(line, sizeof line, number, cursor, true) != 0;
         ++number)
        std::fputs(line, stdout);
    dbg_unlock();
    // [dump]
}

// [trace]
void divide(int dividend, int divisor)
{
    if (divisor == 0) {
        DBG_TRACE(DbgLevelError, "trace-cpp", "divide", "%d cannot be divided by 0", dividend);
        return;
    }
    DBG_TRACE(DbgLevelDetail1, "trace-cpp", "divide", "%d / %d = %d", dividend, divisor,
              dividend / divisor);
}

// [trace]

} // namespace

int main()
{
    // [ring]
    static char area[512];
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    dbg_TraceSetListener(noteError);
    // [ring]

    for (int divisor = 5; divisor >= 0; --divisor)
        divide(60, divisor);
    if (errorSeen)
        dumpRing();

    dbg_TraceSetListener(nullptr);
    Tav::DbgDump_setTraceBuffer(nullptr, 0);
}
