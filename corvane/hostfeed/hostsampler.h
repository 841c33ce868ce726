#pragma once

#include "cpusampler.h"
#include "disksampler.h"
#include "host.pb.h"
#include "networksampler.h"
#include "processsampler.h"
#include "proctext.h"
#include "systemfiles.h"

#include <QByteArray>
#include <QtGlobal>

#include <optional>
#include <vector>

namespace corvane {

/**
 * Reads all figures of the machine. What cannot be read is absent from the messages, and so are
 * rates in the first round and where a counter stepped back.
 */
class HostSampler
{
public:
    /** The folders are others in tests. */
    explicit HostSampler(const QByteArray &procRoot = "/proc", const QByteArray &sysRoot = "/sys");

    /**
     * One message of each kind but Feed, without time and sequence. \a nowNs: a time that never
     * steps back, to tell how long ago the call before was.
     */
    std::vector<host::Envelope> sample(qint64 nowNs);

private:
    host::Memory sampleMemory() const;
    host::Temperatures sampleTemperatures() const;
    void addChip(const QByteArray &folder, host::Temperatures &temperatures) const;
    void addZone(const QByteArray &folder, host::Temperatures &temperatures) const;
    host::Load sampleLoad() const;
    host::Kernel sampleKernel(const SystemCounters &counters,
                              double seconds,
                              std::optional<double> uptime) const;

    SystemFiles proc;
    SystemFiles sys;
    CpuSampler cpu;
    NetworkSampler network;
    DiskSampler disks;
    ProcessSampler processes;
    SystemCounters previousCounters;
    std::optional<qint64> previousNs;
};

} // namespace corvane
