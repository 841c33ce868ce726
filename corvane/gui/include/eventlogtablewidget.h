#pragma once

#include "corvanegui_export.h"
#include "eventlog.h"

#include <QTableWidget>

/** Shows an event log, oldest first: a row for each entry, live, until the log is cleared. */
class CORVANEGUI_EXPORT EventLogTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    /** \a eventLog: not owned; with null there is nothing to show. */
    explicit EventLogTableWidget(EventLog *eventLog, QWidget *parent = nullptr);
    ~EventLogTableWidget() override;

    /** Shows \a eventLog as well: rows that are there stay, and a former log is still followed. */
    void setEventLog(EventLog *eventLog);

public Q_SLOTS:
    void addEntry(EventLog::Entry entry);
    /** Removes all rows; the columns stay. */
    void clear();

private:
    EventLog *eventLog = nullptr; ///< Not owned.
};
