#pragma once

#include "corvaneframework_export.h"
#include "mcapformat.h"
#include "mcapreader.h"
#include "streamdecoder.h"

#include <map>

namespace corvane {

class Reception;

/** Takes the messages out of an MCAP file. Their time is the one at which they were logged. */
class CORVANEFRAMEWORK_EXPORT McapDecoder final : public StreamDecoder, private McapListener
{
public:
    /** Neither \a format nor \a reception is owned; both must outlive the decoder. */
    McapDecoder(const McapFormat &format, Reception &reception);

    void append(QByteArrayView bytes, std::optional<qint64> arrivalUs) override;
    void finish() override;
    Step step() override;
    std::optional<qint64> getNextTimeUs() const override;

    /** A chunk counts as read before its first message. */
    quint64 getPosition() const override { return static_cast<quint64>(reader.getOffset()); }

    void reset(quint64 position) override;

private:
    void readSchema(const McapSchema &schema) override;
    void readChannel(const McapChannel &channel, const McapSchema *schema) override;
    void
    readMessage(const McapMessage &message, const McapChannel &channel, qint64 offset) override;
    void reportProblem(const McapProblem &problem) override;

    const McapFormat &format;
    Reception &reception;
    std::map<quint16, const McapFormat::Type *> types; ///< By channel; null where not decoded.
    McapReader reader;
    quint64 toSkip = 0; ///< Bytes that the reader has yet to pass over because of a problem.
};

} // namespace corvane
