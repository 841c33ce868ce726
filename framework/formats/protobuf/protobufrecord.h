#pragma once

#include <QByteArrayView>
#include <QtGlobal>

namespace corvane {

class ProtobufLayout;
class ProtobufMessage;
class ProtobufRecord;

/** The bytes of a text, or just bytes, where they stand in what came. */
struct ProtobufText
{
    const char *data = nullptr;
    qsizetype size = 0;
};

/**
 * What a message has of one field.
 *
 * Numbers are 64 bits wide: signed ones sign-extended, those of floating point by their bits.
 */
struct ProtobufSlot
{
    quint32 count = 0; ///< Of its values; 0 or 1 for a single one.
    quint32 room = 0; ///< The elements that a list has room for, or the bytes of a single text.

    union {
        quint64 number = 0;
        const char *text;
        ProtobufRecord *record;
        quint64 *numbers;
        ProtobufText *texts;
        ProtobufRecord **records;
    };

    ProtobufText getText() const { return {text, room}; }
};

/**
 * A parsed message, or sub-message: what there is of each field of its layout. It lies in an arena,
 * its slots behind it.
 */
class ProtobufRecord
{
public:
    /** There must be room for the slots of \a layout behind. */
    explicit ProtobufRecord(const ProtobufLayout &layout)
        : layout(layout)
    {
    }

    const ProtobufLayout &getLayout() const { return layout; }

    /** \a place: as in ProtobufField. */
    ProtobufSlot &at(int place) { return reinterpret_cast<ProtobufSlot *>(this + 1)[place]; }

    const ProtobufSlot &at(int place) const
    {
        return reinterpret_cast<const ProtobufSlot *>(this + 1)[place];
    }

    /** The first field that no definition knows and that might be a message; 0 for none. */
    quint32 unknownNumber = 0;
    /** What was made of it for those who read messages, if they asked; in the same arena. */
    mutable const ProtobufMessage *message = nullptr;

private:
    const ProtobufLayout &layout;
};

static_assert(sizeof(ProtobufRecord) % alignof(ProtobufSlot) == 0);

} // namespace corvane
