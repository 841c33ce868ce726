#pragma once

#include "corvaneframework_export.h"
#include "mcapdefinitions.h"
#include "mcaprecords.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QtGlobal>

#include <cstddef>
#include <optional>

namespace corvane {

/** Something wrong with an MCAP file. */
struct McapProblem
{
    enum class Kind {
        NotMcap, ///< It does not begin as such a file does; nothing more is read.
        Cut, ///< It ends too early. All complete messages before were given.
        TooLarge, ///< Something is larger than the limits allow, and is passed over.
        Damaged, ///< Something is not as it must be, and is passed over.
    };

    Kind kind = Kind::Damaged;
    qint64 offset = 0; ///< In the file; of the chunk, for what stands in one.
    QString text; ///< A sentence for people.
    /** How many bytes from the offset on are passed over because of it, if the file has so many. */
    quint64 size = 0;
};

/** Is told what a McapReader reads, in the order of the file. */
class CORVANEFRAMEWORK_EXPORT McapListener
{
public:
    virtual ~McapListener();

    /** A schema that is new. It lives as long as the reader. */
    virtual void readSchema(const McapSchema &schema) = 0;
    /** A channel that is new; \a schema is null when it has none. Both live as long as the reader.
     */
    virtual void readChannel(const McapChannel &channel, const McapSchema *schema) = 0;
    /**
     * A message of a known channel. \a offset: of its record, or of the chunk it stands in, from
     * the beginning of the file. The data is valid during the call.
     */
    virtual void readMessage(const McapMessage &message, const McapChannel &channel, qint64 offset)
        = 0;
    virtual void reportProblem(const McapProblem &problem) = 0;
};

/** How much a McapReader puts up with. */
struct McapLimits
{
    quint64 recordBytes = 256ULL * 1024 * 1024; ///< Of a schema, channel, message or stored chunk.
    quint64 chunkBytes = 256ULL * 1024 * 1024; ///< Of a chunk without its compression.
    quint64 schemaBytes = 64ULL * 1024 * 1024; ///< Of all schemas together.
    size_t schemas = 4096;
    size_t channels = 16384;
};

/**
 * Reads MCAP files from their bytes as they come, from the front to the back, without index and
 * footer; so these may be missing and the end cut off.
 *
 * A chunk is read when all of it is there, or with finish(). Chunks with a wrong checksum, or that
 * cannot be decompressed, are passed over as a whole; of a chunk that is cut, all that is complete
 * counts. What is no schema, channel, message or chunk is passed over unread.
 *
 *     McapReader reader(listener);
 *     reader.append(bytes);
 *     while (reader.step() == McapReader::Step::Advanced) {
 *     }
 */
class CORVANEFRAMEWORK_EXPORT McapReader
{
public:
    enum class Step {
        NeedsBytes, ///< Nothing more can be read from what was appended.
        Advanced ///< A record, or part of what is passed over, was read.
    };

    /** \a listener must live longer than the reader. */
    explicit McapReader(McapListener &listener, const McapLimits &limits = McapLimits());
    McapReader(const McapReader &) = delete;
    McapReader &operator=(const McapReader &) = delete;

    /** Makes known what the file defines elsewhere; the listener is told. */
    void define(const McapDefinitions &more);

    void append(QByteArrayView bytes);
    /** No more bytes will come; step() tells of the end when it gets there. */
    void finish();
    Step step();
    /** The log time of the message that step() would read; nothing if it would read another thing.
     */
    std::optional<quint64> getNextLogTimeNs() const;
    /**
     * Begins anew at \a newOffset, which is 0 or that of a record before the summary. What was
     * defined so far stays known.
     */
    void reset(qint64 newOffset);

    /** What was defined so far. */
    const McapDefinitions &getDefinitions() const { return definitions; }

    /** How far the file was read; a chunk counts as read before its first record. */
    qint64 getOffset() const { return offset; }

private:
    enum class Part {
        Magic,
        Data,
        Summary,
        ClosingMagic,
        End,
        Unreadable
    };

    Step stepMagic();
    Step stepRecord();
    Step passOver();
    Step stepChunk();
    Step stepAtEnd();
    Step stepBehindEnd();
    void beginPassingOver(const McapRecordHeader &header);
    void readRecord(McapOpcode opcode, QByteArrayView content, qint64 recordOffset);
    void readSchema(QByteArrayView content, qint64 recordOffset);
    void readChannel(QByteArrayView content, qint64 recordOffset);
    void readMessage(QByteArrayView content, qint64 recordOffset);
    void openChunk(QByteArrayView content, bool isFileCut, qint64 recordOffset);
    bool isWhole(const McapRecordHeader &header) const;
    QByteArrayView getAvailable() const;
    void consume(qsizetype size);
    void reportProblem(McapProblem::Kind kind,
                       qint64 problemOffset,
                       const QString &text,
                       quint64 size = 0);

    McapListener &listener; ///< Not owned.
    const McapLimits limits;
    Part part = Part::Magic;
    bool isFinished = false;
    bool isCutReported = false;
    QByteArray buffer;
    qsizetype consumed = 0; ///< Bytes of the buffer that were read.
    qint64 offset = 0;
    quint64 bytesToPassOver = 0;
    bool isInChunk = false;
    bool isChunkCut = false;
    QByteArray chunkRecords; ///< Without compression.
    qsizetype chunkPosition = 0;
    qint64 chunkOffset = 0;
    McapDefinitions definitions;
    quint64 totalSchemaBytes = 0;
};

} // namespace corvane
