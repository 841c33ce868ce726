// How long it takes to index a long recording, and then to reach any place in it.
//
// bench_seek DEFINITIONS CAPTURE [MEGABYTES]
//
// The recording is the capture again and again, each time with later times, in a temporary file.

#include "descriptions.h"
#include "fileindex.h"
#include "filesource.h"
#include "formatinfo.h"
#include "mavlinkdecoder.h"
#include "mavlinkformat.h"
#include "mavlinkmessage.h"
#include "mavlinkscanner.h"
#include "messageneed.h"
#include "playback.h"
#include "reception.h"
#include "replayclock.h"
#include "streampump.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryFile>
#include <QtEndian>

#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

using namespace corvane;

namespace {

constexpr qsizetype timeStampSize = 8;
constexpr int placesToReach = 100;

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Where the time stamps of an undamaged recording stand. */
std::vector<qsizetype> findTimeStamps(const QByteArray &capture)
{
    std::vector<qsizetype> offsets;
    MavlinkFrame frame;
    for (qsizetype at = 0; at + timeStampSize < capture.size();) {
        const auto bytes = QByteArrayView(capture).sliced(at + timeStampSize);
        if (MavlinkFrame::parse(bytes, frame) != MavlinkFrame::Result::Frame)
            break;
        offsets.push_back(at);
        at += timeStampSize + frame.getSize();
    }
    return offsets;
}

void writeLong(QFile &file, QByteArray capture, qint64 bytes)
{
    const std::vector<qsizetype> offsets = findTimeStamps(capture);
    const auto timeAt
        = [&](qsizetype offset) { return qFromBigEndian<qint64>(capture.constData() + offset); };
    const qint64 lengthUs = timeAt(offsets.back()) - timeAt(offsets.front()) + 100'000;
    while (file.pos() < bytes) {
        file.write(capture);
        for (const qsizetype offset : offsets)
            qToBigEndian(timeAt(offset) + lengthUs, capture.data() + offset);
    }
    file.flush();
}

double getPeakMegabytes()
{
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

template <typename Signal>
void waitFor(typename QtPrivate::FunctionPointer<Signal>::Object *sender, Signal signal)
{
    QEventLoop loop;
    QObject::connect(sender, signal, &loop, &QEventLoop::quit);
    loop.exec();
}

void needAllTypes(MessageNeed &need, const MavlinkFormat &format)
{
    QList<const MessageInfo *> types;
    for (const auto &type : format.getInfo()->getData()->messages)
        types.append(type.get());
    need.setMessagesNeeded(types);
}

void printSeeks(const char *what, std::vector<double> ms)
{
    std::sort(ms.begin(), ms.end());
    std::printf("%s: median %.2f ms, longest %.2f ms\n", what, ms[ms.size() / 2], ms.back());
}

void run(const MavlinkFormat &format, const QString &path)
{
    MessageNeed need(nullptr);
    needAllTypes(need, format);
    Reception reception(format.getInfo(), mavlinkSenderName, true);
    qint64 delivered = 0;
    QObject::connect(&reception, &MessageSource::newMessage, &reception, [&] { ++delivered; });
    const MavlinkFraming framing = MavlinkFraming::TimeStamped;
    MavlinkDecoder decoder(format, reception, framing);
    FileSource source(path);
    ReplayClock clock;
    StreamPump pump(source, decoder, &clock);
    FileIndex index;
    Playback playback({pump, source, decoder, reception, clock, index});
    pump.setPaused(true);
    pump.start();

    QElapsedTimer timer;
    timer.start();
    index.start(path, std::make_unique<MavlinkScanner>(format, framing));
    waitFor(&index, &FileIndex::finished);
    const double seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    const double megabytes = static_cast<double>(index.getFileSize()) / 1e6;
    std::printf("index: %.0f MB in %.2f s, %zu places\n", megabytes, seconds,
                index.getPlaceCount());

    std::vector<double> byOffset;
    std::vector<double> byTime;
    const qint64 firstUs = *index.getFirstTimeUs();
    const qint64 lengthUs = *index.getLastTimeUs() - firstUs;
    for (int i = 0; i < placesToReach; ++i) {
        // All over the file, in no order.
        const int place = i * 37 % placesToReach;
        timer.start();
        playback.seek(playback.getSize() / placesToReach * place);
        waitFor(&playback, &Playback::arrived);
        byOffset.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        timer.start();
        playback.seekToTime(firstUs + lengthUs / placesToReach * (placesToReach - place));
        waitFor(&playback, &Playback::arrived);
        byTime.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    printSeeks("seek to an offset", byOffset);
    printSeeks("seek to a time", byTime);
    std::printf("messages delivered on the way: %lld; peak memory %.0f MB\n",
                static_cast<long long>(delivered), getPeakMegabytes());
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    MavlinkFormat format;
    QTemporaryFile file;
    const bool isReady
        = arguments.size() >= 3 && format.load(arguments.at(1)).isOk() && file.open();
    const QByteArray capture = isReady ? readFile(arguments.at(2)) : QByteArray();
    if (capture.isEmpty()) {
        std::fprintf(stderr, "bench_seek DEFINITIONS CAPTURE [MEGABYTES]\n");
        return 1;
    }
    const qint64 megabytes = arguments.size() > 3 ? arguments.at(3).toLongLong() : 1000;
    writeLong(file, capture, megabytes * 1'000'000);
    run(format, file.fileName());
    return 0;
}
