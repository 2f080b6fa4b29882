#pragma once

#include <ctime>

/// Returns the processor time of this thread in seconds, for benchmarks that measure only part of
/// an iteration.
inline double processorSeconds()
{
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + 1e-9 * double(now.tv_nsec);
}
