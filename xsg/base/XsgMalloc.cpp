#include <xsg/base/XsgMalloc.h>

#include <cstdlib>

void* XsgMalloc(std::size_t size, const char* /*file*/, int /*line*/)
{
    return std::malloc(size);
}

void XsgFree(void* memory, const char* /*file*/, int /*line*/)
{
    std::free(memory);
}
