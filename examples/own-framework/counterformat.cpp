#include "counterformat.h"

#include "records.h"

#include <memory>

CountField::CountField(const MessageInfo *type)
    : FieldInfo(FieldType(FieldType::UnsignedInteger, 64),
                std::make_unique<corvane::FieldInfoData>(
                    corvane::FieldInfoData{QStringLiteral("count"), type}))
{
}

// [field]
unsigned int CountField::getNumberOfValues(const Message *) const
{
    return 1;
}

FieldValue CountField::getValue(const Message *message, unsigned int) const
{
    return FieldValue::fromUnsigned(static_cast<const CountMessage *>(message)->count);
}

// [field]

CounterFormat::CounterFormat()
    : format(std::make_unique<corvane::FormatInfoData>(
        corvane::FormatInfoData{QStringLiteral("Counter")}))
    , type(std::make_unique<corvane::MessageInfoData>(corvane::MessageInfoData{
          &format, QStringLiteral("Count"), QStringLiteral("How far the counter is"), {}}))
    , field(&type)
{
    type.getData()->fields = {&field};
    corvane::knownTypes() += &type;
}

CounterFormat::~CounterFormat()
{
    corvane::knownTypes().removeOne(&type);
}

// [send]
void CounterFormat::send(quint64 number)
{
    const auto *message = new CountMessage(&type, number); // with one reference, ours
    Q_EMIT source.newMessage(message);
    message->removeReference();
}

// [send]
