// Expressions whose parts are names or "*".

#include "pathexpression.h"

#include "fieldinfo.h"
#include "records.h"

#include <QSet>

#include <algorithm>

namespace {

const QString everything = QStringLiteral("*");
constexpr PathExpression::Part allParts[]
    = {PathExpression::FormatPart, PathExpression::MessagePart, PathExpression::FieldPart};

} // namespace

const PathExpression::Parts PathExpression::AllParts = FormatPart | MessagePart | FieldPart;

class corvane::PathExpressionData
{
public:
    bool matches(int part, const QString &name) const
    {
        const QString &text = texts[part];
        return text == everything || text == name || (part == prefixPart && name.startsWith(text));
    }

    bool matches(const MessageInfo *type) const
    {
        return matches(0, type->getData()->format->getName()) && matches(1, type->getName());
    }

    std::array<QString, 3> texts = {everything, everything, everything};
    int prefixPart = -1; ///< The part that is still being typed, or -1.
};

PathExpression::PathExpression(QObject *parent)
    : QObject(parent)
    , d(new corvane::PathExpressionData)
{
}

PathExpression::~PathExpression() = default;

QString PathExpression::getString(Parts parts) const
{
    QStringList texts;
    for (int i = 0; i < 3; ++i) {
        if (parts.testFlag(allParts[i]))
            texts += d->texts[i];
    }
    return texts.join(QLatin1Char('.'));
}

void PathExpression::setString(QString text, Parts parts)
{
    setTexts(text, parts, false);
}

void PathExpression::setString(QString text)
{
    setTexts(text, AllParts, false);
}

void PathExpression::setStringPrefix(QString prefix, Parts parts)
{
    setTexts(prefix, parts, true);
}

void PathExpression::setTexts(const QString &text, Parts parts, bool prefix)
{
    const QStringList given = text.split(QLatin1Char('.'));
    qsizetype next = 0;
    d->prefixPart = -1;
    for (int i = 0; i < 3; ++i) {
        if (!parts.testFlag(allParts[i]))
            continue;
        d->texts[i] = next < given.size() ? given[next] : everything;
        if (prefix && next == given.size() - 1)
            d->prefixPart = i;
        ++next;
    }
    Q_EMIT partsChanged(parts);
    announce();
}

void PathExpression::announce()
{
    Q_EMIT expressionChanged(getString(AllParts));
    Q_EMIT matchesMayHaveChanged();
}

void PathExpression::completeEditing()
{
    d->prefixPart = -1;
    Q_EMIT matchesMayHaveChanged();
}

void PathExpression::setWildCard(Parts parts)
{
    setTexts(QStringLiteral("*.*.*"), parts, false);
}

bool PathExpression::isWildCard(Parts parts) const
{
    const QStringList texts = getString(parts).split(QLatin1Char('.'));
    return std::all_of(texts.begin(), texts.end(),
                       [](const auto &text) { return text == everything; });
}

QStringList PathExpression::getMatchingExpressionsStringList(Parts parts) const
{
    QSet<QString> texts;
    PathExpression match;
    if (parts.testFlag(FieldPart)) {
        for (const FieldInfo *field : getMatchingFieldInfos()) {
            match.setupToMatchUnique(field);
            texts.insert(match.getString(parts));
        }
    } else {
        for (const MessageInfo *type : getMatchingMessageInfos()) {
            match.setupToMatchUnique(type);
            texts.insert(match.getString(parts));
        }
    }
    QStringList result(texts.begin(), texts.end());
    result.sort();
    return result;
}

QList<const MessageInfo *> PathExpression::getMatchingMessageInfos() const
{
    QList<const MessageInfo *> result;
    for (const MessageInfo *type : std::as_const(corvane::knownTypes())) {
        if (d->matches(type))
            result += type;
    }
    return result;
}

QList<const FieldInfo *> PathExpression::getMatchingFieldInfos() const
{
    QList<const FieldInfo *> result;
    for (const MessageInfo *type : getMatchingMessageInfos()) {
        for (const FieldInfo *field : type->getFieldInfos()) {
            if (d->matches(2, field->getName()))
                result += field;
        }
    }
    return result;
}

void PathExpression::setupToMatchUnique(const MessageInfo *messageInfo)
{
    const auto *type = messageInfo->getData();
    setString(type->format->getName() + QLatin1Char('.') + type->name);
}

void PathExpression::setupToMatchUnique(const FieldInfo *fieldInfo)
{
    setupToMatchUnique(fieldInfo->getData()->message);
    setString(fieldInfo->getName(), FieldPart);
}

void PathExpression::setConsiderSubMessages(bool) {}

#include "moc_pathexpression.cpp"
