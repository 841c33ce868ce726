#pragma once

#include "decodedmessage.h"
#include "fieldvalue.h"

#include <QHash>
#include <QList>

#include <memory>
#include <utility>

class FieldInfo;

namespace corvane::test {

/** What a message literal says: the values of each field that it names. */
struct MessageContent
{
    struct Item
    {
        FieldValue value;
        std::shared_ptr<const MessageContent> subMessage; ///< In place of the value.
    };

    const MessageInfo *info = nullptr; ///< Not owned.
    qint64 timeUs = DecodedMessage::unknownTime;
    quint32 senderId = 0;
    QHash<const FieldInfo *, QList<Item>> items;
};

/**
 * A message of a test format. Its sub-messages are made when first asked for and die with it.
 *
 * Main messages report themselves to the allocation accounting as "TestMessage", so that a
 * reference that is never given back fails the case.
 */
class TestMessage : public DecodedMessage
{
public:
    explicit TestMessage(std::shared_ptr<const MessageContent> content);

    unsigned int getNumberOfValues(const FieldInfo *field) const;
    FieldValue getValue(const FieldInfo *field, unsigned int index) const;

private:
    using Place = std::pair<const FieldInfo *, unsigned int>;

    TestMessage(std::shared_ptr<const MessageContent> content,
                const TestMessage *mainMessage,
                bool confidential);
    ~TestMessage() override;
    const TestMessage *getSubMessage(Place place,
                                     std::shared_ptr<const MessageContent> subContent) const;

    std::shared_ptr<const MessageContent> content;
    bool isPart;
    mutable QHash<Place, TestMessage *> subMessages; ///< Owned.
};

} // namespace corvane::test
