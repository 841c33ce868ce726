#pragma once

#include "corvaneevent.h"
#include "corvaneframework_export.h"

#include <QDateTime>
#include <QList>
#include <QMetaType>
#include <QObject>

#include <memory>

namespace corvane {
class EventLogData;
} // namespace corvane

/**
 * The events of a stream, oldest first.
 *
 * The log keeps a limited number of entries. When it is full it drops its older half, says so in
 * an entry of its own, and lets its followers start again: cleared(), then newEntry() for each
 * entry that is kept.
 */
class CORVANEFRAMEWORK_EXPORT EventLog : public QObject
{
    Q_OBJECT

public:
    struct Entry
    {
        QDateTime time; ///< Invalid where the time of the event is not known.
        CorvaneEvent event;
    };

    explicit EventLog(QObject *parent = nullptr);
    ~EventLog() override;

    QList<EventLog::Entry> getEntries() const;
    void addEntry(const EventLog::Entry &entry);
    void clear();

Q_SIGNALS:
    void newEntry(EventLog::Entry entry);
    void cleared();

private:
    void dropOlderHalf();

    std::unique_ptr<corvane::EventLogData> d;
};

Q_DECLARE_METATYPE(EventLog::Entry)
