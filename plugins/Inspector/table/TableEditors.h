// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

class SpxExtension;

namespace inspector
{

/// The editors that show lists as tables, in the order in which the plug-in adds them: the later one wins
/// where two handle the same type. Last comes the dock that shows one wide, which they know.
std::vector<std::unique_ptr<SpxExtension>> makeTableEditors();

} // namespace inspector
