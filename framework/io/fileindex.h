#pragma once

#include "corvaneframework_export.h"
#include "streamscanner.h"

#include <QObject>
#include <QString>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace corvane {

/**
 * The places of a recording at which reading can begin, and their times. A thread of its own finds
 * them; what it has found so far can be used at any time. When it has come to the end of the file
 * it looks twice a second whether the file has grown, and goes on.
 *
 * It takes little memory however long the file is: when there are too many places, every second
 * one is dropped, and from then on they are twice as far from each other.
 */
class CORVANEFRAMEWORK_EXPORT FileIndex : public QObject
{
    Q_OBJECT

public:
    using Place = StreamScanner::Place;

    struct Limits
    {
        qint64 distanceBytes = 64LL * 1024; ///< Between two places, at least.
        size_t places = 32'768;
    };

    explicit FileIndex(QObject *parent = nullptr);
    explicit FileIndex(Limits limits, QObject *parent = nullptr);
    ~FileIndex() override;

    /** Begins anew with the file \a path. */
    void start(const QString &path, std::unique_ptr<StreamScanner> scanner);
    /** Ends the work; what was found stays. */
    void cancel();

    /** Whether the present end of the file has not been reached yet. */
    bool isRunning() const;
    /** Up to where the file has been looked at, in bytes from its beginning. */
    qint64 getIndexedBytes() const;
    /** The size of the file when last looked at, in bytes. */
    qint64 getFileSize() const;
    size_t getPlaceCount() const;

    /** The recorded time of the first place and of the last frame; nothing if they have none. */
    std::optional<qint64> getFirstTimeUs() const;
    std::optional<qint64> getLastTimeUs() const;

    /** The last known place at or before \a offset, or the beginning of the file. */
    Place findOffset(qint64 offset) const;
    /**
     * The last place before the first one that is later than \a timeUs, or the beginning of the
     * file. Nothing if there are no times.
     */
    std::optional<Place> findTime(qint64 timeUs) const;

Q_SIGNALS:
    /** More has been found; several times a second. */
    void progressed();
    /** The present end of the file has been reached, for the first time or after it has grown. */
    void finished();
    /** The file cannot be read on; \a message says why. */
    void failed(const QString &message);

private:
    struct Found
    {
        std::vector<Place> places;
        qint64 distanceBytes = 0;
        qint64 indexedBytes = 0;
        qint64 fileSize = 0;
        std::optional<qint64> lastTimeUs;
        bool atEnd = false;
    };

    void runThread(const QString &path, StreamScanner &scanner);
    void read(const QString &path, StreamScanner &scanner);
    bool waitForGrowth(int descriptor);
    void take(StreamScanner &scanner, QByteArrayView bytes);
    void tellEnd();
    void tellFailure(const QString &path, int error);

    Limits limits;
    // None of Qt's: what those wait for is hidden from the thread sanitizer.
    std::thread thread; ///< None while nothing is indexed.

    mutable std::mutex mutex; ///< Of all that follows.
    std::condition_variable cancelling;
    bool cancelled = false;
    Found found;
};

} // namespace corvane
