#include "exportselection.h"

#include "fieldinfo.h"
#include "fieldtext.h"
#include "messageinfo.h"
#include "pathexpression.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>
#include <vector>

namespace corvane {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("corvane::ExportSelection", text);
}

/** The least number of characters to insert, remove or replace (Levenshtein). */
qsizetype editDistance(const QString &from, const QString &to)
{
    std::vector<qsizetype> row(static_cast<size_t>(to.size()) + 1);
    for (size_t i = 0; i < row.size(); ++i)
        row[i] = static_cast<qsizetype>(i);
    for (qsizetype i = 0; i < from.size(); ++i) {
        qsizetype diagonal = std::exchange(row[0], i + 1);
        for (size_t j = 1; j < row.size(); ++j) {
            const bool isSame = from.at(i) == to.at(static_cast<qsizetype>(j) - 1);
            const qsizetype replaced = diagonal + (isSame ? 0 : 1);
            diagonal = std::exchange(row[j], std::min({replaced, row[j] + 1, row[j - 1] + 1}));
        }
    }
    return row.back();
}

/** A path without its format is what people forget; it counts as a near one. */
qsizetype distanceBetween(const QString &typed, const QString &path)
{
    const QString lower = path.toLower();
    const QString withoutFormat = lower.mid(lower.indexOf(QLatin1Char('.')) + 1);
    return std::min(editDistance(typed, lower), editDistance(typed, withoutFormat));
}

/** The paths that \a typed may have meant, nearest first. */
QStringList getSimilarPaths(const QString &typed)
{
    constexpr qsizetype shown = 3;
    constexpr qsizetype longest = 200; // Nobody mistypes a longer one by little.
    if (typed.size() > longest)
        return {};
    PathExpression everything;
    everything.setString(QStringLiteral("*"));
    const QStringList paths
        = everything.getMatchingExpressionsStringList(PathExpression::FormatPart
                                                      | PathExpression::MessagePart)
          + everything.getMatchingExpressionsStringList(PathExpression::AllParts);
    std::vector<std::pair<qsizetype, QString>> near;
    for (const QString &path : paths) {
        const qsizetype distance = distanceBetween(typed.toLower(), path);
        if (distance <= std::max<qsizetype>(1, typed.size() / 4))
            near.emplace_back(distance, path);
    }
    std::stable_sort(near.begin(), near.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    QStringList result;
    for (size_t i = 0; i < near.size() && result.size() < shown; ++i)
        result.append(near[i].second);
    return result;
}

QString describeMismatch(const QString &path)
{
    const QStringList similar = getSimilarPaths(path);
    return similar.isEmpty()
               ? tr("\"%1\" matches no message and no field. A path is FORMAT.MESSAGE.FIELD, where "
                    "parts may be left out at the end, and * stands for any text.")
                     .arg(path)
               : tr("\"%1\" matches no message and no field. Similar: %2")
                     .arg(path, similar.join(QStringLiteral(", ")));
}

/** False where \a path matches nothing. */
bool addMatches(ExportSelection &selection, const QString &path)
{
    PathExpression expression;
    expression.setString(path);
    const bool ofWholeTypes = expression.isWildCard(PathExpression::FieldPart);
    const auto fields = expression.getMatchingFieldInfos();
    expression.setWildCard(PathExpression::FieldPart);
    bool matches = false;
    for (const MessageInfo *type : expression.getMatchingMessageInfos()) {
        QList<const FieldInfo *> chosen = fields;
        if (ofWholeTypes)
            chosen = getExportedFields(type);
        else
            chosen.removeIf([type](const FieldInfo *field) { return !field->occursIn(type); });
        if (!ofWholeTypes && chosen.isEmpty())
            continue;
        selection.add(type, chosen);
        matches = true;
    }
    return matches;
}

} // namespace

void ExportSelection::add(const MessageInfo *type, const QList<const FieldInfo *> &fields)
{
    auto place = std::find_if(types.begin(), types.end(),
                              [type](const Type &known) { return known.info == type; });
    if (place == types.end())
        place = types.insert(types.end(), Type{type, {}});
    for (const FieldInfo *field : fields)
        if (!place->fields.contains(field))
            place->fields.append(field);
}

QList<const MessageInfo *> ExportSelection::getTypes() const
{
    QList<const MessageInfo *> infos;
    for (const Type &type : types)
        infos.append(type.info);
    return infos;
}

ExportSelectionResult selectForExport(const QStringList &paths)
{
    ExportSelectionResult result;
    for (const QString &path : paths.isEmpty() ? QStringList{QStringLiteral("*")} : paths) {
        if (!addMatches(result.selection, path)) {
            result.error = describeMismatch(path);
            return result;
        }
    }
    return result;
}

} // namespace corvane
