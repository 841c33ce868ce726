#include "bytesource.h"

#include <utility>

namespace corvane {

ByteSource::ByteSource(QObject *parent)
    : QObject(parent)
{
}

ByteSource::~ByteSource() = default;

void ByteSource::open()
{
    closeDevice();
    atEnd = false;
    awaited = false;
    errorMessage.clear();
    openDevice();
}

void ByteSource::close()
{
    atEnd = true;
    awaited = false;
    closeDevice();
}

qint64 ByteSource::read(char *data, qint64 maximum)
{
    if (atEnd)
        return endOfBytes;
    awaited = false;
    const qint64 count = readDevice(data, maximum);
    awaited = count == 0;
    if (count >= 0)
        return count;
    atEnd = true;
    if (errorMessage.isEmpty())
        Q_EMIT finished();
    else
        Q_EMIT failed(errorMessage);
    return endOfBytes;
}

bool ByteSource::seek(qint64 offset)
{
    if (!seekDevice(offset))
        return false;
    atEnd = false;
    awaited = false;
    errorMessage.clear();
    return true;
}

bool ByteSource::seekDevice(qint64)
{
    return false;
}

bool ByteSource::isLive() const
{
    return true;
}

std::optional<qint64> ByteSource::getWaitingBytes() const
{
    return std::nullopt;
}

std::optional<quint64> ByteSource::getDroppedCount() const
{
    return std::nullopt;
}

std::optional<qint64> ByteSource::getSize() const
{
    return std::nullopt;
}

std::optional<qint64> ByteSource::getPosition() const
{
    return std::nullopt;
}

void ByteSource::reportOpened()
{
    Q_EMIT opened();
}

void ByteSource::reportOpenFailure(const QString &message)
{
    closeDevice();
    atEnd = true;
    awaited = false;
    errorMessage = message;
    Q_EMIT failed(errorMessage);
}

void ByteSource::reportReadable()
{
    if (std::exchange(awaited, false))
        Q_EMIT readyRead();
}

qint64 ByteSource::failRead(const QString &message)
{
    errorMessage = message;
    return endOfBytes;
}

} // namespace corvane
