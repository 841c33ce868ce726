#include "mainwindow.h"

#include "abstractplotpanel.h"
#include "bytespanel.h"
#include "collapsedtypes.h"
#include "confidentialswitch.h"
#include "elidinglabel.h"
#include "eventlogpanel.h"
#include "exportbar.h"
#include "exportcontroller.h"
#include "formpanel.h"
#include "helppanel.h"
#include "hostfeed.h"
#include "icons.h"
#include "latestmessages.h"
#include "message.h"
#include "messageinfo.h"
#include "messagestatistics.h"
#include "messagetreepanel.h"
#include "messagetypeview.h"
#include "noticearea.h"
#include "recordcontroller.h"
#include "rowactions.h"
#include "senderchooser.h"
#include "senderspanel.h"
#include "session.h"
#include "settingsfile.h"
#include "statisticspanel.h"
#include "statusfigures.h"
#include "transportbar.h"
#include "viewsettings.h"
#include "watchpanel.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLocale>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace corvane {

namespace {

QString geometryKey()
{
    return QStringLiteral("window/geometry");
}

QString layoutKey()
{
    return QStringLiteral("window/layout");
}

} // namespace

MainWindow::MainWindow(Session &session, QSettings &settings, QWidget *parent)
    : QMainWindow(parent)
    , session(session)
    , settings(settings)
    , latest(new LatestMessages(session.getReception(), this))
    , types(new MessageTypeView(*session.getReception().getStatistics(), this))
    , notices(new NoticeArea(this))
    , confidential(new ConfidentialSwitch(*notices, this))
    , viewSettings(new ViewSettings(settings, this))
    , record(new RecordController(session, *notices, this))
    , exports(new ExportController(session, this))
{
    setDockNestingEnabled(true);
    setIconSize(QSize(20, 20));
    setAcceptDrops(true);
    createActions();
    createMenus();
    createToolBar();
    createNoticeBar();
    createPanels();
    createHelp();
    createStatusBar();
    connectAll();
    resize(fontMetrics().averageCharWidth() * 230, fontMetrics().height() * 55);
    shareOutRoom();
    restoreLayout();
    applyViewSettings();
    showChosenType();
    refreshCounts();
}

MainWindow::~MainWindow()
{
    delete confidential;
}

void MainWindow::createActions()
{
    openAction = new QAction(makeIcon(QStringLiteral("document-open")), tr("&Open…"), this);
    openAction->setShortcut(QKeySequence::Open);
    openAction->setToolTip(tr("Choose another source, or other definitions"));
    connect(openAction, &QAction::triggered, this, &MainWindow::openRequested);
    pauseAction = new QAction(makeIcon(QStringLiteral("media-playback-pause")),
                              tr("&Pause the Views"), this);
    pauseAction->setCheckable(true);
    pauseAction->setShortcut(tr("Ctrl+P"));
    pauseAction->setToolTip(tr("Leave the views as they are; everything is counted all the same"));
}

void MainWindow::createToolBar()
{
    auto *bar = new QToolBar(tr("Tools"), this);
    bar->setObjectName(QStringLiteral("tools"));
    bar->addActions({openAction, record->getAction(), exports->getActions().constFirst()});
    bar->addSeparator();
    bar->addActions({pauseAction, confidential->getAction()});
    bar->addSeparator();
    senderChooser = new SenderChooser(session.getReception().getSenders(), bar);
    senderAction = bar->addWidget(senderChooser);
    addToolBar(bar);
    bar->toggleViewAction()->setToolTip(tr("Show or hide the tool bar"));
    viewMenu->addAction(bar->toggleViewAction());
}

/** Over the whole width, so that most texts take one line. */
void MainWindow::createNoticeBar()
{
    noticeBar = new QToolBar(tr("Notices"), this);
    noticeBar->setObjectName(QStringLiteral("notices"));
    noticeBar->setMovable(false);
    noticeBar->toggleViewAction()->setVisible(false);
    QAction *shown = noticeBar->addWidget(notices);
    addToolBarBreak();
    addToolBar(noticeBar);
    noticeBar->hide();
    connect(notices, &NoticeArea::filled, this, [this, shown](bool hasNotices) {
        shown->setVisible(hasNotices);
        noticeBar->setVisible(hasNotices);
    });
}

