#include "bytesource.h"
#include "fileindex.h"
#include "playback.h"
#include "session.h"
#include "testcase.h"
#include "transportbar.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QSignalSpy>
#include <QSlider>
#include <QTemporaryDir>
#include <QThread>
#include <QToolButton>

#include <memory>

using namespace corvane;
using namespace corvane::test;

namespace {

Options recordingOptions()
{
    Options options;
    options.definitions = {sourceFile(QStringLiteral("examples/recording/rover.xml"))};
    options.source
        = SourceAddress::parse(sourceFile(QStringLiteral("examples/recording/rover.tlog"))).address;
    return options;
}

/** A window with the bar, which shows a recording that has been indexed and waits. */
class Shown
{
public:
    explicit Shown(const Options &options = recordingOptions())
    {
        bar = new TransportBar(&window);
        window.addToolBar(Qt::BottomToolBarArea, bar);
        window.resize(800, 200);
        window.show();
        session.load(options);
        session.start(options);
        playback = session.getPlayback();
        playback->pause();
        QSignalSpy indexed(&playback->getIndex(), &FileIndex::finished);
        bar->setPlayback(playback);
        indexed.wait();
    }

    quint64 frames() { return session.getReception().getTotals().frames; }

    template <typename Widget>
    Widget *find() const
    {
        return bar->findChild<Widget *>();
    }

    QString place() const { return find<QLabel>()->text(); }

    QWidget *button(QAction *action) const { return bar->widgetForAction(action); }

    bool arrives(int count = 1)
    {
        QSignalSpy arrived(playback, &Playback::arrived);
        return QTest::qWaitFor([&] { return arrived.size() >= count; });
    }

    Session session;
    QMainWindow window;
    TransportBar *bar = nullptr;
    Playback *playback = nullptr;
};

/** Takes its time. */
class SlowScanner : public StreamScanner
{
public:
    void append(QByteArrayView) override { QThread::msleep(30); }

    std::optional<Place> find(qint64) override { return std::nullopt; }

    std::optional<qint64> getLatestTimeUs() const override { return std::nullopt; }
};

} // namespace

class tst_transportbar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutPlayback_isHidden();
    void playback_mayGoAway();
    void playButton_playsAndPauses();
    void space_onTheSlider_playsAndPauses();
    void right_isOneMessage();
    void left_andControl_moveByTime();
    void slider_seeks();
    void click_inTheGroove_goesThere();
    void home_andEnd();
    void playing_movesTheSlider();
    void place_isTimeSinceTheBeginning();
    void place_withoutTimes_isInBytes();
    void speed_isChosenAndShown();
    void indexing_isShownAndCanBeStopped();
    void everyControl_hasANameAndAToolTip();
};

void tst_transportbar::withoutPlayback_isHidden()
{
    QMainWindow window;
    auto *bar = new TransportBar(&window);
    window.addToolBar(bar);
    window.show();
    QVERIFY(bar->isHidden());
    QVERIFY(!bar->toggleViewAction()->isVisible());
    // As a remembered layout would.
    bar->setVisible(true);
    QVERIFY(bar->isHidden());
}

void tst_transportbar::playback_mayGoAway()
{
    Shown shown;
    QVERIFY(shown.bar->isVisible());
    QVERIFY(shown.bar->toggleViewAction()->isVisible());
    Options other = recordingOptions();
    other.source = SourceAddress::parse(QStringLiteral("exec:cat")).address;
    shown.session.start(other);
    QVERIFY(!shown.session.getPlayback());
    QVERIFY(shown.bar->isHidden());
    shown.bar->getPlayAction()->trigger();
    shown.bar->getStepAction()->trigger();
}

void tst_transportbar::playButton_playsAndPauses()
{
    Shown shown;
    QAction *action = shown.bar->getPlayAction();
    QCOMPARE(action->text(), QStringLiteral("Play"));
    QTest::mouseClick(shown.button(action), Qt::LeftButton);
    QVERIFY(shown.playback->isPlaying());
    QCOMPARE(action->text(), QStringLiteral("Pause"));
    QVERIFY(action->toolTip().startsWith(QStringLiteral("Pause (Space, ")));
    QTRY_VERIFY(shown.frames() > 0);
    action->trigger();
    QVERIFY(!shown.playback->isPlaying());
    QCOMPARE(action->text(), QStringLiteral("Play"));
}

