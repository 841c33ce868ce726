#pragma once

#include "dbgcallbackfunctions.h"
#include "tavguibase_export.h"

/**
 * The trace callbacks of this process: a mutex, thread names, the time in milliseconds, sleep and
 * an output stream (standard output until another one is set). A line of severity 1 is flushed at
 * once, so that it survives an abort. The record lives as long as the process and may be asked
 * for during static initialisation.
 */
TAVGUIBASE_EXPORT DbgCallbackFunctions *getCallBackFunctions();
