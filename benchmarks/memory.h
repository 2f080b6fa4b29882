#pragma once

#include <malloc.h>

/// Returns the bytes that the program has allocated and not freed. The difference of two calls is
/// the value for the counter `bytes` of a benchmark.
inline double heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}
