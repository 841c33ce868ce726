#include "session.h"

#include "bytesource.h"
#include "descriptions.h"
#include "mavlinkformat.h"
#include "messageinfo.h"
#include "overlayloader.h"
#include "streamdecoder.h"
#include "streampump.h"

#include <QDateTime>

namespace corvane {

Session::Session(QObject *parent)
    : QObject(parent)
    , format(std::make_unique<MavlinkFormat>())
    , reception(std::make_unique<Reception>(*format))
{
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

void Session::start(const Options &options)
{
    if (!options.source)
        return;
    source = createSource(*options.source);
    decoder = format->makeDecoder(*reception, options.framing);
    const bool atOnce = options.report != Options::Report::None || !options.speed;
    if (!atOnce)
        clock.setSpeed(*options.speed);
    pump = std::make_unique<StreamPump>(*source, *decoder, atOnce ? nullptr : &clock);
    connect(source.get(), &ByteSource::opened, this, [this] {
        addSourceEvent(CorvaneEvent::SourceOpened, tr("Opened: %1").arg(source->getName()));
    });
    connect(pump.get(), &StreamPump::finished, this, [this] {
        addSourceEvent(CorvaneEvent::SourceClosed, tr("At its end: %1").arg(source->getName()));
        Q_EMIT finished();
    });
    connect(pump.get(), &StreamPump::failed, this, [this](const QString &message) {
        addSourceEvent(CorvaneEvent::SourceFailed, message);
        Q_EMIT failed(message);
    });
    pump->start();
}

void Session::addSourceEvent(CorvaneEvent::Type type, const QString &text)
{
    reception->flushEvents();
    reception->addEvent(type, text, QDateTime::currentMSecsSinceEpoch() * 1000);
}

void Session::stop()
{
    if (pump)
        pump->stop();
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
