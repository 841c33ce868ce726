#include "round.h"

#include <google/protobuf/io/coded_stream.h>

#include <array>

namespace corvane {

void appendFrame(QByteArray &frames, const host::Envelope &envelope)
{
    using google::protobuf::io::CodedOutputStream;
    std::array<uint8_t, 10> prefix;
    const size_t size = envelope.ByteSizeLong();
    const uint8_t *end
        = CodedOutputStream::WriteVarint32ToArray(static_cast<uint32_t>(size), prefix.data());
    frames.append(reinterpret_cast<const char *>(prefix.data()), end - prefix.data());
    const qsizetype begin = frames.size();
    frames.resize(begin + static_cast<qsizetype>(size));
    envelope.SerializeToArray(frames.data() + begin, static_cast<int>(size));
}

QByteArray getBytesFor(const Round &round, quint64 droppedRounds)
{
    QByteArray bytes = round.frames;
    host::Envelope feed = round.feed;
    feed.mutable_feed()->set_dropped_rounds(droppedRounds);
    appendFrame(bytes, feed);
    return bytes;
}

} // namespace corvane
