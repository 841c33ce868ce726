#include "eventlogtablewidget.h"

#include "memleaktracer.h"
#include "translations.h"

namespace {

enum Column {
    TimeColumn,
    MessageColumn,
    ColumnCount
};

} // namespace

EventLogTableWidget::EventLogTableWidget(EventLog *eventLog, QWidget *parent)
    : QTableWidget(parent)
{
    corvane::installTranslations();
    MemLeakTracer::getInstance()->doAllocateObject(QStringLiteral("EventLogTableWidget"));
    const QStringList labels{tr("Time"), tr("Message")};
    setColumnCount(ColumnCount);
    setHorizontalHeaderLabels(labels);
    setEventLog(eventLog);
}

EventLogTableWidget::~EventLogTableWidget()
{
    MemLeakTracer::getInstance()->doDeallocateObject(QStringLiteral("EventLogTableWidget"));
}

void EventLogTableWidget::setEventLog(EventLog *eventLog)
{
    this->eventLog = eventLog;
    if (eventLog == nullptr)
        return;
    connect(eventLog, SIGNAL(newEntry(EventLog::Entry)), SLOT(addEntry(EventLog::Entry)));
    connect(eventLog, SIGNAL(cleared()), SLOT(clear()));
    const auto entries = eventLog->getEntries();
    for (const EventLog::Entry &entry : entries)
        addEntry(entry);
}

void EventLogTableWidget::addEntry(EventLog::Entry entry)
{
    const auto makeCell = [](const QString &text) {
        auto *cell = new QTableWidgetItem(text);
        cell->setFlags(Qt::ItemIsEnabled);
        return cell;
    };
    const int row = rowCount();
    insertRow(row);
    const QString time = entry.time.isValid() ? entry.time.toString(Qt::ISODate) : tr("N/A");
    setItem(row, TimeColumn, makeCell(time));
    setItem(row, MessageColumn, makeCell(entry.event.getMessage()));
}

void EventLogTableWidget::clear()
{
    setRowCount(0); // row by row, each would be searched for in the table
}
