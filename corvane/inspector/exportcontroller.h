#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

class QAction;
class QIODevice;
class QWidget;

namespace corvane {

class ExportBar;
class ExportJob;
class ExportWriter;
class Session;
struct ExportOrder;

/**
 * The exports of a window: the actions for its menu, and a bar that tells how an export goes.
 *
 * A regular file is read again from its start; what any other source sends is exported from now on,
 * until it is stopped or the source ends. One export of messages runs at a time.
 */
class ExportController : public QObject
{
    Q_OBJECT

public:
    /** \a session must outlive the controller. \a window becomes the parent. */
    ExportController(Session &session, QWidget *window);
    ~ExportController() override;

    /** Owned by the controller. */
    const QList<QAction *> &getActions() const { return actions; }

    /** To be put above the views; hidden while there is nothing to tell. Owned by \a window. */
    ExportBar *getBar() const { return bar; }

    bool isRunning() const { return job != nullptr || writer != nullptr; }

    void exportMessages(const ExportOrder &order);
    void exportStatistics(const QString &file);
    void exportEventLog(const QString &file);

public Q_SLOTS:
    /** Asks what to export, and begins. */
    void askForMessages();
    void askForStatistics();
    void askForEventLog();
    /** Ends the running export; what was exported stays. */
    void stop();

private:
    QAction *
    addAction(const QString &text, const QString &toolTip, void (ExportController::*slot)());
    bool readsAgain() const;
    QString getHint() const;
    void readAgain(const ExportOrder &order);
    void followSession(const ExportOrder &order);
    void exportTable(const QString &file, const std::function<bool(QIODevice &)> &write);
    quint64 getCount() const;
    void showProgress();
    /** \a error: what went wrong, or nothing. */
    void finish(const QString &error);

    Session &session;
    QWidget *window; ///< Not owned; the parent.
    ExportBar *bar; ///< Owned by the window.
    QList<QAction *> actions; ///< Owned as children.
    ExportJob *job = nullptr; ///< Owned as a child; while a file is read again.
    ExportWriter *writer = nullptr; ///< Owned as a child; while the session is followed.
    QString path; ///< Of the running export.
    QTimer progressTimer;
};

} // namespace corvane
