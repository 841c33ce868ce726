// Tells what became of each frame of a damaged stream, as JSON.
// Usage: soaktrace DEFINITIONS STREAM FRAMES, where FRAMES holds two bytes for each frame of the
// stream, little endian: its size and, as the highest bit, whether it is damaged.

#include "mavlinkformat.h"
#include "reception.h"
#include "streamdecoder.h"

#include <QCoreApplication>
#include <QFile>
#include <QtEndian>

#include <array>
#include <cstdio>
#include <memory>

using namespace corvane;

namespace {

/** Neighbouring bytes of the stream that were taken for one thing. */
struct Extent
{
    enum class Kind {
        Good,
        CrcError,
        Unknown,
        Skipped
    };

    quint64 begin = 0;
    quint64 end = 0;
    Kind kind = Kind::Skipped;
};

/** Reads a stream as the session does, and gives what each step took. */
class Extents
{
public:
    Extents(const MavlinkFormat &format, const QString &file)
        : stream(file)
        , reception(format, nullptr)
        , decoder(format.makeDecoder(reception, {}))
    {
        if (!stream.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(file));
    }

    bool next(Extent &extent)
    {
        const Reception::Totals before = reception.getTotals();
        extent.begin = decoder->getPosition();
        while (decoder->step() == StreamDecoder::Step::NeedsBytes)
            if (!append())
                return false;
        const Reception::Totals &after = reception.getTotals();
        extent.end = decoder->getPosition();
        if (after.frames > before.frames)
            extent.kind = Extent::Kind::Good;
        else if (after.unknownFrames > before.unknownFrames)
            extent.kind = Extent::Kind::Unknown;
        else
            extent.kind = after.crcErrors > before.crcErrors ? Extent::Kind::CrcError
                                                             : Extent::Kind::Skipped;
        return true;
    }

    const Reception::Totals &getTotals() const { return reception.getTotals(); }

private:
    bool append()
    {
        constexpr qint64 chunkBytes = 64 * 1024;
        const QByteArray bytes = stream.read(chunkBytes);
        if (!bytes.isEmpty())
            decoder->append(bytes, std::nullopt);
        else if (finished)
            return false;
        else
            decoder->finish();
        finished = bytes.isEmpty();
        return true;
    }

    QFile stream;
    Reception reception;
    std::unique_ptr<StreamDecoder> decoder;
    bool finished = false;
};

/** What became of the frames, each of which is in exactly one of the counts of its sort. */
struct Fates
{
    quint64 wholeReceived = 0;
    quint64 wholeSwallowed = 0; ///< Begin inside of what a damaged frame before them claims to be.
    quint64 wholeUnexplained = 0;
    quint64 damagedAsCrcError = 0;
    quint64 damagedAsUnknown = 0;
    quint64 damagedSkipped = 0;
    quint64 damagedSwallowed = 0;
    quint64 damagedAsGood = 0;
};

struct SentFrame
{
    quint64 begin = 0;
    quint64 end = 0;
    bool isDamaged = false;
};

/** \a extent: the one that holds the first byte of \a frame. */
void count(const SentFrame &frame, const Extent &extent, bool isDamageBefore, Fates &fates)
{
    const bool isInside = extent.begin < frame.begin && extent.kind != Extent::Kind::Skipped;
    if (!frame.isDamaged) {
        const bool isReceived = extent.kind == Extent::Kind::Good && extent.begin == frame.begin
                                && extent.end == frame.end;
        ++(isReceived                   ? fates.wholeReceived
           : isInside && isDamageBefore ? fates.wholeSwallowed
                                        : fates.wholeUnexplained);
        return;
    }
    if (isInside)
        ++fates.damagedSwallowed;
    else if (extent.kind == Extent::Kind::Good)
        ++fates.damagedAsGood;
    else if (extent.kind == Extent::Kind::CrcError)
        ++fates.damagedAsCrcError;
    else
        ++(extent.kind == Extent::Kind::Unknown ? fates.damagedAsUnknown : fates.damagedSkipped);
}

/** Whether all frames could be followed through the whole stream. */
bool trace(Extents &extents, QFile &frames, Fates &fates)
{
    constexpr quint16 damagedBit = 0x8000;
    Extent extent;
    SentFrame frame;
    // Since the last whole frame that was received as itself.
    bool isDamageBefore = false;
    std::array<char, 2> record{};
    while (frames.read(record.data(), record.size()) == record.size()) {
        const auto word = qFromLittleEndian<quint16>(record.data());
        frame = {frame.end, frame.end + (word & ~damagedBit), (word & damagedBit) != 0};
        while (extent.end <= frame.begin)
            if (!extents.next(extent))
                return false;
        const quint64 before = fates.wholeReceived;
        count(frame, extent, isDamageBefore, fates);
        isDamageBefore = frame.isDamaged || (isDamageBefore && fates.wholeReceived == before);
    }
    while (extents.next(extent)) {
    }
    return frame.end == extents.getTotals().bytes;
}

void print(const Fates &fates, const Reception::Totals &totals)
{
    const auto line = [](const char *name, quint64 number, const char *end = ",") {
        std::printf("\"%s\": %llu%s\n", name, number, end);
    };
    std::printf("{\n");
    line("wholeReceived", fates.wholeReceived);
    line("wholeSwallowed", fates.wholeSwallowed);
    line("wholeUnexplained", fates.wholeUnexplained);
    line("damagedAsCrcError", fates.damagedAsCrcError);
    line("damagedAsUnknown", fates.damagedAsUnknown);
    line("damagedSkipped", fates.damagedSkipped);
    line("damagedSwallowed", fates.damagedSwallowed);
    line("damagedAsGood", fates.damagedAsGood);
    line("frames", totals.frames);
    line("crcErrors", totals.crcErrors.value_or(0));
    line("unknownFrames", totals.unknownFrames);
    line("skippedBytes", totals.skippedBytes, "");
    std::printf("}\n");
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    MavlinkFormat format;
    QFile frames(arguments.value(3));
    if (!format.loadFiles({arguments.value(1)}).isOk() || !frames.open(QIODevice::ReadOnly))
        return 1;
    Extents extents(format, arguments.value(2));
    Fates fates;
    if (!trace(extents, frames, fates)) {
        std::fprintf(stderr, "the frames do not make up the stream\n");
        return 1;
    }
    print(fates, extents.getTotals());
    return 0;
}
