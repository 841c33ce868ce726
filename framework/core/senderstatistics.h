#pragma once

#include "corvaneframework_export.h"

#include <QHash>
#include <QString>
#include <QtGlobal>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class MessageInfo;

namespace corvane {

/** What is known of one sender, by the sequence numbers of its good frames. */
struct CORVANEFRAMEWORK_EXPORT SenderStatistics
{
    /** \a lastNumber: the last sequence number before 0 comes again, 2^n - 1. */
    explicit SenderStatistics(quint32 lastNumber = 0xFF);

    /** Counts a good frame; returns how many are missing before it. */
    quint32 receive(quint32 sequence);
    /** The same for a frame that cannot be checked, which is not counted as received. */
    quint32 pass(quint32 sequence);
    /** Counts a damaged frame that claims to come from this sender and to be of that type. */
    void countCrcError(const MessageInfo *claimedType);

    quint32 number = 0; ///< As messages name their sender.
    QString id; ///< As the format names its senders, such as "1/100".
    quint64 frames = 0;
    quint64 sequenceGaps = 0; ///< Places at which numbers are missing.
    quint64 lost = 0; ///< Numbers missing at these places, below lastNumber at each.
    quint64 crcErrors = 0; ///< Damaged frames that claim to come from this sender.
    QHash<const MessageInfo *, quint64> crcErrorsByType; ///< By the types they claim to be of.
    std::optional<quint32> lastSequence;
    quint32 lastNumber;
};

/** The senders of a stream, in the order of their first frame. */
class CORVANEFRAMEWORK_EXPORT SenderTable
{
public:
    using Namer = std::function<QString(quint32 senderId)>;

    /** \a namer gives the id that people read; \a lastNumber: as for SenderStatistics. */
    explicit SenderTable(Namer namer, quint32 lastNumber = 0xFF);

    /**
     * So many senders are made at the sight of damaged frames alone: most of them do not exist, and
     * noise would name ever more.
     */
    static constexpr int maximumDoubtful = 16;

    /** The sender of that id; made at first sight. */
    SenderStatistics &get(quint32 senderId);
    /** The sender that a damaged frame names; null where it is not known and too many were made. */
    SenderStatistics *getDoubtful(quint32 senderId);
    /** The sender of that id, or null where it has not been seen. */
    SenderStatistics *find(quint32 senderId) const;

    /** The next frame of each sender follows on nothing that is known. */
    void forgetSequences();

    QString nameOf(quint32 senderId) const { return namer(senderId); }

    const std::vector<std::unique_ptr<SenderStatistics>> &getAll() const { return all; }

private:
    Namer namer;
    quint32 lastNumber;
    std::vector<std::unique_ptr<SenderStatistics>> all;
    QHash<quint32, SenderStatistics *> byId;
    int doubtfulCount = 0;
    quint32 latestId = 0;
    SenderStatistics *latest = nullptr; ///< Not owned; neighbouring frames often share a sender.
};

} // namespace corvane
