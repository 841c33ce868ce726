#include "DbgState.h"

// NOLINTBEGIN(readability-identifier-naming)
extern "C" {
constinit DbgCallbackFunctions *dbg_callback_fn = nullptr;
constinit int sv_bTraceEnabled = 1;
constinit unsigned int sv_iTraceLevel = 0;
constinit bool gv_bDBGInitialised = false;
constinit int gv_bDBGInitialisedCounter = 0;
constinit bool gv_usingfile = false;
constinit FILE *gv_lhstdout = nullptr;
constinit int continue_on_assert = 0;
constinit int sleep_time_on_assert = 0;
constinit int additional_info_size = 0;
constinit DbgLineHook dbg_ErrorLineHook = nullptr;
}

// NOLINTEND(readability-identifier-naming)

namespace corvane {
constinit TraceState traceState;
} // namespace corvane

using namespace corvane;

void dbg_SetCallbackFunctions(DbgCallbackFunctions *table)
{
    storeShared(dbg_callback_fn, table);
}

void dbg_TraceEnable()
{
    storeShared(sv_bTraceEnabled, 1);
}

void dbg_TraceDisable()
{
    storeShared(sv_bTraceEnabled, 0);
}

bool dbg_IsBusy()
{
    return traceState.busyCount.load(std::memory_order_relaxed) > 0;
}

void dbg_TraceSetListener(DbgListener listener)
{
    traceState.listener = listener;
}

void dbg_SetTime(uint64_t time)
{
    traceState.setTime.store(time, std::memory_order_relaxed);
}

uint64_t dbg_GetTime()
{
    const uint64_t time = traceState.setTime.load(std::memory_order_relaxed);
    if (time != 0)
        return time;
    const auto getTime = callback(&DbgCallbackFunctions::getTime);
    return getTime == nullptr ? 0 : getTime();
}

void dbg_lock()
{
    const DbgCallbackFunctions *table = loadShared(dbg_callback_fn);
    if (table != nullptr && table->lock != nullptr)
        table->lock(table->lockContext);
}

void dbg_unlock()
{
    const DbgCallbackFunctions *table = loadShared(dbg_callback_fn);
    if (table != nullptr && table->unlock != nullptr)
        table->unlock(table->lockContext);
}
