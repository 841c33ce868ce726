#include "names.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace corvane {

namespace {

constexpr qsizetype maximumShownLength = 60;
constexpr qsizetype maximumComparedLength = 100;
constexpr qsizetype maximumListedNames = 15;

qsizetype editDistance(const QString &left, const QString &right)
{
    std::vector<qsizetype> row(static_cast<size_t>(right.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (const QChar c : left) {
        qsizetype diagonal = row.front()++;
        for (size_t i = 1; i < row.size(); ++i) {
            const bool same = right.at(static_cast<qsizetype>(i) - 1).toLower() == c.toLower();
            const qsizetype replaced = diagonal + (same ? 0 : 1);
            diagonal = row[i];
            row[i] = std::min({replaced, row[i] + 1, row[i - 1] + 1});
        }
    }
    return row.back();
}

} // namespace

QString quoted(const QString &name)
{
    const bool cut = name.size() > maximumShownLength;
    return QLatin1Char('"') + (cut ? name.left(maximumShownLength) + QStringLiteral("...") : name)
           + QLatin1Char('"');
}

QString nearestName(const QString &name, const QStringList &names)
{
    if (name.size() > maximumComparedLength)
        return {};
    QString nearest;
    qsizetype least = std::max<qsizetype>(1, name.size() / 3) + 1;
    for (const QString &candidate : names) {
        if (qAbs(candidate.size() - name.size()) >= least)
            continue;
        const qsizetype distance = editDistance(name, candidate);
        if (distance >= least)
            continue;
        nearest = candidate;
        least = distance;
    }
    return nearest;
}

QString suggestion(const QString &name, const QStringList &names)
{
    const QString nearest = nearestName(name, names);
    if (!nearest.isEmpty())
        return QStringLiteral("; did you mean %1?").arg(quoted(nearest));
    if (names.isEmpty() || names.size() > maximumListedNames)
        return {};
    QStringList listed;
    std::transform(names.begin(), names.end(), std::back_inserter(listed), quoted);
    if (listed.size() == 1)
        return QStringLiteral("; expected ") + listed.constFirst();
    return QStringLiteral("; expected one of ") + listed.join(QStringLiteral(", "));
}

} // namespace corvane
