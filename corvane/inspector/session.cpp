#include "session.h"

#include "bytesource.h"
#include "decodedmessage.h"
#include "descriptions.h"
#include "mavlinkformat.h"
#include "messageinfo.h"
#include "overlayloader.h"
#include "protobufformat.h"
#include "streamdecoder.h"
#include "streampump.h"

#include <algorithm>

namespace corvane {

namespace {

bool isProtobuf(const QString &file)
{
    return file.endsWith(QLatin1String(".proto")) || file.endsWith(QLatin1String(".desc"))
           || file.endsWith(QLatin1String(".pb"));
}

} // namespace

Session::Session(QObject *parent)
    : QObject(parent)
{
    setFormat(std::make_unique<MavlinkFormat>());
}

Session::~Session() = default;

QStringList Session::load(const Options &options)
{
    if (const QString problem = chooseFormat(options); !problem.isEmpty())
        return {problem};
    QStringList errors;
    for (const LoadError &error : format->loadFiles(options.definitions).errors)
        errors.append(error.toString());
    // An overlay speaks of what the definitions describe; without them it would only add errors.
    if (errors.isEmpty())
        for (const QString &file : options.overlays)
            for (const LoadError &error : loadOverlay(file).errors)
                errors.append(error.toString());
    if (errors.isEmpty())
        if (const QString problem = chooseFraming(options); !problem.isEmpty())
            errors.append(problem);
    needAllTypes();
    return errors;
}

void Session::setFormat(std::unique_ptr<StreamFormat> newFormat)
{
    reception.reset();
    format = std::move(newFormat);
    reception = std::make_unique<Reception>(*format);
}

QString Session::chooseFormat(const Options &options)
{
    const auto protobufFiles
        = std::count_if(options.definitions.begin(), options.definitions.end(), isProtobuf);
    if (protobufFiles != 0 && protobufFiles != options.definitions.size())
        return tr("Definitions of different formats cannot be mixed.");
    if (protobufFiles != 0)
        setFormat(std::make_unique<ProtobufFormat>(options.root, options.importFolders));
    else if (!options.root.isEmpty() || !options.importFolders.isEmpty())
        return tr("--root and --import-path go with definitions of Protocol Buffers.");
    return {};
}

QString Session::chooseFraming(const Options &options)
{
    const FormatInfoData &data = *format->getInfo()->getData();
    framing = options.framing.isEmpty() ? data.framing : options.framing;
    if (framing.isEmpty() || data.framings.contains(framing))
        return {};
    return tr("--framing %1 does not go with %2; expected one of: %3.")
        .arg(framing, data.name, data.framings.join(QStringLiteral(", ")));
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
    decoder = format->makeDecoder(*reception, framing);
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
