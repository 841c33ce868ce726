/* The interface as a C program sees it. */

#include "cinterface.h"

#include "DbgTrace.h"

static void traceWithLevel(unsigned int level)
{
    DBG_TRACE(level, "c", "program", "level %u", level);
}

void traceFromC(void)
{
    traceWithLevel(DbgLevelError);
    traceWithLevel(DbgLevelDetail1);
    dbg_TraceIn(DbgLevelFunction, "c", "program", __func__, __FILE__, 10);
    dbg_Trace(DbgLevelDetail0, "c", "program", __func__, __FILE__, 11, "text");
    dbg_TraceArg(DbgLevelDetail0, "c", "program", __func__, __FILE__, 12, "%s %d", "number", 12);
    dbg_TraceContArg(DbgLevelDetail0, "%c", 'c');
    dbg_TraceOut(DbgLevelFunction, "c", "program", __func__, __FILE__, 13);
    dbg_Assert("c", "program", __func__, __FILE__, 14, "1 == 2");
    dbg_AssertArg("c", "program", __func__, __FILE__, 15, "%d == %d", 1, 2);
    dbg_DumpInfo("dump\n", DbgLevelError);
}

int stateSeenFromC(void)
{
    return gv_bDBGInitialised && gv_bDBGInitialisedCounter == 1 && !gv_usingfile
           && gv_lhstdout == stdout && sv_bTraceEnabled == 1 && sv_iTraceLevel == 1u
           && continue_on_assert == 1 && sleep_time_on_assert == 0 && additional_info_size == 3072
           && dbg_callback_fn != NULL && dbg_ErrorLineHook == NULL && !dbg_IsBusy();
}
