#pragma once

#include <QByteArray>
#include <QString>

namespace corvane {

class Reception;

// What arrived from a source, for people and for programs.

/** The keys of the JSON form are stable; later versions may add some. */
QByteArray makeJsonReport(const QString &source, Reception &reception);
QByteArray makeTextReport(const QString &source, Reception &reception);

} // namespace corvane
