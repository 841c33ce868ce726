#pragma once

#include "corvaneframework_export.h"

#include <QList>
#include <QObject>

class FormatInfo;

namespace corvane {

/** The formats that are loaded in this process. Owns none of them. */
class CORVANEFRAMEWORK_EXPORT Catalogue : public QObject
{
    Q_OBJECT

public:
    /** The catalogue of the process; it is never destroyed. */
    static Catalogue *getInstance();

    void addFormat(const FormatInfo *format);
    /** To be called before \a format is destroyed. */
    void removeFormat(const FormatInfo *format);
    /** To be called after types or fields were added to a format that is in the catalogue. */
    void announceChange();

    const QList<const FormatInfo *> &getFormats() const { return formats; }

Q_SIGNALS:
    /** Formats, types or fields were added or removed. */
    void changed();

private:
    Catalogue() = default;

    QList<const FormatInfo *> formats; ///< Not owned.
};

} // namespace corvane
