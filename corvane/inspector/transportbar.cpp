#include "transportbar.h"

#include "fileindex.h"
#include "icons.h"
#include "playback.h"

#include <QAction>
#include <QComboBox>
#include <QDateTime>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QProxyStyle>
#include <QSignalBlocker>
#include <QSlider>

#include <cstdlib>

namespace corvane {

namespace {

constexpr int sliderSteps = 10'000;
constexpr int progressSteps = 1000;
constexpr int refreshIntervalMs = 100;
constexpr qint64 usPerSecond = 1'000'000;
constexpr double offeredSpeeds[] = {0.1, 0.25, 0.5, 1, 2, 5, 10, 20, 50, 100};
constexpr double withoutWaiting = 0.0; ///< In the box of speeds, which has no other entry for it.

/** A click into the groove of a slider goes there, as people know it from players. */
class JumpingSliderStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint,
                  const QStyleOption *option,
                  const QWidget *widget,
                  QStyleHintReturn *result) const override
    {
        if (hint == SH_Slider_AbsoluteSetButtons)
            return Qt::LeftButton;
        return QProxyStyle::styleHint(hint, option, widget, result);
    }
};

/** "1:02.5", or with hours "1:01:02.5". */
QString durationText(qint64 durationUs)
{
    constexpr qint64 tenthsPerSecond = 10;
    constexpr qint64 tenthsPerMinute = 60 * tenthsPerSecond;
    constexpr qint64 tenthsPerHour = 60 * tenthsPerMinute;
    const qint64 tenths = std::abs(durationUs) * tenthsPerSecond / usPerSecond;
    const auto twoDigits
        = [](qint64 value) { return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0')); };
    const qint64 hours = tenths / tenthsPerHour;
    const qint64 minutes = tenths % tenthsPerHour / tenthsPerMinute;
    QString text = durationUs < 0 ? QStringLiteral("-") : QString();
    text += hours > 0 ? QStringLiteral("%1:%2").arg(QString::number(hours), twoDigits(minutes))
                      : QString::number(minutes);
    return text
           + QStringLiteral(":%1.%2").arg(twoDigits(tenths % tenthsPerMinute / tenthsPerSecond),
                                          QString::number(tenths % tenthsPerSecond));
}

int scaled(qint64 part, qint64 whole, int steps)
{
    return whole > 0
               ? static_cast<int>(static_cast<double>(part) / static_cast<double>(whole) * steps)
               : 0;
}

} // namespace

TransportBar::TransportBar(QWidget *parent)
    : QToolBar(tr("Playback"), parent)
{
    setObjectName(QStringLiteral("transport"));
    createActions();
    createControls();
    createProgress();
    refreshTimer.setInterval(refreshIntervalMs);
    connect(&refreshTimer, &QTimer::timeout, this, &TransportBar::showPlace);
    setPlayback(nullptr);
}

TransportBar::~TransportBar() = default;

void TransportBar::createActions()
{
    playAction = addAction(tr("Play"), this, &TransportBar::togglePlaying);
    playAction->setShortcut(tr("Ctrl+Space"));
    stepAction = addAction(makeIcon(QStringLiteral("media-skip-forward")), tr("Next Message"), this,
                           &TransportBar::stepOnce);
    stepAction->setShortcut(tr("Ctrl+."));
    stepAction->setToolTip(tr("Read on to the next message (Right, %1)")
                               .arg(stepAction->shortcut().toString(QKeySequence::NativeText)));
    for (QAction *action : {playAction, stepAction}) {
        widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
        widgetForAction(action)->installEventFilter(this);
    }
}

