#include "pathexpression.h"

#include "catalogue.h"
#include "descriptions.h"
#include "formatinfo.h"
#include "messageinfo.h"

#include <array>

namespace corvane {

namespace {

constexpr std::array allParts
    = {PathExpression::FormatPart, PathExpression::MessagePart, PathExpression::FieldPart};

/** Quotes a name that would not be read back as itself. */
QString quotedName(const QString &name)
{
    const bool plain = !name.isEmpty() && !name.contains(QLatin1Char('.'))
                       && !name.contains(QLatin1Char('*')) && !name.contains(QLatin1Char('"'))
                       && !name.contains(QLatin1Char('\\'));
    if (plain)
        return name;
    QString escaped = name;
    escaped.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    escaped.replace(QLatin1Char('"'), QStringLiteral("\\\""));
    return QLatin1Char('"') + escaped + QLatin1Char('"');
}

/** Cuts \a text at its dots outside quotes, the last piece taking all that is left. */
QStringList split(const QString &text, qsizetype maximumPieces)
{
    QStringList pieces;
    qsizetype start = 0;
    bool quoted = false;
    for (qsizetype i = 0; i < text.size() && pieces.size() + 1 < maximumPieces; ++i) {
        const QChar c = text.at(i);
        if (quoted && c == QLatin1Char('\\'))
            ++i;
        if (c == QLatin1Char('"'))
            quoted = !quoted;
        if (quoted || c != QLatin1Char('.'))
            continue;
        pieces.append(text.mid(start, i - start));
        start = i + 1;
    }
    pieces.append(text.mid(start));
    return pieces;
}

QString fieldText(const FieldInfo *field)
{
    QString text = quotedName(field->getData()->name);
    while ((field = field->getParentFieldInfo()) != nullptr)
        text = quotedName(field->getData()->name) + QLatin1Char('.') + text;
    return text;
}

} // namespace

/** The texts of the parts, and which of them is still being typed. */
class PathExpressionData
{
public:
    bool matches(PathExpression::Part part, const QString &name) const
    {
        const QString &text = texts.at(indexOf(part));
        if (text == QLatin1String("*"))
            return true;
        return part == prefixPart ? name.startsWith(text) : name == text;
    }

    static size_t indexOf(PathExpression::Part part)
    {
        return part == PathExpression::FormatPart ? 0 : part == PathExpression::MessagePart ? 1 : 2;
    }

    template <typename Visitor>
    void visitMessages(Visitor visit) const
    {
        for (const FormatInfo *format : Catalogue::getInstance()->getFormats()) {
            if (!matches(PathExpression::FormatPart, quotedName(format->getData()->name)))
                continue;
            for (const auto &message : format->getData()->messages) {
                if (!message->isMain() && !considerSubMessages)
                    continue;
                if (matches(PathExpression::MessagePart, quotedName(message->getData()->name)))
                    visit(format, message.get());
            }
        }
    }

    template <typename Visitor>
    void visitFields(Visitor visit) const
    {
        visitMessages([&](const FormatInfo *format, const MessageInfo *message) {
            for (const FieldInfo *field : message->getData()->fields)
                if (matches(PathExpression::FieldPart, fieldText(field)))
                    visit(format, message, field);
        });
    }

    std::array<QString, 3> texts{QStringLiteral("*"), QStringLiteral("*"), QStringLiteral("*")};
    PathExpression::Parts prefixPart;
    bool considerSubMessages = false;
};

} // namespace corvane

using corvane::PathExpressionData;

const PathExpression::Parts PathExpression::AllParts
    = PathExpression::FormatPart | PathExpression::MessagePart | PathExpression::FieldPart;

PathExpression::PathExpression(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<PathExpressionData>())
{
    connect(corvane::Catalogue::getInstance(), &corvane::Catalogue::changed, this,
            &PathExpression::matchesMayHaveChanged);
}

PathExpression::~PathExpression() = default;

QString PathExpression::getString(PathExpression::Parts parts) const
{
    QStringList texts;
    for (const Part part : corvane::allParts)
        if (parts.testFlag(part))
            texts.append(d->texts.at(PathExpressionData::indexOf(part)));
    return texts.join(QLatin1Char('.'));
}

