#include "pathexpression.h"

#include "catalogue.h"
#include "descriptions.h"
#include "formatinfo.h"
#include "messageinfo.h"
#include "pathpattern.h"

#include <QPointer>
#include <QSet>

#include <algorithm>
#include <array>
#include <utility>

namespace corvane {

namespace {

constexpr std::array allParts
    = {PathExpression::FormatPart, PathExpression::MessagePart, PathExpression::FieldPart};

/** The texts of an expression that matches nothing: empty ones, which are not null. */
std::array<QString, 3> textsOfNothing()
{
    const QString empty = QStringLiteral("");
    return {empty, empty, empty};
}

/** Quotes a name that would not be read back as itself. */
QString quotedName(const QString &name)
{
    const bool needsQuotes
        = name.isEmpty() || std::any_of(name.begin(), name.end(), [](QChar c) {
              return c == dot || c == star || c == questionMark || c == quote || c == backslash;
          });
    if (!needsQuotes)
        return name;
    QString escaped = name;
    escaped.replace(backslash, QStringLiteral("\\\\"));
    escaped.replace(quote, QStringLiteral("\\\""));
    return quote + escaped + quote;
}

/** Cuts \a text at its dots outside quotes, the last piece taking all that is left. */
QStringList split(const QString &text, qsizetype maximumPieces)
{
    QStringList pieces;
    qsizetype start = 0;
    bool quoted = false;
    for (qsizetype i = 0; i < text.size() && pieces.size() + 1 < maximumPieces; ++i) {
        const QChar c = text.at(i);
        if (quoted && c == backslash)
            ++i;
        if (c == quote)
            quoted = !quoted;
        if (quoted || c != dot)
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
        text = quotedName(field->getData()->name) + dot + text;
    return text;
}

/** As people sort: digits by their number, letters whatever their case; then by code units. */
bool isNaturallyLess(const QString &left, const QString &right)
{
    qsizetype i = 0;
    qsizetype j = 0;
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    const auto digitsAt = [&isDigit](const QString &text, qsizetype &position) {
        while (position < text.size() && text.at(position) == QLatin1Char('0'))
            ++position;
        const qsizetype start = position;
        while (position < text.size() && isDigit(text.at(position)))
            ++position;
        return QStringView(text).mid(start, position - start);
    };
    while (i < left.size() && j < right.size()) {
        if (isDigit(left.at(i)) && isDigit(right.at(j))) {
            const QStringView leftDigits = digitsAt(left, i);
            const QStringView rightDigits = digitsAt(right, j);
            if (leftDigits.size() != rightDigits.size())
                return leftDigits.size() < rightDigits.size();
            if (const int order = leftDigits.compare(rightDigits); order != 0)
                return order < 0;
            continue;
        }
        const QChar l = left.at(i++).toCaseFolded();
        const QChar r = right.at(j++).toCaseFolded();
        if (l != r)
            return l < r;
    }
    if (left.size() - i != right.size() - j)
        return left.size() - i < right.size() - j;
    return left < right;
}

} // namespace

/** The texts of the parts, and which of them is still being typed. */
class PathExpressionData
{
public:
    using Texts = std::array<QString, 3>;

    static size_t indexOf(PathExpression::Part part)
    {
        return part == PathExpression::FormatPart ? 0 : part == PathExpression::MessagePart ? 1 : 2;
    }

    /** Null texts stand for parts that have not been typed yet; they match everything. */
    void set(const Texts &newTexts, PathExpression::Parts newPrefixPart)
    {
        texts = newTexts;
        prefixPart = newPrefixPart;
        for (const PathExpression::Part part : allParts) {
            const QString &text = texts.at(indexOf(part));
            patterns.at(indexOf(part))
                = PartPattern(text.isNull() ? QString(star) : text, prefixPart == part,
                              part == PathExpression::FieldPart);
        }
    }

    bool matchesEverything(PathExpression::Part part) const
    {
        return patterns.at(indexOf(part)).isEverything();
    }

    template <typename Visitor>
    void visitMessages(Visitor visit) const
    {
        for (const FormatInfo *format : Catalogue::getInstance()->getFormats()) {
            if (!patterns[0].matches(format->getData()->name))
                continue;
            if (const QString *name = patterns[1].getOnlyName()) {
                visitIfWanted(format, format->getData()->messagesByName.value(*name), visit);
                continue;
            }
            for (const auto &message : format->getData()->messages)
                if (patterns[1].matches(message->getData()->name))
                    visitIfWanted(format, message.get(), visit);
        }
    }

    template <typename Visitor>
    void visitFields(Visitor visit) const
    {
        visitMessages([&](const FormatInfo *format, const MessageInfo *message) {
            for (const FieldInfo *field : message->getData()->fields)
                if (patterns[2].matches(field))
                    visit(format, message, field);
        });
    }

    Texts texts{QString(star), QString(star), QString(star)};
    PathExpression::Parts prefixPart;
    bool considerSubMessages = false;
    PathExpression::Parts partsToAnnounce;
    bool matchesToAnnounce = false;
    bool announcing = false;

private:
    template <typename Visitor>
    void visitIfWanted(const FormatInfo *format, const MessageInfo *message, Visitor visit) const
    {
        if (message != nullptr && (message->isMain() || considerSubMessages))
            visit(format, message);
    }

