#include "messagestatisticsdata.h"

#include "reception.h"

namespace corvane {

void MessageStatisticsData::count(const FrameHeader &frame)
{
    ++received;
    Sender *sender = findSender(frame.senderId);
    const qint64 timeUs = frame.getMessageTimeUs();
    if (sender != nullptr)
        sender->latestUs = frame.timeUs;
    if (timeUs == Rhythm::noTime) {
        ++withUnknownTime;
        if (sender != nullptr)
            sender->rhythm.addMessageWithoutTime();
    } else if (sender != nullptr) {
        sender->rhythm.addMessage(timeUs, intervals);
    } else {
        ++intervals.unknownIntervals;
    }
}

MessageStatisticsData::Sender *MessageStatisticsData::findSender(quint32 id)
{
    if (latestSender < senders.size() && senders[latestSender].id == id)
        return &senders[latestSender];
    const auto found = std::find_if(senders.begin(), senders.end(),
                                    [&](const Sender &sender) { return sender.id == id; });
    if (found == senders.end() && !takeRoom())
        return nullptr;
    latestSender = static_cast<size_t>(found - senders.begin());
    if (found == senders.end())
        senders.push_back({id, Rhythm::noTime, {}});
    return &senders[latestSender];
}

/** Whether there is room for one more sender, which is then counted. */
// NOLINTNEXTLINE(readability-make-member-function-const): it counts
bool MessageStatisticsData::takeRoom()
{
    if (senders.size() == maximumSenders)
        return false;
    if (message != nullptr)
        return true;
    if (stream->unknownSenders == maximumUnknownSenders)
        return false;
    ++stream->unknownSenders;
    return true;
}

void MessageStatisticsData::interrupt()
{
    for (Sender &sender : senders)
        sender.rhythm.interrupt();
}

bool MessageStatisticsData::isRegular() const
{
    bool anyActive = false;
    for (const Sender &sender : senders) {
        if (!isActive(sender))
            continue;
        anyActive = true;
        if (!sender.rhythm.isRegular())
            return false;
    }
    return anyActive;
}

bool MessageStatisticsData::isActive(const Sender &sender) const
{
    // A sender that fell silent is told by the clock of the stream, which others keep going.
    constexpr double longestSilence = 5; // periods
    constexpr double shortestSilenceUs = 2e6;
    if (sender.rhythm.getLastTimeUs() == Rhythm::noTime)
        return sender.rhythm.isRegular();
    if (sender.latestUs == Rhythm::noTime)
        return true;
    const double silenceUs
        = static_cast<double>(stream->latestUs) - static_cast<double>(sender.latestUs);
    return silenceUs <= std::max(longestSilence * sender.rhythm.getPeriodUs(), shortestSilenceUs);
}

} // namespace corvane
