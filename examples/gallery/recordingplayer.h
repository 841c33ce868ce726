#pragma once

#include <QObject>

#include <mavlinkformat.h>
#include <reception.h>
#include <replayclock.h>

#include <memory>

namespace corvane {
class ByteSource;
class StreamDecoder;
class StreamPump;
} // namespace corvane

/** Plays a MAVLink recording over and over, at its own pace. */
class RecordingPlayer : public QObject
{
public:
    RecordingPlayer();
    ~RecordingPlayer() override;

    /** Loads definitions and overlay; what is wrong with them, or nothing. */
    QString load(const QString &definitions, const QString &overlay);
    void play(const QString &recording);

    void setAsFastAsPossible() { clock.setAsFastAsPossible(); }

    corvane::Reception *getReception() { return reception.get(); }

private:
    corvane::MavlinkFormat format;
    std::unique_ptr<corvane::Reception> reception;
    corvane::ReplayClock clock;
    std::unique_ptr<corvane::ByteSource> source;
    std::unique_ptr<corvane::StreamDecoder> decoder;
    std::unique_ptr<corvane::StreamPump> pump;
};
