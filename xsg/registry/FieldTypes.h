// SPDX-License-Identifier: MIT
// Registers every built-in field type, so that it can be found by name.
#pragma once

namespace xsg
{

void registerFieldTypes();

} // namespace xsg
