// SPDX-License-Identifier: MIT
#include "SpxVersion.h"

#include <string_view>

static_assert(std::string_view(SPX_SCOPIX_VERSION) == SCOPIX_VERSION, "SpxVersion.h and project() differ");
