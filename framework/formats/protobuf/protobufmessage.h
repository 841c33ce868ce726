#pragma once

#include "corvaneframework_export.h"
#include "decodedmessage.h"
#include "fieldinfo.h"
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

    using Key = const google::protobuf::Message *;

    /** What the Any messages hold that were asked for it: in the arena, or null. */
    QHash<Key, Key> &getResolved() { return resolved; }

    /** The entries of the maps that were asked for them, in the order of their keys. */
    std::vector<Key> &getMapEntries(Key message, const google::protobuf::FieldDescriptor *map)
    {
        return maps[{message, map}];
    }

private:
    ProtobufContent(std::shared_ptr<const ProtobufSchema> schema, QByteArrayView bytes);

    std::shared_ptr<const ProtobufSchema>
        schema; ///< Outlives the arena, which needs it to the end.
    google::protobuf::Arena arena;
    const google::protobuf::Message *root = nullptr; ///< In the arena.
    QByteArrayView bytes; ///< In the arena.
    QHash<Key, Key> resolved;
    QHash<std::pair<Key, const google::protobuf::FieldDescriptor *>, std::vector<Key>> maps;
};

/**
 * A message of a stream, or a sub-message of one, which is made when first asked for.
 *
 * What has been found out is kept for whoever asks next, so a message with all its parts is read by
 * one thread at a time.
 */
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

    /** As that of the message, which is asked for so often that the way there counts. */
    const google::protobuf::Reflection &getReflection() const { return reflection; }

    /** What a field has in a message. */
    struct Values
    {
        unsigned int count = 0;
        /** What libprotobuf has there: of numbers the first one, of messages the list, a text. */
        const void *data = nullptr;
    };

    /** What \a find finds for \a field, which is not asked again while it is asked for that. */
    template <typename Find>
    const Values &getValues(const FieldInfo *field, Find &&find) const
    {
        if (lastField != field) {
            lastValues = find();
            lastField = field;
        }
        return lastValues;
    }

    /**
     * The sub-message at \a index of the \a count ones of \a field; the same whenever it is asked
     * for. Made of what \a read returns.
     */
    template <typename Read>
    const ProtobufMessage *
    getPart(const FieldInfo *field, unsigned int index, unsigned int count, Read &&read) const
    {
        const Parts &known = findParts(field, count);
        if (known.messages[index] == nullptr)
            makePart(known, index, read());
        return known.messages[index];
    }

    /**
     * The entry of a map that is the \a index-th one by its key. Maps have no order of their own;
     * this way an entry keeps its place from message to message.
     */
    const google::protobuf::Message &getMapEntry(const google::protobuf::FieldDescriptor *map,
                                                 int index) const;
    /** What an Any holds, or null where its type is not known or its bytes are no such message. */
    const google::protobuf::Message *resolveAny(const google::protobuf::Message &any) const;

private:
    /** The sub-messages of one field, each made when it is asked for; in the arena. */
    struct Parts
    {
        const FieldInfo *field;
        const ProtobufMessage **messages; ///< Null for those that are not made.
        ProtobufMessage *places; ///< Where they are made.
        Parts *next;
    };

    ProtobufMessage(const MessageInfo *info,
                    std::unique_ptr<ProtobufContent> content,
                    const google::protobuf::Message &message,
                    qint64 timeUs,
                    bool confidential);
    ProtobufMessage(const MessageInfo *info,
                    const ProtobufMessage *owner,
                    const google::protobuf::Message &message,
                    bool confidential);

    const Parts &findParts(const FieldInfo *field, unsigned int count) const;
    void
    makePart(const Parts &parts, unsigned int index, const google::protobuf::Message &part) const;

    const google::protobuf::Message &message; ///< In the content.
    const google::protobuf::Reflection &reflection;
    std::unique_ptr<ProtobufContent> owned; ///< Null in a sub-message.
    ProtobufContent *content; ///< That of the main message.
    mutable Parts *parts = nullptr; ///< In the arena.
    mutable const FieldInfo *lastField = nullptr;
    mutable Values lastValues; ///< Of lastField.
};

} // namespace corvane
