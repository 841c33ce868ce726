#pragma once

#include "corvaneframework_export.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>

namespace corvane {

class ByteSource;
class ReplayClock;
class StreamDecoder;

/**
 * Moves the bytes of a source through a frame reader, in the thread's event loop, without holding
 * that up: after a slice of time it lets other events be handled before it goes on. While there is
 * nothing to do it does nothing.
 *
 * It reads only what it is about to decode, so a source whose frames take long to handle, or wait
 * for their moment, or are paused, is slowed down instead of being buffered.
 *
 * Slots that run within a slice, such as those that follow messages, may pause or stop the pump; to
 * delete it, its source or its frame reader they use deleteLater().
 */
class CORVANEFRAMEWORK_EXPORT StreamPump : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds defaultSlice{10};
    static constexpr qsizetype chunkBytes = 65'536; ///< Read at most at once.

    /**
     * Owns none of the arguments; they live as long as the pump does. \a clock: when recorded
     * frames are due; null for frames that are due when they come.
     */
    StreamPump(ByteSource &source,
               StreamDecoder &decoder,
               ReplayClock *clock = nullptr,
               QObject *parent = nullptr);
    ~StreamPump() override;

    /** Opens the source, from now on finished() or failed() will be emitted unless stop() is. */
    void start();
    /** Closes the source and emits nothing more; what the frame reader still holds is left. */
    void stop();

    /** Stops reading and the clock, and continues where it stopped. */
    void setPaused(bool newPaused);

    bool isPaused() const { return paused; }

    /**
     * Goes on at \a offset of a regular file, also when it has come to its end; the frame reader
     * begins anew there. Returns false and does nothing where that is impossible.
     */
    bool seek(qint64 offset);
    /**
     * Reads on as fast as possible, whether paused or not, until \a goal, which is asked before
     * each step, is true. Takes the place of an earlier goal. The end of the source ends it, too.
     */
    void runUntil(std::function<bool()> newGoal);

    /** Whether a goal of runUntil() is still to be reached. */
    bool hasGoal() const { return goal != nullptr; }

    /** Since start(). */
    quint64 getBytesRead() const { return bytesRead; }

    /** How long to work before other events get their turn; one step may exceed it. */
    void setSlice(std::chrono::milliseconds newSlice) { slice = newSlice; }

Q_SIGNALS:
    /** What runUntil() was called for is true now. */
    void goalReached();
    /** Bytes exactly as they were read, before they are decoded; valid within the signal only. */
    void chunkRead(QByteArrayView bytes);
    /** Emitted once, after the last frame of a source that came to its regular end. */
    void finished();
    /**
     * Emitted once instead of finished(), also after the last frame; \a message is the source's.
     * Also when there is no memory for what comes next.
     */
    void failed(const QString &message);

private:
    enum class State {
        Stopped,
        Reading, ///< The frame reader needs bytes.
        Decoding, ///< The frame reader has bytes.
        Draining ///< As Decoding, and no more bytes will come.
    };

    enum class Outcome {
        Continue,
        Wait ///< For the timer or the source.
    };

    bool isRunning() const { return state != State::Stopped && (!paused || goal); }

    void schedule();
    void applySeek();
    void runSlice();
    Outcome advance();
    Outcome fetch();
    Outcome decode();
    bool waitUntilDue();
    Outcome giveUp();
    void complete();

    ByteSource &source;
    StreamDecoder &decoder;
    ReplayClock *clock; ///< Not owned; may be null.
    QTimer timer; ///< Runs out when the next slice begins.
    QByteArray chunk;
    std::chrono::milliseconds slice = defaultSlice;
    State state = State::Stopped;
    bool paused = false;
    bool insideSlice = false;
    std::optional<qint64> seekOffset; ///< Of a seek() within a slice.
    std::function<bool()> goal; ///< Empty without one.
    quint64 bytesRead = 0;
};

} // namespace corvane
