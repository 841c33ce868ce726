#include "exporttext.h"

#include "decodedmessage.h"

#include <QString>

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace corvane {

namespace {

bool isControl(char c)
{
    return static_cast<unsigned char>(c) < 0x20;
}

bool needsEscape(char c)
{
    return c == '"' || c == '\\' || isControl(c);
}

std::string escapeOf(char c)
{
    switch (c) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default: {
        char text[7];
        std::snprintf(text, sizeof text, "\\u%04x", static_cast<unsigned>(c));
        return text;
    }
    }
}

void escapeJson(std::string &out, size_t begin)
{
    const std::string plain = out.substr(begin);
    out.resize(begin);
    for (const char c : plain) {
        if (needsEscape(c))
            out += escapeOf(c);
        else
            out += c;
    }
}

void putInQuotes(std::string &out, size_t begin)
{
    out.insert(begin, 1, '"');
    out += '"';
}

/** \a number has at most \a width digits. */
void appendDigits(std::string &out, qint64 number, int width)
{
    const size_t begin = out.size();
    out.resize(begin + static_cast<size_t>(width));
    for (auto digit = out.rbegin(); width > 0; --width, ++digit, number /= 10)
        *digit = static_cast<char>('0' + number % 10);
}

} // namespace

void appendUtf8(std::string &out, QStringView text)
{
    const QByteArray utf8 = text.toUtf8();
    out.append(utf8.constData(), static_cast<size_t>(utf8.size()));
}

bool appendTime(std::string &out, qint64 timeUs)
{
    using namespace std::chrono;
    if (timeUs == DecodedMessage::unknownTime)
        return false;
    const sys_time<microseconds> time{microseconds(timeUs)};
    const auto day = floor<days>(time);
    constexpr days firstDay = sys_days(January / 1 / 0).time_since_epoch();
    constexpr days lastDay = sys_days(December / 31 / 9999).time_since_epoch();
    if (day.time_since_epoch() < firstDay || day.time_since_epoch() > lastDay)
        return false;
    const year_month_day date(day);
    const hh_mm_ss clock(time - day);
    appendDigits(out, static_cast<int>(date.year()), 4);
    out += '-';
    appendDigits(out, static_cast<unsigned>(date.month()), 2);
    out += '-';
    appendDigits(out, static_cast<unsigned>(date.day()), 2);
    out += 'T';
    appendDigits(out, clock.hours().count(), 2);
    out += ':';
    appendDigits(out, clock.minutes().count(), 2);
    out += ':';
    appendDigits(out, clock.seconds().count(), 2);
    out += '.';
    appendDigits(out, clock.subseconds().count(), 6);
    out += 'Z';
    return true;
}

void quoteJson(std::string &out, size_t begin)
{
    if (std::any_of(out.begin() + static_cast<std::ptrdiff_t>(begin), out.end(), needsEscape))
        escapeJson(out, begin);
    putInQuotes(out, begin);
}

void quoteCsv(std::string &out, size_t begin)
{
    const auto isSpecial = [](char c) { return c == ',' || c == '"' || isControl(c); };
    const bool isPlain
        = begin < out.size() && out[begin] != ' ' && out.back() != ' '
          && std::none_of(out.begin() + static_cast<std::ptrdiff_t>(begin), out.end(), isSpecial);
    if (isPlain)
        return;
    for (size_t at = out.find('"', begin); at != std::string::npos; at = out.find('"', at + 2))
        out.insert(at, 1, '"');
    putInQuotes(out, begin);
}

} // namespace corvane
