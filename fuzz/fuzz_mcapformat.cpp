// Opens the input as an MCAP file, with the definitions that it brings, and reads its messages,
// whole and in pieces: the same must be found in both.

#include "fuzzchecks.h"
#include "fuzzinput.h"
#include "mcapformat.h"
#include "message.h"
#include "protobufmessages.h"
#include "streamscanner.h"

#include <QFile>
#include <QTemporaryDir>

using namespace corvane;
using namespace corvane::fuzz;

namespace {

QString write(const QByteArray &content)
{
    static const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("fuzz.mcap")));
    require(file.open(QIODevice::WriteOnly), "the file can be written");
    file.write(content);
    return file.fileName();
}

QString summaryOf(const test::ProtobufRun &run)
{
    const Reception::Totals &totals = run.getTotals();
    return (QStringList{QStringLiteral("%1 bytes, %2 skipped, %3 good, %4 unknown")
                            .arg(totals.bytes)
                            .arg(totals.skippedBytes)
                            .arg(totals.frames)
                            .arg(totals.unknownFrames)}
            + run.getMessages())
        .join(QLatin1Char('\n'));
}

void checkScanner(const McapFormat &format, const QByteArray &file)
{
    const auto scanner = format.makeScanner(file, {});
    scanner->append(file);
    qint64 offset = 0;
    while (const auto place = scanner->find(offset)) {
        require(place->offset >= offset && place->offset < file.size(), "a place lies ahead");
        offset = place->offset + 1;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count)
{
    makeApplication();
    Input input(bytes, count);
    const qsizetype pieceSize = 1 + input.takeByte();
    const QByteArray file = input.takeRest();
    McapFormat format;
    if (!format.loadFiles({write(file)}).isOk()) {
        require(format.getDefinitions().channels.empty(), "nothing is loaded with errors");
        return 0;
    }
    test::ProtobufRun whole(format);
    QObject::connect(&whole.getReception(), &MessageSource::newMessage, &readAll);
    whole.append(file);
    whole.finish();
    require(whole.getDecoder().getPosition() == static_cast<quint64>(file.size()), "all is read");
    require(whole.getTotals().skippedBytes <= static_cast<quint64>(file.size()), "not all is lost");

    test::ProtobufRun pieces(format);
    pieces.append(file, pieceSize);
    pieces.finish();
    requireEqual(summaryOf(pieces), summaryOf(whole), "pieces make no difference");
    checkScanner(format, file);
    return 0;
}
