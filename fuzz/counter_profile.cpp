// SPDX-License-Identifier: MIT
#include "CounterProfileCheck.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runCheck<fuzz::CounterProfileCheck>(data, size);
}
