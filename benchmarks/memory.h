#pragma once

#include <malloc.h>

/// Returns the number of bytes that the program has allocated and not freed. The difference between
/// two calls is the value for a benchmark's counter `bytes`.
inline double heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}
