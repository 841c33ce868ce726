#pragma once

#include <QString>
#include <QStringList>

namespace corvane {

/** \a name in quotation marks, cut when it is very long. */
QString quoted(const QString &name);
/** The one of \a names that \a name is most likely a misspelling of; empty where none is near. */
QString nearestName(const QString &name, const QStringList &names);
/**
 * "; did you mean "x"?" for the nearest of \a names, else "; expected one of ..." where they are
 * few enough to be listed, else nothing.
 */
QString suggestion(const QString &name, const QStringList &names);

} // namespace corvane
