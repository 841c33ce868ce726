#pragma once

#include "corvaneframework_export.h"
#include "decodedfieldinfo.h"
#include "mavlinkdefinitions.h"

#include <optional>
#include <vector>

namespace corvane {

class MavlinkMessage;

/**
 * The values of the elements of a field that together mean "no value", as bits of the wire type.
 */
struct MavlinkInvalidPattern
{
    enum class Scope {
        None, ///< Every value is one.
        EveryElement, ///< All elements have the (one) value; also for a field that is no array.
        FirstElement, ///< The first element has the (one) value.
        Listed ///< Each listed element has its value; elements that are not listed do not matter.
    };

    Scope scope = Scope::None;
    std::vector<std::optional<quint64>> values;
};

/** A field of a MAVLink message, at a fixed place in the payload. */
class CORVANEFRAMEWORK_EXPORT MavlinkFieldInfo final : public DecodedFieldInfo
{
public:
    /** \a offset: of the first element in the payload, in bytes. */
    MavlinkFieldInfo(const MavlinkFieldDefinition &definition,
                     int offset,
                     MavlinkInvalidPattern invalid,
                     const MessageInfo *owner,
                     std::unique_ptr<FieldInfoData> data);

    unsigned int getNumberOfValues(const Message *message) const override;
    bool getByteRange(const Message *message,
                      unsigned int index,
                      quint32 *offset,
                      quint32 *length) const override;

protected:
    FieldValue readValue(const Message *message, unsigned int index) const override;
    QString readString(const Message *message) const override;

private:
    /** Whether \a message can hold the field: version 1 of its type lacks extensions. */
    bool isInFrameOf(const Message *message) const;
    quint64 readBits(const MavlinkMessage &message, unsigned int index) const;
    bool isInvalid(const MavlinkMessage &message) const;
    bool equalsInvalid(quint64 bits, quint64 invalidBits) const;

    const MessageInfo *owner; ///< Not owned.
    MavlinkInvalidPattern invalid;
    quint16 offset;
    quint16 length; ///< Number of elements; 1 for a field that is no array.
    quint8 elementSize;
    bool extension;
};

} // namespace corvane
