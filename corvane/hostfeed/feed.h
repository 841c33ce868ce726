#pragma once

#include "hostsampler.h"
#include "round.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <vector>

namespace corvane {

class Receiver;

/** Reads the figures in rounds, as long as there are receivers, and hands each round to them. */
class Feed : public QObject
{
    Q_OBJECT

public:
    static constexpr int maximumReceivers = 16;

    Feed(HostSampler sampler, std::chrono::milliseconds interval, QObject *parent = nullptr);
    ~Feed() override;

    /** Takes over \a descriptor; false, and it is closed, when there are too many already. */
    bool addReceiver(int descriptor);

    int getReceiverCount() const { return static_cast<int>(receivers.size()); }

Q_SIGNALS:
    /** A receiver has gone; \a error: errno. */
    void receiverLost(int error);

private:
    void sendRound();
    Round makeRound();
    void stamp(host::Envelope &envelope, qint64 timeUs);
    host::Envelope makeFeedMessage(qint64 timeUs, qint64 readingTimeNs);
    void removeReceiver(Receiver *receiver);

    HostSampler sampler;
    std::chrono::milliseconds interval;
    QTimer timer;
    QElapsedTimer clock; ///< Never steps back.
    std::vector<Receiver *> receivers; ///< Owned as children.
    quint32 sequence = 0;
    quint64 rounds = 0;
};

} // namespace corvane
