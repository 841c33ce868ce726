#pragma once

#include "corvanegui_export.h"

/** The steps by which dbg_Init() reads the environment. */

// NOLINTBEGIN(readability-identifier-naming): the names are the interface

/** A variable's value from the getenv callback, or from the C library without one; else null. */
CORVANEGUI_EXPORT const char *dbg_getenv(const char *name);

/** Reads TAV_TRACELEVEL into the enabled levels; returns an error code, always 0. */
CORVANEGUI_EXPORT int TraceLevelInitialise();
/** Reads TAV_TRACEINFO into the prefix fields; returns an error code, always 0. */
CORVANEGUI_EXPORT int TraceInfoInitialise();
/** The place for a handler of memory faults; none is installed, returns 0. */
CORVANEGUI_EXPORT int DbgInitSegVHandler();

// NOLINTEND(readability-identifier-naming)
