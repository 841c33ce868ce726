#pragma once

#include <QtGlobal>

#include <vector>

namespace corvane {

/**
 * How many needs there are for each message type, by the slot of the type.
 *
 * Slots are never reused, so a need may be withdrawn after its type is gone. Slot 0 is no type's.
 */
class MessageNeedCounts
{
public:
    void add(quint32 slot)
    {
        if (slot >= counts.size())
            counts.resize(slot + 1, 0);
        ++counts[slot];
    }

    void remove(quint32 slot) { --counts[slot]; }

    bool isNeeded(quint32 slot) const { return slot < counts.size() && counts[slot] != 0; }

private:
    std::vector<quint32> counts;
};

} // namespace corvane
