#include "protobufschema.h"

#include <QFile>
#include <QFileInfo>

#include <google/protobuf/descriptor.pb.h>
#include <google/protobuf/stubs/logging.h>

#include <set>

namespace corvane {

using google::protobuf::Descriptor;
using google::protobuf::FileDescriptor;

namespace {

constexpr qint64 maximumSetSize = 64LL * 1024 * 1024;

void collectUsed(const Descriptor *message, std::set<const Descriptor *> &used)
{
    for (int i = 0; i < message->field_count(); ++i) {
        const Descriptor *type = message->field(i)->message_type();
        if (type != nullptr && type != message)
            used.insert(type);
    }
    for (int i = 0; i < message->nested_type_count(); ++i)
        collectUsed(message->nested_type(i), used);
}

} // namespace

/** Turns what libprotobuf finds wrong into errors with the file's own path. */
class ProtobufSchema::ErrorCollector final
    : public google::protobuf::compiler::MultiFileErrorCollector
{
public:
    explicit ErrorCollector(const ProtobufSourceTree &tree)
        : tree(tree)
    {
    }

    void
    AddError(const std::string &filename, int line, int column, const std::string &message) override
    {
        errors.append(makeError(filename, line, column, message));
    }

    void AddWarning(const std::string &filename,
                    int line,
                    int column,
                    const std::string &message) override
    {
        warnings.append(makeError(filename, line, column, message));
    }

    void add(const QString &file, const QString &message)
    {
        LoadError error;
        error.file = file;
        error.message = message;
        errors.append(error);
    }

    QList<LoadError> errors;
    QList<LoadError> warnings;

private:
    LoadError
    makeError(const std::string &filename, int line, int column, const std::string &message) const
    {
        const QString name = QString::fromStdString(filename);
        // Lines and columns count from 0 there; -1 stands for the file as a whole.
        return {tree.findFile(name).value_or(name), line + 1, line < 0 ? 0 : column + 1,
                QString::fromStdString(message)};
    }

    const ProtobufSourceTree &tree;
};

ProtobufSchema::ProtobufSchema()
    : wellKnown(*google::protobuf::DescriptorPool::generated_pool())
    , withoutText(&descriptorSets, &wellKnown)
    , database(&tree, &withoutText)
    , pool(&database, database.GetValidationErrorCollector())
{
}

ProtobufSchema::~ProtobufSchema() = default;

ProtobufSchema::LoadResult ProtobufSchema::load(const QStringList &files,
                                                const QStringList &importFolders)
{
    const google::protobuf::LogSilencer silencer;
    auto schema = std::make_shared<ProtobufSchema>();
    ErrorCollector collector(schema->tree);
    schema->database.RecordErrorsTo(&collector);
    for (const QString &folder : importFolders) {
        if (!QFileInfo(folder).isDir())
            collector.add(folder, QStringLiteral("There is no such folder to import from."));
        schema->tree.addFolder(folder);
    }
    for (const QString &file : files) {
        if (file.endsWith(QLatin1String(".proto")))
            schema->addProtoFile(file, collector);
        else
            schema->addDescriptorSetFile(file, collector);
    }
    return finish(std::move(schema), collector);
}

ProtobufSchema::LoadResult ProtobufSchema::parse(const QByteArray &bytes, const QString &name)
{
    const google::protobuf::LogSilencer silencer;
    auto schema = std::make_shared<ProtobufSchema>();
    ErrorCollector collector(schema->tree);
    schema->database.RecordErrorsTo(&collector);
    schema->addDescriptorSet(bytes, name, collector);
    return finish(std::move(schema), collector);
}

ProtobufSchema::LoadResult ProtobufSchema::finish(std::shared_ptr<ProtobufSchema> schema,
                                                  const ErrorCollector &collector)
{
    schema->database.RecordErrorsTo(nullptr);
    if (!collector.errors.isEmpty())
        schema.reset();
    return {schema, collector.errors, collector.warnings};
}

void ProtobufSchema::addProtoFile(const QString &file, ErrorCollector &errors)
{
    const QFileInfo info(file);
    if (!info.isFile())
        return errors.add(file, QStringLiteral("There is no such file."));
    if (!tree.getImportName(file))
        tree.addFolder(info.path());
    const QString name = tree.getImportName(file).value_or(info.fileName());
    const QString found = tree.findFile(name).value_or(QString());
    if (found != info.canonicalFilePath())
        return errors.add(
            file, QStringLiteral("The import path leads to %1 in place of this file.").arg(found));
    build(name.toStdString(), errors);
}

void ProtobufSchema::addDescriptorSetFile(const QString &file, ErrorCollector &errors)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        return errors.add(file, QStringLiteral("Cannot be read: ") + source.errorString());
    const QByteArray bytes = source.read(maximumSetSize + 1);
    if (bytes.size() > maximumSetSize)
        return errors.add(file, QStringLiteral("Larger than %1 bytes.").arg(maximumSetSize));
    addDescriptorSet(bytes, file, errors);
}

void ProtobufSchema::addDescriptorSet(const QByteArray &bytes,
                                      const QString &name,
                                      ErrorCollector &errors)
{
    google::protobuf::FileDescriptorSet set;
    if (!set.ParseFromArray(bytes.constData(), static_cast<int>(bytes.size()))
        || set.file_size() == 0)
        return errors.add(name, QStringLiteral("This is no descriptor set; protoc writes one with "
                                               "--include_imports --include_source_info "
                                               "--descriptor_set_out=FILE."));
    for (const auto &description : set.file())
        descriptorSets.Add(description);
    for (const auto &description : set.file())
        build(description.name(), errors);
}

void ProtobufSchema::build(const std::string &name, ErrorCollector &errors)
{
    const FileDescriptor *built = pool.FindFileByName(name);
    if (built != nullptr)
        files.push_back(built);
    else if (errors.errors.isEmpty())
        errors.add(QString::fromStdString(name), QStringLiteral("Cannot be loaded."));
}

const Descriptor *ProtobufSchema::findMessage(const QString &fullName) const
{
    return pool.FindMessageTypeByName(fullName.toStdString());
}

std::vector<const Descriptor *> ProtobufSchema::getOuterMessages() const
{
    std::set<const Descriptor *> used;
    for (const FileDescriptor *file : files)
        for (int i = 0; i < file->message_type_count(); ++i)
            collectUsed(file->message_type(i), used);
    std::vector<const Descriptor *> outer;
    for (const FileDescriptor *file : files)
        for (int i = 0; i < file->message_type_count(); ++i)
            if (!used.contains(file->message_type(i)))
                outer.push_back(file->message_type(i));
    return outer;
}

const ProtobufLayout &ProtobufSchema::getLayout(const Descriptor *type) const
{
    const std::lock_guard lock(layoutsMutex);
    // Types can hold each other in chains and circles of any length.
    std::vector<ProtobufLayout *> unfinished;
    const auto layoutOf = [&](const Descriptor *wanted) {
        std::unique_ptr<ProtobufLayout> &layout = layouts[wanted];
        if (layout == nullptr) {
            layout = std::make_unique<ProtobufLayout>(wanted);
            unfinished.push_back(layout.get());
        }
        return layout.get();
    };
    const ProtobufLayout *result = layoutOf(type);
    while (!unfinished.empty()) {
        ProtobufLayout *layout = unfinished.back();
        unfinished.pop_back();
        for (ProtobufField &field : layout->getFields())
            if (const Descriptor *inner = field.descriptor->message_type())
                field.inner = layoutOf(inner);
    }
    return *result;
}

} // namespace corvane
