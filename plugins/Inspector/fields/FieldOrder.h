// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

class SoField;
class SoFieldContainer;

namespace inspector
{

/// The node's fields in the order in which the panel shows them: as their descriptions stand, then the
/// others.
std::vector<SoField*> fieldsInOrder(const SoFieldContainer& node);

} // namespace inspector
