#include "DbgEmission.h"
#include "DbgLine.h"
#include "DbgMsgBuffer.h"

#include <cstdlib>

using namespace corvane;

namespace {

void finishAssertion()
{
    if (loadShared(continue_on_assert) != 0)
        return;
    const int sleepTime = loadShared(sleep_time_on_assert);
    const auto hostSleep = callback(&DbgCallbackFunctions::sleep);
    if (sleepTime != 0 && hostSleep != nullptr) {
        Tav::DbgDump_enableDump(false);
        hostSleep(sleepTime);
    }
    dbg_Abort();
}

void emitAssertion(DbgLine &line)
{
    line.append("\n");
    line.endFullLine();
    emitLine(line, DbgLevelAssert);
}

} // namespace

void dbg_Abort()
{
    const auto handler = callback(&DbgCallbackFunctions::abortHandler);
    if (handler != nullptr)
        handler();
    // A handler that takes the table away has taken the report upon itself.
    if (loadShared(dbg_callback_fn) == nullptr)
        std::fputs("Abnormal program termination...\n", stderr);
    std::abort();
}

void dbg_Assert(const char *module,
                const char *submodule,
                const char *function,
                const char *file,
                int line,
                const char *expressionText)
{
    if (loadShared(gv_bDBGInitialised)) {
        const BusyMark busy;
        DbgLine result;
        result.appendPrefix(DbgLevelAssert, {module, submodule, function, file, line},
                            FunctionName::IfConfigured);
        result.append(" ");
        result.append(orEmpty(expressionText));
        emitAssertion(result);
    }
    finishAssertion();
}

void dbg_AssertArg(const char *module,
                   const char *submodule,
                   const char *function,
                   const char *file,
                   int line,
                   const char *format,
                   ...)
{
    if (loadShared(gv_bDBGInitialised)) {
        const BusyMark busy;
        DbgLine result;
        result.appendPrefix(DbgLevelAssert, {module, submodule, function, file, line},
                            FunctionName::IfConfigured);
        result.append(" ");
        va_list arguments;
        va_start(arguments, format);
        result.appendFormatted(format, arguments);
        va_end(arguments);
        emitAssertion(result);
    }
    finishAssertion();
}
