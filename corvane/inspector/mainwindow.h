#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>

class Message;
class MessageInfo;
class MessageWidget;
class QLabel;
class QScrollArea;
class QSortFilterProxyModel;
class QTreeView;

namespace corvane {

class LatestMessages;
class MessageTypeModel;
class Session;

/** The inspector's window: the message types seen so far, and a form of the chosen one, live. */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /** \a session is not owned and must outlive the window. */
    explicit MainWindow(Session &session, QWidget *parent = nullptr);

    /** Shows \a text in the bar at the bottom until the next one. */
    void showState(const QString &text);

private:
    void createTypeView();
    void createStatusBar();
    void connectAll();
    QWidget *createFormSide();
    void chooseFirstType(const MessageInfo *type);
    void showChosenType();
    void refreshForm();
    void refreshCounts();
    QString getPlaceholderText() const;

    Session &session;
    LatestMessages *latest; ///< Owned as a child.
    MessageTypeModel *types; ///< Owned as a child.
    QSortFilterProxyModel *sortedTypes; ///< Owned as a child.
    QTreeView *typeView = nullptr; ///< Owned as a child.
    QLabel *heading = nullptr; ///< Owned as a child.
    QLabel *description = nullptr; ///< Owned as a child.
    QScrollArea *formArea = nullptr; ///< Owned as a child.
    MessageWidget *form = nullptr; ///< Owned as a child.
    QLabel *stateLabel = nullptr; ///< Owned as a child.
    QLabel *totalsLabel = nullptr; ///< Owned as a child.
    QTimer formTimer;
    QTimer countsTimer;
    QElapsedTimer sinceCounts;
    quint64 framesAtCounts = 0;
    const Message *shownMessage = nullptr; ///< Compared only; may be gone.
    const MessageInfo *chosenType = nullptr; ///< Not owned.
};

} // namespace corvane
