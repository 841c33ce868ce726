#include "mavlinkdefinitions.h"

#include "mavlinkchecksum.h"

#include <algorithm>

namespace corvane {

std::vector<size_t> MavlinkMessageDefinition::getWireOrder() const
{
    std::vector<size_t> order(fields.size());
    for (size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    // Extensions keep their order behind the base fields.
    const auto rank = [this](size_t index) {
        return fields[index].isExtension ? 0 : fields[index].elementSize;
    };
    std::stable_sort(order.begin(), order.end(),
                     [&](size_t left, size_t right) { return rank(left) > rank(right); });
    return order;
}

quint8 MavlinkMessageDefinition::getChecksumExtra() const
{
    MavlinkChecksum checksum;
    checksum.add(QByteArray(name.toUtf8() + ' '));
    for (const size_t index : getWireOrder()) {
        const MavlinkFieldDefinition &field = fields[index];
        if (field.isExtension)
            continue;
        checksum.add(QByteArray(field.wireType.toLatin1() + ' ' + field.name.toUtf8() + ' '));
        if (field.arrayLength > 0)
            checksum.add(static_cast<quint8>(field.arrayLength));
    }
    return static_cast<quint8>((checksum.getValue() & 0xFF) ^ (checksum.getValue() >> 8));
}

int MavlinkMessageDefinition::getBaseSize() const
{
    int size = 0;
    for (const MavlinkFieldDefinition &field : fields)
        if (!field.isExtension)
            size += field.getSize();
    return size;
}

int MavlinkMessageDefinition::getFullSize() const
{
    int size = 0;
    for (const MavlinkFieldDefinition &field : fields)
        size += field.getSize();
    return size;
}

} // namespace corvane