    std::array<PartPattern, 3> patterns;
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
        if (parts.testFlag(part) && !d->texts.at(PathExpressionData::indexOf(part)).isNull())
            texts.append(d->texts.at(PathExpressionData::indexOf(part)));
    return texts.join(corvane::dot);
}

void PathExpression::setTexts(const QString &text, Parts parts, bool prefix)
{
    QList<Part> chosen;
    for (const Part part : corvane::allParts)
        if (parts.testFlag(part))
            chosen.append(part);
    if (chosen.isEmpty())
        return;

    const QStringList pieces = corvane::split(text, chosen.size());
    auto texts = d->texts;
    for (qsizetype i = 0; i < chosen.size(); ++i) {
        // What is not there yet is typed later, or else matches everything. A null text stands for
        // the former, so an empty piece must not be one.
        QString &part = texts.at(PathExpressionData::indexOf(chosen.at(i)));
        if (i < pieces.size())
            part = pieces.at(i).isEmpty() ? QStringLiteral("") : pieces.at(i);
        else
            part = prefix ? QString() : QString(corvane::star);
    }
    apply(texts, prefix ? Parts(chosen.at(pieces.size() - 1)) : Parts());
}

void PathExpression::apply(std::array<QString, 3> texts, Parts prefixPart)
{
    // What has not been typed yet stands at the end only, or the text would read as another one.
    bool isEnd = true;
    for (size_t i = texts.size(); i-- > 0;) {
        isEnd = isEnd && texts.at(i).isNull();
        if (!isEnd && texts.at(i).isNull())
            texts.at(i) = corvane::star;
    }
    Parts changed;
    for (const Part part : corvane::allParts) {
        const size_t index = PathExpressionData::indexOf(part);
        if (texts.at(index) != d->texts.at(index)
            || texts.at(index).isNull() != d->texts.at(index).isNull())
            changed |= part;
    }
    if (!changed && prefixPart == d->prefixPart)
        return;
    d->set(texts, prefixPart);
    d->partsToAnnounce |= changed;
    d->matchesToAnnounce = true;
    announce();
}

void PathExpression::announce()
{
    // A slot may change the expression again, or delete it. The outermost round tells of it all.
    if (d->announcing)
        return;
    const QPointer<PathExpression> self(this);
    d->announcing = true;
    while (self && d->matchesToAnnounce) {
        d->matchesToAnnounce = false;
        if (const Parts changed = std::exchange(d->partsToAnnounce, {})) {
            Q_EMIT partsChanged(changed);
            if (self)
                Q_EMIT expressionChanged(getString(AllParts));
        }
        if (self && !d->matchesToAnnounce)
            Q_EMIT matchesMayHaveChanged();
    }
    if (self)
        d->announcing = false;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is fixed
void PathExpression::setString(QString text, PathExpression::Parts parts)
{
    setTexts(text, parts, false);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is fixed
void PathExpression::setString(QString text)
{
    setTexts(text, AllParts, false);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is fixed
void PathExpression::setStringPrefix(QString prefix, PathExpression::Parts parts)
{
    setTexts(prefix, parts, true);
}

void PathExpression::completeEditing()
{
    auto texts = d->texts;
    for (QString &text : texts)
        if (text.isNull())
            text = corvane::star;
    apply(texts, {});
}

void PathExpression::setWildCard(PathExpression::Parts parts)
{
    auto texts = d->texts;
    for (const Part part : corvane::allParts)
        if (parts.testFlag(part))
            texts.at(PathExpressionData::indexOf(part)) = corvane::star;
    apply(texts, d->prefixPart & ~parts);
}

bool PathExpression::isWildCard(PathExpression::Parts parts) const
{
    return std::all_of(corvane::allParts.begin(), corvane::allParts.end(), [&](Part part) {
        return !parts.testFlag(part) || d->matchesEverything(part);
    });
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
              result.append(texts.join(corvane::dot));
          };
    if (parts.testFlag(FieldPart))
        d->visitFields(add);
    else
        d->visitMessages([&](const FormatInfo *format, const MessageInfo *message) {
            add(format, message, nullptr);
        });
    std::sort(result.begin(), result.end(), corvane::isNaturallyLess);
    result.erase(std::unique(result.begin(), result.end()), result.end());
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
    QSet<const FieldInfo *> shared;
    d->visitFields([&](const FormatInfo *, const MessageInfo *, const FieldInfo *field) {
        const bool isShared = field->getData()->messageInfos.size() > 1;
        if (isShared && shared.contains(field))
            return;
        if (isShared)
            shared.insert(field);
        result.append(field);
    });
    return result;
}

void PathExpression::setupToMatchUnique(const MessageInfo *messageInfo)
{
    if (messageInfo == nullptr)
        return apply(corvane::textsOfNothing(), {});
    const auto &data = *messageInfo->getData();
    apply({corvane::quotedName(data.format->getData()->name), corvane::quotedName(data.name),
           QString(corvane::star)},
          {});
}

void PathExpression::setupToMatchUnique(const FieldInfo *fieldInfo)
{
    if (fieldInfo == nullptr)
        return apply(corvane::textsOfNothing(), {});
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
