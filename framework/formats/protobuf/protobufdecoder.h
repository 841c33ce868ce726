#pragma once

#include "corvaneframework_export.h"
#include "protobufframing.h"
#include "streamdecoder.h"

#include <QByteArrayView>
#include <QString>

#include <memory>
#include <vector>

namespace corvane {

class ProtobufContent;
class ProtobufFormat;
class ProtobufRecord;
class Reception;
struct FrameHeader;

/**
 * Reads messages with their length before them from a stream of bytes.
 *
 * The lengths keep the reader in step: bytes that are no message, and messages longer than
 * maximumSize, are passed over by their length, and an event tells where and why. A length that is
 * none is passed over too; the stream may make no sense behind it.
 */
class CORVANEFRAMEWORK_EXPORT ProtobufDecoder final : public StreamDecoder
{
public:
    static constexpr quint64 maximumSize = 64ULL * 1024 * 1024;

    /** Neither \a format nor \a reception is owned; both must outlive the decoder. */
    ProtobufDecoder(const ProtobufFormat &format, Reception &reception, ProtobufFraming framing);
    ~ProtobufDecoder() override;

    void append(QByteArrayView bytes, std::optional<qint64> arrivalUs) override;
    void finish() override;
    Step step() override;
    std::optional<qint64> getNextTimeUs() const override;

    quint64 getPosition() const override { return streamPosition; }

    void reset(quint64 newPosition) override;

private:
    /** The message that comes next, where all of it is there. */
    struct Next
    {
        ProtobufLength length;
        std::unique_ptr<ProtobufContent> content; ///< Also where it is damaged.
        std::optional<qint64> timeUs; ///< The message's own.
    };

    QByteArrayView getRest() const;
    bool prepare() const;
    Step takeNext();
    QString describeDamage() const;
    void deliver(FrameHeader header);
    void deliver(const FrameHeader &header, const ProtobufRecord &record, bool confidential);
    Step takeOversized(const ProtobufLength &length);
    Step passOver();
    Step skipRest(const QString &reason);
    void advance(size_t count);

    const ProtobufFormat &format;
    Reception &reception;
    ProtobufFraming framing;
    std::vector<char> buffer;
    size_t position = 0; ///< Of the next byte to be read, in the buffer.
    quint64 streamPosition = 0; ///< The same byte's offset in the stream.
    quint64 toPassOver = 0; ///< Bytes of an oversized message that are still to come.
    mutable std::unique_ptr<Next> next; ///< Made when first looked at.
    std::optional<qint64> arrivalUs;
    bool finished = false;
};

} // namespace corvane
