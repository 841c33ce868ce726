#include "mcapformat.h"

#include "catalogue.h"
#include "descriptions.h"
#include "mcapdecoder.h"
#include "mcapscanner.h"
#include "messageinfo.h"
#include "protobufdescriptions.h"
#include "protobufschema.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace corvane {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("corvane::McapFormat", text);
}

bool isProtobuf(const QString &encoding)
{
    return encoding == QLatin1String("protobuf");
}

std::unique_ptr<FormatInfoData> makeFormatData()
{
    auto data = std::make_unique<FormatInfoData>();
    data->name = QStringLiteral("Protocol Buffers");
    return data;
}

} // namespace

McapFormat::McapFormat()
    : info(makeFormatData())
    , definitions(std::make_shared<McapDefinitions>())
{
    Catalogue::getInstance()->addFormat(&info);
}

McapFormat::~McapFormat()
{
    Catalogue::getInstance()->removeFormat(&info);
}

bool McapFormat::isMcapFile(const QString &path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly)
           && file.read(mcapFileMark.size()) == mcapFileMark;
}

StreamFormat::LoadResult McapFormat::loadFiles(const QStringList &files)
{
    if (files.isEmpty())
        return {};
    LoadResult result;
    const auto fail = [&](const QString &message) {
        LoadError error;
        error.file = files.constFirst();
        error.message = message;
        result.errors.append(error);
        forget();
        return result;
    };
    if (files.size() > 1 || !definitions->channels.empty())
        return fail(tr("Only one MCAP file can be loaded."));
    QString problem;
    *definitions = McapDefinitions::readFile(files.constFirst(), &problem);
    for (const auto &[id, channel] : definitions->channels) {
        const McapSchema *schema = definitions->findSchema(channel);
        if (problem.isEmpty() && schema != nullptr && isProtobuf(channel.messageEncoding)
            && isProtobuf(schema->encoding))
            problem = loadSchema(*schema);
    }
    if (problem.isEmpty() && types.empty())
        problem = tr("None of the channels has messages of Protocol Buffers.");
    if (problem.isEmpty())
        problem = describe();
    if (!problem.isEmpty())
        return fail(problem);
    Catalogue::getInstance()->announceChange();
    return result;
}

/** Returns what is wrong, or nothing. */
QString McapFormat::loadSchema(const McapSchema &schema)
{
    const Key key(schema.name, schema.data);
    if (types.contains(key))
        return {};
    const auto loaded = ProtobufSchema::parse(schema.data, tr("schema %1").arg(schema.name));
    if (loaded.schema == nullptr)
        return loaded.errors.constFirst().toString();
    const auto *root = loaded.schema->findMessage(schema.name);
    if (root == nullptr)
        return tr("The schema %1 does not define the message type of that name.").arg(schema.name);
    types[key] = {loaded.schema, &loaded.schema->getLayout(root), nullptr};
    return {};
}

/** Returns what is wrong, or nothing. */
QString McapFormat::describe()
{
    std::string package = types.begin()->second.layout->getType()->file()->package();
    for (const auto &[key, type] : types)
        if (type.layout->getType()->file()->package() != package)
            package.clear();
    for (auto &[key, type] : types) {
        type.info
            = ProtobufDescriber(*type.schema, &info, package).describe(type.layout->getType());
        if (type.info == nullptr)
            return tr("The message type %1 has too many parts to be shown.").arg(key.first);
    }
    return {};
}

void McapFormat::forget()
{
    types.clear();
    *definitions = McapDefinitions();
    info.getData()->messagesByName.clear();
    info.getData()->messages.clear();
}

SenderTable::Namer McapFormat::getSenderNamer() const
{
    return [known = definitions](quint32 id) {
        const auto channel = known->channels.find(static_cast<quint16>(id));
        return channel == known->channels.end() ? tr("channel %1").arg(id) : channel->second.topic;
    };
}

std::unique_ptr<StreamDecoder> McapFormat::makeDecoder(Reception &reception, const QString &) const
{
    return std::make_unique<McapDecoder>(*this, reception);
}

std::unique_ptr<StreamScanner> McapFormat::makeScanner(QByteArrayView, const QString &) const
{
    return std::make_unique<McapScanner>();
}

const McapFormat::Type *McapFormat::findType(const McapChannel &channel,
                                             const McapSchema *schema) const
{
    if (schema == nullptr || !isProtobuf(channel.messageEncoding))
        return nullptr;
    const auto found = types.find({schema->name, schema->data});
    return found == types.end() ? nullptr : &found->second;
}

} // namespace corvane
