// SPDX-License-Identifier: MIT
// Where a node stands in the world, in one of its places.
#pragma once

#include <xsg/actions/SoPath.h>
#include <xsg/values/SbBox.h>
#include <xsg/values/SbMatrix.h>

#include <optional>

namespace scopix
{

struct PathPlace {
    SbMatrix toWorld; // from the coordinates just before the last node of the path; of the first copy
    SbBox3f box;      // around it, in these coordinates; empty for what has no size
};

/// Nothing where the walk over the scene does not come there, as below a switch that chooses another child.
/// Looks at what is on the path and at what sets state beside it.
std::optional<PathPlace> findPlace(const SoPath& path);

} // namespace scopix
