#include "mavlinkformat.h"

#include "catalogue.h"
#include "descriptions.h"
#include "enumeration.h"
#include "mavlinkdecoder.h"
#include "mavlinkdefinitionreader.h"
#include "mavlinkmessage.h"
#include "mavlinkscanner.h"
#include "messageinfo.h"

#include <QCoreApplication>

#include <algorithm>

namespace corvane {

namespace {

std::unique_ptr<FormatInfoData> makeFormatData()
{
    auto data = std::make_unique<FormatInfoData>();
    data->name = QStringLiteral("MAVLink");
    // In the order of MavlinkFraming.
    data->framings
        = QStringList{QStringLiteral("auto"), QStringLiteral("raw"), QStringLiteral("tlog")};
    return data;
}

} // namespace

MavlinkFormat::MavlinkFormat()
    : info(makeFormatData())
    , types(1)
    , lowTypes(0x10000, 0)
{
    Catalogue::getInstance()->addFormat(&info);
}

MavlinkFormat::~MavlinkFormat()
{
    Catalogue::getInstance()->removeFormat(&info);
}

MavlinkFormat::LoadResult MavlinkFormat::load(const QString &file)
{
    MavlinkDefinitionReader reader;
    if (!reader.read(file))
        return {reader.getErrors(), reader.getWarnings()};
    const auto conflicts = findConflicts(reader.getDefinitions());
    if (!conflicts.isEmpty())
        return {conflicts, reader.getWarnings()};

    addEnumerations(reader.getDefinitions());
    for (const MavlinkMessageDefinition &message : reader.getDefinitions().messages)
        if (findType(message.id) == nullptr)
            addMessage(message);
    Catalogue::getInstance()->announceChange();
    return {{}, reader.getWarnings()};
}

StreamFormat::LoadResult MavlinkFormat::loadFiles(const QStringList &files)
{
    LoadResult result;
    for (const QString &file : files) {
        const LoadResult ofFile = load(file);
        result.errors += ofFile.errors;
        result.warnings += ofFile.warnings;
    }
    return result;
}

SenderTable::Namer MavlinkFormat::getSenderNamer() const
{
    return mavlinkSenderName;
}

std::unique_ptr<StreamDecoder> MavlinkFormat::makeDecoder(Reception &reception,
                                                          const QString &framing) const
{
    return std::make_unique<MavlinkDecoder>(*this, reception, framingOf(framing));
}

std::unique_ptr<StreamScanner> MavlinkFormat::makeScanner(QByteArrayView head,
                                                          const QString &framing) const
{
    const MavlinkFraming named = framingOf(framing);
    return std::make_unique<MavlinkScanner>(*this, named == MavlinkFraming::Automatic
                                                       ? MavlinkDecoder::findFraming(*this, head)
                                                       : named);
}

MavlinkFraming MavlinkFormat::framingOf(const QString &name) const
{
    const auto index = std::max<qsizetype>(0, info.getData()->framings.indexOf(name));
    return static_cast<MavlinkFraming>(index);
}

QList<LoadError> MavlinkFormat::findConflicts(const MavlinkDefinitions &definitions) const
{
    QList<LoadError> conflicts;
    for (const MavlinkMessageDefinition &message : definitions.messages) {
        const MavlinkMessageType *sameId = findType(message.id);
        const MessageInfo *sameName = info.getData()->findMessage(message.name);
        if (sameId == nullptr && sameName == nullptr)
            continue;
        // The checksum's extra byte stands for the name and the base fields.
        if (sameId != nullptr && sameId->info == sameName
            && sameId->checksumExtra == message.getChecksumExtra()
            && sameId->fullSize == message.getFullSize())
            continue;
        const MessageInfo *other = sameId != nullptr ? sameId->info : sameName;
        conflicts.append({message.place.file, message.place.line, message.place.column,
                          QCoreApplication::translate(
                              "corvane::MavlinkFormat",
                              "The message %1 with id %2 contradicts %3 with id %4, which "
                              "is loaded already.")
                              .arg(message.name)
                              .arg(message.id)
                              .arg(other->getData()->name)
                              .arg(other->getData()->number)});
    }
    return conflicts;
}

void MavlinkFormat::addEnumerations(const MavlinkDefinitions &definitions)
{
    for (const MavlinkEnumerationDefinition &definition : definitions.enumerations) {
        auto &enumeration = enumerations[definition.name];
        if (enumeration == nullptr)
            enumeration = std::make_shared<Enumeration>(definition.name);
        if (definition.isBitMask)
            enumeration->setBitMask(true);
        for (const MavlinkEnumerationEntry &entry : definition.entries)
            enumeration->add({entry.value, entry.name, entry.description});
    }
}

void MavlinkFormat::addMessage(const MavlinkMessageDefinition &definition)
{
    const MessageInfo *added
        = info.getData()->addMessage(makeMavlinkMessageInfo(definition, &info, enumerations));
    const auto index = static_cast<quint32>(types.size());
    types.push_back(
        {added, definition.getChecksumExtra(), static_cast<quint8>(definition.getFullSize())});
    if (definition.id < lowTypes.size())
        lowTypes[definition.id] = index;
    else
        highTypes.insert(definition.id, index);
}

QHash<quint32, quint8> MavlinkFormat::getChecksumExtras() const
{
    QHash<quint32, quint8> extras;
    for (const MavlinkMessageType &type : types)
        if (type.info != nullptr)
            extras.insert(type.info->getData()->number, type.checksumExtra);
    return extras;
}

} // namespace corvane
