#pragma once

#include "bytesource.h"
#include "descriptorreader.h"

class QSocketNotifier;

namespace corvane {

/**
 * Lets others connect to an address of this machine, one at a time: when a peer leaves, the next
 * one is accepted, so the stream has no end of its own. Those who wait are kept by the system.
 */
class CORVANEFRAMEWORK_EXPORT TcpListenerSource : public ByteSource
{
    Q_OBJECT

public:
    /** \a address: IPv4, or IPv6 without brackets, or empty for all. Port 0: any free one. */
    TcpListenerSource(QString address, quint16 port, QObject *parent = nullptr);
    ~TcpListenerSource() override;

    QString getName() const override;
    std::optional<qint64> getWaitingBytes() const override;

protected:
    void openDevice() override;
    void closeDevice() override;
    qint64 readDevice(char *data, qint64 maximum) override;

private:
    void acceptPeer();

    QString address;
    quint16 port;
    QString boundName;
    FileDescriptor listener;
    QSocketNotifier *notifier = nullptr; ///< Owned as a child; enabled while there is no peer.
    DescriptorReader peer;
    QString acceptError; ///< Why no peer can be accepted any more; empty while one can.
};

} // namespace corvane
