#pragma once

#include <QPointer>
#include <QTimer>
#include <QToolBar>

class QComboBox;
class QLabel;
class QProgressBar;
class QSlider;

namespace corvane {

class Playback;

/**
 * The controls of a recording: play and pause, one message, speed, place and time; and how far the
 * file has been indexed, with a button that ends that.
 *
 * The slider goes by bytes and not by time, so that the night between two flights takes no space,
 * and recordings without times have one, too. The bar is hidden while there is no playback.
 *
 * Keys while the bar has the focus: Space plays and pauses, Right steps, Left goes back a second
 * (with Ctrl ten seconds, and Ctrl+Right ten seconds on), Home and End go to the ends. Everywhere
 * in the window: Ctrl+Space and Ctrl+. for play or pause, and step.
 */
class TransportBar : public QToolBar
{
    Q_OBJECT

public:
    explicit TransportBar(QWidget *parent = nullptr);
    ~TransportBar() override;

    /** \a newPlayback: not owned; null hides the bar. It may be deleted at any time. */
    void setPlayback(Playback *newPlayback);
    /** Shows times in UTC, else in the time zone of this machine. */
    void setUtc(bool newUtc);

    /** For a menu. */
    QAction *getPlayAction() const { return playAction; }

    QAction *getStepAction() const { return stepAction; }

    /** Without a playback it stays hidden. */
    void setVisible(bool visible) override;

protected:
    /** Of the controls: keys that they do not use themselves. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createActions();
    void createControls();
    void createProgress();
    void connectPlayback();
    void togglePlaying();
    void stepOnce();
    void chooseSpeed(int index);
    void seekToSlider(int value);
    void seekBy(qint64 distanceUs);
    bool handleKey(int key, Qt::KeyboardModifiers modifiers, bool onSlider);
    void showState();
    void showSpeed();
    void showPlace();
    void showProgress();
    void hideProgress();
    QString getPlaceText() const;

    QPointer<Playback> playback; ///< Not owned; may be null.
    QAction *playAction = nullptr; ///< Owned as a child.
    QAction *stepAction = nullptr; ///< Owned as a child.
    QComboBox *speedBox = nullptr; ///< Owned as a child.
    QSlider *slider = nullptr; ///< Owned as a child.
    QLabel *placeLabel = nullptr; ///< Owned as a child.
    QProgressBar *progressBar = nullptr; ///< Owned as a child.
    QAction *progressAction = nullptr; ///< Shows and hides the progress bar.
    QAction *cancelAction = nullptr; ///< Owned as a child.
    bool utc = false;
    QTimer refreshTimer; ///< Runs while it plays.
};

} // namespace corvane
