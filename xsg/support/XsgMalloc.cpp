// SPDX-License-Identifier: MIT
#include <xsg/support/XsgMalloc.h>

#include <xsg/counters/LibraryCounters.h>

#include <cstdlib>

void* XsgMalloc(std::size_t size, const char* /*file*/, int /*line*/)
{
    xsg::feeds.allocations.add();
    xsg::feeds.allocatedBytes.add(static_cast<std::int64_t>(size));
    return std::malloc(size);
}

void XsgFree(void* memory, const char* /*file*/, int /*line*/)
{
    std::free(memory);
}
