#include "protobufmessage.h"

#include "fieldinfo.h"
#include "protobufparser.h"

#include <algorithm>

namespace corvane {

namespace {

/** A small message takes one block; a large one does not begin with many small ones. */
size_t firstBlockFor(qsizetype size)
{
    return std::clamp<size_t>(static_cast<size_t>(size) * 8, 1024, 65536);
}

} // namespace

ProtobufContent::ProtobufContent(std::shared_ptr<const ProtobufSchema> schema,
                                 const ProtobufLayout &layout,
                                 QByteArrayView bytes)
    : schema(std::move(schema))
    , arena(firstBlockFor(bytes.size()))
{
    if (static_cast<quint64>(bytes.size()) > maximumMemory) {
        damage = Damage::TooMuch;
        return;
    }
    const auto size = static_cast<size_t>(bytes.size());
    auto *copy = static_cast<char *>(arena.allocate(size));
    std::copy_n(bytes.data(), size, copy);
    this->bytes = QByteArrayView(copy, bytes.size());
    ProtobufParser parser(arena, maximumMemory);
    root = parser.parse(layout, this->bytes);
    if (root == nullptr)
        damage = parser.ranOut() ? Damage::TooMuch : Damage::NoMessage;
}

const ProtobufRecord *ProtobufContent::resolveAny(const ProtobufRecord &any)
{
    const auto known = resolved.constFind(&any);
    if (known != resolved.cend())
        return *known;

    const auto textOf
        = [&any](quint32 number) { return any.at(any.getLayout().find(number)->place).getText(); };
    const ProtobufText url = textOf(1);
    const ProtobufText content = textOf(2);
    const QString name = QString::fromUtf8(url.data, url.size);
    const auto *type = schema->findMessage(name.mid(name.lastIndexOf(QLatin1Char('/')) + 1));
    const ProtobufRecord *inner = nullptr;
    if (type != nullptr)
        inner = ProtobufParser(arena, maximumMemory)
                    .parse(schema->getLayout(type), QByteArrayView(content.data, content.size));
    resolved.insert(&any, inner);
    return inner;
}

const ProtobufMessage *ProtobufMessage::create(const MessageInfo *info,
                                               std::unique_ptr<ProtobufContent> content,
                                               const ProtobufRecord &record,
                                               qint64 timeUs,
                                               bool confidential)
{
    return new ProtobufMessage(info, std::move(content), record, timeUs, confidential);
}

ProtobufMessage::ProtobufMessage(const MessageInfo *info,
                                 std::unique_ptr<ProtobufContent> content,
                                 const ProtobufRecord &record,
                                 qint64 timeUs,
                                 bool confidential)
    : DecodedMessage(info, timeUs, 0, confidential)
    , record(record)
    , owned(std::move(content))
    , content(owned.get())
{
}

ProtobufMessage::ProtobufMessage(const FieldInfo *field,
                                 const ProtobufMessage *owner,
                                 const ProtobufRecord &record)
    : DecodedMessage(field->getType().getSubMessageInfo(), owner, field->isConfidential())
    , record(record)
    , content(owner->content)
{
}

QByteArrayView ProtobufMessage::getBytes() const
{
    return owned != nullptr ? owned->getBytes() : QByteArrayView();
}

void ProtobufMessage::makePart(const FieldInfo *field, const ProtobufRecord &part) const
{
    // It owns nothing outside of the arena and ends with that, without a destructor.
    void *place = content->getArena().allocate(sizeof(ProtobufMessage));
    part.message = new (place) ProtobufMessage(field, this, part);
}

} // namespace corvane
