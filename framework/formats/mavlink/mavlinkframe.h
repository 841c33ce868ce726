#pragma once

#include "corvaneframework_export.h"

#include <QByteArrayView>
#include <QtGlobal>

#include <optional>

namespace corvane {

/** The header of a MAVLink frame, version 1 or 2, and where its parts lie. */
struct CORVANEFRAMEWORK_EXPORT MavlinkFrame
{
    static constexpr quint8 startVersion1 = 0xFE;
    static constexpr quint8 startVersion2 = 0xFD;
    static constexpr qsizetype headerSizeVersion1 = 6;
    static constexpr qsizetype headerSizeVersion2 = 10;
    static constexpr qsizetype checksumSize = 2;
    static constexpr qsizetype signatureSize = 13;
    static constexpr quint8 signedFlag = 0x01;
    static constexpr qsizetype maximumSize
        = headerSizeVersion2 + 255 + checksumSize + signatureSize;

    enum class Result {
        Frame, ///< A whole frame, its checksum not yet looked at.
        Incomplete, ///< More bytes are needed to tell.
        None ///< No frame begins here.
    };

    /** Reads the frame at the beginning of \a bytes; \a frame is only written for Frame. */
    static Result parse(QByteArrayView bytes, MavlinkFrame &frame);

    /** The checksum that the frame must have when its type's extra byte is \a extra. */
    quint16 computeChecksum(QByteArrayView bytes, quint8 extra) const;
    /** The same if the payload had zeros behind it up to \a extendedSize bytes. */
    quint16 computeExtendedChecksum(QByteArrayView bytes, quint8 extra, int extendedSize) const;

    qsizetype getSize() const
    {
        return headerSize + payloadSize + checksumSize + (isSigned ? signatureSize : 0);
    }

    quint32 messageId = 0;
    quint16 checksum = 0; ///< As the frame has it.
    quint8 headerSize = 0; ///< Start byte included.
    quint8 payloadSize = 0;
    quint8 sequence = 0;
    quint8 systemId = 0;
    quint8 componentId = 0;
    bool isSigned = false;
};

} // namespace corvane
