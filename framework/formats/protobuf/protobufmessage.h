#pragma once

#include "corvaneframework_export.h"
#include "decodedmessage.h"
#include "protobufschema.h"

#include <QByteArrayView>
#include <QHash>

#include <google/protobuf/arena.h>
#include <google/protobuf/message.h>

#include <memory>
#include <utility>
#include <vector>

namespace corvane {

/** A parsed message of a stream: all that belongs to it, in one arena. */
class CORVANEFRAMEWORK_EXPORT ProtobufContent
{
public:
    /** A message that would take more memory is not parsed. */
    static constexpr quint64 maximumMemory = 512 * 1024 * 1024;

    /** Parses \a bytes as a message of type \a root; null where they are none, or too much. */
    static std::unique_ptr<ProtobufContent> parse(std::shared_ptr<const ProtobufSchema> schema,
                                                  const google::protobuf::Descriptor *root,
                                                  QByteArrayView bytes);

    /** Whether \a bytes were refused because of maximumMemory. */
    static bool isTooMuch(const google::protobuf::Descriptor *root, QByteArrayView bytes);

    const ProtobufSchema &getSchema() const { return *schema; }

    const google::protobuf::Message &getRoot() const { return *root; }

    QByteArrayView getBytes() const { return bytes; }

    /** Where whatever belongs to the message can be put. */
    google::protobuf::Arena *getArena() { return &arena; }

private:
    ProtobufContent(std::shared_ptr<const ProtobufSchema> schema, QByteArrayView bytes);

    std::shared_ptr<const ProtobufSchema>
        schema; ///< Outlives the arena, which needs it to the end.
    google::protobuf::Arena arena;
    const google::protobuf::Message *root = nullptr; ///< In the arena.
    QByteArrayView bytes; ///< In the arena.
};

/** A message of a stream, or a sub-message of one, which is made when first asked for. */
class CORVANEFRAMEWORK_EXPORT ProtobufMessage final : public DecodedMessage
{
public:
    /**
     * A main message; the caller owns one reference.
     *
     * \a message: the root of \a content, or what an envelope holds.
     */
    static const ProtobufMessage *create(const MessageInfo *info,
                                         std::unique_ptr<ProtobufContent> content,
                                         const google::protobuf::Message &message,
                                         qint64 timeUs,
                                         bool confidential);

    /** The bytes that came, with the envelope; empty for a sub-message. */
    QByteArrayView getBytes() const override;

    const google::protobuf::Message &getMessage() const { return message; }

    /** The sub-message for \a part, a message inside this one; the same whenever it is asked for.
     */
    const ProtobufMessage *getPart(const google::protobuf::Message &part,
                                   const MessageInfo *info,
                                   bool confidential) const;
    /**
     * The entry of a map that is the \a index-th one by its key. Maps have no order of their own;
     * this way an entry keeps its place from message to message.
     */
    const google::protobuf::Message &getMapEntry(const google::protobuf::FieldDescriptor *map,
                                                 int index) const;
    /** What an Any holds, or null where its type is not known or its bytes are no such message. */
    const google::protobuf::Message *resolveAny(const google::protobuf::Message &any) const;

private:
    ProtobufMessage(const MessageInfo *info,
                    std::unique_ptr<ProtobufContent> content,
                    const google::protobuf::Message &message,
                    qint64 timeUs,
                    bool confidential);
    ProtobufMessage(const MessageInfo *info,
                    const ProtobufMessage *mainMessage,
                    const google::protobuf::Message &message,
                    bool confidential);
    ~ProtobufMessage() override;

    const google::protobuf::Message &message; ///< In the content of the main message.
    const ProtobufMessage *mainMessage; ///< Not owned; this one itself for a main message.
    std::unique_ptr<ProtobufContent> content; ///< Null in a sub-message.

    // Of a main message alone; what is in them is owned.
    using Key = const google::protobuf::Message *;
    mutable QHash<Key, const ProtobufMessage *> parts;
    mutable QHash<Key, const google::protobuf::Message *> resolved; ///< In the arena, or null.
    using Place = std::pair<Key, const google::protobuf::FieldDescriptor *>;
    mutable QHash<Place, std::vector<Key>> maps; ///< Entries in the order of their keys.
};

} // namespace corvane
