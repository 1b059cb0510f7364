// SPDX-License-Identifier: MIT
#pragma once

namespace xsg
{

/// The level that knows every built-in type says here how to register them: `registerTypes` is called before
/// each look-up by name, on any thread. Set while the library is loaded, before any look-up.
void setTypeRegistration(void (*registerTypes)());

} // namespace xsg
