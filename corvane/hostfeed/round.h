#pragma once

#include "host.pb.h"

#include <QByteArray>
#include <QtGlobal>

namespace corvane {

/** What one round brings: the same to all receivers, but for what concerns the receiver itself. */
struct Round
{
    QByteArray frames; ///< All messages but \a feed, framed.
    host::Envelope feed;
};

/** Appends the length of \a envelope as a varint, and the envelope. */
void appendFrame(QByteArray &frames, const host::Envelope &envelope);
/** All bytes of \a round for a receiver that missed \a droppedRounds before. */
QByteArray getBytesFor(const Round &round, quint64 droppedRounds);

} // namespace corvane
