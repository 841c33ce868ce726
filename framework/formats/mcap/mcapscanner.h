#pragma once

#include "corvaneframework_export.h"
#include "streamscanner.h"

#include <QByteArray>

namespace corvane {

/** Finds chunks, and messages outside of chunks, in an MCAP file, without decompressing anything.
 */
class CORVANEFRAMEWORK_EXPORT McapScanner final : public StreamScanner
{
public:
    McapScanner() = default;

    void append(QByteArrayView bytes) override;
    std::optional<Place> find(qint64 offset) override;

    std::optional<qint64> getLatestTimeUs() const override { return latestTimeUs; }

private:
    struct Record
    {
        qint64 size = 0; ///< In bytes, with its header; 0: more bytes are needed.
        bool isPlace = false;
        bool isLast = false; ///< Behind it are no messages.
        std::optional<qint64> firstTimeUs;
        std::optional<qint64> lastTimeUs;
    };

    Record parseRecord() const;

    QByteArray buffer;
    qint64 position = 0; ///< Of the record that is looked at next, in the file.
    qint64 bufferOffset = 0; ///< Of the buffer's first byte, in the file.
    std::optional<qint64> latestTimeUs;
    bool atEnd = false;
};

} // namespace corvane
