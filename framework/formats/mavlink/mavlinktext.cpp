#include "mavlinktext.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

#include <algorithm>

namespace corvane {

namespace {

constexpr int maximumArrayLength = 255;
constexpr int maximumDepth = 64;
constexpr qsizetype maximumNameLength = 200;
constexpr qsizetype maximumQuote = 60;

struct WireType
{
    const char *name;
    FieldType::Code code;
    int size;
};

constexpr WireType wireTypes[] = {
    {"uint64_t", FieldType::UnsignedInteger, 8},
    {"int64_t", FieldType::SignedInteger, 8},
    {"double", FieldType::Float, 8},
    {"uint32_t", FieldType::UnsignedInteger, 4},
    {"int32_t", FieldType::SignedInteger, 4},
    {"float", FieldType::Float, 4},
    {"uint16_t", FieldType::UnsignedInteger, 2},
    {"int16_t", FieldType::SignedInteger, 2},
    {"uint8_t", FieldType::UnsignedInteger, 1},
    {"int8_t", FieldType::SignedInteger, 1},
    {"char", FieldType::Character, 1},
};

const WireType *findWireType(QStringView name)
{
    for (const WireType &type : wireTypes)
        if (name == QLatin1String(type.name))
            return &type;
    return nullptr;
}

bool isNameCharacter(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z'))
           || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'))
           || (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('_');
}

/** The length in "name[length]", or nothing. */
std::optional<int> parseArrayLength(const QString &text, qsizetype bracket)
{
    bool ok = false;
    const int length = text.mid(bracket + 1, text.size() - bracket - 2).toInt(&ok);
    if (!ok || !text.endsWith(QLatin1Char(']')) || length < 1 || length > maximumArrayLength)
        return std::nullopt;
    return length;
}

/** Reads up to the end of the current element and adds what text there is to \a text. */
void readElement(QXmlStreamReader &xml, QString *text)
{
    for (int depth = 1; depth > 0;) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++depth > maximumDepth)
                return xml.raiseError(QCoreApplication::translate(
                    "corvane::MavlinkDefinitionReader", "The elements are nested too deeply."));
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        case QXmlStreamReader::Characters:
        case QXmlStreamReader::EntityReference:
            if (text != nullptr)
                *text += xml.text();
            break;
        case QXmlStreamReader::Invalid:
        case QXmlStreamReader::EndDocument:
            return;
        default:
            break;
        }
    }
}

} // namespace

bool isMavlinkName(const QString &text)
{
    return !text.isEmpty() && text.size() <= maximumNameLength
           && std::all_of(text.begin(), text.end(), isNameCharacter);
}

std::optional<quint64> parseMavlinkNumber(const QString &text)
{
    bool ok = false;
    if (text.startsWith(QLatin1String("2**"))) {
        const int exponent = text.mid(3).toInt(&ok);
        return ok && exponent >= 0 && exponent < 64 ? std::optional(quint64(1) << exponent)
                                                    : std::nullopt;
    }
    if (text.startsWith(QLatin1Char('-'))) {
        const qint64 negative = text.toLongLong(&ok, 10);
        return ok ? std::optional(static_cast<quint64>(negative)) : std::nullopt;
    }
    const bool hexadecimal = text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
    const bool binary = text.startsWith(QLatin1String("0b"), Qt::CaseInsensitive);
    const quint64 number
        = binary ? text.mid(2).toULongLong(&ok, 2) : text.toULongLong(&ok, hexadecimal ? 16 : 10);
    return ok ? std::optional(number) : std::nullopt;
}

bool parseMavlinkType(const QString &text, MavlinkFieldDefinition &field)
{
    const auto bracket = text.indexOf(QLatin1Char('['));
    const auto length = bracket < 0 ? std::optional(0) : parseArrayLength(text, bracket);
    QString name = bracket < 0 ? text : text.left(bracket);
    // The version byte of the heartbeat has a type name of its own and is an ordinary byte.
    if (name == QLatin1String("uint8_t_mavlink_version"))
        name = QStringLiteral("uint8_t");
    const WireType *type = findWireType(name);
    if (type == nullptr || !length)
        return false;
    field.arrayLength = *length;
    field.wireType = name;
    field.code = type->code;
    field.elementSize = type->size;
    return true;
}

QString quotable(const QString &text)
{
    return text.size() <= maximumQuote ? text : text.left(maximumQuote - 1) + QChar(0x2026);
}

QString readInnerText(QXmlStreamReader &xml)
{
    QString text;
    readElement(xml, &text);
    return text.simplified();
}

void skipElement(QXmlStreamReader &xml)
{
    readElement(xml, nullptr);
}

} // namespace corvane
