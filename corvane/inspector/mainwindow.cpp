#include "mainwindow.h"

#include "abstractplotpanel.h"
#include "bytespanel.h"
#include "eventlogpanel.h"
#include "exportbar.h"
#include "exportcontroller.h"
#include "formpanel.h"
#include "hostfeed.h"
#include "latestmessages.h"
#include "message.h"
#include "messageinfo.h"
#include "messagestatistics.h"
#include "messagetreepanel.h"
#include "messagetypemodel.h"
#include "rowactions.h"
#include "senderspanel.h"
#include "session.h"
#include "statisticspanel.h"
#include "transportbar.h"
#include "watchpanel.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QSortFilterProxyModel>
#include <QStatusBar>
#include <QTreeView>
#include <QVBoxLayout>

namespace corvane {

namespace {

// Counts need no more than the eye does; every message is counted all the same.
constexpr int countsIntervalMs = 250;

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
    , types(new MessageTypeModel(*session.getReception().getStatistics(), this))
    , sortedTypes(new QSortFilterProxyModel(this))
    , exports(new ExportController(session, this))
{
    setDockNestingEnabled(true);
    setAcceptDrops(true);
    createTypeView();
    createMenus();
    createPanels();
    createStatusBar();
    connectAll();
    resize(fontMetrics().averageCharWidth() * 230, fontMetrics().height() * 55);
    restoreLayout();
    showChosenType();
    refreshCounts();
}

void MainWindow::createTypeView()
{
    sortedTypes->setSourceModel(types);
    sortedTypes->setSortRole(MessageTypeModel::sortRole);
    sortedTypes->setSortCaseSensitivity(Qt::CaseInsensitive);
    typeView = new QTreeView(this);
    typeView->setObjectName(QStringLiteral("typeView"));
    typeView->setAccessibleName(tr("Message types"));
    typeView->setModel(sortedTypes);
    typeView->setRootIsDecorated(false);
    typeView->setUniformRowHeights(true);
    typeView->setSortingEnabled(true);
    typeView->sortByColumn(MessageTypeModel::NameColumn, Qt::AscendingOrder);
    typeView->header()->setStretchLastSection(false);
    typeView->header()->setSectionResizeMode(MessageTypeModel::NameColumn, QHeaderView::Stretch);
    typeView->header()->resizeSection(MessageTypeModel::CountColumn,
                                      fontMetrics().averageCharWidth() * 14);
}

void MainWindow::createMenus()
{
    QMenu *fileMenu = menuBar()->addMenu(tr("&File"));
    QAction *open = fileMenu->addAction(tr("&Open…"), this, &MainWindow::openRequested);
    open->setShortcut(QKeySequence::Open);
    open->setToolTip(tr("Choose another source, or other definitions"));
    fileMenu->addActions(exports->getActions());
    fileMenu->addSeparator();
    QAction *quit = fileMenu->addAction(tr("&Quit"), this, &QWidget::close);
    quit->setShortcut(QKeySequence::Quit);
    viewMenu = menuBar()->addMenu(tr("&View"));
    pauseAction = viewMenu->addAction(tr("&Pause the Views"));
    pauseAction->setCheckable(true);
    pauseAction->setShortcut(tr("Ctrl+P"));
    pauseAction->setToolTip(tr("Leave the views as they are; everything is counted all the same"));
    viewMenu->addSeparator();
}

void MainWindow::createPanels()
{
    tree = new MessageTreePanel(*latest, *session.getReception().getFormat());
    menuBar()->addMenu(tree->getMenu());
    auto *centre = new QWidget(this);
    auto *column = new QVBoxLayout(centre);
    column->setContentsMargins({});
    column->addWidget(exports->getBar());
    column->addWidget(tree, 1);
    setCentralWidget(centre);
    form = new FormPanel(*latest);
    addPanel(typeView, QStringLiteral("types"), tr("Message types"), Qt::LeftDockWidgetArea);
    transport = new TransportBar(this);
    addToolBar(Qt::BottomToolBarArea, transport);
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
    formDock->raise();

    Reception &reception = session.getReception();
    statistics = new StatisticsPanel(*reception.getStatistics());
    senders = new SendersPanel(reception);
    auto *events = new EventLogPanel(*reception.getEventLog());
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
    addDockWidget(area, dock);
    viewMenu->addAction(dock->toggleViewAction());
    return dock;
}

void MainWindow::restoreLayout()
{
    // Qt refuses what it did not write itself, and leaves the window as it is then.
    restoreGeometry(settings.value(geometryKey()).toByteArray());
    restoreState(settings.value(layoutKey()).toByteArray());
    tree->restoreSettings(settings);
    watch->restoreSettings(settings);
    statistics->restoreSettings(settings);
    if (plot != nullptr)
        plot->restoreSettings(settings);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    settings.setValue(geometryKey(), saveGeometry());
    settings.setValue(layoutKey(), saveState());
    tree->saveSettings(settings);
    watch->saveSettings(settings);
    statistics->saveSettings(settings);
    if (plot != nullptr)
        plot->saveSettings(settings);
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
    stateLabel = new QLabel(this);
    stateLabel->setTextFormat(Qt::PlainText);
    totalsLabel = new QLabel(this);
    totalsLabel->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(stateLabel, 1);
    statusBar()->addPermanentWidget(totalsLabel);
}

void MainWindow::connectAll()
{
    connect(latest, &LatestMessages::typeSeen, this, &MainWindow::chooseFirstType);
    connect(typeView->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &MainWindow::showChosenType);
    connect(&session, &Session::playbackChanged, this,
            [this] { transport->setPlayback(this->session.getPlayback()); });
    transport->setPlayback(session.getPlayback());
    connect(tree, &MessageTreePanel::typeChosen, this, &MainWindow::chooseType);
    connectRowActions();
    connect(pauseAction, &QAction::toggled, this, &MainWindow::setPaused);
    connect(&countsTimer, &QTimer::timeout, this, &MainWindow::refreshCounts);
    countsTimer.start(countsIntervalMs);
    sinceCounts.start();
}

void MainWindow::connectRowActions()
{
    RowActions *actions = tree->getRowActions();
    actions->setPlotAvailable(plot != nullptr);
    connect(tree, &MessageTreePanel::placeChosen, bytes, &BytesPanel::setPlace);
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
    framesAtPause = session.getReception().getTotals().frames;
    latest->setPaused(paused);
    refreshCounts();
}

void MainWindow::showState(const QString &text)
{
    stateLabel->setText(text);
}

void MainWindow::chooseFirstType()
{
    types->refresh();
    if (!typeView->currentIndex().isValid())
        typeView->setCurrentIndex(sortedTypes->index(0, 0));
}

void MainWindow::showChosenType()
{
    const QModelIndex index = sortedTypes->mapToSource(typeView->currentIndex());
    const MessageStatistics *chosen = types->getStatistics(index);
    const MessageInfo *type = chosen != nullptr ? chosen->getMessageInfo() : nullptr;
    if (type != nullptr)
        form->showType(type);
    else
        form->showText(chosen != nullptr ? chosen->getMessageName() : QString(),
                       getPlaceholderText());
    if (type != nullptr)
        bytes->setType(type, latest->get(type));
}

void MainWindow::chooseType(const MessageInfo *type)
{
    for (int row = 0; row < sortedTypes->rowCount(); ++row) {
        const QModelIndex index = sortedTypes->index(row, MessageTypeModel::NameColumn);
        if (types->getStatistics(sortedTypes->mapToSource(index))->getMessageInfo() == type)
            typeView->setCurrentIndex(index);
    }
}

QString MainWindow::getPlaceholderText() const
{
    if (types->rowCount() > 0)
        return tr("No definition describes this message. Load the definitions of its dialect with "
                  "--definitions FILE.");
    return session.getSourceName().isEmpty()
               ? tr("No source is open. Start the inspector with a source: corvane-inspector "
                    "--definitions FILE SOURCE. The option --help lists the kinds of sources.")
               : tr("Waiting for messages from %1.").arg(session.getSourceName());
}

void MainWindow::refreshCounts()
{
    types->refresh();
    if (!latest->isPaused()) {
        statistics->refresh();
        senders->refresh();
    }
    const Reception::Totals &totals = session.getReception().getTotals();
    const double seconds = static_cast<double>(sinceCounts.restart()) / 1000.0;
    const auto newFrames = static_cast<double>(totals.frames - framesAtCounts);
    framesAtCounts = totals.frames;
    const QLocale locale;
    QString text = tr("Messages: %1 (%2 per second)")
                       .arg(locale.toString(totals.frames),
                            locale.toString(seconds > 0 ? qRound64(newFrames / seconds) : 0));
    if (totals.crcErrors.value_or(0) > 0)
        text += tr(", CRC errors: %1").arg(locale.toString(*totals.crcErrors));
    if (totals.unknownFrames > 0)
        text += tr(", unknown: %1").arg(locale.toString(totals.unknownFrames));
    if (const auto dropped = session.getDroppedCount(); dropped.value_or(0) > 0)
        text += tr(", datagrams dropped: %1").arg(locale.toString(*dropped));
    if (latest->isPaused())
        text = tr("Paused, new: %1; ").arg(locale.toString(totals.frames - framesAtPause)) + text;
    totalsLabel->setText(text);
}

} // namespace corvane
