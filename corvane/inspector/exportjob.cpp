#include "exportjob.h"

#include "messageinfo.h"
#include "messagestatistics.h"
#include "session.h"
#include "sourcereading.h"

#include <QFileInfo>
#include <QSet>

#include <utility>

namespace corvane {

ExportJob::ExportJob(const Session &session, Options options, ExportOrder order, QObject *parent)
    : QObject(parent)
    , session(session)
    , options(std::move(options))
    , order(std::move(order))
{
    connect(&writer, &ExportWriter::failed, this, &ExportJob::complete);
}

ExportJob::~ExportJob() = default;

void ExportJob::start()
{
    const bool isRegularFile = options.source->kind == SourceAddress::Kind::File
                               && QFileInfo(options.source->text).isFile();
    counting = occurringTypesOnly && isRegularFile && order.format == ExportFormat::Csv;
    beginReading(counting ? QList<const MessageInfo *>() : order.selection.getTypes());
}

QString ExportJob::stop()
{
    isDone = true;
    if (reading)
        reading->stop();
    return fileIsOpen ? writer.finish() : QString();
}

std::optional<double> ExportJob::getFraction() const
{
    return reading && !counting ? reading->getFraction() : std::nullopt;
}

void ExportJob::beginReading(const QList<const MessageInfo *> &types)
{
    // The first of two readings is just telling its end.
    if (reading)
        reading.release()->deleteLater();
    reading = std::make_unique<SourceReading>(session, options, types);
    connect(reading.get(), &SourceReading::opened, this, &ExportJob::handleOpened);
    connect(reading.get(), &SourceReading::finished, this, &ExportJob::handleFinished);
    connect(reading.get(), &SourceReading::failed, this, &ExportJob::complete);
    reading->start();
}

void ExportJob::handleOpened()
{
    // Only now, so that a source that is not there costs nobody the file of an earlier export.
    if (const QString error = openFile(); !error.isEmpty())
        return complete(error);
    if (!counting)
        writer.follow(reading->getReception(), reading->getReception().getSenders(), order);
}

QString ExportJob::openFile()
{
    if (fileIsOpen)
        return {};
    const QString path = QFileInfo(order.file).canonicalFilePath();
    if (!path.isEmpty() && options.source->kind == SourceAddress::Kind::File
        && path == QFileInfo(options.source->text).canonicalFilePath())
        return tr("cannot write \"%1\": it is the source").arg(order.file);
    QString error = writer.open(order.file);
    fileIsOpen = error.isEmpty();
    return error;
}

void ExportJob::handleFinished()
{
    if (!counting)
        return complete({});
    counting = false;
    keepOccurringTypes();
    beginReading(order.selection.getTypes());
}

void ExportJob::keepOccurringTypes()
{
    QSet<const MessageInfo *> occurring;
    for (const MessageStatistics *type :
         reading->getReception().getStatistics()->getAllMessageStatistics())
        occurring.insert(type->getMessageInfo());
    order.selection.types.removeIf(
        [&occurring](const ExportSelection::Type &type) { return !occurring.contains(type.info); });
}

void ExportJob::complete(const QString &message)
{
    if (isDone)
        return;
    const QString writeError = stop();
    const QString error = message.isEmpty() ? writeError : message;
    if (error.isEmpty())
        Q_EMIT finished();
    else
        Q_EMIT failed(error);
}

} // namespace corvane
