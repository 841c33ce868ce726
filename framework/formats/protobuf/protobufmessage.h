#pragma once

#include "corvaneframework_export.h"
#include "decodedmessage.h"
#include "protobufarena.h"
#include "protobuflayout.h"
#include "protobufschema.h"

#include <QByteArrayView>
#include <QHash>

#include <memory>

class FieldInfo;

namespace corvane {

/** A parsed message of a stream: all that belongs to it, in one arena. */
class CORVANEFRAMEWORK_EXPORT ProtobufContent
{
public:
    /** A message that would take more memory is not parsed. */
    static constexpr quint64 maximumMemory = 512ULL * 1024 * 1024;

    enum class Damage {
        None,
        NoMessage, ///< Of that type.
        TooMuch ///< For maximumMemory.
    };

    /** Parses \a bytes as a message of type \a layout, which belongs to \a schema. */
    ProtobufContent(std::shared_ptr<const ProtobufSchema> schema,
                    const ProtobufLayout &layout,
                    QByteArrayView bytes);

    Damage getDamage() const { return damage; }

    /** The message as a whole; only to be called where there is no damage. */
    const ProtobufRecord &getRoot() const { return *root; }

    QByteArrayView getBytes() const { return bytes; }

    /** Where whatever belongs to the message can be put. */
    ProtobufArena &getArena() { return arena; }

    /** What \a any, an Any, holds; null where its type is not known or its bytes are none of it. */
    const ProtobufRecord *resolveAny(const ProtobufRecord &any);

private:
    std::shared_ptr<const ProtobufSchema> schema; ///< Has the layouts.
    ProtobufArena arena;
    const ProtobufRecord *root = nullptr; ///< In the arena.
    QByteArrayView bytes; ///< In the arena.
    Damage damage = Damage::None;
    QHash<const ProtobufRecord *, const ProtobufRecord *> resolved;
};

/**
 * A message of a stream, or a sub-message of one, which is made when first asked for.
 *
 * What was made is kept for whoever asks next, so a message with all its parts is read by one
 * thread at a time.
 */
class CORVANEFRAMEWORK_EXPORT ProtobufMessage final : public DecodedMessage
{
public:
    /**
     * A main message; the caller owns one reference.
     *
     * \a record: the root of \a content, or what an envelope holds.
     */
    static const ProtobufMessage *create(const MessageInfo *info,
                                         std::unique_ptr<ProtobufContent> content,
                                         const ProtobufRecord &record,
                                         qint64 timeUs,
                                         bool confidential);

    /** The bytes that came, with the envelope; empty for a sub-message. */
    QByteArrayView getBytes() const override;

    const ProtobufRecord &getRecord() const { return record; }

    /** The sub-message \a part of \a field; the same whenever it is asked for. */
    const ProtobufMessage *getPart(const FieldInfo *field, const ProtobufRecord &part) const
    {
        if (part.message == nullptr)
            makePart(field, part);
        return part.message;
    }

    /** As ProtobufContent::resolveAny(), of this message. */
    const ProtobufRecord *resolveAny() const { return content->resolveAny(record); }

private:
    ProtobufMessage(const MessageInfo *info,
                    std::unique_ptr<ProtobufContent> content,
                    const ProtobufRecord &record,
                    qint64 timeUs,
                    bool confidential);
    ProtobufMessage(const FieldInfo *field,
                    const ProtobufMessage *owner,
                    const ProtobufRecord &record);

    void makePart(const FieldInfo *field, const ProtobufRecord &part) const;

    const ProtobufRecord &record; ///< In the content.
    std::unique_ptr<ProtobufContent> owned; ///< Null in a sub-message.
    ProtobufContent *content; ///< That of the main message.
};

} // namespace corvane
