#pragma once

#include <QHostAddress>
#include <QUdpSocket>
#include <QVariant>

namespace corvane::test {

// What the machine can do, found out without the classes under test: where it can, a source that
// cannot is a failure and no reason to skip.

inline bool hasIpv6()
{
    QUdpSocket probe;
    return probe.bind(QHostAddress(QHostAddress::LocalHostIPv6));
}

/** Whether a datagram can be sent to \a group and the group be joined. */
inline bool hasMulticast(const QString &group)
{
    QUdpSocket probe;
    probe.setSocketOption(QAbstractSocket::MulticastTtlOption, 0);
    return probe.bind(QHostAddress(QHostAddress::AnyIPv4))
           && probe.joinMulticastGroup(QHostAddress(group))
           && probe.writeDatagram("probe", QHostAddress(group), probe.localPort()) >= 0;
}

} // namespace corvane::test
