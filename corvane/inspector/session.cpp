#include "session.h"

#include "bytesource.h"
#include "decodedmessage.h"
#include "descriptions.h"
#include "mavlinkdecoder.h"
#include "mavlinkmessage.h"
#include "messageinfo.h"
#include "overlayloader.h"
#include "streampump.h"

namespace corvane {

Session::Session(QObject *parent)
    : QObject(parent)
    , reception(std::make_unique<Reception>(format.getInfo(), mavlinkSenderName, true))
{
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

std::unique_ptr<Reception> Session::createReception(MessageNeedManager &needs) const
{
    return std::make_unique<Reception>(format.getInfo(), mavlinkSenderName, true, &needs);
}

std::unique_ptr<StreamDecoder> Session::createDecoder(Reception &receiver,
                                                      const Options &source) const
{
    return std::make_unique<MavlinkDecoder>(format, receiver, source.framing);
}

void Session::start(const Options &newOptions)
{
    options = newOptions;
    if (!options.source)
        return;
    source = createSource(*options.source);
    decoder = createDecoder(*reception, options);
    const bool atOnce = options.report != Options::Report::None || !options.speed;
    if (!atOnce)
        clock.setSpeed(*options.speed);
    pump = std::make_unique<StreamPump>(*source, *decoder, atOnce ? nullptr : &clock);
    connect(pump.get(), &StreamPump::finished, this, &Session::finished);
    connect(pump.get(), &StreamPump::failed, this, [this](const QString &message) {
        reception->addEvent(CorvaneEvent::SourceFailed, message, DecodedMessage::unknownTime);
        Q_EMIT failed(message);
    });
    pump->start();
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
