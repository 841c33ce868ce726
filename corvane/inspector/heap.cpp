#include "heap.h"

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace corvane {

void keepLargeBlocksApart()
{
#ifdef __GLIBC__
    constexpr int leastBytes = 64'000; // below that of a run of samples, which is 64 KiB
    mallopt(M_MMAP_THRESHOLD, leastBytes);
#endif
}

} // namespace corvane