void tst_transportbar::space_onTheSlider_playsAndPauses()
{
    Shown shown;
    QTest::keyClick(shown.find<QSlider>(), Qt::Key_Space);
    QVERIFY(shown.playback->isPlaying());
    QTest::keyClick(shown.find<QSlider>(), Qt::Key_Space);
    QVERIFY(!shown.playback->isPlaying());
}

void tst_transportbar::right_isOneMessage()
{
    Shown shown;
    QTest::keyClick(shown.find<QSlider>(), Qt::Key_Right);
    QVERIFY(shown.arrives());
    QCOMPARE(shown.frames(), 1U);
    QTest::keyClick(shown.button(shown.bar->getPlayAction()), Qt::Key_Right);
    QVERIFY(shown.arrives());
    QCOMPARE(shown.frames(), 2U);
    shown.bar->getStepAction()->trigger();
    QVERIFY(shown.arrives());
    QCOMPARE(shown.frames(), 3U);
}

void tst_transportbar::left_andControl_moveByTime()
{
    Shown shown;
    QSlider *slider = shown.find<QSlider>();
    const qint64 firstUs = *shown.playback->getIndex().getFirstTimeUs();
    const auto seconds
        = [&] { return qRound(double(*shown.playback->getTimeUs() - firstUs) / 1e6); };
    slider->setValue(slider->maximum() / 2);
    QVERIFY(shown.arrives());
    const int middle = seconds();
    QVERIFY(middle > 20);
    QTest::keyClick(slider, Qt::Key_Left);
    QVERIFY(shown.arrives());
    QCOMPARE(seconds(), middle - 1);
    QTest::keyClick(slider, Qt::Key_Left, Qt::ControlModifier);
    QVERIFY(shown.arrives());
    QCOMPARE(seconds(), middle - 11);
    QTest::keyClick(slider, Qt::Key_Right, Qt::ControlModifier);
    QVERIFY(shown.arrives());
    QCOMPARE(seconds(), middle - 1);
}

void tst_transportbar::slider_seeks()
{
    Shown shown;
    QSlider *slider = shown.find<QSlider>();
    const qint64 size = shown.playback->getSize();
    for (const int percent : {50, 20, 90}) {
        slider->setValue(slider->maximum() * percent / 100);
        QVERIFY(shown.arrives());
        const qint64 position = shown.playback->getPosition();
        QVERIFY(position >= size * percent / 100);
        QVERIFY(position < size * percent / 100 + 300);
    }
}

void tst_transportbar::click_inTheGroove_goesThere()
{
    Shown shown;
    QSlider *slider = shown.find<QSlider>();
    QTest::mouseClick(slider, Qt::LeftButton, {}, {slider->width() / 2, slider->height() / 2});
    QVERIFY(shown.arrives());
    const double part = double(shown.playback->getPosition()) / double(shown.playback->getSize());
    QVERIFY2(part > 0.4 && part < 0.6, qPrintable(QString::number(part)));
}

void tst_transportbar::home_andEnd()
{
    Shown shown;
    QTest::keyClick(shown.find<QSlider>(), Qt::Key_End);
    QVERIFY(QTest::qWaitFor(
        [&] { return shown.playback->getPosition() == shown.playback->getSize(); }));
    QTest::keyClick(shown.find<QSlider>(), Qt::Key_Home);
    QVERIFY(shown.arrives());
    QCOMPARE(shown.playback->getPosition(), 0);
    QCOMPARE(shown.find<QSlider>()->value(), 0);
}

void tst_transportbar::playing_movesTheSlider()
{
    Shown shown;
    QSlider *slider = shown.find<QSlider>();
    shown.playback->setSpeed(20);
    shown.playback->play();
    QTRY_VERIFY(slider->value() > 0);
    // Showing the place is no wish to go there.
    QVERIFY(shown.frames() > 0);
    QVERIFY(shown.frames() < 1700);
    QTRY_VERIFY(shown.playback->isAtEnd());
    QCOMPARE(shown.frames(), 1737U);
    QCOMPARE(slider->value(), slider->maximum());
    QCOMPARE(shown.bar->getPlayAction()->text(), QStringLiteral("Play"));
}

