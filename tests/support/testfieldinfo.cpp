#include "testfieldinfo.h"

#include "testmessage.h"

namespace corvane::test {

unsigned int TestFieldInfo::getNumberOfValues(const Message *message) const
{
    if (computation)
        return static_cast<unsigned int>(computation(message).size());
    return static_cast<const TestMessage *>(message)->getNumberOfValues(this);
}

FieldValue TestFieldInfo::readValue(const Message *message, unsigned int index) const
{
    if (computation)
        return computation(message).value(index);
    return static_cast<const TestMessage *>(message)->getValue(this, index);
}

} // namespace corvane::test
