// SPDX-License-Identifier: MIT
#include "SceneFileCheck.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runCheck<fuzz::SceneFileCheck>(data, size);
}
