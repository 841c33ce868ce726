#include "recordingplayer.h"

#include <bytesource.h>
#include <overlayloader.h>
#include <sourceaddress.h>
#include <streamdecoder.h>
#include <streampump.h>

RecordingPlayer::RecordingPlayer()
    : reception(std::make_unique<corvane::Reception>(format))
{
}

RecordingPlayer::~RecordingPlayer() = default;

QString RecordingPlayer::load(const QString &definitions, const QString &overlay)
{
    const corvane::StreamFormat::LoadResult loaded = format.load(definitions);
    if (!loaded.isOk())
        return loaded.errors.first().toString();
    return corvane::loadOverlay(overlay, {format.getInfo()}).toString();
}

void RecordingPlayer::play(const QString &recording)
{
    // [decode a file]
    source = corvane::createSource(*corvane::SourceAddress::parse(recording).address);
    decoder = format.makeDecoder(*reception, QStringLiteral("tlog"));
    pump = std::make_unique<corvane::StreamPump>(*source, *decoder, &clock);
    pump->start(); // messages come as reception->newMessage(), from the event loop
    // [decode a file]

    const auto playAgain = [this, recording] {
        reception->noteDiscontinuity(); // what was sent meanwhile is no loss
        clock.reset();
        play(recording);
    };
    connect(pump.get(), &corvane::StreamPump::finished, this, playAgain, Qt::QueuedConnection);
}
