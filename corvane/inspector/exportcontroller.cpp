#include "exportcontroller.h"

#include "exportbar.h"
#include "exportdialog.h"
#include "exportjob.h"
#include "icons.h"
#include "receptioncsv.h"
#include "session.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QWidget>

#include <utility>

namespace corvane {

namespace {

constexpr int progressIntervalMs = 200;

QString askForFile(QWidget *parent, const QString &title, const QString &name)
{
    return QFileDialog::getSaveFileName(parent, title, QDir::home().filePath(name),
                                        ExportController::tr("CSV (*.csv);;All files (*)"));
}

} // namespace

ExportController::ExportController(Session &session, QWidget *window)
    : QObject(window)
    , session(session)
    , window(window)
    , bar(new ExportBar(window))
{
    QAction *messages = addAction(tr("&Export Messages..."),
                                  tr("Write messages or some of their fields as CSV or JSON lines"),
                                  &ExportController::askForMessages);
    messages->setShortcut(tr("Ctrl+E"));
    messages->setIcon(makeIcon(QStringLiteral("document-export")));
    addAction(tr("Export &Statistics..."), tr("Write the counts of all message types as CSV"),
              &ExportController::askForStatistics);
    addAction(tr("Export Event &Log..."), tr("Write the event log as CSV"),
              &ExportController::askForEventLog);
    connect(bar, &ExportBar::stopRequested, this, &ExportController::stop);
    connect(&progressTimer, &QTimer::timeout, this, &ExportController::showProgress);
}

ExportController::~ExportController() = default;

QAction *ExportController::addAction(const QString &text,
                                     const QString &toolTip,
                                     void (ExportController::*slot)())
{
    auto *action = new QAction(text, this);
    action->setToolTip(toolTip);
    connect(action, &QAction::triggered, this, slot);
    actions.append(action);
    return action;
}

bool ExportController::readsAgain() const
{
    const auto &source = session.getOptions().source;
    return source && source->kind == SourceAddress::Kind::File && QFileInfo(source->text).isFile();
}

QString ExportController::getHint() const
{
    return readsAgain()
               ? tr("All of \"%1\" will be exported, from its start.").arg(session.getSourceName())
               : tr("What %1 sends will be exported from now on, until you stop it.")
                     .arg(session.getSourceName());
}

void ExportController::askForMessages()
{
    if (isRunning())
        return;
    if (!session.getOptions().source)
        return bar->showResult(tr("There is nothing to export: no source is open."));
    auto *dialog = new ExportDialog(*session.getReception().getFormat(),
                                    *session.getReception().getStatistics(), getHint(), window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { exportMessages(dialog->getOrder()); });
    dialog->open();
}

void ExportController::askForStatistics()
{
    const QString file
        = askForFile(window, tr("Export Statistics"), QStringLiteral("statistics.csv"));
    if (!file.isEmpty())
        exportStatistics(file);
}

void ExportController::askForEventLog()
{
    const QString file = askForFile(window, tr("Export Event Log"), QStringLiteral("events.csv"));
    if (!file.isEmpty())
        exportEventLog(file);
}

void ExportController::exportMessages(const ExportOrder &order)
{
    path = order.file;
    actions.constFirst()->setEnabled(false);
    progressTimer.start(progressIntervalMs);
    if (readsAgain())
        readAgain(order);
    else
        followSession(order);
    if (isRunning())
        showProgress();
}

void ExportController::readAgain(const ExportOrder &order)
{
    job = new ExportJob(session, session.getOptions(), order, this);
    connect(job, &ExportJob::finished, this, [this] { finish({}); });
    connect(job, &ExportJob::failed, this, &ExportController::finish);
    job->start();
}

void ExportController::followSession(const ExportOrder &order)
{
    writer = new ExportWriter(this);
    if (const QString error = writer->open(order.file); !error.isEmpty())
        return finish(error);
    writer->follow(session.getReception(), session.getReception().getSenders(), order);
    connect(writer, &ExportWriter::failed, this, &ExportController::finish);
    connect(&session, &Session::finished, writer, [this] { stop(); });
    connect(&session, &Session::failed, writer, [this] { stop(); });
}

void ExportController::stop()
{
    if (job != nullptr)
        finish(job->stop());
    else if (writer != nullptr)
        finish(writer->finish());
}

quint64 ExportController::getCount() const
{
    return job != nullptr ? job->getCount() : writer != nullptr ? writer->getCount() : 0;
}

void ExportController::showProgress()
{
    const QString text
        = tr("Exporting to \"%1\": %2 messages").arg(path, QLocale().toString(getCount()));
    if (job != nullptr)
        bar->showProgress(text, job->getFraction(), tr("Cancel"));
    else
        bar->showProgress(text, std::nullopt, tr("Stop"));
}

void ExportController::finish(const QString &error)
{
    progressTimer.stop();
    const QString count = QLocale().toString(getCount());
    // They may be the senders of what called this.
    if (job != nullptr)
        std::exchange(job, nullptr)->deleteLater();
    if (writer != nullptr)
        std::exchange(writer, nullptr)->deleteLater();
    actions.constFirst()->setEnabled(true);
    bar->showResult(error.isEmpty()
                        ? tr("%1 messages exported to \"%2\".").arg(count, path)
                        : tr("The export ended after %1 messages: %2.").arg(count, error));
}

void ExportController::exportStatistics(const QString &file)
{
    exportTable(file, [this](QIODevice &device) {
        return writeStatisticsCsv(*session.getReception().getStatistics(), device);
    });
}

void ExportController::exportEventLog(const QString &file)
{
    exportTable(file, [this](QIODevice &device) {
        session.getReception().flushEvents();
        return writeEventLogCsv(*session.getReception().getEventLog(), device);
    });
}

void ExportController::exportTable(const QString &file,
                                   const std::function<bool(QIODevice &)> &write)
{
    QFile out(file);
    const bool isWritten = out.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && write(out);
    // A running export says more important things.
    if (isWritten && isRunning())
        return;
    bar->showResult(isWritten ? tr("Exported to \"%1\".").arg(file)
                              : tr("Cannot write \"%1\": %2.").arg(file, out.errorString()));
}

} // namespace corvane
