#pragma once

#include "corvaneframework_export.h"

#include <QString>
#include <QtGlobal>

class MessageInfo;

/**
 * The type of a field: a type code, a size and, for a sub-message, the type of that message.
 *
 * A small value, held inside the FieldInfo that it belongs to.
 */
class CORVANEFRAMEWORK_EXPORT FieldType
{
public:
    /** The numeric values of Character, UnsignedCharacter and SubMessage are relied upon. */
    enum Code : qint32 {
        Invalid = 0,
        SignedInteger = 1,
        UnsignedInteger = 2,
        Character = 3, ///< A repeated field of characters reads as one text.
        UnsignedCharacter = 4, ///< The same, declared unsigned.
        Boolean = 5,
        SubMessage = 6,
        Float = 7, ///< IEEE 754 binary32 or binary64, as the size says.
        Text = 8, ///< A whole text as one value.
        Bytes = 9 ///< Bytes without further meaning, as one value.
    };

    FieldType() = default;
    /** \a sizeBits: the size of one value on the wire; 0 where it varies. */
    FieldType(Code code, int sizeBits);
    explicit FieldType(const MessageInfo *subMessageInfo);

    qint32 getCode() const { return code; }

    int getSizeBits() const { return sizeBits; }

    /** The type of the embedded message; not null exactly when the code is SubMessage. */
    const MessageInfo *getSubMessageInfo() const { return subMessageInfo; }

    /** A short name such as "uint16", "float", "char", or the name of the sub-message's type. */
    QString toShortString() const;

private:
    qint32 code = Invalid;
    qint32 sizeBits = 0;
    const MessageInfo *subMessageInfo = nullptr; ///< Not owned.
};
