#include "tcpclientsource.h"

#include "boundsocket.h"

#include <QNetworkProxy>
#include <QTcpSocket>

#include <sys/ioctl.h>

#include <utility>

namespace corvane {

namespace {

constexpr qint64 readBufferBytes = qint64{64} * 1024;

} // namespace

TcpClientSource::TcpClientSource(QString host, quint16 port, QObject *parent)
    : ByteSource(parent)
    , host(std::move(host))
    , port(port)
{
}

TcpClientSource::~TcpClientSource()
{
    TcpClientSource::closeDevice();
}

QString TcpClientSource::getName() const
{
    return getAddressName(QStringLiteral("tcp"), host, port);
}

std::optional<qint64> TcpClientSource::getWaitingBytes() const
{
    if (!connected || !socket)
        return std::nullopt;
    int inSystem = 0;
    ::ioctl(static_cast<int>(socket->socketDescriptor()), FIONREAD, &inSystem);
    return socket->bytesAvailable() + inSystem;
}

void TcpClientSource::openDevice()
{
    connected = false;
    broken = false;
    socket = new QTcpSocket(this);
    socket->setProxy(QNetworkProxy::NoProxy);
    // Without a limit it would take in all that the peer can send.
    socket->setReadBufferSize(readBufferBytes);
    connect(socket, &QTcpSocket::connected, this, &TcpClientSource::handleConnected);
    connect(socket, &QTcpSocket::readyRead, this, &TcpClientSource::reportReadable);
    connect(socket, &QTcpSocket::disconnected, this, &TcpClientSource::reportReadable);
    connect(socket, &QTcpSocket::errorOccurred, this, &TcpClientSource::handleError);
    socket->connectToHost(host, port, QIODevice::ReadOnly);
}

void TcpClientSource::closeDevice()
{
    if (!socket)
        return;
    socket->disconnect(this);
    socket->abort();
    // It may be the one that is just emitting.
    socket->deleteLater();
    socket = nullptr;
}

void TcpClientSource::handleConnected()
{
    connected = true;
    reportOpened();
}

void TcpClientSource::handleError()
{
    if (!connected)
        return reportOpenFailure(describeConnectError());
    broken = socket->error() != QAbstractSocket::RemoteHostClosedError;
    reportReadable();
}

qint64 TcpClientSource::readDevice(char *data, qint64 maximum)
{
    if (!connected)
        return 0;
    const qint64 count = socket->read(data, maximum);
    if (count > 0)
        return count;
    if (broken)
        return failRead(
            tr("The connection to %1 broke: %2.").arg(getName(), socket->errorString()));
    const bool isOpen = socket->state() == QAbstractSocket::ConnectedState;
    return isOpen ? 0 : endOfBytes;
}

QString TcpClientSource::describeConnectError() const
{
    const QString cannotConnect = tr("Cannot connect to %1: ").arg(getName());
    switch (socket->error()) {
    case QAbstractSocket::ConnectionRefusedError:
        return cannotConnect
               + tr("nobody listens there. Start the sender first, or check address and port.");
    case QAbstractSocket::HostNotFoundError:
        return cannotConnect + tr("there is no machine of this name. Check the name.");
    case QAbstractSocket::SocketTimeoutError:
        return cannotConnect
               + tr("no answer. Check the address, and whether a firewall is in the way.");
    default:
        return cannotConnect + socket->errorString() + QLatin1Char('.');
    }
}

} // namespace corvane
