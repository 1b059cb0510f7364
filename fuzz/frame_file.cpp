// SPDX-License-Identifier: MIT
#include "FrameFileCheck.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runCheck<fuzz::FrameFileCheck>(data, size);
}
