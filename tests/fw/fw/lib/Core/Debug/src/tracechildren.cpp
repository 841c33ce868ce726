#include "tracechildren.h"

#include <QProcess>
#include <QProcessEnvironment>

namespace corvane::test {

ChildResult runChild(const QString &program,
                     const QStringList &arguments,
                     const QMap<QString, QString> &environment)
{
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (auto it = environment.cbegin(); it != environment.cend(); ++it)
        variables.insert(it.key(), it.value());
    process.setProcessEnvironment(variables);
    process.start(program, arguments);
    if (!process.waitForFinished())
        return {};
    // A process that a signal ended has the signal's number as its code.
    constexpr int abortSignal = 6;
    const bool crashed = process.exitStatus() == QProcess::CrashExit;
    return {crashed && process.exitCode() == abortSignal, crashed ? -1 : process.exitCode(),
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace corvane::test
