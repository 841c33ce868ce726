#pragma once

#include "messageexport.h"

#include <QFile>
#include <QObject>
#include <QString>
#include <QTimer>

#include <optional>

class Message;
class MessageSource;

namespace corvane {

/** What an export consists of, and where it goes. */
struct ExportOrder
{
    ExportSelection selection;
    ExportFormat format = ExportFormat::JsonLines;
    ValueNames names = ValueNames::Symbolic;
    QString file; ///< A path; empty for standard output.
};

/** Writes every selected message of a source of messages to a file. */
class ExportWriter : public QObject
{
    Q_OBJECT

public:
    explicit ExportWriter(QObject *parent = nullptr);
    /** Writes what was collected. */
    ~ExportWriter() override;

    /** Creates the file, or empties it; what went wrong, or nothing. */
    QString open(const QString &path);
    /** Begins to write what \a source sends; \a senders must outlive the export. */
    void follow(const MessageSource &source, const SenderTable &senders, const ExportOrder &order);
    /** Ends the writing and closes the file; what went wrong, or nothing. */
    QString finish();

    quint64 getCount() const { return messages ? messages->getCount() : 0; }

Q_SIGNALS:
    /** Emitted once when something could not be written; \a message says what and why. */
    void failed(const QString &message);

private:
    void write(const Message *message);
    void flush();
    void fail();
    QString describeError() const;

    QFile file;
    std::optional<MessageExport> messages;
    QMetaObject::Connection following;
    QTimer flushTimer;
    bool hasFailed = false;
};

} // namespace corvane
