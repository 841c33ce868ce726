#include "crashtrace.h"
#include "eventroundprobe.h"
#include "exportcommand.h"
#include "icons.h"
#include "inspectortranslations.h"
#include "noticearea.h"
#include "options.h"
#include "report.h"
#include "session.h"
#include "settingsfile.h"
#include "workbench.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {

using corvane::Options;
using corvane::Session;

void print(FILE *stream, const QByteArray &text)
{
    std::fwrite(text.constData(), 1, static_cast<size_t>(text.size()), stream);
}

int complain(const QString &text)
{
    print(stderr, QStringLiteral("corvane-inspector: %1\n")
                      .arg(corvane::withoutControls(text))
                      .toLocal8Bit());
    return 1;
}

QStringList argumentsOf(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

std::chrono::milliseconds millisecondsOf(double seconds)
{
    return std::chrono::milliseconds(qRound64(seconds * 1000.0));
}

/** Reads the source to its end, or for the time asked for, and prints what arrived. */
int runReport(const Options &options)
{
    Session session;
    const QStringList errors = session.load(options);
    if (!errors.isEmpty())
        return complain(errors.join(QLatin1Char('\n')));

    QString failure;
    QObject::connect(&session, &Session::finished, QCoreApplication::instance(),
                     &QCoreApplication::quit, Qt::QueuedConnection);
    QObject::connect(
        &session, &Session::failed, QCoreApplication::instance(),
        [&failure](const QString &message) {
            failure = message;
            QCoreApplication::quit();
        },
        Qt::QueuedConnection);
    if (options.durationSeconds)
        QTimer::singleShot(millisecondsOf(*options.durationSeconds), QCoreApplication::instance(),
                           &QCoreApplication::quit);
    corvane::EventRoundProbe probe;
    QElapsedTimer clock;
    clock.start();
    session.start(options);
    QCoreApplication::exec();
    const corvane::ReportedEffort effort{static_cast<double>(clock.nsecsElapsed()) / 1e9,
                                         probe.getLongestEverUs(), session.getBacklogBytes()};
    session.stop();

    const auto &totals = session.getReception().getTotals();
    if (!failure.isEmpty() && totals.bytes == 0)
        return complain(failure);
    const auto makeReport = options.report == Options::Report::Json ? corvane::makeJsonReport
                                                                    : corvane::makeTextReport;
    print(stdout, makeReport(options.source->text, session.getReception(), effort));
    if (!failure.isEmpty())
        return complain(failure);
    if (totals.bytes > 0 && totals.frames == 0)
        complain(QCoreApplication::translate(
            "main",
            "no good frame was found; are these the right definitions and the right --framing?"));
    return 0;
}

void writeScreenshotLater(const corvane::Workbench &workbench, const Options &options)
{
    QTimer::singleShot(
        millisecondsOf(options.screenshotAfterSeconds), &workbench, [&workbench, &options] {
            const bool written = workbench.getWindow()->grab().save(options.screenshotFile, "PNG");
            if (!written)
                complain(QCoreApplication::translate("main", "cannot write the screenshot \"%1\"")
                             .arg(options.screenshotFile));
            QCoreApplication::exit(written ? 0 : 1);
        });
}

int runWindow(const Options &options)
{
    corvane::keepTrace(corvane::getCrashFolder());
    QApplication::setWindowIcon(corvane::makeProgramIcon());
    corvane::SettingsFile settings(corvane::SettingsFile::getDefaultPath());
    corvane::Workbench workbench(options, settings.get());
    if (!options.source) {
        workbench.showOpenPanel();
    } else if (options.lacksDefinitions()) {
        workbench.askForDefinitions(options);
    } else {
        const QStringList errors = workbench.open(options);
        if (!errors.isEmpty())
            return complain(errors.join(QLatin1Char('\n')));
    }
    if (!settings.getNotice().isEmpty())
        workbench.getNotices().say(QStringLiteral("settingsNotice"), settings.getNotice());
    if (!options.screenshotFile.isEmpty())
        writeScreenshotLater(workbench, options);
    else
        corvane::offerCrashTraces(workbench.getNotices(), corvane::getCrashFolder());
    return QApplication::exec();
}

bool hasDisplay(const QStringList &arguments)
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
           || qEnvironmentVariableIsSet("QT_QPA_PLATFORM")
           || arguments.contains(QLatin1String("-platform"))
           || arguments.contains(QLatin1String("--platform"));
}

int run(const Options &options)
{
    switch (options.wish) {
    case Options::Wish::Complain:
        return complain(options.error);
    case Options::Wish::ShowHelp:
        print(stdout, Options::getHelpText().toLocal8Bit());
        return 0;
    case Options::Wish::ShowVersion:
        print(stdout, "corvane-inspector " CORVANE_VERSION "\n");
        return 0;
    case Options::Wish::Run:
        break;
    }
    if (options.report != Options::Report::None)
        return runReport(options);
    if (options.exportFormat) {
        const QString error = corvane::runExport(options);
        return error.isEmpty() ? 0 : complain(error);
    }
    corvane::installInspectorTranslations();
    return runWindow(options);
}

/** Whether an argument looks like the options of Qt, which have one dash before a word. */
bool hasQtOption(const QStringList &arguments)
{
    return std::any_of(arguments.begin(), arguments.end(), [](const QString &argument) {
        return argument.size() > 2 && argument.startsWith(QLatin1Char('-'))
               && argument.at(1).isLetter();
    });
}

/** Whether \a options, as far as \a arguments are ours, need no window. */
bool needsNoWindow(const Options &options, const QStringList &arguments)
{
    if (options.wish == Options::Wish::Complain)
        return !hasDisplay(arguments) || !hasQtOption(arguments);
    return options.wish != Options::Wish::Run || !options.opensWindow();
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("corvane-inspector"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CORVANE_VERSION));
    // The arguments decide which kind of application is made, so they are read before.
    const QStringList arguments = argumentsOf(argc, argv);
    const Options options = Options::parse(arguments);
    if (needsNoWindow(options, arguments)) {
        const QCoreApplication application(argc, argv);
        return run(options);
    }
    if (!hasDisplay(arguments) && !options.screenshotFile.isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen"); // a picture needs no display
    // It takes its own options away; what is left must be ours.
    const QApplication application(argc, argv);
    return run(Options::parse(argumentsOf(argc, argv)));
}
