#pragma once

/**
 * Tracing and assertions for C and C++: one text line per call, handed to an output function of
 * the host, kept in the debug message buffer (DbgMsgBuffer.h) and, for errors and assertions, told
 * to a listener.
 *
 * The facility writes nothing itself. Output, locking, time, thread names and the environment come
 * from a table of callbacks that the host owns. Loading the library sets the table of the GUI base
 * library and initialises; a host that wants its own table calls dbg_SetCallbackFunctions() with it
 * and, to have the environment read through it, terminates and initialises again.
 *
 * Environment, read when the facility is initialised:
 *
 *     TAV_TRACELEVEL    levels by substring: 0 1 2 FUNC none all; unset: errors only
 *     TAV_TRACEINFO     prefix fields by substring: MODULE SUBMOD FUNC FILE LINE LEVEL TIME THREAD
 *                       all; unset: SUBMOD FUNC LINE LEVEL
 *     TAV_MODULES       names of the modules that trace, or none or all; unset: all
 *     TAV_SUBMODULES    the same for sub-modules
 *     TAV_STARTTIME     first and last second in which tracing is active
 *     TAV_STOPTIME
 *     TAV_LOGFILE       the output stream's file, unless dbg_Init() is given another variable
 *
 * The trace functions emit every line they are given; whether a line is wanted is the caller's
 * test, which DBG_TRACE makes:
 *
 *     DBG_TRACE(DbgLevelDetail0, "host", "reader", "%d bytes", count);
 *
 * All functions may be called from any thread, except that dbg_Init(), dbg_Terminate() and
 * dbg_SetCallbackFunctions() must not run while another thread traces. A null string argument is
 * an empty one.
 */

// NOLINTBEGIN(modernize-*,readability-identifier-naming): C reads it, and the names are the
// interface
#include "corvanegui_export.h"
#include "dbgcallbackfunctions.h"

#include <stdbool.h>
#include <stdint.h>
#include <stdio.h>

#if defined(__GNUC__)
#define DBG_PRINTF_LIKE(formatIndex, firstArgument)                                                \
    __attribute__((format(printf, formatIndex, firstArgument)))
#define DBG_NO_RETURN __attribute__((noreturn))
#define DBG_LOAD(global) __atomic_load_n(&(global), __ATOMIC_RELAXED)
#else
#define DBG_PRINTF_LIKE(formatIndex, firstArgument)
#define DBG_NO_RETURN
#define DBG_LOAD(global) (global)
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** The levels of a line, one bit each. */
enum DbgLevel {
    DbgLevelError = 1,
    DbgLevelFunction = 2, /**< Function entry and exit. */
    DbgLevelDetail0 = 4,
    DbgLevelDetail1 = 8,
    DbgLevelDetail2 = 16,
    DbgLevelAssert = 32
};

typedef void (*DbgListener)(int level);
/** length counts the line's terminator. */
typedef void (*DbgLineHook)(const char *line, int length);

/** The host's callbacks; null until dbg_SetCallbackFunctions(). */
extern CORVANEGUI_EXPORT DbgCallbackFunctions *dbg_callback_fn;
/** 1 or 0: the switch of dbg_TraceEnable() and dbg_TraceDisable(), for the callers' test. */
extern CORVANEGUI_EXPORT int sv_bTraceEnabled;
/** The enabled levels, for the callers' test. */
extern CORVANEGUI_EXPORT unsigned int sv_iTraceLevel;

extern CORVANEGUI_EXPORT bool gv_bDBGInitialised;
/** How many calls of dbg_Terminate() lead back to the uninitialised state. */
extern CORVANEGUI_EXPORT int gv_bDBGInitialisedCounter;
/** Whether gv_lhstdout is a log file that was opened here. */
extern CORVANEGUI_EXPORT bool gv_usingfile;
/** The output stream that dbg_Init() chose. */
extern CORVANEGUI_EXPORT FILE *gv_lhstdout;

/** The numbers of the latest dbg_Init(). */
extern CORVANEGUI_EXPORT int continue_on_assert;
extern CORVANEGUI_EXPORT int sleep_time_on_assert;
extern CORVANEGUI_EXPORT int additional_info_size;

/** Receives every line of level error after its output; null by default. */
extern CORVANEGUI_EXPORT DbgLineHook dbg_ErrorLineHook;

/** The table stays the caller's and must live as long as it is set; may be null. */
CORVANEGUI_EXPORT void dbg_SetCallbackFunctions(DbgCallbackFunctions *table);

/**
 * Initialises the facility: reads the environment and chooses the output stream. Each further call
 * only counts and stores the three numbers.
 *
 * @param logFileVariable environment variable that names the log file, to which lines are appended;
 *        null means TAV_LOGFILE. Unset, or a file that cannot be opened, means standard output.
 * @param continueOnAssert 0 makes assertions fatal.
 * @param sleepTimeOnAssert for the sleep callback before a fatal assertion aborts; 0: no sleep.
 * @param additionalInfoSize a line has at most this number plus 127 characters.
 */
