#include "testformat.h"

#include "catalogue.h"
#include "descriptions.h"
#include "formatinfo.h"
#include "messageinfo.h"
#include "messageparser.h"
#include "typeparser.h"

namespace corvane::test {

TestFormat::TestFormat(const QString &name, const QString &types)
{
    auto data = std::make_unique<FormatInfoData>();
    data->name = name;
    info = std::make_unique<FormatInfo>(std::move(data));
    TypeParser(info.get(), types).parse();
    Catalogue::getInstance()->addFormat(info.get());
}

TestFormat::~TestFormat()
{
    Catalogue::getInstance()->removeFormat(info.get());
}

const MessageInfo *TestFormat::type(const QString &name) const
{
    const MessageInfo *found = info->getData()->findMessage(name);
    if (found == nullptr)
        qFatal("test format %s: no type %s", qPrintable(info->getName()), qPrintable(name));
    return found;
}

const FieldInfo *TestFormat::field(const QString &path) const
{
    for (const auto &message : info->getData()->messages) {
        const MessageInfoData &data = *message->getData();
        if (!path.startsWith(data.name + QLatin1Char('.')))
            continue;
        if (const FieldInfo *found = data.findField(path.mid(data.name.size() + 1)))
            return found;
    }
    qFatal("test format %s: no field %s", qPrintable(info->getName()), qPrintable(path));
}

MessageHolder TestFormat::message(const QString &text) const
{
    const QList<MessageHolder> all = messages(text);
    if (all.size() != 1)
        qFatal("test literal: expected one message in %s", qPrintable(text));
    return all.constFirst();
}

QList<MessageHolder> TestFormat::messages(const QString &text) const
{
    QList<MessageHolder> result;
    MessageParser parser(info.get(), text);
    while (!parser.isAtEnd())
        result.append(MessageHolder::adopt(new TestMessage(parser.parseMessage())));
    return result;
}

void TestFormat::setVirtual(const QString &path, Computation computation)
{
    const auto *found = dynamic_cast<const TestFieldInfo *>(field(path));
    if (found == nullptr)
        qFatal("test format %s: %s is made of bits", qPrintable(info->getName()), qPrintable(path));
    // The format owns its fields; only others see them as constant.
    const_cast<TestFieldInfo *>(found)->setComputation(std::move(computation));
}

void TestFormat::setVirtual(const QString &path,
                            std::function<FieldValue(const Message *)> computation)
{
    setVirtual(path, Computation([computation = std::move(computation)](const Message *message) {
                   return QList<FieldValue>{computation(message)};
               }));
}

} // namespace corvane::test
