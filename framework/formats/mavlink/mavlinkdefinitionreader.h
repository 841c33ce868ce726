#pragma once

#include "corvaneframework_export.h"
#include "loaderror.h"
#include "mavlinkdefinitions.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

class QXmlStreamReader;

namespace corvane {

/**
 * Reads MAVLink dialect files (the public XML message definitions), includes followed.
 *
 * Includes are looked for beside the file that names them and cannot leave its folder. A file that
 * is reached more than once is read once; a file that includes itself is an error.
 *
 * Definitions may come from anywhere, so there are limits: 32 MiB a file, 64 MiB and 256 files in
 * all, 32,768 messages, 262,144 enum entries, 262,144 fields and bits of fields, 255 bytes of
 * payload, 255 elements of an array, 64 elements inside one another, 200 characters a name.
 */
class CORVANEFRAMEWORK_EXPORT MavlinkDefinitionReader
{
public:
    /** Reads \a file; false when there were errors, and then the definitions are of no use. */
    bool read(const QString &file);

    const MavlinkDefinitions &getDefinitions() const { return definitions; }

    /** At most one for each file and 100 in all. */
    const QList<LoadError> &getErrors() const { return errors; }

    /** What is odd but does no harm: an enumeration's name or value that is taken already; 100. */
    const QList<LoadError> &getWarnings() const { return warnings; }

private:
    struct EnumerationIndex
    {
        size_t position = 0;
        QHash<QString, quint64> valueByName;
        QSet<quint64> values;
        qint64 largestValue = 0;
    };

    void readFile(const QString &file, const MavlinkPlace &includedAt);
    void readDocument(QXmlStreamReader &xml, const QString &file);
    void readInclude(QXmlStreamReader &xml, const QString &file);
    void readEnumerations(QXmlStreamReader &xml, const QString &file);
    void readEnumeration(QXmlStreamReader &xml, const QString &file);
    void readEntry(QXmlStreamReader &xml, const QString &file, const QString &enumeration);
    void readMessages(QXmlStreamReader &xml, const QString &file);
    void readMessage(QXmlStreamReader &xml, const QString &file);
    void readField(QXmlStreamReader &xml, MavlinkMessageDefinition &message, bool isExtension);
    void checkMessage(QXmlStreamReader &xml, const MavlinkMessageDefinition &message);
    void addError(const MavlinkPlace &place, const QString &message);
    void addWarning(const MavlinkPlace &place, const QString &message);
    EnumerationIndex &getEnumeration(const QString &name);
    void addEntry(EnumerationIndex &index, const MavlinkEnumerationEntry &entry);

    MavlinkDefinitions definitions;
    QList<LoadError> errors;
    QList<LoadError> warnings;
    QSet<QString> filesRead;
    QStringList filesOpen; ///< The chain of includes that is being read.
    QHash<QString, EnumerationIndex> enumerations;
    QHash<quint32, size_t> messagesById;
    QHash<QString, size_t> messagesByName;
    qint64 totalSize = 0; ///< Of the files read, in bytes.
    size_t entryCount = 0;
    qint64 fieldCount = 0; ///< With the bits that may get a name.
};

} // namespace corvane
