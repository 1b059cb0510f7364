#include "FieldTextCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static auto& check = *new fuzz::FieldTextCheck;
    check(data, size);
    return 0;
}
