// Reads the input as settings of the trace facility and lines to be traced. No line may be longer
// than the limit that was set.

#include "fuzzchecks.h"
#include "fuzzinput.h"
#include "tracehost.h"

using namespace corvane;
using namespace corvane::fuzz;

namespace {

void trace(unsigned choice, int level, const char *name, const char *text)
{
    switch (choice % 8) {
    case 0:
        return dbg_Trace(level, name, name, name, name, level, text);
    case 1:
        return dbg_TraceArg(level, "m", name, "f", "file", 5, "%d %s %g", level, text, 0.5);
    case 2:
        return dbg_TraceContArg(level, "%s", text);
    case 3:
        return dbg_TraceIn(level, "m", "s", text, name, 5);
    case 4:
        return dbg_TraceOut(level, "m", "s", text, name, 5);
    case 5:
        return dbg_Assert(name, "s", "f", "file", 5, text);
    case 6:
        return dbg_AssertArg("m", "s", "f", name, 5, "%s", text);
    default:
        dbg_SetTime(static_cast<uint64_t>(level) * static_cast<uint64_t>(level));
    }
}

void checkLines(test::TraceHost &host, int additionalInfoSize)
{
    const qsizetype limit = qMax(0, additionalInfoSize + 127);
    for (const QString &line : host.takeLines())
        // In characters, of which a byte that is no text becomes one.
        require(line.size() <= limit, "a line keeps to the limit");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count)
{
    Input input(bytes, count);
    const int additionalInfoSize = static_cast<qint16>(input.takeWord());
    const QList<QByteArray> texts = input.takeTexts();
    test::TraceHost host;
    // All but TAV_LOGFILE, which names a file to be written.
    constexpr const char *variables[] = {"TAV_TRACELEVEL", "TAV_TRACEINFO", "TAV_MODULES",
                                         "TAV_SUBMODULES", "TAV_STARTTIME", "TAV_STOPTIME"};
    qsizetype next = 0;
    for (const char *variable : variables)
        host.environment.insert(variable, texts.value(next++));
    host.threadName = texts.value(next++);
    host.initialise({.additionalInfoSize = additionalInfoSize});
    for (; next + 1 < texts.size(); next += 2) {
        const QByteArray &name = texts.at(next);
        dbg_SubModActive(name.constData(), texts.at(next + 1).constData());
        dbg_DumpInfo(texts.at(next + 1).constData(), DbgLevelError);
        host.takeLines(); // of which one is as long as its text
        const unsigned choice = name.isEmpty() ? 0 : static_cast<unsigned char>(name.back());
        trace(choice, 1 << (choice >> 3 & 7), name.constData(), texts.at(next + 1).constData());
        checkLines(host, additionalInfoSize);
    }
    return 0;
}
