#pragma once

#include "eventlog.h"

#include <QTimer>
#include <QWidget>

class EventLogTableWidget;
class QLabel;
class QLineEdit;
class QSettings;
class QToolButton;

namespace corvane {

class LogTimeDelegate;

/**
 * The event log, which follows its end until people scroll back and again once they scroll to the
 * end; only the entries with a text in them, if one is typed.
 *
 * Entries enter the table in slices, since thousands may come at once and each is a row.
 */
class EventLogPanel : public QWidget
{
    Q_OBJECT

public:
    /** \a log: not owned, must outlive the panel. */
    explicit EventLogPanel(EventLog &log, QWidget *parent = nullptr);
    ~EventLogPanel() override;

    /** Shows the entries that contain \a text, in any case of letters; all for an empty text. */
    void setFilter(const QString &text);
    /** Shows times in UTC, else in the time zone of this machine. */
    void setUtc(bool utc);

    bool isFollowing() const { return following; }

    void saveSettings(QSettings &settings) const;
    void restoreSettings(const QSettings &settings);

protected:
    void changeEvent(QEvent *event) override;

private:
    static constexpr int sliceMs = 8;

    void createTable();
    void takeEntries(const QList<EventLog::Entry> &entries);
    void startAgain();
    void runSlice();
    void fitRowHeight();
    void filterRow(int row);
    void followEnd();
    void refreshState();

    EventLogTableWidget *table; ///< Owned as a child.
    LogTimeDelegate *timeDelegate; ///< Owned as a child.
    QLineEdit *filterEdit; ///< Owned as a child.
    QToolButton *followButton; ///< Owned as a child.
    QLabel *state; ///< Owned as a child.
    QString filter;
    int shownRows = 0;
    int filteredRows = 0; ///< So many rows from the top are shown or hidden as they should be.
    QList<EventLog::Entry> waiting; ///< To become rows.
    qsizetype taken = 0; ///< So many of them are rows already.
    QTimer sliceTimer;
    bool following = true;
};

} // namespace corvane
