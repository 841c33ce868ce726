#pragma once

#include "eventroundprobe.h"

#include <QElapsedTimer>
#include <QWidget>

class QLabel;

namespace corvane {

class ElidingLabel;
class Session;

/** How the watching goes, in a few figures for the bar at the bottom of the window. */
class StatusFigures : public QWidget
{
    Q_OBJECT

public:
    /** \a session: not owned, must outlive the figures. */
    explicit StatusFigures(const Session &session, QWidget *parent = nullptr);

    void refresh();
    /** While the views are paused, the figures tell what has come meanwhile. */
    void setPaused(bool paused);

private:
    QString getTotalsText(quint64 perSecond) const;
    void showPause();
    void showBacklog();
    void showLongestRound();

    const Session &session;
    EventRoundProbe probe;
    QLabel *pause; ///< Owned as a child. Shown while paused.
    ElidingLabel *totals; ///< Owned as a child.
    QLabel *backlog; ///< Owned as a child.
    QLabel *longestRound; ///< Owned as a child.
    QElapsedTimer sinceRefresh;
    quint64 framesAtRefresh = 0;
    quint64 framesAtPause = 0;
    QElapsedTimer sincePause; ///< Invalid while not paused.
};

} // namespace corvane
