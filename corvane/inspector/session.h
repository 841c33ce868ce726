#pragma once

#include "messageneed.h"
#include "options.h"
#include "reception.h"
#include "replayclock.h"

#include <QObject>

#include <memory>

namespace corvane {

class ByteSource;
class StreamDecoder;
class StreamFormat;
class StreamPump;

/** One source that is watched: its definitions, its bytes, and what was received from it. */
class Session : public QObject
{
    Q_OBJECT

public:
    explicit Session(QObject *parent = nullptr);
    ~Session() override;

    /** Loads definitions and overlays; what went wrong, one line for each error, or nothing. */
    QStringList load(const Options &options);
    /** Opens the source of \a options, if there is one, and begins to read it. */
    void start(const Options &options);
    /** Stops reading; what was received stays. */
    void stop();

    Reception &getReception() { return *reception; }

    const Reception &getReception() const { return *reception; }

    /** The source's name for people; empty without a source. */
    QString getSourceName() const;
    /** Datagrams that the system dropped, where it tells. */
    std::optional<quint64> getDroppedCount() const;

Q_SIGNALS:
    /** The source has come to its end. */
    void finished();
    /** The source could not be opened, or broke; \a message says what, where and what to do. */
    void failed(const QString &message);

private:
    void setFormat(std::unique_ptr<StreamFormat> newFormat);
    QString chooseFormat(const Options &options);
    QString chooseFraming(const Options &options);
    void needAllTypes();

    std::unique_ptr<StreamFormat> format;
    QString framing;
    std::unique_ptr<Reception> reception;
    MessageNeed need{nullptr};
    ReplayClock clock;
    std::unique_ptr<ByteSource> source;
    std::unique_ptr<StreamDecoder> decoder;
    std::unique_ptr<StreamPump> pump;
};

} // namespace corvane
