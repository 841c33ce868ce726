#pragma once

#include "corvaneframework_export.h"
#include "filedescriptor.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QObject>
#include <QString>

#include <condition_variable>
#include <mutex>
#include <thread>

namespace corvane {

/**
 * Writes the bytes of a stream to a file, exactly as they came, while the stream is watched.
 *
 * A thread of its own writes, so that a slow disk does not hold up whoever calls write(). Datagrams
 * are written one behind the other, without a mark between them.
 *
 * \code
 * connect(&pump, &StreamPump::chunkRead, &recorder, &Recorder::write);
 * recorder.start(path);
 * \endcode
 */
class CORVANEFRAMEWORK_EXPORT Recorder : public QObject
{
    Q_OBJECT

public:
    /** So many bytes may wait for the disk; a disk that is slower than that ends the recording. */
    static constexpr qsizetype maximumWaitingBytes = 64LL * 1024 * 1024;

    explicit Recorder(QObject *parent = nullptr);
    /** Stops. */
    ~Recorder() override;

    /**
     * Begins a recording, after stopping the present one; a file that is there is overwritten.
     * Returns whether that went well; if not, getErrorMessage() tells what is wrong and what to do.
     */
    bool start(const QString &path);
    /**
     * Ends the recording when all bytes are in the file and it is closed. Returns whether it is
     * complete. Does nothing without a recording.
     */
    bool stop();
    /** Takes bytes of the stream; does nothing without a recording. */
    void write(QByteArrayView bytes);

    bool isRecording() const { return thread.joinable(); }

    const QString &getPath() const { return path; }

    /** In the file of the present or the latest recording. */
    quint64 getBytesWritten() const;

    /** Why the latest recording could not begin or ended by itself; empty if it did not. */
    const QString &getErrorMessage() const { return errorMessage; }

Q_SIGNALS:
    /**
     * The recording has ended by itself: the file cannot be written any more. \a message says why
     * and how much was kept.
     */
    void failed(const QString &message);

private:
    bool refuse(int error);
    void runThread();
    int writeAll(QByteArrayView bytes);
    void joinThread();
    void handleThreadEnd(unsigned ended);
    QString describeFailure() const;
    void fail(const QString &reason);

    QString path;
    QString errorMessage;
    FileDescriptor file; ///< Used by the thread while that runs.
    // As in FileIndex, not those of Qt.
    std::thread thread; ///< None without a recording.
    unsigned recording = 0; ///< The number of the present or the latest one.

    mutable std::mutex mutex; ///< Of all that follows.
    std::condition_variable changed;
    QByteArray waiting;
    quint64 bytesWritten = 0;
    int writeError = 0; ///< The errno of the write that failed.
    bool tooSlow = false; ///< More would have had to wait than may.
    bool ending = false; ///< Nothing more is taken.
};

} // namespace corvane
