// SPDX-License-Identifier: MIT
#include "LiveMessageCheck.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runCheck<fuzz::LiveMessageCheck>(data, size);
}
