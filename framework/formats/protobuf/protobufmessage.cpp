#include "protobufmessage.h"

#include "protobufmemory.h"

#include <google/protobuf/stubs/logging.h>

#include <algorithm>
#include <cstring>

namespace corvane {

using google::protobuf::Arena;
using google::protobuf::FieldDescriptor;

namespace {

google::protobuf::ArenaOptions optionsFor(qsizetype size)
{
    google::protobuf::ArenaOptions options;
    // A small message takes one block; a large one does not begin with many small blocks.
    options.start_block_size = qBound<size_t>(1024, static_cast<size_t>(size) * 6, 64 * 1024);
    options.max_block_size = 64 * 1024;
    return options;
}

// However it expands, a message of this size does no harm, and most are smaller.
constexpr qsizetype alwaysFits = 64 * 1024;

/** Whether the key of map entry \a left comes before that of \a right. */
bool isBefore(const google::protobuf::Message &left,
              const google::protobuf::Message &right,
              const FieldDescriptor *key)
{
    const auto *reflection = left.GetReflection();
    switch (key->cpp_type()) {
    case FieldDescriptor::CPPTYPE_INT32:
        return reflection->GetInt32(left, key) < reflection->GetInt32(right, key);
    case FieldDescriptor::CPPTYPE_INT64:
        return reflection->GetInt64(left, key) < reflection->GetInt64(right, key);
    case FieldDescriptor::CPPTYPE_UINT32:
        return reflection->GetUInt32(left, key) < reflection->GetUInt32(right, key);
    case FieldDescriptor::CPPTYPE_UINT64:
        return reflection->GetUInt64(left, key) < reflection->GetUInt64(right, key);
    case FieldDescriptor::CPPTYPE_BOOL:
        return reflection->GetBool(left, key) < reflection->GetBool(right, key);
    default: {
        std::string leftScratch;
        std::string rightScratch;
        return reflection->GetStringReference(left, key, &leftScratch)
               < reflection->GetStringReference(right, key, &rightScratch);
    }
    }
}

} // namespace

ProtobufContent::ProtobufContent(std::shared_ptr<const ProtobufSchema> schema, QByteArrayView bytes)
    : schema(std::move(schema))
    , arena(optionsFor(bytes.size()))
{
    char *copy = Arena::CreateArray<char>(&arena, static_cast<size_t>(bytes.size()));
    std::memcpy(copy, bytes.data(), static_cast<size_t>(bytes.size()));
    this->bytes = QByteArrayView(copy, bytes.size());
}

bool ProtobufContent::isTooMuch(const google::protobuf::Descriptor *root, QByteArrayView bytes)
{
    return bytes.size() > alwaysFits && !fitsIntoMemory(bytes, root, maximumMemory);
}

std::unique_ptr<ProtobufContent>
ProtobufContent::parse(std::shared_ptr<const ProtobufSchema> schema,
                       const google::protobuf::Descriptor *root,
                       QByteArrayView bytes)
{
    if (isTooMuch(root, bytes))
        return nullptr;
    std::unique_ptr<ProtobufContent> content(new ProtobufContent(std::move(schema), bytes));
    google::protobuf::Message *message
        = content->schema->getPrototype(root)->New(content->getArena());
    content->root = message;
    // libprotobuf writes to the standard error output what is wrong with a text.
    const google::protobuf::LogSilencer silencer;
    if (!message->ParsePartialFromArray(content->bytes.data(),
                                        static_cast<int>(content->bytes.size())))
        return nullptr;
    return content;
}

const ProtobufMessage *ProtobufMessage::create(const MessageInfo *info,
                                               std::unique_ptr<ProtobufContent> content,
                                               const google::protobuf::Message &message,
                                               qint64 timeUs,
                                               bool confidential)
{
    return new ProtobufMessage(info, std::move(content), message, timeUs, confidential);
}

ProtobufMessage::ProtobufMessage(const MessageInfo *info,
                                 std::unique_ptr<ProtobufContent> content,
                                 const google::protobuf::Message &message,
                                 qint64 timeUs,
                                 bool confidential)
    : DecodedMessage(info, timeUs, 0, confidential)
    , message(message)
    , reflection(*message.GetReflection())
    , owned(std::move(content))
    , content(owned.get())
{
}

ProtobufMessage::ProtobufMessage(const MessageInfo *info,
                                 const ProtobufMessage *owner,
                                 const google::protobuf::Message &message,
                                 bool confidential)
    : DecodedMessage(info, owner, confidential)
    , message(message)
    , reflection(*message.GetReflection())
    , content(owner->content)
{
}

QByteArrayView ProtobufMessage::getBytes() const
{
    return owned != nullptr ? owned->getBytes() : QByteArrayView();
}

const ProtobufMessage::Parts &ProtobufMessage::findParts(const FieldInfo *field,
                                                         unsigned int count) const
{
    for (Parts *known = parts; known != nullptr; known = known->next)
        if (known->field == field)
            return *known;
    // One block for all: most fields have one sub-message.
    const size_t size
        = sizeof(Parts) + count * (sizeof(ProtobufMessage) + sizeof(ProtobufMessage *));
    char *block = Arena::CreateArray<char>(content->getArena(), size);
    auto *places = reinterpret_cast<ProtobufMessage *>(block + sizeof(Parts));
    auto **messages = reinterpret_cast<const ProtobufMessage **>(places + count);
    std::fill_n(messages, count, nullptr);
    parts = new (block) Parts{field, messages, places, parts};
    return *parts;
}

void ProtobufMessage::makePart(const Parts &parts,
                               unsigned int index,
                               const google::protobuf::Message &part) const
{
    // It owns nothing outside of the arena and ends with that, without a destructor.
    const FieldInfo *field = parts.field;
    parts.messages[index] = new (parts.places + index)
        ProtobufMessage(field->getType().getSubMessageInfo(), this, part, field->isConfidential());
}

const google::protobuf::Message &ProtobufMessage::getMapEntry(const FieldDescriptor *map,
                                                              int index) const
{
    using Key = ProtobufContent::Key;
    std::vector<Key> &entries = content->getMapEntries(&message, map);
    if (entries.empty()) {
        for (int i = 0; i < reflection.FieldSize(message, map); ++i)
            entries.push_back(&reflection.GetRepeatedMessage(message, map, i));
        const FieldDescriptor *key = map->message_type()->map_key();
        std::stable_sort(entries.begin(), entries.end(),
                         [key](Key left, Key right) { return isBefore(*left, *right, key); });
    }
    return *entries[static_cast<size_t>(index)];
}

const google::protobuf::Message *
ProtobufMessage::resolveAny(const google::protobuf::Message &any) const
{
    auto &resolved = content->getResolved();
    const auto known = resolved.constFind(&any);
    if (known != resolved.cend())
        return *known;

    const auto *reflection = any.GetReflection();
    const auto *descriptor = any.GetDescriptor();
    const std::string url = reflection->GetString(any, descriptor->FindFieldByNumber(1));
    const std::string bytes = reflection->GetString(any, descriptor->FindFieldByNumber(2));
    const ProtobufSchema &schema = content->getSchema();
    const auto *type = schema.findMessage(QString::fromStdString(url.substr(url.rfind('/') + 1)));
    google::protobuf::Message *inner = nullptr;
    if (type != nullptr && !ProtobufContent::isTooMuch(type, QByteArrayView(bytes))) {
        const google::protobuf::LogSilencer silencer;
        inner = schema.getPrototype(type)->New(content->getArena());
        if (!inner->ParsePartialFromString(bytes))
            inner = nullptr;
    }
    resolved.insert(&any, inner);
    return inner;
}

} // namespace corvane
