#pragma once

#include "message.h"

#include <utility>

namespace corvane::test {

/** Holds one reference on a message for as long as it lives; goes wherever a message goes. */
class MessageHolder
{
public:
    /** Takes a reference of its own; \a message may be null. */
    explicit MessageHolder(const Message *message = nullptr)
        : message(message)
    {
        if (message != nullptr)
            message->addReference();
    }

    /** Takes over the reference of the creator of \a message. */
    static MessageHolder adopt(const Message *message)
    {
        MessageHolder holder;
        holder.message = message;
        return holder;
    }

    MessageHolder(const MessageHolder &other)
        : MessageHolder(other.message)
    {
    }

    MessageHolder(MessageHolder &&other) noexcept
        : message(std::exchange(other.message, nullptr))
    {
    }

    MessageHolder &operator=(MessageHolder other) noexcept
    {
        std::swap(message, other.message);
        return *this;
    }

    ~MessageHolder()
    {
        if (message != nullptr)
            message->removeReference();
    }

    const Message *get() const { return message; }

    const Message *operator->() const { return message; }

    operator const Message *() const { return message; }

private:
    const Message *message;
};

} // namespace corvane::test
