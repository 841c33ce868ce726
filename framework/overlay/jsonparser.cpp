#include "jsonparser.h"

#include "names.h"

#include <QSet>

#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <limits>
#include <utility>

namespace corvane {

namespace {

constexpr size_t maximumDepth = 64;
constexpr int maximumNodes = 200'000;

/** Takes the parser's events and builds the tree; false stops the parser. */
class TreeBuilder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, TreeBuilder>
{
public:
    TreeBuilder(JsonSource &source, const rapidjson::MemoryStream &stream)
        : source(source)
        , stream(stream)
        , end(static_cast<qint64>(stream.Tell()))
    {
    }

    bool Null() { return addNode(JsonNode::Null) != nullptr; }

    bool Bool(bool value) { return addInteger(JsonNode::Boolean, value ? 1 : 0); }

    bool Int(int value) { return addInteger(JsonNode::Integer, value); }

    bool Uint(unsigned value) { return addInteger(JsonNode::Integer, value); }

    bool Int64(int64_t value) { return addInteger(JsonNode::Integer, value); }

    bool Uint64(uint64_t value)
    {
        if (value > static_cast<uint64_t>(std::numeric_limits<qint64>::max()))
            return addNode(JsonNode::Number) != nullptr;
        return addInteger(JsonNode::Integer, static_cast<qint64>(value));
    }

    bool Double(double) { return addNode(JsonNode::Number) != nullptr; }

    bool String(const char *characters, rapidjson::SizeType length, bool)
    {
        JsonNode *node = addNode(JsonNode::Text);
        if (node != nullptr)
            node->text = QString::fromUtf8(characters, static_cast<qsizetype>(length));
        return node != nullptr;
    }

    bool Key(const char *characters, rapidjson::SizeType length, bool)
    {
        nextKeyOffset = takeTokenStart();
        nextKey = QString::fromUtf8(characters, static_cast<qsizetype>(length));
        if (openKeys.back().contains(nextKey))
            source.addError(nextKeyOffset,
                            QStringLiteral("%1 is there twice; give it once").arg(quoted(nextKey)));
        openKeys.back().insert(nextKey);
        return !source.isFull();
    }

    bool StartObject() { return open(JsonNode::Object); }

    bool EndObject(rapidjson::SizeType) { return close(); }

    bool StartArray() { return open(JsonNode::Array); }

    bool EndArray(rapidjson::SizeType) { return close(); }

    JsonNode takeRoot() { return std::move(root); }

private:
    // Between the end of the token before and the start of this one there are only separators.
    // The parser stands behind a value or a name, but in front of a bracket.
    qint64 takeTokenStart(qint64 lengthAhead = 0)
    {
        const QByteArray &bytes = source.getBytes();
        qint64 start = end;
        while (start < bytes.size() && QByteArrayView(" \t\r\n:,").contains(bytes.at(start)))
            ++start;
        end = static_cast<qint64>(stream.Tell()) + lengthAhead;
        return start;
    }

    JsonNode *addNode(JsonNode::Kind kind, qint64 lengthAhead = 0)
    {
        const qint64 start = takeTokenStart(lengthAhead);
        if (++nodes > maximumNodes) {
            source.addError(start,
                            QStringLiteral("more than %1 values in one file").arg(maximumNodes));
            return nullptr;
        }
        JsonNode *node = openNodes.empty() ? &root : &openNodes.back()->children.emplace_back();
        node->kind = kind;
        node->offset = start;
        node->key = std::exchange(nextKey, {});
        node->keyOffset = nextKeyOffset;
        return node;
    }

    bool addInteger(JsonNode::Kind kind, qint64 value)
    {
        JsonNode *node = addNode(kind);
        if (node != nullptr)
            node->integer = value;
        return node != nullptr;
    }

    bool open(JsonNode::Kind kind)
    {
        JsonNode *node = addNode(kind, 1);
        if (node == nullptr)
            return false;
        if (openNodes.size() >= maximumDepth) {
            source.addError(node->offset,
                            QStringLiteral("nested more than %1 levels deep").arg(maximumDepth));
            return false;
        }
        // Stays valid: a container gets no further children while the last one is open.
        openNodes.push_back(node);
        openKeys.emplace_back();
        return true;
    }

    bool close()
    {
        takeTokenStart(1);
        openNodes.pop_back();
        openKeys.pop_back();
        return true;
    }

    JsonSource &source;
    const rapidjson::MemoryStream &stream;
    qint64 end; ///< Of the token before.
    JsonNode root;
    QString nextKey;
    qint64 nextKeyOffset = 0;
    std::vector<JsonNode *> openNodes; ///< Not owned.
    std::vector<QSet<QString>> openKeys;
    int nodes = 0;
};

QString reasonOf(rapidjson::ParseErrorCode code, const QByteArray &bytes, size_t offset)
{
    constexpr char firstPrintable = 0x20;
    const char byte = bytes.size() > static_cast<qsizetype>(offset)
                          ? bytes.at(static_cast<qsizetype>(offset))
                          : firstPrintable;
    const bool isControl = byte >= 0 && byte < firstPrintable;
    if (code == rapidjson::kParseErrorDocumentEmpty)
        return QStringLiteral("there is nothing in it");
    // The parser has one code for this and for escapes that do not exist.
    if (code == rapidjson::kParseErrorStringEscapeInvalid && isControl)
        return QStringLiteral("a text cannot go on in the next line, nor hold control characters; "
                              "write them as \\n, \\t or \\u0001");
    return QString::fromLatin1(rapidjson::GetParseError_En(code));
}

void addSyntaxError(JsonSource &source, rapidjson::ParseErrorCode code, size_t offset)
{
    source.addError(static_cast<qint64>(offset),
                    QStringLiteral("not valid JSON: ") + reasonOf(code, source.getBytes(), offset));
}

} // namespace

std::optional<JsonNode> parseJson(JsonSource &source)
{
    const QByteArray &bytes = source.getBytes();
    rapidjson::MemoryStream stream(bytes.constData(), static_cast<size_t>(bytes.size()));
    if (bytes.startsWith("\xEF\xBB\xBF"))
        stream.src_ += 3;

    TreeBuilder builder(source, stream);
    rapidjson::Reader reader;
    // Iterative: the depth of the text must not become the depth of the stack.
    constexpr unsigned flags
        = rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag;
    reader.Parse<flags>(stream, builder);
    if (reader.HasParseError() && reader.GetParseErrorCode() != rapidjson::kParseErrorTermination)
        addSyntaxError(source, reader.GetParseErrorCode(), reader.GetErrorOffset());
    // The parser takes a zero byte for the end of the text.
    const bool complete = stream.Tell() == static_cast<size_t>(bytes.size());
    if (!reader.HasParseError() && !complete)
        addSyntaxError(source, rapidjson::kParseErrorDocumentRootNotSingular, stream.Tell());
    if (!source.getErrors().isEmpty())
        return std::nullopt;
    return builder.takeRoot();
}

} // namespace corvane
