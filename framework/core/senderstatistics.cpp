#include "senderstatistics.h"

#include <utility>

namespace corvane {

SenderStatistics::SenderStatistics(quint32 lastNumber)
    : lastNumber(lastNumber)
{
}

quint32 SenderStatistics::receive(quint32 sequence)
{
    ++frames;
    return pass(sequence);
}

quint32 SenderStatistics::pass(quint32 sequence)
{
    const std::optional<quint32> previous = std::exchange(lastSequence, sequence);
    // A number that comes twice is a frame that was sent twice, not 255 lost ones.
    if (!previous || *previous == sequence)
        return 0;
    const quint32 missing = (sequence - *previous - 1) & lastNumber;
    // Nobody loses half of so many: a wide number that goes back comes from a sender's new start.
    const bool restarted = lastNumber > 0xFFFF && missing > lastNumber / 2;
    if (missing == 0 || restarted)
        return 0;
    ++sequenceGaps;
    lost += missing;
    return missing;
}

void SenderStatistics::countCrcError(const MessageInfo *claimedType)
{
    ++crcErrors;
    ++crcErrorsByType[claimedType];
}

void SenderTable::forgetSequences()
{
    for (const auto &sender : all)
        sender->lastSequence.reset();
}

SenderTable::SenderTable(Namer namer, quint32 lastNumber)
    : namer(std::move(namer))
    , lastNumber(lastNumber)
{
}

SenderStatistics &SenderTable::get(quint32 senderId)
{
    if (latest != nullptr && latestId == senderId)
        return *latest;
    SenderStatistics *&entry = byId[senderId];
    if (entry == nullptr) {
        all.push_back(std::make_unique<SenderStatistics>(lastNumber));
        entry = all.back().get();
        entry->number = senderId;
        entry->id = namer(senderId);
    }
    latestId = senderId;
    latest = entry;
    return *entry;
}

SenderStatistics *SenderTable::getDoubtful(quint32 senderId)
{
    SenderStatistics *known = find(senderId);
    if (known != nullptr || doubtfulCount >= maximumDoubtful)
        return known;
    ++doubtfulCount;
    return &get(senderId);
}

SenderStatistics *SenderTable::find(quint32 senderId) const
{
    return byId.value(senderId);
}

} // namespace corvane
