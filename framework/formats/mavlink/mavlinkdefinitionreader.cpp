#include "mavlinkdefinitionreader.h"

#include "mavlinktext.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <algorithm>
#include <optional>

namespace corvane {

namespace {

constexpr qint64 maximumFileSize = 32LL * 1024 * 1024;
constexpr qint64 maximumTotalSize = 64LL * 1024 * 1024;
constexpr qsizetype maximumFiles = 256;
constexpr qsizetype maximumErrors = 100;
constexpr qsizetype maximumWarnings = 100;
constexpr size_t maximumMessages = 32'768;
constexpr size_t maximumEnumerationEntries = 262'144;
constexpr qint64 maximumFields = 262'144;
constexpr int maximumPayload = 255;
constexpr quint32 maximumId = 0xFFFFFF;

QString tr(const char *text)
{
    return QCoreApplication::translate("corvane::MavlinkDefinitionReader", text);
}

MavlinkPlace placeOf(const QXmlStreamReader &xml, const QString &file)
{
    return {file, xml.lineNumber(), xml.columnNumber() + 1};
}

/** How many descriptions the field may need: its own and one for each bit that can have a name. */
qint64 roomOf(const MavlinkFieldDefinition &field)
{
    return field.enumeration.isEmpty() ? 1 : 1 + field.elementSize * 8;
}

} // namespace

bool MavlinkDefinitionReader::read(const QString &file)
{
    readFile(QFileInfo(file).absoluteFilePath(), {});
    return errors.isEmpty();
}

void MavlinkDefinitionReader::addError(const MavlinkPlace &place, const QString &message)
{
    if (errors.size() < maximumErrors)
        errors.append({place.file, place.line, place.column, message});
}

void MavlinkDefinitionReader::addWarning(const MavlinkPlace &place, const QString &message)
{
    if (warnings.size() < maximumWarnings)
        warnings.append({place.file, place.line, place.column, message});
}

void MavlinkDefinitionReader::readFile(const QString &file, const MavlinkPlace &includedAt)
{
    const QString path = QFileInfo(file).canonicalFilePath();
    const MavlinkPlace blamed = includedAt.file.isEmpty() ? MavlinkPlace{file, 0, 0} : includedAt;
    if (path.isEmpty())
        return addError(blamed, tr("The file \"%1\" does not exist.").arg(file));
    if (filesOpen.contains(path))
        return addError(blamed,
                        tr("\"%1\" includes itself, directly or through others.").arg(file));
    if (filesRead.contains(path))
        return;
    if (filesRead.size() >= maximumFiles)
        return addError(blamed, tr("More than %1 files are included.").arg(maximumFiles));

    if (!QFileInfo(path).isFile())
        return addError(blamed, tr("\"%1\" is not a file.").arg(file));

    QFile device(path);
    if (!device.open(QIODevice::ReadOnly))
        return addError(blamed, tr("Cannot read \"%1\": %2.").arg(file, device.errorString()));
    if (device.size() > maximumFileSize)
        return addError(blamed,
                        tr("\"%1\" is larger than a definition file can be (32 MiB).").arg(file));
    totalSize += device.size();
    if (totalSize > maximumTotalSize)
        return addError(blamed, tr("The included files are larger than 64 MiB in all."));

    filesRead.insert(path);
    filesOpen.append(path);
    QXmlStreamReader xml(&device);
    readDocument(xml, file);
    filesOpen.removeLast();
}

void MavlinkDefinitionReader::readDocument(QXmlStreamReader &xml, const QString &file)
{
    if (xml.readNextStartElement()) {
        if (xml.name() != QLatin1String("mavlink"))
            xml.raiseError(tr("A MAVLink definition file begins with <mavlink>, not with <%1>.")
                               .arg(quotable(xml.name().toString())));
        while (!xml.hasError() && xml.readNextStartElement()) {
            if (xml.name() == QLatin1String("include"))
                readInclude(xml, file);
            else if (xml.name() == QLatin1String("enums"))
                readEnumerations(xml, file);
            else if (xml.name() == QLatin1String("messages"))
                readMessages(xml, file);
            else
                skipElement(xml);
        }
    }
    // What follows the root element must be well-formed as well.
    while (!xml.hasError() && !xml.atEnd())
        xml.readNext();
    if (xml.hasError())
        addError(placeOf(xml, file), xml.errorString());
}

void MavlinkDefinitionReader::readInclude(QXmlStreamReader &xml, const QString &file)
{
    const MavlinkPlace place = placeOf(xml, file);
    const QString name = readInnerText(xml);
    const bool leavesFolder = QDir::isAbsolutePath(name) || name.contains(QLatin1String(".."))
                              || name.contains(QLatin1String("://"));
    if (name.isEmpty() || leavesFolder)
        return xml.raiseError(tr("\"%1\" cannot be included: name a file in this file's folder.")
                                  .arg(quotable(name)));
    readFile(QFileInfo(file).dir().filePath(name), place);
}

void MavlinkDefinitionReader::readEnumerations(QXmlStreamReader &xml, const QString &file)
{
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("enum"))
            readEnumeration(xml, file);
        else
            skipElement(xml);
    }
}

