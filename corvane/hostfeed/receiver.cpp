#include "receiver.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>

namespace corvane {

namespace {

// More, which the system would give in time, is so much more of the past for one who reads slowly.
constexpr int sendBufferBytes = 32'768;

bool isSocketDescriptor(int descriptor)
{
    struct stat status
    {};

    return ::fstat(descriptor, &status) == 0 && S_ISSOCK(status.st_mode);
}

} // namespace

Receiver::Receiver(int descriptor, QObject *parent)
    : QObject(parent)
    , descriptor(descriptor)
    , isSocket(isSocketDescriptor(descriptor))
    , notifier(descriptor, QSocketNotifier::Write)
{
    if (isSocket)
        ::setsockopt(descriptor, SOL_SOCKET, SO_SNDBUF, &sendBufferBytes, sizeof sendBufferBytes);
    notifier.setEnabled(false);
    connect(&notifier, &QSocketNotifier::activated, this, &Receiver::writePending);
}

Receiver::~Receiver()
{
    notifier.setEnabled(false);
    ::close(descriptor);
}

void Receiver::offer(const Round &round)
{
    if (isClosed)
        return;
    if (!pending.isEmpty()) {
        ++droppedRounds;
        return;
    }
    pending = getBytesFor(round, droppedRounds);
    writePending();
}

void Receiver::writePending()
{
    qsizetype written = 0;
    while (written < pending.size()) {
        const qint64 count = writeSome(written);
        const int error = count < 0 ? errno : 0;
        if (error == EAGAIN)
            break;
        if (error != 0 && error != EINTR) {
            isClosed = true;
            notifier.setEnabled(false);
            Q_EMIT closed(error);
            return;
        }
        written += std::max<qint64>(count, 0);
    }
    pending.remove(0, written);
    notifier.setEnabled(!pending.isEmpty());
}

qint64 Receiver::writeSome(qsizetype from) const
{
    const char *data = pending.constData() + from;
    const auto size = static_cast<size_t>(pending.size() - from);
    if (isSocket)
        return ::send(descriptor, data, size, MSG_DONTWAIT | MSG_NOSIGNAL);
    // A pipe may be shared with programs that do not expect it to refuse to wait. It never waits
    // for so few bytes after it was found ready.
    pollfd ready{descriptor, POLLOUT, 0};
    const int count = ::poll(&ready, 1, 0);
    if (count == 0)
        errno = EAGAIN;
    return count <= 0 ? -1 : ::write(descriptor, data, std::min<size_t>(size, PIPE_BUF));
}

} // namespace corvane
