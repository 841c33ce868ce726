#include "exportcommand.h"

#include "exportjob.h"
#include "exportselection.h"
#include "session.h"
#include "sourcereading.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSocketNotifier>
#include <QTimer>

#include <unistd.h>

#include <csignal>
#include <cstdio>

namespace corvane {

namespace {

constexpr int progressIntervalMs = 200;

QString tr(const char *text)
{
    return QCoreApplication::translate("corvane::ExportCommand", text);
}

void tell(const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stderr);
}

int interruptPipe[2] = {-1, -1};

void writeInterrupt(int)
{
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(interruptPipe[1], &byte, 1);
}

/** Lets the first SIGINT or SIGTERM end the event loop; a second one ends the program. */
void quitWhenInterrupted()
{
    if (::pipe(interruptPipe) != 0)
        return;
    auto *notifier = new QSocketNotifier(interruptPipe[0], QSocketNotifier::Read,
                                         QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, QCoreApplication::instance(),
                     &QCoreApplication::quit);
    struct sigaction action = {};
    action.sa_handler = writeInterrupt;
    action.sa_flags = SA_RESETHAND | SA_RESTART;
    ::sigaction(SIGINT, &action, nullptr);
    ::sigaction(SIGTERM, &action, nullptr);
}

QString describeProgress(const ExportJob &job)
{
    const QString count = tr("%1 messages exported").arg(QLocale().toString(job.getCount()));
    const auto fraction = job.getFraction();
    return fraction ? QStringLiteral("%1, %2 %").arg(count).arg(qRound(*fraction * 100)) : count;
}

/** What a person should know about an export in which nothing went wrong. */
void tellResult(const ExportJob &job, bool isTerminal)
{
    // The line of the progress is written over.
    if (isTerminal)
        tell(QStringLiteral("\r\033[K%1\n").arg(describeProgress(job)));
    if (job.getCount() > 0)
        return;
    const Reception::Totals &totals = job.getReading()->getReception().getTotals();
    if (totals.frames > 0)
        tell(tr("corvane-inspector: no message of the selected types came\n"));
    else if (totals.bytes > 0)
        tell(tr("corvane-inspector: no good frame was found; are these the right definitions and "
                "the right --framing?\n"));
}

QString runJob(ExportJob &job, const Options &options)
{
    QString failure;
    auto *application = QCoreApplication::instance();
    QObject::connect(&job, &ExportJob::finished, application, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    QObject::connect(
        &job, &ExportJob::failed, application,
        [&](const QString &message) {
            failure = message;
            QCoreApplication::quit();
        },
        Qt::QueuedConnection);
    if (options.durationSeconds)
        QTimer::singleShot(std::chrono::milliseconds(qRound64(*options.durationSeconds * 1000)),
                           application, &QCoreApplication::quit);
    QTimer progress;
    QObject::connect(&progress, &QTimer::timeout, &job,
                     [&job] { tell(QStringLiteral("\r\033[K") + describeProgress(job)); });
    const bool isTerminal = ::isatty(STDERR_FILENO) != 0;
    if (isTerminal)
        progress.start(progressIntervalMs);
    quitWhenInterrupted();
    job.start();
    QCoreApplication::exec();
    const QString writeError = job.stop();
    if (failure.isEmpty())
        failure = writeError;
    if (isTerminal && !failure.isEmpty())
        tell(QStringLiteral("\r\033[K"));
    if (failure.isEmpty())
        tellResult(job, isTerminal);
    return failure;
}

} // namespace

QString runExport(const Options &options)
{
    Session session;
    const QStringList errors = session.load(options);
    if (!errors.isEmpty())
        return errors.join(QLatin1Char('\n'));
    ExportSelectionResult selected = selectForExport(options.selectedPaths);
    if (!selected.error.isEmpty())
        return selected.error;
    ExportJob job(session, options,
                  {std::move(selected.selection), *options.exportFormat, options.valueNames,
                   options.outputFile});
    job.setOccurringTypesOnly(options.selectedPaths.isEmpty());
    return runJob(job, options);
}

} // namespace corvane