void tst_transportbar::place_isTimeSinceTheBeginning()
{
    Shown shown;
    QCOMPARE(shown.place(), QStringLiteral("0:00.0 / 0:59.9"));
    shown.playback->seekToTime(*shown.playback->getIndex().getFirstTimeUs() + 30'000'000);
    QVERIFY(shown.arrives());
    QVERIFY2(shown.place().startsWith(QStringLiteral("0:30.0 / ")), qPrintable(shown.place()));
    QCOMPARE(shown.find<QLabel>()->toolTip().left(17), QStringLiteral("2026-01-01T12:00:"));
}

void tst_transportbar::place_withoutTimes_isInBytes()
{
    Options options = recordingOptions();
    options.framing = QStringLiteral("raw");
    Shown shown(options);
    const QString size = QLocale().formattedDataSize(shown.playback->getSize());
    QCOMPARE(shown.place(), QStringLiteral("0 bytes of ") + size);
    QSlider *slider = shown.find<QSlider>();
    slider->setValue(slider->maximum() / 2);
    QVERIFY(shown.arrives());
    const qint64 middle = shown.playback->getPosition();
    QTest::keyClick(slider, Qt::Key_Left);
    QVERIFY(shown.arrives());
    QVERIFY(shown.playback->getPosition() < middle);
    QVERIFY(shown.playback->getPosition() > middle - shown.playback->getSize() / 50);
}

void tst_transportbar::speed_isChosenAndShown()
{
    Shown shown;
    auto *box = shown.find<QComboBox>();
    QCOMPARE(box->currentText(), QStringLiteral("1 x"));
    const auto choose = [&](const QString &text) {
        box->setCurrentIndex(box->findText(text));
        Q_EMIT box->activated(box->currentIndex());
    };
    choose(QStringLiteral("10 x"));
    QCOMPARE(shown.playback->getSpeed(), std::optional(10.0));
    choose(QStringLiteral("No waiting"));
    QVERIFY(!shown.playback->getSpeed());
    shown.playback->setSpeed(0.5);
    QCOMPARE(box->currentText(), QStringLiteral("0.5 x"));
    shown.playback->setSpeed(3);
    QCOMPARE(box->currentText(), QStringLiteral("3 x"));
}

void tst_transportbar::indexing_isShownAndCanBeStopped()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("long"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(20'000'000));
    Shown shown;
    auto *progress = shown.find<QProgressBar>();
    QVERIFY(!progress->isVisible());
    // The playback's own one, which is not const there.
    auto &index = const_cast<FileIndex &>(shown.playback->getIndex());
    index.start(path, std::make_unique<SlowScanner>());
    QTRY_VERIFY(progress->isVisible());
    QVERIFY(progress->value() < progress->maximum() / 2);
    QToolButton *stop = nullptr;
    for (auto *button : shown.bar->findChildren<QToolButton *>())
        if (button->text() == QStringLiteral("Stop Indexing"))
            stop = button;
    QVERIFY(stop && stop->isVisible());
    QTest::mouseClick(stop, Qt::LeftButton);
    QVERIFY(!index.isRunning());
    QTRY_VERIFY(!progress->isVisible());
    QTRY_VERIFY(!stop->isVisible());
    QVERIFY(index.getIndexedBytes() > 0);
}

void tst_transportbar::everyControl_hasANameAndAToolTip()
{
    Shown shown;
    int controls = 0;
    for (const auto *child : shown.bar->findChildren<QWidget *>()) {
        if (child->focusPolicy() == Qt::NoFocus || child->objectName().startsWith("qt_"))
            continue;
        const auto *button = qobject_cast<const QToolButton *>(child);
        QVERIFY(!child->accessibleName().isEmpty() || (button && !button->text().isEmpty()));
        QVERIFY2(!child->toolTip().isEmpty(), qPrintable(child->accessibleName()));
        ++controls;
    }
    QVERIFY(controls >= 4);
}

CORVANE_GUI_TEST_MAIN(tst_transportbar)
#include "tst_transportbar.moc"
