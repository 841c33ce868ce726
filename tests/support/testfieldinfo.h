#pragma once

#include "decodedfieldinfo.h"

#include <QList>

#include <functional>

namespace corvane::test {

/** A field of a test format: its values are what the message's literal says, or are computed. */
class TestFieldInfo : public DecodedFieldInfo
{
public:
    using Computation = std::function<QList<FieldValue>(const Message *)>;

    using DecodedFieldInfo::DecodedFieldInfo;

    unsigned int getNumberOfValues(const Message *message) const override;

    /** Takes the values from \a newComputation instead of the literal. */
    void setComputation(Computation newComputation) { computation = std::move(newComputation); }

protected:
    FieldValue readValue(const Message *message, unsigned int index) const override;

private:
    Computation computation;
};

} // namespace corvane::test
