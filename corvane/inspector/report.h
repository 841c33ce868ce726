#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace corvane {

class Reception;

// What arrived from a source, for people and for programs.

/** How the reading went. */
struct ReportedEffort
{
    double seconds = 0.0; ///< From start to end.
    qint64 longestRoundUs = 0; ///< The longest time without a turn for other events.
    std::optional<qint64> backlogBytes; ///< At the end, where the source tells.
};

/** The keys of the JSON form are stable; later versions may add some. */
QByteArray
makeJsonReport(const QString &source, Reception &reception, const ReportedEffort &effort);
QByteArray
makeTextReport(const QString &source, Reception &reception, const ReportedEffort &effort);

/** \a text with U+FFFD for control characters other than line breaks, which a terminal would obey.
 */
QString withoutControls(QString text);

} // namespace corvane
