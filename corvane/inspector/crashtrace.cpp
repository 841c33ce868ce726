#include "crashtrace.h"

#include "DbgMsgBuffer.h"
#include "DbgTrace.h"
#include "noticearea.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QUrl>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstring>

namespace corvane {

namespace {

constexpr size_t bufferBytes = size_t{256} * 1024;
constexpr size_t handlerStackBytes = size_t{64} * 1024;
constexpr int mostLines = 20'000; ///< Of a ring that the crash itself may have broken.
constexpr int mostFilesKept = 20;
constexpr std::array fatalSignals{SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};

// What a signal handler reaches; nothing of it is made after keepTrace().
alignas(8) std::array<char, bufferBytes> ringArea;
std::array<char, handlerStackBytes> handlerStack;
std::array<char, 4096> crashFile{};
QtMessageHandler earlierMessageHandler = nullptr;

struct CrashTrace
{
    Q_DECLARE_TR_FUNCTIONS(corvane::CrashTrace)
};

QString namePattern()
{
    return QStringLiteral("crash-*.txt");
}

/** Only what is allowed in a signal handler. */
void writeText(int file, const char *text)
{
    size_t length = std::strlen(text);
    while (length > 0) {
        const ssize_t written = ::write(file, text, length);
        if (written <= 0)
            return;
        text += written;
        length -= static_cast<size_t>(written);
    }
}

const char *nameOf(int signal)
{
    switch (signal) {
    case SIGSEGV:
        return "SIGSEGV (memory fault)\n";
    case SIGBUS:
        return "SIGBUS (memory fault)\n";
    case SIGFPE:
        return "SIGFPE (impossible calculation)\n";
    case SIGILL:
        return "SIGILL (impossible instruction)\n";
    default:
        return "SIGABRT (failed assertion)\n";
    }
}

/** Only what is allowed in a signal handler; a second fault in here ends the process. */
void handleFatalSignal(int signal)
{
    const int file
        = ::open(crashFile.data(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file >= 0) {
        writeText(file, "corvane-inspector ended by ");
        writeText(file, nameOf(signal));
        uint64_t cursor = 0;
        for (int line = 0; line < mostLines; ++line) {
            const char *text = Tav::dbgMsgBufferPeekNext(cursor, false);
            if (text == nullptr)
                break;
            writeText(file, text);
        }
        ::close(file);
    }
    ::raise(signal); // the handler was taken away when it was called
}

void installHandlers()
{
    stack_t stack{};
    stack.ss_sp = handlerStack.data();
    stack.ss_size = handlerStack.size();
    ::sigaltstack(&stack, nullptr); // a stack that has overflowed is of no use
    struct sigaction action = {};
    action.sa_handler = handleFatalSignal;
    action.sa_flags = static_cast<int>(SA_ONSTACK | SA_RESETHAND | SA_NODEFER);
    ::sigemptyset(&action.sa_mask);
    for (const int signal : fatalSignals)
        ::sigaction(signal, &action, nullptr);
}

void keepMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    addTraceLine(message);
    if (earlierMessageHandler != nullptr)
        earlierMessageHandler(type, context, message);
}

} // namespace

QString getCrashFolder()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))
        .filePath(QStringLiteral("corvane/crashes"));
}

void keepTrace(const QString &folder)
{
    const QString time
        = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const QByteArray file = QFile::encodeName(QDir(folder).filePath(
        QStringLiteral("crash-%1-%2.txt").arg(time).arg(QCoreApplication::applicationPid())));
    if (!QDir().mkpath(folder) || file.size() >= static_cast<qsizetype>(crashFile.size()))
        return;
    std::memcpy(crashFile.data(), file.constData(), static_cast<size_t>(file.size()) + 1);
    dbg_lock();
    Tav::DbgDump_setTraceBuffer(ringArea.data(), ringArea.size());
    dbg_unlock();
    earlierMessageHandler = qInstallMessageHandler(keepMessage);
    installHandlers();
}

void addTraceLine(const QString &text)
{
    const QString time = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
    const QByteArray line = QStringLiteral("%1 %2\n").arg(time, text).toUtf8();
    dbg_lock();
    Tav::dbgMsgBufferPush(line.constData());
    dbg_unlock();
}

QStringList findCrashTraces(const QString &folder)
{
    QStringList files;
    const auto names
        = QDir(folder).entryList({namePattern()}, QDir::Files, QDir::Name | QDir::Reversed);
    for (const QString &name : names)
        files += QDir(folder).filePath(name);
    return files;
}

void offerCrashTraces(NoticeArea &notices, const QString &folder)
{
    const QStringList files = findCrashTraces(folder);
    for (const QString &old : files.mid(mostFilesKept))
        QFile::remove(old);
    if (files.isEmpty())
        return;
    const auto openFolder = [folder] { QDesktopServices::openUrl(QUrl::fromLocalFile(folder)); };
    const auto deleteAll = [folder] {
        for (const QString &file : findCrashTraces(folder))
            QFile::remove(file);
    };
    notices.say(
        QStringLiteral("crashNotice"),
        CrashTrace::tr("The program has crashed before. What it did last is written in \"%1\".")
            .arg(files.constFirst()),
        {{CrashTrace::tr("Open &Folder"), openFolder}, {CrashTrace::tr("&Delete"), deleteAll}},
        CrashTrace::tr("Later"));
}

} // namespace corvane
