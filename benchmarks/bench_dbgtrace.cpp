// What a trace statement costs, beside a plain snprintf of the same line.

#include "DbgMsgBuffer.h"
#include "DbgTrace.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdio>
#include <mutex>
#include <string>

namespace {

constexpr int lineSize = 3072;
std::mutex hostMutex;

DbgCallbackFunctions nullHost()
{
    DbgCallbackFunctions table = {};
    table.lockContext = &hostMutex;
    table.lock = [](void *mutex) { static_cast<std::mutex *>(mutex)->lock(); };
    table.unlock = [](void *mutex) { static_cast<std::mutex *>(mutex)->unlock(); };
    table.getTime = []() -> uint64_t { return 1234567890123; };
    table.output = [](const char *line, int) { benchmark::DoNotOptimize(line); };
    table.getenv = [](const char *) -> const char * { return nullptr; };
    return table;
}

DbgCallbackFunctions host = nullHost();

// The standard prefix: level, sub-module, line and function.
void useNullHost(int additionalInfoSize)
{
    while (gv_bDBGInitialised)
        dbg_Terminate();
    dbg_SetCallbackFunctions(&host);
    dbg_Init(nullptr, 1, 0, additionalInfoSize);
    Tav::DbgDump_setTraceBuffer(nullptr, 0);
}

void disabledStatement(benchmark::State &state)
{
    useNullHost(lineSize);
    int value = 0;
    for (auto _ : state) {
        DBG_TRACE(DbgLevelDetail2, "bench", "trace", "value %d", ++value);
        benchmark::ClobberMemory();
    }
    if (value != 0)
        state.SkipWithError("the statement was not disabled");
}

void plainSnprintf(benchmark::State &state)
{
    char line[lineSize + 128];
    int value = 0;
    for (auto _ : state) {
        const int length = snprintf(line, sizeof line, " Lv:%4s %10s Ln:%4d %20s value %d of %s\n",
                                    "Err", "trace", __LINE__, __func__, ++value, "the benchmark");
        benchmark::DoNotOptimize(length);
        benchmark::DoNotOptimize(line);
    }
}

// The argument is the size for dbg_Init(): with 512 the line is built on the stack.
void emittedLine(benchmark::State &state)
{
    useNullHost(static_cast<int>(state.range(0)));
    int value = 0;
    for (auto _ : state)
        dbg_TraceArg(DbgLevelDetail0, "bench", "trace", __func__, __FILE__, __LINE__,
                     "value %d of %s", ++value, "the benchmark");
}

void emittedLineWithRing(benchmark::State &state)
{
    useNullHost(lineSize);
    static char area[65536];
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    int value = 0;
    for (auto _ : state)
        dbg_TraceArg(DbgLevelDetail0, "bench", "trace", __func__, __FILE__, __LINE__,
                     "value %d of %s", ++value, "the benchmark");
    Tav::DbgDump_setTraceBuffer(nullptr, 0);
}

void ringPush(benchmark::State &state)
{
    static char area[65536];
    Tav::DbgDump_setTraceBuffer(area, sizeof area);
    const std::string line(static_cast<size_t>(state.range(0)), 'x');
    for (auto _ : state)
        benchmark::DoNotOptimize(Tav::dbgMsgBufferPush(line.c_str()));
    state.SetBytesProcessed(state.iterations() * state.range(0));
    Tav::DbgDump_setTraceBuffer(nullptr, 0);
}

BENCHMARK(disabledStatement);
BENCHMARK(plainSnprintf);
BENCHMARK(emittedLine)->Arg(512)->Arg(lineSize);
BENCHMARK(emittedLineWithRing);
BENCHMARK(ringPush)->Arg(16)->Arg(80)->Arg(2048);

} // namespace
