// Reads the input as a stream of Protocol Buffers messages, whole and in pieces: the same must be
// found in both. On demand the whole input is one message, so that no length has to be guessed, and
// messages are wrapped in others that tell time and sequence, or compared with what libprotobuf
// makes of them.

#include "everyfeature.h"
#include "fuzzchecks.h"
#include "fuzzinput.h"
#include "message.h"
#include "overlayloader.h"
#include "protobuflibrary.h"
#include "protobufmessages.h"

#include <array>
#include <map>
#include <memory>

using namespace corvane;
using namespace corvane::fuzz;

namespace {

// Each byte can be a message, and messages are printed.
constexpr qsizetype maximumSize = 512;

ProtobufFormat &everyFormat()
{
    static auto *const definitions
        = new test::ProtobufDefinitions(test::everyFeature(), QStringLiteral("test.Every"));
    require(definitions->getErrors().isEmpty(), "the definitions are good");
    return definitions->getFormat();
}

/** What everyFeature() has no room for: lists of each kind of number, maps with each kind of key.
 */
QMap<QString, QString> feed()
{
    return {{QStringLiteral("feed.proto"), QStringLiteral(R"(
syntax = "proto3";
package feed;
message Stamp { int64 seconds = 1; int32 nanos = 2; }
message Lists {
  repeated uint32 uints = 1;
  repeated uint64 longs = 2;
  repeated float floats = 3;
  repeated fixed32 fixed = 4 [packed = false];
  map<uint32, string> by_uint = 5;
  map<uint64, bytes> by_long = 6;
  map<bool, Stamp> by_flag = 7;
  map<sint64, double> by_signed = 8;
  map<int32, int32> by_number = 9;
  Lists inner = 10;
}
message Envelope {
  uint64 time_us = 1;
  optional int64 sequence64 = 2;
  uint32 sequence = 3;
  Stamp stamp = 4;
  double seconds = 5;
  float short_seconds = 6;
  int32 whole = 7;
  uint64 ticks = 8;
  oneof content {
    Lists lists = 10;
    Stamp hidden = 11;
  }
}
)")}};
}

/** The envelope's time and sequence, each in fields of another type. */
constexpr std::array envelopes{
    R"("timeField": {"field": "time_us", "unit": "us"},
       "envelope": {"oneof": "content", "sequenceField": "sequence"})",
    R"("timeField": {"field": "stamp", "unit": "us"},
       "envelope": {"oneof": "content", "sequenceField": "sequence64"})",
    R"("timeField": {"field": "seconds", "unit": "s"},
       "envelope": {"oneof": "content", "sequenceField": "ticks"})",
    R"("timeField": {"field": "short_seconds", "unit": "s"},
       "envelope": {"oneof": "content", "sequenceField": "whole"})",
    R"("timeField": {"field": "whole", "unit": "ms"}, "envelope": {"oneof": "content"})",
    R"("timeField": {"field": "ticks", "unit": "s"})"};

ProtobufFormat &wrappedFormat(size_t envelope)
{
    static std::array<test::ProtobufDefinitions *, envelopes.size()> loaded{};
    test::ProtobufDefinitions *&definitions = loaded.at(envelope);
    if (definitions != nullptr)
        return definitions->getFormat();
    definitions = new test::ProtobufDefinitions(feed(), QStringLiteral("feed.Envelope"));
    require(definitions->getErrors().isEmpty(), "the definitions are good");
    const QByteArray overlay = QByteArray(R"({"format": "Protocol Buffers", "messages": {"Stamp": {
        "fields": {"nanos": {"confidential": true}}}, "Envelope": {)")
                               + envelopes.at(envelope) + "}}}";
    const OverlayResult result
        = loadOverlayText(overlay, QStringLiteral("o.json"), {definitions->getFormat().getInfo()});
    require(result.errors.isEmpty(), qPrintable(result.toString()));
    return definitions->getFormat();
}

ProtobufFormat &formatFor(unsigned options)
{
    return (options & 4) == 0 ? everyFormat() : wrappedFormat((options >> 4) % envelopes.size());
}

/** Whether \a message is one, and of what, must be as libprotobuf has it. */
void compareWithLibrary(const ProtobufFormat &format, const QByteArray &message)
{
    static std::map<const ProtobufFormat *, std::unique_ptr<test::ProtobufLibrary>> libraries;
    auto &library = libraries[&format];
    if (library == nullptr)
        library = std::make_unique<test::ProtobufLibrary>(format);
    requireEqual(library->findDifference(message), QString(), "libprotobuf reads the same");
}

/** Without the events, which a slow run gathers by another second of the clock. */
QString summaryOf(const test::ProtobufRun &run)
{
    const Reception::Totals &totals = run.getTotals();
    return (QStringList{QStringLiteral("%1 skipped, %2 good, %3 unknown")
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

    ProtobufFormat &format = formatFor(options);
    if ((options & 8) != 0)
        compareWithLibrary(format, stream);
    if ((options & 2) != 0)
        stream = isVarint ? test::framedVarint(stream) : test::framedLittleEndian(stream);

    test::ProtobufRun whole(format, framing);
    QObject::connect(&whole.getReception(), &MessageSource::newMessage, &readAll);
    whole.append(stream);
    whole.getDecoder().getNextTimeUs();
    whole.finish();
    require(whole.getTotals().bytes == static_cast<quint64>(stream.size()), "bytes are counted");
    require(whole.getDecoder().getPosition() == whole.getTotals().bytes, "all bytes are read");

    // After a break, which takes what was not read, all is as with a new stream.
    test::ProtobufRun pieces(format, framing);
    pieces.getDecoder().append(stream.first(stream.size() / 2), std::nullopt);
    pieces.getDecoder().reset(0);
    pieces.append(stream, pieceSize);
    pieces.finish();
    requireEqual(summaryOf(pieces), summaryOf(whole), "pieces make no difference");
    return 0;
}
