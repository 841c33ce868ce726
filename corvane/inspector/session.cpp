#include "session.h"

#include "bytesource.h"
#include "decodedmessage.h"
#include "descriptions.h"
#include "fileindex.h"
#include "mavlinkmessage.h"
#include "mavlinkscanner.h"
#include "messageinfo.h"
#include "overlayloader.h"
#include "playback.h"
#include "reconnector.h"
#include "streampump.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace corvane {

namespace {

bool isOpenedAgain(const Options &options)
{
    switch (options.source->kind) {
    case SourceAddress::Kind::File:
    case SourceAddress::Kind::StandardInput:
        return false;
    case SourceAddress::Kind::Program:
        return options.opensWindow() && options.restartsProgram;
    default:
        return options.opensWindow();
    }
}

MavlinkFraming findFraming(const MavlinkFormat &format, const QString &path)
{
    constexpr qint64 enoughBytes = 64 * 1024;
    QFile file(path);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    return MavlinkDecoder::findFraming(format, isOpen ? file.read(enoughBytes) : QByteArray());
}

} // namespace

Session::Session(QObject *parent)
    : QObject(parent)
    , reception(std::make_unique<Reception>(format.getInfo(), mavlinkSenderName, true))
{
    connect(&recorder, &Recorder::failed, this,
            [this](const QString &message) { addEvent(CorvaneEvent::Other, message); });
}

Session::~Session() = default;

QStringList Session::load(const Options &options)
{
    QStringList errors;
    for (const QString &file : options.definitions)
        for (const LoadError &error : format.load(file).errors)
            errors.append(error.toString());
    // An overlay speaks of what the definitions describe; without them it would only add errors.
    if (errors.isEmpty())
        for (const QString &file : options.overlays)
            for (const LoadError &error : loadOverlay(file).errors)
                errors.append(error.toString());
    needAllTypes();
    return errors;
}

void Session::needAllTypes()
{
    // Every type is decoded from the start, so that the only message of a type that is sent once
    // is there when somebody chooses it later.
    QList<const MessageInfo *> types;
    for (const auto &message : format.getInfo()->getData()->messages)
        types.append(message.get());
    need.setMessagesNeeded(types);
}

void Session::start(const Options &options)
{
    if (!options.source)
        return;
    close();
    source = createSource(*options.source);
    decoder = std::make_unique<MavlinkDecoder>(format, *reception, options.framing);
    if (options.speed)
        clock.setSpeed(*options.speed);
    else
        clock.setAsFastAsPossible();
    pump
        = std::make_unique<StreamPump>(*source, *decoder, options.opensWindow() ? &clock : nullptr);
    if (isOpenedAgain(options)) {
        keepOpen();
    } else {
        connect(pump.get(), &StreamPump::finished, this, &Session::finished);
        connect(pump.get(), &StreamPump::failed, this, [this](const QString &message) {
            addEvent(CorvaneEvent::SourceFailed, message);
            Q_EMIT failed(message);
        });
    }
    connect(pump.get(), &StreamPump::chunkRead, &recorder, &Recorder::write);
    pump->start();
    makePlayback(options);
}

/** Each part before those that it uses. */
void Session::close()
{
    playback.reset();
    index.reset();
    reconnector.reset();
    pump.reset();
    decoder.reset();
    source.reset();
    clock = ReplayClock();
    reception->noteDiscontinuity();
}

void Session::makePlayback(const Options &options)
{
    // What is no regular file has no size, and no places to go to.
    const bool isFile = options.source->kind == SourceAddress::Kind::File && source->getSize();
    if (options.opensWindow() && isFile) {
        index = std::make_unique<FileIndex>();
        connect(index.get(), &FileIndex::failed, this,
                [this](const QString &message) { addEvent(CorvaneEvent::Other, message); });
        playback = std::make_unique<Playback>(
            Playback::Parts{*pump, *source, *decoder, *reception, clock, *index});
        // An empty file that is followed does not show its framing yet.
        if (*source->getSize() > 0)
            startIndex(options);
        else
            connect(
                pump.get(), &StreamPump::chunkRead, index.get(),
                [this, options] { startIndex(options); }, Qt::SingleShotConnection);
    }
    Q_EMIT playbackChanged();
}

void Session::startIndex(const Options &options)
{
    const QString &path = options.source->text;
    const MavlinkFraming framing = options.framing == MavlinkFraming::Automatic
                                       ? findFraming(format, path)
                                       : options.framing;
    index->start(path, std::make_unique<MavlinkScanner>(format, framing));
}

void Session::keepOpen()
{
    reconnector = std::make_unique<Reconnector>(*pump, *source);
    connect(reconnector.get(), &Reconnector::opened, this, [this] {
        addEvent(CorvaneEvent::SourceOpened, tr("Opened %1.").arg(source->getName()));
    });
    connect(reconnector.get(), &Reconnector::lost, this, [this](const QString &reason) {
        if (reason.isEmpty())
            addEvent(CorvaneEvent::SourceClosed, tr("%1 has ended.").arg(source->getName()));
        else
            addEvent(CorvaneEvent::SourceFailed, reason);
    });
    connect(reconnector.get(), &Reconnector::aboutToReopen, this, [this] {
        // What was sent meanwhile is told of by the two events, not as a number of losses.
        decoder->reset(reception->getTotals().bytes);
        reception->noteDiscontinuity();
    });
    connect(reconnector.get(), &Reconnector::stateChanged, this, &Session::stateChanged);
}

void Session::addEvent(CorvaneEvent::Type type, const QString &text)
{
    const bool isLive = source && source->isLive();
    reception->addEvent(type, text,
                        isLive ? QDateTime::currentMSecsSinceEpoch() * 1000
                               : DecodedMessage::unknownTime);
}

void Session::stop()
{
    if (reconnector)
        reconnector->stop();
    if (index)
        index->cancel();
    if (pump)
        pump->stop();
}

QString Session::startRecording(const QString &path)
{
    const QFileInfo file(path);
    if (source && source->getSize() && file == QFileInfo(source->getName()))
        return tr("Cannot record to \"%1\": it is the file that is being read. Choose another "
                  "name.")
            .arg(path);
    return recorder.start(path) ? QString() : recorder.getErrorMessage();
}

QString Session::getSourceName() const
{
    return source ? source->getName() : QString();
}

std::optional<quint64> Session::getDroppedCount() const
{
    return source ? source->getDroppedCount() : std::nullopt;
}

} // namespace corvane
