// SPDX-License-Identifier: MIT
#include "PatchCheck.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runCheck<fuzz::PatchCheck>(data, size);
}
