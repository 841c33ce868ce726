#pragma once

#include "host.pb.h"
#include "proctext.h"
#include "systemfiles.h"

namespace corvane {

/** Load of the processor between one call and the next. */
class CpuSampler
{
public:
    host::Cpu sample(const SystemCounters &counters, const SystemFiles &sys);

private:
    SystemCounters previous;
};

} // namespace corvane
