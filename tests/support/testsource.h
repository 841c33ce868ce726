#pragma once

#include "messagesource.h"

#include <QString>

namespace corvane::test {

class TestFormat;

/** A source that sends what the test tells it to, whether anybody needs it or not. */
class TestSource : public MessageSource
{
public:
    /** \a format: what send() reads its literals with; must outlive the source. */
    explicit TestSource(const TestFormat &format, QObject *parent = nullptr);

    /** Sends the messages of \a text one after the other, and lets each of them go again. */
    void send(const QString &text);
    void send(const Message *message);

private:
    const TestFormat *format; ///< Not owned.
};

} // namespace corvane::test
