// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoGeometry.h>

namespace xsg
{

/// Builds the unit solids out of turned profiles and flat discs.
///
/// A ring of a turned solid: its height, its radius, and its normal in the plane of the profile.
struct ProfileRing {
    float y;
    float radius;
    SbVec2f normal; // outward, upward
    float v;        // texture coordinate
};

/// Turns the rings, given from the bottom up, around the y axis.
void turn(SoGeometry& geometry, const std::vector<ProfileRing>& rings, int segments);
/// A disc of radius 1 at a height, seen from above or from below.
void disc(SoGeometry& geometry, float y, bool upward, int segments);

} // namespace xsg
