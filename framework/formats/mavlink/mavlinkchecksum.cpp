#include "mavlinkchecksum.h"

#include <array>
#include <cstddef>

namespace corvane {

namespace {

// Eight bytes are looked up at once: table k tells what a byte does to the checksum when k
// further bytes follow it.
constexpr size_t stride = 8;
using Tables = std::array<std::array<quint16, 256>, stride>;

constexpr Tables makeTables()
{
    Tables tables{};
    for (unsigned int byte = 0; byte < 256; ++byte) {
        unsigned int crc = byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) != 0 ? (crc >> 1) ^ 0x8408 : crc >> 1;
        tables[0][byte] = static_cast<quint16>(crc);
    }
    for (size_t k = 1; k < stride; ++k) {
        for (size_t byte = 0; byte < 256; ++byte) {
            const quint16 crc = tables[k - 1][byte];
            tables[k][byte] = static_cast<quint16>((crc >> 8) ^ tables[0][crc & 0xFF]);
        }
    }
    return tables;
}

constexpr Tables tables = makeTables();

} // namespace

void MavlinkChecksum::add(quint8 byte)
{
    value = static_cast<quint16>((value >> 8) ^ tables[0][(value ^ byte) & 0xFF]);
}

void MavlinkChecksum::add(QByteArrayView bytes)
{
    const auto *next = reinterpret_cast<const quint8 *>(bytes.data());
    auto left = static_cast<size_t>(bytes.size());
    for (; left >= stride; left -= stride, next += stride) {
        value = static_cast<quint16>(tables[7][next[0] ^ (value & 0xFF)]
                                     ^ tables[6][next[1] ^ (value >> 8)] ^ tables[5][next[2]]
                                     ^ tables[4][next[3]] ^ tables[3][next[4]] ^ tables[2][next[5]]
                                     ^ tables[1][next[6]] ^ tables[0][next[7]]);
    }
    for (; left > 0; --left, ++next)
        add(*next);
}

} // namespace corvane
