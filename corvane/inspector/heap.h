#pragma once

namespace corvane {

/**
 * Lets the heap of glibc take memory of its own for each large block, such as a run of plotted
 * samples. By itself it puts ever larger ones between small blocks once a large one was freed, and
 * a program that runs for days grows by the holes there. Does nothing with other libraries.
 */
void keepLargeBlocksApart();

} // namespace corvane
