// SPDX-License-Identifier: MIT
#include "ExpressionCheck.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runCheck<fuzz::ExpressionCheck>(data, size);
}
