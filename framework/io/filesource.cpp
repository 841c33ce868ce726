#include "filesource.h"

#include "systemerror.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>

#include <cerrno>

namespace corvane {

FileSource::FileSource(const QString &path, QObject *parent)
    : FdSource(QDir::toNativeSeparators(path), parent)
    , path(path)
{
}

FileSource::~FileSource() = default;

FileDescriptor FileSource::openDescriptor()
{
    // Opening a named pipe, or a device without carrier, would wait for the other side.
    const int flags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    return FileDescriptor(::open(QFile::encodeName(path).constData(), flags));
}

QString FileSource::describeOpenError(int error) const
{
    const QString cannotOpen = tr("Cannot open \"%1\": ").arg(path);
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return cannotOpen + tr("there is no such file. Check the path.");
    case EISDIR:
        return cannotOpen + tr("it is a folder. Name a file in it.");
    case EACCES:
    case EPERM:
        return cannotOpen + tr("no permission to read it. Change its permissions or its owner.");
    default:
        return cannotOpen + getSystemErrorText(error) + QLatin1Char('.');
    }
}

} // namespace corvane
