// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoGeometry.h>
#include <xsg/values/XsgExport.h>

namespace xsg
{

/// For each point of the triangles: the direction in which the first of these texture coordinates grows on
/// the surface, at right angles to the normal; the fourth number is the side, 1 or -1, of normal x direction
/// on which the second one grows. Empty where there are not as many normals and coordinates as points.
XSG_API std::vector<SbVec4f> computeTangents(const SoGeometry& geometry,
                                             const std::vector<SbVec2f>& coordinates);

} // namespace xsg
