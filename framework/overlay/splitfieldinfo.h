#pragma once

#include "bitfieldinfo.h"

namespace corvane {

/** A sub-field that an overlay has split off a word; remembers how, for the next overlay. */
class SplitFieldInfo : public BitFieldInfo
{
public:
    SplitFieldInfo(const FieldInfo *parent, Bits bits, std::unique_ptr<FieldInfoData> data);

    bool isMadeOf(Bits others) const;

private:
    Bits bits;
};

} // namespace corvane
