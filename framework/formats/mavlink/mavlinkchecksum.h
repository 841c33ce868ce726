#pragma once

#include "corvaneframework_export.h"

#include <QByteArrayView>
#include <QtGlobal>

namespace corvane {

/**
 * The checksum of MAVLink frames: CRC-16/MCRF4XX (polynomial 0x1021, reflected, initially 0xFFFF,
 * no final inversion), over the frame without start byte, then over the type's extra byte.
 */
class CORVANEFRAMEWORK_EXPORT MavlinkChecksum
{
public:
    void add(QByteArrayView bytes);
    void add(quint8 byte);

    quint16 getValue() const { return value; }

private:
    quint16 value = 0xFFFF;
};

} // namespace corvane
