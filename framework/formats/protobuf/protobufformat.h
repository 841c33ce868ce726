#pragma once

#include "corvaneframework_export.h"
#include "formatinfo.h"
#include "protobufschema.h"
#include "streamformat.h"

#include <QString>
#include <QStringList>

#include <memory>

class MessageInfo;

namespace corvane {

/**
 * The Protocol Buffers format, "Protocol Buffers", with one schema and the type of the messages
 * that a stream consists of, its root. Registers itself in the catalogue.
 *
 * Types are named as their definitions name them, without the package of the root: the type
 * "osi3.Lane.Type" is "Lane.Type" where the root is "osi3.SensorView".
 *
 * An overlay can say that the root is an envelope: then the types of the cases of one of its oneofs
 * are the main types, and the messages are what the envelopes hold.
 */
class CORVANEFRAMEWORK_EXPORT ProtobufFormat final : public StreamFormat
{
public:
    /**
     * \a rootName: "package.Type". When it is empty, the root is the only type of the definitions
     * that is no part of another one. \a importFolders: where imports are looked for, beside the
     * folders of the definition files.
     */
    explicit ProtobufFormat(QString rootName = {}, QStringList importFolders = {});
    ~ProtobufFormat() override;

    /** All files make up one schema, so this works once. With errors nothing is loaded. */
    LoadResult loadFiles(const QStringList &files) override;

    const FormatInfo *getInfo() const override { return &info; }

    bool hasChecksum() const override { return false; }

    SenderTable::Namer getSenderNamer() const override;

    quint32 getLastSequenceNumber() const override { return 0xFFFFFFFF; }

    /** "varint" or "le32". */
    std::unique_ptr<StreamDecoder> makeDecoder(Reception &reception,
                                               const QString &framing) const override;

    /** Null until definitions are loaded, as are the others. */
    const std::shared_ptr<const ProtobufSchema> &getSchema() const { return schema; }

    const ProtobufLayout *getLayout() const { return layout; }

    const google::protobuf::Descriptor *getRoot() const
    {
        return layout != nullptr ? layout->getType() : nullptr;
    }

    const MessageInfo *getRootInfo() const { return rootInfo; }

private:
    const google::protobuf::Descriptor *findRoot(const ProtobufSchema &loaded,
                                                 QString *problem) const;

    FormatInfo info;
    QString rootName;
    QStringList importFolders;
    std::shared_ptr<const ProtobufSchema> schema;
    const ProtobufLayout *layout = nullptr; ///< Of the root, in the schema.
    const MessageInfo *rootInfo = nullptr; ///< Not owned.
};

} // namespace corvane