void MainWindow::createMenus()
{
    QMenu *fileMenu = menuBar()->addMenu(tr("&File"));
    fileMenu->addAction(openAction);
    fileMenu->addAction(record->getAction());
    fileMenu->addActions(exports->getActions());
    fileMenu->addSeparator();
    QAction *quit = fileMenu->addAction(tr("&Quit"), this, &QWidget::close);
    quit->setShortcut(QKeySequence::Quit);
    quit->setToolTip(tr("Close the window; what it shows is remembered"));
    viewMenu = menuBar()->addMenu(tr("&View"));
    viewMenu->addAction(pauseAction);
    viewMenu->addAction(confidential->getAction());
    viewMenu->addSeparator();
    viewSettings->addTo(*viewMenu);
    viewMenu->addSeparator();
}

void MainWindow::createPanels()
{
    tree = new MessageTreePanel(*latest, *session.getReception().getFormat());
    menuBar()->addMenu(tree->getMenu());
    auto *centre = new QWidget(this);
    centre->setMinimumWidth(fontMetrics().averageCharWidth() * 40); // docks give way to the tree
    auto *column = new QVBoxLayout(centre);
    column->setContentsMargins({});
    column->addWidget(exports->getBar());
    column->addWidget(tree, 1);
    setCentralWidget(centre);
    form = new FormPanel(*latest);
    types->setAccessibleName(tr("Message types"));
    addPanel(types, QStringLiteral("types"), tr("Message types"), Qt::LeftDockWidgetArea);
    transport = new TransportBar(this);
    addToolBar(Qt::BottomToolBarArea, transport);
    transport->toggleViewAction()->setToolTip(tr("Show or hide the bar that plays recordings"));
    viewMenu->addAction(transport->toggleViewAction());
    watch = new WatchPanel(*latest);
    QDockWidget *formDock
        = addPanel(form, QStringLiteral("form"), tr("Form"), Qt::RightDockWidgetArea);
    QDockWidget *watchDock
        = addPanel(watch, QStringLiteral("watch"), tr("Watch"), Qt::RightDockWidgetArea);
    tabifyDockWidget(formDock, watchDock);
    bytes = new BytesPanel(*latest);
    tabifyDockWidget(
        watchDock, addPanel(bytes, QStringLiteral("bytes"), tr("Bytes"), Qt::RightDockWidgetArea));

    Reception &reception = session.getReception();
    statistics = new StatisticsPanel(*reception.getStatistics());
    senders = new SendersPanel(reception);
    events = new EventLogPanel(*reception.getEventLog());
    QDockWidget *statisticsDock = addPanel(statistics, QStringLiteral("statistics"),
                                           tr("Statistics"), Qt::BottomDockWidgetArea);
    QDockWidget *eventsDock
        = addPanel(events, QStringLiteral("events"), tr("Event log"), Qt::BottomDockWidgetArea);
    QDockWidget *sendersDock
        = addPanel(senders, QStringLiteral("senders"), tr("Senders"), Qt::BottomDockWidgetArea);
    tabifyDockWidget(statisticsDock, eventsDock);
    tabifyDockWidget(eventsDock, sendersDock);
    createPlot(sendersDock);
    statisticsDock->raise();
}

void MainWindow::createPlot(QDockWidget *neighbour)
{
    plot = createPlotPanel(session.getReception());
    if (plot == nullptr) {
        viewMenu->addAction(tr("Plot (not in this build)"))->setEnabled(false);
        return;
    }
    tabifyDockWidget(neighbour,
                     addPanel(plot, QStringLiteral("plot"), tr("Plot"), Qt::BottomDockWidgetArea));
    connect(pauseAction, &QAction::toggled, plot, [this](bool paused) { plot->setPaused(paused); });
}

QDockWidget *MainWindow::addPanel(QWidget *panel,
                                  const QString &name,
                                  const QString &title,
                                  Qt::DockWidgetArea area)
{
    auto *dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(panel);
    dock->toggleViewAction()->setToolTip(tr("Show or hide the panel \"%1\"").arg(title));
    addDockWidget(area, dock);
    viewMenu->addAction(dock->toggleViewAction());
    return dock;
}

