// Views of statistics and events: an update of a large statistics tree in which nothing changed,
// and one in which every count did; clearing a long event table.

#include "descriptions.h"
#include "eventlogtablewidget.h"
#include "fakestatistics.h"
#include "fieldinfo.h"
#include "formatinfo.h"
#include "guibenchmarks.h"
#include "messageinfo.h"
#include "messagestatisticswidget.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

using corvane::MessageStatisticsCoordinatorData;
using corvane::MessageStatisticsData;

constexpr int typeCount = 400;
constexpr int intervalCount = 64;
constexpr int gapCount = 100;

/** A coordinator with all it can have, and its view, shown. */
struct Scene
{
    Scene()
        : format(std::make_unique<corvane::FormatInfoData>())
    {
        format.getData()->name = QStringLiteral("Demo");
        for (int i = 0; i < typeCount; ++i) {
            MessageStatisticsData &data
                = coordinator.getData()->add(&format, nullptr, QStringLiteral("Type%1").arg(i));
            data.count = 1000;
            for (int j = 0; j < intervalCount; ++j) {
                data.intervals.append(j);
                data.intervalCounts.insert(j, static_cast<unsigned int>(1000 - j));
            }
            for (int j = 0; j < gapCount; ++j)
                data.gaps.append({static_cast<quint64>(j), 1, 50});
        }
        widget.resize(800, 600);
        widget.show();
        widget.updateTree();
        QCoreApplication::processEvents();
    }

    FormatInfo format;
    MessageStatisticsCoordinator coordinator;
    MessageStatisticsWidget widget{&coordinator};
};

void updateNothing(benchmark::State &state)
{
    Scene scene;
    for (auto _ : state)
        scene.widget.updateTree();
}

void updateAllCounts(benchmark::State &state)
{
    Scene scene;
    for (auto _ : state) {
        for (const auto &statistics : scene.coordinator.getData()->all)
            ++statistics->getData()->count;
        scene.widget.updateTree();
    }
}

void clearTable(benchmark::State &state)
{
    constexpr int rows = 100'000;
    for (auto _ : state) {
        state.PauseTiming();
        EventLogTableWidget table(nullptr);
        table.resize(800, 600);
        table.show();
        for (int i = 0; i < rows; ++i)
            table.addEntry({{}, CorvaneEvent(CorvaneEvent::Other, QStringLiteral("event"))});
        QCoreApplication::processEvents();
        state.ResumeTiming();
        table.clear();
        state.PauseTiming();
        table.hide();
        state.ResumeTiming();
    }
}

BENCHMARK(updateNothing)->Unit(benchmark::kMillisecond);
BENCHMARK(updateAllCounts)->Unit(benchmark::kMillisecond);
BENCHMARK(clearTable)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace

int main(int argc, char *argv[])
{
    return runGuiBenchmarks(argc, argv);
}
