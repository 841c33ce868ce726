#pragma once

#include "corvaneframework_export.h"
#include "mcaprecords.h"

#include <QString>

#include <map>

namespace corvane {

/** The schemas and channels of an MCAP file, by their ids. */
struct CORVANEFRAMEWORK_EXPORT McapDefinitions
{
    /**
     * All of the file \a path: from its summary if it has one, otherwise by reading it whole.
     * Without channels, \a problem says why there are none, in a sentence.
     */
    static McapDefinitions readFile(const QString &path, QString *problem);

    /** Of the messages of \a channel; null when it has none. */
    const McapSchema *findSchema(const McapChannel &channel) const;

    std::map<quint16, McapSchema> schemas;
    std::map<quint16, McapChannel> channels;
};

} // namespace corvane
