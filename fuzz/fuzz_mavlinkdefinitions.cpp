// Reads the input as a dialect file and up to three more that it can include ("a.xml" to "c.xml"),
// with zero bytes between them. Messages of what could be loaded are then read.

#include "descriptions.h"
#include "fuzzchecks.h"
#include "fuzzinput.h"
#include "mavlinkframes.h"
#include "message.h"
#include "messageinfo.h"
#include "messageprinter.h"

#include <QFile>

using namespace corvane;
using namespace corvane::fuzz;

namespace {

QString writeFiles(const QList<QByteArray> &texts)
{
    static const test::DialectFolder folder;
    static const QStringList names{QStringLiteral("main.xml"), QStringLiteral("a.xml"),
                                   QStringLiteral("b.xml"), QStringLiteral("c.xml")};
    for (qsizetype i = 0; i < names.size(); ++i) {
        QFile::remove(folder.getPath(names.at(i)));
        if (i < texts.size())
            folder.write(names.at(i), texts.at(i));
    }
    return folder.getPath(names.first());
}

void readMessages(const MavlinkFormat &format)
{
    const QHash<quint32, quint8> extras = format.getChecksumExtras();
    for (auto type = extras.begin(); type != extras.end(); ++type) {
        test::printed(format.findType(type.key())->info);
        const qsizetype size = format.findType(type.key())->fullSize;
        for (const char filler : {'\0', '\x41', '\xff'}) {
            const QByteArray frame = test::frameVersion2(
                {.id = type.key(), .extra = type.value(), .payload = QByteArray(size, filler)});
            test::DecoderRun run(format, MavlinkFraming::Raw);
            QObject::connect(&run.getReception(), &MessageSource::newMessage, &readAll);
            run.append(frame);
            run.finish();
            require(run.getTotals().frames == 1, "a frame of the type is understood");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count)
{
    makeApplication();
    const QString file = writeFiles(Input(bytes, count).takeTexts());
    MavlinkFormat format;
    const auto &messages = format.getInfo()->getData()->messages;
    if (!format.load(file).isOk()) {
        require(messages.empty(), "nothing is added with errors");
        return 0;
    }
    const size_t loaded = messages.size();
    require(format.loadFiles({file}).isOk() && messages.size() == loaded,
            "a file can be loaded again");
    readMessages(format);
    return 0;
}
