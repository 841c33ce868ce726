/*
 * Traces from C: sets the host's own table of callbacks and writes a few lines.
 *
 *     TAV_TRACELEVEL=all TAV_TRACEINFO=TIME,LEVEL,SUBMOD,FUNC trace-c
 */

#include "DbgTrace.h"

#include <pthread.h>
#include <stdlib.h>
#include <time.h>

static pthread_mutex_t outputMutex = PTHREAD_MUTEX_INITIALIZER;
static FILE *outputStream;

static void lockOutput(void *context)
{
    pthread_mutex_lock((pthread_mutex_t *)context);
}

static void unlockOutput(void *context)
{
    pthread_mutex_unlock((pthread_mutex_t *)context);
}

static uint64_t currentTime(void)
{
    struct timespec now;
    timespec_get(&now, TIME_UTC);
    return (uint64_t)now.tv_sec * 1000 + (uint64_t)now.tv_nsec / 1000000;
}

static void setStream(FILE *stream)
{
    outputStream = stream;
}

static void writeLine(const char *line, int severity)
{
    fprintf(outputStream, "%s %s", severity == 1 ? "!" : " ", line);
}

static const char *environmentVariable(const char *name)
{
    return getenv(name);
}

static void countWords(const char *text)
{
    const bool traceCall = DBG_TRACE_ACTIVE(DbgLevelFunction, "trace-c", "words");
    if (traceCall)
        dbg_TraceIn(DbgLevelFunction, "trace-c", "words", __func__, __FILE__, __LINE__);
    int words = 0;
    for (const char *c = text; *c != '\0'; ++c)
        if (*c != ' ' && (c == text || c[-1] == ' '))
            ++words;
    DBG_TRACE(DbgLevelDetail0, "trace-c", "words", "%d words in \"%s\"", words, text);
    if (words == 0)
        DBG_TRACE(DbgLevelError, "trace-c", "words", "nothing to count");
    if (traceCall)
        dbg_TraceOut(DbgLevelFunction, "trace-c", "words", __func__, __FILE__, __LINE__);
}

int main(void)
{
    DbgCallbackFunctions host = {0};
    host.lock = lockOutput;
    host.unlock = unlockOutput;
    host.lockContext = &outputMutex;
    host.getTime = currentTime;
    host.setOutputStream = setStream;
    host.output = writeLine;
    host.getenv = environmentVariable;

    /* The library has initialised itself with its own table while it was loaded. */
    dbg_Terminate();
    dbg_SetCallbackFunctions(&host);
    dbg_Init(NULL, 1, 0, 1000);

    countWords("a line for each call");
    countWords("");

    dbg_Terminate();
    dbg_SetCallbackFunctions(NULL);
    return 0;
}
