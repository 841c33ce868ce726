#pragma once

#include "mavlinkdecoder.h"
#include "mavlinkformat.h"
#include "messageneed.h"
#include "options.h"
#include "reception.h"
#include "recorder.h"
#include "replayclock.h"

#include <QObject>

#include <memory>

namespace corvane {

class ByteSource;
class FileIndex;
class Playback;
class Reconnector;
class StreamPump;

/** One source that is watched: its definitions, its bytes, and what was received from it. */
class Session : public QObject
{
    Q_OBJECT

public:
    explicit Session(QObject *parent = nullptr);
    ~Session() override;

    /** Loads definitions and overlays; what went wrong, one line for each error, or nothing. */
    QStringList load(const Options &options);
    /** Opens the source of \a options, if there is one, and begins to read it. */
    void start(const Options &options);
    /** Stops reading; what was received stays. */
    void stop();

    /**
     * Records the bytes of the source to a file from now on, until getRecorder().stop(). Returns
     * what is wrong, or nothing. The event log tells when a recording ends by itself.
     */
    QString startRecording(const QString &path);

    Recorder &getRecorder() { return recorder; }

    Reception &getReception() { return *reception; }

    const Reception &getReception() const { return *reception; }

    /** The controls of a file that is watched in a window; null for other sources. */
    Playback *getPlayback() { return playback.get(); }

    /** The source's name for people; empty without a source. */
    QString getSourceName() const;
    /** Datagrams that the system dropped, where it tells. */
    std::optional<quint64> getDroppedCount() const;

Q_SIGNALS:
    /** The source has come to its end. */
    void finished();
    /** The source could not be opened, or broke; \a message says what, where and what to do. */
    void failed(const QString &message);
    /** start() has made other controls, or none. */
    void playbackChanged();
    /**
     * How it stands with a live source that is watched in a window, in words: it is opened again
     * when it goes away, and so neither finishes nor fails.
     */
    void stateChanged(const QString &text);

private:
    void needAllTypes();
    void close();
    void keepOpen();
    void makePlayback(const Options &options);
    void startIndex(const Options &options);
    void addEvent(CorvaneEvent::Type type, const QString &text);

    MavlinkFormat format;
    std::unique_ptr<Reception> reception;
    MessageNeed need{nullptr};
    ReplayClock clock;
    Recorder recorder;
    std::unique_ptr<ByteSource> source;
    std::unique_ptr<MavlinkDecoder> decoder;
    std::unique_ptr<StreamPump> pump;
    std::unique_ptr<Reconnector> reconnector; ///< Null for a source that is opened once.
    std::unique_ptr<FileIndex> index;
    std::unique_ptr<Playback> playback;
};

} // namespace corvane
