#pragma once

#include "host.pb.h"

#include <QByteArray>

#include <vector>

namespace corvane::test {

/** Takes all whole envelopes from the front of \a bytes; one that does not parse is empty. */
inline std::vector<host::Envelope> takeEnvelopes(QByteArray &bytes)
{
    std::vector<host::Envelope> envelopes;
    for (;;) {
        qsizetype size = 0;
        qsizetype begin = 0;
        while (begin < bytes.size() && (bytes[begin] & 0x80) != 0) {
            size |= static_cast<qsizetype>(bytes[begin] & 0x7f) << (7 * begin);
            ++begin;
        }
        if (begin >= bytes.size())
            return envelopes;
        size |= static_cast<qsizetype>(bytes[begin] & 0x7f) << (7 * begin);
        ++begin;
        if (begin + size > bytes.size())
            return envelopes;
        host::Envelope envelope;
        if (!envelope.ParseFromArray(bytes.constData() + begin, static_cast<int>(size)))
            envelope.Clear();
        envelopes.push_back(envelope);
        bytes.remove(0, begin + size);
    }
}

} // namespace corvane::test
