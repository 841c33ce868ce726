#pragma once

#include "corvaneframework_export.h"
#include "formatinfo.h"
#include "mcapdefinitions.h"
#include "streamformat.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <memory>
#include <utility>

class MessageInfo;

namespace corvane {

class ProtobufLayout;
class ProtobufSchema;

/**
 * Protocol Buffers messages in an MCAP file, which brings the definitions of its messages itself.
 * Registers itself in the catalogue.
 *
 * The channels are the senders, by their topics. Messages of channels in other encodings are
 * counted as unknown, with the channel's id. Types are named without the package that all of them
 * have in common.
 */
class CORVANEFRAMEWORK_EXPORT McapFormat final : public StreamFormat
{
public:
    /** The messages of a schema. */
    struct Type
    {
        std::shared_ptr<const ProtobufSchema> schema;
        const ProtobufLayout *layout = nullptr; ///< In the schema.
        const MessageInfo *info = nullptr; ///< Not owned.
    };

    McapFormat();
    ~McapFormat() override;

    /** Whether \a path is a regular file that begins as an MCAP file does. */
    static bool isMcapFile(const QString &path);

    /** Takes the definitions out of one MCAP file. With errors nothing is loaded. */
    LoadResult loadFiles(const QStringList &files) override;

    const FormatInfo *getInfo() const override { return &info; }

    bool hasChecksum() const override { return false; }

    SenderTable::Namer getSenderNamer() const override;

    quint32 getLastSequenceNumber() const override { return 0xFFFFFFFF; }

    std::unique_ptr<StreamDecoder> makeDecoder(Reception &reception,
                                               const QString &framing) const override;
    std::unique_ptr<StreamScanner> makeScanner(QByteArrayView head,
                                               const QString &framing) const override;

    const McapDefinitions &getDefinitions() const { return *definitions; }

    /** How the messages of \a channel are decoded; null when they are not. */
    const Type *findType(const McapChannel &channel, const McapSchema *schema) const;

private:
    using Key = std::pair<QString, QByteArray>; ///< Name and definition.

    QString loadSchema(const McapSchema &schema);
    QString describe();
    void forget();

    FormatInfo info;
    std::shared_ptr<McapDefinitions> definitions; ///< Shared with the namers of senders.
    std::map<Key, Type> types;
};

} // namespace corvane
