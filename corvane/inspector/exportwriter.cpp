#include "exportwriter.h"

#include "message.h"
#include "messagesource.h"

#include <unistd.h>

#include <utility>

namespace corvane {

namespace {

// Whoever reads the file of a slow source wants to see what came.
constexpr int flushIntervalMs = 250;

} // namespace

ExportWriter::ExportWriter(QObject *parent)
    : QObject(parent)
{
    flushTimer.setInterval(flushIntervalMs);
    connect(&flushTimer, &QTimer::timeout, this, &ExportWriter::flush);
}

ExportWriter::~ExportWriter()
{
    finish();
}

QString ExportWriter::open(const QString &path)
{
    // Lines are collected already, and an error should be told when it happens.
    constexpr auto mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    file.setFileName(path);
    const bool isOpen = path.isEmpty() ? file.open(STDOUT_FILENO, mode) : file.open(mode);
    return isOpen ? QString() : tr("cannot write \"%1\": %2").arg(path, file.errorString());
}

void ExportWriter::follow(const MessageSource &source,
                          const SenderTable &senders,
                          const ExportOrder &order)
{
    messages.emplace(file, order.selection, senders, order.format, order.names);
    following = connect(&source, &MessageSource::newMessage, this, &ExportWriter::write);
    flushTimer.start();
}

QString ExportWriter::finish()
{
    disconnect(following);
    flushTimer.stop();
    const bool isWritten = !messages || messages->flush();
    QString error = isWritten ? QString() : describeError();
    file.close();
    return error;
}

void ExportWriter::write(const Message *message)
{
    if (!messages->write(message))
        fail();
}

void ExportWriter::flush()
{
    if (!messages->flush())
        fail();
}

void ExportWriter::fail()
{
    flushTimer.stop();
    if (!std::exchange(hasFailed, true))
        Q_EMIT failed(describeError());
}

QString ExportWriter::describeError() const
{
    return file.fileName().isEmpty()
               ? tr("cannot write to standard output: %1").arg(messages->getError())
               : tr("cannot write \"%1\": %2").arg(file.fileName(), messages->getError());
}

} // namespace corvane
