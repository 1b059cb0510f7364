// SPDX-License-Identifier: MIT
#include "FieldTextCheck.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runCheck<fuzz::FieldTextCheck>(data, size);
}