CORVANEGUI_EXPORT void dbg_Init(const char *logFileVariable,
                                int continueOnAssert,
                                int sleepTimeOnAssert,
                                int additionalInfoSize);
/** Undoes one dbg_Init(); the last one closes the log file and gives standard output back. */
CORVANEGUI_EXPORT void dbg_Terminate(void);

/** Sets the facility's time in the unit of the getTime callback; 0 goes back to the callback. */
CORVANEGUI_EXPORT void dbg_SetTime(uint64_t time);
/** The set time, else the callback's, else 0. */
CORVANEGUI_EXPORT uint64_t dbg_GetTime(void);
/** Whether the time lies in the range that the environment gave, ends included. */
CORVANEGUI_EXPORT bool dbg_TimeActive(void);
/** 1 if the environment's lists admit module and sub-module, 0 if not, -1 if not initialised. */
CORVANEGUI_EXPORT int dbg_SubModActive(const char *module, const char *submodule);

/** The host's lock, under which lines are output and kept. */
CORVANEGUI_EXPORT void dbg_lock(void);
CORVANEGUI_EXPORT void dbg_unlock(void);

/** Calls the host's abort handler, if any, then aborts the process. */
CORVANEGUI_EXPORT DBG_NO_RETURN void dbg_Abort(void);

CORVANEGUI_EXPORT void dbg_TraceEnable(void);
CORVANEGUI_EXPORT void dbg_TraceDisable(void);
/** Whether a line is being built or emitted in any thread. */
CORVANEGUI_EXPORT bool dbg_IsBusy(void);
/** The listener is called after each line of level error or assertion; null for none. */
CORVANEGUI_EXPORT void dbg_TraceSetListener(DbgListener listener);

/** A line with prefix. A line that is too long is cut and ends with a newline. */
CORVANEGUI_EXPORT void dbg_Trace(int level,
                                 const char *module,
                                 const char *submodule,
                                 const char *function,
                                 const char *file,
                                 int line,
                                 const char *text);
/** The same with a printf format. A line that is too long is cut and has no newline. */
CORVANEGUI_EXPORT DBG_PRINTF_LIKE(7, 8) void dbg_TraceArg(int level,
                                                          const char *module,
                                                          const char *submodule,
                                                          const char *function,
                                                          const char *file,
                                                          int line,
                                                          const char *format,
                                                          ...);
/** A continuation: a line without prefix. A line that is too long is cut and has no newline. */
CORVANEGUI_EXPORT DBG_PRINTF_LIKE(2, 3) void dbg_TraceContArg(int level, const char *format, ...);
/** A line with prefix and the sign > for entering a function, whose name is always printed. */
CORVANEGUI_EXPORT void dbg_TraceIn(int level,
                                   const char *module,
                                   const char *submodule,
                                   const char *function,
                                   const char *file,
                                   int line);
/** The same with the sign < for leaving a function. */
CORVANEGUI_EXPORT void dbg_TraceOut(int level,
                                    const char *module,
                                    const char *submodule,
                                    const char *function,
                                    const char *file,
                                    int line);

/**
 * A failed assertion: a line of level assertion, then the end of the process unless assertions were
 * made to continue. Nothing is tested here. Without initialisation there is no line.
 */
CORVANEGUI_EXPORT void dbg_Assert(const char *module,
                                  const char *submodule,
                                  const char *function,
                                  const char *file,
                                  int line,
                                  const char *expressionText);
/** The same with a printf format. */
CORVANEGUI_EXPORT DBG_PRINTF_LIKE(6, 7) void dbg_AssertArg(const char *module,
                                                           const char *submodule,
                                                           const char *function,
                                                           const char *file,
                                                           int line,
                                                           const char *format,
                                                           ...);

/** Emits a text of any length as it is, without prefix or newline. */
CORVANEGUI_EXPORT void dbg_DumpInfo(const char *text, int level);

#ifdef __cplusplus
}
#endif

/**
 * Whether a line is wanted now. The level, which is off in most cases, is tested first, so that a
 * disabled statement costs a load and a branch.
 */
#define DBG_TRACE_ACTIVE(level, module, submodule)                                                 \
    ((DBG_LOAD(sv_iTraceLevel) & (unsigned int)(level)) != 0u && DBG_LOAD(sv_bTraceEnabled) != 0   \
     && dbg_SubModActive((module), (submodule)) == 1 && dbg_TimeActive())

/** Traces a printf format with its arguments, which are evaluated only if the line is wanted. */
#define DBG_TRACE(level, module, submodule, ...)                                                   \
    do {                                                                                           \
        if (DBG_TRACE_ACTIVE(level, module, submodule))                                            \
            dbg_TraceArg((level), (module), (submodule), __func__, __FILE__, __LINE__,             \
                         __VA_ARGS__);                                                             \
    } while (0)
// NOLINTEND(modernize-*,readability-identifier-naming)
