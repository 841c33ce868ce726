#include "DbgLine.h"

#include "DbgState.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <limits>

using namespace corvane;

namespace {

std::string_view levelName(int level)
{
    switch (level) {
    case DbgLevelError:
        return "Err";
    case DbgLevelFunction:
        return "Func";
    case DbgLevelDetail0:
        return "0";
    case DbgLevelDetail1:
        return "1";
    case DbgLevelDetail2:
        return "2";
    default:
        return "Unk";
    }
}

unsigned lineLimit()
{
    const long long characters = static_cast<long long>(loadShared(additional_info_size)) + 127;
    constexpr long long most = std::numeric_limits<int>::max() - 1;
    return static_cast<unsigned>(std::clamp(characters, 0LL, most));
}

} // namespace

// The characters are written as they come; filling the buffer first would cost more than a line.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
DbgLine::DbgLine()
    : limit(lineLimit())
{
    if (limit >= sizeof stackText) {
        text = static_cast<char *>(std::malloc(size_t(limit) + 1));
        if (text == nullptr) {
            text = stackText;
            limit = sizeof stackText - 1;
        }
    }
    text[0] = '\0';
}

DbgLine::~DbgLine()
{
    if (text != stackText)
        std::free(text);
}

void DbgLine::append(std::string_view part)
{
    const size_t count = std::min<size_t>(part.size(), limit - length);
    std::memcpy(text + length, part.data(), count);
    length += static_cast<unsigned>(count);
    text[length] = '\0';
}

void DbgLine::appendAligned(std::string_view part, size_t width)
{
    constexpr std::string_view blanks = "                    ";
    if (part.size() < width)
        append(blanks.substr(0, width - part.size()));
    append(part);
}

template <typename Number>
void DbgLine::appendNumber(Number number, size_t width)
{
    char digits[24];
    const auto result = std::to_chars(std::begin(digits), std::end(digits), number);
    appendAligned({digits, static_cast<size_t>(result.ptr - digits)}, width);
}

void DbgLine::appendFormatted(const char *format, va_list arguments)
{
    if (format == nullptr)
        return;
    const int written
        = std::vsnprintf(text + length, size_t(limit) - length + 1, format, arguments);
    if (written > 0)
        length = std::min(limit, length + static_cast<unsigned>(written));
    text[length] = '\0';
}

void DbgLine::endFullLine()
{
    if (length == limit && length > 0)
        text[length - 1] = '\n';
}

void DbgLine::appendLevel(int level)
{
    if (level == DbgLevelAssert)
        return append(" ASSERT:");
    append(" Lv:");
    appendAligned(levelName(level), 4);
}

void DbgLine::appendThread()
{
    const auto getThreadName = callback(&DbgCallbackFunctions::getThreadName);
    if (getThreadName == nullptr)
        return;
    char name[16] = {};
    getThreadName(name, sizeof name);
    append(" Thd:");
    appendAligned({name, strnlen(name, sizeof name)}, 16);
}

void DbgLine::appendPrefix(int level, const TraceSite &site, FunctionName functionName)
{
    const unsigned info = traceState.infoMask;
    const auto appendName = [this](const char *name, size_t width) {
        append(" ");
        appendAligned(orEmpty(name), width);
    };
    if ((info & TimeInfo) != 0)
        appendNumber(dbg_GetTime() / 1000, 10);
    if ((info & LevelInfo) != 0)
        appendLevel(level);
    if ((info & ThreadInfo) != 0)
        appendThread();
    if ((info & ModuleInfo) != 0)
        appendName(site.module, 10);
    if ((info & SubModuleInfo) != 0)
        appendName(site.subModule, 10);
    if ((info & LineInfo) != 0) {
        append(" Ln:");
        appendNumber(site.line, 4);
    }
    if ((info & FunctionInfo) != 0 || functionName == FunctionName::Always)
        appendName(site.function, 20);
    if ((info & FileInfo) != 0)
        appendName(site.file, 20);
}
