// Reads the input as an MCAP file, whole and in pieces: the same must be found in both.

#include "fuzzchecks.h"
#include "fuzzinput.h"
#include "mcapreader.h"

#include <QStringList>

using namespace corvane;
using namespace corvane::fuzz;

namespace {

/** Writes down what it is told. */
class Listener : public McapListener
{
public:
    void readSchema(const McapSchema &schema) override
    {
        lines += QStringLiteral("schema %1 %2 %3 %4")
                     .arg(schema.id)
                     .arg(schema.name, schema.encoding, QString::fromLatin1(schema.data.toHex()));
    }

    void readChannel(const McapChannel &channel, const McapSchema *schema) override
    {
        require((schema == nullptr) == (channel.schemaId == 0), "a channel comes with its schema");
        lines += QStringLiteral("channel %1 %2 %3 %4")
                     .arg(channel.id)
                     .arg(channel.schemaId)
                     .arg(channel.topic, channel.messageEncoding);
    }

    void readMessage(const McapMessage &message, const McapChannel &channel, qint64 offset) override
    {
        require(message.channelId == channel.id, "a message comes with its channel");
        lines += QStringLiteral("%1: message %2 %3 %4 %5")
                     .arg(offset)
                     .arg(channel.id)
                     .arg(message.sequence)
                     .arg(message.logTimeNs)
                     .arg(QString::fromLatin1(message.data.toByteArray().toHex()));
    }

    void reportProblem(const McapProblem &problem) override
    {
        lines += QStringLiteral("%1: problem %2").arg(problem.offset).arg(problem.text);
    }

    QStringList lines;
};

void stepOn(McapReader &reader, const Listener &listener)
{
    do {
        require(reader.getOffset() >= 0, "offsets are not negative");
        const auto expected = reader.getNextLogTimeNs();
        const qsizetype before = listener.lines.size();
        if (reader.step() != McapReader::Step::Advanced)
            return;
        require(!expected || listener.lines.size() > before, "a message that is foretold comes");
    } while (true);
}

QString summaryOf(const QByteArray &file, qsizetype pieceSize)
{
    const McapLimits limits{.recordBytes = 1 << 20,
                            .chunkBytes = 1 << 20,
                            .schemaBytes = 1 << 12,
                            .schemas = 4,
                            .channels = 8};
    Listener listener;
    McapReader reader(listener, limits);
    for (qsizetype at = 0; at < file.size(); at += pieceSize) {
        reader.append(QByteArrayView(file).sliced(at, qMin(pieceSize, file.size() - at)));
        stepOn(reader, listener);
    }
    reader.finish();
    stepOn(reader, listener);
    require(reader.getOffset() == file.size(), "all bytes are read");
    return listener.lines.join(QLatin1Char('\n'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t count)
{
    Input input(bytes, count);
    const qsizetype pieceSize = 1 + input.takeByte();
    const QByteArray file = input.takeRest();
    requireEqual(summaryOf(file, pieceSize), summaryOf(file, qMax<qsizetype>(1, file.size())),
                 "pieces make no difference");
    return 0;
}