void PathExpression::setTexts(const QString &text, Parts parts, const QString &missing, bool prefix)
{
    QList<Part> chosen;
    for (const Part part : corvane::allParts)
        if (parts.testFlag(part))
            chosen.append(part);
    if (chosen.isEmpty())
        return;

    const QStringList pieces = corvane::split(text, chosen.size());
    auto texts = d->texts;
    for (qsizetype i = 0; i < chosen.size(); ++i)
        texts.at(PathExpressionData::indexOf(chosen.at(i))) = pieces.value(i, missing);
    apply(texts, prefix ? Parts(chosen.at(pieces.size() - 1)) : Parts());
}

void PathExpression::apply(const std::array<QString, 3> &texts, Parts prefixPart)
{
    Parts changed;
    for (const Part part : corvane::allParts) {
        const size_t index = PathExpressionData::indexOf(part);
        if (texts.at(index) != d->texts.at(index))
            changed |= part;
    }
    const bool prefixChanged = prefixPart != d->prefixPart;
    d->texts = texts;
    d->prefixPart = prefixPart;
    if (changed) {
        Q_EMIT partsChanged(changed);
        Q_EMIT expressionChanged(getString(AllParts));
    }
    if (changed || prefixChanged)
        Q_EMIT matchesMayHaveChanged();
}

void PathExpression::setString(QString text, PathExpression::Parts parts)
{
    setTexts(text, parts, QString(), false);
}

void PathExpression::setString(QString text)
{
    setTexts(text, AllParts, QStringLiteral("*"), false);
}

void PathExpression::setStringPrefix(QString prefix, PathExpression::Parts parts)
{
    setTexts(prefix, parts, QStringLiteral("*"), true);
}

void PathExpression::completeEditing()
{
    apply(d->texts, {});
}

void PathExpression::setWildCard(PathExpression::Parts parts)
{
    auto texts = d->texts;
    for (const Part part : corvane::allParts)
        if (parts.testFlag(part))
            texts.at(PathExpressionData::indexOf(part)) = QStringLiteral("*");
    apply(texts, {});
}

bool PathExpression::isWildCard(PathExpression::Parts parts) const
{
    for (const Part part : corvane::allParts)
        if (parts.testFlag(part)
            && d->texts.at(PathExpressionData::indexOf(part)) != QLatin1String("*"))
            return false;
    return true;
}

QStringList PathExpression::getMatchingExpressionsStringList(PathExpression::Parts parts) const
{
    QStringList result;
    const auto add
        = [&](const FormatInfo *format, const MessageInfo *message, const FieldInfo *field) {
              QStringList texts;
              if (parts.testFlag(FormatPart))
                  texts += corvane::quotedName(format->getData()->name);
              if (parts.testFlag(MessagePart))
                  texts += corvane::quotedName(message->getData()->name);
              if (field != nullptr)
                  texts += corvane::fieldText(field);
              result.append(texts.join(QLatin1Char('.')));
          };
    if (parts.testFlag(FieldPart))
        d->visitFields(add);
    else
        d->visitMessages([&](const FormatInfo *format, const MessageInfo *message) {
            add(format, message, nullptr);
        });
    result.removeDuplicates();
    return result;
}

QList<const MessageInfo *> PathExpression::getMatchingMessageInfos() const
{
    QList<const MessageInfo *> result;
    d->visitMessages(
        [&](const FormatInfo *, const MessageInfo *message) { result.append(message); });
    return result;
}

QList<const FieldInfo *> PathExpression::getMatchingFieldInfos() const
{
    QList<const FieldInfo *> result;
    d->visitFields([&](const FormatInfo *, const MessageInfo *, const FieldInfo *field) {
        if (!result.contains(field))
            result.append(field);
    });
    return result;
}

void PathExpression::setupToMatchUnique(const MessageInfo *messageInfo)
{
    if (messageInfo == nullptr)
        return apply({}, {});
    const auto &data = *messageInfo->getData();
    apply({corvane::quotedName(data.format->getData()->name), corvane::quotedName(data.name),
           QStringLiteral("*")},
          {});
}

void PathExpression::setupToMatchUnique(const FieldInfo *fieldInfo)
{
    if (fieldInfo == nullptr)
        return apply({}, {});
    const auto &data = *fieldInfo->getMessageInfos().constFirst()->getData();
    apply({corvane::quotedName(data.format->getData()->name), corvane::quotedName(data.name),
           corvane::fieldText(fieldInfo)},
          {});
}

void PathExpression::setConsiderSubMessages(bool consider)
{
    if (d->considerSubMessages == consider)
        return;
    d->considerSubMessages = consider;
    Q_EMIT matchesMayHaveChanged();
}
