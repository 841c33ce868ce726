#include "fileindex.h"

#include "filedescriptor.h"
#include "systemerror.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <new>
#include <system_error>
#include <utility>

namespace corvane {

namespace {

constexpr qsizetype chunkBytes = qsizetype{256} * 1024;
constexpr auto growthInterval = std::chrono::milliseconds(500);
constexpr qint64 progressIntervalMs = 50;

qint64 readSize(int descriptor)
{
    struct stat status
    {};

    return ::fstat(descriptor, &status) == 0 ? status.st_size : 0;
}

} // namespace

FileIndex::FileIndex(QObject *parent)
    : FileIndex(Limits(), parent)
{
}

FileIndex::FileIndex(Limits limits, QObject *parent)
    : QObject(parent)
    , limits(limits)
{
}

FileIndex::~FileIndex()
{
    cancel();
}

void FileIndex::start(const QString &path, std::unique_ptr<StreamScanner> scanner)
{
    cancel();
    cancelled = false;
    found = {};
    found.distanceBytes = limits.distanceBytes;
    try {
        thread = std::thread(
            [this, path, scanner = std::move(scanner)] { runThread(path, *scanner); });
    } catch (const std::system_error &error) {
        tellFailure(path, error.code().value());
    }
}

void FileIndex::cancel()
{
    if (!thread.joinable())
        return;
    {
        const std::lock_guard lock(mutex);
        cancelled = true;
    }
    cancelling.notify_one();
    thread.join();
}

bool FileIndex::isRunning() const
{
    const std::lock_guard lock(mutex);
    return thread.joinable() && !cancelled && !found.atEnd;
}

qint64 FileIndex::getIndexedBytes() const
{
    const std::lock_guard lock(mutex);
    return found.indexedBytes;
}

qint64 FileIndex::getFileSize() const
{
    const std::lock_guard lock(mutex);
    return found.fileSize;
}

size_t FileIndex::getPlaceCount() const
{
    const std::lock_guard lock(mutex);
    return found.places.size();
}

std::optional<qint64> FileIndex::getFirstTimeUs() const
{
    const std::lock_guard lock(mutex);
    return found.places.empty() ? std::nullopt : found.places.front().timeUs;
}

std::optional<qint64> FileIndex::getLastTimeUs() const
{
    const std::lock_guard lock(mutex);
    return found.lastTimeUs;
}

FileIndex::Place FileIndex::findOffset(qint64 offset) const
{
    const std::lock_guard lock(mutex);
    const auto isBehind = [](qint64 value, const Place &place) { return value < place.offset; };
    const auto next = std::upper_bound(found.places.begin(), found.places.end(), offset, isBehind);
    return next == found.places.begin() ? Place() : *std::prev(next);
}

std::optional<FileIndex::Place> FileIndex::findTime(qint64 timeUs) const
{
    const std::lock_guard lock(mutex);
    if (found.places.empty() || !found.places.front().timeUs)
        return std::nullopt;
    // Times may go back where another recording begins, so this is no binary search.
    const auto isLater = [timeUs](const Place &place) { return place.timeUs > timeUs; };
    const auto next = std::find_if(found.places.begin(), found.places.end(), isLater);
    return next == found.places.begin() ? Place() : *std::prev(next);
}

void FileIndex::runThread(const QString &path, StreamScanner &scanner)
{
    try {
        read(path, scanner);
    } catch (const std::bad_alloc &) {
        tellFailure(path, ENOMEM);
    }
}

void FileIndex::read(const QString &path, StreamScanner &scanner)
{
    const FileDescriptor file(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC));
    if (!file.isValid())
        return tellFailure(path, errno);
    QByteArray chunk(chunkBytes, Qt::Uninitialized);
    QElapsedTimer sinceProgress;
    sinceProgress.start();
    while (true) {
        const ssize_t count = ::read(file.get(), chunk.data(), static_cast<size_t>(chunk.size()));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return tellFailure(path, errno);
        if (count > 0) {
            take(scanner, QByteArrayView(chunk.constData(), count));
        } else {
            tellEnd();
            if (!waitForGrowth(file.get()))
                return;
        }
        const std::lock_guard lock(mutex);
        if (cancelled)
            return;
        found.fileSize = std::max(readSize(file.get()), found.indexedBytes);
        if (sinceProgress.elapsed() < progressIntervalMs)
            continue;
        sinceProgress.start();
        QMetaObject::invokeMethod(this, &FileIndex::progressed, Qt::QueuedConnection);
    }
}

/** Returns false when there is nothing more to come. */
bool FileIndex::waitForGrowth(int descriptor)
{
    std::unique_lock lock(mutex);
    while (!cancelled && readSize(descriptor) == found.indexedBytes)
        cancelling.wait_for(lock, growthInterval);
    // A file that has become shorter is another one.
    found.atEnd = readSize(descriptor) < found.indexedBytes;
    return !cancelled && !found.atEnd;
}

void FileIndex::take(StreamScanner &scanner, QByteArrayView bytes)
{
    // Only this thread changes what was found.
    qint64 next = found.places.empty() ? 0 : found.places.back().offset + found.distanceBytes;
    scanner.append(bytes);
    std::vector<Place> newPlaces;
    while (const std::optional<Place> place = scanner.find(next)) {
        newPlaces.push_back(*place);
        next = place->offset + found.distanceBytes;
    }
    const std::lock_guard lock(mutex);
    found.places.insert(found.places.end(), newPlaces.begin(), newPlaces.end());
    found.indexedBytes += bytes.size();
    found.lastTimeUs = scanner.getLatestTimeUs();
    if (found.places.size() <= limits.places)
        return;
    for (size_t i = 0; 2 * i < found.places.size(); ++i)
        found.places[i] = found.places[2 * i];
    found.places.resize((found.places.size() + 1) / 2);
    found.distanceBytes *= 2;
}

void FileIndex::tellEnd()
{
    const std::lock_guard lock(mutex);
    found.atEnd = true;
    found.fileSize = found.indexedBytes;
    QMetaObject::invokeMethod(this, &FileIndex::finished, Qt::QueuedConnection);
}

void FileIndex::tellFailure(const QString &path, int error)
{
    const QString message = tr("Cannot index %1: %2.").arg(path, getSystemErrorText(error));
    const std::lock_guard lock(mutex);
    found.atEnd = true;
    QMetaObject::invokeMethod(
        this, [this, message] { Q_EMIT failed(message); }, Qt::QueuedConnection);
}

} // namespace corvane
