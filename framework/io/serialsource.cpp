#include "serialsource.h"

#include <QSerialPort>

#include <algorithm>
#include <cstring>
#include <utility>

namespace corvane {

namespace {

constexpr qint64 readBufferBytes = qint64{64} * 1024;

} // namespace

SerialSource::SerialSource(QString device, qint32 baud, QObject *parent)
    : ByteSource(parent)
    , device(std::move(device))
    , baud(baud)
{
}

SerialSource::~SerialSource()
{
    SerialSource::closeDevice();
}

QString SerialSource::getName() const
{
    return QStringLiteral("serial:%1?baud=%2").arg(device, QString::number(baud));
}

std::optional<qint64> SerialSource::getWaitingBytes() const
{
    return serialPort ? std::optional(serialPort->bytesAvailable() + rest.size()) : std::nullopt;
}

void SerialSource::openDevice()
{
    serialPort = new QSerialPort(device, this);
    serialPort->setReadBufferSize(readBufferBytes);
    serialPort->setBaudRate(baud);
    if (!serialPort->open(QIODevice::ReadOnly))
        return reportOpenFailure(describeOpenError());
    // The port must not be closed while it emits.
    connect(serialPort, &QSerialPort::readyRead, this, &SerialSource::reportReadable,
            Qt::QueuedConnection);
    connect(serialPort, &QSerialPort::errorOccurred, this, &SerialSource::handleError,
            Qt::QueuedConnection);
    reportOpened();
}

void SerialSource::closeDevice()
{
    if (!serialPort)
        return;
    serialPort->disconnect(this);
    serialPort->close();
    serialPort->deleteLater();
    serialPort = nullptr;
    rest.clear();
}

void SerialSource::handleError()
{
    if (!serialPort || !serialPort->isOpen() || serialPort->error() == QSerialPort::NoError)
        return;
    // An open port that has hung up would tell so again and again.
    rest = serialPort->readAll();
    serialPort->close();
    reportReadable();
}

qint64 SerialSource::readDevice(char *data, qint64 maximum)
{
    if (serialPort->isOpen())
        return std::max<qint64>(serialPort->read(data, maximum), 0);
    if (rest.isEmpty())
        return failRead(tr("Reading %1 failed: the device is gone. Plug it in, and open it again.")
                            .arg(getName()));
    const qint64 count = std::min<qint64>(maximum, rest.size());
    std::memcpy(data, rest.constData(), static_cast<size_t>(count));
    rest.remove(0, count);
    return count;
}

QString SerialSource::describeOpenError() const
{
    const QString cannotOpen = tr("Cannot open %1: ").arg(getName());
    switch (serialPort->error()) {
    case QSerialPort::DeviceNotFoundError:
        return cannotOpen
               + tr("there is no such device. Check the name, and whether it is plugged in.");
    case QSerialPort::PermissionError:
        return cannotOpen
               + tr("no permission, or in use by another program. End that program, or become a "
                    "member "
                    "of the group that owns the device (often \"dialout\").");
    default:
        return cannotOpen + serialPort->errorString() + QLatin1Char('.');
    }
}

} // namespace corvane
