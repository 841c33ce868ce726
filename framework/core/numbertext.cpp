#include "numbertext.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string_view>

namespace corvane {

namespace {

constexpr int maximumPrecision = 17;

QString nameOfSpecial(double value)
{
    if (std::isnan(value))
        return QStringLiteral("NaN");
    return value > 0 ? QStringLiteral("Infinity") : QStringLiteral("-Infinity");
}

QString toQString(std::string_view text)
{
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

// The shortest digits as std::to_chars finds them, "d.ddde-NN".
template <typename Float>
std::string_view shortestScientific(Float value, char (&buffer)[64])
{
    const auto end
        = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific);
    return {buffer, static_cast<size_t>(end.ptr - buffer)};
}

// Below these, plain notation has no more digits than are needed to read the number back.
template <typename Float>
constexpr Float largestPlain = 1e16;
template <>
constexpr float largestPlain<float> = 1e8F;

template <typename Float>
QString shortestText(Float value)
{
    if (!std::isfinite(value))
        return nameOfSpecial(static_cast<double>(value));
    const Float magnitude = std::abs(value);
    const bool plain
        = magnitude == 0
          || (magnitude >= static_cast<Float>(1e-6) && magnitude < largestPlain<Float>);
    char buffer[64];
    if (!plain)
        return toQString(shortestScientific(value, buffer));
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed);
    return toQString({buffer, static_cast<size_t>(end.ptr - buffer)});
}

template <typename Float>
QString scientificText(Float value, int precision)
{
    if (!std::isfinite(value))
        return nameOfSpecial(static_cast<double>(value));
    char buffer[64];
    if (precision < 0)
        return toQString(shortestScientific(value, buffer));
    const auto end
        = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific,
                        std::min(precision, maximumPrecision));
    return toQString({buffer, static_cast<size_t>(end.ptr - buffer)});
}

} // namespace

QString textOf(float value)
{
    return shortestText(value);
}

QString textOf(double value)
{
    return shortestText(value);
}

QString fixedTextOf(double value, int precision)
{
    if (!std::isfinite(value))
        return nameOfSpecial(value);
    return QString::number(value, 'f', std::clamp(precision, 0, maximumPrecision));
}

QString scientificTextOf(double value, int precision)
{
    return scientificText(value, precision);
}

QString scientificTextOf(float value, int precision)
{
    return scientificText(value, precision);
}

QString groupedDigits(const QString &number)
{
    constexpr QChar narrowSpace(0x202F);
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    const auto first = std::find_if(number.begin(), number.end(), isDigit) - number.begin();
    auto end = first;
    while (end < number.size() && isDigit(number.at(end)))
        ++end;
    QString result = number;
    for (auto position = end - 3; position > first; position -= 3)
        result.insert(position, narrowSpace);
    return result;
}

} // namespace corvane
