#include "stdinsource.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace corvane {

StdinSource::StdinSource(QObject *parent)
    : FdSource(tr("standard input"), parent)
{
}

StdinSource::~StdinSource() = default;

FileDescriptor StdinSource::openDescriptor()
{
    // Closing the copy leaves the process with its standard input.
    return FileDescriptor(::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

QString StdinSource::describeOpenError(int error) const
{
    if (error == EBADF)
        return tr("Cannot read standard input: it is closed. Redirect a file or a pipe to it.");
    return FdSource::describeOpenError(error);
}

} // namespace corvane
