#pragma once

#include "corvaneframework_export.h"
#include "decodedfieldinfo.h"
#include "protobufmessage.h"

#include <google/protobuf/descriptor.h>

#include <optional>

namespace corvane {

/**
 * A field of a Protocol Buffers message type.
 *
 * A single string is a string field; repeated strings are values. Bytes beyond 256, and characters
 * beyond 100,000, are cut and say so. The number of an enumeration that the definitions do not
 * know stands for itself, also where the language would drop it.
 */
class CORVANEFRAMEWORK_EXPORT ProtobufFieldInfo final : public DecodedFieldInfo
{
public:
    static constexpr qsizetype maximumBytes = 256;
    static constexpr qsizetype maximumCharacters = 100'000;

    /**
     * \a field: belongs to the schema, which must outlive this. \a type: of a message field too
     * deep to be described, FieldType::Text.
     */
    ProtobufFieldInfo(const ProtobufField &field,
                      const FieldType &type,
                      const MessageInfo *owner,
                      std::unique_ptr<FieldInfoData> data);

    unsigned int getNumberOfValues(const Message *message) const override;

    const ProtobufField &getField() const { return field; }

    /** Whether the message has the field; other than the number of values, also of an empty text.
     */
    bool isPresent(const Message *message) const;

protected:
    FieldValue readValue(const Message *message, unsigned int index) const override;
    QString readString(const Message *message) const override;

private:
    /** Null where \a message has no such field. */
    const ProtobufSlot *findSlot(const Message *message) const
    {
        return message->getInfo() == owner
                   ? &static_cast<const ProtobufMessage *>(message)->getRecord().at(field.place)
                   : nullptr;
    }

    FieldValue readSubMessage(const Message *message, const ProtobufRecord &part) const;
    FieldValue readText(const ProtobufSlot &slot, unsigned int index) const;

    const ProtobufField &field;
    const MessageInfo *owner; ///< Not owned.
    google::protobuf::FieldDescriptor::CppType cppType;
    bool isText; ///< As isStringField().
};

/** What an Any holds when it is of one certain type: no value otherwise. */
class CORVANEFRAMEWORK_EXPORT ProtobufAnyFieldInfo final : public DecodedFieldInfo
{
public:
    ProtobufAnyFieldInfo(const google::protobuf::Descriptor *content,
                         const FieldType &type,
                         const MessageInfo *owner,
                         std::unique_ptr<FieldInfoData> data);

    unsigned int getNumberOfValues(const Message *message) const override;

protected:
    FieldValue readValue(const Message *message, unsigned int index) const override;

private:
    const google::protobuf::Descriptor *content;
    const MessageInfo *owner; ///< Not owned.
};

/** An integer field as 64 bits (signed ones sign-extended); nothing for other fields, or none. */
std::optional<quint64> readProtobufInteger(const ProtobufRecord &record,
                                           const ProtobufField &field);
/**
 * A time field in microseconds: a number of units of \a unitUs, or a message with "seconds" and
 * "nanos". Nothing where it is absent or out of range.
 */
CORVANEFRAMEWORK_EXPORT std::optional<qint64>
readProtobufTimeUs(const ProtobufRecord &record, const ProtobufField &field, qint64 unitUs);

} // namespace corvane
