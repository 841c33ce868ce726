// Reads the input as a MAVLink stream, whole and in pieces: the same must be found in both.
// Checksums are put right before, where the input asks for it, so that changed frames are not all
// refused.

#include "fuzzchecks.h"
#include "fuzzinput.h"
#include "mavlinkframe.h"
#include "mavlinkframes.h"
#include "message.h"
#include "streamscanner.h"

#include <QElapsedTimer>
#include <QtEndian>

using namespace corvane;
using namespace corvane::fuzz;

namespace {

const MavlinkFormat &format()
{
    static const MavlinkFormat *const loaded = [] {
        auto *made = new MavlinkFormat;
        const QString file = QStringLiteral(CORVANE_SOURCE_FOLDER "/examples/recording/rover.xml");
        require(made->load(file).isOk(), "the definitions are good");
        return made;
    }();
    return *loaded;
}

void repairChecksums(QByteArray &stream)
{
    const QHash<quint32, quint8> extras = format().getChecksumExtras();
    for (qsizetype at = 0; at < stream.size();) {
        const QByteArrayView rest = QByteArrayView(stream).sliced(at);
        MavlinkFrame frame;
        if (MavlinkFrame::parse(rest, frame) != MavlinkFrame::Result::Frame
            || !extras.contains(frame.messageId))
        {
            ++at;
            continue;
        }
        const quint16 checksum = frame.computeChecksum(rest, extras.value(frame.messageId));
        qToLittleEndian(checksum, stream.data() + at + frame.headerSize + frame.payloadSize);
        at += frame.getSize();
    }
}

void checkCounts(test::DecoderRun &run, qsizetype size)
{
    const Reception::Totals &totals = run.getTotals();
    require(totals.bytes == static_cast<quint64>(size), "all bytes are counted");
    require(run.getDecoder().getPosition() == totals.bytes, "all bytes are read");
    const qint64 doubtful = run.getDoubtfulBytes();
    const quint64 frames = totals.unknownFrames + totals.crcErrors.value_or(0);
    require(frames == 0 ? doubtful == 0 : doubtful > 0, "each byte belongs to one thing");
}

/** The places at which a reader could begin are places of frames, in their order. */
void checkScanner(const QByteArray &stream, const QString &framing)
{
    const auto scanner = format().makeScanner(stream, framing);
    scanner->append(stream);
    qint64 offset = 0;
    while (const auto place = scanner->find(offset)) {
        require(place->offset >= offset && place->offset < stream.size(), "a place lies ahead");
        offset = place->offset + 1;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count)
{
    makeApplication();
    Input input(bytes, count);
    const unsigned options = input.takeByte();
    const auto framing = static_cast<MavlinkFraming>(options % 3);
    const qsizetype pieceSize = 1 + input.takeByte();
    QByteArray stream = input.takeRest();
    if ((options & 0x80) != 0)
        repairChecksums(stream);

    QElapsedTimer timer;
    timer.start();
    test::DecoderRun whole(format(), framing);
    QObject::connect(&whole.getReception(), &MessageSource::newMessage, &readAll);
    whole.append(stream);
    whole.finish();
    checkCounts(whole, stream.size());

    test::DecoderRun pieces(format(), framing);
    pieces.append(stream, pieceSize);
    pieces.finish();
    // Events of one second are told together, and a slow run may see another second begin.
    if (!timer.hasExpired(500))
        requireEqual(pieces.getSummary(), whole.getSummary(), "pieces make no difference");

    constexpr const char *names[] = {"auto", "raw", "tlog"};
    checkScanner(stream, QString::fromLatin1(names[options % 3]));
    return 0;
}
