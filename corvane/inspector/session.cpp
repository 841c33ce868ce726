#include "session.h"

#include "bytesource.h"
#include "decodedmessage.h"
#include "descriptions.h"
#include "fileindex.h"
#include "mavlinkformat.h"
#include "mcapformat.h"
#include "messageinfo.h"
#include "overlayloader.h"
#include "playback.h"
#include "protobufformat.h"
#include "reconnector.h"
#include "streamdecoder.h"
#include "streampump.h"
#include "streamscanner.h"

#include <QDateTime>
#include <QFile>

#include <sys/stat.h>

#include <algorithm>
#include <new>

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

bool isProtobuf(const QString &file)
{
    return file.endsWith(QLatin1String(".proto")) || file.endsWith(QLatin1String(".desc"))
           || file.endsWith(QLatin1String(".pb"));
}

/** As much of a file as tells its framing. */
QByteArray headOf(const QString &path)
{
    constexpr qint64 enoughBytes = 64LL * 1024;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(enoughBytes) : QByteArray();
}

/** Whether both names lead to the same file, be it by a link. */
bool isSameFile(const QString &one, const QString &other)
{
    struct stat first = {};
    struct stat second = {};
    return ::stat(QFile::encodeName(one).constData(), &first) == 0
           && ::stat(QFile::encodeName(other).constData(), &second) == 0
           && first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

} // namespace

Session::Session(QObject *parent)
    : QObject(parent)
{
    connect(&recorder, &Recorder::failed, this,
            [this](const QString &message) { addEvent(CorvaneEvent::Other, message); });
    setFormat(std::make_unique<MavlinkFormat>());
}

Session::~Session() = default;

QStringList Session::load(const Options &options)
{
    try {
        return loadAll(options);
    } catch (const std::bad_alloc &) {
        return {tr("There is not enough memory to read the definitions.")};
    }
}

QStringList Session::loadAll(const Options &options)
{
    if (const QString problem = chooseFormat(options); !problem.isEmpty())
        return {problem};
    const bool bringsThem = options.source && bringsDefinitions(*options.source);
    const QStringList definitions
        = bringsThem ? QStringList{options.source->text} : options.definitions;
    QStringList errors;
    for (const LoadError &error : format->loadFiles(definitions).errors)
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
    if (options.source && bringsDefinitions(*options.source)) {
        if (!options.definitions.isEmpty() || !options.root.isEmpty())
            return tr("An MCAP file brings its own definitions. Leave out --definitions and "
                      "--root.");
        setFormat(std::make_unique<McapFormat>());
        return {};
    }
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

std::unique_ptr<Reception> Session::createReception(MessageNeedManager &needs) const
{
    return std::make_unique<Reception>(*format, &needs);
}

std::unique_ptr<StreamDecoder> Session::createDecoder(Reception &receiver) const
{
    return format->makeDecoder(receiver, framing);
}

void Session::start(const Options &newOptions)
{
    options = newOptions;
    if (!options.source)
        return;
    close();
    source = createSource(*options.source);
    decoder = createDecoder(*reception);
    if (options.speed)
        clock.setSpeed(*options.speed);
    else
        clock.setAsFastAsPossible();
    pump
        = std::make_unique<StreamPump>(*source, *decoder, options.opensWindow() ? &clock : nullptr);
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
    makePlayback();
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

std::unique_ptr<StreamScanner> Session::makeScanner() const
{
    return format->makeScanner(headOf(options.source->text), framing);
}

void Session::makePlayback()
{
    // What is no regular file has no size, and no places to go to.
    const bool isFile = options.source->kind == SourceAddress::Kind::File && source->getSize();
    if (options.opensWindow() && isFile && makeScanner() != nullptr) {
        index = std::make_unique<FileIndex>();
        connect(index.get(), &FileIndex::failed, this,
                [this](const QString &message) { addEvent(CorvaneEvent::Other, message); });
        playback = std::make_unique<Playback>(
            Playback::Parts{*pump, *source, *decoder, *reception, clock, *index});
        const auto startIndex = [this] { index->start(options.source->text, makeScanner()); };
        // An empty file that is followed does not show its framing yet.
        if (*source->getSize() > 0)
            startIndex();
        else
            connect(pump.get(), &StreamPump::chunkRead, index.get(), startIndex,
                    Qt::SingleShotConnection);
    }
    Q_EMIT playbackChanged();
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
    if (index)
        index->cancel();
    if (pump)
        pump->stop();
}

QString Session::startRecording(const QString &path)
{
    if (source && source->getSize() && isSameFile(path, source->getName()))
        return tr("Cannot record to \"%1\": it is the file that is being read. Choose another "
                  "name.")
            .arg(path);
    return recorder.start(path) ? QString() : recorder.getErrorMessage();
}

QString Session::getSourceName() const
{
    return source ? source->getName() : QString();
}

std::optional<qint64> Session::getBacklogBytes() const
{
    return source ? source->getWaitingBytes() : std::nullopt;
}

std::optional<quint64> Session::getDroppedCount() const
{
    return source ? source->getDroppedCount() : std::nullopt;
}

} // namespace corvane
