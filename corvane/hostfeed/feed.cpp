#include "feed.h"

#include "receiver.h"

#include <unistd.h>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

qint64 getTimeUs()
{
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::microseconds>(sinceEpoch).count();
}

} // namespace

Feed::Feed(HostSampler sampler, std::chrono::milliseconds interval, QObject *parent)
    : QObject(parent)
    , sampler(std::move(sampler))
    , interval(interval)
{
    clock.start();
    timer.setTimerType(Qt::PreciseTimer);
    timer.setInterval(interval);
    connect(&timer, &QTimer::timeout, this, &Feed::sendRound);
}

Feed::~Feed() = default;

bool Feed::addReceiver(int descriptor)
{
    if (getReceiverCount() >= maximumReceivers) {
        ::close(descriptor);
        return false;
    }
    auto *receiver = new Receiver(descriptor, this);
    receivers.push_back(receiver);
    // Later, because it can happen in the middle of a round.
    connect(
        receiver, &Receiver::closed, this,
        [this, receiver](int error) {
            removeReceiver(receiver);
            Q_EMIT receiverLost(error);
        },
        Qt::QueuedConnection);
    if (!timer.isActive()) {
        timer.start();
        sendRound();
    }
    return true;
}

void Feed::sendRound()
{
    const Round round = makeRound();
    for (Receiver *receiver : receivers)
        receiver->offer(round);
}

Round Feed::makeRound()
{
    const qint64 timeUs = getTimeUs();
    const qint64 beginNs = clock.nsecsElapsed();
    std::vector<host::Envelope> envelopes = sampler.sample(beginNs);
    const qint64 readingTimeNs = clock.nsecsElapsed() - beginNs;
    ++rounds;
    Round round;
    for (host::Envelope &envelope : envelopes) {
        stamp(envelope, timeUs);
        appendFrame(round.frames, envelope);
    }
    round.feed = makeFeedMessage(timeUs, readingTimeNs);
    return round;
}

void Feed::stamp(host::Envelope &envelope, qint64 timeUs)
{
    envelope.set_time_us(static_cast<quint64>(timeUs));
    envelope.set_sequence(sequence++);
}

host::Envelope Feed::makeFeedMessage(qint64 timeUs, qint64 readingTimeNs)
{
    host::Envelope envelope;
    stamp(envelope, timeUs);
    host::Feed *feed = envelope.mutable_feed();
    feed->set_interval_ms(static_cast<quint32>(interval.count()));
    feed->set_rounds(rounds);
    feed->set_receivers(static_cast<quint32>(receivers.size()));
    feed->set_reading_time_us(static_cast<quint64>(readingTimeNs / 1000));
    feed->set_version(CORVANE_VERSION);
    return envelope;
}

void Feed::removeReceiver(Receiver *receiver)
{
    receivers.erase(std::find(receivers.begin(), receivers.end(), receiver));
    receiver->deleteLater();
    if (receivers.empty())
        timer.stop();
}

} // namespace corvane
