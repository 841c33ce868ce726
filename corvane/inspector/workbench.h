#pragma once

#include "options.h"
#include "plaintooltips.h"

#include <QObject>

#include <memory>

class EventLog;
class QSettings;
class QWidget;

namespace corvane {

class MainWindow;
class NoticeArea;
class OpenPanel;
class Session;
struct SourceChoice;

/** What is open in the program: one source in one window, and the panel that opens another. */
class Workbench : public QObject
{
    Q_OBJECT

public:
    /** \a options: what holds for every source. \a settings: not owned, must outlive the object. */
    Workbench(const Options &options, QSettings &settings, QObject *parent = nullptr);
    ~Workbench() override;

    /** Closes what is open and opens the source of \a options; one line for each error. */
    QStringList open(const Options &options);
    /** Shows the panel in which people choose a source. */
    void showOpenPanel();
    /** Asks for the definitions of the source of \a options, which names none. */
    void askForDefinitions(const Options &options);
    /** Where the window that people see says things. */
    NoticeArea &getNotices() const;
    /** The window that people see: that of the source, else the panel. */
    QWidget *getWindow() const;

private:
    void openChosen(const SourceChoice &choice);
    void takeFiles(const QStringList &files);
    void createWindow(const Options &options);
    void traceEvents(EventLog &log);

    PlainToolTips plainToolTips;
    Options options;
    QSettings &settings;
    std::unique_ptr<OpenPanel> openPanel;
    std::unique_ptr<Session> session;
    qsizetype repeatedEvents = 0; ///< So many events of the log come that were traced before.
    std::unique_ptr<MainWindow> window; ///< Null while no source is open. Gone before the session.
};

} // namespace corvane
