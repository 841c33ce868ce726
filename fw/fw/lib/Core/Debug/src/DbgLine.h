#pragma once

#include "DbgTrace.h"

#include <cstdarg>
#include <cstddef>
#include <string_view>

namespace corvane {

/** Where a line comes from. */
struct TraceSite
{
    const char *module = nullptr;
    const char *subModule = nullptr;
    const char *function = nullptr;
    const char *file = nullptr;
    int line = 0;
};

enum class FunctionName {
    IfConfigured,
    Always
};

/**
 * One line while it is built: at most additional_info_size + 127 characters, always terminated.
 * What does not fit is left out.
 */
class DbgLine
{
public:
    DbgLine();
    DbgLine(const DbgLine &) = delete;
    DbgLine &operator=(const DbgLine &) = delete;
    ~DbgLine();

    const char *getText() const { return text; }

    size_t getLength() const { return length; }

    void appendPrefix(int level, const TraceSite &site, FunctionName functionName);
    void append(std::string_view part);
    DBG_PRINTF_LIKE(2, 0) void appendFormatted(const char *format, va_list arguments);
    /** Makes a line that reached the limit end with a newline. */
    void endFullLine();

private:
    void appendAligned(std::string_view part, size_t width);
    template <typename Number>
    void appendNumber(Number number, size_t width);
    void appendLevel(int level);
    void appendThread();

    // 1024 bytes with the 16 bytes of the members below.
    char stackText[1008];
    char *text = stackText; ///< Owned if it is not stackText.
    unsigned limit = 0; ///< The most characters that fit, without the terminator.
    unsigned length = 0;
};

static_assert(sizeof(DbgLine) == 1024, "a line takes this much of the stack");

} // namespace corvane
