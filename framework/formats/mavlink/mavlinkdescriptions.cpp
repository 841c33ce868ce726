#include "mavlinkdescriptions.h"

#include "bitfieldinfo.h"
#include "descriptions.h"
#include "enumeration.h"
#include "mavlinkfieldinfo.h"
#include "mavlinktext.h"
#include "messageinfo.h"

#include <algorithm>
#include <bit>
#include <limits>

namespace corvane {

namespace {

/** The named limits of the C integer types, as definitions use them. */
std::optional<quint64> parseNamedLimit(QStringView text)
{
    const bool isUnsigned = text.startsWith(QLatin1String("UINT"));
    if (!isUnsigned && !text.startsWith(QLatin1String("INT")))
        return std::nullopt;
    const auto underscore = text.indexOf(QLatin1Char('_'));
    const auto digits
        = underscore < 0 ? QStringView() : text.first(underscore).sliced(isUnsigned ? 4 : 3);
    const int bits = digits.toInt();
    if (bits != 8 && bits != 16 && bits != 32 && bits != 64)
        return std::nullopt;
    const quint64 all = std::numeric_limits<quint64>::max() >> (64 - bits);
    const auto limit = text.sliced(underscore);
    if (limit == QLatin1String("_MAX"))
        return isUnsigned ? all : all >> 1;
    if (limit == QLatin1String("_MIN"))
        return isUnsigned ? 0 : (all >> 1) + 1;
    return std::nullopt;
}

std::optional<quint64> parseInteger(const QString &text, const Enumeration *symbols)
{
    const auto limit = parseNamedLimit(text);
    if (limit || symbols == nullptr || !symbols->hasName(text))
        return limit ? limit : parseMavlinkNumber(text);
    const auto &entries = symbols->getEntries();
    return std::find_if(entries.begin(), entries.end(),
                        [&](const Enumeration::Entry &entry) { return entry.name == text; })
        ->value;
}

std::optional<double> parseFloat(const QString &text)
{
    if (text.compare(QLatin1String("nan"), Qt::CaseInsensitive) == 0)
        return std::numeric_limits<double>::quiet_NaN();
    bool ok = false;
    const double number = text.toDouble(&ok);
    if (ok)
        return number;
    // Integers hide in floats too: "UINT16_MAX", "0xFFFF".
    const auto integer = parseInteger(text, nullptr);
    return integer ? std::optional(static_cast<double>(*integer)) : std::nullopt;
}

/** The bits on the wire of one value in a definition's "invalid" text; nothing if it is none. */
std::optional<quint64> parseInvalidValue(const QString &text,
                                         const MavlinkFieldDefinition &field,
                                         const Enumeration *symbols)
{
    if (field.code != FieldType::Float) {
        const quint64 mask = std::numeric_limits<quint64>::max() >> (64 - field.elementSize * 8);
        const auto integer = parseInteger(text, symbols);
        return integer ? std::optional(*integer & mask) : std::nullopt;
    }
    const auto number = parseFloat(text);
    if (!number)
        return std::nullopt;
    return field.elementSize == 4 ? std::bit_cast<quint32>(static_cast<float>(*number))
                                  : std::bit_cast<quint64>(*number);
}

/** The values in the text of a pattern, empty places as nothing; none at all if one is wrong. */
std::vector<std::optional<quint64>> parseInvalidValues(const QStringList &pieces,
                                                       const MavlinkFieldDefinition &field,
                                                       const Enumeration *symbols)
{
    std::vector<std::optional<quint64>> values;
    for (const QString &piece : pieces) {
        const QString text = piece.trimmed();
        values.push_back(parseInvalidValue(text, field, symbols));
        if (!values.back() && !text.isEmpty())
            return {};
    }
    const bool any = std::any_of(values.begin(), values.end(),
                                 [](const auto &value) { return value.has_value(); });
    const bool fits = values.size() <= static_cast<size_t>(std::max(1, field.arrayLength));
    return any && fits ? values : std::vector<std::optional<quint64>>();
}

/** Reads "v", "[v]", "[v:]" and "[v,,w]". */
MavlinkInvalidPattern makeInvalidPattern(const MavlinkFieldDefinition &field,
                                         const Enumeration *symbols)
{
    using Scope = MavlinkInvalidPattern::Scope;
    QString text = field.invalidText.trimmed();
    if (text.isEmpty())
        return {};
    const bool bracketed = text.startsWith(QLatin1Char('[')) && text.endsWith(QLatin1Char(']'));
    if (bracketed)
        text = text.mid(1, text.size() - 2);

    MavlinkInvalidPattern pattern{Scope::EveryElement, {}};
    QStringList pieces{text};
    if (bracketed && text.endsWith(QLatin1Char(':'))) {
        pattern.scope = Scope::FirstElement;
        pieces[0].chop(1);
    } else if (bracketed && text.contains(QLatin1Char(','))) {
        pattern.scope = Scope::Listed;
        pieces = text.split(QLatin1Char(','));
    }
    pattern.values = parseInvalidValues(pieces, field, symbols);
    return pattern.values.empty() ? MavlinkInvalidPattern() : pattern;
}

std::unique_ptr<FieldInfoData> makeFieldData(const MavlinkFieldDefinition &field,
                                             const MavlinkInvalidPattern &invalid)
{
    auto data = std::make_unique<FieldInfoData>();
    data->name = field.name;
    data->unit = field.unit;
    data->description = field.description;
    data->repeated = field.arrayLength > 0;
    data->isString = data->repeated && field.code == FieldType::Character;
    data->optional = field.isExtension || invalid.scope != MavlinkInvalidPattern::Scope::None;
    data->instance = field.isInstance;
    return data;
}

/** One sub-field for each bit that has a name. */
void addBits(MessageInfo &message, const FieldInfo *field, const Enumeration &symbols, int wordBits)
{
    for (const Enumeration::Entry &entry : symbols.getEntries()) {
        if (!std::has_single_bit(entry.value))
            continue;
        const int bit = std::countr_zero(entry.value);
        if (bit >= wordBits)
            continue;
        auto data = std::make_unique<FieldInfoData>();
        data->name = entry.name;
        data->description = entry.description;
        const BitFieldInfo::Bits bits{.first = bit, .count = 1, .isBoolean = true};
        message.getData()->addField(std::make_unique<BitFieldInfo>(field, bits, std::move(data)),
                                    &message);
    }
}

void addField(MessageInfo &message,
              const MavlinkFieldDefinition &field,
              int offset,
              const MavlinkEnumerations &enumerations)
{
    const std::shared_ptr<const Enumeration> symbols = enumerations.value(field.enumeration);
    MavlinkInvalidPattern invalid = makeInvalidPattern(field, symbols.get());
    auto data = makeFieldData(field, invalid);
    data->symbols = symbols;
    const bool isInteger
        = field.code == FieldType::SignedInteger || field.code == FieldType::UnsignedInteger;
    const FieldInfo *added = message.getData()->addField(
        std::make_unique<MavlinkFieldInfo>(field, offset, std::move(invalid), &message,
                                           std::move(data)),
        &message);
    if (symbols != nullptr && isInteger && (symbols->isBitMask() || field.isBitMask))
        addBits(message, added, *symbols, field.elementSize * 8);
}

} // namespace

std::unique_ptr<MessageInfo> makeMavlinkMessageInfo(const MavlinkMessageDefinition &definition,
                                                    const FormatInfo *format,
                                                    const MavlinkEnumerations &enumerations)
{
    auto data = std::make_unique<MessageInfoData>();
    data->name = definition.name;
    data->shortDescription = firstSentence(definition.description);
    data->description = definition.description;
    data->format = format;
    data->number = definition.id;
    auto message = std::make_unique<MessageInfo>(std::move(data));

    std::vector<int> offsets(definition.fields.size());
    int offset = 0;
    for (const size_t index : definition.getWireOrder()) {
        offsets[index] = offset;
        offset += definition.fields[index].getSize();
    }
    for (size_t i = 0; i < definition.fields.size(); ++i)
        addField(*message, definition.fields[i], offsets[i], enumerations);
    return message;
}

} // namespace corvane
