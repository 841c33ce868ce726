#include "splitfieldinfo.h"

#include "descriptions.h"

namespace corvane {

SplitFieldInfo::SplitFieldInfo(const FieldInfo *parent,
                               Bits bits,
                               std::unique_ptr<FieldInfoData> data)
    : BitFieldInfo(parent, bits, std::move(data))
    , bits(bits)
{
}

bool SplitFieldInfo::isMadeOf(Bits others) const
{
    return bits.first == others.first && bits.count == others.count
           && bits.isSigned == others.isSigned && bits.isBoolean == others.isBoolean;
}

} // namespace corvane
