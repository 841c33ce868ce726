#pragma once

#include "corvaneframework_export.h"
#include "mavlinkframe.h"
#include "streamdecoder.h"

#include <QByteArrayView>

#include <vector>

namespace corvane {

class MavlinkFormat;
struct MavlinkMessageType;
class Reception;
struct FrameHeader;

/** How frames stand in the bytes of a stream. */
enum class MavlinkFraming {
    Automatic, ///< Found out from the first frames.
    Raw, ///< One frame behind the other.
    TimeStamped ///< A time before each frame: microseconds since 1970, 8 bytes, big endian.
};

/**
 * Finds MAVLink frames, versions 1 and 2, in a stream of bytes.
 *
 * While in step, the reader takes frame after frame. A frame with a wrong checksum, or with an id
 * that no definition describes, is reported as such when something that can be a frame follows it
 * and no good frame begins in it that ends behind its payload (which is how it looks when the
 * length is wrong). Otherwise the reader has lost its step: it searches byte by byte for a frame
 * with a right checksum, and reports what it passed over as bytes that belong to no frame.
 *
 * What is found does not depend on the pieces in which the bytes come.
 */
class CORVANEFRAMEWORK_EXPORT MavlinkDecoder final : public StreamDecoder
{
public:
    /** Neither \a format nor \a reception is owned; both must outlive the decoder. */
    MavlinkDecoder(const MavlinkFormat &format,
                   Reception &reception,
                   MavlinkFraming framing = MavlinkFraming::Automatic);

    void append(QByteArrayView bytes, std::optional<qint64> arrivalUs) override;
    void finish() override;
    Step step() override;
    std::optional<qint64> getNextTimeUs() const override;

    quint64 getPosition() const override { return streamPosition; }

    void reset(quint64 newPosition) override;

    MavlinkFraming getFraming() const { return framing; }

    /** The framing of a recording that begins with \a head, of which 64 KiB are enough. */
    static MavlinkFraming findFraming(const MavlinkFormat &format, QByteArrayView head);

private:
    /** What stands at some place of the buffer. */
    enum class Outlook {
        Valid, ///< A frame with a right checksum.
        Possible, ///< Something that can be a frame, or the end of the stream.
        None,
        Unknown ///< More bytes are needed to tell.
    };

    QByteArrayView getRest(size_t from) const;

    size_t getPrefixSize() const { return framing == MavlinkFraming::TimeStamped ? 8 : 0; }

    qint64 readTimeUs() const;
    bool decideFraming();
    std::optional<MavlinkFraming> guessFraming(size_t begin, size_t end) const;
    Outlook lookAt(size_t begin, MavlinkFrame &frame) const;
    Outlook lookAt(size_t begin) const;
    bool canBeFrame(size_t begin) const;
    Outlook lookAround(const MavlinkFrame &doubtful) const;
    FrameHeader headerOf(const MavlinkFrame &frame, const MavlinkMessageType *type) const;
    static void readTimeField(FrameHeader &header, const MavlinkFrame &frame, QByteArrayView bytes);
    Step takeFrame(const MavlinkFrame &frame, QByteArrayView bytes, const MavlinkMessageType &type);
    Step
    takeDoubtful(const MavlinkFrame &frame, QByteArrayView bytes, const MavlinkMessageType *type);
    Step skipByte();
    void reportSkipped();
    void advance(size_t count);
    QString describeDamage(const MavlinkFrame &frame,
                           QByteArrayView bytes,
                           const MavlinkMessageType &type) const;

    const MavlinkFormat &format;
    Reception &reception;
    MavlinkFraming framing;
    std::vector<char> buffer;
    size_t position = 0; ///< Of the next byte to be read, in the buffer.
    quint64 streamPosition = 0; ///< The same byte's offset in the stream.
    quint64 skipped = 0; ///< Bytes passed over since the last frame, not yet reported.
    size_t examined = 0; ///< Bytes that tell nothing about the framing.
    std::optional<qint64> arrivalUs;
    bool inStep = true;
    bool finished = false;
};

} // namespace corvane
