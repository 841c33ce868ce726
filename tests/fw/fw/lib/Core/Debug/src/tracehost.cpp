#include "tracehost.h"

#include "DbgMsgBuffer.h"

#include <cstring>
#include <utility>

namespace corvane::test {

TraceHost *TraceHost::sCurrent = nullptr;

TraceHost::TraceHost()
{
    sCurrent = this;
    table.lockContext = this;
    table.lock = [](void *context) {
        sCurrent->record(context == sCurrent ? "lock" : "lock with a wrong context");
    };
    table.unlock = [](void *context) {
        sCurrent->record(context == sCurrent ? "unlock" : "unlock with a wrong context");
    };
    table.getThreadName = [](char *out, int size) {
        qstrncpy(out, sCurrent->threadName.constData(), static_cast<size_t>(size));
    };
    table.getTime = [] { return sCurrent->time; };
    table.sleep = [](int time) { sCurrent->record(QStringLiteral("sleep %1").arg(time)); };
    table.setOutputStream = [](FILE *stream) {
        sCurrent->record(stream == stdout ? "stream stdout" : "stream file");
        sCurrent->stream = stream;
    };
    table.output = [](const char *line, int severity) {
        sCurrent->busyInOutput = dbg_IsBusy();
        sCurrent->lines.append(QString::fromUtf8(line));
        sCurrent->record(QStringLiteral("output %1 ").arg(severity) + QString::fromUtf8(line));
    };
    table.getenv = [](const char *name) -> const char * {
        const auto found = sCurrent->environment.constFind(name);
        return found == sCurrent->environment.constEnd() ? nullptr : found->constData();
    };
    resetTracing();
    dbg_SetCallbackFunctions(&table);
}

TraceHost::~TraceHost()
{
    resetTracing();
    dbg_SetCallbackFunctions(nullptr);
    sCurrent = nullptr;
}

void TraceHost::initialise(const InitArguments &arguments)
{
    dbg_Init(arguments.logFileVariable, arguments.continueOnAssert, arguments.sleepTime,
             arguments.additionalInfoSize);
    takeCalls();
}

void TraceHost::initialiseWith(const char *variable, const char *value)
{
    resetTracing();
    environment = {{variable, value}};
    initialise();
}

QStringList TraceHost::takeCalls()
{
    return std::exchange(calls, {});
}

QStringList TraceHost::takeLines()
{
    return std::exchange(lines, {});
}

QString TraceHost::takeLine()
{
    return takeLines().join(QStringLiteral("<next line>"));
}

void resetTracing()
{
    while (gv_bDBGInitialisedCounter > 0)
        dbg_Terminate();
    gv_bDBGInitialisedCounter = 0;
    dbg_SetTime(0);
    dbg_TraceEnable();
    dbg_TraceSetListener(nullptr);
    dbg_ErrorLineHook = nullptr;
    Tav::DbgDump_setTraceBuffer(nullptr, 0);
    Tav::DbgDump_enableDump(true);
}

} // namespace corvane::test
