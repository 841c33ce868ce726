#pragma once

#include "corvaneframework_export.h"

#include <QString>

#include <memory>

namespace corvane {
struct CorvaneEventData;
} // namespace corvane

/** Something that happened in a stream, other than a good message. A value. */
class CORVANEFRAMEWORK_EXPORT CorvaneEvent
{
public:
    /** The numeric value of CrcError is relied upon. */
    enum Type {
        Other = 0,
        UnknownMessage = 1, ///< A frame whose message id no definition describes.
        CrcError = 2, ///< A frame whose checksum does not fit.
        LostBytes = 3, ///< Bytes that belong to no frame.
        SequenceGap = 4, ///< A sender's sequence numbers show that messages are missing.
        SourceOpened = 5,
        SourceClosed = 6,
        SourceFailed = 7
    };

    CorvaneEvent(Type type, const QString &message);
    CorvaneEvent(const CorvaneEvent &other);
    CorvaneEvent &operator=(const CorvaneEvent &other);
    ~CorvaneEvent();

    Type getType() const;
    /** The event in words. */
    QString getMessage() const;

private:
    std::shared_ptr<const corvane::CorvaneEventData> d;
};
