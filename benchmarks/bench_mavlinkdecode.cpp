// How fast a recording in memory becomes messages, beside the least that any decoder must do: find
// each frame, compute its checksum, allocate a block and copy the frame into it.
//
// Usage: bench_mavlinkdecode DEFINITIONS RECORDING [options of Google Benchmark]

#include "descriptions.h"
#include "mavlinkdecoder.h"
#include "mavlinkformat.h"
#include "mavlinkmessage.h"
#include "messageinfo.h"
#include "messageneed.h"
#include "reception.h"

#include <QFile>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <vector>

namespace {

using namespace corvane;

constexpr qsizetype chunkSize = 64 * 1024;

MavlinkFormat *format = nullptr;
QByteArray recording;

QList<const MessageInfo *> allTypes()
{
    QList<const MessageInfo *> types;
    for (const auto &message : format->getInfo()->getData()->messages)
        types.append(message.get());
    return types;
}

/** Every frame of a recording that is in step, found by its lengths alone. */
template <typename Visitor>
void visitFrames(QByteArrayView rest, Visitor visit)
{
    constexpr qsizetype timeStampSize = 8;
    while (rest.size() > timeStampSize) {
        rest = rest.sliced(timeStampSize);
        MavlinkFrame frame;
        if (MavlinkFrame::parse(rest, frame) != MavlinkFrame::Result::Frame)
            return;
        visit(frame, rest);
        rest = rest.sliced(frame.getSize());
    }
}

void decodeFloor(benchmark::State &state)
{
    int64_t frames = 0;
    for (auto _ : state) {
        visitFrames(recording, [&](const MavlinkFrame &frame, QByteArrayView bytes) {
            const MavlinkMessageType *type = format->findType(frame.messageId);
            if (type == nullptr)
                return;
            benchmark::DoNotOptimize(frame.computeChecksum(bytes, type->checksumExtra));
            const auto size = static_cast<size_t>(frame.getSize());
            auto *block = static_cast<char *>(::operator new(sizeof(MavlinkMessage) + size));
            std::memcpy(block + sizeof(MavlinkMessage), bytes.data(), size);
            benchmark::DoNotOptimize(block);
            ::operator delete(block);
            ++frames;
        });
    }
    state.SetItemsProcessed(frames);
}

void decodeToNewMessage(benchmark::State &state)
{
    MessageNeed need(nullptr);
    need.setMessagesNeeded(allTypes());
    int64_t messages = 0;
    for (auto _ : state) {
        Reception reception(format->getInfo(), mavlinkSenderName, true);
        QObject::connect(&reception, &MessageSource::newMessage, &reception, [&] { ++messages; });
        MavlinkDecoder decoder(*format, reception);
        for (QByteArrayView rest = recording; !rest.isEmpty();) {
            const qsizetype size = std::min(chunkSize, rest.size());
            decoder.append(rest.first(size), std::nullopt);
            while (decoder.step() == StreamDecoder::Step::Advanced) {
            }
            rest = rest.sliced(size);
        }
        decoder.finish();
        while (decoder.step() == StreamDecoder::Step::Advanced) {
        }
    }
    state.SetItemsProcessed(messages);
}

BENCHMARK(decodeFloor)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeToNewMessage)->Unit(benchmark::kMillisecond);

bool prepare(const char *definitions, const char *file)
{
    format = new MavlinkFormat;
    for (const LoadError &error : format->load(QString::fromLocal8Bit(definitions)).errors) {
        std::fprintf(stderr, "%s\n", qPrintable(error.toString()));
        return false;
    }
    QFile device(QString::fromLocal8Bit(file));
    if (!device.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s: %s\n", file, qPrintable(device.errorString()));
        return false;
    }
    recording = device.readAll();
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 3 || !prepare(argv[1], argv[2])) {
        std::fprintf(stderr, "usage: bench_mavlinkdecode DEFINITIONS RECORDING [options]\n");
        return 1;
    }
    argv[2] = argv[0];
    int left = argc - 2;
    benchmark::Initialize(&left, argv + 2);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
