#pragma once

#include "jsonsource.h"

#include <QStringList>

#include <optional>

namespace corvane {

/**
 * Reads members of JSON objects as what they have to be. Whatever is otherwise is an error in the
 * source; what is missing, or wrong, reads as nothing.
 */
class NodeReader
{
public:
    explicit NodeReader(JsonSource &source)
        : source(source)
    {
    }

    JsonSource &getSource() { return source; }

    void addError(const JsonNode &node, const QString &message);
    /** An error at the name of a member, not at its value. */
    void addErrorAtKey(const JsonNode &node, const QString &message);

    bool isOfKind(const JsonNode &node, JsonNode::Kind kind);
    /** Whether \a node is an object with members of overlayKeys()[kind] alone. */
    bool isObject(const JsonNode &node, const QString &kind);

    /** The member, where it is there and of that kind; else null. */
    const JsonNode *find(const JsonNode &object, const char *key, JsonNode::Kind kind);
    /** The same; it is an error when it is not there. */
    const JsonNode *require(const JsonNode &object, const char *key, JsonNode::Kind kind);
    std::optional<QString> readText(const JsonNode &object, const char *key);
    std::optional<bool> readBoolean(const JsonNode &object, const char *key);
    std::optional<int> readInteger(const JsonNode &object, const char *key, int least, int most);
    /** The index in \a choices of the member's text. */
    std::optional<qsizetype>
    readChoice(const JsonNode &object, const char *key, const QStringList &choices);
    /** The member "name", where it can be the name of a new field. */
    std::optional<QString> readNewName(const JsonNode &object);

private:
    JsonSource &source;
};

} // namespace corvane
