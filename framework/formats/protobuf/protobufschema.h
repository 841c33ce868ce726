#pragma once

#include "corvaneframework_export.h"
#include "loaderror.h"
#include "protobuflayout.h"
#include "protobufsourcetree.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <google/protobuf/descriptor.h>
#include <google/protobuf/descriptor_database.h>

#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace corvane {

/**
 * What definition files say: ".proto" text, or descriptor sets as the compiler writes them. The
 * well-known types can be imported without a file of theirs.
 *
 * Messages hold on to their schema, so that they can outlive the format.
 */
class CORVANEFRAMEWORK_EXPORT ProtobufSchema
{
public:
    struct LoadResult
    {
        std::shared_ptr<const ProtobufSchema> schema; ///< Null with errors.
        QList<LoadError> errors;
        QList<LoadError> warnings;
    };

    /**
     * Imports are looked for in \a importFolders, then in the folders of \a files. A file that
     * lies in an import folder is known by its path in there.
     */
    static LoadResult load(const QStringList &files, const QStringList &importFolders);

    /** What the descriptor set \a bytes says; \a name: what errors call it. */
    static LoadResult parse(const QByteArray &bytes, const QString &name);

    ProtobufSchema();
    ~ProtobufSchema();
    ProtobufSchema(const ProtobufSchema &) = delete;
    ProtobufSchema &operator=(const ProtobufSchema &) = delete;

    const google::protobuf::DescriptorPool &getPool() const { return pool; }

    /** The files that were asked for, without what they import. */
    const std::vector<const google::protobuf::FileDescriptor *> &getFiles() const { return files; }

    /** The message of that full name ("package.Type"), or null. */
    const google::protobuf::Descriptor *findMessage(const QString &fullName) const;
    /** The messages of the files at top level that no other message of them has as a field. */
    std::vector<const google::protobuf::Descriptor *> getOuterMessages() const;
    /** That of a message type of this schema. It may be asked for by several threads. */
    const ProtobufLayout &getLayout(const google::protobuf::Descriptor *type) const;

private:
    class ErrorCollector;

    static LoadResult finish(std::shared_ptr<ProtobufSchema> schema,
                             const ErrorCollector &collector);
    void addDescriptorSetFile(const QString &file, ErrorCollector &errors);
    void addDescriptorSet(const QByteArray &bytes, const QString &name, ErrorCollector &errors);
    void addProtoFile(const QString &file, ErrorCollector &errors);
    void build(const std::string &name, ErrorCollector &errors);

    ProtobufSourceTree tree;
    google::protobuf::SimpleDescriptorDatabase descriptorSets;
    google::protobuf::DescriptorPoolDatabase wellKnown;
    google::protobuf::MergedDescriptorDatabase withoutText;
    google::protobuf::compiler::SourceTreeDescriptorDatabase database;
    google::protobuf::DescriptorPool pool;
    std::vector<const google::protobuf::FileDescriptor *> files;
    mutable std::mutex layoutsMutex;
    mutable std::map<const google::protobuf::Descriptor *, std::unique_ptr<ProtobufLayout>> layouts;
};

} // namespace corvane
