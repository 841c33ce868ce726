#pragma once

#include <QByteArray>
#include <QString>

namespace corvane {

class Reception;

// What arrived from a source, for people and for programs.

/** The keys of the JSON form are stable; later versions may add some. */
QByteArray makeJsonReport(const QString &source, Reception &reception);
QByteArray makeTextReport(const QString &source, Reception &reception);

/** \a text with U+FFFD for control characters other than line breaks, which a terminal would obey.
 */
QString withoutControls(QString text);

} // namespace corvane
