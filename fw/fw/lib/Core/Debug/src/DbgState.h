#pragma once

#include "DbgTrace.h"

#include <atomic>
#include <cstdint>
#include <limits>
#include <string_view>
#include <type_traits>

namespace corvane {

/** The fields of a line's prefix, one bit each. */
enum TraceInfo : unsigned {
    ModuleInfo = 1,
    SubModuleInfo = 2,
    FunctionInfo = 8,
    FileInfo = 16,
    LineInfo = 32,
    LevelInfo = 64,
    TimeInfo = 128,
    ThreadInfo = 256,
    AllInfo = 511
};

/**
 * The state of the facility that callers do not see. Initialised at compile time and never
 * destroyed, so that tracing works before and after all static objects.
 */
struct TraceState
{
    std::atomic<unsigned> infoMask = 0;
    char *modules = nullptr; ///< Owned; null: no list.
    char *subModules = nullptr; ///< Owned; null: no list.
    std::atomic<uint64_t> startTime = 0;
    std::atomic<uint64_t> stopTime = std::numeric_limits<uint64_t>::max();
    std::atomic<uint64_t> setTime = 0; ///< 0: not set.
    std::atomic<int> busyCount = 0;
    std::atomic<DbgListener> listener = nullptr;
};

extern constinit TraceState traceState;

/** Reads a public global that another thread may write. */
template <typename T>
T loadShared(T &global)
{
    return std::atomic_ref<T>(global).load(std::memory_order_acquire);
}

/** Writes a public global that another thread may read. */
template <typename T>
void storeShared(T &global, std::type_identity_t<T> value)
{
    std::atomic_ref<T>(global).store(value, std::memory_order_release);
}

/** A callback of the host's table; null without table or callback. */
template <typename Slot>
Slot callback(Slot DbgCallbackFunctions::*slot)
{
    const DbgCallbackFunctions *table = loadShared(dbg_callback_fn);
    return table == nullptr ? nullptr : table->*slot;
}

inline const char *orEmpty(const char *text)
{
    return text == nullptr ? "" : text;
}

/** The host's lock for the length of a block. */
class TraceLock
{
public:
    TraceLock() { dbg_lock(); }

    TraceLock(const TraceLock &) = delete;
    TraceLock &operator=(const TraceLock &) = delete;

    ~TraceLock() { dbg_unlock(); }
};

} // namespace corvane