MavlinkDefinitionReader::EnumerationIndex &
MavlinkDefinitionReader::getEnumeration(const QString &name)
{
    const auto found = enumerations.find(name);
    if (found != enumerations.end())
        return *found;
    EnumerationIndex &index = enumerations[name];
    index.position = definitions.enumerations.size();
    definitions.enumerations.push_back({name, false, {}});
    return index;
}

void MavlinkDefinitionReader::readEnumeration(QXmlStreamReader &xml, const QString &file)
{
    const QString name = xml.attributes().value(QLatin1String("name")).toString();
    if (!isMavlinkName(name))
        return xml.raiseError(
            tr("\"%1\" is no name for an enum: use letters, digits and underscores.")
                .arg(quotable(name)));
    const size_t position = getEnumeration(name).position;
    if (xml.attributes().value(QLatin1String("bitmask")) == QLatin1String("true"))
        definitions.enumerations[position].isBitMask = true;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("entry"))
            readEntry(xml, file, name);
        else
            skipElement(xml);
    }
}

void MavlinkDefinitionReader::readEntry(QXmlStreamReader &xml,
                                        const QString &file,
                                        const QString &enumeration)
{
    MavlinkEnumerationEntry entry;
    entry.place = placeOf(xml, file);
    entry.name = xml.attributes().value(QLatin1String("name")).toString();
    const QString valueText = xml.attributes().value(QLatin1String("value")).toString();
    // An entry without a value counts on from the largest one, as the code generators have it.
    const auto largest = static_cast<quint64>(getEnumeration(enumeration).largestValue);
    const auto value
        = valueText.isEmpty() ? std::optional(largest + 1) : parseMavlinkNumber(valueText);
    if (!isMavlinkName(entry.name) || !value)
        return xml.raiseError(
            tr("The entry \"%1\" of %2 needs a name of letters, digits and underscores and a whole "
               "number as its value, not \"%3\".")
                .arg(quotable(entry.name), enumeration, quotable(valueText)));
    entry.value = *value;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("description"))
            entry.description = readInnerText(xml);
        else
            skipElement(xml);
    }
    if (++entryCount > maximumEnumerationEntries)
        return xml.raiseError(tr("There are more than %1 enum entries.")
                                  .arg(static_cast<qulonglong>(maximumEnumerationEntries)));
    addEntry(getEnumeration(enumeration), entry);
}

void MavlinkDefinitionReader::addEntry(EnumerationIndex &index,
                                       const MavlinkEnumerationEntry &entry)
{
    MavlinkEnumerationDefinition &enumeration = definitions.enumerations[index.position];
    const bool nameTaken = index.valueByName.contains(entry.name);
    if (nameTaken && index.valueByName.value(entry.name) == entry.value)
        return;
    if (nameTaken || index.values.contains(entry.value))
        return addWarning(entry.place,
                          tr("%1 = %2 of %3 is passed over: the name or the value is taken.")
                              .arg(entry.name)
                              .arg(static_cast<qint64>(entry.value))
                              .arg(enumeration.name));
    index.valueByName.insert(entry.name, entry.value);
    index.values.insert(entry.value);
    index.largestValue = std::max(index.largestValue, static_cast<qint64>(entry.value));
    enumeration.entries.push_back(entry);
}

void MavlinkDefinitionReader::readMessages(QXmlStreamReader &xml, const QString &file)
{
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("message"))
            readMessage(xml, file);
        else
            skipElement(xml);
    }
}

