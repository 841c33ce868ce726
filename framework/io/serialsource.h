#pragma once

#include "bytesource.h"

#include <QByteArray>

class QSerialPort;

namespace corvane {

/** Reads a serial port: 8 data bits, no parity, one stop bit, no flow control. */
class CORVANEFRAMEWORK_EXPORT SerialSource : public ByteSource
{
    Q_OBJECT

public:
    /** \a device: as the system names it, with or without folder. \a baud: bits a second. */
    SerialSource(QString device, qint32 baud, QObject *parent = nullptr);
    ~SerialSource() override;

    QString getName() const override;
    std::optional<qint64> getWaitingBytes() const override;

protected:
    void openDevice() override;
    void closeDevice() override;
    qint64 readDevice(char *data, qint64 maximum) override;

private:
    void handleError();
    QString describeOpenError() const;

    QString device;
    qint32 baud;
    QSerialPort *serialPort = nullptr; ///< Owned as a child; null while not open.
    QByteArray rest; ///< Read before the device went away.
};

} // namespace corvane
