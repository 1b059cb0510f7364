// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SoSphere.h>

#include <xsg/nodes/shapes/SolidBuilder.h>
#include <xsg/types/SoTypedImpl.h>

#include <cmath>

template class SoTyped<SoSphere, SoSolid>;

SbVec3f SoSphere::getExtent() const
{
    const float r = radius.getValue();
    return {r, r, r};
}

SoGeometryKey SoSphere::getGeometryKey(const SoState& state) const
{
    return makeKey(getSegments(state));
}

void SoSphere::generate(const SoState& state, SoGeometry& geometry) const
{
    const int segments = getSegments(state);
    const int rows = segments / 2;
    std::vector<xsg::ProfileRing> rings;
    for (int i = 0; i <= rows; ++i) {
        const double angle = 3.141592653589793 * i / rows;
        const auto y = static_cast<float>(-std::cos(angle));
        const bool pole = i == 0 || i == rows;
        const float r = pole ? 0.0F : static_cast<float>(std::sin(angle));
        rings.push_back({y, r, {r, y}, static_cast<float>(i) / static_cast<float>(rows)});
    }
    xsg::turn(geometry, rings, segments);
}
