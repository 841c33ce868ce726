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

    /** The longest round since the beginning, in microseconds. */
    qint64 getLongestEverUs() const { return longestEverUs; }

    /** Of the application: sees each event first. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void endRound();
    void moveOn();

    int slotMs;
    QElapsedTimer clock;
    QElapsedTimer round; ///< Invalid while there is none.
    std::array<qint64, slotCount> longestUs{}; ///< Of each slot of time.
    qint64 slotNumber = 0; ///< Since the beginning.
    qint64 longestEverUs = 0;
};

} // namespace corvane
