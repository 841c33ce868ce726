#pragma once

#include "host.pb.h"
#include "proctext.h"
#include "systemfiles.h"

#include <QByteArray>
#include <QHash>

namespace corvane {

/** Network interfaces, and what went through them between one call and the next. */
class NetworkSampler
{
public:
    /** \a seconds: since the call before. */
    host::Network sample(const SystemFiles &proc, const SystemFiles &sys, double seconds);

private:
    QHash<QByteArray, InterfaceCounters> previous; ///< By name.
};

} // namespace corvane
