#pragma once

#include "round.h"

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>

namespace corvane {

/**
 * Someone who reads the stream, at the other end of a pipe, a socket or a file. It never waits for
 * the receiver, and keeps at most one round for it: rounds that come while the one before is not
 * yet written are dropped as a whole. Of a socket the system keeps some 32 KiB beside that.
 */
class Receiver : public QObject
{
    Q_OBJECT

public:
    /** Takes over \a descriptor, whose flags are left as they are. */
    explicit Receiver(int descriptor, QObject *parent = nullptr);
    ~Receiver() override;

    void offer(const Round &round);

    quint64 getDroppedRounds() const { return droppedRounds; }

Q_SIGNALS:
    /** Nothing can be written any more; \a error: errno, EPIPE when the receiver has gone. */
    void closed(int error);

private:
    void writePending();
    qint64 writeSome(qsizetype from) const;

    int descriptor;
    bool isSocket = false;
    bool isClosed = false;
    QByteArray pending; ///< What is left of a round.
    quint64 droppedRounds = 0;
    QSocketNotifier notifier;
};

} // namespace corvane
