#include "udpsource.h"

#include "boundsocket.h"
#include "systemerror.h"

#include <QHostAddress>

#ifdef Q_OS_LINUX
#include <linux/sock_diag.h>
#endif
#include <net/if.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace corvane {

namespace {

constexpr int defaultReceiveBufferBytes = 4 * 1024 * 1024;
constexpr qint64 maximumDatagramBytes = 65'536;

#ifdef SO_MEMINFO
using MemoryFigures = std::array<quint32, SK_MEMINFO_VARS>;

/** What the system tells of the socket's buffers, by its constants. */
std::optional<MemoryFigures> readMemoryFigures(int descriptor)
{
    MemoryFigures values{};
    socklen_t size = sizeof values;
    if (::getsockopt(descriptor, SOL_SOCKET, SO_MEMINFO, values.data(), &size) == 0
        && size > SK_MEMINFO_DROPS * sizeof(quint32))
        return values;
    return std::nullopt;
}
#endif

/** How full the buffer is, by what the system keeps beside each datagram as well. */
std::optional<qint64> readWaitingBytes(int descriptor)
{
#ifdef SO_MEMINFO
    if (const auto values = readMemoryFigures(descriptor))
        return (*values)[SK_MEMINFO_RMEM_ALLOC];
#else
    Q_UNUSED(descriptor)
#endif
    return std::nullopt;
}

std::optional<quint64> readDroppedCount(int descriptor)
{
#ifdef SO_MEMINFO
    // The counter that comes along with datagrams tells of a loss only when the next one is read.
    if (const auto values = readMemoryFigures(descriptor))
        return (*values)[SK_MEMINFO_DROPS];
#else
    Q_UNUSED(descriptor)
#endif
    return std::nullopt;
}

/** Asks the network for the group's datagrams; binding to its address alone brings none. */
bool joinGroup(int descriptor, const QHostAddress &group)
{
    if (group.protocol() == QAbstractSocket::IPv4Protocol) {
        ip_mreq request{};
        request.imr_multiaddr.s_addr = htonl(group.toIPv4Address());
        return ::setsockopt(descriptor, IPPROTO_IP, IP_ADD_MEMBERSHIP, &request, sizeof request)
               == 0;
    }
    ipv6_mreq request{};
    const Q_IPV6ADDR bytes = group.toIPv6Address();
    std::memcpy(&request.ipv6mr_multiaddr, &bytes, sizeof bytes);
    request.ipv6mr_interface = ::if_nametoindex(group.scopeId().toUtf8().constData());
    return ::setsockopt(descriptor, IPPROTO_IPV6, IPV6_JOIN_GROUP, &request, sizeof request) == 0;
}

} // namespace

UdpSource::UdpSource(QString address, quint16 port, QObject *parent)
    : ByteSource(parent)
    , address(std::move(address))
    , port(port)
    , receiveBufferSizeBytes(defaultReceiveBufferBytes)
    , reader(this)
{
    connect(&reader, &DescriptorReader::readyRead, this, &UdpSource::reportReadable);
}

UdpSource::~UdpSource() = default;

QString UdpSource::getName() const
{
    if (!boundName.isEmpty())
        return boundName;
    return getAddressName(QStringLiteral("udp"), address, port);
}

std::optional<qint64> UdpSource::getWaitingBytes() const
{
    return reader.isOpen() ? readWaitingBytes(reader.getDescriptor()) : std::nullopt;
}

std::optional<quint64> UdpSource::getDroppedCount() const
{
    return reader.isOpen() ? readDroppedCount(reader.getDescriptor()) : droppedBeforeClose;
}

void UdpSource::openDevice()
{
    droppedBeforeClose.reset();
    boundName.clear();
    FileDescriptor descriptor = openBoundSocket(SocketType::Datagram, address, port);
    if (!descriptor.isValid())
        return reportOpenFailure(describeBindError(getName(), errno));
    const QHostAddress hostAddress(address);
    if (hostAddress.isMulticast() && !joinGroup(descriptor.get(), hostAddress))
        return reportOpenFailure(describeBindError(getName(), errno));
    // The system gives as much of it as it likes; less is no failure.
    ::setsockopt(descriptor.get(), SOL_SOCKET, SO_RCVBUF, &receiveBufferSizeBytes,
                 sizeof receiveBufferSizeBytes);
    boundName = getBoundName(descriptor.get(), QStringLiteral("udp"));
    reader.open(std::move(descriptor), true);
    reportOpened();
}

void UdpSource::closeDevice()
{
    if (reader.isOpen())
        droppedBeforeClose = readDroppedCount(reader.getDescriptor());
    reader.close();
    pending.clear();
}

qint64 UdpSource::readDevice(char *data, qint64 maximum)
{
    if (!pending.isEmpty())
        return takePending(data, maximum);
    if (maximum >= maximumDatagramBytes)
        return receiveDatagram(data, maximum);
    pending.resize(maximumDatagramBytes);
    const qint64 count = receiveDatagram(pending.data(), pending.size());
    pending.resize(std::max<qint64>(count, 0));
    return count > 0 ? takePending(data, maximum) : count;
}

qint64 UdpSource::takePending(char *data, qint64 maximum)
{
    const qint64 count = std::min<qint64>(maximum, pending.size());
    std::memcpy(data, pending.constData(), static_cast<size_t>(count));
    pending.remove(0, count);
    return count;
}

qint64 UdpSource::receiveDatagram(char *data, qint64 maximum)
{
    const qint64 count = reader.read(data, maximum);
    if (count >= 0)
        return count;
    if (count == DescriptorReader::End) {
        // That was an empty datagram.
        reader.await();
        return 0;
    }
    return failRead(tr("Receiving at %1 failed: %2.").arg(getName(), getSystemErrorText(errno)));
}

} // namespace corvane
