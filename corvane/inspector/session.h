#pragma once

#include "messageneed.h"
#include "options.h"
#include "reception.h"
#include "recorder.h"
#include "replayclock.h"

#include <QObject>

#include <memory>

class MessageNeedManager;

namespace corvane {

class ByteSource;
class FileIndex;
class Playback;
class Reconnector;
class StreamDecoder;
class StreamFormat;
class StreamPump;
class StreamScanner;

/** One source that is watched: its definitions, its bytes, and what was received from it. */
class Session : public QObject
{
    Q_OBJECT

public:
    explicit Session(QObject *parent = nullptr);
    ~Session() override;

    /** Loads definitions and overlays; what went wrong, one line for each error, or nothing. */
    QStringList load(const Options &options);
    /** Opens the source of \a newOptions, if there is one, and begins to read it. */
    void start(const Options &newOptions);
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

    /** What start() was called with. */
    const Options &getOptions() const { return options; }

    /** A reception for another reading of a source; \a needs says what is decoded in it. */
    std::unique_ptr<Reception> createReception(MessageNeedManager &needs) const;
    /** A frame reader that reports to \a receiver. */
    std::unique_ptr<StreamDecoder> createDecoder(Reception &receiver) const;

    /** The controls of a file that is watched in a window; null for other sources. */
    Playback *getPlayback() { return playback.get(); }

    /** The source's name for people; empty without a source. */
    QString getSourceName() const;
    /** Bytes that have come and are not read yet, where the source tells. */
    std::optional<qint64> getBacklogBytes() const;
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
    void setFormat(std::unique_ptr<StreamFormat> newFormat);
    QStringList loadAll(const Options &options);
    QString chooseFormat(const Options &options);
    QString chooseFraming(const Options &options);
    void needAllTypes();
    void close();
    void keepOpen();
    std::unique_ptr<StreamScanner> makeScanner() const;
    void makePlayback();
    void addEvent(CorvaneEvent::Type type, const QString &text);

    std::unique_ptr<StreamFormat> format;
    Options options;
    QString framing;
    std::unique_ptr<Reception> reception;
    MessageNeed need{nullptr};
    ReplayClock clock;
    Recorder recorder;
    std::unique_ptr<ByteSource> source;
    std::unique_ptr<StreamDecoder> decoder;
    std::unique_ptr<StreamPump> pump;
    std::unique_ptr<Reconnector> reconnector; ///< Null for a source that is opened once.
    std::unique_ptr<FileIndex> index;
    std::unique_ptr<Playback> playback;
};

} // namespace corvane
