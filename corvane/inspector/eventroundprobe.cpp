#include "eventroundprobe.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

#include <algorithm>
#include <ctime>

namespace corvane {

namespace {

/** What the processor has done for this thread so far. */
qint64 readWorkUs()
{
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64(time.tv_sec) * 1'000'000 + time.tv_nsec / 1000;
}

} // namespace

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
    if (!round.isValid()) {
        workBeforeUs = readWorkUs();
        round.start();
    }
    return false;
}

void EventRoundProbe::endRound()
{
    if (!round.isValid())
        return;
    const qint64 us = round.nsecsElapsed() / 1000;
    round.invalidate();
    moveOn();
    Slot &slot = slots[static_cast<size_t>(slotNumber % slotCount)];
    slot.longestUs = std::max(slot.longestUs, us);
    slot.mostWorkUs = std::max(slot.mostWorkUs, readWorkUs() - workBeforeUs);
    longestEverUs = std::max(longestEverUs, us);
}

/** Forgets the slots of time that have come again since. */
void EventRoundProbe::moveOn()
{
    const qint64 now = clock.elapsed() / slotMs;
    for (slotNumber = std::max(slotNumber, now - slotCount); slotNumber < now;)
        slots[static_cast<size_t>(++slotNumber % slotCount)] = {};
}

qint64 EventRoundProbe::getLongestUs()
{
    return getLargest(&Slot::longestUs);
}

qint64 EventRoundProbe::getMostWorkUs()
{
    return getLargest(&Slot::mostWorkUs);
}

qint64 EventRoundProbe::getLargest(qint64 Slot::*figure)
{
    moveOn();
    qint64 largest = 0;
    for (const Slot &slot : slots)
        largest = std::max(largest, slot.*figure);
    return largest;
}

} // namespace corvane
