#pragma once

#include "literalreader.h"

#include <memory>
#include <vector>

class FieldInfo;
class FormatInfo;
class MessageInfo;

namespace corvane {
class Enumeration;
struct FieldInfoData;
} // namespace corvane

namespace corvane::test {

/** Reads the literal of a format's message types; TestFormat says how they are written. */
class TypeParser
{
public:
    TypeParser(FormatInfo *format, const QString &text);

    void parse();

private:
    struct Level
    {
        int indent;
        const FieldInfo *field; ///< Not owned.
    };

    void declareTypes();
    void parseType(MessageInfo *type);
    void parseFieldLine(MessageInfo *type);
    const FieldInfo *parseField(MessageInfo *type, const FieldInfo *parent);
    const FieldInfo *
    parseBits(MessageInfo *type, const FieldInfo *parent, std::unique_ptr<FieldInfoData> data);
    const FieldInfo *parseOrdinary(MessageInfo *type, std::unique_ptr<FieldInfoData> data);
    const FieldInfo *share(MessageInfo *type, const QString &fieldName);
    void parseAttributes(FieldInfoData &data);
    bool parseFlag(FieldInfoData &data);
    bool parseRole(FieldInfoData &data);
    bool parseTextAttribute(FieldInfoData &data);
    std::shared_ptr<const Enumeration> parseSymbols(const QString &fieldName, bool isBitMask);
    QString takeText();
    int takeNumber(int minimum, int maximum);

    FormatInfo *format; ///< Not owned.
    QString text;
    LiteralReader reader;
    int typeIndent;
    std::vector<Level> levels; ///< The fields that the next line may be a part of.
};

} // namespace corvane::test
