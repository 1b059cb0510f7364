// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include <malloc.h>

/// Bytes that are allocated at present. Under a sanitizer, which has an allocator of its own, always the same
/// number: limits that are held against it then hold nothing.
inline std::size_t heapInUse()
{
    const struct mallinfo2 now = mallinfo2();
    return now.uordblks + now.hblkhd;
}
