#include "DbgEnvironment.h"

#include "DbgState.h"

#include <cstdlib>
#include <cstring>

using namespace corvane;

namespace {

struct Keyword
{
    const char *text;
    unsigned mask;
};

constexpr Keyword infoKeywords[] = {
    {"MODULE", ModuleInfo}, {"SUBMOD", SubModuleInfo}, {"FUNC", FunctionInfo},
    {"FILE", FileInfo},     {"LINE", LineInfo},        {"LEVEL", LevelInfo},
    {"TIME", TimeInfo},     {"THREAD", ThreadInfo},
};

bool contains(const char *text, const char *part)
{
    return std::strstr(text, part) != nullptr;
}

bool equals(const char *text, const char *other)
{
    return std::strcmp(text, other) == 0;
}

unsigned levelMask(const char *value)
{
    if (value == nullptr)
        return DbgLevelError;
    unsigned mask = DbgLevelError;
    if (contains(value, "2"))
        mask = DbgLevelError | DbgLevelDetail2;
    if (contains(value, "1"))
        mask |= DbgLevelDetail1;
    if (contains(value, "0"))
        mask |= DbgLevelDetail0;
    if (contains(value, "FUNC"))
        mask |= DbgLevelFunction;
    if (contains(value, "none"))
        mask = 0;
    if (contains(value, "all"))
        mask = 255;
    return mask;
}

unsigned infoMask(const char *value)
{
    if (value == nullptr)
        return SubModuleInfo | FunctionInfo | LineInfo | LevelInfo;
    if (contains(value, "all"))
        return AllInfo;
    unsigned mask = 0;
    for (const Keyword &keyword : infoKeywords)
        if (contains(value, keyword.text))
            mask |= keyword.mask;
    return mask;
}

} // namespace

const char *dbg_getenv(const char *name)
{
    const auto hostGetenv = callback(&DbgCallbackFunctions::getenv);
    if (hostGetenv != nullptr)
        return hostGetenv(orEmpty(name));
    return std::getenv(orEmpty(name));
}

int TraceLevelInitialise()
{
    storeShared(sv_iTraceLevel, levelMask(dbg_getenv("TAV_TRACELEVEL")));
    return 0;
}

int TraceInfoInitialise()
{
    traceState.infoMask = infoMask(dbg_getenv("TAV_TRACEINFO"));
    return 0;
}

int dbg_SubModActive(const char *module, const char *submodule)
{
    if (!loadShared(gv_bDBGInitialised))
        return -1;
    if (const char *list = traceState.modules; list != nullptr) {
        if (equals(list, "none"))
            return 0;
        if (!equals(list, "all") && !contains(list, orEmpty(module)))
            return 0;
    }
    const char *list = traceState.subModules;
    if (list == nullptr)
        return 1;
    if (equals(list, "none"))
        return 0;
    return equals(list, "all") || contains(list, orEmpty(submodule)) ? 1 : 0;
}

bool dbg_TimeActive()
{
    const uint64_t time = dbg_GetTime();
    return traceState.startTime <= time && time <= traceState.stopTime;
}
