#include "eventroundprobe.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

#include <algorithm>

namespace corvane {

EventRoundProbe::EventRoundProbe(int slotMs, QObject *parent)
    : QObject(parent)
    , slotMs(slotMs)
{
    clock.start();
    QCoreApplication::instance()->installEventFilter(this);
    // Dispatchers differ in where between the two they wait, but never work beyond both.
    const auto *dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &EventRoundProbe::endRound);
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, &EventRoundProbe::endRound);
}

bool EventRoundProbe::eventFilter(QObject *, QEvent *)
{
    if (!round.isValid())
        round.start();
    return false;
}

void EventRoundProbe::endRound()
{
    if (!round.isValid())
        return;
    const qint64 us = round.nsecsElapsed() / 1000;
    round.invalidate();
    moveOn();
    qint64 &longest = longestUs[static_cast<size_t>(slotNumber % slotCount)];
    longest = std::max(longest, us);
    longestEverUs = std::max(longestEverUs, us);
}

/** Forgets the slots of time that have come again since. */
void EventRoundProbe::moveOn()
{
    const qint64 now = clock.elapsed() / slotMs;
    for (slotNumber = std::max(slotNumber, now - slotCount); slotNumber < now;)
        longestUs[static_cast<size_t>(++slotNumber % slotCount)] = 0;
}

qint64 EventRoundProbe::getLongestUs()
{
    moveOn();
    return *std::max_element(longestUs.begin(), longestUs.end());
}

} // namespace corvane
