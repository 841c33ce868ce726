#pragma once

#include "testcase.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>

namespace corvane::test {

/** How a run of the program ended. */
struct Outcome
{
    int exitCode = -1;
    QByteArray output;
    QByteArray errors;

    QJsonObject json() const { return QJsonDocument::fromJson(output).object(); }

    /** One from each line. */
    QList<QJsonObject> objects() const
    {
        QList<QJsonObject> result;
        for (const QByteArray &line : output.split('\n'))
            if (!line.isEmpty())
                result.append(QJsonDocument::fromJson(line).object());
        return result;
    }
};

/** Runs the program as a person or a script does. */
inline Outcome run(const QStringList &arguments, const QByteArray &input = {})
{
    QProcess process;
    process.start(QStringLiteral(CORVANE_INSPECTOR), arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, {}, "crashed or hung: " + process.readAllStandardError()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

/** A file of the recording that the project brings. */
inline QString example(const QString &name)
{
    return sourceFile(QStringLiteral("examples/recording/") + name);
}

inline QStringList onExample(const QStringList &arguments)
{
    return QStringList{QStringLiteral("--definitions"), example(QStringLiteral("rover.xml"))}
           + arguments;
}

inline Outcome reportOn(const QString &source, const QByteArray &input = {})
{
    return run(onExample({QStringLiteral("--report"), QStringLiteral("json"), source}), input);
}

} // namespace corvane::test
