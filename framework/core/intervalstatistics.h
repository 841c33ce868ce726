#pragma once

#include "corvaneframework_export.h"
#include "messagestatistics.h"

#include <QList>
#include <QtGlobal>

#include <array>
#include <vector>

namespace corvane {

/**
 * The intervals and gaps of one message type, all senders together.
 *
 * Intervals are counted in at most 64 classes, each known by its interval in whole milliseconds.
 * What would need a further class is counted in the nearest one.
 */
class CORVANEFRAMEWORK_EXPORT IntervalStatistics
{
public:
    struct Class
    {
        qint64 ms = 0;
        quint64 count = 0;
    };

    static constexpr quint8 maximumClasses = 64;
    /** So many round intervals are there for those that belong to no regular stretch. */
    static constexpr size_t roundValues = 27;
    /** So many gaps are listed; all are counted. */
    static constexpr qsizetype maximumGaps = 64;

    IntervalStatistics();

    /** The index of the class of exactly \a ms, or of the nearest one when there is no room. */
    quint8 getClass(qint64 ms);
    /** The class of an interval that belongs to no regular stretch: that of a round value. */
    quint8 getRoundClass(qint64 us);

    void add(quint8 index) { ++classes[index].count; }

    void remove(quint8 index) { --classes[index].count; }

    void move(quint8 from, quint8 to, quint64 count)
    {
        classes[from].count -= count;
        classes[to].count += count;
    }

    void addGap(const MessageStatistics::Gap &gap);
    /** One epoch of \a gap, which was added as it is now, is not missing after all. */
    void fillGap(const MessageStatistics::Gap &gap);

    /** \a gap, which was added as it is now, is none after all; one of no epochs is none anyway. */
    void removeGap(const MessageStatistics::Gap &gap);

    /** The classes that count something, most frequent first, shorter ones first among equals. */
    QList<Class> getClasses() const;

    quint64 unknownIntervals = 0; ///< Messages with a time but without an interval.
    quint64 gapCount = 0;
    quint64 missingEpochs = 0;
    QList<MessageStatistics::Gap> gaps; ///< The first ones, in the order of their end.

private:
    std::vector<Class> classes; ///< Most types that noise claims to be of have none.
    std::array<quint8, roundValues> roundClasses; ///< maximumClasses where not asked for yet.
};

} // namespace corvane
