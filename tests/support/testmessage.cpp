#include "testmessage.h"

#include "fieldinfo.h"
#include "memleaktracer.h"

namespace corvane::test {

TestMessage::TestMessage(std::shared_ptr<const MessageContent> content)
    : DecodedMessage(content->info, content->timeUs, content->senderId)
    , content(std::move(content))
    , isPart(false)
{
    MemLeakTracer::getInstance()->doAllocateObject(QStringLiteral("TestMessage"));
}

TestMessage::TestMessage(std::shared_ptr<const MessageContent> content,
                         const TestMessage *mainMessage,
                         bool confidential)
    : DecodedMessage(content->info, mainMessage, confidential)
    , content(std::move(content))
    , isPart(true)
{
}

TestMessage::~TestMessage()
{
    for (const TestMessage *subMessage : std::as_const(subMessages))
        delete subMessage;
    if (!isPart)
        MemLeakTracer::getInstance()->doDeallocateObject(QStringLiteral("TestMessage"));
}

unsigned int TestMessage::getNumberOfValues(const FieldInfo *field) const
{
    return static_cast<unsigned int>(content->items.value(field).size());
}

FieldValue TestMessage::getValue(const FieldInfo *field, unsigned int index) const
{
    const MessageContent::Item item = content->items.value(field).value(index);
    if (item.subMessage == nullptr)
        return item.value;
    return FieldValue::fromSubMessage(getSubMessage({field, index}, item.subMessage));
}

const TestMessage *
TestMessage::getSubMessage(Place place, std::shared_ptr<const MessageContent> subContent) const
{
    TestMessage *&subMessage = subMessages[place];
    if (subMessage == nullptr)
        subMessage = new TestMessage(std::move(subContent), this, place.first->isConfidential());
    return subMessage;
}

} // namespace corvane::test
