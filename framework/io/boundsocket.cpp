#include "boundsocket.h"

#include "systemerror.h"

#include <QCoreApplication>
#include <QHostAddress>

#include <net/if.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cerrno>
#include <cstring>

namespace corvane {

namespace {

struct BoundSocketTexts
{
    Q_DECLARE_TR_FUNCTIONS(corvane::BoundSocket)
};

/** What the system's calls want to know of an address. */
struct SystemAddress
{
    sockaddr_storage storage{};
    socklen_t size = 0;
};

unsigned int getScopeNumber(const QString &scope)
{
    bool isNumber = false;
    const unsigned int number = scope.toUInt(&isNumber);
    return isNumber ? number : ::if_nametoindex(scope.toUtf8().constData());
}

SystemAddress makeSystemAddress(const QHostAddress &address, quint16 port)
{
    SystemAddress result;
    if (address.protocol() == QAbstractSocket::IPv4Protocol) {
        sockaddr_in v4{};
        v4.sin_family = AF_INET;
        v4.sin_port = htons(port);
        v4.sin_addr.s_addr = htonl(address.toIPv4Address());
        result.size = sizeof v4;
        std::memcpy(&result.storage, &v4, sizeof v4);
        return result;
    }
    sockaddr_in6 v6{};
    v6.sin6_family = AF_INET6;
    v6.sin6_port = htons(port);
    v6.sin6_scope_id = getScopeNumber(address.scopeId());
    const Q_IPV6ADDR bytes = address.toIPv6Address();
    std::memcpy(&v6.sin6_addr, &bytes, sizeof bytes);
    result.size = sizeof v6;
    std::memcpy(&result.storage, &v6, sizeof v6);
    return result;
}

bool setOption(const FileDescriptor &descriptor, int level, int option, int value)
{
    return ::setsockopt(descriptor.get(), level, option, &value, sizeof value) == 0;
}

/** \a bothFamilies: an IPv6 socket also takes what comes by IPv4. */
FileDescriptor
openBound(SocketType type, const QHostAddress &address, quint16 port, bool bothFamilies)
{
    const SystemAddress system = makeSystemAddress(address, port);
    const int kind = type == SocketType::Stream ? SOCK_STREAM : SOCK_DGRAM;
    FileDescriptor descriptor(
        ::socket(system.storage.ss_family, kind | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    if (!descriptor.isValid())
        return descriptor;
    // A listener may come back at once to the port that it has just left; two receivers of
    // datagrams would take them from each other.
    if (type == SocketType::Stream)
        setOption(descriptor, SOL_SOCKET, SO_REUSEADDR, 1);
    if (system.storage.ss_family == AF_INET6)
        setOption(descriptor, IPPROTO_IPV6, IPV6_V6ONLY, bothFamilies ? 0 : 1);
    const auto *socketAddress = reinterpret_cast<const sockaddr *>(&system.storage);
    if (::bind(descriptor.get(), socketAddress, system.size) == 0)
        return descriptor;
    const int error = errno;
    descriptor.reset();
    errno = error;
    return descriptor;
}

} // namespace

FileDescriptor openBoundSocket(SocketType type, const QString &address, quint16 port)
{
    if (!address.isEmpty())
        return openBound(type, QHostAddress(address), port, false);
    FileDescriptor descriptor = openBound(type, QHostAddress(QHostAddress::AnyIPv6), port, true);
    const bool hasNoIpv6
        = !descriptor.isValid()
          && (errno == EAFNOSUPPORT || errno == EADDRNOTAVAIL || errno == EPROTONOSUPPORT);
    if (!hasNoIpv6)
        return descriptor;
    return openBound(type, QHostAddress(QHostAddress::AnyIPv4), port, false);
}

QString getBoundName(int descriptor, const QString &scheme)
{
    sockaddr_storage storage{};
    socklen_t size = sizeof storage;
    auto *socketAddress = reinterpret_cast<sockaddr *>(&storage);
    if (::getsockname(descriptor, socketAddress, &size) != 0)
        return getAddressName(scheme, QString(), 0);
    const QHostAddress address(socketAddress);
    // The port lies at the same place for both families.
    const quint16 port = ntohs(reinterpret_cast<const sockaddr_in *>(&storage)->sin_port);
    return getAddressName(scheme, address.toString(), port);
}

QString getAddressName(const QString &scheme, const QString &address, quint16 port)
{
    const QString host
        = address.contains(QLatin1Char(':')) ? QStringLiteral("[%1]").arg(address) : address;
    return QStringLiteral("%1://%2:%3").arg(scheme, host, QString::number(port));
}

QString describeBindError(const QString &name, int error)
{
    const QString cannotBind = BoundSocketTexts::tr("Cannot receive at %1: ").arg(name);
    switch (error) {
    case EADDRINUSE:
        return cannotBind
               + BoundSocketTexts::tr(
                   "another program already uses this port. End it, or choose another port.");
    case EACCES:
        return cannotBind + BoundSocketTexts::tr("no permission. Choose a port above 1023.");
    case EADDRNOTAVAIL:
        return cannotBind
               + BoundSocketTexts::tr(
                   "this machine does not have this address. Leave it empty to mean all.");
    default:
        return cannotBind + getSystemErrorText(error) + QLatin1Char('.');
    }
}

} // namespace corvane
