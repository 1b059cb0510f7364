// SPDX-License-Identifier: MIT
// Allocation with the place that asked for it, for debugging; counted by the library's counters. Safe from
// any thread.
#pragma once

#include <xsg/values/XsgExport.h>

#include <cstddef>

/// `size` bytes, suitably aligned for any type, or null when there is no memory. file, line: the place that
/// asks.
XSG_API void* XsgMalloc(std::size_t size, const char* file, int line);
/// Gives memory of XsgMalloc back; a null pointer is ignored.
XSG_API void XsgFree(void* memory, const char* file, int line);
