#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace corvane::test {

/** How a started program ended and what it wrote. */
struct ChildResult
{
    bool aborted = false;
    int exitCode = -1; ///< Only if it was not aborted.
    QString output;
    QString errors;
};

/** Runs \a program to its end; \a environment is added to that of the test. */
ChildResult runChild(const QString &program,
                     const QStringList &arguments,
                     const QMap<QString, QString> &environment = {});

} // namespace corvane::test