void MainWindow::createHelp()
{
    help = new HelpPanel;
    helpDock = addPanel(help, QStringLiteral("help"), tr("Help"), Qt::RightDockWidgetArea);
    tabifyDockWidget(findChild<QDockWidget *>(QStringLiteral("watch")), helpDock);
    helpDock->hide();
    raisePanel(form); // hiding has brought a neighbour to the front
    QMenu *menu = menuBar()->addMenu(tr("&Help"));
    QAction *contents
        = menu->addAction(makeIcon(QStringLiteral("help-contents")), tr("&Uses and Keys"));
    contents->setShortcut(QKeySequence::HelpContents);
    contents->setToolTip(tr("What the window is for, and all keys"));
    connect(contents, &QAction::triggered, this, &MainWindow::showHelp);
    QAction *versions = menu->addAction(tr("&About"));
    versions->setToolTip(tr("The versions of the program and of what it uses"));
    connect(versions, &QAction::triggered, this, &MainWindow::showVersions);
    for (QMenu *one : menuBar()->findChildren<QMenu *>())
        one->setToolTipsVisible(true);
}

void MainWindow::showHelp()
{
    help->describe(*this);
    helpDock->show();
    helpDock->raise();
    help->setFocus();
}

void MainWindow::showVersions()
{
    auto *box = new QMessageBox(QMessageBox::NoIcon, tr("About"), getVersionsText(),
                                QMessageBox::Close, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIconPixmap(makeProgramIcon().pixmap(64, 64));
    box->open();
}

/** Most of it to the tree. */
void MainWindow::shareOutRoom()
{
    const auto dock
        = [this](const char *name) { return findChild<QDockWidget *>(QLatin1String(name)); };
    resizeDocks({dock("statistics")}, {height() / 4}, Qt::Vertical);
    resizeDocks({dock("types"), dock("form")}, {width() / 5, width() * 3 / 10}, Qt::Horizontal);
}

void MainWindow::restoreLayout()
{
    // Qt refuses what it did not write itself, and leaves the window as it is then.
    restoreGeometry(settings.value(geometryKey()).toByteArray());
    restoreState(settings.value(layoutKey()).toByteArray());
    noticeBar->setVisible(!notices->isEmpty());
    types->restoreSettings(settings);
    restoreCollapsedTypes(settings, *session.getReception().getFormat());
    tree->restoreSettings(settings);
    watch->restoreSettings(settings);
    statistics->restoreSettings(settings);
    events->restoreSettings(settings);
    senders->restoreSettings(settings);
    if (plot != nullptr)
        plot->restoreSettings(settings);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    settings.setValue(geometryKey(), saveGeometry());
    settings.setValue(layoutKey(), saveState());
    types->saveSettings(settings);
    saveCollapsedTypes(settings, *session.getReception().getFormat());
    tree->saveSettings(settings);
    watch->saveSettings(settings);
    statistics->saveSettings(settings);
    events->saveSettings(settings);
    senders->saveSettings(settings);
    if (plot != nullptr)
        plot->saveSettings(settings);
    SettingsFile::seal(settings);
    QMainWindow::closeEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    Q_EMIT filesDropped(localFilesOf(*event->mimeData()));
}

void MainWindow::createStatusBar()
{
    stateLabel = new ElidingLabel(this);
    figures = new StatusFigures(session, this);
    statusBar()->addWidget(stateLabel, 1);
    statusBar()->addPermanentWidget(figures);
}

void MainWindow::connectAll()
{
    connect(latest, &LatestMessages::typeSeen, this, &MainWindow::chooseFirstType);
    connect(types, &MessageTypeView::chosen, this, &MainWindow::showChosenType);
    connect(&session, &Session::playbackChanged, this, [this] {
        sourceEnd.clear();
        transport->setPlayback(this->session.getPlayback());
    });
    transport->setPlayback(session.getPlayback());
    connect(tree, &MessageTreePanel::typeChosen, types, &MessageTypeView::choose);
    connect(senders, &SendersPanel::senderChosen, senderChooser, &SenderChooser::choose);
    connect(senderChooser, &SenderChooser::chosen, this, &MainWindow::chooseSender);
    connectRowActions();
    connect(&session, &Session::finished, this,
            [this] { setSourceEnd(tr("%1 has ended.").arg(this->session.getSourceName())); });
    connect(&session, &Session::failed, this, &MainWindow::setSourceEnd);
    connect(pauseAction, &QAction::toggled, this, &MainWindow::setPaused);
    connect(&countsTimer, &QTimer::timeout, this, &MainWindow::refreshCounts);
    connect(viewSettings, &ViewSettings::changed, this, &MainWindow::applyViewSettings);
}

void MainWindow::connectRowActions()
{
    RowActions *actions = tree->getRowActions();
    actions->setPlotAvailable(plot != nullptr);
    connect(tree, &MessageTreePanel::placeChosen, bytes, &BytesPanel::setPlace);
    connect(latest, &LatestMessages::senderChanged, bytes, &BytesPanel::clearMessage);
    connect(bytes, &BytesPanel::placeActivated, tree, &MessageTreePanel::goTo);
    connect(actions, &RowActions::watchRequested, this, [this](const QString &path) {
        watch->watch(path);
        raisePanel(watch);
    });
    connect(actions, &RowActions::plotRequested, this, [this](const QString &path) {
        plot->addSeries(path);
        raisePanel(plot);
    });
    connect(actions, &RowActions::formRequested, this, [this] { raisePanel(form); });
    connect(actions, &RowActions::bytesRequested, this, [this] { raisePanel(bytes); });
}

/** Shows the dock of \a panel, also where it was closed or lies behind others. */
void MainWindow::raisePanel(QWidget *panel)
{
    auto *dock = qobject_cast<QDockWidget *>(panel->parentWidget());
    dock->show();
    dock->raise();
}

void MainWindow::setPaused(bool paused)
{
    latest->setPaused(paused);
    figures->setPaused(paused);
    refreshCounts();
}

void MainWindow::chooseSender(std::optional<quint32> sender)
{
    latest->setSender(sender);
    if (plot != nullptr)
        plot->setSender(sender);
}

void MainWindow::applyViewSettings()
{
    countsTimer.start(viewSettings->getRefreshMs());
    events->setUtc(viewSettings->isUtc());
    transport->setUtc(viewSettings->isUtc());
    QFont viewFont = font();
    viewFont.setPointSizeF(viewFont.pointSizeF() * viewSettings->getZoom() / 100.0);
    for (QWidget *view : std::initializer_list<QWidget *>{types, tree, form, watch, statistics,
                                                          senders, events, bytes})
        view->setFont(viewFont);
    if (plot == nullptr)
        return;
    plot->setUtc(viewSettings->isUtc());
    plot->setFont(viewFont);
}

void MainWindow::showState(const QString &text)
{
    stateLabel->say(text);
}

void MainWindow::chooseFirstType()
{
    types->refresh();
    types->chooseFirst();
}

void MainWindow::showChosenType()
{
    const MessageStatistics *chosen = types->getChosen();
    const MessageInfo *type = chosen != nullptr ? chosen->getMessageInfo() : nullptr;
    if (type != nullptr)
        form->showType(type);
    else
        form->showText(chosen != nullptr ? chosen->getMessageName() : QString(),
                       getPlaceholderText());
    if (type != nullptr)
        bytes->setType(type, latest->get(type));
}

QString MainWindow::getPlaceholderText() const
{
    if (!types->isEmpty())
        return tr("No definition describes this message. Load the definitions of its dialect with "
                  "--definitions FILE.");
    if (session.getSourceName().isEmpty())
        return tr("No source is open. Choose one with \"Open…\" in the menu \"File\".");
    const quint64 bytes = session.getReception().getTotals().bytes;
    if (!sourceEnd.isEmpty())
        return bytes == 0 ? tr("%1 No bytes have come.").arg(sourceEnd)
                          : tr("%1 None of its %2 bytes could be decoded: they are no messages of "
                               "this format, or in another framing.")
                                .arg(sourceEnd, QLocale().toString(bytes));
    const QString waiting = tr("Waiting for messages from %1.").arg(session.getSourceName());
    return bytes == 0
               ? waiting
               : tr("%1 %2 bytes have come, but no message of the loaded definitions among them.")
                     .arg(waiting, QLocale().toString(bytes));
}

void MainWindow::setSourceEnd(const QString &text)
{
    sourceEnd = text;
    showChosenType();
}

void MainWindow::refreshCounts()
{
    types->refresh();
    if (types->isEmpty())
        showChosenType(); // which tells how many bytes have come
    if (!latest->isPaused()) {
        statistics->refresh();
        senders->refresh();
    }
    figures->refresh();
    senderChooser->refresh();
    senderAction->setVisible(senderChooser->hasChoice());
}

} // namespace corvane
