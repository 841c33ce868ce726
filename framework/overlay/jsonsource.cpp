#include "jsonsource.h"

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

constexpr qint64 byteOrderMarkLength = 3;

bool continuesCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

qint64 lengthOfCharacter(char firstByte)
{
    const auto byte = static_cast<unsigned char>(firstByte);
    return byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

} // namespace

const JsonNode *JsonNode::find(const QString &name) const
{
    const auto hasName = [&](const JsonNode &child) { return child.key == name; };
    const auto found = std::find_if(children.begin(), children.end(), hasName);
    return found == children.end() ? nullptr : &*found;
}

JsonSource::JsonSource(QString file, QByteArray bytes)
    : file(std::move(file))
    , bytes(std::move(bytes))
{
}

void JsonSource::addError(qint64 offset, const QString &message)
{
    if (isFull())
        return;
    LoadError error;
    error.file = file;
    error.message = message;
    if (offset >= 0) {
        const auto end = bytes.cbegin() + qMin(offset, qint64(bytes.size()));
        error.line = 1 + std::count(bytes.cbegin(), end, '\n');
        auto lineStart = end;
        while (lineStart != bytes.cbegin() && *(lineStart - 1) != '\n')
            --lineStart;
        if (lineStart == bytes.cbegin() && bytes.startsWith("\xEF\xBB\xBF"))
            lineStart = std::min(end, lineStart + byteOrderMarkLength);
        error.column = 1 + (end - lineStart) - std::count_if(lineStart, end, continuesCharacter);
    }
    errors.append(error);
}

void JsonSource::addErrorInText(const JsonNode &node, qsizetype index, const QString &message)
{
    addError(offsetInText(node, index), message);
}

qint64 JsonSource::offsetInText(const JsonNode &node, qsizetype index) const
{
    constexpr qint64 unicodeEscapeLength = 6;
    qint64 offset = node.offset + 1;
    while (index > 0 && offset < bytes.size()) {
        const char c = bytes.at(offset);
        if (c == '\\') {
            const bool unicode = offset + 1 < bytes.size() && bytes.at(offset + 1) == 'u';
            offset += unicode ? unicodeEscapeLength : 2;
            --index;
            continue;
        }
        const qint64 length = lengthOfCharacter(c);
        offset += length;
        index -= length == 4 ? 2 : 1;
    }
    return offset;
}

} // namespace corvane
