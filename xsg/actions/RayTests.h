// SPDX-License-Identifier: MIT
// Where a ray meets simple things. Distances are in units of the ray's direction. Own code: Eigen has no such
// tests for triangles and segments, and its minimum and maximum do not treat 0/0 as meetsBox() needs it.
#pragma once

#include <xsg/values/SbBox.h>
#include <xsg/values/SbRay.h>

namespace xsg
{

bool meetsBox(const SbRay& ray, const SbBox3f& box);
/// From either side; the normal is not of length 1.
bool meetsTriangle(const SbRay& ray, const SbVec3f& a, const SbVec3f& b, const SbVec3f& c, float& distance,
                   SbVec3f& normal);
/// Whether the ray, its direction of length 1, passes a segment (or a point, a == b) within `tolerance` times
/// the distance.
bool passesSegment(const SbRay& ray, const SbVec3f& a, const SbVec3f& b, float tolerance, float& distance);

} // namespace xsg
