// SPDX-License-Identifier: MIT
// Registers every built-in node type, so that it can be found by name.
#pragma once

namespace xsg
{

void registerNodeTypes();

} // namespace xsg
