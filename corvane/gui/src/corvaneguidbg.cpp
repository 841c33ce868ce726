#include "corvaneguidbg.h"

#include "callbackfunctions.h"
#include "DbgTrace.h"

namespace {

// The facility's own state is initialised at compile time, so nothing has to come before this.
const corvaneguiDbg moduleDescriptor;

} // namespace

corvaneguiDbg::corvaneguiDbg()
{
    dbg_SetCallbackFunctions(getCallBackFunctions());
    // No such variable is set in practice: lines go to standard output, assertions are fatal.
    dbg_Init("KESTREL_NO_FILE_LOGGING_IMPLEMENTED", 0, 0, 3072);
}
