#pragma once

#include "corvaneframework_export.h"
#include "loaderror.h"
#include "senderstatistics.h"

#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

class FormatInfo;

namespace corvane {

class Reception;
class StreamDecoder;
class StreamScanner;

/** A message format as whoever opens a stream sees it: definitions in, a frame reader out. */
class CORVANEFRAMEWORK_EXPORT StreamFormat
{
public:
    struct LoadResult
    {
        bool isOk() const { return errors.isEmpty(); }

        QList<LoadError> errors;
        QList<LoadError> warnings;
    };

    StreamFormat() = default;
    virtual ~StreamFormat();
    StreamFormat(const StreamFormat &) = delete;
    StreamFormat &operator=(const StreamFormat &) = delete;

    /** Adds what definition files describe. Of a file with errors nothing is added. */
    virtual LoadResult loadFiles(const QStringList &files) = 0;
    /** What has been loaded; the same object as long as the format lives. */
    virtual const FormatInfo *getInfo() const = 0;

    /** Whether frames carry a checksum, so that damaged ones can be counted. */
    virtual bool hasChecksum() const = 0;
    virtual SenderTable::Namer getSenderNamer() const = 0;
    /** The last sequence number before 0 comes again. */
    virtual quint32 getLastSequenceNumber() const = 0;

    /**
     * The reader of a stream. The format and \a reception must outlive it.
     *
     * \a framing: one of the framings of getInfo(), or empty for the default one.
     */
    virtual std::unique_ptr<StreamDecoder> makeDecoder(Reception &reception,
                                                       const QString &framing) const = 0;
    /**
     * Finds places in a recording that begins with \a head, of which 64 KiB are enough; null where
     * the format cannot. \a framing: as above.
     */
    virtual std::unique_ptr<StreamScanner> makeScanner(QByteArrayView head,
                                                       const QString &framing) const;
};

} // namespace corvane
