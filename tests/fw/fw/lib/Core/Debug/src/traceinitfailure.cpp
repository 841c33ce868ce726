// Puts its own steps of the initialisation in the place of the library's, so that they fail with
// the codes that the environment gives. The library initialises while this program is loaded.

#include "DbgEnvironment.h"
#include "DbgTrace.h"

#include <cstdio>
#include <cstdlib>

namespace {

int codeFrom(const char *variable)
{
    const char *value = std::getenv(variable);
    return value == nullptr ? 0 : std::atoi(value);
}

} // namespace

int TraceLevelInitialise()
{
    return codeFrom("LEVEL_CODE");
}

int TraceInfoInitialise()
{
    return codeFrom("INFO_CODE");
}

int main()
{
    std::puts(gv_bDBGInitialised ? "initialised" : "not initialised");
    return 0;
}
