#include "descriptorreader.h"

#include <QSocketNotifier>

#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace corvane {

DescriptorReader::DescriptorReader(QObject *parent)
    : QObject(parent)
{
}

DescriptorReader::~DescriptorReader()
{
    close();
}

void DescriptorReader::open(FileDescriptor newDescriptor, bool canWait)
{
    close();
    descriptor = std::move(newDescriptor);
    if (!canWait)
        return;
    notifier = new QSocketNotifier(QSocketNotifier::Read, this);
    notifier->setSocket(descriptor.get());
    connect(notifier, &QSocketNotifier::activated, this, &DescriptorReader::handleActivated);
}

std::optional<qint64> DescriptorReader::getWaitingBytes() const
{
    int count = 0;
    if (!isOpen() || ::ioctl(descriptor.get(), FIONREAD, &count) != 0)
        return std::nullopt;
    return count;
}

void DescriptorReader::close()
{
    if (notifier) {
        // It may be the one that is just telling of bytes.
        notifier->setEnabled(false);
        notifier->deleteLater();
        notifier = nullptr;
    }
    descriptor.reset();
}

qint64 DescriptorReader::read(char *data, qint64 maximum)
{
    if (!isOpen())
        return End;
    if (hasAnswer()) {
        ssize_t count = 0;
        do
            count = ::read(descriptor.get(), data, static_cast<size_t>(maximum));
        while (count < 0 && errno == EINTR);
        if (count > 0)
            return count;
        if (count == 0)
            return End;
        // The far side of a terminal has been closed.
        if (errno == EIO && ::isatty(descriptor.get()))
            return End;
        if (errno != EAGAIN && errno != EWOULDBLOCK)
            return Error;
    }
    await();
    return NothingNow;
}

void DescriptorReader::await()
{
    if (notifier)
        notifier->setEnabled(true);
}

bool DescriptorReader::hasAnswer() const
{
    if (!notifier)
        return true;
    // A read could wait (the descriptor may be in blocking mode), and a named pipe that nobody has
    // opened for writing yet would look as if it had ended.
    pollfd request{descriptor.get(), POLLIN, 0};
    return ::poll(&request, 1, 0) > 0;
}

void DescriptorReader::handleActivated()
{
    notifier->setEnabled(false);
    Q_EMIT readyRead();
}

} // namespace corvane
