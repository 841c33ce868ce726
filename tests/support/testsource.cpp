#include "testsource.h"

#include "testformat.h"

namespace corvane::test {

TestSource::TestSource(const TestFormat &format, QObject *parent)
    : MessageSource(parent)
    , format(&format)
{
}

void TestSource::send(const QString &text)
{
    const auto messages = format->messages(text);
    for (const MessageHolder &message : messages)
        Q_EMIT newMessage(message);
}

void TestSource::send(const Message *message)
{
    Q_EMIT newMessage(message);
}

} // namespace corvane::test
