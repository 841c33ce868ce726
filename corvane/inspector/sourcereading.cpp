#include "sourcereading.h"

#include "bytesource.h"
#include "session.h"
#include "streamdecoder.h"
#include "streampump.h"

#include <algorithm>

namespace corvane {

SourceReading::SourceReading(const Session &session,
                             const Options &options,
                             const QList<const MessageInfo *> &types,
                             QObject *parent)
    : QObject(parent)
    , reception(session.createReception(needs))
    , source(createSource(*options.source))
    , decoder(session.createDecoder(*reception))
    , pump(std::make_unique<StreamPump>(*source, *decoder))
{
    need.setMessagesNeeded(types);
    connect(source.get(), &ByteSource::opened, this, &SourceReading::opened);
    connect(pump.get(), &StreamPump::finished, this, &SourceReading::finished);
    connect(pump.get(), &StreamPump::failed, this, &SourceReading::failed);
}

SourceReading::~SourceReading() = default;

void SourceReading::start()
{
    pump->start();
}

void SourceReading::stop()
{
    pump->stop();
}

std::optional<double> SourceReading::getFraction() const
{
    const auto size = source->getSize();
    const auto position = source->getPosition();
    if (!size || !position || *size == 0)
        return std::nullopt;
    return std::clamp(static_cast<double>(*position) / static_cast<double>(*size), 0.0, 1.0);
}

} // namespace corvane
