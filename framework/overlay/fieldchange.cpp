#include "fieldchange.h"

#include "descriptions.h"
#include "enumeration.h"
#include "names.h"
#include "nodereader.h"
#include "overlaykeys.h"
#include "virtualfieldinfo.h"

#include <QRegularExpression>

namespace corvane {

namespace {

bool hasSymbols(const FieldType &type)
{
    switch (type.getCode()) {
    case FieldType::SignedInteger:
    case FieldType::UnsignedInteger:
    case FieldType::Boolean:
    case FieldType::Character:
    case FieldType::UnsignedCharacter:
        return true;
    default:
        return false;
    }
}

int bitsOf(const FieldType &type)
{
    if (type.getCode() == FieldType::Boolean)
        return 1;
    return type.getSizeBits() > 0 && type.getSizeBits() < 64 ? type.getSizeBits() : 64;
}

/** The bits of a number such as "7", "-1" or "0x80"; nothing where it is none of \a type. */
std::optional<quint64> parseSymbolValue(const QString &text, const FieldType &type)
{
    static const QRegularExpression number(QStringLiteral("\\A(-?[0-9]+|0x[0-9A-Fa-f]+)\\z"));
    if (!number.match(text).hasMatch())
        return std::nullopt;
    const bool isSigned = type.getCode() == FieldType::SignedInteger;
    const int bits = bitsOf(type);
    const bool hexadecimal = text.startsWith(QLatin1String("0x"));
    const int base = hexadecimal ? 16 : 10;
    bool good = false;
    if (isSigned) {
        const qint64 value = text.toLongLong(&good, base);
        const qint64 rest = value >> (bits - 1);
        return good && (rest == 0 || rest == -1) ? std::optional(static_cast<quint64>(value))
                                                 : std::nullopt;
    }
    const quint64 value = text.toULongLong(&good, base);
    const bool fits = bits == 64 || value >> bits == 0;
    return good && fits ? std::optional(value) : std::nullopt;
}

bool readSymbol(NodeReader &reader, const JsonNode &node, Enumeration::Entry *entry)
{
    if (node.kind == JsonNode::Text) {
        entry->name = node.text;
    } else {
        if (!reader.isObject(node, QStringLiteral("symbol")))
            return false;
        if (reader.require(node, "name", JsonNode::Text) == nullptr)
            return false;
        entry->name = reader.readText(node, "name").value_or(QString());
        entry->description = reader.readText(node, "description").value_or(QString());
    }
    if (entry->name.isEmpty())
        reader.addError(node, QStringLiteral("the name of a symbol cannot be empty"));
    return !entry->name.isEmpty();
}

void addSymbol(NodeReader &reader,
               const JsonNode &node,
               const FieldType &type,
               Enumeration *symbols)
{
    const auto value = parseSymbolValue(node.key, type);
    if (!value)
        return reader.addErrorAtKey(node, QStringLiteral("%1 is no value of type %2; expected a "
                                                         "number such as \"7\" or \"0x80\"")
                                              .arg(quoted(node.key), type.toShortString()));
    Enumeration::Entry entry;
    entry.value = *value;
    if (readSymbol(reader, node, &entry) && !symbols->add(entry))
        reader.addErrorAtKey(node, QStringLiteral("the value %1 or the name %2 is there twice")
                                       .arg(quoted(node.key), quoted(entry.name)));
}

std::shared_ptr<const Enumeration>
readSymbols(NodeReader &reader, const JsonNode &object, const FieldType &type, const QString &name)
{
    const JsonNode *node = object.find(QStringLiteral("symbols"));
    const JsonNode *mask = object.find(QStringLiteral("bitMask"));
    const bool isMask = reader.readBoolean(object, "bitMask").value_or(false);
    if (node == nullptr) {
        if (mask != nullptr)
            reader.addErrorAtKey(*mask, QStringLiteral("\"bitMask\" says how to read \"symbols\", "
                                                       "which are missing"));
        return nullptr;
    }
    if (!reader.isOfKind(*node, JsonNode::Object))
        return nullptr;
    if (!hasSymbols(type)) {
        reader.addErrorAtKey(*node, QStringLiteral("only integers have symbols; %1 is of type %2")
                                        .arg(quoted(name), type.toShortString()));
        return nullptr;
    }
    auto symbols = std::make_shared<Enumeration>(name, isMask);
    for (const JsonNode &member : node->children)
        if (!reader.getSource().isFull())
            addSymbol(reader, member, type, symbols.get());
    return symbols;
}

} // namespace

void FieldChange::applyTo(FieldInfo &field) const
{
    FieldInfoData &data = *field.getData();
    if (displayName)
        data.displayName = *displayName;
    if (description)
        data.description = *description;
    if (unit)
        data.unit = *unit;
    if (role)
        data.role = *role;
    if (symbols != nullptr)
        data.symbols = symbols;
    if (!confidential)
        return;
    if (auto *virtualField = dynamic_cast<VirtualFieldInfo *>(&field))
        virtualField->setDeclaredConfidential(*confidential);
    else
        data.confidential = *confidential;
}

FieldChange readFieldChange(NodeReader &reader,
                            const JsonNode &object,
                            const FieldType &type,
                            const QString &name)
{
    FieldChange change;
    change.displayName = reader.readText(object, "displayName");
    change.description = reader.readText(object, "description");
    change.unit = reader.readText(object, "unit");
    change.confidential = reader.readBoolean(object, "confidential");
    if (const auto role = reader.readChoice(object, "role", overlayRoleNames()))
        change.role = static_cast<FieldInfo::Role>(*role);
    change.symbols = readSymbols(reader, object, type, name);
    return change;
}

} // namespace corvane
