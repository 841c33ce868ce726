#include "overlaykeys.h"

#include <array>

namespace corvane {

namespace {

struct TimeUnit
{
    const char *name;
    qint64 microseconds;
};

constexpr std::array timeUnits
    = {TimeUnit{"us", 1}, TimeUnit{"ms", 1'000}, TimeUnit{"s", 1'000'000}};

QStringList names(const char *spaceSeparated)
{
    return QString::fromLatin1(spaceSeparated).split(QLatin1Char(' '));
}

} // namespace

const QMap<QString, QStringList> &overlayKeys()
{
    static const QMap<QString, QStringList> keys = {
        {QStringLiteral("overlay"), names("$schema $comment format framing messages")},
        {QStringLiteral("message"),
         names("$comment displayName description timeField envelope fields virtualFields")},
        {QStringLiteral("timeField"), names("$comment field unit")},
        {QStringLiteral("envelope"), names("$comment oneof sequenceField")},
        {QStringLiteral("field"), names("$comment displayName description unit role confidential "
                                        "symbols bitMask subFields")},
        {QStringLiteral("subField"), names("$comment name firstBit bits bit signed displayName "
                                           "description unit role confidential symbols bitMask")},
        {QStringLiteral("virtualField"), names("$comment name expression displayName description "
                                               "unit role confidential")},
        {QStringLiteral("symbol"), names("$comment name description")},
    };
    return keys;
}

const QStringList &overlayRoleNames()
{
    static const QStringList roles = names("ordinary primary secondary technical");
    return roles;
}

QStringList overlayTimeUnitNames()
{
    QStringList result;
    for (const TimeUnit &unit : timeUnits)
        result.append(QLatin1String(unit.name));
    return result;
}

qint64 overlayTimeUnitUs(const QString &name)
{
    for (const TimeUnit &unit : timeUnits)
        if (name == QLatin1String(unit.name))
            return unit.microseconds;
    return 0;
}

} // namespace corvane
