#pragma once

#include <QMainWindow>
#include <QTimer>

#include <optional>

class QAction;
class QDockWidget;
class QMenu;
class QSettings;
class QToolBar;

namespace corvane {

class AbstractPlotPanel;
class ConfidentialSwitch;
class ElidingLabel;
class BytesPanel;
class EventLogPanel;
class ExportController;
class FormPanel;
class HelpPanel;
class LatestMessages;
class MessageTreePanel;
class MessageTypeView;
class NoticeArea;
class RecordController;
class SendersPanel;
class SenderChooser;
class Session;
class StatisticsPanel;
class StatusFigures;
class TransportBar;
class ViewSettings;
class WatchPanel;

/** The inspector's window: panels that each show another side of what is received, live. */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /** Neither \a session nor \a settings is owned; both must outlive the window. */
    MainWindow(Session &session, QSettings &settings, QWidget *parent = nullptr);
    ~MainWindow() override;

    /** Where the window says things; owned by it. */
    NoticeArea *getNotices() const { return notices; }

    /** Shows \a text in the bar at the bottom until the next one. */
    void showState(const QString &text);

Q_SIGNALS:
    /** People want to choose another source. */
    void openRequested();
    /** People dropped files onto the window. */
    void filesDropped(const QStringList &files);

protected:
    /** Remembers the layout. */
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void createPanels();
    void createPlot(QDockWidget *neighbour);
    void createActions();
    void createMenus();
    void createToolBar();
    void createNoticeBar();
    void createHelp();
    void createStatusBar();
    void connectAll();
    void connectRowActions();
    static void raisePanel(QWidget *panel);
    QDockWidget *
    addPanel(QWidget *panel, const QString &name, const QString &title, Qt::DockWidgetArea area);
    void shareOutRoom();
    void restoreLayout();
    void chooseFirstType();
    void showChosenType();
    void setPaused(bool paused);
    void chooseSender(std::optional<quint32> sender);
    void applyViewSettings();
    void showHelp();
    void showVersions();
    void refreshCounts();
    QString getPlaceholderText() const;
    void setSourceEnd(const QString &text);

    Session &session;
    QSettings &settings;
    LatestMessages *latest; ///< Owned as a child.
    MessageTypeView *types; ///< Owned as a child.
    NoticeArea *notices; ///< Owned as a child.
    ConfidentialSwitch *confidential; ///< Owned; gone before the views that it changes.
    ViewSettings *viewSettings; ///< Owned as a child.
    RecordController *record; ///< Owned as a child.
    ExportController *exports; ///< Owned as a child.
    MessageTreePanel *tree = nullptr; ///< Owned as a child.
    FormPanel *form = nullptr; ///< Owned as a child.
    WatchPanel *watch = nullptr; ///< Owned as a child.
    BytesPanel *bytes = nullptr; ///< Owned as a child.
    StatisticsPanel *statistics = nullptr; ///< Owned as a child.
    EventLogPanel *events = nullptr; ///< Owned as a child.
    SendersPanel *senders = nullptr; ///< Owned as a child.
    AbstractPlotPanel *plot = nullptr; ///< Owned as a child; null in a build without it.
    HelpPanel *help = nullptr; ///< Owned as a child.
    QDockWidget *helpDock = nullptr; ///< Owned as a child.
    TransportBar *transport = nullptr; ///< Owned as a child.
    QMenu *viewMenu = nullptr; ///< Owned as a child.
    QToolBar *noticeBar = nullptr; ///< Owned as a child.
    SenderChooser *senderChooser = nullptr; ///< Owned as a child.
    QAction *senderAction = nullptr; ///< Shows and hides the chooser. Owned as a child.
    QAction *openAction = nullptr; ///< Owned as a child.
    QAction *pauseAction = nullptr; ///< Owned as a child.
    ElidingLabel *stateLabel = nullptr; ///< Owned as a child.
    StatusFigures *figures = nullptr; ///< Owned as a child.
    QString sourceEnd; ///< How the source has ended; empty while it has not.
    QTimer countsTimer;
};

} // namespace corvane
