#pragma once

#include "protobufrecord.h"

#include <utility>
#include <vector>

namespace corvane {

class ProtobufArena;
class ProtobufLayout;
struct ProtobufField;

/**
 * Reads the bytes of messages into records.
 *
 * What libprotobuf takes for a message is one here, and what it refuses is none: the same limits of
 * depth, lengths and texts hold. Other than there, the number of an enumeration that the
 * definitions do not know stays where it was sent, also where the language would drop it.
 */
class ProtobufParser
{
public:
    /** Records go to \a arena, which takes no more than \a maximumMemory bytes for them. */
    ProtobufParser(ProtobufArena &arena, quint64 maximumMemory);

    /** Null where \a bytes, which must outlive the record, are no message of that type. */
    const ProtobufRecord *parse(const ProtobufLayout &layout, QByteArrayView bytes);

    /** Whether a message was refused for its memory. */
    bool ranOut() const { return outOfMemory; }

private:
    /** The bytes that are still to be read, of a message or of something in it. */
    struct Rest
    {
        const uchar *at;
        const uchar *end;
    };

    static bool readVarint(Rest &rest, quint64 &value);
    static bool readTag(Rest &rest, quint32 &tag);
    static bool readNumber(const ProtobufField &field, Rest &rest, quint64 &number);
    /** The next \a size bytes. */
    static bool take(Rest &rest, quint64 size, Rest &taken);
    /** The next bytes, whose length stands before them. */
    static bool takeContent(Rest &rest, Rest &content);

    /** Fields up to the end, or up to that of the group of the number \a group where it is not 0.
     */
    bool readFields(Rest &rest, ProtobufRecord &record, int depth, quint32 group);
    bool readValue(const ProtobufField &field, Rest &rest, ProtobufRecord &record, int depth);
    bool readText(const ProtobufField &field, Rest &rest, ProtobufRecord &record);
    bool readPacked(const ProtobufField &field, Rest &rest, ProtobufSlot &slot);
    bool readMessage(const ProtobufField &field, Rest &rest, ProtobufRecord &record, int depth);
    /** What follows the tag of an item of a message set. */
    bool readSetItem(Rest &rest, ProtobufRecord &record, int depth);
    bool skip(quint32 tag, Rest &rest, int depth);

    ProtobufRecord *addRecord(const ProtobufField &field, ProtobufSlot &slot);
    ProtobufRecord *makeRecord(const ProtobufLayout &layout);
    template <typename Element>
    bool makeRoom(ProtobufSlot &slot, Element *ProtobufSlot::*list, quint64 count);
    template <typename Element>
    bool append(ProtobufSlot &slot, Element *ProtobufSlot::*list, Element element);
    void *allocate(quint64 size);

    ProtobufArena &arena;
    quint64 maximumMemory;
    bool outOfMemory = false;
    std::vector<std::pair<ProtobufSlot *, const ProtobufLayout *>> maps; ///< To be sorted.
};

} // namespace corvane
