#pragma once

#include <QElapsedTimer>
#include <QObject>

#include <array>

namespace corvane {

/**
 * Measures how long the main thread takes for a round of events: from the first event after it has
 * waited until it is ready to wait again. In that time the window does not react. It costs a few
 * instructions for each event, and nothing while there is none.
 */
class EventRoundProbe : public QObject
{
    Q_OBJECT

public:
    static constexpr int slotCount = 5;

    /** The last \a slotCount times \a slotMs milliseconds are what getLongestUs() tells of. */
    explicit EventRoundProbe(int slotMs = 1000, QObject *parent = nullptr);

    /** The longest round of the last seconds, in microseconds. */
    qint64 getLongestUs();

    /**
     * The most that was computed in a round of the last seconds, in microseconds of processor time:
     * without what the round had to wait for the processor, or for another machine that shares it.
     */
    qint64 getMostWorkUs();

    /** The longest round since the beginning, in microseconds. */
    qint64 getLongestEverUs() const { return longestEverUs; }

    /** Of the application: sees each event first. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Slot
    {
        qint64 longestUs = 0;
        qint64 mostWorkUs = 0;
    };

    void endRound();
    void moveOn();
    qint64 getLargest(qint64 Slot::*figure);

    int slotMs;
    QElapsedTimer clock;
    QElapsedTimer round; ///< Invalid while there is none.
    qint64 workBeforeUs = 0; ///< The round.
    std::array<Slot, slotCount> slots; ///< Of time.
    qint64 slotNumber = 0; ///< Since the beginning.
    qint64 longestEverUs = 0;
};

} // namespace corvane
