#include "mavlinkscanner.h"

#include "mavlinkformat.h"

#include <QtEndian>

namespace corvane {

namespace {

constexpr size_t timeStampSize = 8;

bool isStartByte(char byte)
{
    return static_cast<quint8>(byte) == MavlinkFrame::startVersion1
           || static_cast<quint8>(byte) == MavlinkFrame::startVersion2;
}

} // namespace

MavlinkScanner::MavlinkScanner(const MavlinkFormat &format, MavlinkFraming framing)
    : checksumExtras(format.getChecksumExtras())
    , prefixSize(framing == MavlinkFraming::TimeStamped ? timeStampSize : 0)
{
}

void MavlinkScanner::append(QByteArrayView bytes)
{
    buffer.erase(buffer.begin(), buffer.begin() + static_cast<qptrdiff>(position));
    bufferOffset += static_cast<qint64>(position);
    position = 0;
    buffer.insert(buffer.end(), bytes.begin(), bytes.end());
}

std::optional<StreamScanner::Place> MavlinkScanner::find(qint64 offset)
{
    while (position + prefixSize < buffer.size()) {
        const size_t begin = position + prefixSize;
        const QByteArrayView bytes(buffer.data() + begin,
                                   static_cast<qsizetype>(buffer.size() - begin));
        MavlinkFrame frame;
        const MavlinkFrame::Result result = MavlinkFrame::parse(bytes, frame);
        if (result == MavlinkFrame::Result::Incomplete)
            break;
        const qint64 frameOffset = bufferOffset + static_cast<qint64>(position);
        const bool isAsked = frameOffset >= offset;
        const bool isFrame = result == MavlinkFrame::Result::Frame;
        const bool isGood = isFrame && (!inStep || isAsked) && isRight(frame, bytes);
        if (!isFrame || (!inStep && !isGood)) {
            skipByte();
            continue;
        }
        inStep = true;
        if (isGood && isAsked)
            return Place{frameOffset, readTimeUs()};
        latestTimeUs = readTimeUs();
        position = begin + static_cast<size_t>(frame.getSize());
    }
    return std::nullopt;
}

bool MavlinkScanner::isRight(const MavlinkFrame &frame, QByteArrayView bytes) const
{
    const auto extra = checksumExtras.constFind(frame.messageId);
    return extra != checksumExtras.constEnd()
           && frame.checksum == frame.computeChecksum(bytes, *extra);
}

std::optional<qint64> MavlinkScanner::readTimeUs() const
{
    if (prefixSize == 0)
        return std::nullopt;
    const auto time = qFromBigEndian<qint64>(buffer.data() + position);
    return time >= 0 ? std::optional(time) : std::nullopt;
}

/** On to the next byte before which a frame could begin. */
void MavlinkScanner::skipByte()
{
    inStep = false;
    ++position;
    while (position + prefixSize < buffer.size() && !isStartByte(buffer[position + prefixSize]))
        ++position;
}

} // namespace corvane
