#pragma once

#include "host.pb.h"
#include "proctext.h"
#include "systemfiles.h"

#include <QByteArray>
#include <QHash>

namespace corvane {

/** Disks (not their partitions), and what they did between one call and the next. */
class DiskSampler
{
public:
    /** \a seconds: since the call before. */
    host::Disks sample(const SystemFiles &proc, const SystemFiles &sys, double seconds);

private:
    void setRates(host::Disk *disk, const DiskCounters &counters, double seconds) const;

    QHash<QByteArray, DiskCounters> previous; ///< By name.
};

} // namespace corvane
