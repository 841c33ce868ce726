#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>

class MessageInfo;
class QAction;
class QDockWidget;
class QLabel;
class QMenu;
class QSettings;
class QSortFilterProxyModel;
class QTreeView;

namespace corvane {

class AbstractPlotPanel;
class BytesPanel;
class EventLogPanel;
class ExportController;
class FormPanel;
class LatestMessages;
class MessageTreePanel;
class MessageTypeModel;
class SendersPanel;
class Session;
class StatisticsPanel;
class TransportBar;
class WatchPanel;

/** The inspector's window: panels that each show another side of what is received, live. */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /** Neither \a session nor \a settings is owned; both must outlive the window. */
    MainWindow(Session &session, QSettings &settings, QWidget *parent = nullptr);

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
    void createTypeView();
    void createPanels();
    void createPlot(QDockWidget *neighbour);
    void createMenus();
    void createStatusBar();
    void connectAll();
    void connectRowActions();
    static void raisePanel(QWidget *panel);
    QDockWidget *
    addPanel(QWidget *panel, const QString &name, const QString &title, Qt::DockWidgetArea area);
    void restoreLayout();
    void chooseFirstType();
    void showChosenType();
    void chooseType(const MessageInfo *type);
    void setPaused(bool paused);
    void refreshCounts();
    QString getPlaceholderText() const;

    Session &session;
    QSettings &settings;
    LatestMessages *latest; ///< Owned as a child.
    MessageTypeModel *types; ///< Owned as a child.
    QSortFilterProxyModel *sortedTypes; ///< Owned as a child.
    ExportController *exports; ///< Owned as a child.
    QTreeView *typeView = nullptr; ///< Owned as a child.
    MessageTreePanel *tree = nullptr; ///< Owned as a child.
    FormPanel *form = nullptr; ///< Owned as a child.
    WatchPanel *watch = nullptr; ///< Owned as a child.
    BytesPanel *bytes = nullptr; ///< Owned as a child.
    StatisticsPanel *statistics = nullptr; ///< Owned as a child.
    SendersPanel *senders = nullptr; ///< Owned as a child.
    AbstractPlotPanel *plot = nullptr; ///< Owned as a child; null in a build without it.
    TransportBar *transport = nullptr; ///< Owned as a child.
    QMenu *viewMenu = nullptr; ///< Owned as a child.
    QAction *pauseAction = nullptr; ///< Owned as a child.
    QLabel *stateLabel = nullptr; ///< Owned as a child.
    QLabel *totalsLabel = nullptr; ///< Owned as a child.
    QTimer countsTimer;
    QElapsedTimer sinceCounts;
    quint64 framesAtCounts = 0;
    quint64 framesAtPause = 0;
};

} // namespace corvane
