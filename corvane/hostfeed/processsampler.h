#pragma once

#include "host.pb.h"
#include "proctext.h"
#include "systemfiles.h"

#include <QHash>

#include <vector>

namespace corvane {

/** Processes, and which of them were the busiest between one call and the next. */
class ProcessSampler
{
public:
    /** Most processes that are listed. */
    static constexpr size_t maximumListed = 20;
    /** So many are listed even when fewer ran. */
    static constexpr size_t minimumListed = 5;

    /** \a seconds: since the call before; \a uptime: of the system, in seconds. */
    host::Processes sample(const SystemFiles &proc, double seconds, std::optional<double> uptime);

private:
    struct Seen
    {
        ProcessStat stat;
        std::optional<quint64> newTicks; ///< Since the call before, all for a new process.
    };

    struct Ticks
    {
        quint64 start = 0; ///< Tells processes apart that have the same number one after another.
        quint64 used = 0;
    };

    std::vector<Seen> readAll(const SystemFiles &proc);
    static void sortBusiestFirst(std::vector<Seen> &processes);

    QHash<quint32, Ticks> previous; ///< By number of the process.
    bool hasPrevious = false;
};

} // namespace corvane
