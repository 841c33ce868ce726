#include "eventlogpanel.h"

#include "eventlog.h"
#include "eventlogtablewidget.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace corvane {

namespace {

constexpr int messageColumn = 1;

} // namespace

EventLogPanel::EventLogPanel(EventLog &log, QWidget *parent)
    : QWidget(parent)
    , table(new EventLogTableWidget(&log, this))
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
    // The table, which was connected first, has the row already.
    connect(&log, &EventLog::newEntry, this, [this] {
        filterRow(table->rowCount() - 1);
        refreshState();
    });
    connect(&log, &EventLog::cleared, this, [this] {
        shownRows = 0;
        refreshState();
    });
    setFilter({});
}

void EventLogPanel::createTable()
{
    table->setAccessibleName(tr("Event log"));
    table->setWordWrap(false);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setHighlightSections(false);
    table->setColumnWidth(0, fontMetrics().averageCharWidth() * 24);
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

void EventLogPanel::setFilter(const QString &text)
{
    filter = text;
    shownRows = 0;
    table->setUpdatesEnabled(false);
    for (int row = 0; row < table->rowCount(); ++row)
        filterRow(row);
    table->setUpdatesEnabled(true);
    refreshState();
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
        text = tr("%1 entries").arg(locale.toString(rows));
    else
        text = tr("%1 of %2 entries").arg(locale.toString(shownRows), locale.toString(rows));
    if (!following)
        text += tr(", not following");
    state->setText(text);
    followButton->setEnabled(!following);
}

} // namespace corvane
