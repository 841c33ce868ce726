#pragma once

#include "corvaneframework_export.h"

#include <QMap>
#include <QString>
#include <QStringList>

namespace corvane {

/**
 * The names that the objects of an overlay may have as members, by the kind of object: "overlay",
 * "message", "timeField", "envelope", "field", "subField", "virtualField", "symbol".
 * docs/overlay.schema.json describes the same.
 */
CORVANEFRAMEWORK_EXPORT const QMap<QString, QStringList> &overlayKeys();

/** The names of the roles, in the order of their values. */
CORVANEFRAMEWORK_EXPORT const QStringList &overlayRoleNames();

/** The names of the units of time. */
CORVANEFRAMEWORK_EXPORT QStringList overlayTimeUnitNames();
/** The microseconds in one unit of that name; 0 where there is no such unit. */
CORVANEFRAMEWORK_EXPORT qint64 overlayTimeUnitUs(const QString &name);

} // namespace corvane
