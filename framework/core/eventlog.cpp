#include "eventlog.h"

namespace {
constexpr qsizetype maximumEntries = 20'000;
} // namespace

namespace corvane {
class EventLogData
{
public:
    QList<EventLog::Entry> entries;
};
} // namespace corvane

EventLog::EventLog(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<corvane::EventLogData>())
{
    qRegisterMetaType<EventLog::Entry>("EventLog::Entry");
}

EventLog::~EventLog() = default;

QList<EventLog::Entry> EventLog::getEntries() const
{
    return d->entries;
}

void EventLog::addEntry(const EventLog::Entry &entry)
{
    if (d->entries.size() >= maximumEntries)
        dropOlderHalf();
    d->entries.append(entry);
    Q_EMIT newEntry(entry);
}

void EventLog::dropOlderHalf()
{
    const auto dropped = d->entries.size() / 2;
    const QString note = tr("%1 older entries were dropped: the log is full.").arg(dropped);
    d->entries.remove(0, dropped);
    d->entries.prepend({d->entries.constFirst().time, CorvaneEvent(CorvaneEvent::Other, note)});
    Q_EMIT cleared();
    const auto kept = d->entries;
    for (const EventLog::Entry &entry : kept)
        Q_EMIT newEntry(entry);
}

void EventLog::clear()
{
    d->entries.clear();
    Q_EMIT cleared();
}
