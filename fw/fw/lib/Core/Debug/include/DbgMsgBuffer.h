#pragma once

#include "corvanegui_export.h"

#include <cstdint>

/**
 * The latest trace lines in a memory area of the host, so that they can be written out after a
 * failure.
 *
 * Every emitted line is pushed into a ring in the area; the oldest ones make room. Until an area is
 * set, the functions do nothing. Nothing is allocated and no byte outside the area is written.
 *
 *     static char area[65536];
 *     Tav::DbgDump_setTraceBuffer(area, sizeof area);
 *     ...
 *     char line[256];
 *     uint64_t cursor = 0;
 *     for (int n = 1; Tav::DbgDump_getNextLine(line, sizeof line, n, cursor, false) != 0; ++n)
 *         fputs(line, stderr);
 *
 * The functions take no lock: lines are pushed under the host's lock, and all others must be called
 * under it as well (dbg_lock()) or while no thread traces.
 */

// NOLINTBEGIN(readability-identifier-naming): the names are the interface
namespace Tav {

/** Whether DbgDump_getNextLine() gives lines; a fatal assertion that sleeps switches it off. */
extern CORVANEGUI_EXPORT bool dbgDumpAllowed;

/**
 * Sets the area and empties the ring. The area stays the host's and must live as long as it is set;
 * null switches the buffer off. An area that does not begin on an 8-byte boundary is used from the
 * next one on.
 */
CORVANEGUI_EXPORT void DbgDump_setTraceBuffer(void *start, uint64_t size);
/** Empties the ring. */
CORVANEGUI_EXPORT void dbgMsgBufferReset();
/**
 * Stores the first 2048 characters of the line. Returns true if that took no older line's place.
 * A line that does not fit beside the newest one, or not into the area at all, is refused: the ring
 * stays as it was and the result is false.
 */
CORVANEGUI_EXPORT bool dbgMsgBufferPush(const char *line);
/**
 * Steps to the next newer line, or backwards to the next older one, and returns its text; null at
 * the end, where the cursor stays. A cursor of 0 stands before the oldest line, or backwards behind
 * the newest. A cursor is good until the next push or change of the buffer.
 */
CORVANEGUI_EXPORT const char *dbgMsgBufferPeekNext(uint64_t &cursor, bool backwards);
/** The bytes that a text of the given length takes in the area. */
CORVANEGUI_EXPORT uint64_t msgNodeSizeAligned(uint64_t length);

/** Sets dbgDumpAllowed. */
CORVANEGUI_EXPORT void DbgDump_enableDump(bool allowed);
/**
 * Steps like dbgMsgBufferPeekNext() and writes the line with its number ("%3d %s") to out; returns
 * its length, 0 when there is none. The last two bytes of out always become a newline and a
 * terminator, so that a line that was cut ends with a newline. With dumping off, or an outSize
 * below 2, the cursor steps, nothing is written and the result is 0.
 */
CORVANEGUI_EXPORT uint64_t
DbgDump_getNextLine(char *out, uint64_t outSize, int lineNumber, uint64_t &cursor, bool backwards);

} // namespace Tav

/** Accepted and ignored. */
CORVANEGUI_EXPORT void DbgDump_setVersion(const char *version);
// NOLINTEND(readability-identifier-naming)
