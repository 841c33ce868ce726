#include "DbgEmission.h"

#include "DbgLine.h"
#include "DbgMsgBuffer.h"

namespace {

bool isSevere(int level)
{
    return level == DbgLevelError || level == DbgLevelAssert;
}

} // namespace

void corvane::emitText(const char *text, int level)
{
    {
        const TraceLock lock;
        const auto output = callback(&DbgCallbackFunctions::output);
        if (output != nullptr)
            output(text, isSevere(level) ? 1 : 2);
        Tav::dbgMsgBufferPush(text);
    }
    if (!isSevere(level))
        return;
    const DbgListener listener = traceState.listener;
    if (listener != nullptr)
        listener(level);
}

void corvane::emitLine(const DbgLine &line, int level)
{
    emitText(line.getText(), level);
    if (level != DbgLevelError)
        return;
    const DbgLineHook hook = loadShared(dbg_ErrorLineHook);
    if (hook != nullptr)
        hook(line.getText(), static_cast<int>(line.getLength()) + 1);
}
