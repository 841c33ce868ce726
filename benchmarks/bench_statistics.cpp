// What the statistics cost for each frame: of 40 types in rhythm with jitter, and of 40 types that
// come at random moments, beside reading a clock.

#include "descriptions.h"
#include "fieldinfo.h"
#include "formatinfo.h"
#include "messageinfo.h"
#include "reception.h"

#include <QRandomGenerator>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <memory>
#include <vector>

namespace {

using namespace corvane;

constexpr int typeCount = 40;
constexpr int frameCount = 200'000;
constexpr double periodUs = 50'000;

std::unique_ptr<FormatInfo> makeFormat()
{
    auto data = std::make_unique<FormatInfoData>();
    data->name = QStringLiteral("Demo");
    auto format = std::make_unique<FormatInfo>(std::move(data));
    for (int i = 0; i < typeCount; ++i) {
        auto message = std::make_unique<MessageInfoData>();
        message->name = QStringLiteral("Type%1").arg(i);
        message->format = format.get();
        format->getData()->addMessage(std::make_unique<MessageInfo>(std::move(message)));
    }
    return format;
}

template <typename NextTime>
void receive(benchmark::State &state, NextTime nextTime)
{
    const auto format = makeFormat();
    std::vector<FrameHeader> frames;
    std::vector<double> times(typeCount, 0.0);
    QRandomGenerator random(1);
    for (int i = 0; i < frameCount; ++i) {
        const int type = i % typeCount;
        double &time = times[static_cast<size_t>(type)];
        FrameHeader frame;
        frame.messageInfo = format->getData()->messages[static_cast<size_t>(type)].get();
        frame.senderId = 1;
        frame.sequence = static_cast<quint8>(i);
        frame.timeUs = std::llround(nextTime(time, random));
        frames.push_back(frame);
    }
    for (auto _ : state) {
        Reception reception(
            format.get(), [](quint32) { return QString(); }, true);
        for (const FrameHeader &frame : frames)
            benchmark::DoNotOptimize(reception.receiveFrame(frame));
    }
    state.SetItemsProcessed(state.iterations() * frameCount);
}

void inRhythm(benchmark::State &state)
{
    receive(state, [](double &time, QRandomGenerator &random) {
        time += periodUs;
        return time + (random.generateDouble() - 0.5) * periodUs / 2;
    });
}

void atRandomMoments(benchmark::State &state)
{
    receive(state, [](double &time, QRandomGenerator &random) {
        return time += -periodUs * std::log(1.0 - random.generateDouble());
    });
}

void readingAClock(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(std::chrono::steady_clock::now());
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(inRhythm);
BENCHMARK(atRandomMoments);
BENCHMARK(readingAClock);

} // namespace

BENCHMARK_MAIN();
