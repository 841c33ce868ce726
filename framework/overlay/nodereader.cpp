#include "nodereader.h"

#include "names.h"
#include "overlaykeys.h"

#include <QRegularExpression>

#include <array>

namespace corvane {

namespace {

constexpr qsizetype maximumTextLength = 10'000;
constexpr qsizetype maximumNameLength = 100;

QString nameOf(JsonNode::Kind kind)
{
    constexpr std::array kindNames
        = {"null", "true or false", "a whole number", "a number", "a text", "a list", "an object"};
    return QLatin1String(kindNames.at(kind));
}

bool isNewName(const QString &name)
{
    static const QRegularExpression pattern(QStringLiteral("\\A[A-Za-z_][A-Za-z0-9_]*\\z"));
    return name.size() <= maximumNameLength && pattern.match(name).hasMatch();
}

} // namespace

void NodeReader::addError(const JsonNode &node, const QString &message)
{
    source.addError(node.offset, message);
}

void NodeReader::addErrorAtKey(const JsonNode &node, const QString &message)
{
    source.addError(node.keyOffset, message);
}

bool NodeReader::isOfKind(const JsonNode &node, JsonNode::Kind kind)
{
    if (node.kind == kind)
        return true;
    const QString where = node.key.isEmpty() ? QString() : quoted(node.key) + QStringLiteral(": ");
    addError(node,
             where + QStringLiteral("expected %1, found %2").arg(nameOf(kind), nameOf(node.kind)));
    return false;
}

bool NodeReader::isObject(const JsonNode &node, const QString &kind)
{
    if (!isOfKind(node, JsonNode::Object))
        return false;
    const QStringList keys = overlayKeys().value(kind);
    bool good = true;
    for (const JsonNode &member : node.children) {
        if (keys.contains(member.key) || source.isFull())
            continue;
        addErrorAtKey(member, QStringLiteral("nothing is called %1 here%2")
                                  .arg(quoted(member.key), suggestion(member.key, keys)));
        good = false;
    }
    return good;
}

const JsonNode *NodeReader::find(const JsonNode &object, const char *key, JsonNode::Kind kind)
{
    const JsonNode *member = object.find(QLatin1String(key));
    return member != nullptr && isOfKind(*member, kind) ? member : nullptr;
}

const JsonNode *NodeReader::require(const JsonNode &object, const char *key, JsonNode::Kind kind)
{
    if (object.find(QLatin1String(key)) == nullptr)
        addError(
            object,
            QStringLiteral("\"%1\" is missing; expected %2").arg(QLatin1String(key), nameOf(kind)));
    return find(object, key, kind);
}

std::optional<QString> NodeReader::readText(const JsonNode &object, const char *key)
{
    const JsonNode *member = find(object, key, JsonNode::Text);
    if (member == nullptr)
        return std::nullopt;
    if (member->text.size() > maximumTextLength) {
        addError(*member, QStringLiteral("\"%1\": longer than %2 characters")
                              .arg(QLatin1String(key))
                              .arg(maximumTextLength));
        return std::nullopt;
    }
    return member->text;
}

std::optional<bool> NodeReader::readBoolean(const JsonNode &object, const char *key)
{
    const JsonNode *member = find(object, key, JsonNode::Boolean);
    return member != nullptr ? std::optional(member->integer != 0) : std::nullopt;
}

std::optional<int>
NodeReader::readInteger(const JsonNode &object, const char *key, int least, int most)
{
    const JsonNode *member = find(object, key, JsonNode::Integer);
    if (member == nullptr)
        return std::nullopt;
    if (member->integer >= least && member->integer <= most)
        return static_cast<int>(member->integer);
    addError(*member, QStringLiteral("\"%1\": expected %2 to %3, found %4")
                          .arg(QLatin1String(key))
                          .arg(least)
                          .arg(most)
                          .arg(member->integer));
    return std::nullopt;
}

std::optional<qsizetype>
NodeReader::readChoice(const JsonNode &object, const char *key, const QStringList &choices)
{
    const JsonNode *member = find(object, key, JsonNode::Text);
    if (member == nullptr)
        return std::nullopt;
    const qsizetype index = choices.indexOf(member->text);
    if (index >= 0)
        return index;
    addError(*member,
             QStringLiteral("there is no %1 %2%3")
                 .arg(QLatin1String(key), quoted(member->text), suggestion(member->text, choices)));
    return std::nullopt;
}

std::optional<QString> NodeReader::readNewName(const JsonNode &object)
{
    const JsonNode *member = require(object, "name", JsonNode::Text);
    if (member == nullptr)
        return std::nullopt;
    if (isNewName(member->text))
        return member->text;
    addError(
        *member,
        QStringLiteral("a new field cannot be called %1; use letters (A to Z, a to z), digits and "
                       "\"_\", no digit first, at most %2 of them (\"displayName\" "
                       "may be any text)")
            .arg(quoted(member->text), QString::number(maximumNameLength)));
    return std::nullopt;
}

} // namespace corvane
