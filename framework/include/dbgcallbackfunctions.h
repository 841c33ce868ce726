#pragma once

// NOLINTBEGIN(modernize-*): C reads it too.
#include <stdint.h>
#include <stdio.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * The services that a host lends to the trace facility. A plain C record, owned by the host; each
 * member may be null, which means that the service is not there.
 */
typedef struct DbgCallbackFunctions
{
    void (*lock)(void *context); /**< Taken around output; called with lockContext. */
    void (*unlock)(void *context);
    void *lockContext;
    /** Writes the name of the calling thread, terminated, into out, which has size bytes. */
    void (*getThreadName)(char *out, int size);
    void (*reserved4)(void); /**< Not used. */
    void (*reserved5)(void); /**< Not used. */
    void (*reserved6)(void); /**< Not used. */
    uint64_t (*getTime)(void); /**< The current time in milliseconds since 1970 (UTC). */
    void (*sleep)(int milliseconds);
    void (*setOutputStream)(FILE *stream); /**< Chooses where output goes. */
    void (*output)(const char *line, int severity); /**< Severity 1: error or assertion; else 2. */
    const char *(*getenv)(const char *name); /**< In place of the C library's. */
    void (*abortHandler)(void); /**< Called before the process is aborted. */
} DbgCallbackFunctions;

#ifdef __cplusplus
}
#endif
// NOLINTEND(modernize-*)
