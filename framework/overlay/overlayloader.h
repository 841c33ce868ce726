#pragma once

#include "corvaneframework_export.h"
#include "loaderror.h"

#include <QByteArray>
#include <QList>
#include <QString>

class FormatInfo;

namespace corvane {

/** How the loading of an overlay went. */
struct CORVANEFRAMEWORK_EXPORT OverlayResult
{
    bool isOk() const { return errors.isEmpty(); }

    /** The errors, one a line; empty where there are none. */
    QString toString() const;

    QList<LoadError> errors; ///< In the order of their places in the file; at most 20.
};

/**
 * Loads the overlay \a file, which adds to one of \a formats what its definitions cannot say:
 * roles, confidentiality, units, names, symbols, sub-fields, virtual fields. docs/overlay.md
 * describes the file.
 *
 * All or nothing: everything is checked before anything is changed; with errors, the formats stay
 * exactly as they were. A file of more than 16 MiB is refused. Of several overlays for one format,
 * the later one's texts and flags win; a sub-field or virtual field that is there already must be
 * made of the same. Tells the catalogue, where the format is in it.
 *
 * Not to be called while another thread reads fields of the format.
 *
 * \code
 * const corvane::OverlayResult result = corvane::loadOverlay(file, {format});
 * if (!result.isOk())
 *     std::cerr << qPrintable(result.toString()) << '\n';
 * \endcode
 */
CORVANEFRAMEWORK_EXPORT OverlayResult loadOverlay(const QString &file,
                                                  const QList<const FormatInfo *> &formats);
/** The same, for one of the formats in the catalogue. */
CORVANEFRAMEWORK_EXPORT OverlayResult loadOverlay(const QString &file);
/** The same, from the content of a file. \a name: of the file, for errors. */
CORVANEFRAMEWORK_EXPORT OverlayResult loadOverlayText(const QByteArray &text,
                                                      const QString &name,
                                                      const QList<const FormatInfo *> &formats);

} // namespace corvane
