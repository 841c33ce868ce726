#include "session.h"

#include "bytesource.h"
#include "decodedmessage.h"
#include "descriptions.h"
#include "mavlinkformat.h"
#include "messageinfo.h"
#include "overlayloader.h"
#include "reconnector.h"
#include "streamdecoder.h"
#include "streampump.h"

#include <QDateTime>
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

} // namespace

Session::Session(QObject *parent)
    : QObject(parent)
    , format(std::make_unique<MavlinkFormat>())
    , reception(std::make_unique<Reception>(*format))
{
    connect(&recorder, &Recorder::failed, this,
            [this](const QString &message) { addEvent(CorvaneEvent::Other, message); });
}

Session::~Session() = default;

QStringList Session::load(const Options &options)
{
    QStringList errors;
    for (const LoadError &error : format->loadFiles(options.definitions).errors)
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
    for (const auto &message : format->getInfo()->getData()->messages)
        types.append(message.get());
    need.setMessagesNeeded(types);
}

std::unique_ptr<Reception> Session::createReception(MessageNeedManager &needs) const
{
    return std::make_unique<Reception>(*format, &needs);
}

std::unique_ptr<StreamDecoder> Session::createDecoder(Reception &receiver,
                                                      const Options &source) const
{
    return format->makeDecoder(receiver, source.framing);
}

void Session::start(const Options &newOptions)
{
    options = newOptions;
    if (!options.source)
        return;
    source = createSource(*options.source);
    decoder = createDecoder(*reception, options);
    const bool atOnce = !options.opensWindow() || !options.speed;
    if (!atOnce)
        clock.setSpeed(*options.speed);
    pump = std::make_unique<StreamPump>(*source, *decoder, atOnce ? nullptr : &clock);
    if (isOpenedAgain(options)) {
        keepOpen();
    } else {
        connect(source.get(), &ByteSource::opened, this, [this] {
            addEvent(CorvaneEvent::SourceOpened, tr("Opened %1.").arg(source->getName()));
        });
        connect(pump.get(), &StreamPump::finished, this, [this] {
            addEvent(CorvaneEvent::SourceClosed, tr("%1 has ended.").arg(source->getName()));
            Q_EMIT finished();
        });
        connect(pump.get(), &StreamPump::failed, this, [this](const QString &message) {
            addEvent(CorvaneEvent::SourceFailed, message);
            Q_EMIT failed(message);
        });
    }
    connect(pump.get(), &StreamPump::chunkRead, &recorder, &Recorder::write);
    pump->start();
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
    reception->flushEvents();
    const bool isLive = source && source->isLive();
    reception->addEvent(type, text,
                        isLive ? QDateTime::currentMSecsSinceEpoch() * 1000
                               : DecodedMessage::unknownTime);
}

void Session::stop()
{
    if (reconnector)
        reconnector->stop();
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
