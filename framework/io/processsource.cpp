#include "processsource.h"

#include "systemerror.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QThread>

#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <utility>

namespace corvane {

namespace {

constexpr qsizetype maximumErrorOutputBytes = 4096;
constexpr int maximumErrorLines = 10;
constexpr int politeEndMs = 250;
constexpr int forcedEndMs = 2000;
constexpr int endPollMs = 5;

/** Runs in the child before the command; only calls that are safe there. */
void prepareChild(int outputDescriptor)
{
    ::setpgid(0, 0);
    ::dup2(outputDescriptor, STDOUT_FILENO);
#ifdef Q_OS_LINUX
    // A silent command would not notice that nobody is left to read its output.
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
#endif
}

/** Whether nobody is left who could write to the pipe; those who have ended cannot. */
bool isDeserted(int pipeReader)
{
    pollfd request{pipeReader, 0, 0};
    return ::poll(&request, 1, 0) > 0 && (request.revents & POLLHUP) != 0;
}

QString getLastLines(const QByteArray &output)
{
    QStringList lines = QString::fromLocal8Bit(output).trimmed().split(QLatin1Char('\n'));
    if (lines.size() > maximumErrorLines)
        lines = lines.last(maximumErrorLines);
    return lines.join(QLatin1Char('\n'));
}

} // namespace

ProcessSource::ProcessSource(QString command, QObject *parent)
    : ByteSource(parent)
    , command(std::move(command))
    , reader(this)
{
    connect(&reader, &DescriptorReader::readyRead, this, &ProcessSource::reportReadable);
}

ProcessSource::~ProcessSource()
{
    ProcessSource::closeDevice();
}

QString ProcessSource::getName() const
{
    return QStringLiteral("exec:") + command;
}

std::optional<qint64> ProcessSource::getWaitingBytes() const
{
    return reader.getWaitingBytes();
}

void ProcessSource::openDevice()
{
    int ends[2] = {-1, -1};
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return reportOpenFailure(
            tr("Cannot start \"%1\": %2.").arg(command, getSystemErrorText(errno)));
    reader.open(FileDescriptor(ends[0]), true);
    const FileDescriptor writeEnd(ends[1]);
    errorOutput.clear();
    startProcess(writeEnd.get());
}

void ProcessSource::startProcess(int outputDescriptor)
{
    process = new QProcess(this);
    process->setProgram(QStringLiteral("/bin/sh"));
    process->setArguments({QStringLiteral("-c"), command});
    // Its own buffer of what the child writes would grow without limit; a pipe of ours does not.
    process->setProcessChannelMode(QProcess::ForwardedOutputChannel);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setChildProcessModifier([outputDescriptor] { prepareChild(outputDescriptor); });
    connect(process, &QProcess::started, this, &ProcessSource::reportOpened);
    connect(process, &QProcess::errorOccurred, this, &ProcessSource::handleStartError);
    connect(process, &QProcess::readyReadStandardError, this, &ProcessSource::keepErrorOutput);
    connect(process, &QProcess::finished, this, &ProcessSource::reportReadable);
    process->start(QIODevice::ReadOnly);
    if (process)
        processId = process->processId();
}

void ProcessSource::closeDevice()
{
    if (!process)
        return reader.close();
    process->disconnect(this);
    endProcessGroup();
    reader.close();
    // It may be the one that is just emitting.
    process->deleteLater();
    process = nullptr;
    processId = 0;
}

void ProcessSource::endProcessGroup()
{
    if (processId <= 0)
        return;
    // Before that it may not lead its group yet.
    process->waitForStarted(forcedEndMs);
    const auto group = static_cast<pid_t>(processId);
    ::kill(-group, SIGTERM);
    const QDeadlineTimer deadline(politeEndMs);
    while (!deadline.hasExpired()) {
        if (process->state() != QProcess::NotRunning)
            process->waitForFinished(endPollMs);
        else if (isDeserted(reader.getDescriptor()))
            break;
        else
            QThread::msleep(endPollMs);
    }
    ::kill(-group, SIGKILL);
    if (process->state() != QProcess::NotRunning)
        process->waitForFinished(forcedEndMs);
}

void ProcessSource::handleStartError()
{
    if (process->error() == QProcess::FailedToStart)
        reportOpenFailure(tr("Cannot start \"%1\": %2.").arg(command, process->errorString()));
}

void ProcessSource::keepErrorOutput()
{
    errorOutput += process->readAllStandardError();
    errorOutput = errorOutput.last(std::min(errorOutput.size(), maximumErrorOutputBytes));
}

qint64 ProcessSource::readDevice(char *data, qint64 maximum)
{
    const qint64 count = reader.read(data, maximum);
    if (count >= 0)
        return count;
    if (count == DescriptorReader::Error)
        return failRead(
            tr("Reading from \"%1\" failed: %2.").arg(command, getSystemErrorText(errno)));
    // The exit code comes a moment after the end of the output.
    if (process->state() != QProcess::NotRunning)
        return 0;
    // The system may give the number to others from now on.
    processId = 0;
    const bool isGood = process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
    return isGood ? endOfBytes : failRead(describeEnd());
}

QString ProcessSource::describeEnd() const
{
    QString end = process->exitStatus() == QProcess::NormalExit
                      ? tr("\"%1\" ended with exit code %2.")
                            .arg(command, QString::number(process->exitCode()))
                      : tr("\"%1\" was ended by signal %2.")
                            .arg(command, QString::number(process->exitCode()));
    if (errorOutput.trimmed().isEmpty())
        return end;
    return end + QLatin1Char(' ') + tr("It said last:") + QLatin1Char('\n')
           + getLastLines(errorOutput);
}

} // namespace corvane
