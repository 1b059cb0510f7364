// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include <malloc.h>

/// Bytes that are allocated at present. Under a sanitizer, which has an allocator of its own, always the same
/// number: limits that are held against it then hold nothing.
inline std::size_t heapInUse()
{
    // Large blocks by themselves, in whatever thread: what is freed between others would count as in use.
    static const int fixed = mallopt(M_MMAP_THRESHOLD, 1 << 17);
    const struct mallinfo2 now = mallinfo2();
    return fixed == 0 ? 0 : now.uordblks + now.hblkhd;
}
