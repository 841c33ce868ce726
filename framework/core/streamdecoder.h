#pragma once

#include "corvaneframework_export.h"

#include <QByteArrayView>
#include <QtGlobal>

#include <optional>

namespace corvane {

/**
 * The frame reader of a format: takes bytes as they come, in pieces of any size, and reports what
 * it finds in them to a Reception.
 *
 * The caller appends bytes and then steps until the reader needs more. Stepping is separate from
 * appending so that the caller can stop in time, or wait for the moment at which a recorded frame
 * is due.
 */
class CORVANEFRAMEWORK_EXPORT StreamDecoder
{
public:
    enum class Step {
        NeedsBytes, ///< Nothing more can be read from what was appended.
        Advanced ///< A frame, or some bytes that are none, were read.
    };

    StreamDecoder() = default;
    virtual ~StreamDecoder();
    StreamDecoder(const StreamDecoder &) = delete;
    StreamDecoder &operator=(const StreamDecoder &) = delete;

    /** \a arrivalUs: when the bytes came, in microseconds since 1970, where that means something.
     */
    virtual void append(QByteArrayView bytes, std::optional<qint64> arrivalUs) = 0;
    /** Says that no more bytes will come, so that incomplete frames are told apart from late ones.
     */
    virtual void finish() = 0;
    /** Reads one frame, or passes over bytes up to the next one. */
    virtual Step step() = 0;
    /** The recorded time of what step() would read next, in microseconds; nothing if unknown. */
    virtual std::optional<qint64> getNextTimeUs() const = 0;
    /** The offset in the stream of the byte that step() would read next. */
    virtual quint64 getPosition() const = 0;
    /**
     * Begins anew behind a break: forgets what was appended and not read, and finish(). The bytes
     * that are appended next stand at \a position of the stream. What was found out about the
     * stream as a whole, such as its framing, stays. Not to be called within step().
     */
    virtual void reset(quint64 position) = 0;
};

} // namespace corvane
