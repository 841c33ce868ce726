// Runs the inspector's window with all panels open on a source until that ends, and prints a line
// of figures every few seconds: "seconds kilobytes longest-round-in-microseconds frames
// kilobytes-of-plotted-samples most-work-of-a-round-in-microseconds", and in the end what was
// received, as JSON. Usage: soak DEFINITIONS SOURCE WATCHED-PATH...

#include "abstractplotpanel.h"
#include "eventroundprobe.h"
#include "mainwindow.h"
#include "report.h"
#include "session.h"
#include "watchpanel.h"

#include <QApplication>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

using namespace corvane;

namespace {

constexpr int linesEveryMs = 5000;
constexpr int standingMs = 500;

qint64 readKilobytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:"))
            return line.mid(6).replace("kB", "").trimmed().toLongLong();
    return -1;
}

qint64 readPlotKilobytes(const MainWindow &window)
{
    for (const QDockWidget *dock : window.findChildren<QDockWidget *>())
        if (const auto *plot = dynamic_cast<AbstractPlotPanel *>(dock->widget()))
            return plot->getSampleBytes() / 1024;
    return 0;
}

/** Panels that share a place with others become windows of their own, so that all are visible. */
void showEverything(MainWindow &window, const QStringList &paths)
{
    window.show();
    for (QDockWidget *dock : window.findChildren<QDockWidget *>()) {
        dock->setFloating(true);
        dock->show();
        auto *plot = dynamic_cast<AbstractPlotPanel *>(dock->widget());
        for (const QString &path : plot != nullptr ? paths : QStringList())
            plot->addSeries(path);
    }
    for (const QString &path : paths)
        window.findChild<WatchPanel *>()->watch(path);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    Options options = Options::parse({arguments.value(0), QStringLiteral("--definitions"),
                                      arguments.value(1), arguments.value(2)});
    Session session;
    const QStringList errors
        = options.wish == Options::Wish::Run ? session.load(options) : QStringList(options.error);
    if (!errors.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(errors.join(QLatin1Char('\n'))));
        return 1;
    }
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    MainWindow window(session, settings);
    showEverything(window, arguments.mid(3));
    // People see the window before the first message comes.
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < standingMs;)
        QApplication::processEvents(QEventLoop::AllEvents, standingMs);

    EventRoundProbe probe(linesEveryMs / EventRoundProbe::slotCount);
    clock.start();
    const auto printLine = [&] {
        std::printf("%.0f %lld %lld %llu %lld %lld\n", static_cast<double>(clock.elapsed()) / 1000,
                    readKilobytes(), probe.getLongestUs(),
                    session.getReception().getTotals().frames, readPlotKilobytes(window),
                    probe.getMostWorkUs());
        std::fflush(stdout);
    };
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, printLine);
    timer.start(linesEveryMs);
    QObject::connect(&session, &Session::finished, &application, &QApplication::quit,
                     Qt::QueuedConnection);
    QObject::connect(&session, &Session::failed, &application, &QApplication::quit,
                     Qt::QueuedConnection);
    QTimer::singleShot(0, &session, [&] { session.start(options); });
    QApplication::exec();
    printLine();
    const ReportedEffort effort{static_cast<double>(clock.elapsed()) / 1000,
                                probe.getLongestEverUs(), session.getBacklogBytes()};
    std::printf("%s",
                makeJsonReport(options.source->text, session.getReception(), effort).constData());
    return 0;
}
