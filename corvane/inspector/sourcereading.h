#pragma once

#include "messageneed.h"
#include "messageneedmanager.h"
#include "reception.h"

#include <QList>
#include <QObject>

#include <memory>
#include <optional>

class MessageInfo;

namespace corvane {

class ByteSource;
class Session;
class StreamDecoder;
class StreamPump;
struct Options;

/**
 * Another reading of a source, from its start and as fast as it goes, with the descriptions of a
 * session but apart from what that receives.
 */
class SourceReading : public QObject
{
    Q_OBJECT

public:
    /**
     * \a options name the source. Only messages of \a types are decoded; all are counted. \a
     * session must outlive the reading.
     */
    SourceReading(const Session &session,
                  const Options &options,
                  const QList<const MessageInfo *> &types,
                  QObject *parent = nullptr);
    ~SourceReading() override;

    void start();
    void stop();

    Reception &getReception() { return *reception; }

    /** How much of a regular file has been read, 0 to 1; nothing for other sources. */
    std::optional<double> getFraction() const;

Q_SIGNALS:
    void opened();
    /** The source has come to its end. */
    void finished();
    /** The source could not be opened, or broke. */
    void failed(const QString &message);

private:
    MessageNeedManager needs;
    MessageNeed need{&needs};
    std::unique_ptr<Reception> reception;
    std::unique_ptr<ByteSource> source;
    std::unique_ptr<StreamDecoder> decoder;
    std::unique_ptr<StreamPump> pump;
};

} // namespace corvane
