// SPDX-License-Identifier: MIT
// Destroys large scenes without keeping the user waiting.
#pragma once

#include <xsg/nodes/base/SoNode.h>

#include <vector>

namespace scopix
{

/// Gives these references up. What nothing else holds is taken apart, a little at once and the rest between
/// the events of the user. GUI thread only.
void releaseGradually(std::vector<SoRef<SoNode>> nodes);
void releaseGradually(SoRef<SoNode> node);

} // namespace scopix
