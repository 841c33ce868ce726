// How fast a stream of Protocol Buffers messages in memory becomes messages, every field of which
// is read once, beside what libprotobuf takes to parse the same bytes into dynamic messages.
//
// Usage: bench_protobufdecode [options of Google Benchmark]
//        bench_protobufdecode DEFINITIONS ROOT RECORDING [options], lengths of 4 bytes

#include "descriptions.h"
#include "message.h"
#include "messageinfo.h"
#include "messageneed.h"
#include "protobufformat.h"
#include "protobufframing.h"
#include "reception.h"
#include "streamdecoder.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include <benchmark/benchmark.h>
#include <google/protobuf/arena.h>
#include <google/protobuf/dynamic_message.h>
#include <google/protobuf/message.h>
#include <google/protobuf/text_format.h>

#include <cstdio>

namespace {

using namespace corvane;

constexpr qsizetype chunkSize = 64 * 1024;

ProtobufFormat *format = nullptr;
QByteArray recording;

QList<const MessageInfo *> allTypes()
{
    QList<const MessageInfo *> types;
    for (const auto &message : format->getInfo()->getData()->messages)
        types.append(message.get());
    return types;
}

void readFields(const Message *message, qint64 *values)
{
    for (const FieldInfo *field : message->getInfo()->getData()->fields) {
        const unsigned int count = field->getNumberOfValues(message);
        if (field->isStringField()) {
            benchmark::DoNotOptimize(field->getString(message));
            ++*values;
            continue;
        }
        for (unsigned int index = 0; index < count; ++index) {
            const FieldValue value = field->getValue(message, index);
            benchmark::DoNotOptimize(&value);
            ++*values;
            if (const Message *part = value.getSubMessage())
                readFields(part, values);
        }
    }
}

void decode(benchmark::State &state, bool readsFields)
{
    MessageNeed need(nullptr);
    need.setMessagesNeeded(allTypes());
    int64_t messages = 0;
    qint64 values = 0;
    for (auto _ : state) {
        Reception reception(*format);
        QObject::connect(&reception, &MessageSource::newMessage, &reception,
                         [&](const Message *message) {
                             ++messages;
                             if (readsFields)
                                 readFields(message, &values);
                         });
        const auto decoder = format->makeDecoder(reception, QStringLiteral("le32"));
        for (QByteArrayView rest = recording; !rest.isEmpty();) {
            const qsizetype size = std::min(chunkSize, rest.size());
            decoder->append(rest.first(size), std::nullopt);
            while (decoder->step() == StreamDecoder::Step::Advanced) {
            }
            rest = rest.sliced(size);
        }
    }
    state.SetItemsProcessed(messages);
    state.counters["values"] = static_cast<double>(values) / static_cast<double>(messages);
}

void decodeToNewMessage(benchmark::State &state)
{
    decode(state, false);
}

void decodeAndReadEveryField(benchmark::State &state)
{
    decode(state, true);
}

void parseAlone(benchmark::State &state)
{
    int64_t messages = 0;
    google::protobuf::DynamicMessageFactory factory;
    const auto *prototype = factory.GetPrototype(format->getRoot());
    for (auto _ : state) {
        for (QByteArrayView rest = recording; !rest.isEmpty(); ++messages) {
            ProtobufLength length;
            ProtobufLength::read(rest, ProtobufFraming::LittleEndian32, length);
            const auto size = static_cast<int>(length.size);
            google::protobuf::Arena arena;
            auto *message = prototype->New(&arena);
            benchmark::DoNotOptimize(
                message->ParsePartialFromArray(rest.data() + length.prefixSize, size));
            rest = rest.sliced(length.prefixSize + size);
        }
    }
    state.SetItemsProcessed(messages);
}

BENCHMARK(parseAlone)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeToNewMessage)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeAndReadEveryField)->Unit(benchmark::kMillisecond);

bool load(const QString &definitions, const QString &root)
{
    format = new ProtobufFormat(root);
    for (const LoadError &error : format->loadFiles({definitions}).errors) {
        std::fprintf(stderr, "%s\n", qPrintable(error.toString()));
        return false;
    }
    return true;
}

/** A table of processes, as a machine that is watched would send it. */
bool makeRecording()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("processes.proto")));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(R"(syntax = "proto3"; package bench;
message Processes { uint64 time_us = 1; uint32 sequence = 2; repeated Process processes = 3; }
enum State { UNKNOWN = 0; RUNNING = 1; SLEEPING = 2; }
message Process { uint32 pid = 1; string name = 2; State state = 3; double load = 4;
  uint64 bytes = 5; optional float celsius = 6; repeated uint32 threads = 7; })");
    file.close();
    if (!load(file.fileName(), QStringLiteral("bench.Processes")))
        return false;
    QString text = QStringLiteral("time_us: 1700000000000000 sequence: 12345 ");
    for (int i = 0; i < 20; ++i)
        text
            += QStringLiteral("processes { pid: %1 name: 'some-program' state: SLEEPING load: 0.%1 "
                              "bytes: 123456%1 celsius: 41.5 threads: [%1, 1, 2, 3] } ")
                   .arg(1000 + i);
    google::protobuf::DynamicMessageFactory factory;
    const std::unique_ptr<google::protobuf::Message> message(
        factory.GetPrototype(format->getRoot())->New());
    if (!google::protobuf::TextFormat::ParseFromString(text.toStdString(), message.get()))
        return false;
    const QByteArray bytes = QByteArray::fromStdString(message->SerializeAsString());
    QByteArray length(4, '\0');
    qToLittleEndian(static_cast<quint32>(bytes.size()), length.data());
    recording = (length + bytes).repeated(500);
    return true;
}

bool readRecording(char *argv[])
{
    QFile file(QString::fromLocal8Bit(argv[3]));
    if (!load(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]))
        || !file.open(QIODevice::ReadOnly))
        return false;
    recording = file.readAll();
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    const bool hasRecording = argc > 3 && argv[1][0] != '-';
    if (hasRecording ? !readRecording(argv) : !makeRecording()) {
        std::fprintf(stderr,
                     "usage: bench_protobufdecode [DEFINITIONS ROOT RECORDING] [options]\n");
        return 1;
    }
    const int used = hasRecording ? 3 : 0;
    argv[used] = argv[0];
    int left = argc - used;
    benchmark::Initialize(&left, argv + used);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
