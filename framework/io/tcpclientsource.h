#pragma once

#include "bytesource.h"

class QTcpSocket;

namespace corvane {

/** Connects to a port that somebody else listens at; the end comes when the peer closes. */
class CORVANEFRAMEWORK_EXPORT TcpClientSource : public ByteSource
{
    Q_OBJECT

public:
    /** \a host: name or address, IPv6 without brackets. */
    TcpClientSource(QString host, quint16 port, QObject *parent = nullptr);
    ~TcpClientSource() override;

    QString getName() const override;
    std::optional<qint64> getWaitingBytes() const override;

protected:
    void openDevice() override;
    void closeDevice() override;
    qint64 readDevice(char *data, qint64 maximum) override;

private:
    void handleConnected();
    void handleError();
    QString describeConnectError() const;

    QString host;
    quint16 port;
    QTcpSocket *socket = nullptr; ///< Owned as a child; null while not open.
    bool connected = false; ///< Stays set when the peer has closed.
    bool broken = false;
};

} // namespace corvane
