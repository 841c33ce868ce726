#pragma once

#include "corvaneframework_export.h"

#include <QObject>

#include <optional>

namespace corvane {

class ByteSource;
class FileIndex;
class Reception;
class ReplayClock;
class StreamDecoder;
class StreamPump;

/**
 * Plays a recording as a person wants to see it: play, pause, one message at a time, slower or
 * faster, from any place.
 *
 * To go to a place it begins some way before it, at the last place that the index knows before
 * runUpBytes, and reads up to it as fast as possible, so that the views have the newest message of
 * the types that come often. What is read twice is counted and delivered twice. The step to another
 * place is neither a loss nor an interval. Until the index has been there, a place is out of reach
 * and the last one that it knows takes its part.
 */
class CORVANEFRAMEWORK_EXPORT Playback : public QObject
{
    Q_OBJECT

public:
    /** What it controls. All of it must outlive the playback. */
    struct Parts
    {
        StreamPump &pump; ///< Of the others, started.
        ByteSource &source; ///< A regular file.
        StreamDecoder &decoder;
        Reception &reception; ///< What the decoder reports to.
        ReplayClock &clock;
        FileIndex &index; ///< Of the same file.
    };

    static constexpr qint64 runUpBytes = 256LL * 1024;
    static constexpr double slowest = 0.1;
    static constexpr double fastest = 100.0;

    explicit Playback(const Parts &parts, QObject *parent = nullptr);
    ~Playback() override;

    /** Goes on; at the end, from the beginning. */
    void play();
    void pause();
    /** Reads on to the next good frame, which is one message, and pauses. */
    void step();
    /** Recorded seconds per second, limited to slowest and fastest; nothing: without waiting. */
    void setSpeed(std::optional<double> speed);
    /** To the first frame at or behind that offset in bytes. Keeps playing, or pausing. */
    void seek(qint64 offset);
    /** To the first frame that is not earlier; to the beginning in a recording without times. */
    void seekToTime(qint64 timeUs);

    bool isPlaying() const;

    /** Whether everything has been read. */
    bool isAtEnd() const { return atEnd; }

    std::optional<double> getSpeed() const;

    const FileIndex &getIndex() const { return parts.index; }

    /** What is already found stays. */
    void cancelIndexing();

    /** The offset of what is read next, and the size of the file, in bytes. */
    qint64 getPosition() const;
    qint64 getSize() const;
    /** The recorded time of the place; nothing in a recording without times. */
    std::optional<qint64> getTimeUs() const;

Q_SIGNALS:
    /** It plays, or does not play any more, or has another speed. */
    void stateChanged();
    /** A seek or a step has come to its place. */
    void arrived();

private:
    void jump(qint64 offset);
    void runStep();
    void handleGoal();
    void handleEnd();

    Parts parts;
    int waitingSteps = 0; ///< To be made when the present goal is reached.
    bool atEnd = false;
};

} // namespace corvane
