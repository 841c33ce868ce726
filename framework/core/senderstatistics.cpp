#include "senderstatistics.h"

#include <utility>

namespace corvane {

quint32 SenderStatistics::receive(quint8 sequence)
{
    ++frames;
    return pass(sequence);
}

quint32 SenderStatistics::pass(quint8 sequence)
{
    const std::optional<quint8> previous = std::exchange(lastSequence, sequence);
    // A number that comes twice is a frame that was sent twice, not 255 lost ones.
    if (!previous || *previous == sequence)
        return 0;
    const quint32 missing = static_cast<quint8>(sequence - *previous - 1);
    if (missing == 0)
        return 0;
    ++sequenceGaps;
    lost += missing;
    return missing;
}

SenderTable::SenderTable(Namer namer)
    : namer(namer)
{
}

SenderStatistics &SenderTable::get(quint32 senderId)
{
    if (latest != nullptr && latestId == senderId)
        return *latest;
    SenderStatistics *&entry = byId[senderId];
    if (entry == nullptr) {
        all.push_back(std::make_unique<SenderStatistics>());
        entry = all.back().get();
        entry->id = namer(senderId);
    }
    latestId = senderId;
    latest = entry;
    return *entry;
}

SenderStatistics *SenderTable::find(quint32 senderId) const
{
    return byId.value(senderId);
}

void SenderTable::forgetSequences()
{
    for (const auto &sender : all)
        sender->lastSequence.reset();
}

} // namespace corvane
