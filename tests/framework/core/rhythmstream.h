#pragma once

#include "intervalstatistics.h"
#include "rhythm.h"

#include <QRandomGenerator>
#include <QStringList>

#include <cmath>

namespace corvane::test {

constexpr qint64 ms = 1000;
constexpr qint64 second = 1000 * ms;
constexpr qint64 beginning = 1'700'000'000 * second;

/** One sender's stream, and what was found in it. */
struct Stream
{
    void send(qint64 timeUs)
    {
        ++sent;
        rhythm.addMessage(timeUs, statistics);
    }

    /** \a count messages every \a period, the next one that far behind the latest. */
    void sendRegularly(int count, qint64 period)
    {
        for (int i = 0; i < count; ++i)
            send(rhythm.getLastTimeUs() == Rhythm::noTime ? beginning
                                                          : rhythm.getLastTimeUs() + period);
    }

    /** "ms: count" of each class, most frequent first. */
    QStringList classes() const
    {
        QStringList texts;
        for (const auto &known : statistics.getClasses())
            texts += QStringLiteral("%1: %2").arg(known.ms).arg(known.count);
        return texts;
    }

    /** Whether each message is in one class or in none, and the list of gaps is what is counted. */
    bool addsUp() const
    {
        quint64 sum = statistics.unknownIntervals;
        for (const auto &known : statistics.getClasses())
            sum += known.count;
        quint64 missing = 0;
        for (const auto &gap : statistics.gaps)
            missing += gap.missingEpochs;
        const qsizetype listed = statistics.gaps.size();
        const bool gapsAddUp = statistics.gapCount == static_cast<quint64>(listed)
                                   ? statistics.missingEpochs == missing
                                   : listed > IntervalStatistics::maximumGaps * 9 / 10;
        return sum == sent && gapsAddUp;
    }

    IntervalStatistics statistics;
    Rhythm rhythm;
    quint64 sent = 0;
};

/** Normally distributed, by the polar form of Box and Muller. */
inline double gaussian(QRandomGenerator &random)
{
    const double radius = std::sqrt(-2.0 * std::log(1.0 - random.generateDouble()));
    return radius * std::cos(2.0 * M_PI * random.generateDouble());
}

} // namespace corvane::test