void TransportBar::createControls()
{
    speedBox = new QComboBox(this);
    speedBox->setAccessibleName(tr("Speed"));
    speedBox->setToolTip(tr("How fast the recording is played"));
    for (const double speed : offeredSpeeds)
        speedBox->addItem(tr("%1 x").arg(speed), speed);
    speedBox->addItem(tr("No waiting"), withoutWaiting);
    connect(speedBox, &QComboBox::activated, this, &TransportBar::chooseSpeed);
    addWidget(speedBox);

    slider = new QSlider(Qt::Horizontal, this);
    slider->setAccessibleName(tr("Position"));
    slider->setToolTip(tr("The place in the recording"));
    slider->setRange(0, sliderSteps);
    slider->setSingleStep(sliderSteps / 100);
    slider->setPageStep(sliderSteps / 20);
    auto *style = new JumpingSliderStyle;
    style->setParent(slider);
    slider->setStyle(style);
    slider->installEventFilter(this);
    connect(slider, &QSlider::valueChanged, this, &TransportBar::seekToSlider);
    addWidget(slider);

    placeLabel = new QLabel(this);
    placeLabel->setAccessibleName(tr("Time"));
    placeLabel->setTextFormat(Qt::PlainText);
    placeLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // Digits that change do not move the slider.
    placeLabel->setMinimumWidth(
        fontMetrics().horizontalAdvance(QStringLiteral("  0:00:00.0 / 0:00:00.0")));
    addWidget(placeLabel);
}

void TransportBar::createProgress()
{
    progressBar = new QProgressBar(this);
    progressBar->setAccessibleName(tr("Indexing"));
    progressBar->setToolTip(tr("How much of the file has been indexed: places behind cannot be "
                               "reached yet"));
    progressBar->setFormat(tr("Indexing: %p %"));
    progressBar->setRange(0, progressSteps);
    progressBar->setMaximumWidth(fontMetrics().averageCharWidth() * 30);
    progressAction = addWidget(progressBar);
    cancelAction = addAction(tr("Stop Indexing"), this, [this] {
        if (playback)
            playback->cancelIndexing();
        hideProgress();
    });
    widgetForAction(cancelAction)->setFocusPolicy(Qt::TabFocus);
    cancelAction->setToolTip(tr("Places that have not been indexed cannot be reached then"));
}

void TransportBar::setPlayback(Playback *newPlayback)
{
    if (playback) {
        playback->disconnect(this);
        playback->getIndex().disconnect(this);
    }
    playback = newPlayback;
    if (playback)
        connectPlayback();
    hideProgress();
    showState();
    QToolBar::setVisible(playback != nullptr);
    toggleViewAction()->setVisible(playback != nullptr);
}

void TransportBar::setUtc(bool newUtc)
{
    utc = newUtc;
    showPlace();
}

void TransportBar::connectPlayback()
{
    connect(playback, &Playback::stateChanged, this, &TransportBar::showState);
    connect(playback, &Playback::arrived, this, &TransportBar::showPlace);
    connect(playback, &QObject::destroyed, this, [this] { setPlayback(nullptr); });
    const FileIndex &index = playback->getIndex();
    connect(&index, &FileIndex::progressed, this, &TransportBar::showProgress);
    connect(&index, &FileIndex::finished, this, &TransportBar::hideProgress);
    connect(&index, &FileIndex::failed, this, &TransportBar::hideProgress);
    connect(&index, &FileIndex::finished, this, &TransportBar::showPlace);
}

void TransportBar::setVisible(bool visible)
{
    QToolBar::setVisible(visible && playback);
}

bool TransportBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QToolBar::eventFilter(watched, event);
    const auto *press = static_cast<QKeyEvent *>(event);
    return handleKey(press->key(), press->modifiers(), watched == slider)
           || QToolBar::eventFilter(watched, event);
}

bool TransportBar::handleKey(int key, Qt::KeyboardModifiers modifiers, bool onSlider)
{
    constexpr qint64 smallStepUs = usPerSecond;
    constexpr qint64 largeStepUs = 10 * usPerSecond;
    const bool isLarge = modifiers.testFlag(Qt::ControlModifier);
    // A button with the focus takes the space bar itself.
    if (key == Qt::Key_Space && onSlider)
        togglePlaying();
    else if (key == Qt::Key_Right && isLarge)
        seekBy(largeStepUs);
    else if (key == Qt::Key_Right)
        stepOnce();
    else if (key == Qt::Key_Left)
        seekBy(isLarge ? -largeStepUs : -smallStepUs);
    else
        return false;
    return true;
}