void MavlinkDefinitionReader::readMessage(QXmlStreamReader &xml, const QString &file)
{
    MavlinkMessageDefinition message;
    message.place = placeOf(xml, file);
    message.name = xml.attributes().value(QLatin1String("name")).toString();
    const QString idText = xml.attributes().value(QLatin1String("id")).toString();
    const auto id = parseMavlinkNumber(idText);
    if (!isMavlinkName(message.name) || !id || *id > maximumId)
        return xml.raiseError(tr("The message \"%1\" needs a name of letters, digits and "
                                 "underscores and an id from 0 "
                                 "to 16777215, not \"%2\".")
                                  .arg(quotable(message.name), quotable(idText)));
    message.id = static_cast<quint32>(*id);

    bool isExtension = false;
    while (!xml.hasError() && xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("field")) {
            readField(xml, message, isExtension);
        } else if (xml.name() == QLatin1String("description")) {
            message.description = readInnerText(xml);
        } else {
            isExtension = isExtension || xml.name() == QLatin1String("extensions");
            skipElement(xml);
        }
    }
    if (!xml.hasError())
        checkMessage(xml, message);
    if (xml.hasError())
        return;
    messagesById.insert(message.id, definitions.messages.size());
    messagesByName.insert(message.name, definitions.messages.size());
    definitions.messages.push_back(std::move(message));
}

void MavlinkDefinitionReader::checkMessage(QXmlStreamReader &xml,
                                           const MavlinkMessageDefinition &message)
{
    if (definitions.messages.size() >= maximumMessages || fieldCount > maximumFields)
        return xml.raiseError(tr("There are more than %1 messages, or more than %2 fields and bits "
                                 "of fields.")
                                  .arg(static_cast<qulonglong>(maximumMessages))
                                  .arg(maximumFields));
    const auto sameId = messagesById.constFind(message.id);
    const auto sameName = messagesByName.constFind(message.name);
    if (sameId == messagesById.cend() && sameName == messagesByName.cend())
        return;
    const MavlinkMessageDefinition &other
        = definitions.messages[sameId != messagesById.cend() ? *sameId : *sameName];
    xml.raiseError(tr("The message %1 with id %2 is there already: %3 with id %4, line %5 of %6.")
                       .arg(message.name)
                       .arg(message.id)
                       .arg(other.name)
                       .arg(other.id)
                       .arg(other.place.line)
                       .arg(other.place.file));
}

void MavlinkDefinitionReader::readField(QXmlStreamReader &xml,
                                        MavlinkMessageDefinition &message,
                                        bool isExtension)
{
    const auto attributes = xml.attributes();
    MavlinkFieldDefinition field;
    field.isExtension = isExtension;
    field.name = attributes.value(QLatin1String("name")).toString();
    if (!isMavlinkName(field.name))
        return xml.raiseError(
            tr("\"%1\" is no name for a field: use letters, digits and underscores.")
                .arg(quotable(field.name)));
    for (const MavlinkFieldDefinition &other : message.fields)
        if (other.name == field.name)
            return xml.raiseError(tr("%1 has two fields named %2.").arg(message.name, field.name));
    const QString type = attributes.value(QLatin1String("type")).toString();
    if (!parseMavlinkType(type, field))
        return xml.raiseError(
            tr("The field %1 has the unknown type \"%2\". Known are int8_t to int64_t, uint8_t to "
               "uint64_t, float, double and char, each also with a length from 1 to 255 in "
               "brackets.")
                .arg(field.name, quotable(type)));
    field.enumeration = attributes.value(QLatin1String("enum")).toString();
    field.unit = attributes.value(QLatin1String("units")).toString();
    field.invalidText = attributes.value(QLatin1String("invalid")).toString();
    field.isInstance = attributes.value(QLatin1String("instance")) == QLatin1String("true");
    field.isBitMask = attributes.value(QLatin1String("display")) == QLatin1String("bitmask");
    field.description = readInnerText(xml);
    fieldCount += roomOf(field);
    message.fields.push_back(std::move(field));
    // Told at once, so that no message grows without bounds.
    if (message.getFullSize() > maximumPayload)
        xml.raiseError(tr("The fields of %1 take more than the %2 bytes that a frame has room for.")
                           .arg(message.name)
                           .arg(maximumPayload));
}

} // namespace corvane
