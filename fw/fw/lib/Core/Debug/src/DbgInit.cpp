#include "DbgInit.h"

#include "DbgEnvironment.h"
#include "DbgState.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>

using namespace corvane;

namespace {

constexpr int couldNotCloseFile = 6;

constexpr const char *errorTexts[] = {
    " success.",
    " unknown type.",
    " could not open file.",
    " illegal nullpointer passed as argument.",
    " functionality not yet implemented.",
    " Mutex init failed.",
    " could not close file.",
};

// A copy, because the next getenv or setenv may change the text of the environment.
void readList(const char *variable, char *&list)
{
    std::free(list);
    const char *value = dbg_getenv(variable);
    list = value == nullptr ? nullptr : strdup(value);
}

uint64_t readTime(const char *variable, uint64_t unsetTime)
{
    const char *value = dbg_getenv(variable);
    if (value == nullptr)
        return unsetTime;
    return static_cast<uint64_t>(std::strtol(value, nullptr, 10)) * 1000;
}

void readFilters()
{
    readList("TAV_SUBMODULES", traceState.subModules);
    readList("TAV_MODULES", traceState.modules);
    traceState.startTime = readTime("TAV_STARTTIME", 0);
    traceState.stopTime = readTime("TAV_STOPTIME", std::numeric_limits<uint64_t>::max());
}

void setOutputStream(FILE *stream)
{
    gv_lhstdout = stream;
    const auto hostSetStream = callback(&DbgCallbackFunctions::setOutputStream);
    if (hostSetStream != nullptr)
        hostSetStream(stream);
}

void openOutputStream(const char *logFileVariable)
{
    const char *path = dbg_getenv(logFileVariable == nullptr ? "TAV_LOGFILE" : logFileVariable);
    FILE *logFile = path == nullptr ? nullptr : std::fopen(path, "a+");
    if (logFile != nullptr)
        gv_usingfile = true;
    setOutputStream(logFile != nullptr ? logFile : stdout);
}

void stopOnError(int code)
{
    if (code == 0)
        return;
    std::printf("dbg_Init failed :%s", initErrorText(code));
    std::exit(1);
}

void closeLogFile()
{
    FILE *logFile = gv_lhstdout;
    gv_usingfile = false;
    // Lines may still come; they must not meet the closed stream.
    setOutputStream(stdout);
    if (std::fclose(logFile) == 0)
        return;
    const auto output = callback(&DbgCallbackFunctions::output);
    if (output == nullptr)
        return;
    const TraceLock lock;
    output("dbg_Terminate failed", 1);
    output(initErrorText(couldNotCloseFile), 1);
}

} // namespace

const char *corvane::initErrorText(int code)
{
    if (code < 0 || code >= static_cast<int>(std::size(errorTexts)))
        return "Unknown Error";
    return errorTexts[code];
}

int DbgInitSegVHandler()
{
    return 0;
}

void dbg_Init(const char *logFileVariable,
              int continueOnAssert,
              int sleepTimeOnAssert,
              int additionalInfoSize)
{
    storeShared(continue_on_assert, continueOnAssert);
    storeShared(sleep_time_on_assert, sleepTimeOnAssert);
    storeShared(additional_info_size, additionalInfoSize);
    DbgInitSegVHandler();
    if (!gv_bDBGInitialised) {
        readFilters();
        openOutputStream(logFileVariable);
        stopOnError(TraceLevelInitialise());
        stopOnError(TraceInfoInitialise());
        storeShared(gv_bDBGInitialised, true);
    }
    ++gv_bDBGInitialisedCounter;
}

void dbg_Terminate()
{
    if (--gv_bDBGInitialisedCounter != 0)
        return;
    storeShared(gv_bDBGInitialised, false);
    if (gv_usingfile)
        closeLogFile();
}
