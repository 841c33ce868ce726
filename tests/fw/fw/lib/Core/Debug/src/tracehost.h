#pragma once

#include "DbgTrace.h"

#include <QByteArray>
#include <QMap>
#include <QStringList>

namespace corvane::test {

/** The arguments of dbg_Init(). */
struct InitArguments
{
    const char *logFileVariable = nullptr;
    int continueOnAssert = 1;
    int sleepTime = 0;
    int additionalInfoSize = 3072;
};

/**
 * A host of the trace facility that records what it is asked to do. While one lives its table is
 * set; it finds the facility uninitialised and leaves it so.
 */
class TraceHost
{
public:
    TraceHost();
    TraceHost(const TraceHost &) = delete;
    TraceHost &operator=(const TraceHost &) = delete;
    ~TraceHost();

    void initialise(const InitArguments &arguments = {});
    /** Initialises anew with one variable set to \a value. */
    void initialiseWith(const char *variable, const char *value);
    QStringList takeCalls();
    /** The lines that were output since the last call. */
    QStringList takeLines();
    QString takeLine();

    DbgCallbackFunctions table = {};
    QMap<QByteArray, QByteArray> environment;
    QByteArray threadName = "main";
    uint64_t time = 0;
    bool busyInOutput = false;
    FILE *stream = nullptr; ///< Not owned.

private:
    static TraceHost *sCurrent;

    void record(const QString &call) { calls.append(call); }

    QStringList calls;
    QStringList lines;
};

/** Takes the facility to the uninitialised state, all else as it is when the library is loaded. */
void resetTracing();

} // namespace corvane::test
