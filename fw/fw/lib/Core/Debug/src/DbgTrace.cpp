#include "DbgTrace.h"

#include "DbgEmission.h"
#include "DbgLine.h"

using namespace corvane;

namespace {

void traceFunction(int level, const TraceSite &site, std::string_view sign)
{
    const BusyMark busy;
    DbgLine line;
    line.appendPrefix(level, site, FunctionName::Always);
    line.append(sign);
    line.endFullLine();
    emitLine(line, level);
}

} // namespace

void dbg_Trace(int level,
               const char *module,
               const char *submodule,
               const char *function,
               const char *file,
               int line,
               const char *text)
{
    const BusyMark busy;
    DbgLine result;
    result.appendPrefix(level, {module, submodule, function, file, line},
                        FunctionName::IfConfigured);
    result.append(" ");
    result.append(orEmpty(text));
    result.append("\n");
    result.endFullLine();
    emitLine(result, level);
}

void dbg_TraceArg(int level,
                  const char *module,
                  const char *submodule,
                  const char *function,
                  const char *file,
                  int line,
                  const char *format,
                  ...)
{
    const BusyMark busy;
    DbgLine result;
    result.appendPrefix(level, {module, submodule, function, file, line},
                        FunctionName::IfConfigured);
    result.append(" ");
    va_list arguments;
    va_start(arguments, format);
    result.appendFormatted(format, arguments);
    va_end(arguments);
    result.append("\n");
    emitLine(result, level);
}

void dbg_TraceContArg(int level, const char *format, ...)
{
    const BusyMark busy;
    DbgLine line;
    va_list arguments;
    va_start(arguments, format);
    line.appendFormatted(format, arguments);
    va_end(arguments);
    line.append("\n");
    emitLine(line, level);
}

void dbg_TraceIn(int level,
                 const char *module,
                 const char *submodule,
                 const char *function,
                 const char *file,
                 int line)
{
    traceFunction(level, {module, submodule, function, file, line}, ">\n");
}

void dbg_TraceOut(int level,
                  const char *module,
                  const char *submodule,
                  const char *function,
                  const char *file,
                  int line)
{
    traceFunction(level, {module, submodule, function, file, line}, "<\n");
}

void dbg_DumpInfo(const char *text, int level)
{
    emitText(orEmpty(text), level);
}
