#include "fieldtype.h"

#include "messageinfo.h"

FieldType::FieldType(Code code, int sizeBits)
    : code(code)
    , sizeBits(sizeBits)
{
}

FieldType::FieldType(const MessageInfo *subMessageInfo)
    : code(SubMessage)
    , subMessageInfo(subMessageInfo)
{
}

QString FieldType::toShortString() const
{
    switch (code) {
    case SignedInteger:
        return QStringLiteral("int") + QString::number(sizeBits);
    case UnsignedInteger:
        return QStringLiteral("uint") + QString::number(sizeBits);
    case Character:
        return QStringLiteral("char");
    case UnsignedCharacter:
        return QStringLiteral("uchar");
    case Boolean:
        return QStringLiteral("bool");
    case SubMessage:
        return subMessageInfo->getName();
    case Float:
        return sizeBits == 64 ? QStringLiteral("double") : QStringLiteral("float");
    case Text:
        return QStringLiteral("text");
    case Bytes:
        return QStringLiteral("bytes");
    default:
        return {};
    }
}
