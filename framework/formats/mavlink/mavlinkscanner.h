#pragma once

#include "corvaneframework_export.h"
#include "mavlinkdecoder.h"
#include "streamscanner.h"

#include <QHash>

#include <vector>

namespace corvane {

class MavlinkFormat;

/**
 * Finds frames with a right checksum in a recording of MAVLink.
 *
 * In step it goes from header to header and computes the checksum only where a place is asked for;
 * out of step it searches byte by byte for a frame with a right checksum.
 */
class CORVANEFRAMEWORK_EXPORT MavlinkScanner final : public StreamScanner
{
public:
    /** \a framing: not Automatic; see MavlinkDecoder::findFraming(). */
    MavlinkScanner(const MavlinkFormat &format, MavlinkFraming framing);

    void append(QByteArrayView bytes) override;
    std::optional<Place> find(qint64 offset) override;

    std::optional<qint64> getLatestTimeUs() const override { return latestTimeUs; }

private:
    bool isRight(const MavlinkFrame &frame, QByteArrayView bytes) const;
    std::optional<qint64> readTimeUs() const;
    void skipByte();

    QHash<quint32, quint8> checksumExtras; ///< By message id.
    size_t prefixSize; ///< Of the time before each frame.
    std::vector<char> buffer;
    size_t position = 0; ///< Of the next byte to be looked at, in the buffer.
    qint64 bufferOffset = 0; ///< Of the buffer's first byte, in the recording.
    std::optional<qint64> latestTimeUs;
    bool inStep = true;
};

} // namespace corvane
