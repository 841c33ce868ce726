#pragma once

#include "corvaneframework_export.h"
#include "formatinfo.h"
#include "mavlinkdefinitions.h"
#include "mavlinkdescriptions.h"
#include "streamformat.h"

#include <QHash>
#include <QList>

#include <vector>

namespace corvane {

enum class MavlinkFraming;

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
class CORVANEFRAMEWORK_EXPORT MavlinkFormat final : public StreamFormat
{
public:
    MavlinkFormat();
    ~MavlinkFormat() override;

    /**
     * Adds the types of a dialect file and of all that it includes. With errors nothing is added.
     * A type that is loaded already, with the same id, name and fields, is passed over.
     */
    LoadResult load(const QString &file);

    LoadResult loadFiles(const QStringList &files) override;

    const FormatInfo *getInfo() const override { return &info; }

    bool hasChecksum() const override { return true; }

    SenderTable::Namer getSenderNamer() const override;

    quint32 getLastSequenceNumber() const override { return 0xFF; }

    /** "auto", "raw" or "tlog". */
    std::unique_ptr<StreamDecoder> makeDecoder(Reception &reception,
                                               const QString &framing) const override;
    std::unique_ptr<StreamScanner> makeScanner(QByteArrayView head,
                                               const QString &framing) const override;

    /** The type with that id, or null. */
    const MavlinkMessageType *findType(quint32 id) const
    {
        const quint32 index = id < lowTypes.size() ? lowTypes[id] : highTypes.value(id);
        return index == 0 ? nullptr : &types[index];
    }

    /** The byte that a type's checksum takes, by message id. */
    QHash<quint32, quint8> getChecksumExtras() const;

private:
    MavlinkFraming framingOf(const QString &name) const;
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
