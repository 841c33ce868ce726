// Runs one way of ending that a test asks for by name and writes down what the host sees of it.

#include "DbgMsgBuffer.h"
#include "DbgTrace.h"

#include <sys/resource.h>

#include <cstdio>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>

namespace {

void say(const char *text)
{
    std::fputs(text, stdout);
    std::fflush(stdout);
}

void reportOutput(const char *line, int severity)
{
    std::printf("output %d ", severity);
    say(line);
}

void reportSleep(int time)
{
    std::printf("sleep %d dump %d\n", time, Tav::dbgDumpAllowed ? 1 : 0);
    std::fflush(stdout);
}

void reportAbort()
{
    say("handler\n");
}

void clearTable()
{
    say("handler clears\n");
    dbg_SetCallbackFunctions(nullptr);
}

DbgCallbackFunctions hostTable()
{
    DbgCallbackFunctions table = {};
    table.output = reportOutput;
    table.sleep = reportSleep;
    table.abortHandler = reportAbort;
    table.getenv = [](const char *) -> const char * { return nullptr; };
    return table;
}

DbgCallbackFunctions host = hostTable();

bool has(int argc, char *argv[], std::string_view word)
{
    for (int i = 2; i < argc; ++i)
        if (argv[i] == word)
            return true;
    return false;
}

void useHost(int argc, char *argv[])
{
    dbg_Terminate();
    dbg_SetCallbackFunctions(&host);
    if (has(argc, argv, "nosleepslot"))
        host.sleep = nullptr;
    if (has(argc, argv, "nohandler"))
        host.abortHandler = nullptr;
    if (has(argc, argv, "clearing"))
        host.abortHandler = clearTable;
    dbg_Init(nullptr, has(argc, argv, "continue") ? 1 : 0, has(argc, argv, "sleep") ? 250 : 0, 300);
    if (has(argc, argv, "uninitialised"))
        dbg_Terminate();
    if (has(argc, argv, "notable"))
        dbg_SetCallbackFunctions(nullptr);
}

void reportState()
{
    std::printf("table %d initialised %d count %d file %d stdout %d continue %d sleep %d size %d\n",
                dbg_callback_fn != nullptr, gv_bDBGInitialised, gv_bDBGInitialisedCounter,
                gv_usingfile, gv_lhstdout == stdout, continue_on_assert, sleep_time_on_assert,
                additional_info_size);
    std::fflush(stdout);
    DBG_TRACE(DbgLevelError, "child", "state", "a traced %s", "line");
}

// The host's area is open to everybody: these overwrite the links of the oldest of its lines.
alignas(8) char area[256];

void fillArea()
{
    Tav::DbgDump_setTraceBuffer(area, 128);
    for (int i = 0; i < 5; ++i)
        Tav::dbgMsgBufferPush("text");
}

void linkOldestTo(void *next)
{
    std::memcpy(area, &next, sizeof next);
}

void loseFirst()
{
    fillArea();
    linkOldestTo(nullptr);
    Tav::dbgMsgBufferPush("text");
}

void leaveArea()
{
    fillArea();
    linkOldestTo(area + 200);
    Tav::dbgMsgBufferPush("text");
}

// No memory for a line of the greatest size.
void traceWithoutMemory()
{
    const rlimit littleMemory = {1U << 30, 1U << 30};
    setrlimit(RLIMIT_AS, &littleMemory);
    dbg_Init(nullptr, 1, 0, std::numeric_limits<int>::max());
    dbg_TraceContArg(DbgLevelDetail0, "%s", std::string(2000, 'x').c_str());
    say("\n");
}

int run(int argc, char *argv[])
{
    const std::string_view command = argc > 1 ? argv[1] : "";
    if (command == "state") {
        reportState();
        return 0;
    }
    useHost(argc, argv);
    if (command == "assert")
        dbg_Assert("m", "s", "f", "file", 12, "a == b");
    if (command == "assertarg")
        dbg_AssertArg("m", "s", "f", "file", 12, "%d is not %d", 1, 2);
    if (command == "abort")
        dbg_Abort();
    if (command == "nomemory")
        traceWithoutMemory();
    if (command == "losefirst")
        loseFirst();
    if (command == "leavearea")
        leaveArea();
    say("survived\n");
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const rlimit noCoreFile = {0, 0};
    setrlimit(RLIMIT_CORE, &noCoreFile);
    return run(argc, argv);
}
