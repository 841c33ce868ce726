#pragma once

#include "decodedfieldinfo.h"

namespace corvane {

/** A sub-field: some neighbouring bits of an integer field, of each of its values. */
class CORVANEFRAMEWORK_EXPORT BitFieldInfo : public DecodedFieldInfo
{
public:
    struct Bits
    {
        int first = 0; ///< Counted from the least significant bit, 0 to 63.
        int count = 1; ///< 1 to 64; first + count is at most 64.
        bool isSigned = false; ///< Whether the topmost bit is a sign.
        bool isBoolean = false; ///< Whether one bit reads as a truth value.
    };

    /** \a parent: an integer field of the same message type; becomes the data's parent. */
    BitFieldInfo(const FieldInfo *parent, Bits bits, std::unique_ptr<FieldInfoData> data);

    unsigned int getNumberOfValues(const Message *message) const override;
    bool getByteRange(const Message *message,
                      unsigned int index,
                      quint32 *offset,
                      quint32 *length) const override;

protected:
    FieldValue readValue(const Message *message, unsigned int index) const override;

private:
    Bits bits;
};

} // namespace corvane
