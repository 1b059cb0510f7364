// SPDX-License-Identifier: MIT
#include "FailingAllocations.h"

#include <cstdlib>
#include <new>

namespace
{

long s_failing = 0;
long s_asked = 0;
long s_alive = 0;

void* allocate(std::size_t size, std::size_t alignment)
{
    if (++s_asked == s_failing)
        throw std::bad_alloc();
    void* memory = nullptr;
    if (alignment <= alignof(std::max_align_t))
        memory = std::malloc(size > 0 ? size : 1);
    else
        memory = std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
    if (!memory)
        throw std::bad_alloc();
    ++s_alive;
    return memory;
}

void release(void* memory)
{
    if (memory)
        --s_alive;
    std::free(memory);
}

} // namespace

void failing::failAllocation(long nth)
{
    s_failing = nth;
    s_asked = 0;
}

long failing::allocationsAsked()
{
    return s_asked;
}

long failing::allocationsAlive()
{
    return s_alive;
}

// Those for arrays and those that throw nothing end in these.
void* operator new(std::size_t size)
{
    return allocate(size, 1);
}

void* operator new(std::size_t size, std::align_val_t alignment)
{
    return allocate(size, static_cast<std::size_t>(alignment));
}

void operator delete(void* memory) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::align_val_t) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::size_t, std::align_val_t) noexcept
{
    release(memory);
}
