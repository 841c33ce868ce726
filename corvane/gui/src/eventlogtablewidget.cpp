#include "eventlogtablewidget.h"

#include "memleaktracer.h"
#include "translations.h"

#include <utility>

namespace {

enum Column {
    TimeColumn,
    MessageColumn,
    ColumnCount
};

/** A cell that shares its contents with the log: of a full one there are tens of thousands. */
template <typename Contents>
class SharingCell final : public QTableWidgetItem
{
public:
    explicit SharingCell(Contents contents)
        : contents(std::move(contents))
    {
        setFlags(Qt::ItemIsEnabled);
    }

    QVariant data(int role) const override
    {
        const QVariant ownValue = QTableWidgetItem::data(role);
        const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
        return isText && !ownValue.isValid() ? textOf(contents) : ownValue;
    }

    QTableWidgetItem *clone() const override { return new SharingCell(*this); }

private:
    static QString textOf(const QString &text) { return text; }

    static QString textOf(const QDateTime &time)
    {
        return time.isValid() ? time.toString(Qt::ISODate) : EventLogTableWidget::tr("N/A");
    }

    Contents contents;
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

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is fixed
void EventLogTableWidget::addEntry(EventLog::Entry entry)
{
    const int row = rowCount();
    insertRow(row);
    setItem(row, TimeColumn, new SharingCell(entry.time));
    setItem(row, MessageColumn, new SharingCell(entry.event.getMessage()));
}

void EventLogTableWidget::clear()
{
    setRowCount(0); // row by row, each would be searched for in the table
}
