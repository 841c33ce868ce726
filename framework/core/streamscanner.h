#pragma once

#include "corvaneframework_export.h"

#include <QByteArrayView>
#include <QtGlobal>

#include <optional>

namespace corvane {

/**
 * Finds the places of a recording at which a frame reader can begin, much faster than reading it.
 *
 * It works in a thread of its own, beside the frame reader, and so shares nothing with that or with
 * the format; what it has to know of the message types it copies when it is made.
 */
class CORVANEFRAMEWORK_EXPORT StreamScanner
{
public:
    /** Where a good frame begins. */
    struct Place
    {
        qint64 offset = 0; ///< In bytes from the beginning of the recording.
        std::optional<qint64> timeUs; ///< Its recorded time; nothing if it has none.
    };

    StreamScanner() = default;
    virtual ~StreamScanner();
    StreamScanner(const StreamScanner &) = delete;
    StreamScanner &operator=(const StreamScanner &) = delete;

    /** Takes the next bytes, in pieces of any size. */
    virtual void append(QByteArrayView bytes) = 0;
    /**
     * The first place at or behind \a offset; nothing if more bytes are needed. To be called until
     * then after each append(), with an offset that never goes back.
     */
    virtual std::optional<Place> find(qint64 offset) = 0;
    /** The recorded time of the last frame that has been passed; nothing if it had none. */
    virtual std::optional<qint64> getLatestTimeUs() const = 0;
};

} // namespace corvane
