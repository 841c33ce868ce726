#pragma once

#ifdef __cplusplus
extern "C" {
#endif

/** Makes one line with each function of the interface. */
void traceFromC(void);
/** Whether the public globals hold what the test's initialisation left. */
int stateSeenFromC(void);

#ifdef __cplusplus
}
#endif
