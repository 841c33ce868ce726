// How fast a recording goes the whole way through the inspector: decoding, statistics, event log,
// and a window whose tree is fully expanded, beside decoding and statistics alone.
//
// bench_inspector DEFINITIONS RECORDING [PASSES]
//
// Set QT_QPA_PLATFORM=offscreen where there is no display.

#include "eventroundprobe.h"
#include "inspectortree.h"
#include "mainwindow.h"
#include "playback.h"
#include "session.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QSettings>
#include <QTemporaryDir>

#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <functional>

using namespace corvane;

namespace {

double measurePass(Session &session, const std::function<void()> &start)
{
    QEventLoop loop;
    QObject::connect(&session, &Session::finished, &loop, &QEventLoop::quit, Qt::QueuedConnection);
    const quint64 before = session.getReception().getTotals().frames;
    QElapsedTimer clock;
    clock.start();
    start();
    loop.exec();
    const double seconds = static_cast<double>(clock.nsecsElapsed()) / 1e9;
    return static_cast<double>(session.getReception().getTotals().frames - before) / seconds;
}

bool load(Session &session, const Options &options)
{
    const QStringList errors = session.load(options);
    if (!errors.isEmpty())
        std::fprintf(stderr, "%s\n", qPrintable(errors.join(QLatin1Char('\n'))));
    return errors.isEmpty();
}

/** Messages per second without a window, the best of \a passes. */
std::optional<double> measureWithoutWindow(Options options, int passes)
{
    options.report = Options::Report::Json;
    Session session;
    if (!load(session, options))
        return std::nullopt;
    double best = 0.0;
    for (int pass = 0; pass < passes; ++pass)
        best = std::max(best, measurePass(session, [&] { session.start(options); }));
    return best;
}

/** The same in the window; the first pass only builds the rows, which are then expanded. */
std::optional<double> measureInWindow(const Options &options, int passes, qint64 *longestRoundUs)
{
    Session session;
    if (!load(session, options))
        return std::nullopt;
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    MainWindow window(session, settings);
    window.show();
    measurePass(session, [&] { session.start(options); });
    window.findChild<InspectorTree *>()->expandAll();
    QApplication::processEvents();
    EventRoundProbe probe;
    double best = 0.0;
    for (int pass = 0; pass < passes; ++pass)
        best = std::max(best, measurePass(session, [&] { session.getPlayback()->play(); }));
    *longestRoundUs = probe.getLongestEverUs();
    return best;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3) {
        std::fprintf(stderr, "usage: bench_inspector DEFINITIONS RECORDING [PASSES]\n");
        return 1;
    }
    Options options;
    options.definitions = {arguments.at(1)};
    options.source = SourceAddress::parse(arguments.at(2)).address;
    options.speed.reset();
    const int passes = arguments.size() > 3 ? arguments.at(3).toInt() : 10;

    const auto alone = measureWithoutWindow(options, passes);
    qint64 longestRoundUs = 0;
    const auto whole = alone ? measureInWindow(options, passes, &longestRoundUs) : std::nullopt;
    if (!whole)
        return 1;
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("without a window     %10.0f messages a second\n", *alone);
    std::printf("in the window        %10.0f messages a second (%.2f of it)\n", *whole,
                *whole / *alone);
    std::printf("longest event round  %10.1f ms\n", static_cast<double>(longestRoundUs) / 1000.0);
    std::printf("largest memory       %10.1f MB\n", static_cast<double>(usage.ru_maxrss) / 1024.0);
    return 0;
}
