#pragma once

#include "corvaneframework_export.h"
#include "formatinfo.h"
#include "loaderror.h"
#include "mavlinkdefinitions.h"
#include "mavlinkdescriptions.h"

#include <QHash>
#include <QList>

#include <vector>

namespace corvane {

/** What the frame reader has to know of a message type. */
struct MavlinkMessageType
{
    const MessageInfo *info = nullptr; ///< Not owned.
    quint8 checksumExtra = 0;
    quint8 fullSize = 0; ///< Of the payload with extensions, in bytes.
};

/**
 * The MAVLink format with the message types that have been loaded. Registers itself in the
 * catalogue. Types are only ever added, so descriptions stay valid as long as the format.
 */
class CORVANEFRAMEWORK_EXPORT MavlinkFormat
{
public:
    struct LoadResult
    {
        bool isOk() const { return errors.isEmpty(); }

        QList<LoadError> errors;
        QList<LoadError> warnings;
    };

    MavlinkFormat();
    ~MavlinkFormat();
    MavlinkFormat(const MavlinkFormat &) = delete;
    MavlinkFormat &operator=(const MavlinkFormat &) = delete;

    /**
     * Adds the types of a dialect file and of all that it includes. With errors nothing is added.
     * A type that is loaded already, with the same id, name and fields, is passed over.
     */
    LoadResult load(const QString &file);

    const FormatInfo *getInfo() const { return &info; }

    /** The type with that id, or null. */
    const MavlinkMessageType *findType(quint32 id) const
    {
        const quint32 index = id < lowTypes.size() ? lowTypes[id] : highTypes.value(id);
        return index == 0 ? nullptr : &types[index];
    }

    /** The byte that a type's checksum takes, by message id. */
    QHash<quint32, quint8> getChecksumExtras() const;

private:
    QList<LoadError> findConflicts(const MavlinkDefinitions &definitions) const;
    void addEnumerations(const MavlinkDefinitions &definitions);
    void addMessage(const MavlinkMessageDefinition &definition);

    FormatInfo info;
    MavlinkEnumerations enumerations;
    std::vector<MavlinkMessageType> types; ///< Entry 0 stands for no type.
    std::vector<quint32> lowTypes; ///< Index in types by id, for the ids that fit 16 bits.
    QHash<quint32, quint32> highTypes;
};

} // namespace corvane
