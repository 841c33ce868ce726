#include "recorder.h"

#include "systemerror.h"

#include <QDir>
#include <QFile>
#include <QLocale>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace corvane {

namespace {

constexpr mode_t newFileMode = 0666;

/** Opens a file or a device; a pipe without reader would take nothing and is refused. */
FileDescriptor openForWriting(const QString &path)
{
    const int flags = O_WRONLY | O_CREAT | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    FileDescriptor file(::open(QFile::encodeName(path).constData(), flags, newFileMode));

    struct stat status
    {};

    if (!file.isValid() || ::fstat(file.get(), &status) != 0)
        return {};
    if (!S_ISREG(status.st_mode) && !S_ISCHR(status.st_mode)) {
        errno = EINVAL;
        return {};
    }
    if (S_ISREG(status.st_mode) && ::ftruncate(file.get(), 0) != 0)
        return {};
    return file;
}

QString describeStartError(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return Recorder::tr("there is no such folder. Choose another one.");
    case EISDIR:
        return Recorder::tr("it is a folder. Name a file in it.");
    case EACCES:
    case EPERM:
    case EROFS:
        return Recorder::tr("no permission to write there. Choose another folder.");
    case EINVAL:
    case ENXIO:
        return Recorder::tr("it is no file. Choose another name.");
    default:
        return getSystemErrorText(error) + QLatin1Char('.');
    }
}

} // namespace

Recorder::Recorder(QObject *parent)
    : QObject(parent)
{
}

Recorder::~Recorder()
{
    joinThread();
}

bool Recorder::start(const QString &newPath)
{
    stop();
    path = newPath;
    errorMessage.clear();
    waiting.clear();
    bytesWritten = 0;
    writeError = 0;
    tooSlow = false;
    ending = false;
    file = openForWriting(path);
    if (!file.isValid())
        return refuse(errno);
    ++recording;
    try {
        thread = std::thread([this] { runThread(); });
    } catch (const std::system_error &error) {
        file.reset();
        return refuse(error.code().value());
    }
    return true;
}

bool Recorder::refuse(int error)
{
    errorMessage = tr("Cannot record to \"%1\": %2")
                       .arg(QDir::toNativeSeparators(path), describeStartError(error));
    return false;
}

bool Recorder::stop()
{
    if (isRecording()) {
        joinThread();
        if (const QString reason = describeFailure(); !reason.isEmpty())
            fail(reason);
    }
    return errorMessage.isEmpty();
}

void Recorder::write(QByteArrayView bytes)
{
    if (!isRecording())
        return;
    const std::lock_guard lock(mutex);
    if (ending)
        return;
    if (waiting.size() + bytes.size() <= maximumWaitingBytes)
        waiting.append(bytes);
    else
        tooSlow = ending = true;
    changed.notify_one();
}

quint64 Recorder::getBytesWritten() const
{
    const std::lock_guard lock(mutex);
    return bytesWritten;
}

void Recorder::runThread()
{
    std::unique_lock lock(mutex);
    while (writeError == 0) {
        while (waiting.isEmpty() && !ending)
            changed.wait(lock);
        if (waiting.isEmpty())
            break;
        const QByteArray bytes = std::exchange(waiting, {});
        lock.unlock();
        const int error = writeAll(bytes);
        lock.lock();
        writeError = error;
    }
    ending = true;
    QMetaObject::invokeMethod(
        this, [this, ended = recording] { handleThreadEnd(ended); }, Qt::QueuedConnection);
}

/** Returns 0, or the errno of what failed. */
int Recorder::writeAll(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t count = ::write(file.get(), bytes.data(), static_cast<size_t>(bytes.size()));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return errno;
        bytes = bytes.sliced(count);
        const std::lock_guard lock(mutex);
        bytesWritten += static_cast<quint64>(count);
    }
    return 0;
}

/** Lets the thread write what waits, and closes the file. */
void Recorder::joinThread()
{
    if (!thread.joinable())
        return;
    {
        const std::lock_guard lock(mutex);
        ending = true;
    }
    changed.notify_one();
    thread.join();
    // Some file systems tell of a full disk only here.
    if (::close(file.release()) != 0 && writeError == 0)
        writeError = errno;
}

void Recorder::handleThreadEnd(unsigned ended)
{
    // By now it may have been stopped, and begun anew.
    if (isRecording() && ended == recording)
        stop();
}

QString Recorder::describeFailure() const
{
    if (writeError == ENOSPC || writeError == EDQUOT)
        return tr("the disk is full");
    if (writeError != 0)
        return getSystemErrorText(writeError);
    return tooSlow ? tr("the disk is slower than the stream") : QString();
}

void Recorder::fail(const QString &reason)
{
    errorMessage
        = tr("Recording to \"%1\" has stopped: %2. The first %3 bytes were kept; watching goes on.")
              .arg(QDir::toNativeSeparators(path), reason, QLocale().toString(bytesWritten));
    Q_EMIT failed(errorMessage);
}

} // namespace corvane
