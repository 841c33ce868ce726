#pragma once

#include "corvaneframework_export.h"
#include "fieldtype.h"

#include <QHash>
#include <QString>

#include <vector>

namespace corvane {

/** Where in a definition file something stands. */
struct MavlinkPlace
{
    QString file;
    qint64 line = 0;
    qint64 column = 0;
};

/** A field as a dialect file declares it. */
struct MavlinkFieldDefinition
{
    int getSize() const { return elementSize * (arrayLength == 0 ? 1 : arrayLength); }

    QString name;
    QString wireType; ///< The type's name as the checksum's extra byte takes it, "uint8_t".
    FieldType::Code code = FieldType::Invalid;
    int elementSize = 0; ///< In bytes.
    int arrayLength = 0; ///< 0 for a field that is no array.
    bool isExtension = false;
    bool isInstance = false;
    bool isBitMask = false;
    QString enumeration;
    QString unit;
    QString description;
    QString invalidText; ///< The value, or the pattern of an array, that means "no value".
};

/** A message as a dialect file declares it, fields in the order of the file. */
struct CORVANEFRAMEWORK_EXPORT MavlinkMessageDefinition
{
    /** Indices of the fields as they lie in a frame: base fields by size, then extensions. */
    std::vector<size_t> getWireOrder() const;
    /** The byte that the checksum takes beside the frame; it stands for the base fields. */
    quint8 getChecksumExtra() const;
    int getBaseSize() const;
    int getFullSize() const;

    MavlinkPlace place;
    quint32 id = 0;
    QString name;
    QString description;
    std::vector<MavlinkFieldDefinition> fields;
};

struct MavlinkEnumerationEntry
{
    MavlinkPlace place;
    quint64 value = 0;
    QString name;
    QString description;
};

struct MavlinkEnumerationDefinition
{
    QString name;
    bool isBitMask = false;
    std::vector<MavlinkEnumerationEntry> entries;
};

/** What a dialect file and all that it includes declare; enumerations are merged by name. */
struct MavlinkDefinitions
{
    std::vector<MavlinkMessageDefinition> messages;
    std::vector<MavlinkEnumerationDefinition> enumerations;
};

} // namespace corvane
