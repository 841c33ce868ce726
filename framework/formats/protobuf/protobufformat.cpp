#include "protobufformat.h"

#include "catalogue.h"
#include "descriptions.h"
#include "messageinfo.h"
#include "protobufdecoder.h"
#include "protobufdescriptions.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace corvane {

using google::protobuf::Descriptor;

namespace {

constexpr size_t maximumListed = 10;

QString tr(const char *text)
{
    return QCoreApplication::translate("corvane::ProtobufFormat", text);
}

std::unique_ptr<FormatInfoData> makeFormatData()
{
    auto data = std::make_unique<FormatInfoData>();
    data->name = QStringLiteral("Protocol Buffers");
    data->framings = protobufFramingNames();
    return data;
}

QString listNames(const std::vector<const Descriptor *> &types)
{
    QStringList names;
    for (size_t i = 0; i < std::min(types.size(), maximumListed); ++i)
        names.append(QString::fromStdString(types[i]->full_name()));
    if (types.size() > maximumListed)
        names.append(QStringLiteral("..."));
    return names.join(QStringLiteral(", "));
}

LoadError errorOf(const QString &file, const QString &message)
{
    LoadError error;
    error.file = file;
    error.message = message;
    return error;
}

} // namespace

ProtobufFormat::ProtobufFormat(QString rootName, QStringList importFolders)
    : info(makeFormatData())
    , rootName(std::move(rootName))
    , importFolders(std::move(importFolders))
{
    Catalogue::getInstance()->addFormat(&info);
}

ProtobufFormat::~ProtobufFormat()
{
    Catalogue::getInstance()->removeFormat(&info);
}

StreamFormat::LoadResult ProtobufFormat::loadFiles(const QStringList &files)
{
    if (files.isEmpty())
        return {};
    const QString &file = files.constFirst();
    if (schema != nullptr)
        return {{errorOf(file, tr("Definitions are loaded already."))}, {}};
    const auto loaded = ProtobufSchema::load(files, importFolders);
    if (loaded.schema == nullptr)
        return {loaded.errors, loaded.warnings};

    QString problem;
    const Descriptor *found = findRoot(*loaded.schema, &problem);
    if (found == nullptr)
        return {{errorOf(file, problem)}, loaded.warnings};
    const MessageInfo *described
        = ProtobufDescriber(*loaded.schema, &info, found->file()->package()).describe(found);
    if (described == nullptr) {
        info.getData()->messagesByName.clear();
        info.getData()->messages.clear();
        return {{errorOf(file, tr("The message type %1 has too many parts to be shown.")
                                   .arg(QString::fromStdString(found->full_name())))},
                loaded.warnings};
    }
    schema = loaded.schema;
    layout = &schema->getLayout(found);
    rootInfo = described;
    Catalogue::getInstance()->announceChange();
    return {{}, loaded.warnings};
}

const Descriptor *ProtobufFormat::findRoot(const ProtobufSchema &loaded, QString *problem) const
{
    const auto outer = loaded.getOuterMessages();
    if (rootName.isEmpty()) {
        if (outer.size() == 1)
            return outer.front();
        *problem = tr("Which message type does the stream consist of? Name it with --root, such as "
                      "one of: %1.")
                       .arg(listNames(outer));
        return nullptr;
    }
    const Descriptor *named = loaded.findMessage(rootName);
    if (named == nullptr)
        *problem = tr("There is no message type %1; expected \"package.Type\", such as one of: %2.")
                       .arg(rootName, listNames(outer));
    return named;
}

SenderTable::Namer ProtobufFormat::getSenderNamer() const
{
    return [](quint32) { return tr("stream"); };
}

std::unique_ptr<StreamDecoder> ProtobufFormat::makeDecoder(Reception &reception,
                                                           const QString &framing) const
{
    const auto index = std::max<qsizetype>(0, protobufFramingNames().indexOf(framing));
    return std::make_unique<ProtobufDecoder>(*this, reception, static_cast<ProtobufFraming>(index));
}

} // namespace corvane
