#include "workbench.h"

#include "crashtrace.h"
#include "eventlog.h"
#include "mainwindow.h"
#include "openpanel.h"
#include "session.h"

#include <QCoreApplication>

namespace corvane {

Workbench::Workbench(const Options &options, QSettings &settings, QObject *parent)
    : QObject(parent)
    , options(options)
    , settings(settings)
    , openPanel(std::make_unique<OpenPanel>(settings))
{
    // Later, since the window that asked is gone by then.
    connect(openPanel.get(), &OpenPanel::chosen, this, &Workbench::openChosen,
            Qt::QueuedConnection);
    SourceChoice choice;
    choice.definitions = options.definitions;
    choice.overlays = options.overlays;
    choice.root = options.root;
    choice.framing = options.framing;
    openPanel->setChoice(choice);
}

Workbench::~Workbench() = default;

QStringList Workbench::open(const Options &newOptions)
{
    if (window)
        window->close(); // remembers its layout
    window.reset();
    session.reset();
    session = std::make_unique<Session>();
    const QStringList errors = session->load(newOptions);
    if (!errors.isEmpty()) {
        session.reset();
        return errors;
    }
    createWindow(newOptions);
    return {};
}

void Workbench::createWindow(const Options &newOptions)
{
    window = std::make_unique<MainWindow>(*session, settings);
    const QString program = tr("Corvane Inspector");
    connect(session.get(), &Session::finished, window.get(),
            [this] { window->showState(tr("End of %1").arg(session->getSourceName())); });
    connect(session.get(), &Session::failed, window.get(), &MainWindow::showState);
    connect(session.get(), &Session::stateChanged, window.get(), &MainWindow::showState);
    traceEvents(*session->getReception().getEventLog());
    connect(window.get(), &MainWindow::openRequested, this, &Workbench::showOpenPanel);
    connect(window.get(), &MainWindow::filesDropped, this, &Workbench::takeFiles,
            Qt::QueuedConnection);
    session->start(newOptions);
    window->setWindowTitle(QStringLiteral("%1 - %2").arg(session->getSourceName(), program));
    window->showState(session->getSourceName());
    RecentSources(settings).add(SourceChoice::of(newOptions));
    openPanel->setChoice(SourceChoice::of(newOptions));
    window->show();
    openPanel->hide();
}

void Workbench::traceEvents(EventLog &log)
{
    repeatedEvents = 0;
    // A full log tells its followers once more of the entries that it keeps.
    connect(&log, &EventLog::cleared, this,
            [this, &log] { repeatedEvents = log.getEntries().size(); });
    connect(&log, &EventLog::newEntry, this, [this](const EventLog::Entry &entry) {
        if (repeatedEvents > 0)
            --repeatedEvents;
        else
            addTraceLine(entry.event.getMessage());
    });
}

void Workbench::openChosen(const SourceChoice &choice)
{
    Options chosen = options;
    QString problem = choice.addTo(chosen);
    if (problem.isEmpty())
        problem = open(chosen).join(QLatin1Char('\n'));
    if (problem.isEmpty())
        return;
    showOpenPanel();
    openPanel->setChoice(choice);
    openPanel->say(problem);
}

void Workbench::takeFiles(const QStringList &files)
{
    openPanel->addFiles(files);
    showOpenPanel();
    if (!openPanel->getChoice().isProgram())
        openPanel->open();
}

void Workbench::showOpenPanel()
{
    openPanel->refreshRecent();
    if (openPanel->isVisible())
        openPanel->raise();
    openPanel->show();
    openPanel->activateWindow();
}

void Workbench::askForDefinitions(const Options &newOptions)
{
    openPanel->setChoice(SourceChoice::of(newOptions));
    showOpenPanel();
    openPanel->open();
}

NoticeArea &Workbench::getNotices() const
{
    return window ? *window->getNotices() : *openPanel->getNotices();
}

QWidget *Workbench::getWindow() const
{
    return window ? static_cast<QWidget *>(window.get()) : openPanel.get();
}

} // namespace corvane
