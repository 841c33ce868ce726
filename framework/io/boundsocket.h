#pragma once

#include "filedescriptor.h"

#include <QString>

namespace corvane {

enum class SocketType {
    Stream,
    Datagram
};

/**
 * A socket, in mode "never wait", that is bound to an address of this machine; \a address is IPv4
 * or IPv6 without brackets, or empty for all addresses of both. Port 0 takes any free port.
 *
 * After a failure it is invalid and errno tells why.
 */
FileDescriptor openBoundSocket(SocketType type, const QString &address, quint16 port);

/** "scheme://address:port" of what a socket is really bound to. */
QString getBoundName(int descriptor, const QString &scheme);

/** "scheme://address:port" as asked for, with brackets around IPv6. */
QString getAddressName(const QString &scheme, const QString &address, quint16 port);

/** Says that \a name could not be bound, for \a error, a value of errno, and what to do. */
QString describeBindError(const QString &name, int error);

} // namespace corvane
