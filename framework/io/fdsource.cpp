#include "fdsource.h"

#include "systemerror.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace corvane {

namespace {

constexpr int growthIntervalMs = 100;

} // namespace

// NOLINTNEXTLINE(modernize-pass-by-value): a shared text costs nothing to copy
FdSource::FdSource(int descriptor, const QString &name, QObject *parent)
    : ByteSource(parent)
    , name(name)
    , givenDescriptor(descriptor)
    , reader(this)
{
    connect(&reader, &DescriptorReader::readyRead, this, &FdSource::reportReadable);
    growthTimer.setSingleShot(true);
    growthTimer.setInterval(growthIntervalMs);
    connect(&growthTimer, &QTimer::timeout, this, &FdSource::reportReadable);
}

FdSource::FdSource(const QString &name, QObject *parent)
    : FdSource(-1, name, parent)
{
}

FdSource::~FdSource() = default;

QString FdSource::getName() const
{
    return name;
}

std::optional<qint64> FdSource::getWaitingBytes() const
{
    return isLive() ? reader.getWaitingBytes() : std::nullopt;
}

bool FdSource::isLive() const
{
    return !regularFile;
}

std::optional<qint64> FdSource::getSize() const
{
    struct stat status
    {};

    if (!regularFile || !reader.isOpen() || ::fstat(reader.getDescriptor(), &status) != 0)
        return std::nullopt;
    return status.st_size;
}

std::optional<qint64> FdSource::getPosition() const
{
    if (!regularFile || !reader.isOpen())
        return std::nullopt;
    const off_t position = ::lseek(reader.getDescriptor(), 0, SEEK_CUR);
    return position < 0 ? std::nullopt : std::optional<qint64>(position);
}

FileDescriptor FdSource::openDescriptor()
{
    if (!givenDescriptor.isValid())
        errno = EBADF;
    return std::move(givenDescriptor);
}

QString FdSource::describeOpenError(int error) const
{
    if (error == EISDIR)
        return tr("Cannot read %1: it is a folder. Name a file.").arg(name);
    return tr("Cannot read %1: %2.").arg(name, getSystemErrorText(error));
}

void FdSource::openDevice()
{
    FileDescriptor descriptor = openDescriptor();

    struct stat status
    {};

    if (!descriptor.isValid() || ::fstat(descriptor.get(), &status) != 0)
        return reportOpenFailure(describeOpenError(errno));
    if (S_ISDIR(status.st_mode))
        return reportOpenFailure(describeOpenError(EISDIR));
    regularFile = S_ISREG(status.st_mode);
    reader.open(std::move(descriptor), !regularFile && !S_ISBLK(status.st_mode));
    reportOpened();
}

void FdSource::closeDevice()
{
    growthTimer.stop();
    reader.close();
}

bool FdSource::seekDevice(qint64 offset)
{
    return offset >= 0 && regularFile && reader.isOpen()
           && ::lseek(reader.getDescriptor(), offset, SEEK_SET) == offset;
}

qint64 FdSource::readDevice(char *data, qint64 maximum)
{
    const qint64 count = reader.read(data, maximum);
    if (count == DescriptorReader::End && following && regularFile)
        return awaitGrowth();
    if (count != DescriptorReader::Error)
        return count == DescriptorReader::End ? endOfBytes : count;
    return failRead(tr("Reading %1 failed: %2.").arg(name, getSystemErrorText(errno)));
}

qint64 FdSource::awaitGrowth()
{
    if (getSize() < getPosition())
        return failRead(
            tr("%1 has become shorter, so it is another recording now. Open it again.").arg(name));
    growthTimer.start();
    return 0;
}

} // namespace corvane
