#pragma once

#include "exportwriter.h"
#include "options.h"

#include <QObject>

#include <memory>
#include <optional>

namespace corvane {

class Session;
class SourceReading;

/** Reads a source from its start and exports its messages, every selected one. */
class ExportJob : public QObject
{
    Q_OBJECT

public:
    /** \a options name the source. \a session must outlive the job. */
    ExportJob(const Session &session,
              Options options,
              ExportOrder order,
              QObject *parent = nullptr);
    ~ExportJob() override;

    /**
     * Whether a CSV file shall have columns only for types that occur; initially not. A regular
     * file is then read twice, to find them out first; other sources cannot be. To be called before
     * start().
     */
    void setOccurringTypesOnly(bool only) { occurringTypesOnly = only; }

    /** From now on finished() or failed() will be emitted, unless stop() is called. */
    void start();
    /** Ends early; what was exported until then stays. What went wrong, or nothing. */
    QString stop();

    quint64 getCount() const { return writer.getCount(); }

    /** How much of the file that is read is done, 0 to 1; nothing for other sources. */
    std::optional<double> getFraction() const;

    /** The reading that is exported; null before start(). */
    SourceReading *getReading() const { return reading.get(); }

Q_SIGNALS:
    void finished();
    /** Emitted instead of finished(); what was exported until then stays. */
    void failed(const QString &message);

private:
    void beginReading(const QList<const MessageInfo *> &types);
    void handleOpened();
    void handleFinished();
    void keepOccurringTypes();
    QString openFile();
    /** \a message: what went wrong, or nothing. */
    void complete(const QString &message);

    const Session &session;
    Options options;
    ExportOrder order;
    ExportWriter writer;
    std::unique_ptr<SourceReading> reading;
    bool occurringTypesOnly = false;
    bool counting = false; ///< This is the first of two readings.
    bool fileIsOpen = false;
    bool isDone = false;
};

} // namespace corvane
