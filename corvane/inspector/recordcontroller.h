#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

class QAction;
class QWidget;

namespace corvane {

class NoticeArea;
class Session;

/** The recording of a window: an action that starts and stops it, and a line that tells of it. */
class RecordController : public QObject
{
    Q_OBJECT

public:
    /** \a session and \a notices must outlive the controller. \a window becomes the parent. */
    RecordController(Session &session, NoticeArea &notices, QWidget *window);

    /** Owned by the controller. */
    QAction *getAction() const { return action; }

    /** Records to \a path from now on, or says why that cannot be. */
    void start(const QString &path);

public Q_SLOTS:
    /** Asks where to record to, or ends the recording. */
    void toggle();
    void stop();

private:
    void askForPath();
    void showState();
    void showProgress();
    void fail(const QString &message);
    QString getProposedName() const;

    Session &session;
    NoticeArea &notices;
    QWidget *window; ///< Not owned; the parent.
    QAction *action; ///< Owned as a child.
    QTimer progressTimer; ///< Runs while it records.
};

} // namespace corvane
