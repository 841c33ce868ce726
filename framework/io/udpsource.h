#pragma once

#include "bytesource.h"
#include "descriptorreader.h"

#include <QByteArray>

namespace corvane {

/**
 * Receives datagrams at an address of this machine, or those of a multicast group.
 *
 * A read() gives bytes of one datagram at most, and the whole of it if there is space for 64 KiB.
 * What comes faster than it is read the system drops and, on Linux, counts.
 */
class CORVANEFRAMEWORK_EXPORT UdpSource : public ByteSource
{
    Q_OBJECT

public:
    /** \a address: IPv4, or IPv6 without brackets, or empty for all. Port 0: any free one. */
    UdpSource(QString address, quint16 port, QObject *parent = nullptr);
    ~UdpSource() override;

    /**
     * How much the system may keep of what has not been read; it rounds and limits this. To be set
     * before open(); 4 MiB else.
     */
    void setReceiveBufferSize(int sizeBytes) { receiveBufferSizeBytes = sizeBytes; }

    QString getName() const override;
    std::optional<qint64> getWaitingBytes() const override;
    /** Up to date also while nothing is read; kept after close(), begun anew by open(). */
    std::optional<quint64> getDroppedCount() const override;

protected:
    void openDevice() override;
    void closeDevice() override;
    qint64 readDevice(char *data, qint64 maximum) override;

private:
    qint64 takePending(char *data, qint64 maximum);
    qint64 receiveDatagram(char *data, qint64 maximum);

    QString address;
    quint16 port;
    int receiveBufferSizeBytes;
    QString boundName;
    DescriptorReader reader;
    QByteArray pending; ///< The rest of a datagram that read() had no space for.
    std::optional<quint64> droppedBeforeClose;
};

} // namespace corvane
