#include "openbytes.h"

#include "corvane.h"
#include "decodedmessage.h"
#include "descriptions.h"
#include "formatinfo.h"
#include "messageinfo.h"

#include <QSet>

#include <algorithm>

namespace corvane {

namespace {

using Types = QSet<const MessageInfo *>;

bool hasConfidential(const MessageInfo *type, Types &known);

bool holdsConfidential(const FieldInfo *field, Types &known)
{
    return field->isConfidential() || hasConfidential(field->getType().getSubMessageInfo(), known);
}

bool hasConfidential(const MessageInfo *type, Types &known)
{
    if (type == nullptr || known.contains(type))
        return false;
    known.insert(type);
    const auto fields = type->getFieldInfos();
    return std::any_of(fields.begin(), fields.end(), [&known](const FieldInfo *field) {
        return holdsConfidential(field, known);
    });
}

/** What comes around a message is among its bytes. */
bool hasConfidentialEnvelope(const FormatInfo *format)
{
    if (format == nullptr || !format->getData()->envelope)
        return false;
    const Envelope &envelope = *format->getData()->envelope;
    Types known;
    const auto fields = envelope.type->getFieldInfos();
    return std::any_of(fields.begin(), fields.end(), [&](const FieldInfo *field) {
        return !envelope.contentFields.contains(field) && holdsConfidential(field, known);
    });
}

bool mustHide(const DecodedMessage &message)
{
    Types known;
    return !Corvane::confidentialInformationDisplayEnabled()
           && (message.isConfidential() || hasConfidential(message.getInfo(), known)
               || hasConfidentialEnvelope(message.getInfo()->getData()->format));
}

void addRanges(std::vector<ByteRange> &ranges, const FieldInfo *field, const Message *message)
{
    ByteRange range;
    for (unsigned int index = 0; field->getByteRange(message, index, &range.offset, &range.length);
         ++index)
    {
        if (!ranges.empty() && ranges.back().offset + ranges.back().length == range.offset)
            ranges.back().length += range.length;
        else
            ranges.push_back(range);
    }
}

void mark(std::vector<bool> &flags, const std::vector<ByteRange> &ranges, bool flag)
{
    for (const ByteRange &range : ranges)
        for (size_t i = range.offset; i < flags.size() && i < range.offset + range.length; ++i)
            flags[i] = flag;
}

} // namespace

std::vector<bool> findOpenBytes(const DecodedMessage &message)
{
    const bool hides = mustHide(message);
    std::vector<bool> open(static_cast<size_t>(message.getBytes().size()), !hides);
    if (!hides || message.isConfidential())
        return open;
    std::vector<ByteRange> shown;
    std::vector<ByteRange> hidden;
    for (const FieldInfo *field : message.getInfo()->getFieldInfos()) {
        Types known;
        addRanges(holdsConfidential(field, known) ? hidden : shown, field, &message);
    }
    mark(open, shown, true);
    mark(open, hidden, false); // a word, for the sake of one of its bits
    return open;
}

std::vector<ByteRange> findByteRanges(const RowPlace &place, const Message *message)
{
    std::vector<ByteRange> ranges;
    const FieldInfo *field = place.getField();
    const Message *holder = place.getHolder(message);
    if (field == nullptr || holder == nullptr)
        return ranges;
    const int element = place.getElement();
    ByteRange range;
    if (element < 0)
        addRanges(ranges, field, holder);
    else if (field->getByteRange(holder, static_cast<unsigned int>(element), &range.offset,
                                 &range.length))
        ranges.push_back(range);
    return ranges;
}

std::optional<RowPlace> findPlaceOfByte(const Message *message, quint32 offset)
{
    for (const FieldInfo *field : message->getInfo()->getFieldInfos()) {
        // Bits share the bytes of their word.
        if (field->getParentFieldInfo() != nullptr
            || (field->isConfidential() && !Corvane::confidentialInformationDisplayEnabled()))
            continue;
        ByteRange range;
        for (unsigned int index = 0;
             field->getByteRange(message, index, &range.offset, &range.length); ++index)
        {
            if (offset < range.offset || offset - range.offset >= range.length)
                continue;
            const bool isList = field->isRepeated() && !field->isStringField();
            return RowPlace{message->getInfo(), {{field, isList ? static_cast<int>(index) : -1}}};
        }
    }
    return std::nullopt;
}

bool knowsByteRanges(const Message *message)
{
    std::vector<ByteRange> ranges;
    for (const FieldInfo *field : message->getInfo()->getFieldInfos()) {
        addRanges(ranges, field, message);
        if (!ranges.empty())
            return true;
    }
    return false;
}

} // namespace corvane
