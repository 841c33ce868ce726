// Reads the input as a stream of Protocol Buffers messages, whole and in pieces: the same must be
// found in both. On demand the whole input is one message, so that no length has to be guessed.

#include "everyfeature.h"
#include "fuzzchecks.h"
#include "fuzzinput.h"
#include "message.h"
#include "protobufmessages.h"

using namespace corvane;
using namespace corvane::fuzz;

namespace {

// Each byte can be a message, and messages are printed.
constexpr qsizetype maximumSize = 512;

ProtobufFormat &format()
{
    static auto *const definitions
        = new test::ProtobufDefinitions(test::everyFeature(), QStringLiteral("test.Every"));
    require(definitions->getErrors().isEmpty(), "the definitions are good");
    return definitions->getFormat();
}

/** Without the events, which a slow run gathers by another second of the clock. */
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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count)
{
    makeApplication();
    Input input(bytes, count);
    const unsigned options = input.takeByte();
    const bool isVarint = (options & 1) == 0;
    const QString framing = isVarint ? QStringLiteral("varint") : QStringLiteral("le32");
    const qsizetype pieceSize = 1 + input.takeByte();
    QByteArray stream = input.takeRest().left(maximumSize);
    if ((options & 2) != 0)
        stream = isVarint ? test::framedVarint(stream) : test::framedLittleEndian(stream);

    test::ProtobufRun whole(format(), framing);
    QObject::connect(&whole.getReception(), &MessageSource::newMessage, &readAll);
    whole.append(stream);
    whole.finish();
    require(whole.getTotals().bytes == static_cast<quint64>(stream.size()), "bytes are counted");
    require(whole.getDecoder().getPosition() == whole.getTotals().bytes, "all bytes are read");

    test::ProtobufRun pieces(format(), framing);
    pieces.append(stream, pieceSize);
    pieces.finish();
    requireEqual(summaryOf(pieces), summaryOf(whole), "pieces make no difference");
    return 0;
}
