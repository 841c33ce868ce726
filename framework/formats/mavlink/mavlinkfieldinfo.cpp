#include "mavlinkfieldinfo.h"

#include "descriptions.h"
#include "mavlinkmessage.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace corvane {

namespace {

const MavlinkMessage &asMavlink(const Message *message)
{
    return *static_cast<const MavlinkMessage *>(message);
}

double floatOf(quint64 bits, int size)
{
    return size == 4 ? static_cast<double>(std::bit_cast<float>(static_cast<quint32>(bits)))
                     : std::bit_cast<double>(bits);
}

} // namespace

MavlinkFieldInfo::MavlinkFieldInfo(const MavlinkFieldDefinition &definition,
                                   int offset,
                                   MavlinkInvalidPattern invalid,
                                   const MessageInfo *owner,
                                   std::unique_ptr<FieldInfoData> data)
    : DecodedFieldInfo(FieldType(definition.code, definition.elementSize * 8), std::move(data))
    , owner(owner)
    , invalid(std::move(invalid))
    , offset(static_cast<quint16>(offset))
    , length(static_cast<quint16>(std::max(1, definition.arrayLength)))
    , elementSize(static_cast<quint8>(definition.elementSize))
    , extension(definition.isExtension)
{
}

unsigned int MavlinkFieldInfo::getNumberOfValues(const Message *message) const
{
    return isInFrameOf(message) && !isInvalid(asMavlink(message)) ? length : 0;
}

bool MavlinkFieldInfo::getByteRange(const Message *message,
                                    unsigned int index,
                                    quint32 *byteOffset,
                                    quint32 *byteLength) const
{
    // Bytes that say that there is no value lie somewhere as well.
    if (index >= length || !isInFrameOf(message))
        return false;
    const MavlinkMessage &frame = asMavlink(message);
    const quint32 begin = offset + index * elementSize;
    const auto sent = static_cast<quint32>(frame.getPayload().size());
    // What was cut off the end of the payload lies nowhere.
    if (begin >= sent)
        return false;
    *byteOffset = static_cast<quint32>(frame.getHeaderSize()) + begin;
    *byteLength = std::min<quint32>(elementSize, sent - begin);
    return true;
}

bool MavlinkFieldInfo::isInFrameOf(const Message *message) const
{
    return message->getInfo() == owner && !(extension && asMavlink(message).isVersion1());
}

quint64 MavlinkFieldInfo::readBits(const MavlinkMessage &message, unsigned int index) const
{
    const QByteArrayView payload = message.getPayload();
    const qsizetype begin = offset + static_cast<qsizetype>(index) * elementSize;
    // Zeros at the end of a payload need not be sent.
    const qsizetype sent = std::clamp<qsizetype>(payload.size() - begin, 0, elementSize);
    quint64 bits = 0;
    if (sent > 0)
        std::memcpy(&bits, payload.data() + begin, static_cast<size_t>(sent));
    return qFromLittleEndian(bits);
}

FieldValue MavlinkFieldInfo::readValue(const Message *message, unsigned int index) const
{
    if (index >= getNumberOfValues(message))
        return FieldValue::invalid();
    const quint64 bits = readBits(asMavlink(message), index);
    const int sizeBits = elementSize * 8;
    switch (getType().getCode()) {
    case FieldType::SignedInteger: {
        const int unused = 64 - sizeBits;
        return FieldValue::fromSigned(static_cast<qint64>(bits << unused) >> unused, sizeBits);
    }
    case FieldType::Float:
        return elementSize == 4
                   ? FieldValue::fromFloat(std::bit_cast<float>(static_cast<quint32>(bits)))
                   : FieldValue::fromDouble(std::bit_cast<double>(bits));
    case FieldType::Character:
        return FieldValue::fromCharacter(static_cast<char32_t>(bits));
    default:
        return FieldValue::fromUnsigned(bits, sizeBits);
    }
}

QString MavlinkFieldInfo::readString(const Message *message) const
{
    if (getNumberOfValues(message) == 0)
        return {};
    const QByteArrayView payload = asMavlink(message).getPayload();
    if (offset >= payload.size())
        return {};
    QByteArrayView text
        = payload.sliced(offset).first(std::min<qsizetype>(length, payload.size() - offset));
    const auto end = text.indexOf('\0');
    if (end >= 0)
        text = text.first(end);
    return QString::fromUtf8(text);
}

bool MavlinkFieldInfo::equalsInvalid(quint64 bits, quint64 invalidBits) const
{
    if (getType().getCode() != FieldType::Float)
        return bits == invalidBits;
    const double value = floatOf(bits, elementSize);
    const double invalidValue = floatOf(invalidBits, elementSize);
    // Every NaN means the same, whatever its bits; so do both zeros.
    return value == invalidValue || (std::isnan(value) && std::isnan(invalidValue));
}

bool MavlinkFieldInfo::isInvalid(const MavlinkMessage &message) const
{
    using Scope = MavlinkInvalidPattern::Scope;
    if (invalid.scope == Scope::None)
        return false;
    const unsigned int tested = invalid.scope == Scope::FirstElement ? 1
                                : invalid.scope == Scope::EveryElement
                                    ? length
                                    : static_cast<unsigned int>(invalid.values.size());
    for (unsigned int index = 0; index < tested; ++index) {
        const auto &value = invalid.values[invalid.scope == Scope::Listed ? index : 0];
        if (value && !equalsInvalid(readBits(message, index), *value))
            return false;
    }
    return true;
}

} // namespace corvane
