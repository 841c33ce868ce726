#include "eventlogpanel.h"

#include "eventlogtablewidget.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QScrollBar>
#include <QSettings>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QVBoxLayout>

namespace corvane {

namespace {

constexpr int timeColumn = 0;
constexpr int messageColumn = 1;

QString columnsKey()
{
    return QStringLiteral("events/headerstate");
}

} // namespace

/** Shows the times of the log, which stand in its cells in UTC, as people want them. */
class LogTimeDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &) const override
    {
        QString text = value.toString();
        const auto time = QDateTime::fromString(text, Qt::ISODate);
        if (!time.isValid())
            return text;
        return utc ? time.toUTC().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss 'UTC'"))
                   : time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    }

    bool utc = false;
};

EventLogPanel::EventLogPanel(EventLog &log, QWidget *parent)
    : QWidget(parent)
    , table(new EventLogTableWidget(nullptr, this))
    , timeDelegate(new LogTimeDelegate(this))
    , filterEdit(new QLineEdit(this))
    , followButton(new QToolButton(this))
    , state(new QLabel(this))
{
    createTable();
    filterEdit->setPlaceholderText(tr("Show only events that contain…"));
    filterEdit->setAccessibleName(tr("Filter of the event log"));
    filterEdit->setClearButtonEnabled(true);
    followButton->setText(tr("To the end"));
    followButton->setToolTip(tr("Scroll to the latest event and follow the log again"));
    state->setTextFormat(Qt::PlainText);

    auto *bar = new QHBoxLayout;
    bar->addWidget(filterEdit, 1);
    bar->addWidget(state);
    bar->addWidget(followButton);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(bar);
    layout->addWidget(table, 1);

    connect(filterEdit, &QLineEdit::textChanged, this, &EventLogPanel::setFilter);
    connect(followButton, &QToolButton::clicked, this, &EventLogPanel::followEnd);
    connect(&log, &EventLog::newEntry, this,
            [this](const EventLog::Entry &entry) { takeEntries({entry}); });
    connect(&log, &EventLog::cleared, this, &EventLogPanel::startAgain);
    sliceTimer.setSingleShot(true);
    connect(&sliceTimer, &QTimer::timeout, this, &EventLogPanel::runSlice);
    takeEntries(log.getEntries());
    refreshState();
}

EventLogPanel::~EventLogPanel()
{
    // It still moves while the table goes, after the panel.
    table->verticalScrollBar()->disconnect(this);
}

void EventLogPanel::createTable()
{
    table->setAccessibleName(tr("Event log"));
    table->setMinimumHeight(fontMetrics().height() * 3);
    table->setWordWrap(false);
    table->setShowGrid(false);
    table->setTabKeyNavigation(false); // Tab leads on to the next control
    table->setAlternatingRowColors(true);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    fitRowHeight();
    table->setItemDelegateForColumn(timeColumn, timeDelegate);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setSectionsMovable(true);
    table->setColumnWidth(timeColumn, fontMetrics().averageCharWidth() * 24);
    QScrollBar *bar = table->verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar] {
        if (following)
            bar->setValue(bar->maximum());
    });
    connect(bar, &QScrollBar::valueChanged, this, [this, bar](int value) {
        following = value >= bar->maximum();
        refreshState();
    });
}

void EventLogPanel::fitRowHeight()
{
    table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
}

void EventLogPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitRowHeight();
}

void EventLogPanel::setUtc(bool utc)
{
    timeDelegate->utc = utc;
    table->viewport()->update();
}

void EventLogPanel::saveSettings(QSettings &settings) const
{
    settings.setValue(columnsKey(), table->horizontalHeader()->saveState());
}

void EventLogPanel::restoreSettings(const QSettings &settings)
{
    table->horizontalHeader()->restoreState(settings.value(columnsKey()).toByteArray());
}

void EventLogPanel::setFilter(const QString &text)
{
    filter = text;
    shownRows = 0;
    filteredRows = 0;
    sliceTimer.start();
}

void EventLogPanel::takeEntries(const QList<EventLog::Entry> &entries)
{
    waiting += entries;
    if (!sliceTimer.isActive())
        sliceTimer.start();
}

void EventLogPanel::startAgain()
{
    waiting.clear();
    taken = 0;
    shownRows = 0;
    filteredRows = 0;
    table->clear();
    sliceTimer.start();
}

void EventLogPanel::runSlice()
{
    const QDeadlineTimer deadline(sliceMs, Qt::PreciseTimer);
    table->setUpdatesEnabled(false); // else the table looks for the place of each hidden row
    while (taken < waiting.size() && !deadline.hasExpired())
        table->addEntry(waiting.at(taken++));
    while (filteredRows < table->rowCount() && !deadline.hasExpired())
        filterRow(filteredRows++);
    table->setUpdatesEnabled(true);
    if (taken == waiting.size()) {
        waiting.clear();
        taken = 0;
    }
    refreshState();
    if (!waiting.isEmpty() || filteredRows < table->rowCount())
        sliceTimer.start();
}

void EventLogPanel::filterRow(int row)
{
    const bool shown
        = filter.isEmpty()
          || table->item(row, messageColumn)->text().contains(filter, Qt::CaseInsensitive);
    if (table->isRowHidden(row) == shown)
        table->setRowHidden(row, !shown);
    shownRows += shown ? 1 : 0;
}

void EventLogPanel::followEnd()
{
    following = true;
    table->verticalScrollBar()->setValue(table->verticalScrollBar()->maximum());
    refreshState();
}

void EventLogPanel::refreshState()
{
    const QLocale locale;
    const int rows = table->rowCount();
    QString text;
    if (rows == 0)
        text = tr("No events: nothing was damaged, lost or unknown");
    else if (filter.isEmpty())
        text = tr("Entries: %1").arg(locale.toString(rows));
    else
        text = tr("Entries: %1 of %2").arg(locale.toString(shownRows), locale.toString(rows));
    if (!following)
        text += tr(", not following");
    state->setText(text);
    followButton->setEnabled(!following);
}

} // namespace corvane
