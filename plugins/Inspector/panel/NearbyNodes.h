// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoPath.h>

#include <vector>

namespace inspector
{

/// The nodes that govern how the end of the path looks: its material, transform, texture and the like, each
/// where it stands, the ones that count most first. Looks at what stands before the path only.
std::vector<SoPath> nearbyNodes(const SoPath& path);

} // namespace inspector
