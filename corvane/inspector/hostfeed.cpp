#include "hostfeed.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace corvane {

std::optional<SourceChoice> findHostFeed()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    const QString program = programs.filePath(QStringLiteral("corvane-hostfeed"));
    if (!QFileInfo(program).isExecutable())
        return std::nullopt;
    const QDir files(programs.absoluteFilePath(QStringLiteral("../share/corvane/hostfeed")));
    const QString definitions = QDir::cleanPath(files.filePath(QStringLiteral("host.proto")));
    const QString overlay = QDir::cleanPath(files.filePath(QStringLiteral("host.overlay.json")));
    if (!QFileInfo::exists(definitions) || !QFileInfo::exists(overlay))
        return std::nullopt;
    QString quoted = program;
    quoted.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return SourceChoice{QStringLiteral("exec:'%1'").arg(quoted), {definitions}, {overlay}, {}, {}};
}

QStringList localFilesOf(const QMimeData &data)
{
    QStringList files;
    for (const QUrl &url : data.urls())
        if (url.isLocalFile())
            files += url.toLocalFile();
    return files;
}

} // namespace corvane
