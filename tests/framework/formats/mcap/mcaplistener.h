#pragma once

#include "mcapreader.h"
#include "mcapwriter.h"

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <QTest>

namespace corvane::test {

/** Writes down what it is told. */
class Listener : public McapListener
{
public:
    void readSchema(const McapSchema &schema) override
    {
        lines.append(QStringLiteral("schema %1 %2 %3 %4")
                         .arg(schema.id)
                         .arg(schema.name, schema.encoding, QString::fromUtf8(schema.data)));
    }

    void readChannel(const McapChannel &channel, const McapSchema *schema) override
    {
        lastChannel = channel;
        lines.append(QStringLiteral("channel %1 %2 %3")
                         .arg(channel.id)
                         .arg(channel.topic, schema == nullptr ? "-" : schema->name));
    }

    void readMessage(const McapMessage &message, const McapChannel &channel, qint64 offset) override
    {
        ++messages;
        lastOffset = offset;
        bytes += message.data.size();
        lines.append(QStringLiteral("message %1 %2 %3 %4")
                         .arg(channel.topic)
                         .arg(message.sequence)
                         .arg(message.logTimeNs)
                         .arg(QString::fromUtf8(
                             message.data.first(qMin<qsizetype>(message.data.size(), 20)))));
    }

    void reportProblem(const McapProblem &problem) override
    {
        problems.append(problem);
        lines.append("problem: " + problem.text);
    }

    QStringList lines;
    QList<McapProblem> problems;
    int messages = 0;
    McapChannel lastChannel;
    qint64 lastOffset = -1;
    qint64 bytes = 0;
};

inline void stepOn(McapReader &reader)
{
    while (reader.step() == McapReader::Step::Advanced) {
    }
}

inline Listener
readAll(const QByteArray &file, qsizetype pieceSize = 1 << 30, const McapLimits &limits = {})
{
    Listener listener;
    McapReader reader(listener, limits);
    for (qsizetype i = 0; i < file.size(); i += pieceSize) {
        reader.append(QByteArrayView(file).sliced(i, qMin(pieceSize, file.size() - i)));
        stepOn(reader);
    }
    reader.finish();
    stepOn(reader);
    if (reader.getOffset() != file.size())
        listener.lines.append("not all was read");
    return listener;
}

inline QByteArray definitions()
{
    return mcapSchema(1, "a.B") + mcapSchema(2, "c.D") + mcapChannel(10, 1, "/one")
           + mcapChannel(20, 2, "/two") + mcapChannel(30, 0, "/none");
}

inline QByteArray threeMessages()
{
    return mcapMessage(10, 1, "first") + mcapMessage(20, 2, "") + mcapMessage(30, 3, "third");
}

/** A file with all kinds of records; the messages stand in a chunk, or alone. */
inline QByteArray makeFile(const QByteArray &method, bool chunked = true)
{
    const QByteArray records = definitions() + threeMessages();
    const QByteArray attachment = mcapRecord(9, QByteArray(50, 'a'));
    const QByteArray index = mcapRecord(7, QByteArray(6, '\0'));
    return mcapMagic() + mcapHeader() + attachment
           + (chunked ? mcapChunk(method, records) : records) + index
           + mcapRecord(0x80, "an extension") + mcapMessage(10, 4, "last")
           + mcapEnd(definitions() + mcapRecord(8, QByteArray(9, 'i')));
}

inline const QStringList expectedLines{
    "schema 1 a.B protobuf xyz", "schema 2 c.D protobuf xyz",  "channel 10 /one a.B",
    "channel 20 /two c.D",       "channel 30 /none -",         "message /one 1 1000 first",
    "message /two 2 2000 ",      "message /none 3 3000 third", "message /one 4 4000 last",
};

/** \a content between the definitions and the end. */
inline Listener readContent(const QByteArray &content, const McapLimits &limits = {})
{
    return readAll(mcapMagic() + mcapHeader() + content + mcapEnd(), 1 << 30, limits);
}

/** A row of test data for each way in which chunks are compressed. */
inline void addCompressions()
{
    QTest::addColumn<QByteArray>("method");
    QTest::newRow("zstd") << QByteArray("zstd");
    QTest::newRow("lz4") << QByteArray("lz4");
}

/** The same, and one for chunks that are not compressed. */
inline void addMethods()
{
    addCompressions();
    QTest::newRow("not compressed") << QByteArray();
}

} // namespace corvane::test
