// What the plot costs: 20 series of 1,000 values a second, ten minutes of them.

#include "catalogue.h"
#include "decodedmessage.h"
#include "descriptions.h"
#include "fieldtype.h"
#include "formatinfo.h"
#include "guibenchmarks.h"
#include "messageinfo.h"
#include "messagesource.h"
#include "plotpanel.h"
#include "plotview.h"

#include <QApplication>
#include <QFile>

#include <benchmark/benchmark.h>

#include <array>
#include <memory>

namespace {

constexpr int seriesCount = 20;
constexpr int samplesPerSecond = 1000;
constexpr int seconds = 600;
constexpr qint64 startUs = 1'700'000'000'000'000;

class TimedMessage : public corvane::DecodedMessage
{
public:
    TimedMessage(const MessageInfo *info, qint64 timeUs)
        : DecodedMessage(info, timeUs, 0)
    {
    }
};

/** A slow wave with noise on it, at a height of its own. */
class Field : public FieldInfo
{
public:
    Field(std::unique_ptr<corvane::FieldInfoData> data, int number)
        : FieldInfo(FieldType(FieldType::Float, 64), std::move(data))
        , number(number)
    {
    }

    unsigned int getNumberOfValues(const Message *) const override { return 1; }

    FieldValue getValue(const Message *message, unsigned int) const override
    {
        const auto timeMs
            = static_cast<const corvane::DecodedMessage *>(message)->getTimeUs() / 1000;
        const qint64 wave = std::abs(timeMs % 8000 - 4000);
        const qint64 noise = timeMs * 7919 % 401;
        return FieldValue::fromDouble(static_cast<double>(wave + noise + number * 500));
    }

private:
    int number;
};

/** A format with one message type of 20 fields. */
class Format
{
public:
    Format()
    {
        auto data = std::make_unique<corvane::FormatInfoData>();
        data->name = "Bench";
        info = std::make_unique<FormatInfo>(std::move(data));
        auto typeData = std::make_unique<corvane::MessageInfoData>();
        typeData->name = "All";
        typeData->format = info.get();
        type = info->getData()->addMessage(std::make_unique<MessageInfo>(std::move(typeData)));
        for (int i = 0; i < seriesCount; ++i) {
            auto fieldData = std::make_unique<corvane::FieldInfoData>();
            fieldData->name = QStringLiteral("value%1").arg(i);
            type->getData()->addField(std::make_unique<Field>(std::move(fieldData), i), type);
        }
        corvane::Catalogue::getInstance()->addFormat(info.get());
    }

    ~Format() { corvane::Catalogue::getInstance()->removeFormat(info.get()); }

    Format(const Format &) = delete;
    Format &operator=(const Format &) = delete;

    std::unique_ptr<FormatInfo> info;
    MessageInfo *type;
};

class Plot
{
public:
    Plot()
    {
        panel.resize(1920, 600);
        panel.addSeries(QStringLiteral("Bench.All.*"));
    }

    /** One message of the next millisecond: 20 samples. */
    void receive()
    {
        const auto *message
            = new TimedMessage(format.type, startUs + sent * 1'000'000 / samplesPerSecond);
        ++sent;
        Q_EMIT source.newMessage(message);
        message->removeReference();
    }

    void fill()
    {
        while (sent < qint64(seconds) * samplesPerSecond)
            receive();
    }

    Format format;
    MessageSource source;
    corvane::PlotPanel panel{source};
    qint64 sent = 0;
};

/** The least that taking a sample can cost: a message, its values, and appending them. */
void plainVectors(benchmark::State &state)
{
    const Format format;
    const auto fields = format.type->getFieldInfos();
    std::array<std::vector<corvane::Sample>, seriesCount> vectors;
    qint64 timeUs = startUs;
    for (auto _ : state) {
        const auto *message = new TimedMessage(format.type, timeUs += 1000);
        for (size_t i = 0; i < seriesCount; ++i)
            vectors[i].push_back(
                {timeUs,
                 fields[static_cast<qsizetype>(i)]->getValue(message, 0).toDouble().value_or(0)});
        message->removeReference();
    }
    state.SetItemsProcessed(state.iterations() * seriesCount);
}

/** From `newMessage` to the store, thinning included. */
void samples(benchmark::State &state)
{
    Plot plot;
    for (auto _ : state)
        plot.receive();
    state.SetItemsProcessed(state.iterations() * seriesCount);
}

// Filled once, and gone before the application is.
std::unique_ptr<Plot> filledPlot;

/** A picture of the last seconds of the ten minutes. */
void picture(benchmark::State &state)
{
    if (!filledPlot) {
        filledPlot = std::make_unique<Plot>();
        filledPlot->fill();
        filledPlot->panel.show();
        QApplication::processEvents();
    }
    corvane::PlotView *view = filledPlot->panel.getView();
    view->setSpanUs(state.range(0) * 1'000'000);
    for (auto _ : state) {
        view->refresh();
        view->repaint();
    }
}

qint64 residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLongLong() * 4096;
}

/** Memory in use for each sample of the ten minutes. */
void memory(benchmark::State &state)
{
    for (auto _ : state) {
        const qint64 before = residentBytes();
        Plot plot;
        plot.fill();
        state.counters["bytesPerSample"] = static_cast<double>(residentBytes() - before)
                                           / (double(seconds) * samplesPerSecond * seriesCount);
    }
}

BENCHMARK(plainVectors);
BENCHMARK(samples);
BENCHMARK(memory)->Iterations(1);
BENCHMARK(picture)->Arg(1)->Arg(30)->Arg(600)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    return runGuiBenchmarks(argc, argv, [] { filledPlot.reset(); });
}
