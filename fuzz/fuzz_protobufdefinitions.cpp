// Reads the input as definitions, text or a descriptor set, and messages of what they describe. Up
// to two more files of text ("a.proto", "b.proto") can be imported; zero bytes stand between them.
// On demand the type of the stream is named, or a descriptor set is taken as it stands in a file.

#include "descriptions.h"
#include "fuzzchecks.h"
#include "fuzzinput.h"
#include "message.h"
#include "messageinfo.h"
#include "messageprinter.h"
#include "protobufmessages.h"
#include "protobufschema.h"

#include <QFile>
#include <QTemporaryDir>

using namespace corvane;
using namespace corvane::fuzz;

namespace {

QString write(const QString &name, const QByteArray &content)
{
    static const QTemporaryDir folder;
    QFile file(folder.filePath(name));
    require(file.open(QIODevice::WriteOnly), "the file can be written");
    file.write(content);
    return file.fileName();
}

QString writeDefinitions(Input &input, bool isSet)
{
    if (isSet)
        return write(QStringLiteral("main.desc"), input.takeRest());
    const QList<QByteArray> texts = input.takeTexts();
    write(QStringLiteral("a.proto"), texts.value(1));
    write(QStringLiteral("b.proto"), texts.value(2));
    return write(QStringLiteral("main.proto"), texts.value(0));
}

void readMessages(const ProtobufFormat &format)
{
    for (const auto &type : format.getInfo()->getData()->messages)
        test::printed(type.get());
    // No value, fields 1 to 15 as numbers, as fixed ones, as texts; field 1 in field 1.
    for (const char *hex : {"", "08011002180320042805300638074008480950015800600168017001",
                            "0d0000c07f150000803f190102030405060708", "0a00120161220271ff",
                            "0a060a040a020a00", "00", "0a"})
    {
        test::ProtobufRun run(format);
        QObject::connect(&run.getReception(), &MessageSource::newMessage, &readAll);
        run.append(test::framedVarint(QByteArray::fromHex(hex)));
        run.finish();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count)
{
    makeApplication();
    Input input(bytes, count);
    const unsigned options = input.takeByte();
    const bool isSet = (options & 1) != 0;
    ProtobufFormat format((options & 2) != 0 ? QStringLiteral("test.Every") : QString());
    const QString file = writeDefinitions(input, isSet);
    const auto result = format.loadFiles({file});
    if (isSet) {
        QFile written(file);
        require(written.open(QIODevice::ReadOnly), "the file can be read");
        const auto parsed = ProtobufSchema::parse(written.readAll(), file);
        require(parsed.schema != nullptr || !result.isOk(), "what a file may say, bytes may");
    }
    if (result.isOk())
        readMessages(format);
    else
        require(format.getInfo()->getData()->messages.empty(), "nothing is added with errors");
    return 0;
}
