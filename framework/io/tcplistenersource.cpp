#include "tcplistenersource.h"

#include "boundsocket.h"
#include "systemerror.h"

#include <QSocketNotifier>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <cerrno>
#include <utility>

namespace corvane {

namespace {

constexpr int maximumWaitingPeers = 8;

/** A peer that vanished without a word would keep all others out. */
void watchForLostPeer(int descriptor)
{
    const auto setOption = [descriptor](int level, int option, int value) {
        ::setsockopt(descriptor, level, option, &value, sizeof value);
    };
    setOption(SOL_SOCKET, SO_KEEPALIVE, 1);
#ifdef TCP_KEEPIDLE
    constexpr int idleSeconds = 10;
    constexpr int intervalSeconds = 5;
    constexpr int attempts = 3;
    setOption(IPPROTO_TCP, TCP_KEEPIDLE, idleSeconds);
    setOption(IPPROTO_TCP, TCP_KEEPINTVL, intervalSeconds);
    setOption(IPPROTO_TCP, TCP_KEEPCNT, attempts);
#endif
}

bool isPassing(int acceptError)
{
    return acceptError == EAGAIN || acceptError == EWOULDBLOCK || acceptError == EINTR
           || acceptError == ECONNABORTED;
}

} // namespace

TcpListenerSource::TcpListenerSource(QString address, quint16 port, QObject *parent)
    : ByteSource(parent)
    , address(std::move(address))
    , port(port)
    , peer(this)
{
    connect(&peer, &DescriptorReader::readyRead, this, &TcpListenerSource::reportReadable);
}

TcpListenerSource::~TcpListenerSource()
{
    TcpListenerSource::closeDevice();
}

QString TcpListenerSource::getName() const
{
    if (!boundName.isEmpty())
        return boundName;
    return getAddressName(QStringLiteral("tcp-listen"), address, port);
}

std::optional<qint64> TcpListenerSource::getWaitingBytes() const
{
    return peer.getWaitingBytes();
}

void TcpListenerSource::openDevice()
{
    boundName.clear();
    acceptError.clear();
    listener = openBoundSocket(SocketType::Stream, address, port);
    if (!listener.isValid() || ::listen(listener.get(), maximumWaitingPeers) != 0)
        return reportOpenFailure(describeBindError(getName(), errno));
    boundName = getBoundName(listener.get(), QStringLiteral("tcp-listen"));
    notifier = new QSocketNotifier(listener.get(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &TcpListenerSource::acceptPeer);
    reportOpened();
}

void TcpListenerSource::closeDevice()
{
    peer.close();
    if (notifier) {
        notifier->setEnabled(false);
        notifier->deleteLater();
        notifier = nullptr;
    }
    listener.reset();
}

void TcpListenerSource::acceptPeer()
{
    FileDescriptor descriptor(
        ::accept4(listener.get(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
    if (!descriptor.isValid() && isPassing(errno))
        return;
    notifier->setEnabled(false);
    if (descriptor.isValid()) {
        watchForLostPeer(descriptor.get());
        peer.open(std::move(descriptor), true);
    } else {
        acceptError = getSystemErrorText(errno);
    }
    reportReadable();
}

qint64 TcpListenerSource::readDevice(char *data, qint64 maximum)
{
    if (!acceptError.isEmpty())
        return failRead(tr("Cannot accept connections at %1: %2.").arg(getName(), acceptError));
    if (!peer.isOpen())
        return 0;
    const qint64 count = peer.read(data, maximum);
    if (count >= 0)
        return count;
    peer.close();
    notifier->setEnabled(true);
    return 0;
}

} // namespace corvane
