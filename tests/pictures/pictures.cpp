// Makes pictures of the inspector's windows with each of their panels in front, to be looked at.
// Usage: pictures FOLDER NAME light|dark DEFINITIONS RECORDING PLOTTED-PATH...

#include "abstractplotpanel.h"
#include "inspectortree.h"
#include "mainwindow.h"
#include "openpanel.h"
#include "session.h"
#include "watchpanel.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QPalette>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <cstdio>

using namespace corvane;

namespace {

constexpr QSize usualSize(1400, 860);
constexpr QSize smallSize(800, 500);
constexpr QSize largeSize(3840, 2160); // in pixels of the screen

QPalette darkPalette()
{
    const QColor text(222, 222, 222);
    QPalette palette(QColor(53, 53, 56), QColor(43, 43, 46));
    palette.setColor(QPalette::Base, QColor(30, 30, 32));
    palette.setColor(QPalette::AlternateBase, QColor(38, 38, 41));
    palette.setColor(QPalette::Highlight, QColor(58, 110, 165));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText,
                            QPalette::HighlightedText, QPalette::ToolTipText})
        palette.setColor(role, text);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
    palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    palette.setColor(QPalette::Link, QColor(110, 170, 230));
    return palette;
}

void wait(int ms)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

class Photographer
{
public:
    explicit Photographer(QString prefix)
        : prefix(std::move(prefix))
    {
    }

    void take(QWidget &widget, const QString &name) const
    {
        constexpr int untilPaintedMs = 400;
        wait(untilPaintedMs);
        const QString file = QStringLiteral("%1-%2.png").arg(prefix, name);
        if (!widget.grab().save(file))
            qFatal("cannot write %s", qPrintable(file));
    }

private:
    QString prefix;
};

void fillPanels(MainWindow &window, const QStringList &paths)
{
    auto *plotDock = window.findChild<QDockWidget *>(QStringLiteral("plot"));
    auto *plot
        = plotDock != nullptr ? dynamic_cast<AbstractPlotPanel *>(plotDock->widget()) : nullptr;
    for (const QString &path : paths) {
        window.findChild<WatchPanel *>()->watch(path);
        if (plot != nullptr)
            plot->addSeries(path);
    }
}

void takePanels(MainWindow &window, const Photographer &photographer)
{
    for (const char *name :
         {"types", "form", "watch", "bytes", "statistics", "events", "senders", "plot"})
        if (auto *dock = window.findChild<QDockWidget *>(QLatin1String(name))) {
            dock->raise();
            photographer.take(window, QLatin1String(name));
        }
    window.resize(smallSize);
    photographer.take(window, QStringLiteral("small"));
    window.resize(largeSize / window.devicePixelRatioF());
    photographer.take(window, QStringLiteral("large"));
    window.resize(usualSize);
    for (QAction *action : window.findChildren<QAction *>())
        if (action->shortcut() == QKeySequence(QKeySequence::HelpContents))
            action->trigger();
    photographer.take(window, QStringLiteral("help"));
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(3) == QLatin1String("dark"))
        QApplication::setPalette(darkPalette());
    const Photographer photographer(arguments.value(1) + QLatin1Char('/') + arguments.value(2));
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);

    OpenPanel start(settings);
    start.show();
    photographer.take(start, QStringLiteral("start"));
    start.hide();

    const Options options
        = Options::parse({arguments.value(0), QStringLiteral("--definitions"), arguments.value(4),
                          QStringLiteral("--speed"), QStringLiteral("1"), arguments.value(5)});
    Session session;
    const QStringList errors = session.load(options);
    if (!errors.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(errors.join(QLatin1Char('\n'))));
        return 1;
    }
    MainWindow window(session, settings);
    window.resize(usualSize);
    window.show();
    photographer.take(window, QStringLiteral("empty"));
    session.start(options);
    fillPanels(window, arguments.mid(6));
    constexpr int untilFilledMs = 6000;
    wait(untilFilledMs);
    window.findChild<InspectorTree *>()->expandAll();
    takePanels(window, photographer);
    return 0;
}
