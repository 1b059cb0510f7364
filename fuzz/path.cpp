// SPDX-License-Identifier: MIT
#include "PathCheck.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runCheck<fuzz::PathCheck>(data, size);
}
