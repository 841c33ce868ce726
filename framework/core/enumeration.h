#pragma once

#include "corvaneframework_export.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QtGlobal>

#include <vector>

namespace corvane {

/** Names of the values, or of the bits, of a field. */
class CORVANEFRAMEWORK_EXPORT Enumeration
{
public:
    struct Entry
    {
        quint64 value = 0; ///< The 64 bits of the value; negative ones sign-extended.
        QString name;
        QString description;
    };

    explicit Enumeration(QString name, bool isBitMask = false);

    /** Adds a name; false (and no change) when the value or the name is taken already. */
    bool add(const Entry &entry);

    void setBitMask(bool isBitMask) { bitMask = isBitMask; }

    const QString &getName() const { return name; }

    bool isBitMask() const { return bitMask; }

    const std::vector<Entry> &getEntries() const { return entries; }

    bool hasName(const QString &entryName) const { return indexByName.contains(entryName); }

    /**
     * The text of \a value: its name; for a bit mask the names of its bits joined by " | ", with
     * what has no name as a hexadecimal rest. Empty where nothing of it has a name.
     */
    QString getText(quint64 value) const;

private:
    QString getBitsText(quint64 value) const;

    QString name;
    std::vector<Entry> entries; ///< In the order of their addition.
    QHash<quint64, size_t> indexByValue;
    QHash<QString, size_t> indexByName;
    bool bitMask;
};

} // namespace corvane
