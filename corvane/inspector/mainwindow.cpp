#include "mainwindow.h"

#include "descriptions.h"
#include "latestmessages.h"
#include "message.h"
#include "messageinfo.h"
#include "messagestatistics.h"
#include "messagetypemodel.h"
#include "messagewidget.h"
#include "session.h"

#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QScrollArea>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QStatusBar>
#include <QTreeView>
#include <QVBoxLayout>

namespace corvane {

namespace {

// The views need no more than the eye does; every message is counted all the same.
constexpr int formIntervalMs = 16;
constexpr int countsIntervalMs = 250;

} // namespace

MainWindow::MainWindow(Session &session, QWidget *parent)
    : QMainWindow(parent)
    , session(session)
    , latest(new LatestMessages(session.getReception(), this))
    , types(new MessageTypeModel(*session.getReception().getStatistics(), this))
    , sortedTypes(new QSortFilterProxyModel(this))
{
    createTypeView();
    auto *splitter = new QSplitter(this);
    splitter->addWidget(typeView);
    splitter->addWidget(createFormSide());
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);
    createStatusBar();
    connectAll();
    resize(fontMetrics().averageCharWidth() * 150, fontMetrics().height() * 42);
    splitter->setSizes({width() * 2 / 5, width() * 3 / 5});
    showChosenType();
    refreshCounts();
}

void MainWindow::createTypeView()
{
    sortedTypes->setSourceModel(types);
    sortedTypes->setSortRole(MessageTypeModel::sortRole);
    sortedTypes->setSortCaseSensitivity(Qt::CaseInsensitive);
    typeView = new QTreeView(this);
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

QWidget *MainWindow::createFormSide()
{
    auto *side = new QWidget(this);
    heading = new QLabel(side);
    QFont headingFont = heading->font();
    headingFont.setPointSizeF(headingFont.pointSizeF() * 1.3);
    headingFont.setBold(true);
    heading->setFont(headingFont);
    heading->setTextFormat(Qt::PlainText);
    description = new QLabel(side);
    description->setTextFormat(Qt::PlainText);
    description->setWordWrap(true);
    form = new MessageWidget;
    form->setAccessibleName(tr("Fields of the chosen message type"));
    formArea = new QScrollArea(side);
    formArea->setWidgetResizable(true);
    auto *content = new QWidget;
    auto *contentLayout = new QVBoxLayout(content);
    contentLayout->addWidget(form);
    contentLayout->addStretch(1); // a short form stays at the top instead of spreading
    formArea->setWidget(content);

    auto *layout = new QVBoxLayout(side);
    layout->addWidget(heading);
    layout->addWidget(description);
    layout->addWidget(formArea, 1);
    return side;
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
    connect(&formTimer, &QTimer::timeout, this, &MainWindow::refreshForm);
    connect(&countsTimer, &QTimer::timeout, this, &MainWindow::refreshCounts);
    formTimer.start(formIntervalMs);
    countsTimer.start(countsIntervalMs);
    sinceCounts.start();
}

void MainWindow::showState(const QString &text)
{
    stateLabel->setText(text);
}

void MainWindow::chooseFirstType(const MessageInfo *)
{
    types->refresh();
    if (!typeView->currentIndex().isValid())
        typeView->setCurrentIndex(sortedTypes->index(0, 0));
}

void MainWindow::showChosenType()
{
    const QModelIndex index = sortedTypes->mapToSource(typeView->currentIndex());
    const MessageStatistics *chosen = types->getStatistics(index);
    chosenType = chosen != nullptr ? chosen->getMessageInfo() : nullptr;
    shownMessage = nullptr;
    heading->setText(chosen != nullptr ? chosen->getMessageName() : QString());
    description->setText(chosenType != nullptr ? chosenType->getData()->description
                                               : getPlaceholderText());
    form->setMessageInfo(chosenType);
    refreshForm();
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

void MainWindow::refreshForm()
{
    const Message *message = chosenType != nullptr ? latest->get(chosenType) : nullptr;
    if (message == nullptr || message == shownMessage)
        return;
    shownMessage = message;
    form->processMessage(message);
}

void MainWindow::refreshCounts()
{
    types->refresh();
    const Reception::Totals &totals = session.getReception().getTotals();
    const double seconds = static_cast<double>(sinceCounts.restart()) / 1000.0;
    const auto newFrames = static_cast<double>(totals.frames - framesAtCounts);
    framesAtCounts = totals.frames;
    const QLocale locale;
    QString text = tr("%1 messages, %2 per second")
                       .arg(locale.toString(totals.frames),
                            locale.toString(seconds > 0 ? qRound64(newFrames / seconds) : 0));
    if (totals.crcErrors.value_or(0) > 0)
        text += tr(", %1 CRC errors").arg(locale.toString(*totals.crcErrors));
    if (totals.unknownFrames > 0)
        text += tr(", %1 unknown").arg(locale.toString(totals.unknownFrames));
    if (const auto dropped = session.getDroppedCount(); dropped.value_or(0) > 0)
        text += tr(", %1 datagrams dropped").arg(locale.toString(*dropped));
    totalsLabel->setText(text);
}

} // namespace corvane
