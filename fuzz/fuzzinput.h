#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

#include <cstddef>
#include <cstdint>

namespace corvane::fuzz {

/** The bytes of one run, taken from the front; where they are used up, zeros are taken. */
class Input
{
public:
    Input(const uint8_t *bytes, size_t count)
        : rest(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(count))
    {
    }

    bool isEmpty() const { return rest.isEmpty(); }

    unsigned takeByte()
    {
        if (rest.isEmpty())
            return 0;
        const auto byte = static_cast<unsigned char>(rest.front());
        rest = rest.sliced(1);
        return byte;
    }

    unsigned takeWord()
    {
        const unsigned high = takeByte();
        return high << 8 | takeByte();
    }

    QByteArray takeRest()
    {
        const QByteArray taken = rest.toByteArray();
        rest = {};
        return taken;
    }

    /** The rest as texts with zero bytes between them. */
    QList<QByteArray> takeTexts() { return takeRest().split('\0'); }

private:
    QByteArrayView rest;
};

} // namespace corvane::fuzz