void TransportBar::togglePlaying()
{
    if (!playback)
        return;
    if (playback->isPlaying())
        playback->pause();
    else
        playback->play();
}

void TransportBar::stepOnce()
{
    if (playback)
        playback->step();
}

void TransportBar::chooseSpeed(int index)
{
    if (!playback)
        return;
    const double speed = speedBox->itemData(index).toDouble();
    playback->setSpeed(speed > 0 ? std::optional(speed) : std::nullopt);
}

void TransportBar::seekToSlider(int value)
{
    if (playback)
        playback->seek(
            static_cast<qint64>(static_cast<double>(playback->getSize()) * value / sliderSteps));
}

/** In a recording without times a second is a hundredth of it. */
void TransportBar::seekBy(qint64 distanceUs)
{
    if (!playback)
        return;
    if (const std::optional<qint64> timeUs = playback->getTimeUs())
        playback->seekToTime(*timeUs + distanceUs);
    else
        playback->seek(playback->getPosition()
                       + playback->getSize() / 100 * distanceUs / usPerSecond);
}

void TransportBar::showState()
{
    const bool isPlaying = playback && playback->isPlaying();
    playAction->setText(isPlaying ? tr("Pause") : tr("Play"));
    playAction->setIcon(makeIcon(isPlaying ? QStringLiteral("media-playback-pause")
                                           : QStringLiteral("media-playback-start")));
    playAction->setToolTip(
        tr("%1 (Space, %2)")
            .arg(playAction->text(), playAction->shortcut().toString(QKeySequence::NativeText)));
    if (isPlaying)
        refreshTimer.start();
    else
        refreshTimer.stop();
    showSpeed();
    showPlace();
}

void TransportBar::showSpeed()
{
    if (!playback)
        return;
    const double speed = playback->getSpeed().value_or(withoutWaiting);
    if (speedBox->findData(speed) < 0)
        speedBox->addItem(tr("%1 x").arg(speed), speed);
    speedBox->setCurrentIndex(speedBox->findData(speed));
}

void TransportBar::showPlace()
{
    if (!playback)
        return;
    if (!slider->isSliderDown()) {
        const QSignalBlocker blocker(slider);
        slider->setValue(scaled(playback->getPosition(), playback->getSize(), sliderSteps));
    }
    placeLabel->setText(getPlaceText());
    const std::optional<qint64> timeUs = playback->getTimeUs();
    placeLabel->setToolTip(
        timeUs ? QDateTime::fromMSecsSinceEpoch(*timeUs / 1000, utc ? Qt::UTC : Qt::LocalTime)
                     .toString(Qt::ISODateWithMs)
               : QString());
}

QString TransportBar::getPlaceText() const
{
    const FileIndex &index = playback->getIndex();
    const std::optional<qint64> timeUs = playback->getTimeUs();
    const std::optional<qint64> firstUs = index.getFirstTimeUs();
    const std::optional<qint64> lastUs = index.getLastTimeUs();
    if (timeUs && firstUs && lastUs)
        return tr("%1 / %2").arg(durationText(*timeUs - *firstUs),
                                 durationText(*lastUs - *firstUs));
    const QLocale locale;
    return tr("%1 of %2")
        .arg(locale.formattedDataSize(playback->getPosition()),
             locale.formattedDataSize(playback->getSize()));
}

void TransportBar::showProgress()
{
    if (!playback)
        return;
    const FileIndex &index = playback->getIndex();
    progressBar->setValue(scaled(index.getIndexedBytes(), index.getFileSize(), progressSteps));
    progressAction->setVisible(index.isRunning());
    cancelAction->setVisible(index.isRunning());
    if (!playback->isPlaying())
        showPlace();
}

void TransportBar::hideProgress()
{
    progressAction->setVisible(false);
    cancelAction->setVisible(false);
}

} // namespace corvane
